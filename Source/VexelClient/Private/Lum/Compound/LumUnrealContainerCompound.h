#pragma once

#include "Lum/LumCompound.h"

class FArrayProperty;
class FMapProperty;
class FSetProperty;

/** The elements of an array. The array must outlive it. */
class FLumUnrealArrayCompound : public ILumCollectionCompound
{
public:
	FLumUnrealArrayCompound(const FArrayProperty& InProperty, void* InData)
		: Property(InProperty)
		, Data(InData)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<int32> GetNum() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	const FArrayProperty& Property;
	void* Data;
};

/** The elements of a set, in its iteration order. The set must outlive it. */
class FLumUnrealSetCompound : public ILumCollectionCompound
{
public:
	FLumUnrealSetCompound(const FSetProperty& InProperty, void* InData)
		: Property(InProperty)
		, Data(InData)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<int32> GetNum() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	const FSetProperty& Property;
	void* Data;
};

/** The entries of a map, in its iteration order. The map must outlive it. */
class FLumUnrealMapCompound : public ILumCollectionCompound
{
public:
	FLumUnrealMapCompound(const FMapProperty& InProperty, void* InData)
		: Property(InProperty)
		, Data(InData)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<int32> GetNum() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	const FMapProperty& Property;
	void* Data;
};
