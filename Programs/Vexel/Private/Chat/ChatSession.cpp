#include "Chat/ChatSession.h"

#include "BlueprintLookup.h"
#include "BlueprintSnapshot.h"
#include "BlueprintWatch.h"
#include "ChangedAssets.h"
#include "Chat/ChangeLines.h"
#include "Chat/ConversationList.h"
#include "Commands.h"
#include "Console.h"
#include "DiffDocument.h"
#include "EdGraph/EdGraph.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Blueprint.h"
#include "GraphPicture.h"
#include "HAL/PlatformMisc.h"
#include "HeadlessEditor.h"
#include "MarkdownLines.h"
#include "Misc/App.h"
#include "Misc/Paths.h"
#include "UndoStep.h"

namespace
{
FString GetLineHistoryPath()
{
	FString State = FPlatformMisc::GetEnvironmentVariable(TEXT("XDG_STATE_HOME"));
	if (State.IsEmpty())
	{
		State = FPlatformMisc::GetEnvironmentVariable(TEXT("HOME")) / TEXT(".local/state");
	}
	return State / TEXT("vexel/chat_history");
}

TArray<FString> SplitWords(const FString& Line)
{
	TArray<FString> Words;
	Line.ParseIntoArrayWS(Words);
	return Words;
}

/** A number from 1 to a limit; 0 for anything else. */
int32 ReadNumber(const FString& Word, int32 Limit)
{
	const int32 Number = Word.IsNumeric() && Word.Len() < 9 ? FCString::Atoi(*Word) : 0;
	return Number >= 1 && Number <= Limit ? Number : 0;
}

const TCHAR* const AllWord = TEXT("all");

bool IsAll(const TArray<FString>& Words) { return Words.Num() == 1 && Words[0] == AllWord; }

/** The edits that were made and not undone. */
int32 CountEdits() { return GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount(); }
}

FChatSession::FChatSession(
	UVexelChatSubsystem& InSubsystem, IChatDisplay& InDisplay, const TSharedRef<FVexelChatConversation>& InConversation)
	: Subsystem(InSubsystem)
	, Display(InDisplay)
	, Turns(InSubsystem, InDisplay)
	, Conversation(InConversation)
{
}

TConstArrayView<FChatSession::FCommand> FChatSession::GetCommands()
{
	static constexpr FCommand Commands[] = {
		{TEXT("/help"), TEXT(""), TEXT("these commands"), &FChatSession::ShowHelp},
		{TEXT("/new"), TEXT(""), TEXT("begins a new conversation"), &FChatSession::BeginNew},
		{TEXT("/list"), TEXT(""), TEXT("the stored conversations, the newest first"), &FChatSession::ListConversations},
		{TEXT("/open"), TEXT("NUMBER"), TEXT("goes on with a conversation of the list"), &FChatSession::OpenConversation},
		{TEXT("/mode"), TEXT("[MODE]"), TEXT("the chat modes that the account has, or another one for what follows"), &FChatSession::ChangeMode},
		{TEXT("/revert"), TEXT("[NUMBER]"), TEXT("the answers so far, or back to how things stood after one of them"), &FChatSession::Revert},
		{TEXT("/undo"), TEXT("[all]"), TEXT("takes back the last edit of the project, or all of the last answer"), &FChatSession::Undo},
		{TEXT("/redo"), TEXT("[all]"), TEXT("makes the edit again that was taken back last, or all that were"), &FChatSession::Redo},
		{TEXT("/save"), TEXT(""), TEXT("saves what was changed"), &FChatSession::Save},
		{TEXT("/blueprint"), TEXT("PATH [GRAPH]"), TEXT("draws a graph of a Blueprint, the event graph without a name"),
			&FChatSession::ShowBlueprint},
		{TEXT("/quit"), TEXT(""), TEXT("ends the chat, as Ctrl-D does"), &FChatSession::Quit},
	};
	return Commands;
}

