// Package: /Script/UMG
#pragma once

#include "CoreMinimal.h"
#include "WidgetAnimation.generated.h"

/** An animation of widgets. */
UCLASS(BlueprintType)
class UMG_API UWidgetAnimation : public UObject
{
	GENERATED_BODY()

public:
	/** The start time. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetStartTime() const;

	/** The end time. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetEndTime() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void BindToAnimationStarted(UUserWidget* Widget, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnbindFromAnimationStarted(UUserWidget* Widget, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnbindAllFromAnimationStarted(UUserWidget* Widget);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void BindToAnimationFinished(UUserWidget* Widget, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnbindFromAnimationFinished(UUserWidget* Widget, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnbindAllFromAnimationFinished(UUserWidget* Widget);
};

/** Plays an animation of widgets. */
UCLASS(Transient, BlueprintType)
class UMG_API UUMGSequencePlayer : public UObject
{
	GENERATED_BODY()

public:
	/** Sets the user tag. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetUserTag(FName InUserTag);

	/** The user tag. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	FName GetUserTag() const;
};
