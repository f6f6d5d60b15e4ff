// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetTextLibrary.generated.h"

/** How a number is rounded to its last digit. */
UENUM(BlueprintType)
enum ERoundingMode : int
{
	HalfToEven,
	HalfFromZero,
	HalfToZero,
	FromZero,
	ToZero,
	ToNegativeInfinity,
	ToPositiveInfinity
};

/** What an argument of a text pattern is. */
UENUM(BlueprintType)
namespace EFormatArgumentType
{
enum Type : int
{
	Int,
	UInt,
	Float,
	Double,
	Text,
	Gender
};
}

/** Grammatical gender of an argument. */
UENUM(BlueprintType)
enum class ETextGender : uint8
{
	Masculine,
	Feminine,
	Neuter
};

/** An argument of a text pattern, by its name. */
USTRUCT(noexport, BlueprintInternalUseOnly)
struct FFormatArgumentData
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentName")
	FString ArgumentName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	TEnumAsByte<EFormatArgumentType::Type> ArgumentValueType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	FText ArgumentValue;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	int64 ArgumentValueInt = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	float ArgumentValueFloat = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	double ArgumentValueDouble = 0.0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ArgumentValue")
	ETextGender ArgumentValueGender = ETextGender::Masculine;
};

/** Texts that people read, which translation may change. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "TextLibrary"))
class ENGINE_API UKismetTextLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Text of a vector. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Vector)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_VectorToText(FVector InVec);

	/** "true" or "false". */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Boolean)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_BoolToText(bool InBool);

	/** Text of a byte. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Byte)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_ByteToText(uint8 Value);

	/** Text of a name. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Name)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_NameToText(FName InName);

	/** Text that is never translated. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_StringToText(const FString& InString);

	/** What the text reads. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "To String (Text)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_TextToString(const FText& InText);

	/** Name of an object as text. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Object)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_ObjectToText(UObject* InObj);

	/** A number as people write it. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Integer)", AdvancedDisplay = "1", BlueprintAutocast))
	static FText Conv_IntToText(int32 Value, bool bAlwaysSign = false, bool bUseGrouping = true, int32 MinimumIntegralDigits = 1,
		int32 MaximumIntegralDigits = 324);

	/** A number as people write it. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Float)", AdvancedDisplay = "1", BlueprintAutocast))
	static FText Conv_DoubleToText(double Value, TEnumAsByte<ERoundingMode> RoundingMode, bool bAlwaysSign = false,
		bool bUseGrouping = true, int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324, int32 MinimumFractionalDigits = 0,
		int32 MaximumFractionalDigits = 3);

	/** True if the text reads nothing. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static bool TextIsEmpty(const FText& InText);

	/** Lower-case text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText TextToLower(const FText& InText);

	/** Upper-case text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText TextToUpper(const FText& InText);

	/** Text without white space at its ends. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText TextTrimPrecedingAndTrailing(const FText& InText);

	/** True if the texts read the same, letter case included. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "Equal Exactly (Text)", CompactNodeTitle = "==="))
	static bool EqualEqual_TextText(const FText& A, const FText& B);

	/** True if the texts read the same, letter case aside. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "Equal, Case Insensitive (Text)", CompactNodeTitle = "=="))
	static bool EqualEqual_IgnoreCase_TextText(const FText& A, const FText& B);

	/** True if the texts read differently. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "Not Equal Exactly (Text)", CompactNodeTitle = "!=="))
	static bool NotEqual_TextText(const FText& A, const FText& B);

	/** A pattern with its arguments put in. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (BlueprintInternalUseOnly = "true"))
	static FText Format(FText InPattern, TArray<FFormatArgumentData> InArgs);

	/** Text of a vector. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Vector2D)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_Vector2dToText(FVector2D InVec);

	/** Text of a rotation. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Rotator)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_RotatorToText(FRotator InRot);

	/** Text of a transform. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text",
		meta = (DisplayName = "To Text (Transform)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_TransformToText(const FTransform& InTrans);

	/** Text of a colour. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text",
		meta = (DisplayName = "To Text (LinearColor)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_ColorToText(FLinearColor InColor);

	/** A number as people write it. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Integer64)", AdvancedDisplay = "1", BlueprintAutocast))
	static FText Conv_Int64ToText(int64 Value, bool bAlwaysSign = false, bool bUseGrouping = true, int32 MinimumIntegralDigits = 1,
		int32 MaximumIntegralDigits = 324);

	/** An amount of money, given in its smallest unit. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsCurrency"))
	static FText AsCurrencyBase(int32 BaseValue, const FString& CurrencyCode, const FString& CultureCode = FString(TEXT("")));

	/** An amount of money. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text",
		meta = (DisplayName = "AsCurrency (Integer) - DEPRECATED (use AsCurrency)", AdvancedDisplay = "1", DeprecatedFunction))
	static FText AsCurrency_Integer(int32 Value, TEnumAsByte<ERoundingMode> RoundingMode, bool bAlwaysSign = false,
		bool bUseGrouping = true, int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324, int32 MinimumFractionalDigits = 0,
		int32 MaximumFractionalDigits = 3, const FString& CurrencyCode = FString(TEXT("")));

	/** A share of 1 as a percentage. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsPercent", AdvancedDisplay = "1"))
	static FText AsPercent_Float(float Value, TEnumAsByte<ERoundingMode> RoundingMode, bool bAlwaysSign = false, bool bUseGrouping = true,
		int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324, int32 MinimumFractionalDigits = 0,
		int32 MaximumFractionalDigits = 3);

	/** A date as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsDate", AdvancedDisplay = "1"))
	static FText AsDate_DateTime(const FDateTime& InDateTime);

	/** A date of a time zone as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsDate (from UTC)", AdvancedDisplay = "1"))
	static FText AsTimeZoneDate_DateTime(const FDateTime& InDateTime, const FString& InTimeZone = FString(TEXT("")));

	/** A date and time as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsDateTime", AdvancedDisplay = "1"))
	static FText AsDateTime_DateTime(const FDateTime& In);

	/** A date and time of a time zone as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsDateTime (from UTC)", AdvancedDisplay = "1"))
	static FText AsTimeZoneDateTime_DateTime(const FDateTime& InDateTime, const FString& InTimeZone = FString(TEXT("")));

	/** A time as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsTime", AdvancedDisplay = "1"))
	static FText AsTime_DateTime(const FDateTime& In);

	/** A time of a time zone as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsTime (from UTC)", AdvancedDisplay = "1"))
	static FText AsTimeZoneTime_DateTime(const FDateTime& InDateTime, const FString& InTimeZone = FString(TEXT("")));

	/** A length of time as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsTimespan", AdvancedDisplay = "1"))
	static FText AsTimespan_Timespan(const FTimespan& InTimespan);

	/** An amount of memory as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "AsMemory", AdvancedDisplay = "1"))
	static FText AsMemory(int64 NumBytes, EMemoryUnitStandard UnitStandard = EMemoryUnitStandard::IEC, bool bUseGrouping = true,
		int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324, int32 MinimumFractionalDigits = 0,
		int32 MaximumFractionalDigits = 3);

	/** A text that reads nothing. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText GetEmptyText();

	/** A text of the translation tables. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (AdvancedDisplay = "SourceString"))
	static bool FindTextInLocalizationTable(
		const FString& Namespace, const FString& Key, FText& OutText, const FString& SourceString = FString(TEXT("")));

	/** True if the texts read differently, letter case aside. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "Not Equal, Case Insensitive (Text)", CompactNodeTitle = "!="))
	static bool NotEqual_IgnoreCase_TextText(const FText& A, const FText& B);

	/** True if the text is not to be saved. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static bool TextIsTransient(const FText& InText);

	/** True if the text is never translated. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static bool TextIsCultureInvariant(const FText& InText);

	/** True if the text comes from a table. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static bool TextIsFromStringTable(const FText& Text);

	/** Table and key of a text. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Text")
	static bool StringTableIdAndKeyFromText(FText Text, FName& OutTableId, FString& OutKey);

	/** A text of a table. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "Make Text from String Table (Advanced)"))
	static FText TextFromStringTable(const FName TableId, const FString& Key);

	/** Text without white space at its start. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText TextTrimPreceding(const FText& InText);

	/** Text without white space at its end. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FText TextTrimTrailing(const FText& InText);

	/** Namespace and key of a text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static bool GetTextId(FText Text, FString& OutNamespace, FString& OutKey);

	/** The text before translation. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text")
	static FString GetTextSourceString(FText Text);

	/** True if it is polyglot data valid. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (BlueprintInternalUseOnly = "true"))
	static bool IsPolyglotDataValid(const FPolyglotTextData& PolyglotData, bool& IsValid, FText& ErrorMessage);

	/** Text of translations. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text",
		meta = (DisplayName = "To Text (Polyglot Data)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText PolyglotDataToText(const FPolyglotTextData& PolyglotData);
};
