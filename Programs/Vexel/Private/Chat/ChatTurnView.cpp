#include "Chat/ChatTurnView.h"

#include "Chat/ToolSummary.h"
#include "HAL/PlatformTime.h"
#include "Session.h"
#include "VexelError.h"
#include "VexelTools.h"

namespace
{
/** A picture that has not come by then is in the conversation's history later. */
constexpr double ImageTimeoutSeconds = 3.0;

/** The tool table's icon of a tool; empty for one that it does not have. */
FString FindIcon(const FString& ToolName)
{
	static const TArray<FVexelToolInfo> Tools = FVexelTools::List();
	const FVexelToolInfo* const Tool = Tools.FindByPredicate([&](const FVexelToolInfo& Row)
		{ return Row.Name.Equals(ToolName); });
	return Tool ? Tool->Icon : FString();
}
}

const TCHAR* ToWord(EVexelChatRequestState State)
{
	switch (State)
	{
		case EVexelChatRequestState::Succeeded:
			return TEXT("succeeded");
		case EVexelChatRequestState::Cancelled:
			return TEXT("cancelled");
		default:
			return TEXT("failed");
	}
}

FChatTurnView::FChatTurnView(UVexelChatSubsystem& InSubsystem, IChatDisplay& InDisplay)
	: Subsystem(InSubsystem)
	, Display(InDisplay)
{
	FVexelChatEvents& Events = Subsystem.GetEvents();
	Events.OnTextAppended.AddRaw(this, &FChatTurnView::OnText);
	Events.OnBlockAdded.AddRaw(this, &FChatTurnView::OnBlock);
	Events.OnToolStarted.AddRaw(this, &FChatTurnView::OnToolStarted);
	Events.OnToolFinished.AddRaw(this, &FChatTurnView::OnToolFinished);
	Events.OnImageStored.AddRaw(this, &FChatTurnView::OnImageStored);
	Events.OnRequestStateChanged.AddRaw(this, &FChatTurnView::OnState);
	Events.OnSaveFailed.AddRaw(this, &FChatTurnView::OnSaveFailed);
}

FChatTurnView::~FChatTurnView()
{
	FVexelChatEvents& Events = Subsystem.GetEvents();
	Events.OnTextAppended.RemoveAll(this);
	Events.OnBlockAdded.RemoveAll(this);
	Events.OnToolStarted.RemoveAll(this);
	Events.OnToolFinished.RemoveAll(this);
	Events.OnImageStored.RemoveAll(this);
	Events.OnRequestStateChanged.RemoveAll(this);
	Events.OnSaveFailed.RemoveAll(this);
}

TOptional<FString> FChatTurnView::RunTurn(const FString& ChatId, const FString& Message)
{
	OpenCalls.Reset();
	NumAwaitedImages = 0;
	Answer.Reset();
	Failure.Reset();
	SaveFailure.Reset();
	FinalState.Reset();
	Watch = MakeUnique<FBlueprintWatch>();
	Display.BeginTurn(Message);
	const TVexelExpected<void> Sent = Subsystem.SendMessage(ChatId, Message);
	if (Sent.HasError())
	{
		Failure = Sent.GetError().ToChainString();
	}
	else if (!WaitForEnd())
	{
		FSession::TakeInterrupt();
		Subsystem.CancelRequest(ChatId);
		WaitForEnd();
		Failure = TEXT("cancelled");
		FinalState = EVexelChatRequestState::Cancelled;
	}
	else if (GetFinalState() == EVexelChatRequestState::Cancelled)
	{
		Failure = TEXT("cancelled");
	}
	else if (GetFinalState() == EVexelChatRequestState::Succeeded)
	{
		WaitForImages();
		Failure = SaveFailure;
	}
	Watch.Reset();
	Display.EndTurn(GetFinalState(), Failure);
	return Failure.IsEmpty() ? NullOpt : TOptional<FString>(Failure);
}

