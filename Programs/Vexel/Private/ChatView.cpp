#include "ChatView.h"

#include "Console.h"
#include "VexelError.h"

namespace
{
/** How Markdown writes a "<" that begins no tag. The answer's text comes in pieces, so its end may hold the beginning of one. */
const FString LessThanEntity = TEXT("&lt;");

int32 CountEntityStartAtEnd(const FString& Text)
{
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
	Events.OnTextAppended.AddLambda([this](const FString&, FStringView Text)
		{ OnText(Text); });
	Events.OnBlockAdded.AddLambda([this](const FString&, const FVexelChatMessageBlock& Block)
		{ OnBlock(Block); });
	Events.OnToolStarted.AddLambda([this](const FString&, const FString&, const FString& ProgressText)
		{ OnToolStarted(ProgressText); });
	Events.OnToolFinished.AddLambda(
		[this](const FString&, const FString&, const FString& DoneText, const FVexelError* Error)
		{ OnToolFinished(DoneText, Error); });
	Events.OnRequestStateChanged.AddLambda(
		[this](const FString&, EVexelChatRequestState State, const FVexelError* Error)
		{ OnState(State, Error); });
}

FChatView::~FChatView()
{
	FVexelChatEvents& Events = Subsystem.GetEvents();
	Events.OnTextAppended.Clear();
	Events.OnBlockAdded.Clear();
	Events.OnToolStarted.Clear();
	Events.OnToolFinished.Clear();
	Events.OnRequestStateChanged.Clear();
}

void FChatView::BeginTurn()
{
	Answer.Reset();
	Failure.Reset();
	HeldText.Reset();
	FinalState.Reset();
	bAtLineStart = true;
	bProgressShown = false;
}

void FChatView::OnText(FStringView Text)
{
	Answer += Text;
	HeldText += Text;
	const int32 NumHeld = CountEntityStartAtEnd(HeldText);
	Write(HeldText.LeftChop(NumHeld).Replace(*LessThanEntity, TEXT("<")));
	HeldText = HeldText.Right(NumHeld);
}

void FChatView::FlushText()
{
	const FString Rest = MoveTemp(HeldText);
	HeldText.Reset();
	Write(Rest);
}

void FChatView::OnBlock(const FVexelChatMessageBlock& Block)
{
	if (Block.GetType() == EVexelChatMessageBlockType::Error)
	{
		EndLine();
		Answer += Block.GetText();
		Write(Block.GetText());
	}
}

void FChatView::OnToolStarted(const FString& ProgressText)
{
	EndLine();
	Write(FConsole::Dim(TEXT("[") + ProgressText + TEXT("]")));
	if (FConsole::IsTerminal())
	{
		bProgressShown = true;
		return;
	}
	EndLine();
}

void FChatView::OnToolFinished(const FString& DoneText, const FVexelError* Error)
{
	if (bProgressShown)
	{
		Write(TEXT("\r\x1b[K"));
		bProgressShown = false;
		bAtLineStart = true;
	}
	EndLine();
	const FString Text = Error ? TEXT("failed: ") + Error->ToShortString() : DoneText;
	Write(FConsole::Dim(TEXT("[") + Text + TEXT("]")));
	EndLine();
}

void FChatView::OnState(EVexelChatRequestState State, const FVexelError* Error)
{
	if (State <= EVexelChatRequestState::InProgress)
	{
		return;
	}
	FinalState = State;
	Failure = Error ? Error->ToShortString() : FString();
	// The cause says what the network or the service did; the short form alone only that the request failed.
	for (const FVexelError* Cause = Error ? Error->GetCause() : nullptr; Cause; Cause = Cause->GetCause())
	{
		Failure += TEXT(": ") + Cause->ToShortString();
	}
	EndLine();
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
