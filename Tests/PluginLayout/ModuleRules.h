#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

/** What one build says of a module. */
struct FModuleRules
{
	std::set<std::string> PublicDepends;
	std::set<std::string> PrivateDepends;
	std::set<std::string> Libraries;

	std::set<std::string> GetAll() const;
};

/** The names of the folders of a folder. */
std::vector<std::string> ListFolders(const std::string& Path);
/** All of a file; the test fails where there is none. */
std::string ReadText(const std::string& Path);

/** What this tree's build says: the module's CMakeLists.txt. */
FModuleRules ReadCMakeRules(const std::string& ModulePath);
/** What the engine's build says: the module's Build.cs. */
FModuleRules ReadEngineRules(const std::string& ModulePath);

/** A place where code includes a header. */
struct FInclude
{
	std::string File;
	std::string Header;
	bool bQuoted;
};
std::vector<FInclude> FindIncludes(const std::string& ModulePath);
