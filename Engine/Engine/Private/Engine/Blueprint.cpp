#include "Engine/Blueprint.h"

#include "EdGraph/EdGraph.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "Serialization/Archive.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/UObjectGlobals.h"

namespace
{
void AddGraphs(const TArray<TObjectPtr<UEdGraph>>& From, TArray<UEdGraph*>& Graphs)
{
	for (UEdGraph* const Graph : From)
	{
		if (Graph && !Graphs.Contains(Graph))
		{
			Graphs.Add(Graph);
			Graph->GetAllChildrenGraphs(Graphs);
		}
	}
}

/** Calls Visit with the class's Blueprint and its parents' until it answers true. */
bool VisitBlueprints(const UClass* InClass, TFunctionRef<bool(const UBlueprint&)> Visit)
{
	TArray<UBlueprint*> Blueprints;
	UBlueprint::GetBlueprintHierarchyFromClass(InClass, Blueprints);
	for (const UBlueprint* const Blueprint : Blueprints)
	{
		if (Visit(*Blueprint))
		{
			return true;
		}
	}
	return false;
}
}

void FEditedDocumentInfo::PostSerialize(const FArchive& Ar)
{
	if (Ar.IsLoading() && EditedObject_DEPRECATED)
	{
		EditedObjectPath = FSoftObjectPath(EditedObject_DEPRECATED);
		EditedObject_DEPRECATED = nullptr;
	}
}

UBlueprintCore::UBlueprintCore(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bLegacyNeedToPurgeSkelRefs(true)
{
}

void UBlueprintCore::GenerateDeterministicGuid()
{
	BlueprintGuid = FGuid::NewDeterministicGuid(GetPathName());
}

void UBlueprintCore::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar.UsingCustomVersion(FFrameworkObjectVersion::GUID);
	const bool bIsPackage = Ar.IsLoading() || Ar.IsPersistent();
	if (bIsPackage && Ar.CustomVer(FFrameworkObjectVersion::GUID) < FFrameworkObjectVersion::BlueprintGeneratedClassIsAlwaysAuthoritative)
	{
		bool bGeneratedClassIsAuthoritative = true;
		Ar << bGeneratedClassIsAuthoritative;
	}
	if (Ar.IsLoading() && !BlueprintGuid.IsValid())
	{
		GenerateDeterministicGuid();
	}
}

void FBPVariableDescription::SetMetaData(FName Key, FString Value)
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	if (Index == INDEX_NONE)
	{
		MetaDataArray.Add(FBPVariableMetaDataEntry(Key, MoveTemp(Value)));
		return;
	}
	MetaDataArray[Index].DataValue = MoveTemp(Value);
}

const FString& FBPVariableDescription::GetMetaData(FName Key) const
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	check(Index != INDEX_NONE);
	return MetaDataArray[Index].DataValue;
}

int32 FBPVariableDescription::FindMetaDataEntryIndexForKey(FName Key) const
{
	return MetaDataArray.IndexOfByPredicate([Key](const FBPVariableMetaDataEntry& Entry)
		{ return Entry.DataKey == Key; });
}

void FBPVariableDescription::RemoveMetaData(FName Key)
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	if (Index != INDEX_NONE)
	{
		MetaDataArray.RemoveAt(Index);
	}
}

