#pragma once

#include "EditorFixture.h"

class UBlueprint;
class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;

/** A test on the sample project's packages, which lie in the editor's temporary project. */
class FLighthouseTest : public FEditorTest
{
protected:
	virtual void SetUp() override;

	/** The Blueprint of that name at the root of the project; a test failure and null when it does not load. */
	static UBlueprint* Load(const FString& Name);
	static UEdGraph* FindGraph(const UBlueprint& Blueprint, const FString& Name);
	/** The event graph's node that is titled so, or null. */
	static UEdGraphNode* FindNode(const UEdGraph& Graph, const FString& Title);
	/** The only node behind an execution output; null when there is none. */
	static UEdGraphNode* Follow(const UEdGraphNode* Node, const TCHAR* Output);
	static FString GetTitle(const UEdGraphNode* Node);
	/** The text that a copy of every node of every graph puts on the clipboard. */
	static FString Export(const UBlueprint& Blueprint);
};

inline const TCHAR* const LighthouseBlueprints[] = {TEXT("BP_Door"), TEXT("BP_Enemy"), TEXT("BP_Player")};