const FChatSession::FCommand* FChatSession::FindCommand(const FString& Name)
{
	return GetCommands().FindByPredicate([&](const FCommand& Row)
		{ return Name.Equals(Row.Name, ESearchCase::IgnoreCase); });
}

int32 FChatSession::Run()
{
	// For the whole chat, so that nothing typed between two lines is taken by the terminal itself.
	FQuietInput Quiet;
	FLineReader Reader(
		GetLineHistoryPath(), [this](const FString& Line)
		{ return Complete(Line); },
		[]
		{ FHeadlessEditor::WaitAndTick(0.0f); });
	if (FConsole::IsTerminal())
	{
		FStyledLine Greeting(TEXT("Vexel"), TextStyle::Title);
		Greeting.Add(TEXT(" in ") + FString(FApp::GetProjectName()), TextStyle::Strong);
		Greeting.Add(TEXT("  Ask about a Blueprint or the project; /help shows commands."), TextStyle::Faint);
		FConsole::WriteLines(WrapText(Greeting, FConsole::GetSize().X - 1));
		FConsole::WriteLines({FStyledLine()});
	}
	while (!bLeaving)
	{
		FString Line;
		const EReadLine Result = Reader.ReadLine(MakePrompt(), Line);
		Quiet.Renew();
		if (Result == EReadLine::End)
		{
			break;
		}
		Line = Line.TrimStartAndEnd();
		if (Result == EReadLine::Line && !Line.IsEmpty())
		{
			RunLine(Line);
		}
	}
	// In a pipe the exit status is all that a script sees.
	return bLastSucceeded || FConsole::IsTerminal() ? ExitStatus::Done : ExitStatus::Failed;
}

void FChatSession::RunLine(const FString& Line)
{
	// A path of an asset begins with a slash too.
	const TArray<FString> Words = SplitWords(Line);
	const bool bCommand = Line.StartsWith(TEXT("/")) && !Words[0].RightChop(1).Contains(TEXT("/"));
	if (!bCommand)
	{
		NumEditsBeforeAnswer = CountEdits();
		bLastSucceeded = !Turns.RunTurn(Conversation->GetChatId(), Line);
		ConversationList::NameAfterFirstQuestion(Subsystem, *Conversation);
		return;
	}
	const FCommand* const Command = FindCommand(Words[0]);
	TOptional<FString> Failure;
	if (Command)
	{
		RunningCommand = Command->Name;
		Failure = (this->*Command->Run)(TArray<FString>(Words.GetData() + 1, Words.Num() - 1));
	}
	else
	{
		Failure = FString::Printf(TEXT("there is no command '%s'; /help shows those that there are"), *Words[0]);
	}
	bLastSucceeded = !Failure;
	if (Failure)
	{
		Display.ShowFailure(*Failure);
	}
}

FStyledLine FChatSession::MakePrompt() const
{
	return FStyledLine(TEXT("❯ "), TextStyle::Title);
}

