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
		FString Text;
		OldProperty.ExportTextItem_Direct(Text, OldProperty.ContainerPtrToValuePtr<void>(&From, Index), nullptr, nullptr, PPF_None);
		const TCHAR* const End = NewProperty.ImportText_Direct(*Text, Value, &To, PPF_None);
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
