#pragma once

#include "Chat/ChatDisplay.h"

/** A chat as plain text, for pipes, files and terminals that know no codes: Markdown as it comes, a line for each step of a tool. */
class FPlainChatDisplay final : public IChatDisplay
{
public:
	virtual void BeginTurn(const FString& Message) override;
	virtual void AddText(FStringView Text) override;
	virtual void AddError(const FString& Text) override;
	virtual void AddImage(const FString& Path) override;
	virtual void BeginTool(const FChatToolCall& Call) override;
	virtual void EndTool(const FChatToolCall& Call, const FChatToolOutcome& Outcome) override;
	virtual void EndTurn(EVexelChatRequestState State, const FString& Failure) override;
	virtual void ShowResult(const FString& Command, const TArray<FStyledLine>& Lines, const TSharedRef<FJsonObject>& Document) override;
	virtual void ShowFailure(const FString& Reason) override;

private:
	void Write(FStringView Text);
	void WriteLine(const FString& Text);
	/** Writes what was held back, and ends a line that has begun. */
	void EndLine();

	bool bAtLineStart = true;
	/** Text that waits for the next piece. */
	FString HeldText;
};
