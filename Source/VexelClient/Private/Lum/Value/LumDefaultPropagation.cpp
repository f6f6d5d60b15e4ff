#include "Lum/Value/LumDefaultPropagation.h"

#include "Lum/Value/LumEditNotice.h"

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** Three values of one property: an archetype's before and after, and that of an object made from it. */
struct FValues
{
	const void* Old;
	const void* New;
	void* Instance;

	FValues GetMember(const FProperty& Member) const
	{
		return {Member.ContainerPtrToValuePtr<void>(Old), Member.ContainerPtrToValuePtr<void>(New),
			Member.ContainerPtrToValuePtr<void>(Instance)};
	}
};

/** Calls Take with every part of the values where the instance has the old value, and the new one is another. */
class FDifference
{
public:
	using FTake = TFunctionRef<void(const FProperty& Property, const FValues& Values)>;

	static void Visit(const FProperty& Property, const FValues& Values, FTake Take)
	{
		if (Property.Identical(Values.Old, Values.New, PPF_None))
		{
			return;
		}
		const FStructProperty* const Struct = CastField<FStructProperty>(&Property);
		const FArrayProperty* const Array = CastField<FArrayProperty>(&Property);
		if (Struct && HasMembersAlone(*Struct->Struct))
		{
			VisitMembers(*Struct->Struct, Values, Take);
		}
		else if (!Array || !VisitElements(*Array, Values, Take))
		{
			VisitWhole(Property, Values, Take);
		}
	}

private:
	/** A struct that compares itself may have more to it than its members. */
	static bool HasMembersAlone(const UScriptStruct& Struct) { return (Struct.StructFlags & STRUCT_IdenticalNative) == 0; }

	static void VisitMembers(const UScriptStruct& Struct, const FValues& Values, FTake Take)
	{
		for (TFieldIterator<FProperty> It(&Struct); It; ++It)
		{
			if (It->ArrayDim == 1)
			{
				Visit(**It, Values.GetMember(**It), Take);
			}
			else
			{
				VisitWhole(**It, Values.GetMember(**It), Take);
			}
		}
	}

	/** False where elements were added or removed. */
	static bool VisitElements(const FArrayProperty& Property, const FValues& Values, FTake Take)
	{
		const FScriptArrayHelper Old(&Property, Values.Old);
		const FScriptArrayHelper New(&Property, Values.New);
		const FScriptArrayHelper Instance(&Property, Values.Instance);
		if (Old.Num() != New.Num() || Old.Num() != Instance.Num())
		{
			return false;
		}
		for (int32 Index = 0; Index < Old.Num(); ++Index)
		{
			Visit(*Property.Inner, {Old.GetRawPtr(Index), New.GetRawPtr(Index), Instance.GetRawPtr(Index)}, Take);
		}
		return true;
	}

	static void VisitWhole(const FProperty& Property, const FValues& Values, FTake Take)
	{
		if (IsSameAsOld(Property, Values))
		{
			Take(Property, Values);
		}
	}

	/** An instanced object is never the archetype's own: it is the same when it was made from it. */
	static bool IsSameAsOld(const FProperty& Property, const FValues& Values)
	{
		const FObjectProperty* const Object = CastField<FObjectProperty>(&Property);
		if (!Object || !Object->HasAnyPropertyFlags(CPF_InstancedReference))
		{
			return Property.Identical(Values.Instance, Values.Old, PPF_None);
		}
		const UObject* const Part = Object->GetObjectPropertyValue(Values.Instance);
		const UObject* const OldPart = Object->GetObjectPropertyValue(Values.Old);
		return Part ? Part->GetArchetype() == OldPart : !OldPart;
	}
};

/** Gives the instance the archetype's new value; for a part of the archetype, a part of its own made from it. */
void TakeNew(UObject& Instance, const FProperty& Property, const FValues& Values)
{
	const FObjectProperty* const Object = CastField<FObjectProperty>(&Property);
	UObject* const Part = Object && Object->HasAnyPropertyFlags(CPF_InstancedReference) ? Object->GetObjectPropertyValue(Values.New)
																						: nullptr;
	if (!Part)
	{
		Property.CopyCompleteValue(Values.Instance, Values.New);
		return;
	}
	const bool bNameIsFree = !StaticFindObjectFast(nullptr, &Instance, Part->GetFName());
	Object->SetObjectPropertyValue(Values.Instance,
		NewObject<UObject>(&Instance, Part->GetClass(), bNameIsFree ? Part->GetFName() : FName(),
			Instance.GetMaskedFlags(RF_PropagateToSubObjects), Part));
}

/** Until it is collected, the default object of a class as it was before a compile has the archetype too, but not its layout. */
bool IsCurrent(const UObject& Instance)
{
	return IsValid(&Instance) && !Instance.GetClass()->HasAnyClassFlags(CLASS_NewerVersionExists);
}
}

void LumDefaultPropagation::Propagate(
	UObject& Archetype, const FLumValuePlace& Place, const void* OldValue, EPropertyChangeType::Type Type)
{
	TArray<UObject*> Instances;
	Archetype.GetArchetypeInstances(Instances);
	const FProperty& Property = Place.GetProperty();
	const void* const NewValue = Place.Resolve();
	for (UObject* const Instance : Instances)
	{
		void* const InstanceValue = IsCurrent(*Instance) ? Place.ResolveIn(Instance) : nullptr;
		if (!NewValue || !InstanceValue)
		{
			continue;
		}
		const FValues Values{OldValue, NewValue, InstanceValue};
		bool bTakesAny = false;
		FDifference::Visit(Property, Values, [&bTakesAny](const FProperty&, const FValues&)
			{ bTakesAny = true; });
		if (bTakesAny)
		{
			UPackage* const Package = Instance->GetPackage();
			const bool bWasDirty = Package->IsDirty();
			TArray<FProperty*> Members;
			Place.AppendMembers(Members);
			LumEditNotice::TellBefore(*Instance, Members);
			FDifference::Visit(Property, Values, [Instance](const FProperty& Part, const FValues& PartValues)
				{ TakeNew(*Instance, Part, PartValues); });
			LumEditNotice::TellAfter(*Instance, Members, Type);
			// A file holds no value that is its archetype's; where only a part of it was taken, there is something to save.
			if (!bWasDirty && Members[0]->Identical_InContainer(Instance, &Archetype))
			{
				Package->SetDirtyFlag(false);
			}
		}
	}
}
