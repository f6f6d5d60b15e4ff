// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathLibrary.generated.h"

/** Curves that lead from one value to another. */
UENUM(BlueprintType)
namespace EEasingFunc
{
enum Type : int
{
	Linear,
	Step,
	SinusoidalIn,
	SinusoidalOut,
	SinusoidalInOut,
	EaseIn,
	EaseOut,
	EaseInOut,
	ExpoIn,
	ExpoOut,
	ExpoInOut,
	CircularIn,
	CircularOut,
	CircularInOut
};
}

/** Numbers, vectors, rotations, transforms, colours and times for Blueprints. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "MathLibrary"))
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Opposite of the value (NOT A) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NOT Boolean", CompactNodeTitle = "NOT", Keywords = "! not negate"))
	static bool Not_PreBool(bool A);

	/** True if the values are equal (A == B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "Equal (Boolean)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_BoolBool(bool A, bool B);

	/** True if the values are not equal (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean",
		meta = (DisplayName = "Not Equal (Boolean)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_BoolBool(bool A, bool B);

	/** True if both values are true (A AND B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean",
		meta = (DisplayName = "AND Boolean", CompactNodeTitle = "AND", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"))
	static bool BooleanAND(bool A, bool B);

	/** True if either value is true (A OR B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean",
		meta = (DisplayName = "OR Boolean", CompactNodeTitle = "OR", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"))
	static bool BooleanOR(bool A, bool B);

	/** False only if both values are true */
	UFUNCTION(
		BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NAND Boolean", CompactNodeTitle = "NAND", Keywords = "!& nand"))
	static bool BooleanNAND(bool A, bool B);

	/** True if exactly one value is true (A XOR B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "XOR Boolean", CompactNodeTitle = "XOR", Keywords = "^ xor"))
	static bool BooleanXOR(bool A, bool B);

	/** True only if both values are false */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NOR Boolean", CompactNodeTitle = "NOR", Keywords = "!^ nor"))
	static bool BooleanNOR(bool A, bool B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte",
		meta = (DisplayName = "Byte * Byte", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static uint8 Multiply_ByteByte(uint8 A, uint8 B);

	/** Division (A / B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte / Byte", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static uint8 Divide_ByteByte(uint8 A, uint8 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte",
		meta = (DisplayName = "Byte + Byte", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static uint8 Add_ByteByte(uint8 A, uint8 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte - Byte", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static uint8 Subtract_ByteByte(uint8 A, uint8 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "% (Byte)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static uint8 Percent_ByteByte(uint8 A, uint8 B = 1);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Byte",
		meta = (DisplayName = "Min (Byte)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static uint8 BMin(uint8 A, uint8 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Byte",
		meta = (DisplayName = "Max (Byte)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static uint8 BMax(uint8 A, uint8 B);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte < Byte", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte > Byte", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte <= Byte", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte >= Byte", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Equal (Byte)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte",
		meta = (DisplayName = "Not Equal (Byte)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ByteByte(uint8 A, uint8 B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "integer * integer", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static int32 Multiply_IntInt(int32 A, int32 B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "integer / integer", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static int32 Divide_IntInt(int32 A, int32 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "integer + integer", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static int32 Add_IntInt(int32 A, int32 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "integer - integer", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static int32 Subtract_IntInt(int32 A, int32 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "% (Integer)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static int32 Percent_IntInt(int32 A, int32 B = 1);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Integer < Integer", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_IntInt(int32 A, int32 B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Integer > Integer", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_IntInt(int32 A, int32 B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Integer <= Integer", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Integer >= Integer", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Equal (Integer)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Not Equal (Integer)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_IntInt(int32 A, int32 B);

	/** Bitwise AND (A & B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Bitwise AND", CompactNodeTitle = "&", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"))
	static int32 And_IntInt(int32 A, int32 B);

	/** Bitwise XOR (A ^ B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Bitwise XOR", CompactNodeTitle = "^", Keywords = "^ xor", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Xor_IntInt(int32 A, int32 B);

	/** Bitwise OR (A | B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Bitwise OR", CompactNodeTitle = "|", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Or_IntInt(int32 A, int32 B);

	/** Bitwise NOT (~A) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Bitwise NOT", CompactNodeTitle = "~", Keywords = "~ not"))
	static int32 Not_Int(int32 A);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Min (Integer)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Min(int32 A, int32 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer",
		meta = (DisplayName = "Max (Integer)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Max(int32 A, int32 B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 * Integer64", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static int64 Multiply_Int64Int64(int64 A, int64 B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 / Integer64", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static int64 Divide_Int64Int64(int64 A, int64 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 + Integer64", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static int64 Add_Int64Int64(int64 A, int64 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 - Integer64", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static int64 Subtract_Int64Int64(int64 A, int64 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "% (Integer64)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static int64 Percent_Int64Int64(int64 A, int64 B = 1);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 < Integer64", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_Int64Int64(int64 A, int64 B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 > Integer64", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_Int64Int64(int64 A, int64 B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 <= Integer64", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Integer64 >= Integer64", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Equal (Integer64)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Not Equal (Integer64)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_Int64Int64(int64 A, int64 B);

	/** Bitwise AND (A & B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Bitwise AND (Integer64)", CompactNodeTitle = "&", Keywords = "& and",
			CommutativeAssociativeBinaryOperator = "true"))
	static int64 And_Int64Int64(int64 A, int64 B);

	/** Bitwise XOR (A ^ B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Bitwise XOR (Integer64)", CompactNodeTitle = "^", Keywords = "^ xor",
			CommutativeAssociativeBinaryOperator = "true"))
	static int64 Xor_Int64Int64(int64 A, int64 B);

	/** Bitwise OR (A | B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Bitwise OR (Integer64)", CompactNodeTitle = "|", Keywords = "| or",
			CommutativeAssociativeBinaryOperator = "true"))
	static int64 Or_Int64Int64(int64 A, int64 B);

	/** Bitwise NOT (~A) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Bitwise NOT (Integer64)", CompactNodeTitle = "~", Keywords = "~ not"))
	static int64 Not_Int64(int64 A);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Min (Integer64)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static int64 MinInt64(int64 A, int64 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64",
		meta = (DisplayName = "Max (Integer64)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static int64 MaxInt64(int64 A, int64 B);

	/** -1, 0 or 1 by the sign of the value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Sign (Integer)"))
	static int32 SignOfInteger(int32 A);

	/** Value without its sign */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Absolute (Integer)", CompactNodeTitle = "ABS"))
	static int32 Abs_Int(int32 A);

	/** Value without its sign */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Absolute (Integer64)", CompactNodeTitle = "ABS"))
	static int64 Abs_Int64(int64 A);

	/** Value held between Min and Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Clamp (Integer)"))
	static int32 Clamp(int32 Value, int32 Min, int32 Max);

	/** Value held between Min and Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Clamp (Integer64)"))
	static int64 ClampInt64(int64 Value, int64 Min, int64 Max);

	/** Value wrapped into the range from Min to Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Wrap (Integer)"))
	static int32 Wrap(int32 Value, int32 Min, int32 Max);

	/** True if the value is between Min and Max */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "In Range (Integer)"))
	static bool InRange_IntInt(int32 Value, int32 Min, int32 Max, bool InclusiveMin = true, bool InclusiveMax = true);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Select Int"))
	static int32 SelectInt(int32 A, int32 B, bool bPickA);

	/** True if the value lies between Min and Max. */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "InRange (Integer64)"))
	static bool InRange_Int64Int64(int64 Value, int64 Min, int64 Max, bool InclusiveMin = true, bool InclusiveMax = true);

	/** -1, 0 or 1 by the sign of the value. */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Sign (Integer64)"))
	static int64 SignOfInteger64(int64 A);

	/** The largest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Integer")
	static void MaxOfIntArray(const TArray<int32>& IntArray, int32& IndexOfMaxValue, int32& MaxValue);

	/** The smallest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Integer")
	static void MinOfIntArray(const TArray<int32>& IntArray, int32& IndexOfMinValue, int32& MinValue);

	/** The largest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Byte")
	static void MaxOfByteArray(const TArray<uint8>& ByteArray, int32& IndexOfMaxValue, uint8& MaxValue);

	/** The smallest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Byte")
	static void MinOfByteArray(const TArray<uint8>& ByteArray, int32& IndexOfMinValue, uint8& MinValue);
};
