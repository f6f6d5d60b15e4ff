#pragma once

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

#include "BlueprintGeneratedClass.generated.h"

class UActorComponent;
class UInheritableComponentHandler;
class USimpleConstructionScript;
class UTimelineTemplate;

/** The class that a Blueprint makes. Its properties, functions and memory layout are built at run time. */
UCLASS()
class ENGINE_API UBlueprintGeneratedClass : public UClass
{
	GENERATED_BODY()

public:
	UBlueprintGeneratedClass(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	int32 NumReplicatedProperties = 0;

	UPROPERTY()
	TArray<TObjectPtr<UActorComponent>> ComponentTemplates;

	UPROPERTY()
	TArray<TObjectPtr<UTimelineTemplate>> Timelines;

	UPROPERTY()
	TArray<FBPComponentClassOverride> ComponentClassOverrides;

	UPROPERTY()
	TObjectPtr<USimpleConstructionScript> SimpleConstructionScript = nullptr;

	UPROPERTY()
	TObjectPtr<UInheritableComponentHandler> InheritableComponentHandler = nullptr;

	UPROPERTY()
	TObjectPtr<UFunction> UberGraphFunction = nullptr;

	/** Ids of the Blueprint's variables, so that saved values follow a rename. */
	UPROPERTY()
	TMap<FName, FGuid> PropertyGuids;

	UActorComponent* FindComponentTemplateByName(const FName& TemplateName) const;
	UTimelineTemplate* FindTimelineTemplateByVariableName(const FName& TimelineName) const;
	/** Null where the class overrides nothing and none is to be made. Have it made by the Blueprint, which remembers that for undo. */
	UInheritableComponentHandler* GetInheritableComponentHandler(const bool bCreateIfNecessary = false);
	/** The nearest parent whose class a Blueprint made, and so on up; answers whether none of them has errors. */
	static bool GetGeneratedClassesHierarchy(const UClass* InClass, TArray<const UBlueprintGeneratedClass*>& OutBPGClasses);

	// UObject
	virtual void GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const override;
	using UObject::GetAssetRegistryTags;

	// UStruct
	virtual bool ArePropertyGuidsAvailable() const override;
	virtual FName FindPropertyNameFromGuid(const FGuid& PropertyGuid) const override;
	virtual FGuid FindPropertyGuidFromName(const FName InName) const override;

	// UClass
	/** The class of the last compile: of a skeleton class too. */
	virtual UClass* GetAuthoritativeClass() override;
	/** What a component that this class or a parent of its adds is made from: the nearest class's own template for it. */
	virtual UObject* FindArchetype(const UClass* ArchetypeClass, const FName ArchetypeName) const override;
};
