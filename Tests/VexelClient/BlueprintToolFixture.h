#pragma once

#include "Data/VexelChatConversation.h"
#include "EdGraphUtilities.h"
#include "Editor.h"
#include "Editor/TransBuffer.h"
#include "LumTestBlueprint.h"
#include "Tools/VexelToolManager.h"
#include "VexelJson.h"

#include <string>
#include <vector>

/** Tools called as the service calls them, in one conversation. */
class FBlueprintToolTest : public FLumTest
{
protected:
	using FAnswer = TVexelExpected<TSharedRef<FJsonObject>>;

	virtual void SetUp() override
	{
		FLumTest::SetUp();
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	/** Quotes may be single ones. "BP" stands for the test's Blueprint. */
	FAnswer Call(const TCHAR* Tool, const char* Input)
	{
		FString Text = FString(UTF8_TO_TCHAR(Input)).Replace(TEXT("'"), TEXT("\""), ESearchCase::CaseSensitive);
		Text = Text.Replace(TEXT("\"BP\""), *(TEXT("\"") + Blueprint->GetPathName() + TEXT("\"")), ESearchCase::CaseSensitive);
		TSharedPtr<FJsonObject> Object;
		FVexelJsonConversions::StringToJson(Text, Object);
		checkf(Object, TEXT("No JSON: %s"), *Text);
		FVexelToolContext Context;
		Context.Conversation = Conversation;
		const TSharedRef<FVexelTool> Found = FVexelToolManager::Get().FindTool(FName(Tool)).GetValue();
		const TVexelTaskResult<TSharedRef<FJsonObject>> Result = Found->Call(Context, FVexelToolInput(Object.ToSharedRef()));
		EXPECT_TRUE(PumpUntil([&Result]
			{ return Result.IsComplete(); }));
		return Result.Value();
	}

	std::string ErrorOf(const TCHAR* Tool, const char* Input)
	{
		const FAnswer Answer = Call(Tool, Input);
		return Answer.HasError() ? ToStd(Answer.GetError().ToChainString()) : "no error";
	}

	/** The texts of "errors" of a call that must succeed. */
	std::vector<std::string> ItemErrorsOf(const TCHAR* Tool, const char* Input)
	{
		const FAnswer Answer = Call(Tool, Input);
		if (Answer.HasError())
		{
			ADD_FAILURE() << ToStd(Answer.GetError().ToChainString());
			return {};
		}
		return TextsOf(*Answer.GetValue(), TEXT("errors"));
	}

	/** The strings of an array that may be missing. */
	static std::vector<std::string> TextsOf(const FJsonObject& Object, const TCHAR* Key)
	{
		std::vector<std::string> Texts;
		const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
		if (Object.TryGetArrayField(Key, Values))
		{
			for (const TSharedPtr<FJsonValue>& Value : *Values)
			{
				Texts.push_back(ToStd(Value->AsString()));
			}
		}
		return Texts;
	}

	int32 NumUndos() const { return GEditor->Trans->GetQueueLength(); }

	UEdGraphNode* FindNode(const TCHAR* Id)
	{
		UEdGraphNode* Node = nullptr;
		Conversation->GetMapping()->ResolveNodeInGraph(TVexelNodeId(Id), *EventGraph, Node);
		return Node;
	}

	FString ExportText() const
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : EventGraph->Nodes)
		{
			Nodes.Add(Node);
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Nodes, Text);
		return Text;
	}

	TSharedPtr<FVexelChatConversation> Conversation =
		MakeShared<FVexelChatConversation>(FString(TEXT("user")), FString(TEXT("chat")), FVexelChatModeInfo());
};
