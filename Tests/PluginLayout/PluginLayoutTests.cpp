#include "ModuleRules.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

// The plug-in is built by the engine too. No machine of ours has it, so these tests hold the two builds to the same.

namespace
{
namespace fs = std::filesystem;
using FNames = std::set<std::string>;

const std::string Root = VEXEL_SOURCE_DIR;
const std::string SourcePath = Root + "/Source";

/** The engine's modules that stand in another one here. */
const std::map<std::string, std::string> HostModules = {
	{"DeveloperSettings", "Engine"},
	{"EditorScriptingUtilities", "UnrealEd"},
	{"EditorSubsystem", "UnrealEd"},
	{"SlateCore", "Slate"},
};

/** The headers of those modules that the plug-in uses. */
const std::map<std::string, std::string> ModulesOfHeaders = {
	{"Engine/DeveloperSettings.h", "DeveloperSettings"},
	{"EditorAssetLibrary.h", "EditorScriptingUtilities"},
	{"EditorSubsystem.h", "EditorSubsystem"},
	{"Textures/SlateIcon.h", "SlateCore"},
	{"Widgets/SWindow.h", "SlateCore"},
};

/** Headers of Engine/ that the engine has not. */
const FNames HostOnlyHeaders = {"HeadlessEditor.h", "Misc/AtomicFile.h", "NodeTextImportResult.h", "StandardMacros.h",
	"UObject/PlaceholderObject.h", "UObject/ScriptHeaderLoader.h"};

/** What a library of this build is for the engine's. */
const std::map<std::string, FNames> SystemLibraries = {
	{"CURL::libcurl", {"curl"}},
	{"OpenSSL::Crypto", {"crypto"}},
	{"OpenSSL::SSL", {"ssl"}},
	{"PkgConfig::CPPHTTPLIB", {"cpp-httplib"}},
	{"PkgConfig::LIBSECRET", {"secret-1", "gio-2.0", "gobject-2.0", "glib-2.0"}},
	{"SQLite::SQLite3", {"sqlite3"}},
	{"ZLIB::ZLIB", {"z"}},
};

/** Third-party headers, and whose business they are. */
const std::vector<std::pair<std::string, FNames>> ThirdPartyHeaders = {
	{"curl/", {"VexelCore"}},
	{"httplib.h", {"VexelCore"}},
	{"libsecret/", {"VexelCore"}},
	{"openssl/", {"VexelCore"}},
	{"rapidjson/", {"VexelCore"}},
	{"sqlite3.h", {"VexelDatabase"}},
	{"zlib.h", {"VexelCore"}},
};

/** The system's own, for what no engine API does. */
const FNames SystemHeaders = {"arpa/inet.h", "fcntl.h", "malloc.h", "netinet/in.h", "pwd.h", "sys/file.h", "sys/socket.h", "sys/stat.h", "unistd.h"};

/** The compilers' own, for what the language cannot say. */
const FNames CompilerHeaders = {"emmintrin.h"};

bool IsPublic(const std::string& File)
{
	return File.find("/Public/") != std::string::npos;
}

std::string GetHostModule(const std::string& Module)
{
	const auto Host = HostModules.find(Module);
	return Host == HostModules.end() ? Module : Host->second;
}

FNames ToHostModules(const FNames& Modules)
{
	FNames Hosts;
	for (const std::string& Module : Modules)
	{
		Hosts.insert(GetHostModule(Module));
	}
	return Hosts;
}

/** Module of each header below Engine/. */
std::map<std::string, std::string> ListEngineHeaders()
{
	std::map<std::string, std::string> Headers;
	for (const std::string& Module : ListFolders(Root + "/Engine"))
	{
		const fs::path Public = Root + "/Engine/" + Module + "/Public";
		if (!fs::exists(Public))
		{
			continue;
		}
		for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Public))
		{
			Headers.emplace(fs::relative(Entry.path(), Public), Module);
		}
	}
	return Headers;
}

