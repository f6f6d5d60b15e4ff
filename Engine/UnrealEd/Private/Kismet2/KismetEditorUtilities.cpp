#include "Kismet2/KismetEditorUtilities.h"

#include "BlueprintReinstancer.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "EditorWindow/EditorWindow.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_Event.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "KismetCompiler/BlueprintCompiler.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
UBlueprintGeneratedClass* CreateClassOf(UBlueprint& Blueprint, UClass* ClassType, const FString& Name, EObjectFlags Flags)
{
	UBlueprintGeneratedClass* const Class = NewObject<UBlueprintGeneratedClass>(Blueprint.GetOutermost(), ClassType, FName(*Name), Flags);
	Class->ClassGeneratedBy = &Blueprint;
	Class->SetSuperStruct(Blueprint.ParentClass.Get());
	return Class;
}

void CreateClasses(UBlueprint& Blueprint, UClass* ClassType)
{
	// Skeletons derive from skeletons: a parent that was loaded and never edited has none yet.
	FKismetEditorUtilities::GenerateBlueprintSkeleton(UBlueprint::GetBlueprintFromClass(Blueprint.ParentClass.Get()));
	if (!Blueprint.GeneratedClass)
	{
		Blueprint.GeneratedClass = CreateClassOf(Blueprint, ClassType, Blueprint.GetName() + TEXT("_C"), RF_Public | RF_Transactional);
	}
	if (!Blueprint.SkeletonGeneratedClass)
	{
		Blueprint.SkeletonGeneratedClass = CreateClassOf(
			Blueprint, ClassType, FString::Printf(TEXT("SKEL_%s_C"), *Blueprint.GetName()), RF_Public | RF_Transient);
	}
}

struct FDefaultEvent
{
	void* Owner = nullptr;
	UClass* Class = nullptr;
	FName Event;
};

/** Events that others registered; those of the engine's own classes are always there. */
TArray<FDefaultEvent>& GetRegisteredEvents()
{
	static TArray<FDefaultEvent> Events;
	return Events;
}

void CreateDefaultEvents(UBlueprint& Blueprint, UEdGraph& Graph)
{
	static const struct
	{
		const TCHAR* Class;
		const TCHAR* Event;
	} OwnEvents[] = {
		{TEXT("/Script/Engine.Actor"), TEXT("ReceiveBeginPlay")},
		{TEXT("/Script/Engine.Actor"), TEXT("ReceiveActorBeginOverlap")},
		{TEXT("/Script/Engine.Actor"), TEXT("ReceiveTick")},
		{TEXT("/Script/Engine.ActorComponent"), TEXT("ReceiveBeginPlay")},
		{TEXT("/Script/Engine.ActorComponent"), TEXT("ReceiveTick")},
		{TEXT("/Script/UMG.UserWidget"), TEXT("PreConstruct")},
		{TEXT("/Script/UMG.UserWidget"), TEXT("Construct")},
		{TEXT("/Script/UMG.UserWidget"), TEXT("Tick")},
	};
	TArray<FDefaultEvent> Events;
	// A level's script starts empty.
	for (const auto& Own : OwnEvents)
	{
		UClass* const Class = Blueprint.BlueprintType == BPTYPE_Normal ? FindObject<UClass>(nullptr, Own.Class) : nullptr;
		Events.Add({nullptr, Class, FName(Own.Event)});
	}
	Events.Append(GetRegisteredEvents());
	int32 PositionY = 0;
	for (const FDefaultEvent& Event : Events)
	{
		if (Event.Class && Blueprint.ParentClass->IsChildOf(Event.Class))
		{
			FKismetEditorUtilities::AddDefaultEventNode(&Blueprint, &Graph, Event.Event, Event.Class, PositionY);
		}
	}
}

/** The graphs that a new Blueprint of its kind starts with. */
void CreateDefaultGraphs(UBlueprint& Blueprint)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	if (Blueprint.SupportsEventGraphs())
	{
		UEdGraph* const EventGraph = FBlueprintEditorUtils::CreateNewGraph(
			&Blueprint, UEdGraphSchema_K2::GN_EventGraph, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		EventGraph->bAllowDeletion = false;
		Blueprint.UbergraphPages.Add(EventGraph);
		Schema->CreateDefaultNodesForGraph(*EventGraph);
		CreateDefaultEvents(Blueprint, *EventGraph);
	}
	const bool bHasConstructionScript = FBlueprintEditorUtils::IsActorBased(&Blueprint) && Blueprint.BlueprintType == BPTYPE_Normal;
	if (bHasConstructionScript)
	{
		UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
			&Blueprint, UEdGraphSchema_K2::FN_UserConstructionScript, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph(&Blueprint, Graph, false, AActor::StaticClass());
		Graph->bAllowDeletion = false;
	}
}

