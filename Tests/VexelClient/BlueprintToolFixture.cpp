#include "BlueprintToolFixture.h"

#include "EdGraphUtilities.h"
#include "Editor.h"
#include "Editor/TransBuffer.h"
#include "Tools/VexelToolManager.h"
#include "VexelJson.h"

void FBlueprintToolTest::SetUp()
{
	FLumTest::SetUp();
	GEditor->ResetTransaction(INVTEXT("Test"));
}

FBlueprintToolTest::FPending FBlueprintToolTest::Start(const TCHAR* Tool, const std::string& Input)
{
	FString Text = FString(UTF8_TO_TCHAR(Input.c_str())).Replace(TEXT("'"), TEXT("\""), ESearchCase::CaseSensitive);
	Text = Text.Replace(TEXT("\"BP\""), *(TEXT("\"") + Blueprint->GetPathName() + TEXT("\"")), ESearchCase::CaseSensitive);
	TSharedPtr<FJsonObject> Object;
	FVexelJsonConversions::StringToJson(Text, Object);
	checkf(Object, TEXT("No JSON: %s"), *Text);
	FVexelToolContext Context;
	Context.Conversation = Conversation;
	const TSharedRef<FVexelTool> Found = FVexelToolManager::Get().FindTool(FName(Tool)).GetValue();
	return Found->Call(Context, FVexelToolInput(Object.ToSharedRef()));
}

FBlueprintToolTest::FAnswer FBlueprintToolTest::Call(const TCHAR* Tool, const std::string& Input)
{
	const FPending Result = Start(Tool, Input);
	EXPECT_TRUE(PumpUntil([&Result]
		{ return Result.IsComplete(); }));
	return Result.Value();
}

std::string FBlueprintToolTest::ErrorOf(const TCHAR* Tool, const std::string& Input)
{
	const FAnswer Answer = Call(Tool, Input);
	return Answer.HasError() ? ToStd(Answer.GetError().ToChainString()) : "no error";
}

std::vector<std::string> FBlueprintToolTest::ItemErrorsOf(const TCHAR* Tool, const std::string& Input)
{
	const FAnswer Answer = Call(Tool, Input);
	if (Answer.HasError())
	{
		ADD_FAILURE() << ToStd(Answer.GetError().ToChainString());
		return {};
	}
	return TextsOf(*Answer.GetValue(), TEXT("errors"));
}

std::vector<std::string> FBlueprintToolTest::TextsOf(const FJsonObject& Object, const TCHAR* Key)
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

bool FBlueprintToolTest::Compiles()
{
	const FAnswer Compiled = Call(TEXT("compile"), "{'blueprint': 'BP'}");
	return Compiled.HasValue() && Compiled.GetValue()->GetBoolField(TEXT("success"));
}

int32 FBlueprintToolTest::NumUndos()
{
	return GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount();
}

std::string FBlueprintToolTest::TopTitle()
{
	return ToStd(GEditor->Trans->GetUndoContext(false).Title.ToString());
}

void FBlueprintToolTest::UndoAll()
{
	while (NumUndos() > 0)
	{
		ASSERT_TRUE(GEditor->UndoTransaction());
	}
}

UEdGraphNode* FBlueprintToolTest::FindNode(const TCHAR* Id)
{
	UEdGraphNode* Node = nullptr;
	Conversation->GetMapping()->ResolveNodeInGraph(TVexelNodeId(Id), *EventGraph, Node);
	return Node;
}

FString FBlueprintToolTest::ExportText(const UBlueprint& Blueprint)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	FString Text;
	for (const UEdGraph* const Graph : Graphs)
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Nodes.Add(Node);
		}
		FString GraphText;
		FEdGraphUtilities::ExportNodesToText(Nodes, GraphText);
		Text += Graph->GetName() + TEXT("\n") + GraphText;
	}
	return Text;
}
