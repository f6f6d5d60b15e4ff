#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Logging/TokenizedMessage.h"

class UObject;

/**
 * What a compile says of a Blueprint. Each "@@" of a message's format stands for the next argument: a node, a pin, another object
 * or a text. Nodes that a message mentions are marked with it. Game thread.
 */
class BLUEPRINTGRAPH_API FCompilerResultsLog
{
public:
	/** In the order in which they were said. */
	TArray<TSharedRef<FTokenizedMessage>> Messages;
	int32 NumErrors = 0;
	int32 NumWarnings = 0;
	/** Nothing is written to the output log. */
	bool bSilentMode = false;
	/** Nodes that are mentioned are marked with the message. */
	bool bAnnotateMentionedNodes = true;

	/** With events, the outermost event ends with a message that sums up the compile. */
	explicit FCompilerResultsLog(bool bIsCompatibleWithEvents = true);

	/** The asset that is compiled, for the summary. */
	void SetSourcePath(const FString& ResourcePath) { SourcePath = ResourcePath; }
	void BeginEvent(const TCHAR* InName);
	void EndEvent();

	template <typename... ArgTypes>
	TSharedPtr<FTokenizedMessage> Error(const TCHAR* Format, const ArgTypes&... Args)
	{
		return Say(EMessageSeverity::Error, Format, {FArgument(Args)...});
	}
	template <typename... ArgTypes>
	TSharedPtr<FTokenizedMessage> Warning(const TCHAR* Format, const ArgTypes&... Args)
	{
		return Say(EMessageSeverity::Warning, Format, {FArgument(Args)...});
	}
	template <typename... ArgTypes>
	TSharedPtr<FTokenizedMessage> Note(const TCHAR* Format, const ArgTypes&... Args)
	{
		return Say(EMessageSeverity::Info, Format, {FArgument(Args)...});
	}

private:
	/** What one "@@" stands for. */
	struct FArgument
	{
		TSharedRef<IMessageToken> Token;

		FArgument(const UEdGraphPin* Pin);
		FArgument(const UObject* Object);
		FArgument(const FText& Text);
		FArgument(const FString& Text);
		FArgument(const TCHAR* Text);
		FArgument(FName Name);
		template <typename T>
		requires std::is_base_of_v<UObject, T>
		FArgument(const TObjectPtr<T>& Object)
			: FArgument(static_cast<const UObject*>(Object.Get()))
		{
		}
	};

	TSharedRef<FTokenizedMessage> Say(EMessageSeverity::Type Severity, const TCHAR* Format, std::initializer_list<FArgument> Arguments);
	void Annotate(const UObject* Mentioned, EMessageSeverity::Type Severity, const FText& Text) const;
	void WriteToLog(EMessageSeverity::Type Severity, const FText& Text) const;
	void LogSummary(double Seconds);

	FString SourcePath;
	TArray<double> EventStarts;
	bool bHasEvents;
};
