#include "Lum/Property/LumClassDefaultObjectProperty.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumErrors.h"

#include "UObject/Class.h"

FLumClassDefaultObjectProperty::FLumClassDefaultObjectProperty(UObject& DefaultObject)
	: WeakObject(&DefaultObject)
{
}

TVexelExpected<TVexelPropTypeId> FLumClassDefaultObjectProperty::GetValueTypeId() const
{
	const UObject* const Object = WeakObject.Get();
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Read, "Invalid object");
	}
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Object->GetClass());
}

TVexelExpected<TSharedPtr<ILumCompound>> FLumClassDefaultObjectProperty::GetCompound() const
{
	UObject* const Object = WeakObject.Get();
	return Object ? TSharedPtr<ILumCompound>(MakeShared<FLumUnrealObjectCompound>(*Object)) : nullptr;
}
