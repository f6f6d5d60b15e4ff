#include "ScriptApiHeaders.h"

#include "HeaderParser/Parser.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <fstream>
#include <sstream>

namespace
{
std::vector<FScriptApiHeader> ReadScriptApiHeaders()
{
	std::vector<FScriptApiHeader> Headers;
	const std::filesystem::path Folder(VEXEL_SOURCE_DIR "/Engine/ScriptApi");
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder))
	{
		if (Entry.path().extension() != ".h")
		{
			continue;
		}
		std::ostringstream Text;
		Text << std::ifstream(Entry.path(), std::ios::binary).rdbuf();
		HeaderParser::FParseResult Result = HeaderParser::ParseHeader(Text.str());
		FScriptApiHeader& Header = Headers.emplace_back();
		Header.Path = Entry.path();
		Header.Header = std::move(Result.Header);
		for (const HeaderParser::FDiagnostic& Error : Result.Errors)
		{
			Header.Errors.push_back(HeaderParser::FormatDiagnostic(Entry.path().string(), Error));
		}
	}
	return Headers;
}
}

const std::vector<FScriptApiHeader>& GetScriptApiHeaders()
{
	static const std::vector<FScriptApiHeader> Headers = ReadScriptApiHeaders();
	return Headers;
}

std::string GetReflectedPath(const HeaderParser::FHeader& Header, const std::string& CppName)
{
	return Header.Package + "." + CppName.substr(1);
}

UClass* FindDeclaredClass(const HeaderParser::FHeader& Header, const std::string& CppName)
{
	return FindObject<UClass>(nullptr, UTF8_TO_TCHAR(GetReflectedPath(Header, CppName).c_str()));
}
