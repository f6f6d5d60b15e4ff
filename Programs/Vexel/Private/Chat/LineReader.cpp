#include "Chat/LineReader.h"

#include "Console.h"
#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "Session.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <histedit.h>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace
{
constexpr int32 MaxHistoryLines = 1000;
constexpr int32 IdleMilliseconds = 50;
constexpr int32 MaxShownCompletions = 60;
/** Stands around codes in a prompt, so that the editor does not count them as columns. */
constexpr wchar_t CodeMark = L'\1';

/** The part that all texts begin with, without regard to case. */
FString GetCommonBeginning(const TArray<FString>& Texts)
{
	FString Common = Texts[0];
	for (const FString& Text : Texts)
	{
		int32 Length = 0;
		while (Length < Common.Len() && Length < Text.Len() && FChar::ToLower(Common[Length]) == FChar::ToLower(Text[Length]))
		{
			++Length;
		}
		Common = Common.Left(Length);
	}
	return Common;
}

EReadLine ReadPlainLine(FString& OutLine)
{
	char* Raw = nullptr;
	size_t Capacity = 0;
	const ssize_t Length = getline(&Raw, &Capacity, stdin);
	const bool bInterrupted = Length < 0 && errno == EINTR;
	OutLine = Length < 0 ? FString() : FString(UTF8_TO_TCHAR(Raw)).TrimEnd();
	free(Raw);
	return Length >= 0 ? EReadLine::Line : bInterrupted ? EReadLine::Interrupted
														: EReadLine::End;
}
}

/** The line editor of a terminal. */
class FLineReader::FEditor
{
public:
	FEditor(const FString& InHistoryPath, FComplete InComplete, FIdle InIdle)
		: HistoryPath(InHistoryPath)
		, Complete(MoveTemp(InComplete))
		, Idle(MoveTemp(InIdle))
		, Lines(history_init())
		, Line(el_init("vexel", stdin, stdout, stderr))
	{
		HistEvent Event;
		history(Lines, &Event, H_SETSIZE, MaxHistoryLines);
		history(Lines, &Event, H_SETUNIQUE, 1);
		history(Lines, &Event, H_LOAD, TCHAR_TO_UTF8(*HistoryPath));
		el_set(Line, EL_CLIENTDATA, this);
		// Signals are the session's: it tells here that one came.
		el_set(Line, EL_SIGNAL, 0);
		el_set(Line, EL_HIST, history, Lines);
		el_set(Line, EL_EDITOR, "emacs");
		el_wset(Line, EL_PROMPT_ESC, &FEditor::GetPrompt, CodeMark);
		el_wset(Line, EL_GETCFN, &FEditor::ReadCharacter);
		el_set(Line, EL_ADDFN, "vexel-complete", "completes the word before the cursor", &FEditor::CompleteWord);
		el_set(Line, EL_BIND, "^I", "vexel-complete", nullptr);
		el_set(Line, EL_BIND, "^R", "em-inc-search-prev", nullptr);
	}

	~FEditor()
	{
		IFileManager::Get().MakeDirectory(*FPaths::GetPath(HistoryPath), true);
		const mode_t Mask = umask(0077);
		HistEvent Event;
		history(Lines, &Event, H_SAVE, TCHAR_TO_UTF8(*HistoryPath));
		umask(Mask);
		el_end(Line);
		history_end(Lines);
	}
	UE_NONCOPYABLE(FEditor)

	EReadLine ReadLine(const FStyledLine& NewPrompt, FString& OutLine)
	{
		SetPrompt(NewPrompt);
		bInterrupted = false;
		int Count = 0;
		const char* const Raw = el_gets(Line, &Count);
		if (FConsole::UsesStyles())
		{
			// The editor leaves a prompt's last code out, so that what is typed has the prompt's style.
			FConsole::WriteTerminalCodes(TEXT("\x1b[0m"));
		}
		if (bInterrupted)
		{
			el_reset(Line);
			FConsole::WriteTerminalCodes(TEXT("\r\n"));
			return EReadLine::Interrupted;
		}
		if (!Raw || Count <= 0)
		{
			FConsole::WriteTerminalCodes(TEXT("\r\n"));
			return EReadLine::End;
		}
		OutLine = FString(UTF8_TO_TCHAR(Raw)).TrimEnd();
		if (!OutLine.TrimStart().IsEmpty())
		{
			HistEvent Event;
			history(Lines, &Event, H_ENTER, TCHAR_TO_UTF8(*OutLine));
		}
		return EReadLine::Line;
	}

private:
	static FEditor& From(EditLine* Line)
	{
		void* Self = nullptr;
		el_get(Line, EL_CLIENTDATA, &Self);
		return *static_cast<FEditor*>(Self);
	}

	static wchar_t* GetPrompt(EditLine* Line) { return From(Line).Prompt.GetData(); }

