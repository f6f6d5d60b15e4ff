#pragma once

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/Guid.h"
#include "StyledText.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

/** A Blueprint with a graph named Drawn, and short words for what is put into it. */
class FGraphTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		UseUtf8Locale();
		UPackage* const Package = CreatePackage(*(TEXT("/Game/Picture_") + FGuid::NewGuid().ToString()));
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, TEXT("BP_Picture"), BPTYPE_Normal);
		Graph = FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Drawn"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddUbergraphPage(Blueprint, Graph);
	}

	template <class NodeType>
	NodeType* Add(
		TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {})
	{
		FGraphNodeCreator<NodeType> Creator(*Graph);
		NodeType* const Node = Creator.CreateNode(false);
		Prepare(*Node);
		Creator.Finalize();
		return Node;
	}

	UK2Node_CustomEvent* AddEvent(const TCHAR* Name, int32 Y = 0)
	{
		return Add<UK2Node_CustomEvent>([&](UK2Node_CustomEvent& Node)
			{
				Node.CustomFunctionName = Name;
				Node.NodePosY = Y; });
	}

	UEdGraphNode* AddCall(const TCHAR* Library, const TCHAR* Function)
	{
		const UClass* const Class = FindObject<UClass>(nullptr, *(FString(TEXT("/Script/Engine.")) + Library));
		return Add<UK2Node_CallFunction>([&](UK2Node_CallFunction& Call)
			{ Call.SetFromFunction(Class->FindFunctionByName(Function)); });
	}

	UEdGraphNode* AddPrint(const TCHAR* Text)
	{
		UEdGraphNode* const Node = AddCall(TEXT("KismetSystemLibrary"), TEXT("PrintString"));
		Node->FindPinChecked(TEXT("InString"))->DefaultValue = Text;
		return Node;
	}

	static void Link(UEdGraphNode* From, const FName& Output, UEdGraphNode* To, const FName& Input = UEdGraphSchema_K2::PN_Execute)
	{
		From->FindPinChecked(Output, EGPD_Output)->MakeLinkTo(To->FindPinChecked(Input, EGPD_Input));
	}
	static void Link(UEdGraphNode* From, UEdGraphNode* To) { Link(From, UEdGraphSchema_K2::PN_Then, To); }

	static void Unlink(UEdGraphNode* Node, const FName& Output = UEdGraphSchema_K2::PN_Then)
	{
		Node->FindPinChecked(Output, EGPD_Output)->BreakAllPinLinks();
	}

	void Remove(UEdGraphNode* Node) { FBlueprintEditorUtils::RemoveNode(Blueprint, Node); }

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
};
