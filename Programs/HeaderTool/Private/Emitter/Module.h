#pragma once

#include "Emitter/ReflectedHeader.h"

#include <filesystem>
#include <memory>

namespace HeaderTool
{
struct FModuleOptions
{
	std::string ModuleName;
	/** Folder of the module, which has Public/ and Private/. */
	std::filesystem::path Root;
	/** Folders that `#include "..."` is searched in, for declarations of the modules below. */
	std::vector<std::filesystem::path> IncludeFolders;
	std::vector<std::filesystem::path> Headers;
	std::filesystem::path Output;
};

/** Reads and emits one module. */
class FModule
{
public:
	explicit FModule(FModuleOptions InOptions)
		: Options(std::move(InOptions))
	{
	}

	/** False when Errors() has lines to show; nothing is written then. */
	[[nodiscard]] bool Read();
	/** Writes the files whose text changed. False when one cannot be written. */
	[[nodiscard]] bool Write();

	/** "path:line:col: error: ..." each. */
	[[nodiscard]] const std::vector<std::string>& Errors() const { return ErrorLines; }
	/** Every file that was read. */
	[[nodiscard]] const std::vector<std::string>& Inputs() const { return InputPaths; }

private:
	bool ReadHeader(const std::filesystem::path& Path);
	/** Reads headers of other modules for the types that ours mention. */
	void ReadForeignHeaders();
	[[nodiscard]] std::filesystem::path FindInclude(const std::string& Include) const;

	FModuleOptions Options;
	std::vector<std::unique_ptr<FReflectedHeader>> Headers;
	std::vector<std::unique_ptr<HeaderParser::FHeader>> ForeignHeaders;
	HeaderParser::FTypeIndex Types;
	std::vector<std::string> ErrorLines;
	std::vector<std::string> InputPaths;
};

[[nodiscard]] std::optional<std::string> ReadFile(const std::filesystem::path& Path);
/** Leaves a file alone that has the text already. The file is whole or not there at any instant. */
[[nodiscard]] bool WriteFileIfChanged(const std::filesystem::path& Path, std::string_view Text);
}
