#include "LighthouseFixture.h"

#include "Containers/StringConv.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"

#include <filesystem>

void FLighthouseTest::SetUp()
{
	FEditorTest::SetUp();
	if (HasFatalFailure())
	{
		return;
	}
	const std::filesystem::path Sample = VEXEL_SOURCE_DIR "/Samples/Lighthouse";
	const std::filesystem::path Project = TCHAR_TO_UTF8(*GetProjectDir());
	for (const char* const Folder : {"Config", "Content"})
	{
		std::filesystem::copy(Sample / Folder, Project / Folder, std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
	}
}

UBlueprint* FLighthouseTest::Load(const FString& Name)
{
	UBlueprint* const Blueprint = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(TEXT("/Game/") + Name));
	EXPECT_NE(Blueprint, nullptr) << TCHAR_TO_UTF8(*Name);
	return Blueprint;
}

UEdGraph* FLighthouseTest::FindGraph(const UBlueprint& Blueprint, const FString& Name)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	UEdGraph* const* const Found = Graphs.FindByPredicate([&Name](const UEdGraph* Graph)
		{ return Graph->GetName() == Name; });
	return Found ? *Found : nullptr;
}

UEdGraphNode* FLighthouseTest::FindNode(const UEdGraph& Graph, const FString& Title)
{
	const TObjectPtr<UEdGraphNode>* const Found = Graph.Nodes.FindByPredicate([&Title](const UEdGraphNode* Node)
		{ return GetTitle(Node) == Title; });
	return Found ? Found->Get() : nullptr;
}

UEdGraphNode* FLighthouseTest::Follow(const UEdGraphNode* Node, const TCHAR* Output)
{
	const UEdGraphPin* const Pin = Node ? Node->FindPin(FName(Output), EGPD_Output) : nullptr;
	return Pin && Pin->LinkedTo.Num() == 1 ? Pin->LinkedTo[0]->GetOwningNode() : nullptr;
}

FString FLighthouseTest::GetTitle(const UEdGraphNode* Node)
{
	return Node ? Node->GetNodeTitle(ENodeTitleType::ListView).ToString() : FString(TEXT("no node"));
}

FString FLighthouseTest::Export(const UBlueprint& Blueprint)
{
	FString Result;
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Nodes.Add(Node);
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Nodes, Text);
		Result += Graph->GetName() + TEXT("\n") + Text;
	}
	return Result;
}
