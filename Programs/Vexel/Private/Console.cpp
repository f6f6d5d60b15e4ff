#include "Console.h"

#include "Containers/StringConv.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{
void WriteTo(FILE* Stream, FStringView Text)
{
	const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
	fwrite(Utf8.Get(), 1, size_t(Utf8.Length()), Stream);
	fflush(Stream);
}
}

void FConsole::Write(FStringView Text)
{
	WriteTo(stdout, Text);
}

void FConsole::WriteLine(FStringView Text)
{
	WriteTo(stdout, FString(Text) + TEXT("\n"));
}

void FConsole::WriteError(FStringView Text)
{
	WriteTo(stderr, FString(TEXT("vexel: ")) + Text + TEXT("\n"));
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

FString FConsole::Dim(const FString& Text)
{
	return IsTerminal() ? TEXT("\x1b[2m") + Text + TEXT("\x1b[0m") : Text;
}
