#include "Console.h"

#include "Containers/StringConv.h"
#include "VexelStringUtil.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{
constexpr int32 MaxErrorLength = 2000;

void WriteTo(FILE* Stream, FStringView Text)
{
	const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
	fwrite(Utf8.Get(), 1, size_t(Utf8.Length()), Stream);
	fflush(Stream);
}
}

void FConsole::Write(FStringView Text)
{
	WriteTo(stdout, FVexelStringUtil::ToPrintable(Text));
}

void FConsole::WriteLine(FStringView Text)
{
	Write(FString(Text) + TEXT("\n"));
}

void FConsole::WriteDim(FStringView Text)
{
	const FString Printable = FVexelStringUtil::ToPrintable(Text);
	WriteTo(stdout, IsTerminal() ? TEXT("\x1b[2m") + Printable + TEXT("\x1b[0m") : Printable);
}

void FConsole::EraseLine()
{
	if (IsTerminal())
	{
		WriteTo(stdout, TEXT("\r\x1b[K"));
	}
}

void FConsole::WriteData(FStringView Text)
{
	WriteTo(stdout, IsTerminal() ? FVexelStringUtil::ToPrintable(Text) : FString(Text));
}

void FConsole::WriteError(FStringView Text)
{
	WriteTo(stderr, TEXT("vexel: ") + FVexelStringUtil::ToPrintableLine(Text, MaxErrorLength) + TEXT("\n"));
}

bool FConsole::IsTerminal()
{
	static const bool bTerminal = []
	{
		const char* const Term = getenv("TERM");
		return isatty(STDOUT_FILENO) && Term && FString(Term) != TEXT("dumb");
	}();
	return bTerminal;
}
