#pragma once

#include "CoreMinimal.h"
#include "NodeTextImportResult.h"
#include "ObjectText.h"

class FFeedbackContext;
class UEdGraph;
class UEdGraphNode;

/** Makes the nodes of a text in a graph of their own, then moves them into the destination. */
class FNodeTextImporter
{
public:
	FNodeTextImporter(UEdGraph& InDestination, FNodeTextImportResult& InResult);

	void Import(const FString& Text);

	/** The node class that a text names, or null with the reason. */
	static UClass* FindNodeClass(const UEdGraph& Destination, const FString& ClassName, FString& OutReason);

private:
	struct FPendingNode
	{
		const FObjectText* Text;
		UEdGraphNode* Node;
	};

	void CreateNode(const FObjectText& Text);
	void CreateInnerObjects(UObject& Owner, const FObjectText& Text);
	void ImportInnerObjects(UObject& Owner, const FObjectText& Text);
	void ImportObject(UObject& Object, const FObjectText& Text);
	void ImportProperty(UObject& Object, const FObjectText& Text, const FObjectTextLine& Line);
	/** Reads the references of texts from when pins were objects. False when the property is not one of them. */
	bool ImportLegacyPinReference(UObject& Object, const FString& Key, const FString& Value);
	void FinishNodes();
	void MakeLinksMutual();
	void ReplaceRefusedNodes();
	void MakeNodeGuidsUnique();

	UEdGraph& Destination;
	UEdGraph* Staging = nullptr;
	FNodeTextImportResult& Result;
	FNodeTextIssues Skipped;
	FNodeTextIssues Warnings;
	TArray<FPendingNode> Pending;
};