FCompletions FChatSession::Complete(const FString& Line) const
{
	FCompletions Completions;
	int32 LastBlank = INDEX_NONE;
	Completions.WordBegin = Line.FindLastChar(TEXT(' '), LastBlank) ? LastBlank + 1 : 0;
	const FString Word = Line.RightChop(Completions.WordBegin);
	const auto AddAll = [&](const auto& Rows, const auto& GetText)
	{
		for (const auto& Row : Rows)
		{
			const FString Text = GetText(Row);
			if (Text.StartsWith(Word, ESearchCase::IgnoreCase))
			{
				Completions.Texts.Add(Text);
			}
		}
	};
	const TArray<FString> Words = SplitWords(Line.Left(Completions.WordBegin));
	if (Words.IsEmpty() && Word.StartsWith(TEXT("/")))
	{
		AddAll(GetCommands(), [](const FCommand& Row)
			{ return FString(Row.Name); });
		// Paths of assets begin with a slash too.
		Completions.Texts.Append(Completions.Texts.IsEmpty() ? BlueprintLookup::Complete(Word) : TArray<FString>());
	}
	else if (Words.Num() == 1 && Words[0] == TEXT("/mode"))
	{
		AddAll(UVexelChatSubsystem::GetAllowedChatModes(), [](const FVexelChatModeInfo& Mode)
			{ return Mode.ChatMode; });
	}
	else if (Words.Num() == 1 && (Words[0] == TEXT("/undo") || Words[0] == TEXT("/redo")))
	{
		AddAll(TArray<FString>{AllWord}, [](const FString& Text)
			{ return Text; });
	}
	else if (Words.Num() == 2 && Words[0] == TEXT("/blueprint"))
	{
		FString Reason;
		const UBlueprint* const Blueprint = BlueprintLookup::Load(Words[1], Reason);
		AddAll(Blueprint ? BlueprintLookup::GetGraphNames(*Blueprint) : TArray<FString>(), [](const FString& Name)
			{ return Name; });
	}
	else if (!Word.IsEmpty() || (Words.Num() == 1 && Words[0] == TEXT("/blueprint")))
	{
		Completions.Texts = BlueprintLookup::Complete(Word);
	}
	return Completions;
}

TOptional<FString> FChatSession::ShowHelp(const TArray<FString>&)
{
	constexpr int32 NameWidth = 27;
	TArray<FStyledLine> Lines;
	TArray<TSharedPtr<FJsonValue>> Rows;
	for (const FCommand& Command : GetCommands())
	{
		FStyledLine Name(TEXT("  "));
		Name.Add(Command.Name, TextStyle::Code).Add(FString(TEXT(" ")) + Command.Arguments, TextStyle::Faint);
		Lines.Append(WrapText(Command.Help, Display.GetWidth(), Name.PadTo(NameWidth), FStyledLine().PadTo(NameWidth)));
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("name"), Command.Name);
		Row->SetStringField(TEXT("arguments"), Command.Arguments);
		Row->SetStringField(TEXT("help"), Command.Help);
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	Lines.AddDefaulted();
	Lines.Append(WrapText(FStyledLine(TEXT("Anything else is a question. Tab completes commands, paths and names of Blueprints; the arrow keys "
										   "and Ctrl-R find earlier lines."),
							  TextStyle::Faint),
		Display.GetWidth(), TEXT("  "), TEXT("  ")));
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("commands"), Rows);
	Display.ShowResult(RunningCommand, Lines, Document);
	return NullOpt;
}

TOptional<FString> FChatSession::BeginNew(const TArray<FString>&)
{
	const TSharedPtr<FVexelChatConversation> New = Subsystem.CreateConversation(Conversation->GetChatMode());
	if (!New)
	{
		return FString(TEXT("no conversation can be opened"));
	}
	Conversation = New.ToSharedRef();
	Tell(TEXT("a new conversation"));
	return NullOpt;
}

TOptional<FString> FChatSession::ListConversations(const TArray<FString>&)
{
	const TArray<FVexelChatHeader> Headers = Subsystem.GetHistory();
	Display.ShowResult(RunningCommand, ConversationList::MakeLines(Headers, Conversation->GetChatId(), Display.GetWidth()),
		ConversationList::MakeDocument(Headers, Conversation->GetChatId()));
	return NullOpt;
}

TOptional<FString> FChatSession::OpenConversation(const TArray<FString>& Words)
{
	const TArray<FVexelChatHeader> Headers = Subsystem.GetHistory();
	const int32 Number = Words.Num() == 1 ? ReadNumber(Words[0], Headers.Num()) : 0;
	if (Number == 0)
	{
		return FString(TEXT("which conversation? Say '/open NUMBER' with a number of /list"));
	}
	const TSharedPtr<FVexelChatConversation> Found = Subsystem.FindActiveConversation(Headers[Number - 1].ChatId);
	if (!Found)
	{
		return FString::Printf(TEXT("conversation %d cannot be opened"), Number);
	}
	Conversation = Found.ToSharedRef();
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("chat_id"), Conversation->GetChatId());
	Document->SetNumberField(TEXT("messages"), Conversation->GetMessages().Num());
	Display.ShowResult(RunningCommand, ConversationList::MakeLastExchange(*Conversation, Display.GetWidth()), Document);
	return NullOpt;
}

