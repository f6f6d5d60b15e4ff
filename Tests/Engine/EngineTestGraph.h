#pragma once

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

/** Has the reflected types ready, and what the test made collected afterwards. */
class FEngineTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { ProcessNewlyLoadedUObjects(); }
	virtual void TearDown() override { CollectGarbage(RF_NoFlags); }

	static UEdGraph* MakeGraph(UObject* Outer = GetTransientPackageAsObject(), const TCHAR* Name = TEXT("Graph"))
	{
		return NewObject<UEdGraph>(Outer, MakeUniqueObjectName(Outer, UEdGraph::StaticClass(), FName(Name)), RF_Transactional);
	}

	static UEdGraphNode* MakeNode(UEdGraph& Graph, const TCHAR* InputName, const TCHAR* OutputName)
	{
		UEdGraphNode* const Node = Graph.CreateNode(UEdGraphNode::StaticClass());
		Node->CreateNewGuid();
		if (InputName)
		{
			Node->CreatePin(EGPD_Input, FName(TEXT("exec")), FName(InputName));
		}
		if (OutputName)
		{
			Node->CreatePin(EGPD_Output, FName(TEXT("exec")), FName(OutputName));
		}
		return Node;
	}
};

inline void PrintTo(const FString& Text, std::ostream* Stream) { *Stream << TCHAR_TO_UTF8(*Text); }
