#include "EdGraphUtilities.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "NodeText/NodeTextExporter.h"
#include "NodeText/NodeTextImporter.h"
#include "NodeText/ObjectText.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogEdGraphUtilities, Log, All);

void FEdGraphUtilities::ExportNodesToText(TSet<UObject*> NodesToExport, FString& ExportedText)
{
	ExportedText.Empty();
	FNodeTextExporter Exporter(ExportedText);
	for (UObject* const Object : NodesToExport)
	{
		if (Object)
		{
			Exporter.Export(*Object);
		}
	}
}

FNodeTextImportResult FEdGraphUtilities::ImportNodesFromTextWithResult(UEdGraph* DestinationGraph, const FString& TextToImport)
{
	check(DestinationGraph);
	FNodeTextImportResult Result;
	FNodeTextImporter(*DestinationGraph, Result).Import(TextToImport);
	return Result;
}

void FEdGraphUtilities::ImportNodesFromText(UEdGraph* DestinationGraph, const FString& TextToImport, TSet<UEdGraphNode*>& ImportedNodeSet)
{
	const FNodeTextImportResult Result = ImportNodesFromTextWithResult(DestinationGraph, TextToImport);
	for (UEdGraphNode* const Node : Result.Nodes)
	{
		ImportedNodeSet.Add(Node);
	}
	if (!Result.IsOk())
	{
		UE_LOG(LogEdGraphUtilities, Warning, TEXT("%s"), *Result.Error);
	}
	for (const FNodeTextIssue& Issue : Result.SkippedNodes)
	{
		UE_LOG(LogEdGraphUtilities, Warning, TEXT("%s"), *Issue.ToString());
	}
	for (const FNodeTextIssue& Issue : Result.Warnings)
	{
		UE_LOG(LogEdGraphUtilities, Warning, TEXT("%s"), *Issue.ToString());
	}
}

bool FEdGraphUtilities::CanImportNodesFromText(const UEdGraph* DestinationGraph, const FString& TextToImport)
{
	if (!DestinationGraph || TextToImport.Len() > FNodeTextLimits::MaxTextLength)
	{
		return false;
	}
	TArray<FNodeTextIssue> Ignored;
	FNodeTextIssues Issues(Ignored);
	const TArray<TUniquePtr<FObjectText>> Objects = ParseObjectTexts(TextToImport, Issues);
	return Objects.ContainsByPredicate(
		[DestinationGraph](const TUniquePtr<FObjectText>& Object)
		{
			FString Reason;
			return Object->bClosed && FNodeTextImporter::FindNodeClass(*DestinationGraph, Object->ClassName, Reason) != nullptr;
		});
}

void FEdGraphUtilities::PostProcessPastedNodes(TSet<UEdGraphNode*>& SpawnedNodes)
{
	for (UEdGraphNode* const Node : SpawnedNodes)
	{
		for (UEdGraphPin* const Pin : Node->Pins)
		{
			const TArray<UEdGraphPin*> Links = Pin->LinkedTo;
			for (UEdGraphPin* const Linked : Links)
			{
				// A link that crosses into the rest of the graph was not part of what was copied.
				if (!SpawnedNodes.Contains(Linked->GetOwningNode()))
				{
					Pin->BreakLinkTo(Linked);
				}
			}
		}
	}
	for (UEdGraphNode* const Node : SpawnedNodes)
	{
		Node->PostPasteNode();
		Node->ReconstructNode();
		Node->SetFlags(RF_Transactional);
	}
}

UEdGraph* FEdGraphUtilities::CloneGraph(UEdGraph* InSource, UObject* NewOuter)
{
	UObject* const Outer = NewOuter ? NewOuter : GetTransientPackageAsObject();
	UEdGraph* const Clone = DuplicateObject<UEdGraph>(
		InSource, Outer, MakeUniqueObjectName(Outer, InSource->GetClass(), InSource->GetFName()));
	UEdGraphPin::ResolveAllPinReferences();
	return Clone;
}

void FEdGraphUtilities::RenameGraphToNameOrCloseToName(UEdGraph* Graph, const FString& DesiredName)
{
	const FName Wanted(*DesiredName);
	const UObject* const Existing = StaticFindObjectFast(nullptr, Graph->GetOuter(), Wanted);
	const FName Name = !Existing || Existing == Graph ? Wanted : MakeUniqueObjectName(Graph->GetOuter(), Graph->GetClass(), Wanted);
	Graph->Rename(*Name.ToString(), Graph->GetOuter(), REN_DontCreateRedirectors);
}
