#pragma once

#include "Chat/ChatDisplay.h"

/** A chat for another program: one JSON object a line for each thing that happens (Docs/Chat.md). */
class FEventChatDisplay final : public IChatDisplay
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
};