/** The header is one of the module's own, or of another module of the plug-in that it names. */
bool IsHeaderOfPlugin(const std::string& Module, const FInclude& Include, const FModuleRules& Rules)
{
	const std::string ModulePath = SourcePath + "/" + Module;
	if (fs::exists(ModulePath + "/Public/" + Include.Header))
	{
		return true;
	}
	if (!IsPublic(Include.File) &&
		(fs::exists(ModulePath + "/Private/" + Include.Header) || fs::exists(fs::path(Include.File).parent_path() / Include.Header)))
	{
		return true;
	}
	const FNames Named = IsPublic(Include.File) ? Rules.PublicDepends : Rules.GetAll();
	return std::any_of(Named.begin(), Named.end(), [&](const std::string& Other)
		{ return fs::exists(SourcePath + "/" + Other + "/Public/" + Include.Header); });
}

/** Why the module may not include that header of Engine/; empty when it may. */
std::string FindFaultOfEngineHeader(const FInclude& Include, const std::string& HostModule, const FModuleRules& Rules)
{
	if (HostOnlyHeaders.count(Include.Header) > 0)
	{
		return "the engine has no such header";
	}
	const auto Finer = ModulesOfHeaders.find(Include.Header);
	const std::string& Module = Finer == ModulesOfHeaders.end() ? HostModule : Finer->second;
	const FNames Named = IsPublic(Include.File) ? Rules.PublicDepends : Rules.GetAll();
	return Named.count(Module) > 0 ? "" : "the Build.cs does not name the engine's module " + Module;
}

std::string FindFaultOfSystemHeader(const std::string& Module, const FInclude& Include)
{
	if (Include.Header.find('.') == std::string::npos)
	{
		return "";
	}
	if (IsPublic(Include.File))
	{
		return "a public header includes no third party's";
	}
	const auto ThirdParty = std::find_if(ThirdPartyHeaders.begin(), ThirdPartyHeaders.end(), [&](const auto& Row)
		{ return Include.Header.rfind(Row.first, 0) == 0; });
	if (ThirdParty != ThirdPartyHeaders.end())
	{
		return ThirdParty->second.count(Module) > 0 ? "" : "it is another module's business";
	}
	if (CompilerHeaders.count(Include.Header) > 0)
	{
		return "";
	}
	return Module == "VexelCore" && SystemHeaders.count(Include.Header) > 0 ? "" : "it is no header that the plug-in may use";
}

/** Why the module may not include a header; empty when it may. */
std::string FindFault(const std::string& Module, const FModuleRules& Rules, const FInclude& Include)
{
	static const std::map<std::string, std::string> EngineHeaders = ListEngineHeaders();
	if (!Include.bQuoted)
	{
		return FindFaultOfSystemHeader(Module, Include);
	}
	if (Include.Header == fs::path(Include.File).stem().string() + ".generated.h" || IsHeaderOfPlugin(Module, Include, Rules))
	{
		return "";
	}
	const auto EngineHeader = EngineHeaders.find(Include.Header);
	return EngineHeader == EngineHeaders.end() ? "there is no such header" : FindFaultOfEngineHeader(Include, EngineHeader->second, Rules);
}
}

TEST(PluginLayout, BothBuildsKnowTheSameModulesOfEachModule)
{
	for (const std::string& Module : ListFolders(SourcePath))
	{
		const FModuleRules Ours = ReadCMakeRules(SourcePath + "/" + Module);
		const FModuleRules Engines = ReadEngineRules(SourcePath + "/" + Module);
		EXPECT_EQ(ToHostModules(Engines.PublicDepends), Ours.PublicDepends) << Module;
		EXPECT_EQ(ToHostModules(Engines.PrivateDepends), Ours.PrivateDepends) << Module;
	}
}

