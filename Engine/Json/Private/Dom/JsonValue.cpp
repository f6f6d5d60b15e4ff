#include "Dom/JsonValue.h"

#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "JsonGlobals.h"
#include "Misc/CString.h"

#include <charconv>
#include <limits>

DEFINE_LOG_CATEGORY(LogJson);

namespace
{
/** A missing value is as good as a null one. */
bool ArePointeesEqual(const TSharedPtr<FJsonValue>& Lhs, const TSharedPtr<FJsonValue>& Rhs)
{
	if (!Lhs || !Rhs)
	{
		return (!Lhs || Lhs->IsNull()) && (!Rhs || Rhs->IsNull());
	}
	return FJsonValue::CompareEqual(*Lhs, *Rhs);
}

/** The integer that a text is to its last digit; false also for one that the type cannot hold. */
template <typename IntType>
bool ParseInteger(const FString& Text, IntType& OutNumber)
{
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	const ANSICHAR* const End = Utf8.Get() + Utf8.Length();
	IntType Number = 0;
	const std::from_chars_result Result = std::from_chars(Utf8.Get(), End, Number);
	if (Result.ec != std::errc() || Result.ptr != End)
	{
		return false;
	}
	OutNumber = Number;
	return true;
}

/** The nearest integer, where the type can hold it. */
template <typename IntType>
bool ToInteger(const FJsonValue& Value, IntType& OutNumber)
{
	double Number = 0.0;
	if (!Value.TryGetNumber(Number))
	{
		return false;
	}
	const double Rounded = FMath::RoundToDouble(Number);
	// The upper bound plus one is a power of two, so it is exact as a double where the bound itself may not be.
	const double UpperLimit = 2.0 * double(std::numeric_limits<IntType>::max() / 2 + 1);
	if (!(Rounded >= double(std::numeric_limits<IntType>::min()) && Rounded < UpperLimit))
	{
		return false;
	}
	OutNumber = IntType(Rounded);
	return true;
}
}

double FJsonValue::AsNumber() const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		ErrorMessage(TEXT("Number"));
	}
	return Number;
}

FString FJsonValue::AsString() const
{
	FString String;
	if (!TryGetString(String))
	{
		ErrorMessage(TEXT("String"));
	}
	return String;
}

bool FJsonValue::AsBool() const
{
	bool Bool = false;
	if (!TryGetBool(Bool))
	{
		ErrorMessage(TEXT("Boolean"));
	}
	return Bool;
}

const TArray<TSharedPtr<FJsonValue>>& FJsonValue::AsArray() const
{
	static const TArray<TSharedPtr<FJsonValue>> Empty;
	const TArray<TSharedPtr<FJsonValue>>* Array = &Empty;
	if (!TryGetArray(Array))
	{
		ErrorMessage(TEXT("Array"));
	}
	return *Array;
}

const TSharedPtr<FJsonObject>& FJsonValue::AsObject() const
{
	static const TSharedPtr<FJsonObject> Empty = MakeShared<FJsonObject>();
	ErrorMessage(TEXT("Object"));
	return Empty;
}

bool FJsonValue::TryGetNumber(float& OutNumber) const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		return false;
	}
	OutNumber = float(Number);
	return true;
}