void CreateConstructionScript(UBlueprint& Blueprint)
{
	const bool bWantsComponents = FBlueprintEditorUtils::IsActorBased(&Blueprint) && Blueprint.BlueprintType == BPTYPE_Normal;
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Blueprint.GeneratedClass.Get());
	if (bWantsComponents && Class && !Blueprint.SimpleConstructionScript)
	{
		Blueprint.SimpleConstructionScript = NewObject<USimpleConstructionScript>(Class, NAME_None, RF_Transactional);
		Class->SimpleConstructionScript = Blueprint.SimpleConstructionScript;
		Blueprint.SimpleConstructionScript->ValidateSceneRootNodes();
	}
}
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName,
	EBlueprintType BlueprintType, TSubclassOf<UBlueprint> BlueprintClassType,
	TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName CallingContext)
{
	check(ParentClass && Outer);
	check(!FindObject<UBlueprint>(Outer, *NewBPName.ToString()));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(
		Outer, BlueprintClassType.Get(), NewBPName, RF_Public | RF_Standalone | RF_Transactional);
	Blueprint->Status = BS_BeingCreated;
	Blueprint->BlueprintType = BlueprintType;
	Blueprint->ParentClass = ParentClass;
	Blueprint->BlueprintSystemVersion = 2;
	Blueprint->bIsNewlyCreated = true;
	Blueprint->bLegacyNeedToPurgeSkelRefs = false;
	Blueprint->GenerateNewGuid();
	CreateClasses(*Blueprint, BlueprintGeneratedClassType.Get());
	CreateConstructionScript(*Blueprint);
	CreateDefaultGraphs(*Blueprint);
	CompileBlueprint(Blueprint);
	Blueprint->bIsNewlyCreated = false;
	Blueprint->MarkPackageDirty();
	return Blueprint;
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(
	UClass* ParentClass, UObject* Outer, const FName NewBPName, EBlueprintType BlueprintType, FName CallingContext)
{
	return CreateBlueprint(
		ParentClass, Outer, NewBPName, BlueprintType, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), CallingContext);
}

bool FKismetEditorUtilities::GenerateBlueprintSkeleton(UBlueprint* BlueprintObj, bool bForceRegeneration)
{
	const bool bIsWanted = BlueprintObj && !BlueprintObj->bBeingCompiled && (bForceRegeneration || !BlueprintObj->SkeletonGeneratedClass);
	if (!bIsWanted || !BlueprintObj->ParentClass || FBlueprintCompileReinstancer::FindRingOfParents(*BlueprintObj))
	{
		return false;
	}
	BlueprintObj->bBeingCompiled = true;
	CreateClasses(*BlueprintObj, BlueprintObj->GetBlueprintClass());
	TArray<FString> Errors;
	FBlueprintCompileReinstancer(*BlueprintObj, *CastChecked<UBlueprintGeneratedClass>(BlueprintObj->SkeletonGeneratedClass.Get()))
		.Rebuild(Errors);
	BlueprintObj->bBeingCompiled = false;
	return true;
}

void FKismetEditorUtilities::BringKismetToFocusAttentionOnObject(const UObject* ObjectToFocusOn, bool bRequestRename)
{
	if (!ObjectToFocusOn)
	{
		return;
	}
	const UObject* const Owner = ObjectToFocusOn->IsA<UBlueprint>() ? ObjectToFocusOn : ObjectToFocusOn->GetTypedOuter<UBlueprint>();
	if (Owner)
	{
		GEditor->GetEditorSubsystem<UAssetEditorSubsystem>()->OpenEditorForAsset(const_cast<UObject*>(Owner));
		EditorWindow::Show(ObjectToFocusOn);
	}
}

void FKismetEditorUtilities::CompileBlueprint(
	UBlueprint* BlueprintObj, EBlueprintCompileOptions CompileFlags, FCompilerResultsLog* pResults)
{
	check(BlueprintObj && !BlueprintObj->bBeingCompiled);
	if (BlueprintObj->ParentClass && !FBlueprintCompileReinstancer::FindRingOfParents(*BlueprintObj))
	{
		CreateClasses(*BlueprintObj, BlueprintObj->GetBlueprintClass());
	}
	FCompilerResultsLog OwnLog(false);
	FBlueprintCompiler(*BlueprintObj, pResults ? *pResults : OwnLog).Compile();
}

UK2Node_Event* FKismetEditorUtilities::AddDefaultEventNode(
	UBlueprint* InBlueprint, UEdGraph* InGraph, FName InEventName, UClass* InEventClass, int32& InOutNodePosY)
{
	constexpr int32 DistanceToNext = 208;
	const UFunction* const Function = InEventClass ? InEventClass->FindFunctionByName(InEventName) : nullptr;
	if (!Function || !UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(Function) ||
		FBlueprintEditorUtils::FindOverrideForFunction(InBlueprint, InEventClass, InEventName))
	{
		return nullptr;
	}
	FGraphNodeCreator<UK2Node_Event> Creator(*InGraph);
	UK2Node_Event* const Event = Creator.CreateNode(false);
	Event->EventReference.SetExternalMember(InEventName, Function->GetOwnerClass());
	Event->bOverrideFunction = true;
	Event->NodePosY = InOutNodePosY;
	Creator.Finalize();
	Event->MakeAutomaticallyPlacedGhostNode();
	InOutNodePosY += DistanceToNext;
	return Event;
}

