#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Math/MathFwd.h"

struct FColor;
struct FLinearColor;

/** Reads the literals of default values: pins' text ("1.000000,2.000000,3.000000") and C++ ("FVector(1.f, 2.f, 3.f)"). */
class CORE_API FDefaultValueHelper
{
public:
	/** `Type(Parameters)`: the part between the parentheses. */
	static bool GetParameters(const FString& Source, const FString& TypeName, FString& OutForm);
	static bool Is(const FString& Source, const TCHAR* CompareStr);
	static const TCHAR* EndOf(const FString& Source) { return *Source + Source.Len(); }
	static const TCHAR* StartOf(const FString& Source) { return *Source; }
	static FString RemoveWhitespaces(const FString& Source);
	static bool HasWhitespaces(const FString& Source);
	static FString GetUnqualifiedEnumValue(const FString& Source);
	static bool HasOnlyWhitespaces(const TCHAR* Start, const TCHAR* End);

	/** Digits with an optional sign, or hexadecimal after 0x. */
	static bool IsStringValidInteger(const FString& Source);
	/** As C++ writes one: "1", "-1.5", "1.e3", "2.0f". */
	static bool IsStringValidFloat(const FString& Source);
	static bool IsStringValidVector(const FString& Source);
	static bool IsStringValidRotator(const FString& Source);
	static bool IsStringValidLinearColor(const FString& Source);
	static bool StringFromCppString(const FString& Source, const FString& TypeName, FString& OutForm);

	// Numbers between commas. The outputs are untouched when the text does not fit.
	static bool ParseVector(const FString& Source, FVector3f& OutVal);
	static bool ParseVector(const FString& Source, FVector3d& OutVal);
	static bool ParseVector2D(const FString& Source, FVector2f& OutVal);
	static bool ParseVector2D(const FString& Source, FVector2d& OutVal);
	static bool ParseVector4(const FString& Source, FVector4f& OutVal);
	static bool ParseVector4(const FString& Source, FVector4d& OutVal);
	static bool ParseRotator(const FString& Source, FRotator3f& OutVal);
	static bool ParseRotator(const FString& Source, FRotator3d& OutVal);
	static bool ParseLinearColor(const FString& Source, FLinearColor& OutVal);
	static bool ParseColor(const FString& Source, FColor& OutVal);
	static bool ParseInt(const FString& Source, int32& OutVal);
	static bool ParseInt64(const FString& Source, int64& OutVal);
	static bool ParseFloat(const FString& Source, float& OutVal);
	static bool ParseDouble(const FString& Source, double& OutVal);
};