	void SetPrompt(const FStyledLine& NewPrompt)
	{
		const FString Text = FConsole::UsesStyles() ? NewPrompt.ToTerminalText() : NewPrompt.ToPlainText();
		Prompt.Reset();
		bool bInCode = false;
		for (const TCHAR Character : Text)
		{
			if (Character == TEXT('\x1b'))
			{
				Prompt.Add(CodeMark);
				bInCode = true;
			}
			Prompt.Add(wchar_t(Character));
			if (bInCode && Character == TEXT('m'))
			{
				Prompt.Add(CodeMark);
				bInCode = false;
			}
		}
		Prompt.Add(L'\0');
	}

	static int ReadCharacter(EditLine* Line, wchar_t* OutCharacter)
	{
		FEditor& Self = From(Line);
		mbstate_t State = {};
		while (true)
		{
			if (FSession::TakeInterrupt())
			{
				Self.bInterrupted = true;
				return -1;
			}
			if (FConsole::TakeResize())
			{
				el_resize(Line);
				el_set(Line, EL_REFRESH);
			}
			pollfd Poll{STDIN_FILENO, POLLIN, 0};
			if (poll(&Poll, 1, IdleMilliseconds) <= 0)
			{
				Self.Idle();
				continue;
			}
			char Byte = 0;
			const ssize_t NumRead = read(STDIN_FILENO, &Byte, 1);
			if (NumRead <= 0)
			{
				if (NumRead < 0 && (errno == EINTR || errno == EAGAIN))
				{
					continue;
				}
				return 0;
			}
			const size_t Length = mbrtowc(OutCharacter, &Byte, 1, &State);
			if (Length == size_t(-1))
			{
				// A byte that is no part of a character is passed over.
				State = {};
			}
			else if (Length != size_t(-2))
			{
				return 1;
			}
		}
	}

	static unsigned char CompleteWord(EditLine* Line, int)
	{
		FEditor& Self = From(Line);
		const LineInfo* const Info = el_line(Line);
		const FUTF8ToTCHAR Converted(Info->buffer, int32(Info->cursor - Info->buffer));
		const FString Before(FStringView(Converted.Get(), Converted.Length()));
		const FCompletions Completions = Self.Complete(Before);
		if (Completions.Texts.IsEmpty())
		{
			return CC_REFRESH_BEEP;
		}
		const int32 WordLength = Before.Len() - Completions.WordBegin;
		const FString Common = GetCommonBeginning(Completions.Texts);
		const bool bOne = Completions.Texts.Num() == 1;
		if (Common.Len() > WordLength || bOne)
		{
			// The beginning is put in again, as the completion spells it.
			el_deletestr(Line, WordLength);
			const bool bGoesOn = Common.EndsWith(TEXT("/"));
			el_insertstr(Line, TCHAR_TO_UTF8(*(bOne && !bGoesOn ? Common + TEXT(" ") : Common)));
			return CC_REFRESH;
		}
		FConsole::WriteTerminalCodes(TEXT("\r\n"));
		for (int32 Index = 0; Index < FMath::Min(Completions.Texts.Num(), MaxShownCompletions); ++Index)
		{
			FConsole::WriteLine(TEXT("  ") + Completions.Texts[Index]);
		}
		if (Completions.Texts.Num() > MaxShownCompletions)
		{
			FConsole::WriteLine(FString::Printf(TEXT("  … and %d more"), Completions.Texts.Num() - MaxShownCompletions));
		}
		return CC_REDISPLAY;
	}

	FString HistoryPath;
	FComplete Complete;
	FIdle Idle;
	History* Lines;
	EditLine* Line;
	TArray<wchar_t> Prompt;
	bool bInterrupted = false;
};

FLineReader::FLineReader(const FString& HistoryPath, FComplete Complete, FIdle Idle)
	: Editor(isatty(STDIN_FILENO) && FConsole::IsTerminal() ? MakeUnique<FEditor>(HistoryPath, MoveTemp(Complete), MoveTemp(Idle)) : nullptr)
{
}

FLineReader::~FLineReader() = default;

EReadLine FLineReader::ReadLine(const FStyledLine& Prompt, FString& OutLine)
{
	return Editor ? Editor->ReadLine(Prompt, OutLine) : ReadPlainLine(OutLine);
}

struct FQuietInput::FState
{
	termios Before = {};
};

FQuietInput::FQuietInput()
{
	termios Mode = {};
	if (isatty(STDIN_FILENO) && tcgetattr(STDIN_FILENO, &Mode) == 0)
	{
		State = MakeUnique<FState>();
		State->Before = Mode;
		Renew();
	}
}

void FQuietInput::Renew()
{
	termios Mode = {};
	if (State && tcgetattr(STDIN_FILENO, &Mode) == 0)
	{
		Mode.c_lflag &= ~tcflag_t(ECHO | ICANON);
		tcsetattr(STDIN_FILENO, TCSADRAIN, &Mode);
	}
}

FQuietInput::~FQuietInput()
{
	if (State)
	{
		tcsetattr(STDIN_FILENO, TCSADRAIN, &State->Before);
	}
}
