#include "Engine/BlueprintGeneratedClass.h"

#include "Components/ActorComponent.h"
#include "Engine/TimelineTemplate.h"

UBlueprintGeneratedClass::UBlueprintGeneratedClass(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
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
	for (const UBlueprintGeneratedClass* Class = Cast<UBlueprintGeneratedClass>(InClass); Class; Class = Cast<UBlueprintGeneratedClass>(Class->GetSuperClass()))
	{
		OutBPGClasses.Add(Class);
		const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
		bNoErrors = bNoErrors && (!Blueprint || Blueprint->Status != BS_Error);
	}
	return bNoErrors;
}

UClass* UBlueprintGeneratedClass::GetAuthoritativeClass()
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(this);
	return Blueprint && Blueprint->GeneratedClass ? Blueprint->GeneratedClass.Get() : this;
}
