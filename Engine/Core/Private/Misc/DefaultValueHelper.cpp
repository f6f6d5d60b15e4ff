#include "Misc/DefaultValueHelper.h"

#include "Containers/ArrayView.h"
#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"

#include <algorithm>

namespace
{
/** Skips spaces and comments of C++. */
void SkipBlanks(FStringView& Text)
{
	for (;;)
	{
		Text.TrimStartInline();
		if (Text.StartsWith(TEXT("//")))
		{
			int32 End;
			Text.RemovePrefix(Text.FindChar('\n', End) ? End + 1 : Text.Len());
		}
		else if (Text.StartsWith(TEXT("/*")))
		{
			const int32 End = Text.Find(TEXT("*/"), 2);
			Text.RemovePrefix(End == INDEX_NONE ? Text.Len() : End + 2);
		}
		else
		{
			return;
		}
	}
}

int32 CountDigits(FStringView Text)
{
	int32 Num = 0;
	while (Num < Text.Len() && FChar::IsDigit(Text[Num]))
	{
		++Num;
	}
	return Num;
}

/** A number as C++ writes it, with nothing behind it but an `f`. */
bool IsFloatText(FStringView Text)
{
	if (Text.StartsWith('-') || Text.StartsWith('+'))
	{
		Text.RemovePrefix(1);
	}
	int32 NumDigits = CountDigits(Text);
	Text.RemovePrefix(NumDigits);
	if (Text.StartsWith('.'))
	{
		Text.RemovePrefix(1);
		const int32 NumFractional = CountDigits(Text);
		Text.RemovePrefix(NumFractional);
		NumDigits += NumFractional;
	}
	if (NumDigits > 0 && Text.StartsWith(TEXT("e")))
	{
		Text.RemovePrefix(1);
		Text.RemovePrefix(Text.StartsWith('-') || Text.StartsWith('+') ? 1 : 0);
		const int32 NumExponent = CountDigits(Text);
		Text.RemovePrefix(NumExponent);
		NumDigits = NumExponent;
	}
	return NumDigits > 0 && (Text.IsEmpty() || Text.Equals(TEXT("f"), ESearchCase::IgnoreCase));
}

bool IsIntegerText(FStringView Text)
{
	if (Text.StartsWith('-') || Text.StartsWith('+'))
	{
		Text.RemovePrefix(1);
	}
	if (Text.StartsWith(TEXT("0x")))
	{
		Text.RemovePrefix(2);
		return !Text.IsEmpty() && std::all_of(Text.begin(), Text.end(), [](TCHAR Char)
									  { return FChar::IsHexDigit(Char); });
	}
	return !Text.IsEmpty() && CountDigits(Text) == Text.Len();
}

/** Reads exactly as many numbers between commas as there is room for. */
bool ParseNumbers(const FString& Source, TArrayView<double> OutNumbers)
{
	FStringView Rest(Source);
	for (int32 Index = 0; Index < OutNumbers.Num(); ++Index)
	{
		int32 Comma;
		const bool bLast = Index + 1 == OutNumbers.Num();
		if (!Rest.FindChar(',', Comma) != bLast)
		{
			return false;
		}
		const FString Number((bLast ? Rest : Rest.Left(Comma)).TrimStartAndEnd());
		if (!IsFloatText(Number))
		{
			return false;
		}
		OutNumbers[Index] = FCString::Atod(*Number);
		Rest.RemovePrefix(bLast ? Rest.Len() : Comma + 1);
	}
	return true;
}

template <typename VectorType>
bool ParseThree(const FString& Source, VectorType& OutVal)
{
	double Numbers[3];
	const bool bParsed = ParseNumbers(Source, Numbers);
	if (bParsed)
	{
		using FReal = decltype(OutVal.X);
		OutVal = VectorType(static_cast<FReal>(Numbers[0]), static_cast<FReal>(Numbers[1]), static_cast<FReal>(Numbers[2]));
	}
	return bParsed;
}

template <typename VectorType>
bool ParseTwo(const FString& Source, VectorType& OutVal)
{
	double Numbers[2];
	const bool bParsed = ParseNumbers(Source, Numbers);
	if (bParsed)
	{
		using FReal = decltype(OutVal.X);
		OutVal = VectorType(static_cast<FReal>(Numbers[0]), static_cast<FReal>(Numbers[1]));
	}
	return bParsed;
}

template <typename VectorType>
bool ParseFour(const FString& Source, VectorType& OutVal)
{
	double Numbers[4];
	const bool bParsed = ParseNumbers(Source, Numbers);
	if (bParsed)
	{
		using FReal = decltype(OutVal.X);
		OutVal = VectorType(static_cast<FReal>(Numbers[0]), static_cast<FReal>(Numbers[1]), static_cast<FReal>(Numbers[2]),
			static_cast<FReal>(Numbers[3]));
	}
	return bParsed;
}

template <typename RotatorType>
bool ParsePitchYawRoll(const FString& Source, RotatorType& OutVal)
{
	double Numbers[3];
	const bool bParsed = ParseNumbers(Source, Numbers);
	if (bParsed)
	{
		using FReal = decltype(OutVal.Pitch);
		OutVal = RotatorType(static_cast<FReal>(Numbers[0]), static_cast<FReal>(Numbers[1]), static_cast<FReal>(Numbers[2]));
	}
	return bParsed;
}
}

