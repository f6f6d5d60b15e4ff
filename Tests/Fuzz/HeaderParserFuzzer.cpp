#include "HeaderParser/Parser.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{
/** Every error says where it stands, in a file that has so many lines. */
void CheckErrors(const std::string_view Text, const HeaderParser::FParseResult& Result)
{
	const int64_t NumLines = 1 + std::count(Text.begin(), Text.end(), '\n');
	for (const HeaderParser::FDiagnostic& Error : Result.Errors)
	{
		const bool bPlace = Error.Position.Line >= 1 && Error.Position.Line <= NumLines && Error.Position.Column >= 1;
		if (!bPlace || Error.Message.empty())
		{
			abort();
		}
	}
}

/** A declaration that was understood has a name. */
template <typename DeclarationType>
void CheckNames(const std::vector<DeclarationType>& Declarations)
{
	for (const DeclarationType& Declaration : Declarations)
	{
		if (Declaration.Name.empty())
		{
			abort();
		}
	}
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	const std::string_view Text(reinterpret_cast<const char*>(Data), Size);
	const HeaderParser::FParseResult Result = HeaderParser::ParseHeader(Text);
	CheckErrors(Text, Result);
	CheckNames(Result.Header.Classes);
	CheckNames(Result.Header.Structs);
	CheckNames(Result.Header.Enums);
	CheckNames(Result.Header.Delegates);
	for (const HeaderParser::FClassDeclaration& Class : Result.Header.Classes)
	{
		CheckNames(Class.Properties);
		CheckNames(Class.Functions);
	}
	return 0;
}
