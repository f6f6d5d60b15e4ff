#include "Lum/Compound/LumUnrealObjectCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace
{
/** Whether the value is not what the object would have if nobody had set it. */
bool DiffersFromArchetype(const FProperty& Property, const UObject& Object)
{
	const UObject* const Archetype = Object.GetArchetype();
	const bool bHasCounterpart = Archetype && Archetype->GetClass()->IsChildOf(Property.GetOwnerClass());
	const void* const Default = bHasCounterpart ? Property.ContainerPtrToValuePtr<void>(Archetype) : nullptr;
	return !Property.Identical(Property.ContainerPtrToValuePtr<void>(&Object), Default, PPF_None);
}
}

FLumUnrealObjectCompound::FLumUnrealObjectCompound(UObject& Object)
	: WeakObject(&Object)
{
}

TVexelExpected<UObject*> FLumUnrealObjectCompound::GetObject() const
{
	return FLumHelper::GetValid(WeakObject, TEXT("Invalid object"));
}

TVexelExpected<TVexelPropTypeId> FLumUnrealObjectCompound::GetCompoundType() const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Object->GetClass());
}

TVexelExpected<TSharedRef<FJsonObject>> FLumUnrealObjectCompound::JsonExportObject(const FLumContext& Context) const
{
	const FLumContext::FObjectScope Scope(Context, WeakObject.Get());
	return ILumCompound::JsonExportObject(Context);
}

TVexelExpected<void> FLumUnrealObjectCompound::Iterate(ILumPropertyCollector& Collector) const
{
	return IterateWhere(Collector, [](const FProperty&, const UObject&)
		{ return true; });
}

TVexelExpected<void> FLumUnrealObjectCompound::IterateForExport(ILumPropertyCollector& Collector) const
{
	return IterateWhere(Collector, &DiffersFromArchetype);
}

TVexelExpected<void> FLumUnrealObjectCompound::IterateWhere(
	ILumPropertyCollector& Collector, TFunctionRef<bool(const FProperty& Property, const UObject& Object)> Condition) const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	for (TFieldIterator<FProperty> It(Object->GetClass()); It; ++It)
	{
		if (!It->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible) || !Condition(**It, *Object))
		{
			continue;
		}
		const TSharedPtr<ILumProperty> Property = FLumUnrealPropertyFactory::CreateSubProperty(**It, It->ContainerPtrToValuePtr<void>(Object));
		if (Property)
		{
			VEXEL_TRY_VOID(Collector.Property(Property.ToSharedRef()), "while processing property '%s'", *It->GetName());
		}
	}
	return {};
}