bool FDefaultValueHelper::GetParameters(const FString& Source, const FString& TypeName, FString& OutForm)
{
	FStringView Text(Source);
	SkipBlanks(Text);
	if (!Text.StartsWith(TypeName, ESearchCase::CaseSensitive))
	{
		return false;
	}
	Text.RemovePrefix(TypeName.Len());
	SkipBlanks(Text);
	Text.TrimEndInline();
	if (!Text.StartsWith('(') || !Text.EndsWith(')') || Text.Len() < 2)
	{
		return false;
	}
	OutForm = Text.Mid(1, Text.Len() - 2).TrimStartAndEnd();
	return true;
}

bool FDefaultValueHelper::Is(const FString& Source, const TCHAR* CompareStr)
{
	FStringView Text(Source);
	SkipBlanks(Text);
	return Text.TrimEnd().Equals(CompareStr, ESearchCase::CaseSensitive);
}

FString FDefaultValueHelper::RemoveWhitespaces(const FString& Source)
{
	FString Result;
	for (const TCHAR Char : Source)
	{
		if (!FChar::IsWhitespace(Char))
		{
			Result += Char;
		}
	}
	return Result;
}

bool FDefaultValueHelper::HasWhitespaces(const FString& Source)
{
	return std::any_of(Source.begin(), Source.end(), [](TCHAR Char)
		{ return FChar::IsWhitespace(Char); });
}

FString FDefaultValueHelper::GetUnqualifiedEnumValue(const FString& Source)
{
	const int32 At = Source.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return At == INDEX_NONE ? Source : Source.RightChop(At + 2);
}

bool FDefaultValueHelper::HasOnlyWhitespaces(const TCHAR* Start, const TCHAR* End)
{
	return std::all_of(Start, End, [](TCHAR Char)
		{ return FChar::IsWhitespace(Char); });
}

bool FDefaultValueHelper::IsStringValidInteger(const FString& Source)
{
	return IsIntegerText(FStringView(Source).TrimStartAndEnd());
}

bool FDefaultValueHelper::IsStringValidFloat(const FString& Source)
{
	return IsFloatText(FStringView(Source).TrimStartAndEnd());
}

bool FDefaultValueHelper::IsStringValidVector(const FString& Source)
{
	double Numbers[3];
	return ParseNumbers(Source, Numbers);
}

bool FDefaultValueHelper::IsStringValidRotator(const FString& Source)
{
	return IsStringValidVector(Source);
}

bool FDefaultValueHelper::IsStringValidLinearColor(const FString& Source)
{
	FLinearColor Color;
	return ParseLinearColor(Source, Color);
}

