#pragma once

#include "Data/VexelChatConversation.h"
#include "LumTestBlueprint.h"
#include "VexelExpected.h"
#include "VexelTaskResult.h"

#include <string>
#include <vector>

/** Tools called as the service calls them, in one conversation. */
class FBlueprintToolTest : public FLumTest
{
protected:
	using FAnswer = TVexelExpected<TSharedRef<FJsonObject>>;
	using FPending = TVexelTaskResult<TSharedRef<FJsonObject>>;

	virtual void SetUp() override;

	/** Quotes may be single ones. "BP" stands for the test's Blueprint. */
	FPending Start(const TCHAR* Tool, const std::string& Input);
	/** Waits for the answer. */
	FAnswer Call(const TCHAR* Tool, const std::string& Input);
	/** The text of a call's error, with what caused it. */
	std::string ErrorOf(const TCHAR* Tool, const std::string& Input);
	/** The texts of "errors" of a call that must succeed. */
	std::vector<std::string> ItemErrorsOf(const TCHAR* Tool, const std::string& Input);
	/** The strings of an array that may be missing. */
	static std::vector<std::string> TextsOf(const FJsonObject& Object, const TCHAR* Key);
	/** Whether the compile tool answers success. */
	bool Compiles();

	static int32 NumUndos();
	/** Of the newest entry of undo. */
	static std::string TopTitle();
	static void UndoAll();
	UEdGraphNode* FindNode(const TCHAR* Id);
	/** The text of every node of the Blueprint's graphs. */
	static FString ExportText(const UBlueprint& Blueprint);
	FString ExportText() const { return ExportText(*Blueprint); }

	TSharedPtr<FVexelChatConversation> Conversation =
		MakeShared<FVexelChatConversation>(FString(TEXT("user")), FString(TEXT("chat")), FVexelChatModeInfo());
};
