#pragma once

#include "BlueprintText.h"
#include "BlueprintToolFixture.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"

/**
 * Calls of "object_edit" on a Blueprint that declares some of everything and uses it: the member Health and the dispatcher OnHurt, the
 * functions Heal (Amount in, Total out, the local Left) and Plain, the macro Twice (Number in), and the event Hurt (Damage).
 */
class FObjectEditTest : public FBlueprintToolTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Calls the tool with one request. */
	FAnswer Edit(const std::string& Target, const std::string& Operations);
	std::vector<std::string> EditErrors(const std::string& Target, const std::string& Operations);
	/** The whole error of the only operation. */
	std::string EditError(const std::string& Target, const std::string& Operation);

	/** What an undo must restore: of the Blueprint, of the one that uses it, and of the one that derives from it. */
	FString TakeText() const;

	UEdGraph* FindGraph(const TCHAR* Name) const;
	static void Link(UEdGraphNode& From, const TCHAR* FromPin, UEdGraphNode& To, const TCHAR* ToPin);
	template <typename NodeType>
	NodeType* FindNodeOfClass(UEdGraph* Graph) const
	{
		TArray<NodeType*> Nodes;
		Graph->GetNodesOfClass(Nodes);
		return Nodes.IsEmpty() ? nullptr : Nodes[0];
	}

	/** Has an event graph that calls, gets and sets what the Blueprint declares. */
	UBlueprint* User = nullptr;
	UBlueprint* Child = nullptr;

private:
	void Declare();
	void Use();
};
