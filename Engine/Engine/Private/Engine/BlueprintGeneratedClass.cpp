#include "Engine/BlueprintGeneratedClass.h"

#include "Components/ActorComponent.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"

UBlueprintGeneratedClass::UBlueprintGeneratedClass(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

bool UBlueprintGeneratedClass::ArePropertyGuidsAvailable() const
{
	for (const UBlueprintGeneratedClass* Class = this; Class; Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		if (!Class->PropertyGuids.IsEmpty())
		{
			return true;
		}
	}
	return false;
}

FName UBlueprintGeneratedClass::FindPropertyNameFromGuid(const FGuid& PropertyGuid) const
{
	for (const UBlueprintGeneratedClass* Class = this; Class; Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		if (const FName* const Name = Class->PropertyGuids.FindKey(PropertyGuid))
		{
			return *Name;
		}
	}
	return NAME_None;
}

FGuid UBlueprintGeneratedClass::FindPropertyGuidFromName(const FName InName) const
{
	for (const UBlueprintGeneratedClass* Class = this; Class; Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		if (const FGuid* const Guid = Class->PropertyGuids.Find(InName))
		{
			return *Guid;
		}
	}
	return FGuid();
}

UActorComponent* UBlueprintGeneratedClass::FindComponentTemplateByName(const FName& TemplateName) const
{
	const TObjectPtr<UActorComponent>* const Found = ComponentTemplates.FindByPredicate([&TemplateName](const UActorComponent* Template)
		{ return Template && Template->GetFName() == TemplateName; });
	return Found ? Found->Get() : nullptr;
}

UTimelineTemplate* UBlueprintGeneratedClass::FindTimelineTemplateByVariableName(const FName& TimelineName) const
{
	const TObjectPtr<UTimelineTemplate>* const Found = Timelines.FindByPredicate([&TimelineName](const UTimelineTemplate* Timeline)
		{ return Timeline && Timeline->GetVariableName() == TimelineName; });
	return Found ? Found->Get() : nullptr;
}

bool UBlueprintGeneratedClass::GetGeneratedClassesHierarchy(const UClass* InClass, TArray<const UBlueprintGeneratedClass*>& OutBPGClasses)
{
	OutBPGClasses.Empty();
	bool bNoErrors = true;
	for (const UBlueprintGeneratedClass* Class = Cast<UBlueprintGeneratedClass>(InClass); Class;
		 Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		OutBPGClasses.Add(Class);
		const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
		bNoErrors = bNoErrors && (!Blueprint || Blueprint->Status != BS_Error);
	}
	return bNoErrors;
}

namespace
{
/** Reads an object whose package is being loaded and has not come to it. */
void Preload(UObject* Object)
{
	FLinkerLoad* const Linker = Object && Object->HasAnyFlags(RF_NeedLoad) ? Object->GetPackage()->GetLinker() : nullptr;
	if (Linker)
	{
		Linker->Preload(Object);
	}
}

/** Has the script's nodes read, which have the names of the components. */
void PreloadNodes(USimpleConstructionScript* Script)
{
	if (!Script)
	{
		return;
	}
	Preload(Script);
	for (USCS_Node* const Node : Script->GetAllNodes())
	{
		Preload(Node);
	}
}
}

UObject* UBlueprintGeneratedClass::FindArchetype(const UClass* ArchetypeClass, const FName ArchetypeName) const
{
	// A template bears its variable's name with a suffix, a component of an actor the bare name.
	FString VariableName = ArchetypeName.ToString();
	VariableName.RemoveFromEnd(USCS_Node::ComponentTemplateNameSuffix, ESearchCase::CaseSensitive);
	VariableName.RemoveFromStart(UInheritableComponentHandler::SCSDefaultSceneRootOverrideNamePrefix, ESearchCase::CaseSensitive);
	for (const UBlueprintGeneratedClass* Owner = this; Owner; Owner = Cast<UBlueprintGeneratedClass>(Owner->GetSuperClass()))
	{
		PreloadNodes(Owner->SimpleConstructionScript);
		const USCS_Node* const Node =
			Owner->SimpleConstructionScript ? Owner->SimpleConstructionScript->FindSCSNode(FName(*VariableName)) : nullptr;
		UActorComponent* const Template = Node
			? Node->GetActualComponentTemplate(const_cast<UBlueprintGeneratedClass*>(this))
			: Owner->FindComponentTemplateByName(ArchetypeName);
		if (Template && Template->IsA(ArchetypeClass))
		{
			return Template;
		}
	}
	return nullptr;
}

UInheritableComponentHandler* UBlueprintGeneratedClass::GetInheritableComponentHandler(const bool bCreateIfNecessary)
{
	if (!InheritableComponentHandler && bCreateIfNecessary)
	{
		InheritableComponentHandler = NewObject<UInheritableComponentHandler>(this, TEXT("InheritableComponentHandler"), RF_Transactional);
	}
	return InheritableComponentHandler;
}

UClass* UBlueprintGeneratedClass::GetAuthoritativeClass()
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(this);
	return Blueprint && Blueprint->GeneratedClass ? Blueprint->GeneratedClass.Get() : this;
}
