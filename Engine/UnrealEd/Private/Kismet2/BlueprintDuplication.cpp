#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/LayoutTransfer.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
template <class T>
T* CopyInto(T* Original, UObject* Outer)
{
	return Original ? DuplicateObject<T>(Original, Outer, Original->GetFName()) : nullptr;
}

/** What stands below the class rather than below the Blueprint, and was not copied with it. */
void CopyClassParts(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class)
{
	Blueprint.SimpleConstructionScript = CopyInto<USimpleConstructionScript>(Blueprint.SimpleConstructionScript, &Class);
	if (Blueprint.SimpleConstructionScript)
	{
		for (USCS_Node* const Node : Blueprint.SimpleConstructionScript->GetAllNodes())
		{
			Node->ComponentTemplate = CopyInto<UActorComponent>(Node->ComponentTemplate, &Class);
		}
	}
	for (TObjectPtr<UActorComponent>& Template : Blueprint.ComponentTemplates)
	{
		Template = CopyInto<UActorComponent>(Template, &Class);
	}
	for (TObjectPtr<UTimelineTemplate>& Timeline : Blueprint.Timelines)
	{
		Timeline = CopyInto<UTimelineTemplate>(Timeline, &Class);
	}
	Class.SimpleConstructionScript = Blueprint.SimpleConstructionScript;
	Blueprint.InheritableComponentHandler = CopyInto<UInheritableComponentHandler>(Blueprint.InheritableComponentHandler, &Class);
	Class.InheritableComponentHandler = Blueprint.InheritableComponentHandler;
	if (Blueprint.InheritableComponentHandler)
	{
		Blueprint.InheritableComponentHandler->UpdateOwnerClass(&Class);
	}
}

void ReplaceType(TObjectPtr<UObject>& Type, const UClass* Old, UClass* New)
{
	if (Type == Old)
	{
		Type = New;
	}
}

/** Pins and variables of the original's own class are of the copy's. */
void ReplaceOwnClass(UBlueprint& Blueprint, const UClass* Old, UClass* New)
{
	const auto ReplaceIn = [Old, New](FEdGraphPinType& Type)
	{
		if (Type.PinSubCategoryObject.Get() == Old)
		{
			Type.PinSubCategoryObject = New;
		}
		if (Type.PinValueType.TerminalSubCategoryObject.Get() == Old)
		{
			Type.PinValueType.TerminalSubCategoryObject = New;
		}
		if (Type.PinSubCategoryMemberReference.MemberParent == Old)
		{
			Type.PinSubCategoryMemberReference.MemberParent = New;
		}
	};
	for (FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		ReplaceIn(Variable.VarType);
	}
	TArray<UK2Node*> Nodes;
	FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Nodes);
	for (UK2Node* const Node : Nodes)
	{
		for (UEdGraphPin* const Pin : Node->Pins)
		{
			ReplaceIn(Pin->PinType);
			ReplaceType(Pin->DefaultObject, Old, New);
		}
	}
}

/** With those of the parts that native constructors make. */
void CopyDefaults(UObject& From, UObject& To)
{
	TMap<UObject*, UObject*> Parts;
	UE::CoreUObject::TransferValues(
		From, To,
		[&From](const FProperty& Property)
		{ return From.GetClass()->FindPropertyByName(Property.GetFName()); },
		Parts);
}
}

void FBlueprintEditorUtils::PostDuplicateBlueprint(UBlueprint* Blueprint, bool bDuplicateForPIE)
{
	UClass* const OldClass = Blueprint->GeneratedClass.Get();
	if (bDuplicateForPIE || !OldClass || OldClass->ClassGeneratedBy == Blueprint)
	{
		return;
	}
	UEdGraphPin::ResolveAllPinReferences();
	Blueprint->GeneratedClass = nullptr;
	Blueprint->SkeletonGeneratedClass = nullptr;
	FKismetEditorUtilities::GenerateBlueprintSkeleton(Blueprint, true);
	UBlueprintGeneratedClass* const NewClass = CastChecked<UBlueprintGeneratedClass>(Blueprint->GeneratedClass.Get());
	CopyClassParts(*Blueprint, *NewClass);
	ReplaceOwnClass(*Blueprint, OldClass, NewClass);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	CopyDefaults(*OldClass->GetDefaultObject(), *NewClass->GetDefaultObject());
	RefreshAllNodes(Blueprint);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
}