void FKismetEditorUtilities::RegisterAutoGeneratedDefaultEvent(void* InOwner, UClass* InTargetClass, FName InEventName)
{
	GetRegisteredEvents().Add({InOwner, InTargetClass, InEventName});
}

void FKismetEditorUtilities::UnregisterAutoBlueprintNodeCreation(void* InOwner)
{
	GetRegisteredEvents().RemoveAll([InOwner](const FDefaultEvent& Event)
		{ return Event.Owner == InOwner; });
}

const UK2Node_ComponentBoundEvent* FKismetEditorUtilities::FindBoundEventForComponent(
	const UBlueprint* Blueprint, FName EventName, FName PropertyName)
{
	TArray<UK2Node_ComponentBoundEvent*> Events;
	FBlueprintEditorUtils::GetAllNodesOfClass(Blueprint, Events);
	UK2Node_ComponentBoundEvent* const* const Found = Events.FindByPredicate(
		[EventName, PropertyName](const UK2Node_ComponentBoundEvent* Event)
		{ return Event->DelegatePropertyName == EventName && Event->ComponentPropertyName == PropertyName; });
	return Found ? *Found : nullptr;
}

const UK2Node_ComponentBoundEvent* FKismetEditorUtilities::CreateNewBoundEventForClass(
	UClass* Class, FName EventName, UBlueprint* Blueprint, FObjectProperty* ComponentProperty)
{
	UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
	const FMulticastDelegateProperty* const Delegate = Class ? FindFProperty<FMulticastDelegateProperty>(Class, EventName) : nullptr;
	if (!Graph || !Delegate || !ComponentProperty)
	{
		return nullptr;
	}
	if (const UK2Node_ComponentBoundEvent* const Existing = FindBoundEventForComponent(Blueprint, EventName, ComponentProperty->GetFName()))
	{
		return Existing;
	}
	const FVector2D Place = Graph->GetGoodPlaceForNewNode();
	FGraphNodeCreator<UK2Node_ComponentBoundEvent> Creator(*Graph);
	UK2Node_ComponentBoundEvent* const Event = Creator.CreateNode(false);
	Event->InitializeComponentBoundEventParams(ComponentProperty, Delegate);
	Event->NodePosX = static_cast<int32>(Place.X);
	Event->NodePosY = static_cast<int32>(Place.Y);
	Creator.Finalize();
	FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	return Event;
}

bool FKismetEditorUtilities::IsClassABlueprintInterface(const UClass* Class)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	return Class && Class->HasAnyClassFlags(CLASS_Interface) && (!Blueprint || Blueprint->BlueprintType == BPTYPE_Interface);
}

bool FKismetEditorUtilities::IsClassABlueprintImplementableInterface(const UClass* Class)
{
	if (!IsClassABlueprintInterface(Class) || Class->HasAnyClassFlags(CLASS_NewerVersionExists) || IsClassABlueprintSkeleton(Class))
	{
		return false;
	}
	if (UBlueprint::GetBlueprintFromClass(Class))
	{
		return true;
	}
	const FString* const IsBase = Class->FindMetaDataHierarchical(TEXT("IsBlueprintBase"));
	const bool bIsRefused = Class->HasMetaData(TEXT("CannotImplementInterfaceInBlueprint")) ||
		(IsBase && IsBase->Equals(TEXT("false"), ESearchCase::IgnoreCase));
	return !bIsRefused && Class != UInterface::StaticClass();
}

bool FKismetEditorUtilities::CanBlueprintImplementInterface(UBlueprint const* Blueprint, UClass const* Class)
{
	if (!Blueprint || !IsClassABlueprintImplementableInterface(Class))
	{
		return false;
	}
	const bool bHoldsFunctionsAlone = Blueprint->BlueprintType == BPTYPE_Interface || Blueprint->BlueprintType == BPTYPE_FunctionLibrary ||
		Blueprint->BlueprintType == BPTYPE_MacroLibrary;
	TArray<UClass*> Implemented;
	FBlueprintEditorUtils::FindImplementedInterfaces(Blueprint, true, Implemented);
	return !bHoldsFunctionsAlone && !Implemented.Contains(Class);
}

bool FKismetEditorUtilities::CanCreateBlueprintOfClass(const UClass* Class)
{
	if (!Class || Class->HasAnyClassFlags(CLASS_Deprecated | CLASS_NewerVersionExists | CLASS_Interface) ||
		IsClassABlueprintSkeleton(Class))
	{
		return false;
	}
	for (const UClass* Ancestor = Class; Ancestor; Ancestor = Ancestor->GetSuperClass())
	{
		const FString* const Blueprintable = Ancestor->FindMetaData(TEXT("IsBlueprintBase"));
		if (Blueprintable)
		{
			return Blueprintable->Equals(TEXT("true"), ESearchCase::IgnoreCase);
		}
	}
	return false;
}

bool FKismetEditorUtilities::IsClassABlueprintSkeleton(const UClass* Class)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	return Blueprint && Blueprint->SkeletonGeneratedClass.Get() == Class;
}