TOptional<FString> FChatSession::ChangeMode(const TArray<FString>& Words)
{
	const TArray<FVexelChatModeInfo> Modes = UVexelChatSubsystem::GetAllowedChatModes();
	if (Words.IsEmpty())
	{
		TArray<FStyledLine> Lines;
		TArray<TSharedPtr<FJsonValue>> Ids;
		for (const FVexelChatModeInfo& Mode : Modes)
		{
			const bool bCurrent = Mode.ChatMode == Conversation->GetChatMode().ChatMode;
			Lines.Add(FStyledLine(bCurrent ? TEXT("● ") : TEXT("  "), TextStyle::Good)
						  .Add(Mode.ChatMode, TextStyle::Code)
						  .Add(TEXT("  ") + Mode.DisplayText));
			Ids.Add(MakeShared<FJsonValueString>(Mode.ChatMode));
		}
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("mode"), Conversation->GetChatMode().ChatMode);
		Document->SetArrayField(TEXT("modes"), Ids);
		Display.ShowResult(RunningCommand, Lines, Document);
		return NullOpt;
	}
	// Labels have blanks: "Agent Lite".
	const FString Wanted = FString::Join(Words, TEXT(" "));
	const FVexelChatModeInfo* const Mode = Modes.FindByPredicate([&](const FVexelChatModeInfo& Row)
		{ return Row.ChatMode.Equals(Wanted, ESearchCase::IgnoreCase) || Row.DisplayText.Equals(Wanted, ESearchCase::IgnoreCase); });
	if (!Mode)
	{
		return FString::Printf(TEXT("your account has no mode '%s'; /mode shows those that it has"), *Wanted);
	}
	const TVexelExpected<void> Changed = Subsystem.SetChatMode(Conversation->GetChatId(), *Mode);
	if (Changed.HasError())
	{
		return Changed.GetError().ToChainString();
	}
	Tell(TEXT("the mode is ") + Mode->DisplayText);
	return NullOpt;
}

TOptional<FString> FChatSession::Revert(const TArray<FString>& Words)
{
	const TArray<FVexelCheckpoint> Checkpoints = Conversation->GetCheckpoints();
	if (Words.IsEmpty())
	{
		Display.ShowResult(RunningCommand, ConversationList::MakeCheckpointLines(*Conversation, Display.GetWidth()),
			ConversationList::MakeCheckpointDocument(*Conversation));
		return NullOpt;
	}
	const int32 Number = Words.Num() == 1 ? ReadNumber(Words[0], Checkpoints.Num()) : 0;
	if (Number == 0)
	{
		return FString(TEXT("back to which answer? Say '/revert NUMBER' with a number of /revert"));
	}
	const TVexelExpected<void> Reverted = Subsystem.RevertToCheckpoint(Conversation->GetChatId(), Checkpoints[Number - 1].Id);
	if (Reverted.HasError())
	{
		return Reverted.GetError().ToChainString();
	}
	Tell(FString::Printf(
		TEXT("back to how the conversation stood after answer %d; edits of the project stay, /undo takes them back"), Number));
	return NullOpt;
}

TOptional<FString> FChatSession::Undo(const TArray<FString>& Words)
{
	if (Words.IsEmpty())
	{
		return Travel(true, 1);
	}
	const int32 NumOfAnswer = CountEdits() - NumEditsBeforeAnswer;
	if (!IsAll(Words))
	{
		return FString(TEXT("how much? Say '/undo', or '/undo all' for all edits of the last answer"));
	}
	return NumOfAnswer > 0 ? Travel(true, NumOfAnswer) : FString(TEXT("of the last answer there is nothing to undo"));
}

