#include "Lum/Value/LumValueText.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Value/LumTemporaryValue.h"

#include "Misc/Optional.h"
#include "Misc/OutputDevice.h"
#include "UObject/EnumProperty.h"
#include "UObject/UnrealType.h"

namespace
{
/** The enumeration of which the property's values are; null where it has none. */
const UEnum* GetEnum(const FProperty& Property)
{
	if (const FEnumProperty* const EnumProperty = CastField<FEnumProperty>(&Property))
	{
		return EnumProperty->GetEnum();
	}
	const FByteProperty* const Byte = CastField<FByteProperty>(&Property);
	return Byte ? Byte->Enum : nullptr;
}

int64 GetEnumValue(const FProperty& Property, const void* Value)
{
	const FEnumProperty* const EnumProperty = CastField<FEnumProperty>(&Property);
	return EnumProperty ? EnumProperty->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value)
						: CastFieldChecked<FByteProperty>(&Property)->GetPropertyValue(Value);
}

bool HasNumber(const UEnum& Enum, int64 Number)
{
	return Enum.IsValidEnumValue(Number) || (Enum.HasAnyEnumFlags(EEnumFlags::Flags) && Enum.IsValidEnumValueOrBitfield(Number));
}

/** Refuses a value that its property can hold but should not. */
TVexelExpected<void> CheckLeaf(const FProperty& Property, const void* Value, const UObject* Referrer)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	if (Number && Number->IsFloatingPoint())
	{
		if (!FMath::IsFinite(Number->GetFloatingPointPropertyValue(Value)))
		{
			return VEXEL_ERROR(FLumError_Import, "'%s' must be a finite number", *Property.GetName());
		}
		return {};
	}
	const UEnum* const Enum = GetEnum(Property);
	if (Enum && !HasNumber(*Enum, GetEnumValue(Property, Value)))
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' has no value %lld. %s", *Enum->GetName(),
			static_cast<long long>(GetEnumValue(Property, Value)), *FLumHelper::ListEnumerators(*Enum));
	}
	const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(&Property);
	if (Object && !Property.IsA<FSoftObjectProperty>())
	{
		const UObject* const Target = Object->GetObjectPropertyValue(Value);
		VEXEL_TRY_VOID(FLumHelper::ResolveReference(Target ? Target->GetPathName() : FString(), nullptr, Referrer));
	}
	return {};
}

/** Looks at every part of a value that is not what it was. */
class FValueCheck
{
public:
	explicit FValueCheck(const UObject* InReferrer)
		: Referrer(InReferrer)
	{
	}

	/** Old is null where there was no such part. */
	TVexelExpected<void> Check(const FProperty& Property, const void* New, const void* Old) const
	{
		if (Old && Property.Identical(New, Old, PPF_None))
		{
			return {};
		}
		if (Property.IsA<FNumericProperty>())
		{
			return CheckLeaf(Property, New, Referrer);
		}
		if (const FStructProperty* const Struct = CastField<FStructProperty>(&Property))
		{
			return CheckMembers(*Struct->Struct, New, Old);
		}
		if (const FArrayProperty* const Array = CastField<FArrayProperty>(&Property))
		{
			return CheckElements(*Array, New, Old);
		}
		if (const FSetProperty* const Set = CastField<FSetProperty>(&Property))
		{
			return CheckElements(*Set, New);
		}
		if (const FMapProperty* const Map = CastField<FMapProperty>(&Property))
		{
			return CheckPairs(*Map, New);
		}
		return CheckLeaf(Property, New, Referrer);
	}

private:
	TVexelExpected<void> CheckMembers(const UScriptStruct& Struct, const void* New, const void* Old) const
	{
		for (TFieldIterator<FProperty> It(&Struct); It; ++It)
		{
			for (int32 Index = 0; Index < It->ArrayDim; ++Index)
			{
				VEXEL_TRY_VOID(Check(**It, It->ContainerPtrToValuePtr<void>(New, Index),
					Old ? It->ContainerPtrToValuePtr<void>(Old, Index) : nullptr));
			}
		}
		return {};
	}

