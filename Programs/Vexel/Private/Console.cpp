#include "Console.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformMisc.h"
#include "StyledText.h"
#include "VexelStringUtil.h"

#include <csignal>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace
{
constexpr int32 MaxErrorLength = 2000;
constexpr FIntPoint UsualSize = {80, 24};

volatile sig_atomic_t GResized = 0;

void OnResize(int)
{
	GResized = 1;
}

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

void FConsole::WriteLines(const TArray<FStyledLine>& Lines)
{
	FString Text;
	for (const FStyledLine& Line : Lines)
	{
		Text += (UsesStyles() ? Line.ToTerminalText() : Line.ToPlainText().TrimEnd()) + TEXT("\n");
	}
	WriteTo(stdout, Text);
}

void FConsole::WriteTerminalCodes(FStringView Codes)
{
	if (IsTerminal())
	{
		WriteTo(stdout, Codes);
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
		const FString Term = FPlatformMisc::GetEnvironmentVariable(TEXT("TERM"));
		return isatty(STDOUT_FILENO) && !Term.IsEmpty() && Term != TEXT("dumb");
	}();
	return bTerminal;
}

bool FConsole::UsesStyles()
{
	static const bool bStyles = IsTerminal() && FPlatformMisc::GetEnvironmentVariable(TEXT("NO_COLOR")).IsEmpty();
	return bStyles;
}

FIntPoint FConsole::GetSize()
{
	winsize Size = {};
	if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &Size) != 0 || Size.ws_col == 0 || Size.ws_row == 0)
	{
		return UsualSize;
	}
	return FIntPoint(Size.ws_col, Size.ws_row);
}

bool FConsole::TakeResize()
{
	static const bool bWatching = []
	{
		struct sigaction Action = {};
		Action.sa_handler = OnResize;
		return sigaction(SIGWINCH, &Action, nullptr) == 0;
	}();
	const bool bResized = bWatching && GResized != 0;
	GResized = 0;
	return bResized;
}