TOptional<FString> FChatSession::Redo(const TArray<FString>& Words)
{
	if (!Words.IsEmpty() && !IsAll(Words))
	{
		return FString(TEXT("how much? Say '/redo', or '/redo all' for all edits that were undone"));
	}
	return Travel(false, Words.IsEmpty() ? 1 : FMath::Max(1, GEditor->Trans->GetUndoCount()));
}

TOptional<FString> FChatSession::Save(const TArray<FString>&)
{
	const FSavedAssets Result = SaveChangedAssets();
	if (!Result.Failed.IsEmpty())
	{
		return FString::Printf(TEXT("'%s' cannot be saved"), *FString::Join(Result.Failed, TEXT("', '")));
	}
	if (Result.Saved.IsEmpty())
	{
		return FString(TEXT("there is nothing to save"));
	}
	Tell(TEXT("saved: ") + FString::Join(Result.Saved, TEXT(", ")));
	return NullOpt;
}

TOptional<FString> FChatSession::Travel(bool bBack, int32 NumSteps)
{
	FString What;
	FBlueprintWatch Watch;
	for (int32 Step = 0; Step < NumSteps; ++Step)
	{
		if (const TOptional<FString> Failure = TakeUndoStep(bBack, What))
		{
			return Failure;
		}
	}
	What = NumSteps == 1 ? What : FString::Printf(TEXT("%d edits"), NumSteps);
	const TArray<FBlueprintDiff> Changes = Watch.TakeDiffs();
	const FString Text = (bBack ? TEXT("undone: ") : TEXT("redone: ")) + What;
	TArray<FStyledLine> Lines = {FStyledLine(Text, TextStyle::Faint)};
	Lines.Append(DrawChanges(Changes, Display.GetWidth(), TEXT("  ")));
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("text"), Text);
	Document->SetArrayField(TEXT("changes"), MakeDiffDocuments(Changes));
	Display.ShowResult(RunningCommand, Lines, Document);
	return NullOpt;
}

TOptional<FString> FChatSession::ShowBlueprint(const TArray<FString>& Words)
{
	if (Words.IsEmpty())
	{
		return FString(TEXT("which Blueprint? Say '/blueprint PATH' or '/blueprint PATH GRAPH'"));
	}
	FString Reason;
	UBlueprint* const Blueprint = BlueprintLookup::Load(Words[0], Reason);
	// Names of graphs may have blanks.
	const FString GraphName = FString::Join(TArray<FString>(Words.GetData() + 1, Words.Num() - 1), TEXT(" "));
	const UEdGraph* const Graph = Blueprint ? BlueprintLookup::FindGraph(*Blueprint, GraphName, Reason) : nullptr;
	if (!Graph)
	{
		return Reason;
	}
	TArray<FStyledLine> Lines = DrawGraph(FGraphSnapshot::Take(*Graph), Display.GetWidth());
	const TSharedRef<FJsonObject> Document = MakeGraphDocument(*Blueprint, *Graph, Lines);
	if (GraphName.IsEmpty())
	{
		Lines.AddDefaulted();
		Lines.Append(WrapText(FStyledLine(FString::Join(BlueprintLookup::GetGraphNames(*Blueprint), TEXT(", "))), Display.GetWidth(),
			FStyledLine(TEXT("Graphs: "), TextStyle::Faint), TEXT("        ")));
	}
	Display.ShowResult(RunningCommand, Lines, Document);
	return NullOpt;
}

TOptional<FString> FChatSession::Quit(const TArray<FString>&)
{
	bLeaving = true;
	return NullOpt;
}

void FChatSession::Tell(const FString& Text)
{
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("text"), Text);
	Document->SetStringField(TEXT("chat_id"), Conversation->GetChatId());
	Display.ShowResult(RunningCommand, {FStyledLine(Text, TextStyle::Faint)}, Document);
}
