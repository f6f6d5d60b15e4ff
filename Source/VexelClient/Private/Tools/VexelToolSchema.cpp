#include "Tools/VexelToolSchema.h"

#include "VexelErrorKinds.h"

namespace
{
constexpr int32 MaxShownDigits = 24;

FString WithArticle(const FString& Noun)
{
	const bool bVowel = FString(TEXT("aeiou")).Contains(Noun.Left(1));
	return (bVowel ? TEXT("an ") : TEXT("a ")) + Noun;
}

/** "an integer from 1 to 200" */
FString DescribeExpected(const FString& TypeName, const FVexelToolRule& Rule)
{
	FString Text = WithArticle(TypeName);
	if (Rule.Least != MIN_int32 && Rule.Most != MAX_int32)
	{
		Text += FString::Printf(TEXT(" from %d to %d"), Rule.Least, Rule.Most);
	}
	else if (Rule.Least != MIN_int32)
	{
		Text += FString::Printf(TEXT(" of at least %d"), Rule.Least);
	}
	else if (Rule.Most != MAX_int32)
	{
		Text += FString::Printf(TEXT(" of at most %d characters"), Rule.Most);
	}
	return Rule.bNotEmpty ? Text + TEXT(" that is not empty") : Text;
}

FString DescribeValue(const FJsonValue& Value, const FVexelToolRule& Rule)
{
	FString Text;
	const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
	switch (Value.Type)
	{
		case EJson::String:
			Value.TryGetString(Text);
			return Text.IsEmpty() ? FString(TEXT("an empty string")) : Text.Len() > Rule.Most ? FString::Printf(TEXT("one of %d"), Text.Len())
																							  : FString(TEXT("a string"));
		case EJson::Number:
			Value.TryGetString(Text);
			return Text.Len() > MaxShownDigits ? Text.Left(MaxShownDigits) + TEXT("...") : Text;
		case EJson::Boolean:
			return TEXT("a boolean");
		case EJson::Array:
			return Value.TryGetArray(Elements) && Elements->IsEmpty() ? TEXT("an empty array") : TEXT("an array");
		case EJson::Object:
			return TEXT("an object");
		default:
			return TEXT("null");
	}
}
}

FVexelError VexelInternal::MakeToolInputError(
	const FString& Path, const FString& TypeName, const FVexelToolRule& Rule, const FJsonValue& Value, const TCHAR* Complaint)
{
	if (Complaint)
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "%s", Complaint);
	}
	return VEXEL_ERROR(
		FVexelError_ToolInvalidInput, "`%s` must be %s, not %s", *Path, *DescribeExpected(TypeName, Rule), *DescribeValue(Value, Rule));
}

TVexelExpected<void> FVexelToolSchema::ReadInto(void* Record, const FJsonObject& Object, const FString& Path) const
{
	for (const FField& Field : Fields)
	{
		const FString FieldPath = Path + Field.Name;
		const TSharedPtr<FJsonValue> Value = Object.TryGetField(Field.Name);
		if (!Value || Value->IsNull())
		{
			if (!Field.bRequired)
			{
				continue;
			}
			return Field.Rule.Complaint ? VEXEL_ERROR(FVexelError_ToolInvalidInput, "%s", Field.Rule.Complaint)
										: VEXEL_ERROR(FVexelError_ToolInvalidInput, "Missing `%s`", *FieldPath);
		}
		if (!Field.Fits(*Value, Field.Rule))
		{
			return VexelInternal::MakeToolInputError(FieldPath, Field.TypeName, Field.Rule, *Value, Field.Rule.Complaint);
		}
		VEXEL_TRY_VOID(Field.Read(*Value, Field, FieldPath, Record));
	}
	return {};
}

bool TVexelToolValue<FString>::Fits(const FJsonValue& Value, const FVexelToolRule& Rule)
{
	FString Text;
	return Value.Type == EJson::String && Value.TryGetString(Text) && (!Rule.bNotEmpty || !Text.IsEmpty()) && Text.Len() <= Rule.Most;
}

TVexelExpected<void> TVexelToolValue<FString>::Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, FString& Out)
{
	Value.TryGetString(Out);
	return {};
}

bool VexelInternal::IsToolInteger(const FJsonValue& Value, const FVexelToolRule& Rule)
{
	double Number = 0.0;
	return Value.Type == EJson::Number && Value.TryGetNumber(Number) && Number >= Rule.Least && Number <= Rule.Most &&
		Number == FMath::RoundToDouble(Number);
}

TVexelExpected<void> TVexelToolValue<int32>::Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, int32& Out)
{
	Value.TryGetNumber(Out);
	return {};
}

TVexelExpected<void> TVexelToolValue<bool>::Read(const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, bool& Out)
{
	Value.TryGetBool(Out);
	return {};
}

TVexelExpected<void> TVexelToolValue<TSharedPtr<FJsonObject>>::Read(
	const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TSharedPtr<FJsonObject>& Out)
{
	Out = Value.AsObject();
	return {};
}

bool TVexelToolValue<TArray<TSharedPtr<FJsonValue>>>::Fits(const FJsonValue& Value, const FVexelToolRule& Rule)
{
	const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
	return Value.TryGetArray(Elements) && (!Rule.bNotEmpty || Elements->Num() > 0);
}

TVexelExpected<void> TVexelToolValue<TArray<TSharedPtr<FJsonValue>>>::Read(
	const FJsonValue& Value, const FVexelToolRule& Rule, const FString& Path, TArray<TSharedPtr<FJsonValue>>& Out)
{
	Out = Value.AsArray();
	return {};
}