TEST(PluginLayout, BothBuildsLinkTheSameLibraries)
{
	for (const std::string& Module : ListFolders(SourcePath))
	{
		FNames Expected;
		for (const std::string& Library : ReadCMakeRules(SourcePath + "/" + Module).Libraries)
		{
			ASSERT_EQ(SystemLibraries.count(Library), 1u) << Module << " links " << Library << ", whose system name is not known";
			Expected.insert(SystemLibraries.at(Library).begin(), SystemLibraries.at(Library).end());
		}
		EXPECT_EQ(ReadEngineRules(SourcePath + "/" + Module).Libraries, Expected) << Module;
	}
}

TEST(PluginLayout, EveryHeaderThatThePluginIncludesIsThereInTheEngineToo)
{
	size_t NumIncludes = 0;
	for (const std::string& Module : ListFolders(SourcePath))
	{
		const FModuleRules Rules = ReadEngineRules(SourcePath + "/" + Module);
		for (const FInclude& Include : FindIncludes(SourcePath + "/" + Module))
		{
			++NumIncludes;
			EXPECT_EQ(FindFault(Module, Rules, Include), "") << Include.File << " includes " << Include.Header;
		}
	}
	EXPECT_GT(NumIncludes, 500u) << "the includes were not found";
}

TEST(PluginLayout, HeadersThatTheEngineHasNotAreFound)
{
	const FModuleRules Client = ReadEngineRules(SourcePath + "/VexelClient");
	const FModuleRules Core = ReadEngineRules(SourcePath + "/VexelCore");
	const std::string Private = SourcePath + "/VexelClient/Private/X.cpp";
	const std::string Public = SourcePath + "/VexelClient/Public/X.h";
	const FInclude Bad[] = {{Private, "HeadlessEditor.h", true}, {Private, "curl/curl.h", false}, {Private, "Misc/None.h", true},
		{Private, "Http/VexelHttpThread.h", true}, {Private, "unistd.h", false}, {Public, "curl/curl.h", false}, {Public, "Auth/VexelAuth.h", true}};
	for (const FInclude& Include : Bad)
	{
		EXPECT_NE(FindFault("VexelClient", Client, Include), "") << Include.Header;
	}
	EXPECT_EQ(FindFault("VexelClient", Client, FInclude{Private, "Auth/VexelAuth.h", true}), "");
	EXPECT_NE(FindFault("VexelCore", Core, FInclude{SourcePath + "/VexelCore/Private/X.cpp", "Editor.h", true}), "");
	EXPECT_NE(FindFault("VexelCore", Core, FInclude{SourcePath + "/VexelCore/Public/X.h", "Widgets/SWindow.h", true}), "");
}

TEST(PluginLayout, ThePluginNamesItsModulesAndItsVersion)
{
	const nlohmann::json Plugin = nlohmann::json::parse(ReadText(Root + "/Vexel.uplugin"), nullptr, false);
	ASSERT_TRUE(Plugin.is_object());
	EXPECT_EQ(Plugin["FileVersion"], 3);
	EXPECT_EQ(Plugin["VersionName"], VEXEL_VERSION);
	EXPECT_EQ(Plugin["EngineVersion"], "5.7.0");
	std::vector<std::string> Names;
	for (const nlohmann::json& Module : Plugin["Modules"])
	{
		Names.push_back(Module["Name"]);
		EXPECT_EQ(Module["Type"], "Editor") << Names.back();
		// The client sets timers on the editor, which is there when the engine is.
		EXPECT_EQ(Module["LoadingPhase"], Names.back() == "VexelClient" ? "PostEngineInit" : "Default") << Names.back();
	}
	EXPECT_THAT(Names, testing::UnorderedElementsAreArray(ListFolders(SourcePath)));
	// A module of another plug-in comes with that plug-in.
	std::vector<std::string> Plugins;
	for (const nlohmann::json& Other : Plugin["Plugins"])
	{
		Plugins.push_back(Other["Name"]);
		EXPECT_EQ(Other["Enabled"], true);
	}
	EXPECT_THAT(Plugins, testing::ElementsAre("EditorScriptingUtilities"));
}
