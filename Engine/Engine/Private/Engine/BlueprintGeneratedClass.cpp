#include "Engine/BlueprintGeneratedClass.h"

#include "Components/ActorComponent.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"

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

UObject* UBlueprintGeneratedClass::FindArchetype(const UClass* ArchetypeClass, const FName ArchetypeName) const
{
	// A template bears its variable's name with a suffix, a component of an actor the bare name.
	FString VariableName = ArchetypeName.ToString();
	VariableName.RemoveFromEnd(USCS_Node::ComponentTemplateNameSuffix, ESearchCase::CaseSensitive);
	for (const UBlueprintGeneratedClass* Owner = this; Owner; Owner = Cast<UBlueprintGeneratedClass>(Owner->GetSuperClass()))
	{
		const USCS_Node* const Node =
			Owner->SimpleConstructionScript ? Owner->SimpleConstructionScript->FindSCSNode(FName(*VariableName)) : nullptr;
		UActorComponent* const Template = Node ? FindActualTemplate(*Node, *Owner) : Owner->FindComponentTemplateByName(ArchetypeName);
		if (Template && Template->IsA(ArchetypeClass))
		{
			return Template;
		}
	}
	return nullptr;
}

UActorComponent* UBlueprintGeneratedClass::FindActualTemplate(const USCS_Node& Node, const UBlueprintGeneratedClass& Owner) const
{
	FComponentKey Key;
	Key.OwnerClass = const_cast<UBlueprintGeneratedClass*>(&Owner);
	Key.SCSVariableName = Node.GetVariableName();
	Key.AssociatedGuid = Node.VariableGuid;
	for (const UBlueprintGeneratedClass* Class = this; Class && Class != &Owner;
		 Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		UActorComponent* const Override =
			Class->InheritableComponentHandler ? Class->InheritableComponentHandler->GetOverridenComponentTemplate(Key) : nullptr;
		if (Override)
		{
			return Override;
		}
	}
	return Node.ComponentTemplate;
}

bool FComponentKey::Match(const FComponentKey& OtherKey) const
{
	const bool bSameGuid = AssociatedGuid.IsValid() && OtherKey.AssociatedGuid.IsValid();
	return OwnerClass == OtherKey.OwnerClass &&
		(bSameGuid ? AssociatedGuid == OtherKey.AssociatedGuid : SCSVariableName == OtherKey.SCSVariableName);
}

UActorComponent* UInheritableComponentHandler::GetOverridenComponentTemplate(const FComponentKey& InKey) const
{
	const FComponentOverrideRecord* const Found = Records.FindByPredicate([&InKey](const FComponentOverrideRecord& Record)
		{ return Record.ComponentKey.Match(InKey); });
	return Found ? Found->ComponentTemplate.Get() : nullptr;
}

UClass* UBlueprintGeneratedClass::GetAuthoritativeClass()
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(this);
	return Blueprint && Blueprint->GeneratedClass ? Blueprint->GeneratedClass.Get() : this;
}
