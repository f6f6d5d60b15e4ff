#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "BlueprintCore.generated.h"

/** What every kind of Blueprint has: the classes that it makes. */
UCLASS()
class ENGINE_API UBlueprintCore : public UObject
{
	GENERATED_BODY()

public:
	UBlueprintCore(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Class with the signatures alone, rebuilt at each structural change; what the editor asks for members. */
	UPROPERTY(NonTransactional, Transient)
	TSubclassOf<UObject> SkeletonGeneratedClass;

	/** Class of the last compile. */
	UPROPERTY(NonTransactional)
	TSubclassOf<UObject> GeneratedClass;

	UPROPERTY()
	bool bLegacyNeedToPurgeSkelRefs;

private:
	UPROPERTY()
	FGuid BlueprintGuid;

public:
	void GenerateNewGuid() { BlueprintGuid = FGuid::NewGuid(); }
	FGuid GetBlueprintGuid() const { return BlueprintGuid; }
	/** The same id for the same Blueprint path, for packages older than the id. */
	void GenerateDeterministicGuid();

	virtual void Serialize(FArchive& Ar) override;
};
