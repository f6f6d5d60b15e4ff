#include "UObject/LayoutTransfer.h"

#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
bool IsInherited(const UObject& Object, const UObject* Archetype, const FProperty& Property)
{
	const UClass* const Owner = Property.GetOwnerClass();
	if (!Archetype || Archetype == &Object || !Owner || !Archetype->GetClass()->IsChildOf(Owner))
	{
		return false;
	}
	for (int32 Index = 0; Index < Property.ArrayDim; ++Index)
	{
		if (!Property.Identical_InContainer(&Object, Archetype, Index, PPF_DeepComparison))
		{
			return false;
		}
	}
	return true;
}

/** Enumerators are names, not numbers. */
const FNumericProperty* AsNumber(const FProperty& Property)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	return Number && !Number->IsEnum() ? Number : nullptr;
}

/** The number, or the Boolean as one; unset for anything else. */
TOptional<double> GetNumber(const FProperty& Property, const void* Value)
{
	if (const FBoolProperty* const Boolean = CastField<FBoolProperty>(&Property))
	{
		return Boolean->GetPropertyValue(Value) ? 1.0 : 0.0;
	}
	const FNumericProperty* const Number = AsNumber(Property);
	return Number && Number->IsFloatingPoint() ? Number->GetFloatingPointPropertyValue(Value) : TOptional<double>();
}

/** Where a text would break off: a whole number takes what stands before the point. False where there is nothing to convert. */
bool ConvertNumber(const FProperty& OldProperty, const void* OldValue, const FProperty& NewProperty, void* NewValue)
{
	const FNumericProperty* const New = AsNumber(NewProperty);
	const FNumericProperty* const Old = AsNumber(OldProperty);
	if (const FBoolProperty* const Boolean = CastField<FBoolProperty>(&NewProperty); Boolean && Old)
	{
		const bool bIsZero = Old->IsFloatingPoint() ? Old->GetFloatingPointPropertyValue(OldValue) == 0
													: Old->GetSignedIntPropertyValue(OldValue) == 0;
		Boolean->SetPropertyValue(NewValue, !bIsZero);
		return true;
	}
	const bool bIsAsked = New && (New->IsInteger() || OldProperty.IsA<FBoolProperty>());
	const TOptional<double> Number = bIsAsked ? GetNumber(OldProperty, OldValue) : TOptional<double>();
	if (Number && New->IsFloatingPoint())
	{
		New->SetFloatingPointPropertyValue(NewValue, *Number);
		return true;
	}
	constexpr double Limit = 9.2e18;
	const bool bFits = Number && FMath::Abs(*Number) < Limit && New->CanHoldValue(static_cast<int64>(*Number));
	if (bFits)
	{
		New->SetIntPropertyValue(NewValue, static_cast<int64>(*Number));
	}
	return bFits;
}

void TransferValue(const UObject& From, const FProperty& OldProperty, UObject& To, const FProperty& NewProperty)
{
	if (OldProperty.SameType(&NewProperty) && OldProperty.ArrayDim == NewProperty.ArrayDim)
	{
		NewProperty.CopyCompleteValue(NewProperty.ContainerPtrToValuePtr<void>(&To), OldProperty.ContainerPtrToValuePtr<void>(&From));
		return;
	}
	// Read into a value of its own first: a text that breaks off must not leave half of itself behind.
	void* const Value = NewProperty.AllocateAndInitializeValue();
	for (int32 Index = 0; Index < FMath::Min(OldProperty.ArrayDim, NewProperty.ArrayDim); ++Index)
	{
		const void* const OldValue = OldProperty.ContainerPtrToValuePtr<void>(&From, Index);
		const bool bIsConverted = ConvertNumber(OldProperty, OldValue, NewProperty, Value);
		FString Text;
		OldProperty.ExportTextItem_Direct(Text, OldValue, nullptr, nullptr, PPF_None);
		const TCHAR* const End = bIsConverted ? TEXT("") : NewProperty.ImportText_Direct(*Text, Value, &To, PPF_None);
		if (End && !*End)
		{
			NewProperty.SetSingleValue_InContainer(&To, Value, Index);
		}
	}
	NewProperty.DestroyAndFreeValue(Value);
}
}

void UE::CoreUObject::TransferValues(UObject& From, UObject& To,
	TFunctionRef<const FProperty*(const FProperty& NewProperty)> FindOldProperty, TMap<UObject*, UObject*>& OutParts)
{
	const UObject* const Archetype = From.GetArchetype();
	for (TFieldIterator<FProperty> It(To.GetClass()); It; ++It)
	{
		// The new object made its own parts; their values are taken part by part.
		const FProperty* const OldProperty = It->ContainsInstancedObjectProperty() ? nullptr : FindOldProperty(**It);
		if (OldProperty && !IsInherited(From, Archetype, *OldProperty))
		{
			TransferValue(From, *OldProperty, To, **It);
		}
	}
	TArray<UObject*> OldParts;
	GetObjectsWithOuter(&From, OldParts, false);
	for (UObject* const OldPart : OldParts)
	{
		UObject* const NewPart = StaticFindObjectFast(OldPart->GetClass(), &To, OldPart->GetFName());
		if (NewPart)
		{
			OutParts.Add(OldPart, NewPart);
			const auto FindInOldPart = [OldPart](const FProperty& Property)
			{ return OldPart->GetClass()->FindPropertyByName(Property.GetFName()); };
			TransferValues(*OldPart, *NewPart, FindInOldPart, OutParts);
		}
	}
}
