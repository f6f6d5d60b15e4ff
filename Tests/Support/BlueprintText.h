#pragma once

#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "UObject/Interface.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

/** Everything of a Blueprint that an undo must restore, as text. */
class FBlueprintText
{
public:
	static FString Take(const UBlueprint& Blueprint)
	{
		FString Text;
		for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
		{
			FString Line;
			FBPVariableDescription::StaticStruct()->ExportText(Line, &Variable, nullptr, nullptr, PPF_None, nullptr);
			Text += Line + TEXT("\n");
		}
		AddGraphs(TEXT("Ubergraphs"), Blueprint.UbergraphPages, Text);
		AddGraphs(TEXT("Functions"), Blueprint.FunctionGraphs, Text);
		AddGraphs(TEXT("Macros"), Blueprint.MacroGraphs, Text);
		AddGraphs(TEXT("Dispatchers"), Blueprint.DelegateSignatureGraphs, Text);
		for (const FBPInterfaceDescription& Interface : Blueprint.ImplementedInterfaces)
		{
			Text += FString::Printf(TEXT("Implements %s\n"), *GetFullNameSafe(Interface.Interface.Get()));
			AddGraphs(TEXT("Implementation"), Interface.Graphs, Text);
		}
		for (const UTimelineTemplate* const Timeline : Blueprint.Timelines)
		{
			Text += FString::Printf(TEXT("Timeline %s %s\n"), *Timeline->GetPathName(), *Timeline->TimelineGuid.ToString());
		}
		const bool bHasComponents = Blueprint.SimpleConstructionScript != nullptr;
		for (const USCS_Node* const Node : bHasComponents ? Blueprint.SimpleConstructionScript->GetAllNodes() : TArray<USCS_Node*>())
		{
			const USCS_Node* const Parent = Blueprint.SimpleConstructionScript->FindParentNode(const_cast<USCS_Node*>(Node));
			Text += FString::Printf(TEXT("Component %s %s below %s from %s\n"), *Node->GetVariableName().ToString(),
				*Node->VariableGuid.ToString(), *GetNameSafe(Parent), *GetFullNameSafe(Node->ComponentTemplate.Get()));
		}
		AddOverrides(Blueprint, Text);
		return Text;
	}

private:
	static void AddOverrides(const UBlueprint& Blueprint, FString& Text)
	{
		const UInheritableComponentHandler* const Handler = Blueprint.InheritableComponentHandler;
		TArray<UActorComponent*> Templates;
		if (Handler)
		{
			Handler->GetAllTemplates(Templates);
		}
		// A compile puts those aside whose components are gone; their order means nothing.
		Templates.RemoveAll([Handler](const UActorComponent* Template)
			{ return !Handler->FindKey(Template).FindSCSNode(); });
		Templates.Sort([](const UActorComponent& A, const UActorComponent& B)
			{ return A.GetFName().LexicalLess(B.GetFName()); });
		for (const UActorComponent* const Template : Templates)
		{
			const FComponentKey Key = Handler->FindKey(Template);
			const UObject* const Archetype = Template->GetArchetype();
			Text += FString::Printf(TEXT("Override %s %s by %s of %s\n"), *Key.GetSCSVariableName().ToString(),
				*Key.GetAssociatedGuid().ToString(), *GetFullNameSafe(Template), *GetFullNameSafe(Archetype));
			for (TFieldIterator<FProperty> It(Template->GetClass()); It; ++It)
			{
				FString Value;
				if (It->ExportText_InContainer(0, Value, Template, Archetype, nullptr, PPF_None))
				{
					Text += FString::Printf(TEXT("  %s=%s\n"), *It->GetName(), *Value);
				}
			}
		}
	}

	static void AddGraphs(const TCHAR* Kind, const TArray<TObjectPtr<UEdGraph>>& Graphs, FString& Text)
	{
		for (const UEdGraph* const Graph : Graphs)
		{
			AddGraph(Kind, *Graph, Text);
			AddGraphs(TEXT("Subgraph"), Graph->SubGraphs, Text);
		}
	}

	static void AddGraph(const TCHAR* Kind, const UEdGraph& Graph, FString& Text)
	{
		Text += FString::Printf(
			TEXT("%s %s %s flags %x\n"), Kind, *Graph.GetPathName(), *Graph.GraphGuid.ToString(), static_cast<uint32>(Graph.GetFlags() & RF_Load));
		for (UEdGraphNode* const Node : Graph.Nodes)
		{
			FString NodeText;
			FEdGraphUtilities::ExportNodesToText({Node}, NodeText);
			TArray<FString> Lines;
			NodeText.ParseIntoArrayLines(Lines);
			for (const FString& Line : Lines)
			{
				// A compile's messages are no part of what the user edits.
				const bool bIsMessage =
					Line.Contains(TEXT("ErrorMsg")) || Line.Contains(TEXT("ErrorType")) || Line.Contains(TEXT("bHasCompilerMessage"));
				Text += bIsMessage ? FString() : Line + TEXT("\n");
			}
			CheckPins(*Node);
		}
	}

	static void CheckPins(const UEdGraphNode& Node)
	{
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			ASSERT_FALSE(Pin->WasTrashed());
			ASSERT_EQ(Pin->GetOwningNode(), &Node);
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				ASSERT_FALSE(Linked->WasTrashed());
				ASSERT_TRUE(Linked->LinkedTo.Contains(const_cast<UEdGraphPin*>(Pin)));
				ASSERT_TRUE(Linked->GetOwningNode()->Pins.Contains(const_cast<UEdGraphPin*>(Linked)));
				ASSERT_EQ(Linked->GetOwningNode()->GetGraph(), Node.GetGraph());
				ASSERT_TRUE(Node.GetGraph()->Nodes.Contains(Linked->GetOwningNode()));
			}
			for (const UEdGraphPin* const SubPin : Pin->SubPins)
			{
				ASSERT_EQ(SubPin->ParentPin, Pin);
				ASSERT_TRUE(Node.Pins.Contains(const_cast<UEdGraphPin*>(SubPin)));
			}
		}
	}
};

/** The first line that differs, with those around it, so that a failure can be read. */
inline FString DescribeDifference(const FString& Expected, const FString& Actual)
{
	TArray<FString> ExpectedLines;
	TArray<FString> ActualLines;
	Expected.ParseIntoArrayLines(ExpectedLines, false);
	Actual.ParseIntoArrayLines(ActualLines, false);
	for (int32 Index = 0; Index < FMath::Max(ExpectedLines.Num(), ActualLines.Num()); ++Index)
	{
		const FString Wanted = ExpectedLines.IsValidIndex(Index) ? ExpectedLines[Index] : FString(TEXT("(end)"));
		const FString Got = ActualLines.IsValidIndex(Index) ? ActualLines[Index] : FString(TEXT("(end)"));
		if (!Wanted.Equals(Got, ESearchCase::CaseSensitive))
		{
			FString Owner;
			for (int32 Above = FMath::Min(Index, ExpectedLines.Num() - 1); Above >= 0 && Owner.IsEmpty(); --Above)
			{
				Owner = ExpectedLines[Above].StartsWith(TEXT("Begin Object Class")) ? ExpectedLines[Above] : FString();
			}
			return FString::Printf(TEXT("line %d below %s\n  expected: %s\n  actual:   %s"), Index, *Owner, *Wanted, *Got);
		}
	}
	return FString();
}
