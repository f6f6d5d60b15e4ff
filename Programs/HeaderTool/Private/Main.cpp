#include "Emitter/Module.h"

#include <iostream>
#include <set>
#include <sstream>

namespace
{
using HeaderTool::FModuleOptions;

constexpr int StatusFailed = 1;
constexpr int StatusUsage = 2;

constexpr std::string_view Usage =
	"usage: HeaderTool --module NAME --root DIR --headers MANIFEST --output DIR [--includes LIST] [--depfile FILE]\n";

struct FArguments
{
	FModuleOptions Module;
	/** Paths of headers, one a line. */
	std::filesystem::path Manifest;
	/** Folders that includes are found in, one a line. */
	std::filesystem::path IncludeList;
	/** Lists what was read, for the build system; the target is `Output/Module.stamp`. */
	std::filesystem::path DepFile;
};

std::vector<std::filesystem::path> ReadLines(const std::string& Text)
{
	std::vector<std::filesystem::path> Parts;
	std::istringstream Stream(Text);
	for (std::string Part; std::getline(Stream, Part);)
	{
		if (!Part.empty())
		{
			Parts.emplace_back(Part);
		}
	}
	return Parts;
}

std::optional<FArguments> ReadArguments(const std::vector<std::string>& Words)
{
	FArguments Arguments;
	for (size_t Index = 0; Index + 1 < Words.size(); Index += 2)
	{
		const std::string& Name = Words[Index];
		const std::string& Value = Words[Index + 1];
		if (Name == "--module")
		{
			Arguments.Module.ModuleName = Value;
		}
		else if (Name == "--root")
		{
			Arguments.Module.Root = Value;
		}
		else if (Name == "--headers")
		{
			Arguments.Manifest = Value;
		}
		else if (Name == "--output")
		{
			Arguments.Module.Output = Value;
		}
		else if (Name == "--includes")
		{
			Arguments.IncludeList = Value;
		}
		else if (Name == "--depfile")
		{
			Arguments.DepFile = Value;
		}
		else
		{
			return std::nullopt;
		}
	}
	const bool bComplete = !Arguments.Module.ModuleName.empty() && !Arguments.Module.Root.empty() && !Arguments.Manifest.empty() &&
		!Arguments.Module.Output.empty();
	return Words.size() % 2 == 0 && bComplete ? std::optional(std::move(Arguments)) : std::nullopt;
}

bool WriteDepFile(const FArguments& Arguments, const std::vector<std::string>& Inputs)
{
	std::string Text = (Arguments.Module.Output / (Arguments.Module.ModuleName + ".stamp")).string() + ":";
	for (const std::string& Input : Inputs)
	{
		Text += " \\\n  ";
		for (const char Character : Input)
		{
			Text += Character == ' ' ? "\\ " : std::string(1, Character);
		}
	}
	return HeaderTool::WriteFileIfChanged(Arguments.DepFile, Text + "\n");
}

/** A header that moved to another module must not be found by its old generated header. */
void RemoveOutputsOfFormerHeaders(const FArguments& Arguments)
{
	std::set<std::string> Stems;
	for (const std::filesystem::path& Header : Arguments.Module.Headers)
	{
		Stems.insert(Header.stem().string());
	}
	std::error_code Ignored;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Arguments.Module.Output, Ignored))
	{
		const std::filesystem::path Name = Entry.path().filename();
		const std::string Ending = Name.stem().extension().string() + Name.extension().string();
		const bool bIsOutput = Ending == ".generated.h" || Ending == ".gen.cpp";
		if (bIsOutput && !Stems.contains(Name.stem().stem().string()))
		{
			std::filesystem::remove(Entry.path(), Ignored);
		}
	}
}

int Run(FArguments Arguments)
{
	const bool bIncludes = !Arguments.IncludeList.empty();
	const std::optional<std::string> Manifest = HeaderTool::ReadFile(Arguments.Manifest);
	const std::optional<std::string> IncludeList = bIncludes ? HeaderTool::ReadFile(Arguments.IncludeList) : std::string();
	if (!Manifest || !IncludeList)
	{
		std::cerr << (Manifest ? Arguments.IncludeList : Arguments.Manifest).string() << ": error: expected a readable list of paths\n";
		return StatusFailed;
	}
	Arguments.Module.Headers = ReadLines(*Manifest);
	Arguments.Module.IncludeFolders = ReadLines(*IncludeList);
	HeaderTool::FModule Module(Arguments.Module);
	const bool bDone = Module.Read() && Module.Write();
	for (const std::string& Line : Module.Errors())
	{
		std::cerr << Line << "\n";
	}
	if (bDone)
	{
		RemoveOutputsOfFormerHeaders(Arguments);
	}
	if (bDone && !Arguments.DepFile.empty() && !WriteDepFile(Arguments, Module.Inputs()))
	{
		std::cerr << Arguments.DepFile.string() << ": error: expected a file that can be written\n";
		return StatusFailed;
	}
	return bDone ? 0 : StatusFailed;
}
}

int main(const int Count, char** const Values)
{
	std::optional<FArguments> Arguments = ReadArguments(std::vector<std::string>(Values + 1, Values + Count));
	if (!Arguments)
	{
		std::cerr << Usage;
		return StatusUsage;
	}
	return Run(std::move(*Arguments));
}
