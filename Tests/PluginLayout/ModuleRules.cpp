#include "ModuleRules.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <sstream>

namespace
{
namespace fs = std::filesystem;

std::string GetName(const std::string& ModulePath)
{
	return fs::path(ModulePath).filename();
}

/** The texts in quotes of each list that is added to a member. */
std::set<std::string> ReadAddedNames(const std::string& Code, const std::string& Member)
{
	std::set<std::string> Names;
	const std::regex List(Member + R"(\.AddRange\(new string\[\]\s*\{([^}]*)\})");
	const std::regex Quoted("\"([^\"]+)\"");
	for (std::sregex_iterator Found(Code.begin(), Code.end(), List); Found != std::sregex_iterator(); ++Found)
	{
		const std::string Body = (*Found)[1];
		for (std::sregex_iterator Name(Body.begin(), Body.end(), Quoted); Name != std::sregex_iterator(); ++Name)
		{
			Names.insert((*Name)[1]);
		}
	}
	return Names;
}
}

std::set<std::string> FModuleRules::GetAll() const
{
	std::set<std::string> All = PublicDepends;
	All.insert(PrivateDepends.begin(), PrivateDepends.end());
	return All;
}

std::vector<std::string> ListFolders(const std::string& Path)
{
	std::vector<std::string> Names;
	for (const fs::directory_entry& Entry : fs::directory_iterator(Path))
	{
		if (Entry.is_directory())
		{
			Names.push_back(Entry.path().filename());
		}
	}
	std::sort(Names.begin(), Names.end());
	return Names;
}

std::string ReadText(const std::string& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	EXPECT_TRUE(Stream.good()) << "there is no " << Path;
	return std::string(std::istreambuf_iterator<char>(Stream), {});
}

FModuleRules ReadCMakeRules(const std::string& ModulePath)
{
	FModuleRules Rules;
	std::smatch Call;
	const std::string Text = ReadText(ModulePath + "/CMakeLists.txt");
	const std::regex Pattern("vexel_module\\(" + GetName(ModulePath) + "\\s([^)]*)\\)");
	if (!std::regex_search(Text, Call, Pattern))
	{
		ADD_FAILURE() << ModulePath << " is no module";
		return Rules;
	}
	std::set<std::string> Ignored;
	std::map<std::string, std::set<std::string>*> Lists = {{"PUBLIC_DEPENDS", &Rules.PublicDepends},
		{"PRIVATE_DEPENDS", &Rules.PrivateDepends}, {"LIBRARIES", &Rules.Libraries}, {"PRECOMPILED", &Ignored}, {"DEFINITIONS", &Ignored}};
	std::set<std::string>* Current = &Ignored;
	std::istringstream Words(Call[1]);
	for (std::string Word; Words >> Word;)
	{
		const auto List = Lists.find(Word);
		if (List != Lists.end())
		{
			Current = List->second;
		}
		else
		{
			Current->insert(Word);
		}
	}
	return Rules;
}

FModuleRules ReadEngineRules(const std::string& ModulePath)
{
	const std::string Name = GetName(ModulePath);
	const std::string Code = ReadText(ModulePath + "/" + Name + ".Build.cs");
	EXPECT_NE(Code.find("public class " + Name + " : ModuleRules"), std::string::npos) << Name;
	FModuleRules Rules;
	Rules.PublicDepends = ReadAddedNames(Code, "PublicDependencyModuleNames");
	Rules.PrivateDepends = ReadAddedNames(Code, "PrivateDependencyModuleNames");
	Rules.Libraries = ReadAddedNames(Code, "PublicSystemLibraries");
	return Rules;
}

std::vector<FInclude> FindIncludes(const std::string& ModulePath)
{
	std::vector<FInclude> Includes;
	const std::regex Pattern(R"re(^\s*#\s*include\s*([<"])([^">]+)[">])re");
	for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(ModulePath))
	{
		if (Entry.path().extension() != ".h" && Entry.path().extension() != ".cpp")
		{
			continue;
		}
		std::ifstream Stream(Entry.path());
		for (std::string Line; std::getline(Stream, Line);)
		{
			std::smatch Found;
			if (std::regex_search(Line, Found, Pattern))
			{
				Includes.push_back(FInclude{Entry.path(), Found[2], Found[1] == "\""});
			}
		}
	}
	return Includes;
}
