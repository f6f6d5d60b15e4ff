#pragma once

#include "CoreMinimal.h"

#include <filesystem>
#include <string>
#include <vector>

class FLinkerLoad;
class UPackage;

/** The packages that the real editor wrote. */
namespace PackageSamples
{
/** Paths within the folder, in order; none when the folder is missing. */
std::vector<std::string> List();
std::filesystem::path GetFolder();
/** The first folder of a sample's path: "UE56". */
std::string GetGroup(const std::string& Sample);

/** A file with all its objects under the name that it gives itself, which is free again when this is gone. */
class FLoaded
{
public:
	FLoaded(const std::filesystem::path& File, const FString& PackageName);
	~FLoaded();
	FLoaded(const FLoaded&) = delete;
	FLoaded& operator=(const FLoaded&) = delete;

	/** Null when the file was refused; GetError tells why. */
	FLinkerLoad* GetLinker() const;
	UPackage* GetPackage() const { return Package; }
	const FString& GetError() const { return Error; }

private:
	UPackage* Package;
	FString Error;
};

/** What a sample's file calls its package; a name of our own for packages of the 4.x line, which do not say. */
FString GetPackageName(const std::string& Sample);
}
