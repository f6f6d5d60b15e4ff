#include "ChatView.h"
#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "ForeignService.h"
#include "HAL/PlatformMisc.h"
#include "LineReader.h"
#include "Misc/Paths.h"
#include "Session.h"

namespace
{
FString GetHistoryPath()
{
	FString State = FPlatformMisc::GetEnvironmentVariable(TEXT("XDG_STATE_HOME"));
	if (State.IsEmpty())
	{
		State = FPlatformMisc::GetEnvironmentVariable(TEXT("HOME")) / TEXT(".local/state");
	}
	return State / TEXT("vexel/chat_history");
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

/** Sends one message and shows its answer to the end. Answers why that failed, or nothing. */
TOptional<FString> RunTurn(UVexelChatSubsystem& Subsystem, FChatView& View, const FString& ChatId, const FString& Message)
{
	View.BeginTurn();
	const TVexelExpected<void> Sent = Subsystem.SendMessage(ChatId, Message);
	if (Sent.HasError())
	{
		return Sent.GetError().ToChainString();
	}
	const auto IsOver = [&]
	{ return View.IsTurnOver(); };
	if (!FSession::TickUntil(IsOver))
	{
		FSession::TakeInterrupt();
		Subsystem.CancelRequest(ChatId);
		FSession::TickUntil(IsOver);
	}
	if (!View.IsTurnOver() || View.GetFinalState() == EVexelChatRequestState::Cancelled)
	{
		return FString(TEXT("cancelled"));
	}
	if (View.GetFinalState() == EVexelChatRequestState::Failed)
	{
		return View.GetFailure();
	}
	return View.GetSaveFailure().IsEmpty() ? NullOpt : TOptional<FString>(View.GetSaveFailure());
}

int32 RunOneMessage(UVexelChatSubsystem& Subsystem, const FString& ChatId, const FArguments& Arguments)
{
	const bool bJson = Arguments.Has(TEXT("--json"));
	FChatView View(Subsystem, bJson);
	const TOptional<FString> Failure = RunTurn(Subsystem, View, ChatId, Arguments.Get(TEXT("--message")));
	if (bJson)
	{
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("chat_id"), ChatId);
		Document->SetStringField(TEXT("state"), View.IsTurnOver() ? ToWord(View.GetFinalState()) : TEXT("failed"));
		Document->SetStringField(TEXT("answer"), View.GetAnswer());
		WriteJson(Document);
	}
	if (Failure)
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	return ExitStatus::Done;
}

int32 RunInteractive(UVexelChatSubsystem& Subsystem, const FString& ChatId)
{
	FChatView View(Subsystem, false);
	FLineReader Reader(GetHistoryPath());
	if (FConsole::IsTerminal())
	{
		FConsole::WriteDim(TEXT("Ask about a Blueprint. Ctrl-C stops an answer, Ctrl-D ends the chat.\n"));
	}
	const FString Prompt = FConsole::IsTerminal() ? TEXT("> ") : TEXT("");
	bool bLastSucceeded = true;
	while (const TOptional<FString> Line = Reader.ReadLine(Prompt))
	{
		const FString Message = Line->TrimStartAndEnd();
		if (Message.IsEmpty())
		{
			continue;
		}
		const TOptional<FString> Failure = RunTurn(Subsystem, View, ChatId, Message);
		bLastSucceeded = !Failure;
		if (Failure)
		{
			FConsole::WriteError(*Failure);
		}
	}
	// In a pipe the exit status is all that a script sees.
	return bLastSucceeded || FConsole::IsTerminal() ? ExitStatus::Done : ExitStatus::Failed;
}

TSharedPtr<FVexelChatConversation> OpenConversation(UVexelChatSubsystem& Subsystem, bool bContinue)
{
	if (bContinue)
	{
		if (const TSharedPtr<FVexelChatConversation> Newest = Subsystem.GetNewestConversation())
		{
			return Newest;
		}
	}
	return Subsystem.CreateConversation(UVexelChatSubsystem::GetDefaultAgentChatMode());
}
}

int32 RunChatCommand(const FArguments& Arguments)
{
	if (Arguments.Has(TEXT("--json")) && !Arguments.Has(TEXT("--message")))
	{
		FConsole::WriteError(TEXT("chat: --json goes with --message"));
		return ExitStatus::WrongUsage;
	}
	if (Arguments.Has(TEXT("--message")) && Arguments.Get(TEXT("--message")).TrimStartAndEnd().IsEmpty())
	{
		FConsole::WriteError(TEXT("chat: the message is empty"));
		return ExitStatus::WrongUsage;
	}
	if (Arguments.Has(TEXT("--token-fd")) && !Arguments.Has(TEXT("--service")))
	{
		FConsole::WriteError(TEXT("chat: --token-fd goes with --service; the local service needs no token"));
		return ExitStatus::WrongUsage;
	}
	if (Arguments.Has(TEXT("--service")))
	{
		if (const TOptional<FString> Reason = ForeignService::CheckAddress(Arguments.Get(TEXT("--service"))))
		{
			FConsole::WriteError(*Reason);
			return ExitStatus::WrongUsage;
		}
	}
	FSession Session;
	if (const TOptional<FString> Failure = Session.StartConnected(Arguments))
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	UVexelChatSubsystem& Subsystem = *UVexelChatSubsystem::Get();
	const TSharedPtr<FVexelChatConversation> Conversation = OpenConversation(Subsystem, Arguments.Has(TEXT("--continue")));
	if (!Conversation)
	{
		FConsole::WriteError(TEXT("no conversation can be opened"));
		return ExitStatus::Failed;
	}
	return Arguments.Has(TEXT("--message")) ? RunOneMessage(Subsystem, Conversation->GetChatId(), Arguments)
											: RunInteractive(Subsystem, Conversation->GetChatId());
}
