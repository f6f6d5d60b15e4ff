#pragma once

#include "Components/SceneComponent.h"
#include "LumTestTypes.h"

#include "LumTestComponent.generated.h"

/** A component with a value of each kind that is written in a way of its own. */
UCLASS()
class ULumLight : public USceneComponent
{
	GENERATED_BODY()

public:
	ULumLight(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())
		: Super(ObjectInitializer)
	{
		Part = ObjectInitializer.CreateDefaultSubobject<ULumPart>(this, TEXT("Part0"));
	}

	UPROPERTY(EditAnywhere)
	double Intensity = 5000.0;

	UPROPERTY(EditAnywhere)
	double Radius = 1000.0;

	UPROPERTY(EditInstanceOnly)
	int32 OfInstances = 0;

	UPROPERTY(EditAnywhere)
	TArray<int32> Steps;

	UPROPERTY(EditAnywhere)
	TSet<FName> Names;

	UPROPERTY(EditAnywhere)
	TMap<FName, int32> Counts;

	UPROPERTY(EditAnywhere)
	TObjectPtr<UObject> Target = nullptr;

	UPROPERTY(EditAnywhere, Instanced)
	TObjectPtr<ULumPart> Part;
};