bool FDefaultValueHelper::StringFromCppString(const FString& Source, const FString& TypeName, FString& OutForm)
{
	FString Inner;
	if (!GetParameters(Source, TypeName, Inner))
	{
		Inner = Source.TrimStartAndEnd();
	}
	FString Unwrapped;
	if (GetParameters(Inner, TEXT("TEXT"), Unwrapped))
	{
		Inner = Unwrapped;
	}
	const bool bQuoted = Inner.Len() >= 2 && Inner[0] == '"' && Inner[Inner.Len() - 1] == '"';
	if (!bQuoted)
	{
		return false;
	}
	OutForm = Inner.Mid(1, Inner.Len() - 2).ReplaceEscapedCharWithChar();
	return true;
}

bool FDefaultValueHelper::ParseVector(const FString& Source, FVector3f& OutVal)
{
	return ParseThree(Source, OutVal);
}

bool FDefaultValueHelper::ParseVector(const FString& Source, FVector3d& OutVal)
{
	return ParseThree(Source, OutVal);
}

bool FDefaultValueHelper::ParseVector2D(const FString& Source, FVector2f& OutVal)
{
	return ParseTwo(Source, OutVal);
}

bool FDefaultValueHelper::ParseVector2D(const FString& Source, FVector2d& OutVal)
{
	return ParseTwo(Source, OutVal);
}

bool FDefaultValueHelper::ParseVector4(const FString& Source, FVector4f& OutVal)
{
	return ParseFour(Source, OutVal);
}

bool FDefaultValueHelper::ParseVector4(const FString& Source, FVector4d& OutVal)
{
	return ParseFour(Source, OutVal);
}

bool FDefaultValueHelper::ParseRotator(const FString& Source, FRotator3f& OutVal)
{
	return ParsePitchYawRoll(Source, OutVal);
}

bool FDefaultValueHelper::ParseRotator(const FString& Source, FRotator3d& OutVal)
{
	return ParsePitchYawRoll(Source, OutVal);
}

bool FDefaultValueHelper::ParseLinearColor(const FString& Source, FLinearColor& OutVal)
{
	double Numbers[4] = {0, 0, 0, 1};
	if (!ParseNumbers(Source, Numbers) && !ParseNumbers(Source, MakeArrayView(Numbers, 3)))
	{
		return false;
	}
	OutVal = FLinearColor(
		static_cast<float>(Numbers[0]), static_cast<float>(Numbers[1]), static_cast<float>(Numbers[2]), static_cast<float>(Numbers[3]));
	return true;
}

bool FDefaultValueHelper::ParseColor(const FString& Source, FColor& OutVal)
{
	double Numbers[4] = {0, 0, 0, 255};
	if (!ParseNumbers(Source, Numbers) && !ParseNumbers(Source, MakeArrayView(Numbers, 3)))
	{
		return false;
	}
	if (std::any_of(std::begin(Numbers), std::end(Numbers), [](double Number)
			{ return Number < 0 || Number > 255; }))
	{
		return false;
	}
	OutVal = FColor(
		static_cast<uint8>(Numbers[0]), static_cast<uint8>(Numbers[1]), static_cast<uint8>(Numbers[2]), static_cast<uint8>(Numbers[3]));
	return true;
}

bool FDefaultValueHelper::ParseInt(const FString& Source, int32& OutVal)
{
	const FString Text = Source.TrimStartAndEnd();
	if (!IsIntegerText(Text))
	{
		return false;
	}
	OutVal = FCString::Strtoi(*Text, nullptr, Text.Contains(TEXT("x")) ? 16 : 10);
	return true;
}

bool FDefaultValueHelper::ParseInt64(const FString& Source, int64& OutVal)
{
	const FString Text = Source.TrimStartAndEnd();
	if (!IsIntegerText(Text))
	{
		return false;
	}
	OutVal = FCString::Strtoi64(*Text, nullptr, Text.Contains(TEXT("x")) ? 16 : 10);
	return true;
}

bool FDefaultValueHelper::ParseFloat(const FString& Source, float& OutVal)
{
	const FString Text = Source.TrimStartAndEnd();
	if (!IsFloatText(Text))
	{
		return false;
	}
	OutVal = FCString::Atof(*Text);
	return true;
}

bool FDefaultValueHelper::ParseDouble(const FString& Source, double& OutVal)
{
	const FString Text = Source.TrimStartAndEnd();
	if (!IsFloatText(Text))
	{
		return false;
	}
	OutVal = FCString::Atod(*Text);
	return true;
}
