#include "Emitter/Module.h"

#include "HeaderParser/Parser.h"

#include <fstream>
#include <sstream>
#include <unordered_set>

namespace HeaderTool
{
using namespace HeaderParser;
namespace fs = std::filesystem;

namespace
{
std::string MakeFileId(const std::string& ModuleName, const std::string& RelativePath)
{
	std::string Id = "FID_" + ModuleName + "_" + RelativePath;
	for (char& Character : Id)
	{
		const bool bWord =
			(Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z') || (Character >= '0' && Character <= '9');
		Character = bWord ? Character : '_';
	}
	return Id;
}

/** "GameFramework/Actor.h" of "Public/GameFramework/Actor.h". */
std::string WithoutAccessFolder(const std::string& RelativePath)
{
	for (const std::string_view Folder : {"Public/", "Private/", "Classes/"})
	{
		if (RelativePath.compare(0, Folder.size(), Folder) == 0)
		{
			return RelativePath.substr(Folder.size());
		}
	}
	return RelativePath;
}

/** Quoted includes of a header, found without reading its declarations. */
std::vector<std::string> ScanIncludes(const std::string_view Text)
{
	static constexpr std::string_view Directive = "#include \"";
	std::vector<std::string> Includes;
	for (size_t At = Text.find(Directive); At != std::string_view::npos; At = Text.find(Directive, At))
	{
		At += Directive.size();
		const size_t End = Text.find_first_of("\"\n", At);
		if (End == std::string_view::npos)
		{
			break;
		}
		Includes.emplace_back(Text.substr(At, End - At));
	}
	return Includes;
}

bool MayDeclareReflectedTypes(const std::string_view Text)
{
	return Text.find(".generated.h\"") != std::string_view::npos || Text.find("DECLARE_DYNAMIC_") != std::string_view::npos ||
		Text.find("noexport") != std::string_view::npos;
}
}

std::optional<std::string> ReadFile(const fs::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	if (!Stream)
	{
		return std::nullopt;
	}
	std::ostringstream Text;
	Text << Stream.rdbuf();
	return Text.str();
}

bool WriteFileIfChanged(const fs::path& Path, const std::string_view Text)
{
	if (const std::optional<std::string> Existing = ReadFile(Path); Existing && *Existing == Text)
	{
		return true;
	}
	const fs::path Temporary = Path.string() + ".tmp";
	std::ofstream Stream(Temporary, std::ios::binary | std::ios::trunc);
	Stream.write(Text.data(), static_cast<std::streamsize>(Text.size()));
	Stream.close();
	std::error_code Error;
	if (Stream)
	{
		fs::rename(Temporary, Path, Error);
	}
	return Stream && !Error;
}

bool FModule::Read()
{
	for (const fs::path& Path : Options.Headers)
	{
		ReadHeader(Path);
	}
	if (ErrorLines.empty())
	{
		ReadForeignHeaders();
	}
	return ErrorLines.empty();
}

bool FModule::ReadHeader(const fs::path& Path)
{
	const std::optional<std::string> Text = ReadFile(Path);
	InputPaths.push_back(Path.string());
	if (!Text)
	{
		ErrorLines.push_back(FormatDiagnostic(Path.string(), {{1, 1}, "expected a readable file"}));
		return false;
	}
	FParseResult Result = ParseHeader(*Text);
	auto Header = std::make_unique<FReflectedHeader>();
	Header->Stem = Path.stem().string();
	Header->ModuleRelativePath = fs::absolute(Path).lexically_relative(fs::absolute(Options.Root)).generic_string();
	Header->IncludePath = WithoutAccessFolder(Header->ModuleRelativePath);
	Header->FileId = MakeFileId(Options.ModuleName, Header->ModuleRelativePath);
	Header->Model = std::move(Result.Header);
	Header->Package = Header->Model.Package.empty() ? "/Script/" + Options.ModuleName : Header->Model.Package;
	for (const FDiagnostic& Error : Result.Errors.empty() ? Validate(*Header) : Result.Errors)
	{
		ErrorLines.push_back(FormatDiagnostic(Path.string(), Error));
	}
	Types.Add(Header->Model);
	Headers.push_back(std::move(Header));
	return true;
}

fs::path FModule::FindInclude(const std::string& Include) const
{
	for (const fs::path& Folder : Options.IncludeFolders)
	{
		const fs::path Candidate = Folder / Include;
		std::error_code Error;
		if (fs::is_regular_file(Candidate, Error))
		{
			return Candidate;
		}
	}
	return fs::path();
}

void FModule::ReadForeignHeaders()
{
	std::unordered_set<std::string> Seen;
	std::vector<std::string> Pending;
	const std::unordered_set<std::string> Own(InputPaths.begin(), InputPaths.end());
	for (const std::unique_ptr<FReflectedHeader>& Header : Headers)
	{
		Pending.insert(Pending.end(), Header->Model.Includes.begin(), Header->Model.Includes.end());
	}
	while (!Pending.empty())
	{
		const std::string Include = std::move(Pending.back());
		Pending.pop_back();
		// What this tool writes itself declares nothing to it, and must not become an input of its own output.
		if (Include.ends_with(".generated.h") || !Seen.insert(Include).second)
		{
			continue;
		}
		const fs::path Path = FindInclude(Include);
		if (Path.empty() || Own.contains(Path.string()))
		{
			continue;
		}
		const std::optional<std::string> Text = ReadFile(Path);
		if (!Text)
		{
			continue;
		}
		InputPaths.push_back(Path.string());
		const std::vector<std::string> Includes = ScanIncludes(*Text);
		Pending.insert(Pending.end(), Includes.begin(), Includes.end());
		if (MayDeclareReflectedTypes(*Text))
		{
			// Its mistakes are shown when its own module is read.
			ForeignHeaders.push_back(std::make_unique<FHeader>(ParseHeader(*Text).Header));
			Types.Add(*ForeignHeaders.back());
		}
	}
}

bool FModule::Write()
{
	std::error_code Error;
	fs::create_directories(Options.Output, Error);
	for (const std::unique_ptr<FReflectedHeader>& Header : Headers)
	{
		const fs::path HeaderPath = Options.Output / (Header->Stem + ".generated.h");
		const fs::path SourcePath = Options.Output / (Header->Stem + ".gen.cpp");
		if (!WriteFileIfChanged(HeaderPath, EmitGeneratedHeader(*Header, Types)) ||
			!WriteFileIfChanged(SourcePath, EmitGeneratedSource(*Header, Types)))
		{
			ErrorLines.push_back(SourcePath.string() + ": error: expected a file that can be written");
			return false;
		}
	}
	return true;
}
}
