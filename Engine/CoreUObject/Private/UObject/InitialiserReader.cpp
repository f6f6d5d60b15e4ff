#include "InitialiserReader.h"

#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <cmath>

namespace
{
bool SetInteger(const FNumericProperty* Property, void* Value, long double Number)
{
	if (std::truncl(Number) != Number)
	{
		return false;
	}
	if (Number > static_cast<long double>(MAX_int64))
	{
		if (!Property->IsA<FUInt64Property>() || Number > static_cast<long double>(MAX_uint64))
		{
			return false;
		}
		Property->SetIntPropertyValue(Value, static_cast<uint64>(Number));
		return true;
	}
	if (Number < static_cast<long double>(MIN_int64) || !Property->CanHoldValue(static_cast<int64>(Number)))
	{
		return false;
	}
	Property->SetIntPropertyValue(Value, static_cast<int64>(Number));
	return true;
}

}

FInitialiserReader::FInitialiserReader(const FString& InText)
	: Text(InText)
	, Position(*Text)
{
}

bool FInitialiserReader::Read(const FProperty* Property, void* Value)
{
	const bool bRead = Property->ArrayDim > 1 ? ReadElements(Property, Value) : ReadValue(Property, Value);
	SkipBlanks();
	return bRead && !*Position;
}

bool FInitialiserReader::ReadElements(const FProperty* Property, void* Value)
{
	if (!TakeIf(TEXT("{")))
	{
		return false;
	}
	for (int32 Index = 0; !TakeIf(TEXT("}")); ++Index)
	{
		if (Index >= Property->ArrayDim ||
			!ReadValue(Property, static_cast<uint8*>(Value) + static_cast<SIZE_T>(Index) * Property->GetElementSize()))
		{
			return false;
		}
		if (!TakeIf(TEXT(",")) && !Peek(TEXT("}")))
		{
			return false;
		}
	}
	return true;
}

bool FInitialiserReader::ReadValue(const FProperty* Property, void* Value)
{
	if (++Depth > MaxDepth)
	{
		return false;
	}
	bool bRead = false;
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		bRead = ReadStruct(Struct->Struct, Value);
	}
	else if (Property->IsA<FArrayProperty>() || Property->IsA<FSetProperty>() || Property->IsA<FMapProperty>())
	{
		bRead = ReadList(Property, Value);
	}
	else if (TakeIf(TEXT("{")))
	{
		bRead = TakeIf(TEXT("}")) || (ReadScalar(Property, Value) && TakeIf(TEXT("}")));
	}
	else
	{
		bRead = ReadScalar(Property, Value);
	}
	--Depth;
	return bRead;
}

