#include "BlueprintEditorLibrary.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/SimpleConstructionScript.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogBlueprintEditorLib, Log, All);

namespace
{
bool CanReparent(const UBlueprint& Blueprint, const UClass& NewParent)
{
	const bool bIsOwn =
		NewParent.ClassGeneratedBy == &Blueprint || (Blueprint.GeneratedClass && NewParent.IsChildOf(Blueprint.GeneratedClass.Get()));
	const bool bSameKind = NewParent.HasAnyClassFlags(CLASS_Interface) == (Blueprint.BlueprintType == BPTYPE_Interface);
	const bool bKeepsComponents = !Blueprint.SimpleConstructionScript || !FBlueprintEditorUtils::IsActorBased(&Blueprint) ||
		NewParent.IsChildOf(FindObject<UClass>(nullptr, TEXT("/Script/Engine.Actor")));
	return !bIsOwn && bSameKind && bKeepsComponents && !NewParent.HasAnyClassFlags(CLASS_Deprecated | CLASS_NewerVersionExists) &&
		!FKismetEditorUtilities::IsClassABlueprintSkeleton(&NewParent);
}
}

void UBlueprintEditorLibrary::ReparentBlueprint(UBlueprint* Blueprint, UClass* NewParentClass)
{
	if (!Blueprint || !NewParentClass || Blueprint->ParentClass.Get() == NewParentClass)
	{
		return;
	}
	if (!CanReparent(*Blueprint, *NewParentClass))
	{
		UE_LOG(LogBlueprintEditorLib, Warning, TEXT("%s cannot derive from %s"), *Blueprint->GetName(), *NewParentClass->GetName());
		return;
	}
	Blueprint->Modify();
	Blueprint->ParentClass = NewParentClass;
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	FBlueprintEditorUtils::RefreshAllNodes(Blueprint);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	if (Blueprint->SimpleConstructionScript)
	{
		// The new parent may bring a root of its own.
		Blueprint->SimpleConstructionScript->ValidateSceneRootNodes();
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
	}
}

void UBlueprintEditorLibrary::CompileBlueprint(UBlueprint* Blueprint)
{
	if (Blueprint)
	{
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
	}
}

UEdGraph* UBlueprintEditorLibrary::AddFunctionGraph(UBlueprint* Blueprint, const FString& FuncName)
{
	if (!Blueprint || FKismetNameValidator(Blueprint).IsValid(FuncName) != EValidatorResult::Ok)
	{
		return nullptr;
	}
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, FName(*FuncName), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	return Graph;
}

void UBlueprintEditorLibrary::RemoveFunctionGraph(UBlueprint* Blueprint, FName FuncName)
{
	UEdGraph* const Graph = Blueprint ? UEdGraphSchema_K2::GetFunctionGraph(Blueprint, FuncName) : nullptr;
	if (Graph && Graph->bAllowDeletion)
	{
		FBlueprintEditorUtils::RemoveGraph(Blueprint, Graph);
	}
}

void UBlueprintEditorLibrary::RenameGraph(UEdGraph* Graph, const FString& NewNameStr)
{
	if (Graph)
	{
		FBlueprintEditorUtils::RenameGraph(Graph, NewNameStr);
	}
}

UEdGraph* UBlueprintEditorLibrary::FindEventGraph(UBlueprint* Blueprint)
{
	return Blueprint ? FBlueprintEditorUtils::FindEventGraph(Blueprint) : nullptr;
}

UEdGraph* UBlueprintEditorLibrary::FindGraph(UBlueprint* Blueprint, FName GraphName)
{
	TArray<UEdGraph*> Graphs;
	if (Blueprint)
	{
		Blueprint->GetAllGraphs(Graphs);
	}
	UEdGraph* const* const Found = Graphs.FindByPredicate([GraphName](const UEdGraph* Graph)
		{ return Graph->GetFName() == GraphName; });
	return Found ? *Found : nullptr;
}

int32 UBlueprintEditorLibrary::RemoveUnusedVariables(UBlueprint* Blueprint)
{
	TArray<FProperty*> Used;
	TArray<FProperty*> Unused;
	if (Blueprint)
	{
		FBlueprintEditorUtils::GetUsedAndUnusedVariables(Blueprint, Used, Unused);
	}
	TArray<FName> Names;
	for (const FProperty* const Property : Unused)
	{
		Names.Add(Property->GetFName());
	}
	if (Names.Num() > 0)
	{
		FBlueprintEditorUtils::BulkRemoveMemberVariables(Blueprint, Names);
	}
	return Names.Num();
}

UClass* UBlueprintEditorLibrary::GeneratedClass(UBlueprint* BlueprintObj)
{
	return BlueprintObj ? BlueprintObj->GeneratedClass.Get() : nullptr;
}