UBlueprint::UBlueprint(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bRecompileOnLoad(true)
	, bHasBeenRegenerated(false)
	, bIsRegeneratingOnLoad(false)
	, bBeingCompiled(false)
	, bQueuedForCompilation(false)
	, bIsNewlyCreated(false)
	, bForceFullEditor(false)
	, bRunConstructionScriptOnDrag(true)
	, bRunConstructionScriptInSequencer(true)
	, bGenerateConstClass(false)
	, bGenerateAbstractClass(false)
	, bDeprecate(false)
	, bDuplicatingReadOnly(false)
{
}

UClass* UBlueprint::GetBlueprintClass() const
{
	return UBlueprintGeneratedClass::StaticClass();
}

bool UBlueprint::SupportsEventGraphs() const
{
	return BlueprintType == BPTYPE_Normal || BlueprintType == BPTYPE_Const || BlueprintType == BPTYPE_LevelScript;
}

bool UBlueprint::ValidateGeneratedClass(const UClass* InClass)
{
	return InClass && InClass->ClassGeneratedBy == this;
}

void UBlueprint::GetAllGraphs(TArray<UEdGraph*>& Graphs) const
{
	AddGraphs(FunctionGraphs, Graphs);
	AddGraphs(MacroGraphs, Graphs);
	AddGraphs(UbergraphPages, Graphs);
	AddGraphs(DelegateSignatureGraphs, Graphs);
	for (const FBPInterfaceDescription& Interface : ImplementedInterfaces)
	{
		AddGraphs(Interface.Graphs, Graphs);
	}
}

UEdGraph* UBlueprint::GetDelegateSignatureGraphByName(FName Name) const
{
	const TObjectPtr<UEdGraph>* const Found = DelegateSignatureGraphs.FindByPredicate([Name](const UEdGraph* Graph)
		{ return Graph && Graph->GetFName() == Name; });
	return Found ? Found->Get() : nullptr;
}

UBlueprint* UBlueprint::GetBlueprintFromClass(const UClass* InClass)
{
	return InClass ? Cast<UBlueprint>(InClass->ClassGeneratedBy.Get()) : nullptr;
}

bool UBlueprint::GetBlueprintHierarchyFromClass(const UClass* InClass, TArray<UBlueprint*>& OutBlueprintParents)
{
	OutBlueprintParents.Empty();
	bool bNoErrors = true;
	for (const UClass* Class = InClass; UBlueprint* const Blueprint = GetBlueprintFromClass(Class); Class = Class->GetSuperClass())
	{
		OutBlueprintParents.Add(Blueprint);
		bNoErrors = bNoErrors && Blueprint->Status != BS_Error;
	}
	return bNoErrors;
}

FName UBlueprint::GetVariableNameFromClassByGuid(const UClass* InClass, const FGuid VarGuid)
{
	FName Result;
	VisitBlueprints(InClass,
		[&](const UBlueprint& Blueprint)
		{
			const FBPVariableDescription* const Variable = Blueprint.NewVariables.FindByPredicate(
				[&VarGuid](const FBPVariableDescription& Candidate)
				{ return Candidate.VarGuid == VarGuid; });
			if (Variable)
			{
				Result = Variable->VarName;
				return true;
			}
			const USCS_Node* const Node = Blueprint.SimpleConstructionScript
				? Blueprint.SimpleConstructionScript->FindSCSNodeByGuid(VarGuid)
				: nullptr;
			if (Node)
			{
				Result = Node->GetVariableName();
				return true;
			}
			for (const UTimelineTemplate* const Timeline : Blueprint.Timelines)
			{
				if (Timeline && Timeline->TimelineGuid == VarGuid)
				{
					Result = Timeline->GetVariableName();
					return true;
				}
			}
			return false;
		});
	return Result;
}

bool UBlueprint::GetVariableGuidFromClassByFieldName(const UClass* InClass, const FName VarName, FGuid& VarGuid)
{
	return VisitBlueprints(InClass,
		[&](const UBlueprint& Blueprint)
		{
			const FBPVariableDescription* const Variable = Blueprint.NewVariables.FindByPredicate(
				[VarName](const FBPVariableDescription& Candidate)
				{ return Candidate.VarName == VarName; });
			if (Variable)
			{
				VarGuid = Variable->VarGuid;
				return true;
			}
			const USCS_Node* const Node = Blueprint.SimpleConstructionScript ? Blueprint.SimpleConstructionScript->FindSCSNode(VarName)
																			 : nullptr;
			if (Node)
			{
				VarGuid = Node->VariableGuid;
				return true;
			}
			const UTimelineTemplate* const Timeline = Blueprint.FindTimelineTemplateByVariableName(VarName);
			if (Timeline)
			{
				VarGuid = Timeline->TimelineGuid;
				return true;
			}
			return false;
		});
}

FName UBlueprint::GetFunctionNameFromClassByGuid(const UClass* InClass, const FGuid FunctionGuid)
{
	FName Result;
	VisitBlueprints(InClass,
		[&](const UBlueprint& Blueprint)
		{
			TArray<UEdGraph*> Graphs;
			AddGraphs(Blueprint.FunctionGraphs, Graphs);
			AddGraphs(Blueprint.DelegateSignatureGraphs, Graphs);
			UEdGraph* const* const Found = Graphs.FindByPredicate([&FunctionGuid](const UEdGraph* Graph)
				{ return Graph->GraphGuid == FunctionGuid; });
			Result = Found ? (*Found)->GetFName() : FName();
			return Found != nullptr;
		});
	return Result;
}

bool UBlueprint::GetFunctionGuidFromClassByFieldName(const UClass* InClass, const FName FunctionName, FGuid& FunctionGuid)
{
	return VisitBlueprints(InClass,
		[&](const UBlueprint& Blueprint)
		{
			TArray<UEdGraph*> Graphs;
			AddGraphs(Blueprint.FunctionGraphs, Graphs);
			AddGraphs(Blueprint.DelegateSignatureGraphs, Graphs);
			UEdGraph* const* const Found = Graphs.FindByPredicate([FunctionName](const UEdGraph* Graph)
				{ return Graph->GetFName() == FunctionName; });
			if (Found)
			{
				FunctionGuid = (*Found)->GraphGuid;
			}
			return Found != nullptr;
		});
}

UTimelineTemplate* UBlueprint::FindTimelineTemplateByVariableName(const FName& TimelineName)
{
	const int32 Index = FindTimelineIndex(TimelineName);
	return Index == INDEX_NONE ? nullptr : Timelines[Index].Get();
}

const UTimelineTemplate* UBlueprint::FindTimelineTemplateByVariableName(const FName& TimelineName) const
{
	return const_cast<UBlueprint*>(this)->FindTimelineTemplateByVariableName(TimelineName);
}

int32 UBlueprint::FindTimelineIndex(const FName& TimelineName) const
{
	return Timelines.IndexOfByPredicate([&TimelineName](const UTimelineTemplate* Timeline)
		{ return Timeline && Timeline->GetVariableName() == TimelineName; });
}

UInheritableComponentHandler* UBlueprint::GetInheritableComponentHandler(bool bCreateIfNecessary)
{
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(GeneratedClass.Get());
	if (!InheritableComponentHandler && bCreateIfNecessary && Class)
	{
		Modify();
		InheritableComponentHandler = Class->GetInheritableComponentHandler(true);
	}
	return InheritableComponentHandler;
}

FString UBlueprint::GetDesc()
{
	return ParentClass ? FString::Printf(TEXT("Extends %s"), *ParentClass->GetName()) : FString();
}

void UBlueprint::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsLoading())
	{
		const auto RemoveNulls = [](auto& Array)
		{ Array.RemoveAll([](const auto& Object)
			  { return Object == nullptr; }); };
		RemoveNulls(UbergraphPages);
		RemoveNulls(FunctionGraphs);
		RemoveNulls(DelegateSignatureGraphs);
		RemoveNulls(MacroGraphs);
	}
}

void UBlueprint::PostLoad()
{
	Super::PostLoad();
	for (FBPVariableDescription& Variable : NewVariables)
	{
		if (!Variable.VarGuid.IsValid())
		{
			Variable.VarGuid = FGuid::NewGuid();
		}
	}
	Status = BS_Unknown;
}

void UBlueprint::PostEditUndo()
{
	Super::PostEditUndo();
	// Classes are not remembered for undo. What else they have of their Blueprints they take at a compile; a template is used at once.
	if (UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(GeneratedClass.Get()))
	{
		Class->InheritableComponentHandler = InheritableComponentHandler;
	}
}

void UBlueprint::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	if (!bDuplicateForPIE && !bDuplicatingReadOnly)
	{
		GenerateNewGuid();
	}
}
