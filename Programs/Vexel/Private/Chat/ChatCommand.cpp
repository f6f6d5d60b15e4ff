#include "ChangedAssets.h"
#include "Chat/ChatSession.h"
#include "Chat/ConversationList.h"
#include "Chat/EventChatDisplay.h"
#include "Chat/PlainChatDisplay.h"
#include "Chat/TerminalChatDisplay.h"
#include "Commands.h"
#include "Console.h"
#include "Dom/JsonObject.h"
#include "ForeignService.h"
#include "Session.h"

namespace
{
/** A turn that is shown when it is over, as a document. */
class FSilentChatDisplay final : public IChatDisplay
{
};

/** The display that fits where the output goes. */
TUniquePtr<IChatDisplay> MakeDisplay(bool bJson)
{
	if (bJson)
	{
		return MakeUnique<FEventChatDisplay>();
	}
	if (FConsole::IsTerminal())
	{
		return MakeUnique<FTerminalChatDisplay>();
	}
	return MakeUnique<FPlainChatDisplay>();
}

int32 RunOneMessage(UVexelChatSubsystem& Subsystem, const TSharedRef<FVexelChatConversation>& Conversation, const FString& Message)
{
	const TUniquePtr<IChatDisplay> Display = MakeDisplay(false);
	FChatTurnView View(Subsystem, *Display);
	const FQuietInput Quiet;
	const TOptional<FString> Failure = View.RunTurn(Conversation->GetChatId(), Message);
	ConversationList::NameAfterFirstQuestion(Subsystem, *Conversation);
	return Failure ? ExitStatus::Failed : ExitStatus::Done;
}

int32 RunOneDocument(UVexelChatSubsystem& Subsystem, const TSharedRef<FVexelChatConversation>& Conversation, const FString& Message)
{
	FSilentChatDisplay Display;
	FChatTurnView View(Subsystem, Display);
	const TOptional<FString> Failure = View.RunTurn(Conversation->GetChatId(), Message);
	ConversationList::NameAfterFirstQuestion(Subsystem, *Conversation);
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("chat_id"), Conversation->GetChatId());
	Document->SetStringField(TEXT("state"), ToWord(View.GetFinalState()));
	Document->SetStringField(TEXT("answer"), View.GetAnswer());
	WriteJson(Document);
	if (Failure)
	{
		FConsole::WriteError(*Failure);
		return ExitStatus::Failed;
	}
	return ExitStatus::Done;
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

/** Why the arguments do not fit together, or nothing. */
TOptional<FString> CheckArguments(const FArguments& Arguments)
{
	if (Arguments.Has(TEXT("--message")) && Arguments.Get(TEXT("--message")).TrimStartAndEnd().IsEmpty())
	{
		return FString(TEXT("chat: the message is empty"));
	}
	if (Arguments.Has(TEXT("--token-fd")) && !Arguments.Has(TEXT("--service")))
	{
		return FString(TEXT("chat: --token-fd goes with --service; the local service needs no token"));
	}
	return Arguments.Has(TEXT("--service")) ? ForeignService::CheckAddress(Arguments.Get(TEXT("--service"))) : NullOpt;
}

int32 HoldChat(const FArguments& Arguments, UVexelChatSubsystem& Subsystem, const TSharedRef<FVexelChatConversation>& Conversation)
{
	const bool bJson = Arguments.Has(TEXT("--json"));
	if (Arguments.Has(TEXT("--message")))
	{
		const auto Run = bJson ? RunOneDocument : RunOneMessage;
		return Run(Subsystem, Conversation, Arguments.Get(TEXT("--message")));
	}
	const TUniquePtr<IChatDisplay> Display = MakeDisplay(bJson);
	return FChatSession(Subsystem, *Display, Conversation).Run();
}
}

int32 RunChatCommand(const FArguments& Arguments)
{
	if (const TOptional<FString> Reason = CheckArguments(Arguments))
	{
		FConsole::WriteError(*Reason);
		return ExitStatus::WrongUsage;
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
	const int32 Status = HoldChat(Arguments, Subsystem, Conversation.ToSharedRef());
	return Arguments.Has(TEXT("--save")) && !SaveChangedAssetsOrSay() ? ExitStatus::Failed : Status;
}
