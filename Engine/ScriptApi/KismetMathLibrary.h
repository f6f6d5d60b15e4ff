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
	/** Random true or false, each half of the time. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBool();

	/** Random true or false. @param Weight Chance of true, from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBoolWithWeight(float Weight);

	/** Opposite of the value (NOT A) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NOT Boolean", CompactNodeTitle = "NOT", Keywords = "! not negate"))
	static bool Not_PreBool(bool A);

	/** True if the values are equal (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "Equal (Boolean)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_BoolBool(bool A, bool B);

	/** True if the values are not equal (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "Not Equal (Boolean)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_BoolBool(bool A, bool B);

	/** True if both values are true (A AND B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "AND Boolean", CompactNodeTitle = "AND", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"))
	static bool BooleanAND(bool A, bool B);

	/** True if either value is true (A OR B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "OR Boolean", CompactNodeTitle = "OR", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"))
	static bool BooleanOR(bool A, bool B);

	/** False only if both values are true */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NAND Boolean", CompactNodeTitle = "NAND", Keywords = "!& nand"))
	static bool BooleanNAND(bool A, bool B);

	/** True if exactly one value is true (A XOR B) */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "XOR Boolean", CompactNodeTitle = "XOR", Keywords = "^ xor"))
	static bool BooleanXOR(bool A, bool B);

	/** True only if both values are false */
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (DisplayName = "NOR Boolean", CompactNodeTitle = "NOR", Keywords = "!^ nor"))
	static bool BooleanNOR(bool A, bool B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte * Byte", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static uint8 Multiply_ByteByte(uint8 A, uint8 B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte / Byte", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static uint8 Divide_ByteByte(uint8 A, uint8 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte + Byte", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static uint8 Add_ByteByte(uint8 A, uint8 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte - Byte", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static uint8 Subtract_ByteByte(uint8 A, uint8 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "% (Byte)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static uint8 Percent_ByteByte(uint8 A, uint8 B = 1);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Min (Byte)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static uint8 BMin(uint8 A, uint8 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Max (Byte)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
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
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Byte >= Byte", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Equal (Byte)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ByteByte(uint8 A, uint8 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Byte", meta = (DisplayName = "Not Equal (Byte)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ByteByte(uint8 A, uint8 B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "integer * integer", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Multiply_IntInt(int32 A, int32 B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "integer / integer", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static int32 Divide_IntInt(int32 A, int32 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "integer + integer", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Add_IntInt(int32 A, int32 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "integer - integer", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static int32 Subtract_IntInt(int32 A, int32 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "% (Integer)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static int32 Percent_IntInt(int32 A, int32 B = 1);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Integer < Integer", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_IntInt(int32 A, int32 B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Integer > Integer", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_IntInt(int32 A, int32 B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Integer <= Integer", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Integer >= Integer", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Equal (Integer)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_IntInt(int32 A, int32 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Not Equal (Integer)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_IntInt(int32 A, int32 B);

	/** Bitwise AND (A & B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Bitwise AND", CompactNodeTitle = "&", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"))
	static int32 And_IntInt(int32 A, int32 B);

	/** Bitwise XOR (A ^ B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Bitwise XOR", CompactNodeTitle = "^", Keywords = "^ xor", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Xor_IntInt(int32 A, int32 B);

	/** Bitwise OR (A | B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Bitwise OR", CompactNodeTitle = "|", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Or_IntInt(int32 A, int32 B);

	/** Bitwise NOT (~A) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Bitwise NOT", CompactNodeTitle = "~", Keywords = "~ not"))
	static int32 Not_Int(int32 A);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Min (Integer)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Min(int32 A, int32 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Max (Integer)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static int32 Max(int32 A, int32 B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 * Integer64", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static int64 Multiply_Int64Int64(int64 A, int64 B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 / Integer64", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static int64 Divide_Int64Int64(int64 A, int64 B = 1);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 + Integer64", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static int64 Add_Int64Int64(int64 A, int64 B = 1);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 - Integer64", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static int64 Subtract_Int64Int64(int64 A, int64 B = 1);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "% (Integer64)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static int64 Percent_Int64Int64(int64 A, int64 B = 1);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 < Integer64", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_Int64Int64(int64 A, int64 B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 > Integer64", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_Int64Int64(int64 A, int64 B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 <= Integer64", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Integer64 >= Integer64", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Equal (Integer64)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_Int64Int64(int64 A, int64 B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Not Equal (Integer64)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_Int64Int64(int64 A, int64 B);

	/** Bitwise AND (A & B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Bitwise AND (Integer64)", CompactNodeTitle = "&", Keywords = "& and", CommutativeAssociativeBinaryOperator = "true"))
	static int64 And_Int64Int64(int64 A, int64 B);

	/** Bitwise XOR (A ^ B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Bitwise XOR (Integer64)", CompactNodeTitle = "^", Keywords = "^ xor", CommutativeAssociativeBinaryOperator = "true"))
	static int64 Xor_Int64Int64(int64 A, int64 B);

	/** Bitwise OR (A | B) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Bitwise OR (Integer64)", CompactNodeTitle = "|", Keywords = "| or", CommutativeAssociativeBinaryOperator = "true"))
	static int64 Or_Int64Int64(int64 A, int64 B);

	/** Bitwise NOT (~A) */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Bitwise NOT (Integer64)", CompactNodeTitle = "~", Keywords = "~ not"))
	static int64 Not_Int64(int64 A);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Min (Integer64)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static int64 MinInt64(int64 A, int64 B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Integer64", meta = (DisplayName = "Max (Integer64)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
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

	/** Random number from 0 to Max - 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer"))
	static int32 RandomInteger(int32 Max);

	/** Random number from 0 to Max - 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer64"))
	static int64 RandomInteger64(int64 Max);

	/** Random number from Min to Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer In Range"))
	static int32 RandomIntegerInRange(int32 Min, int32 Max);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "float * float", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static double Multiply_DoubleDouble(double A, double B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "float / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static double Divide_DoubleDouble(double A, double B = 1.0);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "float + float", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static double Add_DoubleDouble(double A, double B = 1.0);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "float - float", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static double Subtract_DoubleDouble(double A, double B = 1.0);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "% (Float)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static double Percent_FloatFloat(double A, double B = 1.0);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float < Float", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_DoubleDouble(double A, double B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float > Float", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_DoubleDouble(double A, double B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float <= Float", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_DoubleDouble(double A, double B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float >= Float", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_DoubleDouble(double A, double B);

	/** Returns true if A is exactly equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Equal (Float)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_DoubleDouble(double A, double B);

	/** Returns true if A does not equal B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Not Equal (Float)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_DoubleDouble(double A, double B);

	/** True if the values differ by no more than the tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Nearly Equal (Float)", Keywords = "== equal"))
	static bool NearlyEqual_FloatFloat(double A, double B, double ErrorTolerance = 1.e-6);

	/** True if the value is between Min and Max */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "In Range (Float)"))
	static bool InRange_FloatFloat(double Value, double Min, double Max, bool InclusiveMin = true, bool InclusiveMax = true);

	/** Length of a right triangle's long side */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (Keywords = "pythagorean theorem"))
	static double Hypotenuse(double Width, double Height);

	/** Base to the power of Exp */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Power", CompactNodeTitle = "POWER"))
	static double MultiplyMultiply_FloatFloat(double Base, double Exp);

	/** Value without its sign */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Absolute (Float)", CompactNodeTitle = "ABS"))
	static double Abs(double A);

	/** Sine of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Sin (Radians)", CompactNodeTitle = "SIN"))
	static double Sin(double A);

	/** Inverse sine, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Asin (Radians)", CompactNodeTitle = "ASIN"))
	static double Asin(double A);

	/** Cosine of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Cos (Radians)", CompactNodeTitle = "COS"))
	static double Cos(double A);

	/** Inverse cosine, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Acos (Radians)", CompactNodeTitle = "ACOS"))
	static double Acos(double A);

	/** Tangent of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Tan (Radians)", CompactNodeTitle = "TAN"))
	static double Tan(double A);

	/** Inverse tangent, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan (Radians)", CompactNodeTitle = "ATAN"))
	static double Atan(double A);

	/** Sine of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Sin (Degrees)", CompactNodeTitle = "SINd"))
	static double DegSin(double A);

	/** Inverse sine, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Asin (Degrees)", CompactNodeTitle = "ASINd"))
	static double DegAsin(double A);

	/** Cosine of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Cos (Degrees)", CompactNodeTitle = "COSd"))
	static double DegCos(double A);

	/** Inverse cosine, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Acos (Degrees)", CompactNodeTitle = "ACOSd"))
	static double DegAcos(double A);

	/** Tangent of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Tan (Degrees)", CompactNodeTitle = "TANd"))
	static double DegTan(double A);

	/** Inverse tangent, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan (Degrees)", CompactNodeTitle = "ATANd"))
	static double DegAtan(double A);

	/** Inverse tangent of Y / X, in radians, in the right quadrant */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan2 (Radians)"))
	static double Atan2(double Y, double X);

	/** Inverse tangent of Y / X, in degrees, in the right quadrant */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan2 (Degrees)"))
	static double DegAtan2(double Y, double X);

	/** Radians of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Degrees To Radians", CompactNodeTitle = "D2R"))
	static double DegreesToRadians(double A);

	/** Degrees of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Radians To Degrees", CompactNodeTitle = "R2D"))
	static double RadiansToDegrees(double A);

	/** Half the circumference of a unit circle */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Get PI", CompactNodeTitle = "PI"))
	static double GetPI();

	/** The circumference of a unit circle */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Get TAU", CompactNodeTitle = "TAU"))
	static double GetTAU();

	/** Angle held between two angles, all in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig")
	static double ClampAngle(double AngleDegrees, double MinAngleDegrees, double MaxAngleDegrees);

	/** Angle between 0 and 360 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator")
	static double ClampAxis(double Angle);

	/** Angle above -180 and up to 180 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator")
	static double NormalizeAxis(double Angle);

	/** e to the power of A */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Exponent", CompactNodeTitle = "e"))
	static double Exp(double A);

	/** Logarithm of A to a base */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double Log(double A, double Base = 1.0);

	/** Natural logarithm */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Log e", CompactNodeTitle = "LOGe"))
	static double Loge(double A);

	/** Square root */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Square Root", CompactNodeTitle = "SQRT", Keywords = "square root"))
	static double Sqrt(double A);

	/** A * A */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Square", CompactNodeTitle = "^2"))
	static double Square(double A);

	/** Angle turned towards another by no more than a rate, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double FixedTurn(double InCurrent, double InDesired, double InDeltaRate);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Min (Float)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static double FMin(double A, double B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Max (Float)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static double FMax(double A, double B);

	/** Value held between Min and Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Clamp (Float)"))
	static double FClamp(double Value, double Min, double Max);

	/** Value wrapped into the range from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Wrap (Float)"))
	static double FWrap(double Value, double Min, double Max);

	/** Value moved towards a target by a share of the distance, so that it slows down. A speed of 0 jumps. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "FInterp To"))
	static double FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed);

	/** Value moved towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "FInterp To Constant"))
	static double FInterpTo_Constant(double Current, double Target, double DeltaTime, double InterpSpeed);

	/** Value between A and B that starts and ends slowly */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "Ease In Out", BlueprintInternalUseOnly = "true"))
	static double FInterpEaseInOut(double A, double B, double Alpha, double Exponent);

	/** A at Alpha 0, B at Alpha 1, and along the curve between them */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (BlueprintInternalUseOnly = "true"))
	static double Ease(double A, double B, double Alpha, TEnumAsByte<EEasingFunc::Type> EasingFunc, double BlendExp = 2, int32 Steps = 2);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Lerp"))
	static double Lerp(double A, double B, double Alpha);

	/** Alpha for which Lerp gives the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double InverseLerp(double A, double B, double Value);

	/** Place of a value in a range, where 0 is RangeMin and 1 is RangeMax */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double NormalizeToRange(double Value, double RangeMin, double RangeMax);

	/** Value of one range put into another */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (Keywords = "get mapped value"))
	static double MapRangeUnclamped(double Value, double InRangeA, double InRangeB, double OutRangeA, double OutRangeB);

	/** Value of one range put into another and held there */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (Keywords = "get mapped value"))
	static double MapRangeClamped(double Value, double InRangeA, double InRangeB, double OutRangeA, double OutRangeB);

	/** Value times PI */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Multiply By Pi", CompactNodeTitle = "* Pi"))
	static double MultiplyByPi(double Value);

	/** -1, 0 or 1 by the sign of the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Sign (Float)"))
	static double SignOfFloat(double A);

	/** The nearest whole number */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static int32 Round(double A);

	/** The largest whole number that is not above the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Floor"))
	static int32 FFloor(double A);

	/** The whole number towards zero */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Truncate", BlueprintAutocast))
	static int32 FTrunc(double A);

	/** The smallest whole number that is not below the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Ceil"))
	static int32 FCeil(double A);

	/** The nearest whole number */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Round to Integer64"))
	static int64 Round64(double A);

	/** The largest whole number that is not above the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Floor to Integer64"))
	static int64 FFloor64(double A);

	/** The whole number towards zero */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Truncate to Integer64", BlueprintAutocast))
	static int64 FTrunc64(double A);

	/** The smallest whole number that is not below the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Ceil to Integer64"))
	static int64 FCeil64(double A);

	/** Random number from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Float"))
	static double RandomFloat();

	/** Random number from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Float In Range"))
	static double RandomFloatInRange(double Min, double Max);

	/** How often a divisor fits, and what remains */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Division (whole and remainder)", Keywords = "%"))
	static int32 FMod(double Dividend, double Divisor, double& Remainder);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Select Float"))
	static double SelectFloat(double A, double B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (DisplayName = "Select Int"))
	static int32 SelectInt(int32 A, int32 B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Select String"))
	static FString SelectString(const FString& A, const FString& B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Select Vector"))
	static FVector SelectVector(FVector A, FVector B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Select Rotator"))
	static FRotator SelectRotator(FRotator A, FRotator B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Select Color"))
	static FLinearColor SelectColor(FLinearColor A, FLinearColor B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Select Transform"))
	static FTransform SelectTransform(const FTransform& A, const FTransform& B, bool bPickA);

	/** A if bSelectA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Select Object"))
	static UObject* SelectObject(UObject* A, UObject* B, bool bSelectA);

	/** A if bSelectA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Select Class"))
	static UClass* SelectClass(UClass* A, UClass* B, bool bSelectA);

	/** A vector of three numbers */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector MakeVector(double X, double Y, double Z);

	/** The three numbers of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (NativeBreakFunc))
	static void BreakVector(FVector InVec, double& X, double& Y, double& Z);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector + vector", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static FVector Add_VectorVector(FVector A, FVector B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector - vector", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorVector(FVector A, FVector B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector * vector", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static FVector Multiply_VectorVector(FVector A, FVector B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector / vector", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorVector(FVector A, FVector B);

	/** Adds a number to each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector + float", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector Add_VectorFloat(FVector A, double B);

	/** Subtracts a number from each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector - float", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorFloat(FVector A, double B);

	/** Scales a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector * float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector Multiply_VectorFloat(FVector A, double B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorFloat(FVector A, double B = 1.0);

	/** Adds a number to each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector + integer", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector Add_VectorInt(FVector A, int32 B);

	/** Subtracts a number from each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector - integer", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorInt(FVector A, int32 B);

	/** Scales a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector * integer", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector Multiply_VectorInt(FVector A, int32 B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector / integer", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorInt(FVector A, int32 B = 1);

	/** The vector that points the other way */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Negate Vector", CompactNodeTitle = "-"))
	static FVector NegateVector(FVector A);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Equal (Vector)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is not equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Not Equal (Vector)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is exactly equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Equal Exactly (Vector)", CompactNodeTitle = "===", Keywords = "== equal"))
	static bool EqualExactly_VectorVector(FVector A, FVector B);

	/** Returns true if A is not exactly equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Not Equal Exactly (Vector)", CompactNodeTitle = "!==", Keywords = "!= not equal"))
	static bool NotEqualExactly_VectorVector(FVector A, FVector B);

	/** Dot product, |A| * |B| * cos(angle) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Dot Product", CompactNodeTitle = "dot"))
	static double Dot_VectorVector(FVector A, FVector B);

	/** Cross product, which stands on both vectors */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Cross Product", CompactNodeTitle = "cross"))
	static FVector Cross_VectorVector(FVector A, FVector B);

	/** Vector turned by a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Rotate Vector", Keywords = "rotate rotation >>"))
	static FVector GreaterGreater_VectorRotator(FVector A, FRotator B);

	/** Vector turned back by a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Unrotate Vector", Keywords = "unrotate rotation <<"))
	static FVector LessLess_VectorRotator(FVector A, FRotator B);

	/** Vector turned around an axis by an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Rotate Vector Around Axis"))
	static FVector RotateAngleAxis(FVector InVect, float AngleDeg, FVector Axis);

	/** Length of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length", Keywords = "magnitude"))
	static double VSize(FVector A);

	/** Length of a vector, squared */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length Squared", Keywords = "magnitude"))
	static double VSizeSquared(FVector A);

	/** Length of a vector without its Z */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length XY", Keywords = "magnitude"))
	static double VSizeXY(FVector A);

	/** Vector of length 1 in the same direction, or zero for one that is shorter than the tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Normalize", Keywords = "unit vector"))
	static FVector Normal(FVector A, float Tolerance = 1.e-4f);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Lerp (Vector)"))
	static FVector VLerp(FVector A, FVector B, float Alpha);

	/** Vector moved towards a target by a share of the distance */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "VInterp To"))
	static FVector VInterpTo(FVector Current, FVector Target, float DeltaTime, float InterpSpeed);

	/** Vector moved towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "VInterp To Constant"))
	static FVector VInterpTo_Constant(FVector Current, FVector Target, float DeltaTime, float InterpSpeed);

	/** Distance between two points */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance (Vector)", Keywords = "magnitude"))
	static double Vector_Distance(FVector V1, FVector V2);

	/** Distance between two points, squared */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance Squared (Vector)", Keywords = "magnitude"))
	static double Vector_DistanceSquared(FVector V1, FVector V2);

	/** Distance between two points without their Z */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance 2D (Vector)"))
	static double Vector_Distance2D(FVector V1, FVector V2);

	/** (0, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Zero Vector"))
	static FVector Vector_Zero();

	/** (1, 1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "One Vector"))
	static FVector Vector_One();

	/** (1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Forward Vector"))
	static FVector Vector_Forward();

	/** (-1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Backward Vector"))
	static FVector Vector_Backward();

	/** (0, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Up Vector"))
	static FVector Vector_Up();

	/** (0, 0, -1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Down Vector"))
	static FVector Vector_Down();

	/** (0, 1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Right Vector"))
	static FVector Vector_Right();

	/** (0, -1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Left Vector"))
	static FVector Vector_Left();

	/** True if all components are exactly 0 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Zero (Vector)"))
	static bool Vector_IsZero(const FVector& A);

	/** True if all components are within the tolerance of 0 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Nearly Zero (Vector)"))
	static bool Vector_IsNearlyZero(const FVector& A, float Tolerance = 1.e-4f);

	/** True if the length is 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Normal (Vector)"))
	static bool Vector_IsNormal(const FVector& A);

	/** Vector of the components without their signs */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Absolute (Vector)"))
	static FVector Vector_GetAbs(const FVector& A);

	/** Largest of the components */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Max Element (Vector)"))
	static double GetMaxElement(FVector A);

	/** Smallest of the components */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Min Element (Vector)"))
	static double GetMinElement(FVector A);

	/** Vector with its length held between two lengths */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector ClampVectorSize(FVector A, double Min, double Max);

	/** Part of a vector along another */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "project onto"))
	static FVector ProjectVectorOnToVector(FVector V, FVector Target);

	/** Part of a vector in a plane */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "project onto"))
	static FVector ProjectVectorOnToPlane(FVector V, FVector PlaneNormal);

	/** Vector mirrored by a plane */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "reflection"))
	static FVector MirrorVectorByNormal(FVector InVect, FVector InNormal);

	/** Direction after a bounce off a surface */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "reflection"))
	static FVector GetReflectionVector(FVector Direction, FVector SurfaceNormal);

	/** Direction from one point to another, of length 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Unit Direction (Vector)", Keywords = "unit vector"))
	static FVector GetDirectionUnitVector(FVector From, FVector To);

	/** Random direction of length 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Unit Vector"))
	static FVector RandomUnitVector();

	/** Random point in a box */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomPointInBoundingBox(const FVector Center, const FVector HalfSize);

	/** Rotation that looks along a vector, without roll */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Rotator (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Conv_VectorToRotator(FVector InVec);

	/** Colour of X, Y and Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To LinearColor (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_VectorToLinearColor(FVector InVec);

	/** Transform at a place */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Transform (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FTransform Conv_VectorToTransform(FVector InLocation);

	/** X and Y of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Vector2D (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector2D Conv_VectorToVector2D(FVector InVector);

	/** Converts float to vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Vector (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_DoubleToVector(double InDouble);

	/** Converts byte to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Integer (Byte)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_ByteToInt(uint8 InByte);

	/** Converts byte to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Float (Byte)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_ByteToDouble(uint8 InByte);

	/** Converts integer to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Float (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_IntToDouble(int32 InInt);

	/** Converts integer to integer64 */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Integer64 (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int64 Conv_IntToInt64(int32 InInt);

	/** Converts integer to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Byte (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_IntToByte(int32 InInt);

	/** Converts integer to boolean */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Boolean (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static bool Conv_IntToBool(int32 InInt);

	/** Converts integer64 to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Integer (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_Int64ToInt(int64 InInt);

	/** Converts integer64 to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Float (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_Int64ToDouble(int64 InInt);

	/** Converts integer64 to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Byte (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_Int64ToByte(int64 InInt);

	/** Converts float to integer64 */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Integer64 (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int64 Conv_DoubleToInt64(double InDouble);

	/** Converts boolean to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Integer (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_BoolToInt(bool InBool);

	/** Converts boolean to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Float (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_BoolToDouble(bool InBool);

	/** Converts boolean to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Byte (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_BoolToByte(bool InBool);

	/** Converts integer to vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Vector (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_IntToVector(int32 InInt);

	/** Converts float to linearcolor */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To LinearColor (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_DoubleToLinearColor(double InDouble);

	/** A vector of two numbers */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector2D MakeVector2D(double X, double Y);

	/** The two numbers of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (NativeBreakFunc))
	static void BreakVector2D(FVector2D InVec, double& X, double& Y);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d + vector2d", CompactNodeTitle = "+", Keywords = "+ add plus", CommutativeAssociativeBinaryOperator = "true"))
	static FVector2D Add_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d - vector2d", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector2D Subtract_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d * vector2d", CompactNodeTitle = "*", Keywords = "* multiply", CommutativeAssociativeBinaryOperator = "true"))
	static FVector2D Multiply_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d / vector2d", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector2D Divide_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Scales a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d * float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector2D Multiply_Vector2DFloat(FVector2D A, double B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "vector2d / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector2D Divide_Vector2DFloat(FVector2D A, double B = 1.0);

	/** Length of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Vector2d Length", Keywords = "magnitude"))
	static double VSize2D(FVector2D A);

	/** Dot product */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Dot Product (2D)", CompactNodeTitle = "dot"))
	static double DotProduct2D(FVector2D A, FVector2D B);

	/** Vector of length 1 in the same direction */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Normalize 2D", Keywords = "unit vector"))
	static FVector2D Normal2D(FVector2D A);

	/** Distance between two points */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Distance2D (Vector2D)", Keywords = "magnitude"))
	static double Distance2D(FVector2D V1, FVector2D V2);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Equal (Vector2D)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance = 1.e-4f);

	/** Vector of X, Y and a given Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Vector (Vector2D)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_Vector2DToVector(FVector2D InVector2D, float Z = 0);

	/** A rotation of three angles in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator", NativeMakeFunc))
	static FRotator MakeRotator(UPARAM(DisplayName = "X (Roll)") float Roll, UPARAM(DisplayName = "Y (Pitch)") float Pitch, UPARAM(DisplayName = "Z (Yaw)") float Yaw);

	/** The three angles of a rotation, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate rotator breakrotator", NativeBreakFunc))
	static void BreakRotator(UPARAM(DisplayName = "Rotation") FRotator InRot, UPARAM(DisplayName = "X (Roll)") float& Roll, UPARAM(DisplayName = "Y (Pitch)") float& Pitch, UPARAM(DisplayName = "Z (Yaw)") float& Yaw);

	/** Rotation whose X axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromX(const FVector& X);

	/** Rotation whose X axis points along a vector, and whose Y axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromXY(const FVector& X, const FVector& Y);

	/** Rotation whose X axis points along a vector, and whose Z axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromXZ(const FVector& X, const FVector& Z);

	/** Rotation whose Y axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromY(const FVector& Y);

	/** Rotation whose Y axis points along a vector, and whose X axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromYX(const FVector& Y, const FVector& X);

	/** Rotation whose Y axis points along a vector, and whose Z axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromYZ(const FVector& Y, const FVector& Z);

	/** Rotation whose Z axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZ(const FVector& Z);

	/** Rotation whose Z axis points along a vector, and whose X axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZX(const FVector& Z, const FVector& X);

	/** Rotation whose Z axis points along a vector, and whose Y axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZY(const FVector& Z, const FVector& Y);

	/** Rotation that looks from one point at another */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FRotator FindLookAtRotation(const FVector& Start, const FVector& Target);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Equal (Rotator)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is not equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Not Equal (Rotator)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Each angle times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Scale Rotator", CompactNodeTitle = "*", Keywords = "* multiply rotate rotation"))
	static FRotator Multiply_RotatorFloat(FRotator A, float B);

	/** Each angle times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Scale Rotator (Integer)", CompactNodeTitle = "*", Keywords = "* multiply rotate rotation"))
	static FRotator Multiply_RotatorInt(FRotator A, int32 B);

	/** Rotation A, then rotation B */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Combine Rotators", Keywords = "rotate rotation add"))
	static FRotator ComposeRotators(FRotator A, FRotator B);

	/** The rotation back */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Invert Rotator", Keywords = "rotate rotation"))
	static FRotator NegateRotator(FRotator A);

	/** Direction that the rotation looks in */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetForwardVector(FRotator InRot);

	/** Direction to the right of the rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetRightVector(FRotator InRot);

	/** Direction above the rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetUpVector(FRotator InRot);

	/** The three axes of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Get Rotation Axes", Keywords = "rotate rotation"))
	static void GetAxes(FRotator A, FVector& X, FVector& Y, FVector& Z);

	/** Random rotation; with roll only when asked for */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Rotator", Keywords = "rotate rotation"))
	static FRotator RandomRotator(bool bRoll = false);

	/** A at Alpha 0 and B at Alpha 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Lerp (Rotator)"))
	static FRotator RLerp(FRotator A, FRotator B, float Alpha, bool bShortestPath);

	/** Rotation turned towards a target by a share of the way */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "RInterp To", Keywords = "rotate rotation"))
	static FRotator RInterpTo(FRotator Current, FRotator Target, float DeltaTime, float InterpSpeed);

	/** Rotation turned towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "RInterp To Constant", Keywords = "rotate rotation"))
	static FRotator RInterpTo_Constant(FRotator Current, FRotator Target, float DeltaTime, float InterpSpeed);

	/** Difference of two rotations, each angle above -180 and up to 180 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Delta (Rotator)", Keywords = "rotate rotation"))
	static FRotator NormalizedDeltaRotator(FRotator A, FRotator B);

	/** Rotation around an axis by an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Rotator from Axis and Angle", Keywords = "make construct build rotate rotation"))
	static FRotator RotatorFromAxisAndAngle(FVector Axis, float Angle);

	/** Direction that the rotation looks in */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "Get Rotation X Vector", Keywords = "rotation rotate cast convert", BlueprintAutocast))
	static FVector Conv_RotatorToVector(FRotator InRot);

	/** Transform of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Transform (Rotator)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FTransform Conv_RotatorToTransform(const FRotator& InRotator);

	/** A transform of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (Keywords = "construct build", NativeMakeFunc))
	static FTransform MakeTransform(FVector Location, FRotator Rotation, FVector Scale = FVector(1.0, 1.0, 1.0));

	/** The parts of a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (NativeBreakFunc))
	static void BreakTransform(const FTransform& InTransform, FVector& Location, FRotator& Rotation, FVector& Scale);

	/** Transform A, then transform B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Compose Transforms", CompactNodeTitle = "*", Keywords = "multiply *"))
	static FTransform ComposeTransforms(const FTransform& A, const FTransform& B);

	/** The transform back */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Invert Transform", Keywords = "inverse"))
	static FTransform InvertTransform(const FTransform& T);

	/** Point moved by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Location", Keywords = "location"))
	static FVector TransformLocation(const FTransform& T, FVector Location);

	/** Direction turned by a transform, without scale */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Direction"))
	static FVector TransformDirection(const FTransform& T, FVector Direction);

	/** Rotation turned by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Rotation"))
	static FRotator TransformRotation(const FTransform& T, FRotator Rotation);

	/** Point moved back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Location"))
	static FVector InverseTransformLocation(const FTransform& T, FVector Location);

	/** Direction turned back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Direction"))
	static FVector InverseTransformDirection(const FTransform& T, FVector Direction);

	/** Rotation turned back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Rotation"))
	static FRotator InverseTransformRotation(const FTransform& T, FRotator Rotation);

	/** Transform A as it is seen from another */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (Keywords = "convert torelative"))
	static FTransform MakeRelativeTransform(const FTransform& A, const FTransform& RelativeTo);

	/** Transform moved towards a target by a share of the way */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "TInterp To"))
	static FTransform TInterpTo(const FTransform& Current, const FTransform& Target, float DeltaTime, float InterpSpeed);

	/** Returns true if A is equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Equal (Transform)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_TransformTransform(const FTransform& A, const FTransform& B);

	/** A colour of its parts, each from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (Keywords = "construct build", NativeMakeFunc))
	static FLinearColor MakeColor(float R, float G, float B, float A = 1.0f);

	/** The parts of a colour */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (NativeBreakFunc))
	static void BreakColor(FLinearColor InColor, float& R, float& G, float& B, float& A);

	/** A colour of hue in degrees, saturation and value */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "HSV to RGB"))
	static FLinearColor HSVToRGB(float H, float S, float V, float A = 1.0f);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "Lerp (LinearColor)"))
	static FLinearColor LinearColorLerp(FLinearColor A, FLinearColor B, float Alpha);

	/** Each part times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Color", meta = (DisplayName = "LinearColor * Float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FLinearColor Multiply_LinearColorFloat(FLinearColor A, float B);

	/** Red, green and blue as X, Y and Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Vector (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_LinearColorToVector(FLinearColor InLinearColor);

	/** Colour of 8 bits a part */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Color (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FColor Conv_LinearColorToColor(FLinearColor InLinearColor, bool InUseSRGB = true);

	/** Colour of floating-point parts */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To LinearColor (Color)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_ColorToLinearColor(FColor InColor);

	/** Returns true if A and B are the same object (A == B) */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Equal (Object)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ObjectObject(const UObject* A, const UObject* B);

	/** Returns true if A and B are not the same object (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Not Equal (Object)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ObjectObject(const UObject* A, const UObject* B);

	/** Returns true if A and B are the same class (A == B) */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Equal (Class)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ClassClass(UClass* A, UClass* B);

	/** Returns true if A and B are not the same class (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Not Equal (Class)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ClassClass(UClass* A, UClass* B);

	/** Returns true if a class is another or is derived from it */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool ClassIsChildOf(TSubclassOf<UObject> TestClass, TSubclassOf<UObject> ParentClass);

	/** Returns true if the names are equal (A == B) */
	UFUNCTION(BlueprintPure, Category = "Utilities|Name", meta = (DisplayName = "Equal (Name)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_NameName(FName A, FName B);

	/** Returns true if the names are not equal (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities|Name", meta = (DisplayName = "Not Equal (Name)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_NameName(FName A, FName B);

	/** Angles of a quaternion */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Rotator (Quat)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Quat_Rotator(const FQuat& Q);

	/** Quaternion of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "To Quaternion (Rotator)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FQuat Conv_RotatorToQuaternion(FRotator InRot);

	/** Rotation B, then rotation A */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Quat * Quat", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FQuat Multiply_QuatQuat(const FQuat& A, const FQuat& B);

	/** The rotation back */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Inversed (Quat)"))
	static FQuat Quat_Inversed(const FQuat& Q);

	/** Vector turned by a quaternion */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Rotate Vector (Quat)"))
	static FVector Quat_RotateVector(const FQuat& Q, const FVector& V);

	/** A point in time of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (Keywords = "construct build", NativeMakeFunc))
	static FDateTime MakeDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** The parts of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (NativeBreakFunc))
	static void BreakDateTime(FDateTime InDateTime, int32& Year, int32& Month, int32& Day, int32& Hour, int32& Minute, int32& Second, int32& Millisecond);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime + Timespan", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FDateTime Add_DateTimeTimespan(FDateTime A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime - Timespan", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FDateTime Subtract_DateTimeTimespan(FDateTime A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime - DateTime", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FTimespan Subtract_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Equal (DateTime)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Not Equal (DateTime)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime > DateTime", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime >= DateTime", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime < DateTime", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "DateTime <= DateTime", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_DateTimeDateTime(FDateTime A, FDateTime B);

	/** Local time of this machine */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Now();

	/** Coordinated universal time of this machine */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime UtcNow();

	/** Local date of this machine, at midnight */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime")
	static FDateTime Today();

	/** The Day part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Day"))
	static int32 GetDay(FDateTime A);

	/** The Hour part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Hour"))
	static int32 GetHour(FDateTime A);

	/** The Hour12 part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Hour12"))
	static int32 GetHour12(FDateTime A);

	/** The Millisecond part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Millisecond"))
	static int32 GetMillisecond(FDateTime A);

	/** The Minute part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Minute"))
	static int32 GetMinute(FDateTime A);

	/** The Month part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Month"))
	static int32 GetMonth(FDateTime A);

	/** The Second part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Second"))
	static int32 GetSecond(FDateTime A);

	/** The Year part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Year"))
	static int32 GetYear(FDateTime A);

	/** The DayOfYear part of a point in time */
	UFUNCTION(BlueprintPure, Category = "Math|DateTime", meta = (DisplayName = "Get Day Of Year"))
	static int32 GetDayOfYear(FDateTime A);

	/** A length of time of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (Keywords = "construct build", NativeMakeFunc))
	static FTimespan MakeTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 Milliseconds);

	/** The parts of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (NativeBreakFunc))
	static void BreakTimespan(FTimespan InTimespan, int32& Days, int32& Hours, int32& Minutes, int32& Seconds, int32& Milliseconds);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan + Timespan", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FTimespan Add_TimespanTimespan(FTimespan A, FTimespan B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan - Timespan", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FTimespan Subtract_TimespanTimespan(FTimespan A, FTimespan B);

	/** A length of time times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan * Float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FTimespan Multiply_TimespanFloat(FTimespan A, float Scalar);

	/** Returns true if A is equal to B (A == B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Equal (Timespan)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is not equal to B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Not Equal (Timespan)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan > Timespan", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan >= Timespan", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan < Timespan", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_TimespanTimespan(FTimespan A, FTimespan B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Timespan <= Timespan", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_TimespanTimespan(FTimespan A, FTimespan B);

	/** The days part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Days"))
	static int32 GetDays(FTimespan A);

	/** The hours part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Hours"))
	static int32 GetHours(FTimespan A);

	/** The milliseconds part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Milliseconds"))
	static int32 GetMilliseconds(FTimespan A);

	/** The minutes part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Minutes"))
	static int32 GetMinutes(FTimespan A);

	/** The seconds part of a length of time */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Seconds"))
	static int32 GetSeconds(FTimespan A);

	/** A length of time in days */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Days"))
	static double GetTotalDays(FTimespan A);

	/** A length of time in hours */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Hours"))
	static double GetTotalHours(FTimespan A);

	/** A length of time in milliseconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Milliseconds"))
	static double GetTotalMilliseconds(FTimespan A);

	/** A length of time in minutes */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Minutes"))
	static double GetTotalMinutes(FTimespan A);

	/** A length of time in seconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "Get Total Seconds"))
	static double GetTotalSeconds(FTimespan A);

	/** A length of time of days */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Days"))
	static FTimespan FromDays(double Days);

	/** A length of time of hours */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Hours"))
	static FTimespan FromHours(double Hours);

	/** A length of time of milliseconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Milliseconds"))
	static FTimespan FromMilliseconds(double Milliseconds);

	/** A length of time of minutes */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Minutes"))
	static FTimespan FromMinutes(double Minutes);

	/** A length of time of seconds */
	UFUNCTION(BlueprintPure, Category = "Math|Timespan", meta = (DisplayName = "From Seconds"))
	static FTimespan FromSeconds(double Seconds);

	/** A source of random numbers that repeats by its seed */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (Keywords = "construct build", NativeMakeFunc))
	static FRandomStream MakeRandomStream(int32 InitialSeed);

	/** Random number of a stream from Min to Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static int32 RandomIntegerInRangeFromStream(const FRandomStream& Stream, int32 Min, int32 Max);

	/** Random number of a stream from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static float RandomFloatInRangeFromStream(const FRandomStream& Stream, float Min, float Max);

	/** Random true or false of a stream */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBoolFromStream(const FRandomStream& Stream);
};
