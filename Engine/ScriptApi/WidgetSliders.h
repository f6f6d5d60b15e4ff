// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetPanels.h"
#include "WidgetSliders.generated.h"

/** State of a check box. */
UENUM(BlueprintType)
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMouseCaptureBeginEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMouseCaptureEndEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnControllerCaptureBeginEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnControllerCaptureEndEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnFloatValueChangedEvent, float, Value);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnCheckBoxComponentStateChanged, bool, bIsChecked);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnSelectionChangedEvent, FString, SelectedItem, ESelectInfo::Type, SelectionType);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnOpeningEvent);

/** A handle on a bar. */
UCLASS()
class UMG_API USlider : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMouseCaptureBeginEvent OnMouseCaptureBegin;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMouseCaptureEndEvent OnMouseCaptureEnd;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnControllerCaptureBeginEvent OnControllerCaptureBegin;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnControllerCaptureEndEvent OnControllerCaptureEnd;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnFloatValueChangedEvent OnValueChanged;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Value = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float MinValue = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float MaxValue = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSliderStyle WidgetStyle;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<EOrientation> Orientation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor SliderBarColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor SliderHandleColor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool Locked = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float StepSize = 0.01f;

	/** The value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetValue() const;

	/** The normalized value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	float GetNormalizedValue() const;

	/** Sets the value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetValue(float InValue);

	/** Sets the min value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMinValue(float InValue);

	/** Sets the max value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetMaxValue(float InValue);

	/** Sets the indent handle. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetIndentHandle(bool InValue);

	/** Sets the locked. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetLocked(bool InValue);

	/** Sets the step size. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetStepSize(float InValue);

	/** Sets the slider bar color. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetSliderBarColor(FLinearColor InValue);

	/** Sets the slider handle color. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	void SetSliderHandleColor(FLinearColor InValue);
};

/** A box to tick. */
UCLASS()
class UMG_API UCheckBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "CheckBox|Event")
	FOnCheckBoxComponentStateChanged OnCheckStateChanged;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	ECheckBoxState CheckedState;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FCheckBoxStyle WidgetStyle;

	/** True if it is pressed. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsPressed() const;

	/** True if it is checked. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool IsChecked() const;

	/** The checked state. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	ECheckBoxState GetCheckedState() const;

	/** Sets the is checked. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsChecked(bool InIsChecked);

	/** Sets the checked state. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetCheckedState(ECheckBoxState InCheckedState);
};

/** A text chosen from a list. */
UCLASS()
class UMG_API UComboBoxString : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnSelectionChangedEvent OnSelectionChanged;

	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnOpeningEvent OnOpening;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FString SelectedOption;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	TArray<FString> DefaultOptions;

	/** Adds a choice. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void AddOption(const FString& Option);

	/** Takes a choice out. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	bool RemoveOption(const FString& Option);

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 FindOptionIndex(const FString& Option) const;

	/** The option at index. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	FString GetOptionAtIndex(int32 Index) const;

	/** Takes all choices out. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void ClearOptions();

	/** Chooses nothing. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void ClearSelection();

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void RefreshOptions();

	/** Sets the selected option. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void SetSelectedOption(FString Option);

	/** Sets the selected index. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	void SetSelectedIndex(const int32 Index);

	/** The selected option. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	FString GetSelectedOption() const;

	/** The selected index. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 GetSelectedIndex() const;

	/** The option count. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	int32 GetOptionCount() const;

	/** True if it is open. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	bool IsOpen() const;
};
