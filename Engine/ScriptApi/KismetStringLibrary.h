// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetStringLibrary.generated.h"

/** Whether letter case counts. */
UENUM(BlueprintType)
namespace ESearchCase
{
enum Type : int
{
	CaseSensitive,
	IgnoreCase
};
}

/** Texts of the kind that code works on. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "StringLibrary"))
class ENGINE_API UKismetStringLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Text of a number. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Float)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_DoubleToString(double InDouble);

	/** Text of a number. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Integer)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_IntToString(int32 InInt);

	/** Text of a number. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Integer64)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_Int64ToString(int64 InInt);

	/** Text of a number. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "To String (Byte)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_ByteToString(uint8 InByte);

	/** "true" or "false". */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Boolean)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_BoolToString(bool InBool);

	/** Text of a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Vector)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_VectorToString(FVector InVec);

	/** Text of a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Vector2D)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_Vector2dToString(FVector2D InVec);

	/** Text of a rotation. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Rotator)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_RotatorToString(FRotator InRot);

	/** Text of a transform. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Transform)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_TransformToString(const FTransform& InTrans);

	/** Name of an object. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Object)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_ObjectToString(UObject* InObj);

	/** Text of a colour. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (LinearColor)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_ColorToString(FLinearColor InColor);

	/** Text of a name. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "To String (Name)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_NameToString(FName InName);

	/** Name of a text. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "To Name (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static FName Conv_StringToName(const FString& InString);

	/** Number at the start of a text, or 0. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Integer (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static int32 Conv_StringToInt(const FString& InString);

	/** Number at the start of a text, or 0. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Float (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static double Conv_StringToDouble(const FString& InString);

	/** The first text, then the second. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "Append", Keywords = "+ concat cat", CommutativeAssociativeBinaryOperator = "true"))
	static FString Concat_StrStr(const FString& A, const FString& B);

	/** True if the texts are equal, letter case included. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Equal Exactly (String)", CompactNodeTitle = "==="))
	static bool EqualEqual_StrStr(const FString& A, const FString& B);

	/** True if the texts are equal, letter case aside. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Equal, Case Insensitive (String)", CompactNodeTitle = "=="))
	static bool EqualEqual_StriStri(const FString& A, const FString& B);

	/** True if the texts are not equal, letter case included. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Not Equal Exactly (String)", CompactNodeTitle = "!=="))
	static bool NotEqual_StrStr(const FString& A, const FString& B);

	/** True if the texts are not equal, letter case aside. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "Not Equal, Case Insensitive (String)", CompactNodeTitle = "!="))
	static bool NotEqual_StriStri(const FString& A, const FString& B);

	/** Number of characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (Keywords = "size length"))
	static int32 Len(const FString& S);

	/** True if there are no characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool IsEmpty(const FString& InString);

	/** A prefix, a number and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Float)"))
	static FString BuildString_Double(const FString& AppendTo, const FString& Prefix, double InDouble, const FString& Suffix);

	/** A prefix, a number and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Integer)"))
	static FString BuildString_Int(const FString& AppendTo, const FString& Prefix, int32 InInt, const FString& Suffix);

	/** A part of a text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString GetSubstring(const FString& SourceString, int32 StartIndex = 0, int32 Length = 1);

	/** Place of a text in another, or -1. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static int32 FindSubstring(
		const FString& SearchIn, const FString& Substring, bool bUseCase = false, bool bSearchFromEnd = false, int32 StartPosition = -1);

	/** True if a text stands in another. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool Contains(const FString& SearchIn, const FString& Substring, bool bUseCase = false, bool bSearchFromEnd = false);

	/** Code of a character. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static int32 GetCharacterAsNumber(const FString& SourceString, int32 Index = 0);

	/** The parts between separators. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (Keywords = "split"))
	static TArray<FString> ParseIntoArray(
		const FString& SourceString, const FString& Delimiter = FString(TEXT(" ")), const bool CullEmptyStrings = true);

	/** The texts with a separator between them. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString JoinStringArray(const TArray<FString>& SourceArray, const FString& Separator = FString(TEXT(" ")));

	/** Upper-case text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString ToUpper(const FString& SourceString);

	/** Lower-case text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString ToLower(const FString& SourceString);

	/** Text with every occurrence of one put in place of another. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Replace(
		const FString& SourceString, const FString& From, const FString& To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** Text without white space at its ends. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Trim(const FString& SourceString);

	/** True if the text begins with another. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool StartsWith(const FString& SourceString, const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** True if the text ends with another. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool EndsWith(const FString& SourceString, const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** The first Count characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Left(const FString& SourceString, int32 Count);

	/** The last Count characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Right(const FString& SourceString, int32 Count);

	/** Count characters from a place on. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Mid(const FString& SourceString, int32 Start, int32 Count);

	/** Text turned end to start. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Reverse(const FString& SourceString);

	/** True if the text is a number. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool IsNumeric(const FString& SourceString);

	/** Text of a number. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Float)", CompactNodeTitle = "->", BlueprintAutocast, DeprecatedFunction))
	static FString Conv_FloatToString(float InFloat);

	/** Text of a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Vector3f)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_Vector3fToString(FVector3f InVec);

	/** Text of a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (IntVector)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_IntVectorToString(FIntVector InIntVec);

	/** Text of a point. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (IntPoint)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_IntPointToString(FIntPoint InIntPoint);

	/** Text of a matrix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To String (Matrix)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_MatrixToString(const FMatrix& InMatrix);

	/** Number at the start of a text, or 0. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Integer64 (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static int64 Conv_StringToInt64(const FString& InString);

	/** Reads a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Vector (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static void Conv_StringToVector(const FString& InString, FVector& OutConvertedVector, bool& OutIsValid);

	/** Reads a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Vector3f (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static void Conv_StringToVector3f(const FString& InString, FVector3f& OutConvertedVector, bool& OutIsValid);

	/** Reads a vector. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Vector2D (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static void Conv_StringToVector2D(const FString& InString, FVector2D& OutConvertedVector2D, bool& OutIsValid);

	/** Reads a rotation. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Rotator (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static void Conv_StringToRotator(const FString& InString, FRotator& OutConvertedRotator, bool& OutIsValid);

	/** Reads a colour. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String",
		meta = (DisplayName = "To Color (String)", CompactNodeTitle = "->", BlueprintAutocast))
	static void Conv_StringToColor(const FString& InString, FLinearColor& OutConvertedColor, bool& OutIsValid);

	/** A text, a prefix, a truth value and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Boolean)"))
	static FString BuildString_Bool(const FString& AppendTo, const FString& Prefix, bool InBool, const FString& Suffix);

	/** A text, a prefix, a vector and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Vector)"))
	static FString BuildString_Vector(const FString& AppendTo, const FString& Prefix, FVector InVector, const FString& Suffix);

	/** A text, a prefix, a vector and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (IntVector)"))
	static FString BuildString_IntVector(const FString& AppendTo, const FString& Prefix, FIntVector InIntVector, const FString& Suffix);

	/** A text, a prefix, a vector and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Vector2d)"))
	static FString BuildString_Vector2d(const FString& AppendTo, const FString& Prefix, FVector2D InVector2D, const FString& Suffix);

	/** A text, a prefix, a rotation and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Rotator)"))
	static FString BuildString_Rotator(const FString& AppendTo, const FString& Prefix, FRotator InRot, const FString& Suffix);

	/** A text, a prefix, an object's name and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Object)"))
	static FString BuildString_Object(const FString& AppendTo, const FString& Prefix, UObject* InObj, const FString& Suffix);

	/** A text, a prefix, a colour and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Color)"))
	static FString BuildString_Color(const FString& AppendTo, const FString& Prefix, FLinearColor InColor, const FString& Suffix);

	/** A text, a prefix, a name and a suffix. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Build String (Name)"))
	static FString BuildString_Name(const FString& AppendTo, const FString& Prefix, FName InName, const FString& Suffix);

	/** The characters of a text. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static TArray<FString> GetCharacterArrayFromString(const FString& SourceString);

	/** The text with blanks before it, up to a length. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString LeftPad(const FString& SourceString, int32 ChCount);

	/** The text with blanks behind it, up to a length. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString RightPad(const FString& SourceString, int32 ChCount);

	/** The text without its last characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString LeftChop(const FString& SourceString, int32 Count);

	/** The text without its first characters. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString RightChop(const FString& SourceString, int32 Count);

	/** The text without white space at its end. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString TrimTrailing(const FString& SourceString);

	/** True if the text matches a pattern of * and ? */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool MatchesWildcard(
		const FString& SourceString, const FString& Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** The parts before and behind a separator. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool Split(const FString& SourceString, const FString& InStr, FString& LeftS, FString& RightS,
		ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart);

	/** Puts one text in place of another, in a variable. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|String")
	static int32 ReplaceInline(UPARAM(ref) FString& SourceString, const FString& SearchText, const FString& ReplacementText,
		ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** Takes empty texts out of an array. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static int32 CullArray(const FString& SourceString, UPARAM(ref) TArray<FString>& InArray);

	/** Seconds as minutes, seconds and hundredths. */
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString TimeSecondsToString(float InSeconds);
};
