#pragma once

#include "Lum/LumProperty.h"

/** The name of a graph or a node, as the property "name". */
class FLumNameProperty : public ILumProperty
{
public:
	/** OwnerTypeId is the type id of what has the name. */
	FLumNameProperty(const TVexelPropTypeId& InOwnerTypeId, FName InName)
		: OwnerTypeId(InOwnerTypeId)
		, Name(InName)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return TVexelPropId(TEXT("name")); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return OwnerTypeId; }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return TVexelPropTypeId(TEXT("string")); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return CPF_Edit; }
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext&) const override
	{
		return MakeShared<FJsonValueString>(Name.ToString());
	}

private:
	TVexelPropTypeId OwnerTypeId;
	FName Name;
};
