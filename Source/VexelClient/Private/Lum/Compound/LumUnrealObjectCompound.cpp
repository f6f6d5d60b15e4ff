#include "Lum/Compound/LumUnrealObjectCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/Property/LumUnrealBaseProperty.h"
#include "Lum/Value/LumComponentTemplate.h"
#include "Lum/Value/LumObjectOwner.h"

#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace
{
bool IsShown(const FProperty& Property)
{
	return Property.HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible);
}

/** Whether the value is not what the object would have if nobody had set it. */
bool DiffersFrom(const UObject* Defaults, const FProperty& Property, const UObject& Object)
{
	const bool bHasCounterpart = Defaults && Defaults->GetClass()->IsChildOf(Property.GetOwnerClass());
	const void* const Default = bHasCounterpart ? Property.ContainerPtrToValuePtr<void>(Defaults) : nullptr;
	return !Property.Identical(Property.ContainerPtrToValuePtr<void>(&Object), Default, PPF_None);
}

/** The object that the value is where it is made anew for each object; null for other values. */
const UObject* GetInstanced(const FProperty& Property, const UObject& Object)
{
	const FObjectProperty* const Reference = CastField<FObjectProperty>(&Property);
	return Reference && Reference->HasAnyPropertyFlags(CPF_InstancedReference)
		? Reference->GetObjectPropertyValue_InContainer(&Object)
		: nullptr;
}

/** Whether the value is the counterpart of what the archetype has there, and an export of it would only repeat one. */
bool IsShownElsewhere(const FProperty& Property, const UObject& Object)
{
	const UObject* const Part = GetInstanced(Property, Object);
	const UObject* const Archetype = Object.GetArchetype();
	const bool bHasCounterpart = Part && Archetype && Archetype->GetClass()->IsChildOf(Property.GetOwnerClass());
	if (!bHasCounterpart || Part->GetArchetype() != GetInstanced(Property, *Archetype))
	{
		return false;
	}
	// The part is one of another object, or of this one and stands at an earlier member too.
	TFieldIterator<FProperty> First(Object.GetClass());
	while (*First != &Property && !(IsShown(**First) && GetInstanced(**First, Object) == Part))
	{
		++First;
	}
	return Part->GetOuter() != &Object || *First != &Property;
}
}

FLumUnrealObjectCompound::FLumUnrealObjectCompound(UObject& Object, const TSharedPtr<const FLumValuePlace>& Within)
	: Owner(MakeShared<FLumObjectOwner>(Object, Within))
{
}

TVexelExpected<UObject*> FLumUnrealObjectCompound::GetObject() const
{
	UObject* const Object = Owner->GetObject();
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Read, "Invalid object");
	}
	return Object;
}

TVexelExpected<TVexelPropTypeId> FLumUnrealObjectCompound::GetCompoundType() const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Object->GetClass());
}

TVexelExpected<TSharedRef<FJsonObject>> FLumUnrealObjectCompound::JsonExportObject(const FLumContext& Context) const
{
	const FLumContext::FObjectScope Scope(Context, Owner->GetObject());
	return ILumCompound::JsonExportObject(Context);
}

TVexelExpected<void> FLumUnrealObjectCompound::Iterate(ILumPropertyCollector& Collector) const
{
	return IterateWhere(Collector, [](const FProperty&, const UObject&)
		{ return true; });
}

TVexelExpected<void> FLumUnrealObjectCompound::IterateForExport(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(const UObject* const ForWhich, GetObject());
	const UObject* const Defaults = LumComponentTemplate::GetDefaults(*ForWhich);
	// No default object has the components that a Blueprint adds or inherits, whatever their values are.
	return IterateWhere(Collector, [Defaults](const FProperty& Property, const UObject& Object)
		{
			const bool bIsOwn = DiffersFrom(Defaults, Property, Object) && !IsShownElsewhere(Property, Object);
			return bIsOwn || LumComponentTemplate::FindNode(Property, &Object); });
}

TVexelExpected<void> FLumUnrealObjectCompound::IterateWhere(
	ILumPropertyCollector& Collector, TFunctionRef<bool(const FProperty& Property, const UObject& Object)> Condition) const
{
	VEXEL_TRY(UObject* const Object, GetObject());
	for (TFieldIterator<FProperty> It(Object->GetClass()); It; ++It)
	{
		if (!IsShown(**It) || !Condition(**It, *Object))
		{
			continue;
		}
		VEXEL_TRY(const TSharedPtr<ILumProperty> Property, CreateSubProperty(**It), "while creating sub-property for '%s'", *It->GetName());
		if (Property)
		{
			VEXEL_TRY_VOID(Collector.Property(Property.ToSharedRef()), "while processing property '%s'", *It->GetName());
		}
	}
	return {};
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealObjectCompound::Find(FStringView PropId) const
{
	VEXEL_TRY(const FProperty* const Member, FindMember(PropId));
	if (!Member)
	{
		return TSharedPtr<ILumProperty>();
	}
	VEXEL_TRY(TSharedPtr<ILumProperty> Found, CreateSubProperty(*Member), "while creating sub-property for '%s'", *Member->GetName());
	return Found;
}

TVexelExpected<void> FLumUnrealObjectCompound::FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const
{
	VEXEL_TRY(const FProperty* const Member, FindMember(PropId));
	if (Member)
	{
		FLumUnrealPropertyFactory::CreateMember(Owner, *Member, OutProperty);
	}
	return {};
}

TVexelExpected<const FProperty*> FLumUnrealObjectCompound::FindMember(FStringView Name) const
{
	VEXEL_TRY(const UObject* const Object, GetObject());
	const FProperty* const Property = FLumUnrealPropertyFactory::FindMember(*Object->GetClass(), Name);
	return Property && IsShown(*Property) ? Property : nullptr;
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealObjectCompound::CreateSubProperty(const FProperty& Member) const
{
	return FLumUnrealPropertyFactory::CreateMember(Owner, Member);
}
