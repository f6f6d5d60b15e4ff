#include "ChatView.h"

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

FChatView::FChatView(UVexelChatSubsystem& InSubsystem, bool bInQuiet)
	: Subsystem(InSubsystem)
	, bQuiet(bInQuiet)
{
	FVexelChatEvents& Events = Subsystem.GetEvents();
	Events.OnTextAppended.AddRaw(this, &FChatView::OnText);
	Events.OnBlockAdded.AddRaw(this, &FChatView::OnBlock);
	Events.OnToolStarted.AddRaw(this, &FChatView::OnToolStarted);
	Events.OnToolFinished.AddRaw(this, &FChatView::OnToolFinished);
	Events.OnRequestStateChanged.AddRaw(this, &FChatView::OnState);
	Events.OnSaveFailed.AddRaw(this, &FChatView::OnSaveFailed);
}

FChatView::~FChatView()
{
	FVexelChatEvents& Events = Subsystem.GetEvents();
	Events.OnTextAppended.RemoveAll(this);
	Events.OnBlockAdded.RemoveAll(this);
	Events.OnToolStarted.RemoveAll(this);
	Events.OnToolFinished.RemoveAll(this);
	Events.OnRequestStateChanged.RemoveAll(this);
	Events.OnSaveFailed.RemoveAll(this);
}

void FChatView::BeginTurn()
{
	Answer.Reset();
	Failure.Reset();
	SaveFailure.Reset();
	HeldText.Reset();
	FinalState.Reset();
	bAtLineStart = true;
	bProgressShown = false;
}

void FChatView::OnText(const FString&, FStringView Text)
{
	Answer += Text;
	HeldText += Text;
	const int32 NumHeld = CountUndecidedAtEnd(HeldText);
	Write(HeldText.LeftChop(NumHeld).Replace(*LessThanEntity, TEXT("<")));
	HeldText = HeldText.Right(NumHeld);
}

void FChatView::FlushText()
{
	const FString Rest = MoveTemp(HeldText);
	HeldText.Reset();
	Write(Rest);
}

void FChatView::OnBlock(const FString&, const FVexelChatMessageBlock& Block)
{
	if (Block.GetType() == EVexelChatMessageBlockType::Error)
	{
		EndLine();
		Answer += Block.GetText();
		Write(Block.GetText());
	}
}

void FChatView::OnToolStarted(const FString&, const FString&, const FString& ProgressText)
{
	EndLine();
	WriteDim(TEXT("[") + ProgressText + TEXT("]"));
	if (FConsole::IsTerminal())
	{
		bProgressShown = true;
		return;
	}
	EndLine();
}

void FChatView::OnToolFinished(const FString&, const FString&, const FString& DoneText, const FVexelError* Error)
{
	if (bProgressShown)
	{
		FConsole::EraseLine();
		bProgressShown = false;
		bAtLineStart = true;
	}
	EndLine();
	const FString Text = Error ? TEXT("failed: ") + Error->ToShortString() : DoneText;
	WriteDim(TEXT("[") + Text + TEXT("]"));
	EndLine();
}

void FChatView::OnState(const FString&, EVexelChatRequestState State, const FVexelError* Error)
{
	if (State <= EVexelChatRequestState::InProgress)
	{
		return;
	}
	FinalState = State;
	// The causes say what the network or the service did; the short form alone only that the request failed.
	Failure = Error ? Error->ToChainString() : FString();
	EndLine();
}

void FChatView::OnSaveFailed(const FString&, const FVexelError& Error)
{
	SaveFailure = Error.ToChainString();
}

void FChatView::EndLine()
{
	FlushText();
	if (!bAtLineStart)
	{
		Write(TEXT("\n"));
	}
}

void FChatView::Write(FStringView Text)
{
	if (Text.IsEmpty())
	{
		return;
	}
	bAtLineStart = Text[Text.Len() - 1] == TEXT('\n');
	if (!bQuiet)
	{
		FConsole::Write(Text);
	}
}

void FChatView::WriteDim(const FString& Text)
{
	bAtLineStart = false;
	if (!bQuiet)
	{
		FConsole::WriteDim(Text);
	}
}
