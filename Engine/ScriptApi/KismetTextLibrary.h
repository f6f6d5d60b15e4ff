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
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Vector)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_VectorToText(FVector InVec);

	/** "true" or "false". */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Boolean)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_BoolToText(bool InBool);

	/** Text of a byte. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Byte)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_ByteToText(uint8 Value);

	/** Text of a name. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Name)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_NameToText(FName InName);

	/** Text that is never translated. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_StringToText(const FString& InString);

	/** What the text reads. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "To String (Text)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_TextToString(const FText& InText);

	/** Name of an object as text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Object)", CompactNodeTitle = "->", BlueprintAutocast))
	static FText Conv_ObjectToText(UObject* InObj);

	/** A number as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Integer)", AdvancedDisplay = "1", BlueprintAutocast))
	static FText Conv_IntToText(int32 Value, bool bAlwaysSign = false, bool bUseGrouping = true, int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324);

	/** A number as people write it. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (DisplayName = "To Text (Float)", AdvancedDisplay = "1", BlueprintAutocast))
	static FText Conv_DoubleToText(double Value, TEnumAsByte<ERoundingMode> RoundingMode, bool bAlwaysSign = false, bool bUseGrouping = true, int32 MinimumIntegralDigits = 1, int32 MaximumIntegralDigits = 324, int32 MinimumFractionalDigits = 0, int32 MaximumFractionalDigits = 3);

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
};
