#pragma once
#include "Thing.generated.h"
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnUsed, AActor*, User, const FString&, How);
/** A thing. */
UCLASS(Blueprintable, Config=Game, meta=(DisplayName="Thing", ShortTooltip="x"), HideCategories=(A, B))
class GAME_API UThing : public UObject, public IUsable
{
	GENERATED_BODY()
public:
	UThing(const FObjectInitializer& ObjectInitializer);
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category="A|B", meta=(ClampMin=0, ClampMax="10"))
	TMap<FName, TObjectPtr<UThing>> Others;
	UPROPERTY() uint8 bOpen : 1;
	UPROPERTY(ReplicatedUsing=OnRep_X) int32 X[4];
	UFUNCTION(BlueprintCallable, BlueprintPure=false)
	bool Use(UPARAM(ref, DisplayName="the user") TArray<int32>& Users, float Time = 1.5f, FVector At = FVector(1, 2, 3)) const;
	UFUNCTION(BlueprintNativeEvent) void Turn();
	virtual void Turn_Implementation();
#if WITH_EDITORONLY_DATA
	UPROPERTY() FString Note;
#endif
};
