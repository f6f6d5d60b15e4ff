#include "Kismet2/KismetEditorUtilities.h"

#include "BlueprintReinstancer.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "KismetCompiler/BlueprintCompiler.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

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
	if (!Blueprint.GeneratedClass)
	{
		Blueprint.GeneratedClass = CreateClassOf(Blueprint, ClassType, Blueprint.GetName() + TEXT("_C"), RF_Public | RF_Transactional);
	}
	if (!Blueprint.SkeletonGeneratedClass)
	{
		Blueprint.SkeletonGeneratedClass = CreateClassOf(Blueprint, ClassType, FString::Printf(TEXT("SKEL_%s_C"), *Blueprint.GetName()), RF_Public | RF_Transient);
	}
}

/** The graphs that a new Blueprint of its kind starts with. */
void CreateDefaultGraphs(UBlueprint& Blueprint)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	if (Blueprint.SupportsEventGraphs())
	{
		UEdGraph* const EventGraph = FBlueprintEditorUtils::CreateNewGraph(&Blueprint, UEdGraphSchema_K2::GN_EventGraph, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		EventGraph->bAllowDeletion = false;
		Blueprint.UbergraphPages.Add(EventGraph);
		Schema->CreateDefaultNodesForGraph(*EventGraph);
	}
	const bool bHasConstructionScript = FBlueprintEditorUtils::IsActorBased(&Blueprint) && Blueprint.BlueprintType == BPTYPE_Normal;
	if (bHasConstructionScript)
	{
		UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(&Blueprint, UEdGraphSchema_K2::FN_UserConstructionScript, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		Graph->bAllowDeletion = false;
		FBlueprintEditorUtils::AddFunctionGraph(&Blueprint, Graph, false, AActor::StaticClass());
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
	}
}
}

UBlueprint* FKismetEditorUtilities::CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, EBlueprintType BlueprintType, TSubclassOf<UBlueprint> BlueprintClassType,
	TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType, FName CallingContext)
{
	check(ParentClass && Outer);
	check(!FindObject<UBlueprint>(Outer, *NewBPName.ToString()));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Outer, BlueprintClassType.Get(), NewBPName, RF_Public | RF_Standalone | RF_Transactional);
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

UBlueprint* FKismetEditorUtilities::CreateBlueprint(UClass* ParentClass, UObject* Outer, const FName NewBPName, EBlueprintType BlueprintType, FName CallingContext)
{
	return CreateBlueprint(ParentClass, Outer, NewBPName, BlueprintType, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), CallingContext);
}

bool FKismetEditorUtilities::GenerateBlueprintSkeleton(UBlueprint* BlueprintObj, bool bForceRegeneration)
{
	if (!BlueprintObj || !BlueprintObj->ParentClass || BlueprintObj->bBeingCompiled || (BlueprintObj->SkeletonGeneratedClass && !bForceRegeneration))
	{
		return false;
	}
	BlueprintObj->bBeingCompiled = true;
	CreateClasses(*BlueprintObj, BlueprintObj->GetBlueprintClass());
	TArray<FString> Errors;
	FBlueprintCompileReinstancer(*BlueprintObj, *CastChecked<UBlueprintGeneratedClass>(BlueprintObj->SkeletonGeneratedClass.Get())).Rebuild(Errors);
	BlueprintObj->bBeingCompiled = false;
	return true;
}

void FKismetEditorUtilities::CompileBlueprint(UBlueprint* BlueprintObj, EBlueprintCompileOptions CompileFlags, FCompilerResultsLog* pResults)
{
	check(BlueprintObj && !BlueprintObj->bBeingCompiled);
	if (BlueprintObj->ParentClass)
	{
		CreateClasses(*BlueprintObj, BlueprintObj->GetBlueprintClass());
	}
	FCompilerResultsLog OwnLog(false);
	FBlueprintCompiler(*BlueprintObj, pResults ? *pResults : OwnLog).Compile();
}

bool FKismetEditorUtilities::CanCreateBlueprintOfClass(const UClass* Class)
{
	if (!Class || Class->HasAnyClassFlags(CLASS_Deprecated | CLASS_NewerVersionExists | CLASS_Interface) || IsClassABlueprintSkeleton(Class))
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
