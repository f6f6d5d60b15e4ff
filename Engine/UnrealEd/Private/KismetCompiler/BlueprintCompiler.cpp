#include "BlueprintCompiler.h"

#include "BlueprintValidator.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Kismet2/BlueprintDependencies.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/BlueprintReinstancer.h"
#include "Kismet2/ClassMembers.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

void FBlueprintCompiler::Compile()
{
	CompileDirtyParents();
	ClearMarks();
	Log.SetSourcePath(Blueprint.GetName());
	Log.BeginEvent(TEXT("Compile"));
	const FClassMembers MembersBefore = FClassMembers::Of(Blueprint.GeneratedClass.Get());
	const UClass* const ParentBefore = Blueprint.GeneratedClass ? Blueprint.GeneratedClass->GetSuperClass() : nullptr;
	Blueprint.bBeingCompiled = true;
	CheckAndBuild();
	Blueprint.bBeingCompiled = false;
	Blueprint.bHasBeenRegenerated = true;
	FBlueprintDependencies::Get().Forget(Blueprint);
	SetStatus();
	Log.EndEvent();
	Blueprint.BroadcastCompiled();
	Blueprint.BroadcastChanged();
	const UClass* const Class = Blueprint.GeneratedClass.Get();
	const bool bChanged = Class && (Class->GetSuperClass() != ParentBefore || !FClassMembers::Of(Class).IsSameAs(MembersBefore));
	if (bChanged && !Blueprint.bIsNewlyCreated)
	{
		CompileDependents();
	}
}

void FBlueprintCompiler::CompileDirtyParents()
{
	UBlueprint* const Parent = UBlueprint::GetBlueprintFromClass(Blueprint.ParentClass.Get());
	if (Parent && Parent != &Blueprint && Parent->Status == BS_Dirty && !Parent->bBeingCompiled)
	{
		// A ring of parents ends here; the compile proper reports it.
		Blueprint.bBeingCompiled = true;
		FKismetEditorUtilities::CompileBlueprint(Parent);
		Blueprint.bBeingCompiled = false;
	}
}

void FBlueprintCompiler::ClearMarks()
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			if (Node)
			{
				Node->ClearCompilerMessage();
			}
		}
	}
}

void FBlueprintCompiler::CheckAndBuild()
{
	const FBlueprintValidator Validator(Blueprint, Log);
	if (!Validator.ValidateParent())
	{
		return;
	}
	FBlueprintEditorUtils::ConformImplementedInterfaces(&Blueprint);
	// The graphs are checked against the members that the Blueprint has now, and those are the skeleton's.
	TArray<FString> SkeletonErrors;
	FBlueprintCompileReinstancer(Blueprint, *CastChecked<UBlueprintGeneratedClass>(Blueprint.SkeletonGeneratedClass.Get()))
		.Rebuild(SkeletonErrors);
	Validator.Validate();
	TArray<FString> Errors;
	FBlueprintCompileReinstancer(Blueprint, *CastChecked<UBlueprintGeneratedClass>(Blueprint.GeneratedClass.Get())).Rebuild(Errors);
	for (const FString& Error : Errors)
	{
		Log.Error(TEXT("@@"), Error);
	}
}

void FBlueprintCompiler::SetStatus()
{
	Blueprint.Status = Log.NumErrors > 0 ? BS_Error : Log.NumWarnings > 0 ? BS_UpToDateWithWarnings
																		  : BS_UpToDate;
}

void FBlueprintCompiler::CompileDependents()
{
	TArray<UBlueprint*> Dependents;
	FBlueprintEditorUtils::GetDependentBlueprints(&Blueprint, Dependents);
	for (UBlueprint* const Dependent : Dependents)
	{
		if (Dependent->HasAnyFlags(RF_Transient) || !Dependent->GeneratedClass || Dependent->bBeingCompiled)
		{
			continue;
		}
		// An interface's function that came or went changes the asset; what its nodes know of this Blueprint does not.
		FBlueprintEditorUtils::ConformImplementedInterfaces(Dependent);
		const bool bWasDirty = Dependent->GetPackage()->IsDirty();
		FBlueprintEditorUtils::ReconstructAllNodes(Dependent);
		FKismetEditorUtilities::CompileBlueprint(Dependent);
		Dependent->GetPackage()->SetDirtyFlag(bWasDirty);
	}
}