bool FChatTurnView::WaitForEnd()
{
	return FSession::TickUntil([this]
		{
			Display.Tick();
			return FinalState.IsSet(); });
}

void FChatTurnView::WaitForImages()
{
	const double Deadline = FPlatformTime::Seconds() + ImageTimeoutSeconds;
	// An interrupt stops the waiting alone: the answer is complete.
	if (!FSession::TickUntil([&]
			{
				Display.Tick();
				return NumAwaitedImages <= 0 || FPlatformTime::Seconds() > Deadline; }))
	{
		FSession::TakeInterrupt();
	}
}

void FChatTurnView::OnText(const FString&, FStringView Text)
{
	Answer += Text;
	Display.AddText(Text);
}

void FChatTurnView::OnBlock(const FString&, const FVexelChatMessageBlock& Block)
{
	if (Block.GetType() == EVexelChatMessageBlockType::Error)
	{
		Answer += Block.GetText();
		Display.AddError(Block.GetText());
	}
	else if (!Block.Image_GetUrl().IsEmpty())
	{
		++NumAwaitedImages;
	}
	else if (Block.GetType() == EVexelChatMessageBlockType::ToolCall && Block.GetInfo())
	{
		FChatToolCall& Call = OpenCalls.AddDefaulted_GetRef();
		Call.ReplyId = Block.Tool_GetToolReplyId();
		Call.Name = Block.Tool_GetToolName();
		Call.Icon = FindIcon(Call.Name);
		Call.Input = Block.GetInfo();
	}
}

void FChatTurnView::OnToolStarted(const FString&, const FString& ReplyId, const FString& ProgressText)
{
	FChatToolCall* Call = OpenCalls.FindByPredicate([&](const FChatToolCall& Open)
		{ return Open.ReplyId.Equals(ReplyId); });
	if (!Call)
	{
		Call = &OpenCalls.AddDefaulted_GetRef();
		Call->ReplyId = ReplyId;
	}
	Call->ProgressText = ProgressText;
	if (Watch && OpenCalls.Num() == 1)
	{
		// What changed while no tool ran is no tool's work.
		Watch->Forget();
	}
	Display.BeginTool(*Call);
}

void FChatTurnView::OnToolFinished(
	const FString&, const FString& ReplyId, const FString& DoneText, const TVexelExpected<TSharedRef<FJsonObject>>& ToolAnswer)
{
	const int32 Index = OpenCalls.IndexOfByPredicate([&](const FChatToolCall& Open)
		{ return Open.ReplyId.Equals(ReplyId); });
	if (Index == INDEX_NONE)
	{
		return;
	}
	const FChatToolCall Call = OpenCalls[Index];
	OpenCalls.RemoveAt(Index);
	FChatToolOutcome Outcome;
	Outcome.DoneText = DoneText;
	Outcome.Error = ToolAnswer.HasError() ? &ToolAnswer.GetError() : nullptr;
	Outcome.Problems = ToolAnswer.HasError() ? TArray<FString>() : FindProblems(*ToolAnswer.GetValue());
	Outcome.Changes = Watch ? Watch->TakeDiffs() : TArray<FBlueprintDiff>();
	Display.EndTool(Call, Outcome);
}

void FChatTurnView::OnImageStored(const FString&, const FString&, const FString& Path)
{
	--NumAwaitedImages;
	Display.AddImage(Path);
}

void FChatTurnView::OnState(const FString&, EVexelChatRequestState State, const FVexelError* Error)
{
	if (State <= EVexelChatRequestState::InProgress)
	{
		return;
	}
	FinalState = State;
	// The causes say what the network or the service did; the short form alone only that the request failed.
	Failure = Error ? Error->ToChainString() : FString();
}

void FChatTurnView::OnSaveFailed(const FString&, const FVexelError& Error)
{
	SaveFailure = Error.ToChainString();
}
