#pragma once

#include "Lum/LumProperty.h"

/** A property that answers as another one does. Kinds override what they answer themselves. */
class FLumForwardingProperty : public ILumProperty
{
public:
	explicit FLumForwardingProperty(const TSharedRef<ILumProperty>& InInner)
		: Inner(InInner)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return Inner->GetPropId(); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return Inner->GetOwnerTypeId(); }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return Inner->GetValueTypeId(); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return Inner->GetFlags(); }
	virtual TVexelExpected<FString> GetCategory() const override { return Inner->GetCategory(); }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override
	{
		return Inner->JsonExportValue(Context);
	}
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override
	{
		return Inner->JsonImportValue(Context, Value);
	}
	virtual const ILumCompoundProperty* AsCompoundProperty() const override { return Inner->AsCompoundProperty(); }

protected:
	TSharedRef<ILumProperty> Inner;
};

/** One element of a container, under its index or, in a map's entry, under its role. */
class FLumIndexedForwardingProperty : public FLumForwardingProperty
{
public:
	FLumIndexedForwardingProperty(const TVexelPropId& InPropId, const TSharedRef<ILumProperty>& InInner)
		: FLumForwardingProperty(InInner)
		, PropId(InPropId)
	{
	}
	FLumIndexedForwardingProperty(int32 Index, const TSharedRef<ILumProperty>& InInner)
		: FLumIndexedForwardingProperty(TVexelPropId(FString::FromInt(Index)), InInner)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return PropId; }

private:
	TVexelPropId PropId;
};
