#include "Lum/Value/LumValuePlace.h"

#include "Lum/LumErrors.h"
#include "Lum/Value/LumTemporaryValue.h"
#include "Lum/Value/LumValueOwner.h"

#include "UObject/UnrealType.h"

FLumValuePlace::FLumValuePlace(const TSharedRef<ILumValueOwner>& InOwner, EPart InPart, const FProperty& InProperty)
	: Owner(InOwner)
	, Property(InProperty)
	, Index(INDEX_NONE)
	, Part(InPart)
	, bWithinHashed(false)
{
}

FLumValuePlace::FLumValuePlace(const FLumValuePlaceRef& InAbove, EPart InPart, const FProperty& InProperty, int32 InIndex)
	: Owner(InAbove->Owner)
	, Above(InAbove)
	, Property(InProperty)
	, Index(InIndex)
	, Part(InPart)
	, bWithinHashed(InAbove->bWithinHashed || InPart == EPart::SetElement || InPart == EPart::MapKey)
{
}

void* FLumValuePlace::Resolve() const
{
	return ResolveIn(Owner->GetMemory());
}

void* FLumValuePlace::ResolveIn(void* OwnerMemory) const
{
	return ResolvePart(Above && OwnerMemory ? Above->ResolveIn(OwnerMemory) : OwnerMemory);
}

void* FLumValuePlace::ResolveBelow(const FLumValuePlace& Ancestor, void* AncestorMemory) const
{
	return this == &Ancestor ? AncestorMemory : ResolvePart(Above->ResolveBelow(Ancestor, AncestorMemory));
}

void* FLumValuePlace::ResolvePart(void* AboveMemory) const
{
	if (!AboveMemory || Part == EPart::Whole)
	{
		return AboveMemory;
	}
	if (Part == EPart::Member)
	{
		return Property.ContainerPtrToValuePtr<void>(AboveMemory);
	}
	if (Part == EPart::ArrayElement)
	{
		const FScriptArrayHelper Array(CastFieldChecked<FArrayProperty>(&Above->Property), AboveMemory);
		return Array.IsValidIndex(Index) ? Array.GetRawPtr(Index) : nullptr;
	}
	if (Part == EPart::SetElement)
	{
		const FScriptSetHelper Set(CastFieldChecked<FSetProperty>(&Above->Property), AboveMemory);
		return Set.IsValidIndex(Index) ? Set.GetElementPtr(Index) : nullptr;
	}
	const FScriptMapHelper Map(CastFieldChecked<FMapProperty>(&Above->Property), AboveMemory);
	if (!Map.IsValidIndex(Index))
	{
		return nullptr;
	}
	return Part == EPart::MapKey ? Map.GetKeyPtr(Index) : Map.GetValuePtr(Index);
}

TVexelExpected<void> FLumValuePlace::Write(TFunctionRef<void(void* Memory)> Apply) const
{
	const auto WriteNow = [this, &Apply]() -> TVexelExpected<void>
	{
		VEXEL_TRY_VOID(Owner->CheckWritable(*this));
		if (!Resolve())
		{
			return VEXEL_ERROR(FLumError_Import, "Failed to resolve data for property '%s' on object '%s'", *Property.GetName(),
				*GetNameSafe(Owner->GetObject()));
		}
		VEXEL_TRY_VOID(CheckStaysUnique(Apply));
		if (Owner->IsInherited() && !WouldChange(Apply))
		{
			return {};
		}
		VEXEL_TRY_VOID(Owner->BeginWrite());
		Apply(Resolve());
		Rehash();
		return {};
	};
	return Owner->Change(*this, EPropertyChangeType::ValueSet, WriteNow);
}

bool FLumValuePlace::WouldChange(TFunctionRef<void(void* Memory)> Apply) const
{
	const FLumTemporaryValue Copy(Property, Resolve());
	Apply(Copy.Get());
	return !Property.Identical(Copy.Get(), Resolve(), PPF_None);
}

TVexelExpected<void> FLumValuePlace::Assign(const void* NewValue) const
{
	return Write([this, NewValue](void* Memory)
		{ Property.CopyCompleteValue(Memory, NewValue); });
}

TVexelExpected<void> FLumValuePlace::CheckStaysUnique(TFunctionRef<void(void* Memory)> Apply) const
{
	for (const FLumValuePlace* Place = this; Place && Place->bWithinHashed; Place = Place->Above.Get())
	{
		if (!Place->IsHashed())
		{
			continue;
		}
		const FLumTemporaryValue Copy(Place->Property, Place->Resolve());
		Apply(ResolveBelow(*Place, Copy.Get()));
		const int32 Equal = Place->FindEqual(Copy.Get());
		if (Equal != INDEX_NONE && Equal != Place->Index)
		{
			return VEXEL_ERROR(FLumError_Import, "'%s' already has an equal %s", *Place->Above->Property.GetName(),
				Place->Part == EPart::MapKey ? TEXT("key") : TEXT("element"));
		}
	}
	return {};
}

int32 FLumValuePlace::FindEqual(const void* Value) const
{
	void* const Container = Above->Resolve();
	return Part == EPart::MapKey ? FScriptMapHelper(CastFieldChecked<FMapProperty>(&Above->Property), Container).FindMapIndexWithKey(Value)
								 : FScriptSetHelper(CastFieldChecked<FSetProperty>(&Above->Property), Container).FindElementIndex(Value);
}

void FLumValuePlace::Rehash() const
{
	for (const FLumValuePlace* Place = this; Place && Place->bWithinHashed; Place = Place->Above.Get())
	{
		if (Place->Part == EPart::SetElement)
		{
			FScriptSetHelper(CastFieldChecked<FSetProperty>(&Place->Above->Property), Place->Above->Resolve()).Rehash();
		}
		else if (Place->Part == EPart::MapKey)
		{
			FScriptMapHelper(CastFieldChecked<FMapProperty>(&Place->Above->Property), Place->Above->Resolve()).Rehash();
		}
	}
}

void FLumValuePlace::AppendMembers(TArray<FProperty*>& OutMembers) const
{
	if (Above)
	{
		Above->AppendMembers(OutMembers);
	}
	if (Part == EPart::Member)
	{
		OutMembers.Add(const_cast<FProperty*>(&Property));
	}
}

const FLumValuePlace& FLumValuePlace::GetStablePlace() const
{
	const FLumValuePlace* Stable = this;
	for (const FLumValuePlace* Place = this; Place; Place = Place->Above.Get())
	{
		if (Place->IsHashed() || Place->Part == EPart::MapValue)
		{
			Stable = Place->Above.Get();
		}
	}
	return *Stable;
}
