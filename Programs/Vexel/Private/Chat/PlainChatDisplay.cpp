#include "Chat/PlainChatDisplay.h"

#include "Chat/ChangeLines.h"
#include "Console.h"
#include "VexelError.h"

namespace
{
/** How Markdown writes a "<" that begins no tag. The answer's text comes in pieces, so its end may hold the beginning of one. */
const FString LessThanEntity = TEXT("&lt;");

/** How much of the end waits for what comes next: an entity that has begun, or the first half of a line end of two characters. */
int32 CountUndecidedAtEnd(const FString& Text)
{
	if (Text.EndsWith(TEXT("\r")))
	{
		return 1;
	}
	for (int32 Length = FMath::Min(LessThanEntity.Len() - 1, Text.Len()); Length > 0; --Length)
	{
		if (Text.Right(Length).Equals(LessThanEntity.Left(Length)))
		{
			return Length;
		}
	}
	return 0;
}
}

void FPlainChatDisplay::BeginTurn(const FString&)
{
	HeldText.Reset();
	bAtLineStart = true;
}

void FPlainChatDisplay::AddText(FStringView Text)
{
	HeldText += Text;
	const int32 NumHeld = CountUndecidedAtEnd(HeldText);
	Write(HeldText.LeftChop(NumHeld).Replace(*LessThanEntity, TEXT("<")));
	HeldText = HeldText.Right(NumHeld);
}

void FPlainChatDisplay::AddError(const FString& Text)
{
	EndLine();
	Write(Text);
}

void FPlainChatDisplay::AddImage(const FString& Path)
{
	WriteLine(TEXT("[picture: ") + Path + TEXT("]"));
}

void FPlainChatDisplay::BeginTool(const FChatToolCall& Call)
{
	WriteLine(TEXT("[") + Call.ProgressText + TEXT("]"));
}

void FPlainChatDisplay::EndTool(const FChatToolCall&, const FChatToolOutcome& Outcome)
{
	WriteLine(TEXT("[") + (Outcome.Error ? TEXT("failed: ") + Outcome.Error->ToShortString() : Outcome.DoneText) + TEXT("]"));
	for (const FString& Problem : Outcome.Problems)
	{
		WriteLine(TEXT("  ! ") + Problem);
	}
	for (const FStyledLine& Line : DrawChanges(Outcome.Changes, GetWidth(), TEXT("  ")))
	{
		WriteLine(Line.ToPlainText().TrimEnd());
	}
}

void FPlainChatDisplay::EndTurn(EVexelChatRequestState, const FString& Failure)
{
	EndLine();
	if (!Failure.IsEmpty())
	{
		ShowFailure(Failure);
	}
}

void FPlainChatDisplay::ShowResult(const FString&, const TArray<FStyledLine>& Lines, const TSharedRef<FJsonObject>&)
{
	for (const FStyledLine& Line : Lines)
	{
		WriteLine(Line.ToPlainText().TrimEnd());
	}
}

void FPlainChatDisplay::ShowFailure(const FString& Reason)
{
	FConsole::WriteError(Reason);
}

void FPlainChatDisplay::WriteLine(const FString& Text)
{
	EndLine();
	Write(Text + TEXT("\n"));
}

void FPlainChatDisplay::EndLine()
{
	const FString Rest = MoveTemp(HeldText);
	HeldText.Reset();
	Write(Rest);
	if (!bAtLineStart)
	{
		Write(TEXT("\n"));
	}
}

void FPlainChatDisplay::Write(FStringView Text)
{
	if (Text.IsEmpty())
	{
		return;
	}
	bAtLineStart = Text[Text.Len() - 1] == TEXT('\n');
	FConsole::Write(Text);
}
