#include "BlueprintUndo.h"

#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/UserDefinedEnum.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_Event.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/EnumEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/UObjectHash.h"

namespace
{
/** The Blueprint that the object is a part of; a component's template and the construction script are below its class. */
UBlueprint* FindBlueprint(UObject* Object)
{
	if (UBlueprint* const Own = Cast<UBlueprint>(Object))
	{
		return Own;
	}
	if (UBlueprint* const Outer = Object->GetTypedOuter<UBlueprint>())
	{
		return Outer;
	}
	return UBlueprint::GetBlueprintFromClass(Object->GetTypedOuter<UClass>());
}

/** Whether the Blueprint's class is declared by the object among others. */
bool DeclaresMembers(const UObject& Object)
{
	if (Object.IsA<UEdGraphNode>())
	{
		return Object.IsA<UK2Node_EditablePinBase>() || Object.IsA<UK2Node_Event>();
	}
	// A graph that gained or lost nodes may have gained or lost an event or a result.
	return !Object.HasAnyFlags(RF_ClassDefaultObject);
}

/** A compile may have put overrides of components aside that are there again, those of the Blueprint and of Blueprints below it. */
void ReclaimOverrides(const UBlueprint& Blueprint)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(Blueprint.GeneratedClass.Get(), Classes, true);
	Classes.Add(Blueprint.GeneratedClass.Get());
	for (UClass* const Class : Classes)
	{
		UBlueprintGeneratedClass* const Generated = Cast<UBlueprintGeneratedClass>(Class);
		UInheritableComponentHandler* const Handler = Generated ? Generated->GetInheritableComponentHandler() : nullptr;
		if (Handler)
		{
			Handler->ReclaimTemplates();
		}
	}
}
}

bool FBlueprintUndo::MatchesContext(
	const FTransactionContext& InContext, const TArray<TPair<UObject*, FTransactionObjectEvent>>& TransactionObjectContexts) const
{
	Touched.Empty();
	Enums.Empty();
	for (const TPair<UObject*, FTransactionObjectEvent>& Change : TransactionObjectContexts)
	{
		if (UUserDefinedEnum* const Enum = Cast<UUserDefinedEnum>(Change.Key))
		{
			Enums.Add(Enum);
			continue;
		}
		UBlueprint* const Blueprint = FindBlueprint(Change.Key);
		if (Blueprint && IsValid(Blueprint))
		{
			bool& bMembersChanged = Touched.FindOrAdd(Blueprint, false);
			bMembersChanged = bMembersChanged || DeclaresMembers(*Change.Key);
		}
	}
	return Touched.Num() > 0 || Enums.Num() > 0;
}

void FBlueprintUndo::Refresh()
{
	const TMap<UBlueprint*, bool> Blueprints = MoveTemp(Touched);
	Touched.Empty();
	for (UUserDefinedEnum* const Enum : Enums)
	{
		FEnumEditorUtils::UpdateAfterUndo(Enum);
	}
	Enums.Empty();
	for (const TPair<UBlueprint*, bool>& Blueprint : Blueprints)
	{
		if (Blueprint.Value && !Blueprint.Key->bBeingCompiled)
		{
			// The skeleton alone: nodes are as the undo put them.
			FKismetEditorUtilities::GenerateBlueprintSkeleton(Blueprint.Key, true);
		}
		FBlueprintEditorUtils::MarkBlueprintAsModified(Blueprint.Key);
		ReclaimOverrides(*Blueprint.Key);
	}
}
