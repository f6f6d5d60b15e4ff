#pragma once

#include "UObject/ContainerProperty.h"

/** Edits a TArray through its property. The array must outlive the helper. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray);

	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	int32 Num() const { return Array->Num(); }
	/** Null when the index is out of range. */
	uint8* GetRawPtr(int32 Index = 0) const;
	uint8* GetElementPtr(int32 Index = 0) const { return GetRawPtr(Index); }
	void EmptyValues(int32 Slack = 0);
	void EmptyAndAddValues(int32 Count);
	bool ExpandForIndex(int32 Index);
	void Resize(int32 Count);
	/** Adds one default value and answers its index. */
	int32 AddValue() { return AddValues(1); }
	int32 AddValues(int32 Count);
	int32 AddUninitializedValues(int32 Count);
	void InsertValues(int32 Index, int32 Count = 1);
	void RemoveValues(int32 Index, int32 Count = 1);
	void SwapValues(int32 A, int32 B);
	void MoveAssign(void* InOtherArray);

private:
	void ConstructItems(int32 Index, int32 Count);
	void DestructItems(int32 Index, int32 Count);

	const FProperty* InnerProperty;
	FScriptArray* Array;
	int32 ElementSize;
	uint32 ElementAlignment;
};

class FScriptArrayHelper_InContainer : public FScriptArrayHelper
{
public:
	FScriptArrayHelper_InContainer(const FArrayProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptArrayHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{
	}
};

/** What the helpers of the two hashed containers share: the walk over sparse indices. HelperType has IsValidIndex and GetMaxIndex. */
template <typename HelperType>
class TScriptContainerIterator
{
public:
	explicit TScriptContainerIterator(const HelperType& InHelper)
		: Helper(InHelper)
	{
		Settle();
	}
	TScriptContainerIterator& operator++()
	{
		++InternalIndex;
		++LogicalIndex;
		Settle();
		return *this;
	}
	explicit operator bool() const { return InternalIndex < Helper.GetMaxIndex(); }
	int32 operator*() const { return InternalIndex; }
	int32 GetInternalIndex() const { return InternalIndex; }
	int32 GetLogicalIndex() const { return LogicalIndex; }

private:
	void Settle()
	{
		while (InternalIndex < Helper.GetMaxIndex() && !Helper.IsValidIndex(InternalIndex))
		{
			++InternalIndex;
		}
	}

	const HelperType& Helper;
	int32 InternalIndex = 0;
	int32 LogicalIndex = 0;
};

/** Edits a TMap through its property. Indices are internal ones (with holes) unless a name says logical. */
class COREUOBJECT_API FScriptMapHelper
{
public:
	using FIterator = TScriptContainerIterator<FScriptMapHelper>;

	FScriptMapHelper(const FMapProperty* InProperty, const void* InMap);

	FProperty* GetKeyProperty() const { return KeyProp; }
	FProperty* GetValueProperty() const { return ValueProp; }
	FIterator CreateIterator() const { return FIterator(*this); }
	bool IsValidIndex(int32 Index) const { return Map->IsValidIndex(Index); }
	int32 Num() const { return Map->Num(); }
	int32 GetMaxIndex() const { return Map->GetMaxIndex(); }
	uint8* GetPairPtr(int32 Index) const;
	uint8* GetKeyPtr(int32 Index) const { return GetPairPtr(Index); }
	uint8* GetValuePtr(int32 Index) const { return GetPairPtr(Index) + MapLayout.ValueOffset; }
	/** INDEX_NONE when there are fewer pairs. */
	int32 FindInternalIndex(int32 LogicalIndex) const;
	int32 FindLogicalIndex(int32 InternalIndex) const;
	void EmptyValues(int32 Slack = 0);
	/** Adds a pair of defaults; call Rehash when keys have been set. */
	int32 AddDefaultValue_Invalid_NeedsRehash();
	int32 AddUninitializedValue();
	void Rehash();
	void RemoveAt(int32 InternalIndex, int32 Count = 1);
	int32 FindMapIndexWithKey(const void* KeyPtr) const;
	int32 FindMapPairIndexFromHash(const void* KeyPtr) const { return FindMapIndexWithKey(KeyPtr); }
	uint8* FindValueFromHash(const void* KeyPtr) const;
	/** Adds the pair or replaces the key's value. */
	void AddPair(const void* KeyPtr, const void* ValuePtr);
	/** The value's memory, default-initialized when the key is new. */
	void* FindOrAdd(const void* KeyPtr);
	bool RemovePair(const void* KeyPtr);
	void ConstructPair(int32 Index);

private:
	FProperty* KeyProp;
	FProperty* ValueProp;
	FScriptMap* Map;
	FScriptMapLayout MapLayout;
};

class FScriptMapHelper_InContainer : public FScriptMapHelper
{
public:
	FScriptMapHelper_InContainer(const FMapProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptMapHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{
	}
};

/** Edits a TSet through its property. Indices are internal ones (with holes) unless a name says logical. */
class COREUOBJECT_API FScriptSetHelper
{
public:
	using FIterator = TScriptContainerIterator<FScriptSetHelper>;

	FScriptSetHelper(const FSetProperty* InProperty, const void* InSet);

	FProperty* GetElementProperty() const { return ElementProp; }
	FIterator CreateIterator() const { return FIterator(*this); }
	bool IsValidIndex(int32 Index) const { return Set->IsValidIndex(Index); }
	int32 Num() const { return Set->Num(); }
	int32 GetMaxIndex() const { return Set->GetMaxIndex(); }
	uint8* GetElementPtr(int32 Index) const;
	int32 FindInternalIndex(int32 LogicalIndex) const;
	int32 FindLogicalIndex(int32 InternalIndex) const;
	void EmptyElements(int32 Slack = 0);
	int32 AddDefaultValue_Invalid_NeedsRehash();
	int32 AddUninitializedValue();
	void Rehash();
	void RemoveAt(int32 InternalIndex, int32 Count = 1);
	int32 FindElementIndex(const void* ElementToFind) const;
	int32 FindElementIndexFromHash(const void* ElementToFind) const { return FindElementIndex(ElementToFind); }
	/** Adds the element unless an equal one is there. */
	void AddElement(const void* ElementToAdd);
	bool RemoveElement(const void* ElementToRemove);

private:
	FProperty* ElementProp;
	FScriptSet* Set;
	FScriptSetLayout SetLayout;
};

class FScriptSetHelper_InContainer : public FScriptSetHelper
{
public:
	FScriptSetHelper_InContainer(const FSetProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptSetHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{
	}
};