	TVexelExpected<void> CheckElements(const FArrayProperty& Property, const void* New, const void* Old) const
	{
		const FScriptArrayHelper NewArray(&Property, New);
		const int32 NumOld = Old ? FScriptArrayHelper(&Property, Old).Num() : 0;
		for (int32 Index = 0; Index < NewArray.Num(); ++Index)
		{
			const void* const OldElement = Index < NumOld ? FScriptArrayHelper(&Property, Old).GetRawPtr(Index) : nullptr;
			VEXEL_TRY_VOID(Check(*Property.Inner, NewArray.GetRawPtr(Index), OldElement));
		}
		return {};
	}

	TVexelExpected<void> CheckElements(const FSetProperty& Property, const void* New) const
	{
		const FScriptSetHelper Set(&Property, New);
		for (FScriptSetHelper::FIterator It = Set.CreateIterator(); It; ++It)
		{
			VEXEL_TRY_VOID(Check(*Property.ElementProp, Set.GetElementPtr(It.GetInternalIndex()), nullptr));
		}
		return {};
	}

	TVexelExpected<void> CheckPairs(const FMapProperty& Property, const void* New) const
	{
		const FScriptMapHelper Map(&Property, New);
		for (FScriptMapHelper::FIterator It = Map.CreateIterator(); It; ++It)
		{
			VEXEL_TRY_VOID(Check(*Property.KeyProp, Map.GetKeyPtr(It.GetInternalIndex()), nullptr));
			VEXEL_TRY_VOID(Check(*Property.ValueProp, Map.GetValuePtr(It.GetInternalIndex()), nullptr));
		}
		return {};
	}

	const UObject* Referrer;
};

/** The engine reads whole numbers off the front of others, and forgets the rest. */
bool LosesFraction(const FProperty& Property, const FString& Text)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	const double Value = Number && Number->IsInteger() && Text.Contains(TEXT(".")) ? FCString::Atod(*Text) : 0.0;
	return FMath::Fmod(Value, 1.0) != 0.0;
}

/** What is wrong with the text; empty where nothing is. */
FString FindFault(const FProperty& Property, void* Value, const FString& Text, UObject* Referrer, LumValueText::ESource Source)
{
	FStringOutputDevice Errors;
	const TCHAR* Rest = Property.ImportText_Direct(*Text, Value, Referrer, PPF_None, &Errors);
	if (!Rest)
	{
		const UEnum* const Enum = GetEnum(Property);
		return Enum ? FString(Errors) + TEXT(". ") + FLumHelper::ListEnumerators(*Enum) : FString(Errors);
	}
	// What the engine skips, such as a member that the struct does not have, it only warns of.
	if (Source == LumValueText::ESource::Given && !Errors.IsEmpty())
	{
		return FString(Errors);
	}
	while (FChar::IsWhitespace(*Rest))
	{
		++Rest;
	}
	if (*Rest)
	{
		return FString::Printf(TEXT("'%s' stands behind the value"), Rest);
	}
	if (Rest < *Text + Text.Len())
	{
		return TEXT("it has a character of the code 0");
	}
	return LosesFraction(Property, Text) ? FString::Printf(TEXT("'%s' is not a whole number"), *Text) : FString();
}
}

TVexelExpected<void> LumValueText::Read(const FProperty& Property, void* Value, const FString& Text, UObject* Referrer, ESource Source)
{
	// A plain number is right or wrong whatever it was before.
	const bool bIsPlainNumber = Property.IsA<FNumericProperty>() && !GetEnum(Property);
	TOptional<FLumTemporaryValue> Old;
	if (!bIsPlainNumber)
	{
		Old.Emplace(Property, Value);
	}
	FString Fault = FindFault(Property, Value, Text, Referrer, Source);
	if (Fault.IsEmpty())
	{
		const TVexelExpected<void> Check = FValueCheck(Referrer).Check(Property, Value, Old ? Old->Get() : nullptr);
		Fault = Check.HasError() ? Check.GetError().GetMessage() : FString();
	}
	if (!Fault.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Import, "Failed to import text to property '%s': %s", *Property.GetName(), *Fault);
	}
	return {};
}
