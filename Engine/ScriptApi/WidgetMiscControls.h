// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetPanels.h"
#include "WidgetMiscControls.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnSpinBoxValueChangedEvent, float, InValue);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnSpinBoxValueCommittedEvent, float, InValue, ETextCommit::Type, CommitMethod);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnSpinBoxBeginSliderMovement);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnMenuOpenChangedEvent, bool, bIsOpen);

/** A number to type or drag. */
UCLASS()
class UMG_API USpinBox : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "SpinBox|Event")
	FOnSpinBoxValueChangedEvent OnValueChanged;

	UPROPERTY(BlueprintAssignable, Category = "SpinBox|Event")
	FOnSpinBoxValueCommittedEvent OnValueCommitted;

	UPROPERTY(BlueprintAssignable, Category = "SpinBox|Event")
	FOnSpinBoxBeginSliderMovement OnBeginSliderMovement;

	UPROPERTY(BlueprintAssignable, Category = "SpinBox|Event")
	FOnSpinBoxValueChangedEvent OnEndSliderMovement;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	float Value = 0.f;

	/** The value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetValue() const;

	/** Sets the value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetValue(float NewValue);

	/** The min value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetMinValue() const;

	/** Sets the min value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMinValue(float NewValue);

	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void ClearMinValue();

	/** The max value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetMaxValue() const;

	/** Sets the max value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMaxValue(float NewValue);

	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void ClearMaxValue();

	/** The min slider value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetMinSliderValue() const;

	/** Sets the min slider value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMinSliderValue(float NewValue);

	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void ClearMinSliderValue();

	/** The max slider value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetMaxSliderValue() const;

	/** Sets the max slider value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMaxSliderValue(float NewValue);

	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void ClearMaxSliderValue();

	/** The min fractional digits. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	int32 GetMinFractionalDigits() const;

	/** Sets the min fractional digits. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMinFractionalDigits(int32 NewValue);

	/** The max fractional digits. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	int32 GetMaxFractionalDigits() const;

	/** Sets the max fractional digits. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMaxFractionalDigits(int32 NewValue);

	/** The delta. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetDelta() const;

	/** Sets the delta. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetDelta(float NewValue);
};

/** Empty place. */
// Initially: bIsVariable = false
UCLASS()
class UMG_API USpacer : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FVector2D Size;

	/** Sets the size. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetSize(FVector2D InSize);
};

/** Pieces that pulse while something is waited for. */
UCLASS()
class UMG_API UThrobber : public UWidget
{
	GENERATED_BODY()

public:
	/** Sets the number of pieces. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetNumberOfPieces(int32 InNumberOfPieces);

	/** Sets the animate horizontally. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAnimateHorizontally(bool bInAnimateHorizontally);

	/** Sets the animate vertically. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAnimateVertically(bool bInAnimateVertically);

	/** Sets the animate opacity. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAnimateOpacity(bool bInAnimateOpacity);
};

/** Pieces that turn while something is waited for. */
UCLASS()
class UMG_API UCircularThrobber : public UWidget
{
	GENERATED_BODY()

public:
	/** Sets the number of pieces. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetNumberOfPieces(int32 InNumberOfPieces);

	/** Sets the period. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetPeriod(float InPeriod);

	/** Sets the radius. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetRadius(float InRadius);
};

/** A place where a menu opens. */
UCLASS()
class UMG_API UMenuAnchor : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "MenuAnchor|Event")
	FOnMenuOpenChangedEvent OnMenuOpenChanged;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Menu Anchor")
	TSubclassOf<UUserWidget> MenuClass;

	/** Sets the placement. */
	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	void SetPlacement(TEnumAsByte<EMenuPlacement> InPlacement);

	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	void FitInWindow(bool bFit);

	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	void ToggleOpen(bool bFocusOnOpen);

	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	void Open(bool bFocusMenu);

	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	void Close();

	/** True if it is open. */
	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	bool IsOpen() const;

	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	bool ShouldOpenDueToClick() const;

	/** The menu position. */
	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	FVector2D GetMenuPosition() const;

	/** True if it has open sub menus. */
	UFUNCTION(BlueprintCallable, Category = "Menu Anchor")
	bool HasOpenSubMenus() const;
};