bool FJsonValue::TryGetNumber(int8& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int16& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int32& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int64& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint8& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint16& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint32& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint64& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::CompareEqual(const FJsonValue& Lhs, const FJsonValue& Rhs)
{
	if (Lhs.Type != Rhs.Type)
	{
		return false;
	}
	switch (Lhs.Type)
	{
		case EJson::None:
		case EJson::Null:
			return true;
		case EJson::String:
			return Lhs.AsString().Equals(Rhs.AsString(), ESearchCase::CaseSensitive);
		case EJson::Number:
			return Lhs.AsNumber() == Rhs.AsNumber();
		case EJson::Boolean:
			return Lhs.AsBool() == Rhs.AsBool();
		case EJson::Array:
		{
			const TArray<TSharedPtr<FJsonValue>>& A = Lhs.AsArray();
			const TArray<TSharedPtr<FJsonValue>>& B = Rhs.AsArray();
			bool bEqual = A.Num() == B.Num();
			for (int32 Index = 0; bEqual && Index < A.Num(); ++Index)
			{
				bEqual = ArePointeesEqual(A[Index], B[Index]);
			}
			return bEqual;
		}
		case EJson::Object:
		{
			const TSharedPtr<FJsonObject>& A = Lhs.AsObject();
			const TSharedPtr<FJsonObject>& B = Rhs.AsObject();
			if (!A || !B)
			{
				return !A && !B;
			}
			bool bEqual = A->Values.Num() == B->Values.Num();
			for (auto It = A->Values.CreateConstIterator(); bEqual && It; ++It)
			{
				bEqual = B->Values.Contains(It.Key()) && ArePointeesEqual(It.Value(), B->TryGetField(It.Key()));
			}
			return bEqual;
		}
	}
	return false;
}

TSharedPtr<FJsonValue> FJsonValue::Duplicate(const TSharedPtr<const FJsonValue>& Src)
{
	if (!Src)
	{
		return nullptr;
	}
	switch (Src->Type)
	{
		case EJson::Array:
		{
			TArray<TSharedPtr<FJsonValue>> Elements;
			for (const TSharedPtr<FJsonValue>& Element : Src->AsArray())
			{
				Elements.Add(Duplicate(Element));
			}
			return MakeShared<FJsonValueArray>(MoveTemp(Elements));
		}
		case EJson::Object:
		{
			const TSharedPtr<FJsonObject> Copy = MakeShared<FJsonObject>();
			FJsonObject::Duplicate(Src->AsObject(), Copy);
			return MakeShared<FJsonValueObject>(Copy);
		}
		default:
			// Leaves never change, so both documents may hold the same one.
			return ConstCastSharedPtr<FJsonValue>(Src);
	}
}

void FJsonValue::ErrorMessage(const TCHAR* InType) const
{
	UE_LOG(LogJson, Error, TEXT("Json Value of type '%s' used as a '%s'."), *GetType(), InType);
}

bool FJsonValueString::TryGetString(FString& OutString) const
{
	OutString = Value;
	return true;
}

bool FJsonValueString::TryGetNumber(double& OutNumber) const
{
	if (!Value.IsNumeric())
	{
		return false;
	}
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueString::TryGetBool(bool& OutBool) const
{
	OutBool = Value.ToBool();
	return true;
}

bool FJsonValueNumber::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value;
	return true;
}

bool FJsonValueNumber::TryGetBool(bool& OutBool) const
{
	OutBool = Value != 0.0;
	return true;
}

bool FJsonValueNumber::TryGetString(FString& OutString) const
{
	OutString = FString::SanitizeFloat(Value, 0);
	return true;
}

bool FJsonValueNumberString::TryGetString(FString& OutString) const
{
	OutString = Value;
	return true;
}

bool FJsonValueNumberString::TryGetNumber(double& OutNumber) const
{
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueNumberString::TryGetNumber(int64& OutNumber) const
{
	return ParseInteger(Value, OutNumber) || FJsonValue::TryGetNumber(OutNumber);
}

bool FJsonValueNumberString::TryGetNumber(uint64& OutNumber) const
{
	return ParseInteger(Value, OutNumber) || FJsonValue::TryGetNumber(OutNumber);
}

bool FJsonValueNumberString::TryGetBool(bool& OutBool) const
{
	OutBool = FCString::Atod(*Value) != 0.0;
	return true;
}

bool FJsonValueBoolean::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value ? 1.0 : 0.0;
	return true;
}

bool FJsonValueBoolean::TryGetBool(bool& OutBool) const
{
	OutBool = Value;
	return true;
}

bool FJsonValueBoolean::TryGetString(FString& OutString) const
{
	OutString = Value ? TEXT("true") : TEXT("false");
	return true;
}

bool FJsonValueArray::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	OutArray = &Value;
	return true;
}

bool FJsonValueObject::TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const
{
	OutObject = &Value;
	return Value.IsValid();
}
