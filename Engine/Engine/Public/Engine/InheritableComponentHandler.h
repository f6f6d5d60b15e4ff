#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "InheritableComponentHandler.generated.h"

class UActorComponent;

/** Names a component that a parent Blueprint declares. */
USTRUCT()
struct FComponentKey
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UClass> OwnerClass = nullptr;

	UPROPERTY()
	FName SCSVariableName;

	UPROPERTY()
	FGuid AssociatedGuid;

	/** By the id where both have one, since the name may change. */
	bool Match(const FComponentKey& OtherKey) const;
};

/** A Blueprint's own template for an inherited component. */
USTRUCT()
struct FComponentOverrideRecord
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UClass> ComponentClass = nullptr;

	UPROPERTY()
	TObjectPtr<UActorComponent> ComponentTemplate = nullptr;

	UPROPERTY()
	FComponentKey ComponentKey;
};

/** The overrides that a Blueprint makes of its parents' components. */
UCLASS()
class ENGINE_API UInheritableComponentHandler : public UObject
{
	GENERATED_BODY()

public:
	/** Null when the component is not overridden. */
	UActorComponent* GetOverridenComponentTemplate(const FComponentKey& InKey) const;

private:
	UPROPERTY()
	TArray<FComponentOverrideRecord> Records;
};