bool FInitialiserReader::ReadScalar(const FProperty* Property, void* Value)
{
	const FByteProperty* const Byte = CastField<FByteProperty>(Property);
	const FEnumProperty* const EnumProperty = CastField<FEnumProperty>(Property);
	if (const UEnum* const Enum = EnumProperty ? EnumProperty->GetEnum() : Byte ? Byte->Enum
																				: nullptr)
	{
		int64 Number = 0;
		return ReadEnumerator(Enum, Number) &&
			SetInteger(EnumProperty ? EnumProperty->GetUnderlyingProperty() : Byte, Value, static_cast<long double>(Number));
	}
	if (const FNumericProperty* const Numeric = CastField<FNumericProperty>(Property))
	{
		long double Number = 0;
		if (!ReadNumber(Number))
		{
			return false;
		}
		if (Numeric->IsInteger())
		{
			return SetInteger(Numeric, Value, Number);
		}
		Numeric->SetFloatingPointPropertyValue(Value, static_cast<double>(Number));
		return true;
	}
	if (const FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
	{
		bool bValue = false;
		const bool bRead = ReadBool(bValue);
		Bool->SetPropertyValue(Value, bValue);
		return bRead;
	}
	if (const FTextProperty* const TextProperty = CastField<FTextProperty>(Property))
	{
		return ReadText(*TextProperty->GetPropertyValuePtr(Value));
	}
	if (const FOptionalProperty* const Optional = CastField<FOptionalProperty>(Property))
	{
		const TCHAR* const Start = Position;
		if (TakeName().EndsWith(TEXT("NullOpt")))
		{
			return true;
		}
		Position = Start;
		return ReadValue(Optional->GetValueProperty(), Optional->MarkSetAndGetInitializedValuePointerToReplace(Value));
	}
	if (Property->IsA<FStrProperty>() || Property->IsA<FNameProperty>())
	{
		FString String;
		if (!ReadString(String))
		{
			return false;
		}
		if (Property->IsA<FStrProperty>())
		{
			*static_cast<FString*>(Value) = String;
			return true;
		}
		*static_cast<FName*>(Value) = FName(*String);
		return String.Len() < NAME_SIZE;
	}
	return ReadReference(Property, Value);
}

bool FInitialiserReader::ReadBool(bool& bOut)
{
	const bool bNot = TakeIf(TEXT("!"));
	const FString Name = TakeName();
	long double Number = 0;
	if (Name.IsEmpty() && ReadNumber(Number))
	{
		bOut = (Number != 0) != bNot;
		return true;
	}
	bOut = (Name == TEXT("true")) != bNot;
	return Name.Equals(TEXT("true"), ESearchCase::CaseSensitive) || Name.Equals(TEXT("false"), ESearchCase::CaseSensitive);
}

bool FInitialiserReader::ReadEnumerator(const UEnum* Enum, int64& Out)
{
	const bool bCast = TakeIf(TEXT("(")) && !TakeName().IsEmpty() && TakeIf(TEXT(")"));
	const FString Name = TakeName();
	if (Name.IsEmpty() || Peek(TEXT("(")) || Peek(TEXT("{")))
	{
		const bool bOpen = TakeIf(TEXT("(")) || TakeIf(TEXT("{"));
		if ((bCast || bOpen) && bOpen && (TakeIf(TEXT(")")) || TakeIf(TEXT("}"))))
		{
			return true;
		}
		// A construction from an enumerator or from a number.
		SkipBlanks();
		if (bOpen && !FChar::IsDigit(*Position) && *Position != TEXT('-'))
		{
			return ReadEnumerator(Enum, Out) && (TakeIf(TEXT(")")) || TakeIf(TEXT("}")));
		}
		long double Number = 0;
		if (!ReadNumber(Number) || (bOpen && !TakeIf(TEXT(")")) && !TakeIf(TEXT("}"))))
		{
			return false;
		}
		Out = static_cast<int64>(Number);
		return bCast || bOpen;
	}
	int32 Index = Enum->GetIndexByNameString(Name);
	if (Index == INDEX_NONE)
	{
		FString Scope;
		FString Short;
		Index = Name.Split(TEXT("::"), &Scope, &Short, ESearchCase::CaseSensitive, ESearchDir::FromEnd)
			? Enum->GetIndexByNameString(Short)
			: INDEX_NONE;
	}
	Out = Index == INDEX_NONE ? 0 : Enum->GetValueByIndex(Index);
	return Index != INDEX_NONE;
}

bool FInitialiserReader::ReadString(FString& Out)
{
	if (Peek(TEXT("\"")))
	{
		return TakeQuoted(Out);
	}
	const FString Name = TakeName();
	const bool bIsWrapper = Name == TEXT("TEXT") || Name == TEXT("FString") || Name == TEXT("FName");
	if (!bIsWrapper)
	{
		// A built-in name is its own text.
		Out = Name.StartsWith(TEXT("NAME_")) && Name != TEXT("NAME_None") ? Name.RightChop(5) : FString();
		return Name.StartsWith(TEXT("NAME_"));
	}
	const TCHAR* const Close = TakeIf(TEXT("(")) ? TEXT(")") : TakeIf(TEXT("{")) ? TEXT("}")
																				 : nullptr;
	if (!Close)
	{
		return false;
	}
	if (TakeIf(Close))
	{
		return true;
	}
	if (!ReadString(Out) || !TakeIf(Close))
	{
		return false;
	}
	FString Next;
	while (Name == TEXT("TEXT") && (Peek(TEXT("TEXT")) || Peek(TEXT("\""))))
	{
		Next.Reset();
		if (!ReadString(Next))
		{
			return false;
		}
		Out += Next;
	}
	return true;
}

bool FInitialiserReader::ReadText(FText& Out)
{
	const FString Name = TakeName();
	constexpr int32 MaxArguments = 3;
	FString Arguments[MaxArguments];
	int32 NumArguments = 0;
	if (!TakeIf(TEXT("(")))
	{
		return false;
	}
	while (!TakeIf(TEXT(")")))
	{
		if (NumArguments == MaxArguments || !ReadString(Arguments[NumArguments++]) || (!TakeIf(TEXT(",")) && !Peek(TEXT(")"))))
		{
			return false;
		}
	}
	const auto IsCall = [&Name, NumArguments](const TCHAR* Function, int32 Count)
	{ return Name == Function && NumArguments == Count; };
	if (IsCall(TEXT("FText"), 0) || IsCall(TEXT("FText::GetEmpty"), 0))
	{
		return true;
	}
	if (IsCall(TEXT("NSLOCTEXT"), 3) || IsCall(TEXT("LOCTEXT"), 2))
	{
		const int32 Key = NumArguments - 2;
		Out = FText::ChangeKey(Key ? Arguments[0] : FString(), Arguments[Key], FText::FromString(Arguments[Key + 1]));
		return true;
	}
	const bool bInvariant = IsCall(TEXT("INVTEXT"), 1) || IsCall(TEXT("FText::AsCultureInvariant"), 1);
	Out = bInvariant ? FText::AsCultureInvariant(Arguments[0]) : FText::FromString(Arguments[0]);
	return bInvariant || IsCall(TEXT("FText::FromString"), 1);
}

bool FInitialiserReader::ReadReference(const FProperty* Property, void* Value)
{
	const FString Name = TakeName();
	if (Name == TEXT("nullptr") || Name == TEXT("NULL"))
	{
		return true;
	}
	if (Name.IsEmpty() || !TakeIf(TEXT("(")))
	{
		return false;
	}
	if (!TakeIf(TEXT(")")))
	{
		// A reference made of another: TWeakObjectPtr<UObject>(nullptr).
		return ReadReference(Property, Value) && TakeIf(TEXT(")"));
	}
	FString ClassName;
	FString Function;
	const FObjectPropertyBase* const Reference = CastField<FObjectPropertyBase>(Property);
	if (!Name.Split(TEXT("::"), &ClassName, &Function) || Function != TEXT("StaticClass"))
	{
		// An empty one of the member's own type.
		return Property->GetCPPType().StartsWith(Name, ESearchCase::CaseSensitive);
	}
	const bool bHoldsClasses = Property->IsA<FClassProperty>() || Property->IsA<FSoftClassProperty>();
	UClass* const Class = bHoldsClasses ? FindFirstObject<UClass>(*ClassName.RightChop(1), EFindFirstObjectOptions::NativeFirst) : nullptr;
	if (Class)
	{
		Reference->SetObjectPropertyValue(Value, Class);
	}
	return Class != nullptr;
}
