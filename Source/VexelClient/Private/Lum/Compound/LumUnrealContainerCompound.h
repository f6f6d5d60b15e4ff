#pragma once

#include "Lum/LumCompound.h"
#include "Lum/Value/LumValueOwner.h"
#include "Lum/Value/LumValuePlace.h"

class FArrayProperty;
class FMapProperty;
class FSetProperty;

/** The contents of a container, in its iteration order. What the three kinds share. */
class FLumUnrealContainerCompound : public ILumCollectionCompound
{
public:
	explicit FLumUnrealContainerCompound(const FLumValuePlaceRef& InPlace)
		: Place(InPlace)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<int32> GetNum() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> Find(FStringView PropId) const override;

	/** The element, or entry, at a place in the container's own numbering; null where its type has no Lum kind. */
	virtual TSharedPtr<ILumProperty> MakeItem(int32 Index, int32 InternalIndex) const = 0;
	/** The container's own number of the element; INDEX_NONE where there is none. */
	virtual int32 FindInternalIndex(void* Data, int32 Index) const = 0;
	/** The numbers of all elements in order. */
	virtual TArray<int32> GetInternalIndices(void* Data) const = 0;
	virtual int32 CountItems(void* Data) const = 0;

	/** The numbers of all elements of a container that may have holes. */
	template <typename HelperType>
	static TArray<int32> CollectIndices(const HelperType& Helper)
	{
		TArray<int32> Indices;
		for (typename HelperType::FIterator It = Helper.CreateIterator(); It; ++It)
		{
			Indices.Add(It.GetInternalIndex());
		}
		return Indices;
	}

	/** The container's memory, or an error when it is gone. */
	TVexelExpected<void*> GetData() const;
	/** Refuses to add and remove elements of a container whose size is fixed. */
	TVexelExpected<void> CheckCanResize() const;

	using FWork = TFunctionRef<TVexelExpected<void>()>;
	/** Runs the work as one change of the container. */
	TVexelExpected<void> Change(EPropertyChangeType::Type Type, FWork Work) const;

	/** Numbers the elements anew where some were removed: the container's copy in an object made from this one has the same numbers then. */
	static void CloseGaps(const FProperty& Property, void* Memory);

	/** The place of a default value that is to become an element, or a key or value of one. */
	FLumValuePlaceRef MakeNewValue(const FProperty& ElementProperty) const;
	/** Gives the value at the place, in the container or a new one, what the JSON says. */
	static TVexelExpected<void> ImportAt(
		const FLumValuePlaceRef& ValuePlace, const FLumContext& Context, const TSharedRef<FJsonValue>& Value);

	FLumValuePlaceRef Place;
};

class FLumUnrealArrayCompound final : public FLumUnrealContainerCompound
{
public:
	/** Greatest index that an import may name. */
	static constexpr int32 MaxImportIndex = 250;

	explicit FLumUnrealArrayCompound(const FLumValuePlaceRef& InPlace);

	/** Keys are indices; the array grows to hold them. */
	virtual TVexelExpected<void> JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object) override;
	virtual TVexelExpected<void> InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value) override;
	virtual TVexelExpected<void> RemoveAt(int32 Index) override;
	virtual TVexelExpected<void> Resize(int32 Count) override;

protected:
	virtual TSharedPtr<ILumProperty> MakeItem(int32 Index, int32 InternalIndex) const override;
	virtual int32 FindInternalIndex(void* Data, int32 Index) const override;
	virtual TArray<int32> GetInternalIndices(void* Data) const override;
	virtual int32 CountItems(void* Data) const override;

private:
	FLumValuePlaceRef GetElement(int32 Index) const;
	TVexelExpected<void> ImportElement(const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value);
	TVexelExpected<void> InsertElement(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value);

	const FArrayProperty& Property;
};

class FLumUnrealSetCompound final : public FLumUnrealContainerCompound
{
public:
	explicit FLumUnrealSetCompound(const FLumValuePlaceRef& InPlace);

	/** Keys are indices, of elements that there are or of the one behind the last. */
	virtual TVexelExpected<void> JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object) override;
	virtual TVexelExpected<void> InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value) override;
	virtual TVexelExpected<void> RemoveAt(int32 Index) override;
	virtual TVexelExpected<void> Resize(int32 Count) override;

protected:
	virtual TSharedPtr<ILumProperty> MakeItem(int32 Index, int32 InternalIndex) const override;
	virtual int32 FindInternalIndex(void* Data, int32 Index) const override;
	virtual TArray<int32> GetInternalIndices(void* Data) const override;
	virtual int32 CountItems(void* Data) const override;

private:
	FLumValuePlaceRef GetElement(int32 InternalIndex) const;
	TVexelExpected<void> ImportElement(const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value);
	TVexelExpected<void> AddElement(int32 Index, const void* Element);

	const FSetProperty& Property;
};

class FLumUnrealMapCompound final : public FLumUnrealContainerCompound
{
public:
	explicit FLumUnrealMapCompound(const FLumValuePlaceRef& InPlace);

	/** Keys are indices, of entries that there are or of the one behind the last; each value is an object with "key" and "value". */
	virtual TVexelExpected<void> JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object) override;
	virtual TVexelExpected<void> InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value) override;
	virtual TVexelExpected<void> RemoveAt(int32 Index) override;
	virtual TVexelExpected<void> Resize(int32 Count) override;

protected:
	virtual TSharedPtr<ILumProperty> MakeItem(int32 Index, int32 InternalIndex) const override;
	virtual int32 FindInternalIndex(void* Data, int32 Index) const override;
	virtual TArray<int32> GetInternalIndices(void* Data) const override;
	virtual int32 CountItems(void* Data) const override;

private:
	/** Where a key and its value lie: in the map, or beside it when they are new. */
	struct FPairPlaces
	{
		FLumValuePlaceRef Key;
		FLumValuePlaceRef Value;
	};

	FPairPlaces MakeNewPair() const;
	FPairPlaces GetPair(int32 InternalIndex) const;
	TVexelExpected<void> ImportEntry(const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value);
	TVexelExpected<void> AddPair(int32 Index, const FPairPlaces& Pair);

	const FMapProperty& Property;
};
