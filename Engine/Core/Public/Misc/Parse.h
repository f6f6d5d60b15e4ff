#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

class FName;
class FOutputDevice;
class FText;
struct FGuid;

/** Reads values out of text such as command lines, commands and object text. `Match` is looked for in any case and ends with its '='. */
struct CORE_API FParse
{
	/** True when `-Param` or `/Param` stands in the text as a word of its own. */
	static bool Param(const TCHAR* Stream, const TCHAR* Param);

	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int32& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int8& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint16& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int16& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, uint64& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, int64& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, float& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, double& Value);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FName& Name);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FGuid& Guid);
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FText& Value, const TCHAR* Namespace = nullptr);
	/** The value in quotes (with escapes read), or up to white space, and up to `,` and `)` too where `bShouldStopOnSeparator`. */
	static bool Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator = true);
	static bool Bool(const TCHAR* Stream, const TCHAR* Match, bool& OnOff);
	/** Moves past `Match` when the text begins with it as a whole word, and past the white space around it. */
	static bool Command(const TCHAR** Stream, const TCHAR* Match, bool bParseMightTriggerExecution = true);

	/** The next word, or what stands between quotes. False at the end. With `bUseEscape`, a backslash in quotes escapes. */
	static bool Token(const TCHAR*& Str, FString& Arg, bool bUseEscape);
	static bool Token(const TCHAR*& Str, TCHAR* Result, int32 MaxLen, bool bUseEscape);
	static FString Token(const TCHAR*& Str, bool bUseEscape);
	/** The next word that ends at `Delim` too. */
	static bool AlnumToken(const TCHAR*& Str, FString& Arg);
	static void Next(const TCHAR** Stream);
	/** A line without its end; comments are cut unless `bExact`. False at the end. */
	static bool Line(const TCHAR** Stream, FString& Result, bool bExact = false);
	/** A text in double quotes with the engine's escapes. False, with nothing changed, for a text that does not begin with a closed one. */
	static bool QuotedString(const TCHAR* Stream, FString& Value, int32* OutNumCharsRead = nullptr);
	static bool QuotedString(const TCHAR* Stream, FStringBuilderBase& Value, int32* OutNumCharsRead = nullptr);
	static uint64 HexNumber64(const TCHAR* HexString);
	static uint32 HexNumber(const TCHAR* HexString);
	static int32 HexDigit(TCHAR Char);
};
