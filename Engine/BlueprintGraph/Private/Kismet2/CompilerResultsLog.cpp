#include "Kismet2/CompilerResultsLog.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraphToken.h"
#include "HAL/PlatformTime.h"

DEFINE_LOG_CATEGORY_STATIC(LogBlueprint, Log, All);

FCompilerResultsLog::FArgument::FArgument(const UEdGraphPin* Pin)
	: Token(FEdGraphToken::Create(Pin))
{
}

FCompilerResultsLog::FArgument::FArgument(const UObject* Object)
	: Token(FEdGraphToken::Create(Object))
{
}

FCompilerResultsLog::FArgument::FArgument(const FText& Text)
	: Token(FTextToken::Create(Text))
{
}

FCompilerResultsLog::FArgument::FArgument(const FString& Text)
	: FArgument(FText::FromString(Text))
{
}

FCompilerResultsLog::FArgument::FArgument(const TCHAR* Text)
	: FArgument(FText::FromString(Text))
{
}

FCompilerResultsLog::FArgument::FArgument(FName Name)
	: FArgument(FText::FromName(Name))
{
}

FCompilerResultsLog::FCompilerResultsLog(bool bIsCompatibleWithEvents)
	: bHasEvents(bIsCompatibleWithEvents)
{
}

void FCompilerResultsLog::BeginEvent(const TCHAR* InName)
{
	EventStarts.Push(FPlatformTime::Seconds());
}

void FCompilerResultsLog::EndEvent()
{
	check(EventStarts.Num() > 0);
	const double Start = EventStarts.Pop();
	if (bHasEvents && EventStarts.IsEmpty())
	{
		LogSummary(FPlatformTime::Seconds() - Start);
	}
}

void FCompilerResultsLog::LogSummary(double Seconds)
{
	const FString Time = FString::Printf(TEXT("[in %d ms]"), static_cast<int32>(Seconds * 1000.0));
	if (NumErrors > 0)
	{
		Note(
			*FString::Printf(TEXT("Compile of %s failed. %d Fatal Issue(s) %d Warning(s) %s"), *SourcePath, NumErrors, NumWarnings, *Time));
		return;
	}
	const FString Outcome = NumWarnings > 0 ? FString::Printf(TEXT("successful, but with %d Warning(s)"), NumWarnings)
											: FString(TEXT("successful!"));
	Note(*FString::Printf(TEXT("Compile of %s %s %s"), *SourcePath, *Outcome, *Time));
}

TSharedRef<FTokenizedMessage> FCompilerResultsLog::Say(
	EMessageSeverity::Type Severity, const TCHAR* Format, std::initializer_list<FArgument> Arguments)
{
	const TSharedRef<FTokenizedMessage> Message = FTokenizedMessage::Create(Severity);
	FString Rest = Format;
	for (const FArgument& Argument : Arguments)
	{
		const int32 Place = Rest.Find(TEXT("@@"), ESearchCase::CaseSensitive);
		if (Place == INDEX_NONE)
		{
			break;
		}
		if (Place > 0)
		{
			Message->AddText(FText::FromString(Rest.Left(Place)));
		}
		Message->AddToken(Argument.Token);
		Rest.RightChopInline(Place + 2);
	}
	if (!Rest.IsEmpty())
	{
		Message->AddText(FText::FromString(Rest));
	}
	Messages.Add(Message);
	NumErrors += Severity == EMessageSeverity::Error ? 1 : 0;
	NumWarnings += Severity == EMessageSeverity::Warning || Severity == EMessageSeverity::PerformanceWarning ? 1 : 0;

	const FText Text = Message->ToText();
	for (const FArgument& Argument : Arguments)
	{
		if (bAnnotateMentionedNodes && Argument.Token->GetType() == EMessageToken::EdGraph)
		{
			Annotate(static_cast<const FEdGraphToken&>(*Argument.Token).GetGraphObject(), Severity, Text);
		}
	}
	WriteToLog(Severity, Text);
	return Message;
}

void FCompilerResultsLog::Annotate(const UObject* Mentioned, EMessageSeverity::Type Severity, const FText& Text) const
{
	// A compile reads its Blueprint, but the marks on the nodes are its own to set.
	UEdGraphNode* const Node = const_cast<UEdGraphNode*>(Cast<UEdGraphNode>(Mentioned));
	if (!Node)
	{
		return;
	}
	const FString Line = Text.ToString();
	const bool bIsWorse = !Node->bHasCompilerMessage || Severity < Node->ErrorType;
	Node->ErrorMsg = Node->bHasCompilerMessage ? Node->ErrorMsg + TEXT("\n") + Line : Line;
	Node->ErrorType = bIsWorse ? static_cast<int32>(Severity) : Node->ErrorType;
	Node->bHasCompilerMessage = true;
}

void FCompilerResultsLog::WriteToLog(EMessageSeverity::Type Severity, const FText& Text) const
{
	if (bSilentMode)
	{
		return;
	}
	switch (Severity)
	{
		case EMessageSeverity::Error:
			UE_LOG(LogBlueprint, Error, TEXT("[Compiler] %s"), *Text.ToString());
			break;
		case EMessageSeverity::PerformanceWarning:
		case EMessageSeverity::Warning:
			UE_LOG(LogBlueprint, Warning, TEXT("[Compiler] %s"), *Text.ToString());
			break;
		case EMessageSeverity::Info:
			UE_LOG(LogBlueprint, Log, TEXT("[Compiler] %s"), *Text.ToString());
			break;
	}
}
