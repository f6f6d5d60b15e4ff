#pragma once

#include "Chat/ChatDisplay.h"
#include "LiveLines.h"
#include "MarkdownStream.h"

/** A chat on a terminal: Markdown rendered as it streams, a line for each tool with its icon and its time, what works turning. */
class FTerminalChatDisplay final : public IChatDisplay
{
public:
	FTerminalChatDisplay();

	virtual void BeginTurn(const FString& Message) override;
	virtual void AddText(FStringView Text) override;
	virtual void AddError(const FString& Text) override;
	virtual void AddImage(const FString& Path) override;
	virtual void BeginTool(const FChatToolCall& Call) override;
	virtual void EndTool(const FChatToolCall& Call, const FChatToolOutcome& Outcome) override;
	virtual void Tick() override;
	virtual void EndTurn(EVexelChatRequestState State, const FString& Failure) override;
	virtual void ShowResult(const FString& Command, const TArray<FStyledLine>& Lines, const TSharedRef<FJsonObject>& Document) override;
	virtual void ShowFailure(const FString& Reason) override;
	virtual int32 GetWidth() const override { return Live.GetTextWidth(); }

private:
	enum class ESection : uint8
	{
		Nothing,
		Text,
		Tools,
	};

	struct FRunningTool
	{
		FChatToolCall Call;
		double StartTime = 0.0;
	};

	/** Begins a part of the answer of another kind, with an empty line between the two. */
	void EnterSection(ESection Next);
	/** Why something failed, as lines for good. */
	void AddBadNews(const FString& Text);
	/** Ends the text so far, whose last block then stands for good. */
	void FinishText();
	void Refresh();
	void FitTerminal();
	TArray<FStyledLine> MakeChangingLines() const;
	FStyledLine MakeSpinner() const;

	FLiveLines Live;
	FMarkdownStream Markdown;
	TArray<FRunningTool> RunningTools;
	/** Lines for good that are not on the terminal yet. */
	TArray<FStyledLine> FinalLines;
	ESection Section = ESection::Nothing;
	double TurnStart = 0.0;
	double LastRefresh = 0.0;
	bool bChanged = false;
};
