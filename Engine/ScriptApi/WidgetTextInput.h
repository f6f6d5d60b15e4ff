// Package: /Script/UMG
#pragma once

#include "Widget.h"
#include "WidgetText.h"
#include "WidgetTextInput.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextChangedEvent, const FText&, Text);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextBoxChangedEvent, const FText&, Text);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextBoxCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnMultiLineEditableTextBoxChangedEvent, const FText&, Text);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(
	FOnMultiLineEditableTextBoxCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);

/** A line of text to type. */
UCLASS()
class UMG_API UEditableText : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextChangedEvent OnTextChanged;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnEditableTextCommittedEvent OnTextCommitted;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FText HintText;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool IsReadOnly = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool IsPassword = false;

	/** The text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);

	/** Sets the is password. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsPassword(bool InbIsPassword);

	/** The hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetHintText() const;

	/** Sets the hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetHintText(FText InHintText);

	/** Sets the minimum desired width. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetMinimumDesiredWidth(float InMinDesiredWidth);

	/** Sets the is read only. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsReadOnly(bool InbIsReadyOnly);

	/** Sets the keyboard type. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetKeyboardType(EVirtualKeyboardType::Type Type);

	/** Sets the justification. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetJustification(ETextJustify::Type InJustification);

	/** Sets the font. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetFont(FSlateFontInfo InFontInfo);

	/** The font. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FSlateFontInfo GetFont() const;
};

/** A box with a line of text to type. */
UCLASS()
class UMG_API UEditableTextBox : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "TextBox|Event")
	FOnEditableTextBoxChangedEvent OnTextChanged;

	UPROPERTY(BlueprintAssignable, Category = "TextBox|Event")
	FOnEditableTextBoxCommittedEvent OnTextCommitted;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FText HintText;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool IsReadOnly = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	bool IsPassword = false;

	/** The text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);

	/** The hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetHintText() const;

	/** Sets the hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetHintText(FText InText);

	/** Sets the foreground color. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetForegroundColor(FLinearColor color);

	/** Sets the error. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetError(FText InError);

	/** Sets the is read only. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsReadOnly(bool bReadOnly);

	/** Sets the is password. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsPassword(bool bIsPassword);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	void ClearError();

	/** True if it has error. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	bool HasError() const;

	/** Sets the justification. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetJustification(ETextJustify::Type InJustification);
};

/** A box with lines of text to type. */
UCLASS()
class UMG_API UMultiLineEditableTextBox : public UTextLayoutWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMultiLineEditableTextBoxChangedEvent OnTextChanged;

	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMultiLineEditableTextBoxCommittedEvent OnTextCommitted;

	/** The text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const;

	/** Sets the text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetText(FText InText);

	/** The hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetHintText() const;

	/** Sets the hint text. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetHintText(FText InHintText);

	/** Sets the error. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetError(FText InError);

	/** Sets the is read only. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetIsReadOnly(bool bReadOnly);

	/** Sets the foreground color. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	void SetForegroundColor(FLinearColor color);
};
