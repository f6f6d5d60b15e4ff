#include "PackageSamples.h"

#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <algorithm>

namespace PackageSamples
{
std::filesystem::path GetFolder()
{
	return std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";
}

std::vector<std::string> List()
{
	std::vector<std::string> Samples;
	std::error_code Missing;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(GetFolder(), Missing))
	{
		const std::string Extension = Entry.path().extension().string();
		if (Extension == ".uasset" || Extension == ".umap")
		{
			Samples.push_back(std::filesystem::relative(Entry.path(), GetFolder()).string());
		}
	}
	std::sort(Samples.begin(), Samples.end());
	return Samples;
}

std::string GetGroup(const std::string& Sample)
{
	return Sample.substr(0, Sample.find('/'));
}

FString GetPackageName(const std::string& Sample)
{
	const std::filesystem::path File = GetFolder() / Sample;
	FString Error;
	const TUniquePtr<FLinkerLoad> Tables = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(File.c_str())), nullptr, Error);
	if (Tables && Tables->Summary.PackageName.StartsWith(TEXT("/")))
	{
		return Tables->Summary.PackageName;
	}
	const std::string Inside = Sample.substr(Sample.find('/') + 1);
	return FString(TEXT("/Game/")) + UTF8_TO_TCHAR(Inside.substr(0, Inside.rfind('.')).c_str());
}

FLoaded::FLoaded(const std::filesystem::path& File, const FString& PackageName)
	: Package(CreatePackage(*PackageName))
{
	TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(File.c_str())), Package, Error);
	if (Linker)
	{
		Package->SetPackageFlagsTo(Linker->Summary.PackageFlags);
		Package->SetLinker(Linker.Release());
		Package->GetLinker()->LoadAllObjects();
		Package->GetLinker()->TakeFingerprints();
	}
}

FLinkerLoad* FLoaded::GetLinker() const
{
	return Package->GetLinker();
}

FLoaded::~FLoaded()
{
	ResetLoaders(Package);
	ForEachObjectWithPackage(Package, [](UObject* Object)
		{
			Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
			return true; });
	Package->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(TEXT("/Temp/Unloaded"))).ToString(), nullptr,
		REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}
}
