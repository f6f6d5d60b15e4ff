#pragma once

#include "Blueprint/VexelBlueprintMapping.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "UObject/UObjectGlobals.h"

#include <string>

/** Tests on a new Actor Blueprint, built through the engine's API. */
class FLumTest : public FEditorTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** The Blueprint is no asset of the project any more, and goes with the next collection. */
	void LetGoOfBlueprint();
	/** The asset is none any more, for this test's successors and for who listens to the registry. */
	static void Forget(UObject& Asset);

	/** A node of the class without pins; each property is set from its text form. */
	UEdGraphNode& AddBareNode(const TCHAR* ClassName, const TCHAR* Property = nullptr, const TCHAR* Text = nullptr);

	/** Puts a node into the event graph as the editor does, its members set by Prepare before it makes its pins. */
	template <typename NodeType, typename PrepareType>
	NodeType& Place(PrepareType Prepare)
	{
		FGraphNodeCreator<NodeType> Creator(*EventGraph);
		NodeType* const Node = Creator.CreateNode();
		Prepare(*Node);
		Creator.Finalize();
		return *Node;
	}

	template <typename NodeType>
	NodeType& Place()
	{
		return Place<NodeType>([](NodeType&) {});
	}

	UBlueprint* Blueprint = nullptr;
	UEdGraph* EventGraph = nullptr;
	FVexelBlueprintMapping Mapping;
};

inline std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}
