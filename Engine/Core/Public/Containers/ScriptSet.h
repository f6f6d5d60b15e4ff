#pragma once

#include "Containers/ScriptSparseArray.h"
#include "Containers/Set.h"
#include "Templates/Function.h"

/** Where the parts of a TSet's element of a run-time type lie. The value itself is at the start. */
struct FScriptSetLayout
{
	int32 HashNextIdOffset = 0;
	int32 KeyHashOffset = 0;
	int32 Size = 0;
	FScriptSparseArrayLayout SparseArrayLayout;
};

/**
 * A TSet whose element type is known only at run time, lying over the memory of the typed one. Constructing and destructing
 * elements is the caller's, by the functions that a call takes.
 */
class FScriptSet
{
	using HashType = TInlineAllocator<1>::ForElementType<FSetElementId>;

public:
	static FScriptSetLayout GetScriptLayout(int32 ElementSize, int32 ElementAlignment)
	{
		FScriptSetLayout Layout;
		Layout.HashNextIdOffset = Align(ElementSize, alignof(int32));
		Layout.KeyHashOffset = Layout.HashNextIdOffset + static_cast<int32>(sizeof(int32));
		const int32 Alignment =
			ElementAlignment > static_cast<int32>(alignof(int32)) ? ElementAlignment : static_cast<int32>(alignof(int32));
		Layout.Size = Align(Layout.KeyHashOffset + static_cast<int32>(sizeof(uint32)), Alignment);
		Layout.SparseArrayLayout = FScriptSparseArray::GetScriptLayout(Layout.Size, Alignment);
		return Layout;
	}

	FScriptSet() = default;
	FScriptSet(const FScriptSet&) = delete;
	FScriptSet& operator=(const FScriptSet&) = delete;

	bool IsValidIndex(int32 Index) const { return Elements.IsValidIndex(Index); }
	bool IsEmpty() const { return Elements.IsEmpty(); }
	int32 Num() const { return Elements.Num(); }
	int32 NumUnchecked() const { return Elements.Num(); }
	int32 GetMaxIndex() const { return Elements.GetMaxIndex(); }
	void* GetData(int32 Index, const FScriptSetLayout& Layout) { return Elements.GetData(Index, Layout.SparseArrayLayout); }
	const void* GetData(int32 Index, const FScriptSetLayout& Layout) const { return Elements.GetData(Index, Layout.SparseArrayLayout); }

	/** Forgets all elements, which the caller has destructed, and keeps room for Slack. */
	void Empty(int32 Slack, const FScriptSetLayout& Layout)
	{
		Elements.Empty(Slack, Layout.SparseArrayLayout);
		ResizeBuckets(Slack > 0 ? UE::Core::Private::NumHashBuckets(Slack) : 0);
		ClearBuckets();
	}
	/** Removes an element, which the caller destructs before or after. */
	void RemoveAt(int32 Index, const FScriptSetLayout& Layout)
	{
		check(IsValidIndex(Index));
		int32* Next = FirstInBucket(*KeyHashAt(Index, Layout));
		while (*Next != Index)
		{
			checkf(*Next != INDEX_NONE, TEXT("A key of a set was changed in place without Rehash"));
			Next = NextIdAt(*Next, Layout);
		}
		*Next = *NextIdAt(Index, Layout);
		Elements.RemoveAtUninitialized(Layout.SparseArrayLayout, Index);
	}
	/** Adds an unconstructed element. It is found only after the caller has constructed it and called Rehash. */
	int32 AddUninitialized(const FScriptSetLayout& Layout)
	{
		const int32 Index = Elements.AddUninitialized(Layout.SparseArrayLayout);
		*NextIdAt(Index, Layout) = INDEX_NONE;
		*KeyHashAt(Index, Layout) = 0;
		return Index;
	}
	/** Hashes every element again. */
	void Rehash(const FScriptSetLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash)
	{
		for (int32 Index = Elements.FindNextIndex(0); Index != INDEX_NONE; Index = Elements.FindNextIndex(Index + 1))
		{
			*KeyHashAt(Index, Layout) = GetKeyHash(GetData(Index, Layout));
		}
		RebuildBuckets(Layout);
	}
	int32 FindIndex(const void* Element, const FScriptSetLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> EqualityFn) const
	{
		return Num() == 0 ? INDEX_NONE : FindIndexByHash(Element, Layout, GetKeyHash(Element), EqualityFn);
	}
	int32 FindIndexByHash(const void* Element, const FScriptSetLayout& Layout, uint32 KeyHash,
		TFunctionRef<bool(const void*, const void*)> EqualityFn) const
	{
		FScriptSet* const Self = const_cast<FScriptSet*>(this);
		int32 Index = HashSize == 0 ? static_cast<int32>(INDEX_NONE) : *Self->FirstInBucket(KeyHash);
		while (Index != INDEX_NONE)
		{
			if (*Self->KeyHashAt(Index, Layout) == KeyHash && EqualityFn(Element, GetData(Index, Layout)))
			{
				break;
			}
			Index = *Self->NextIdAt(Index, Layout);
		}
		return Index;
	}
	/** The index of the equal element, which is constructed and added if there is none. */
	int32 FindOrAdd(const void* Element, const FScriptSetLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> EqualityFn, TFunctionRef<void(void*)> ConstructFn)
	{
		const uint32 KeyHash = GetKeyHash(Element);
		const int32 Existing = FindIndexByHash(Element, Layout, KeyHash, EqualityFn);
		return Existing != INDEX_NONE ? Existing : AddNewElement(Layout, KeyHash, ConstructFn);
	}
	/** Adds an element, or makes it anew in the place of the equal one. */
	void Add(const void* Element, const FScriptSetLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> EqualityFn, TFunctionRef<void(void*)> ConstructFn,
		TFunctionRef<void(void*)> DestructFn)
	{
		const uint32 KeyHash = GetKeyHash(Element);
		const int32 Existing = FindIndexByHash(Element, Layout, KeyHash, EqualityFn);
		if (Existing == INDEX_NONE)
		{
			AddNewElement(Layout, KeyHash, ConstructFn);
			return;
		}
		void* const Slot = GetData(Existing, Layout);
		DestructFn(Slot);
		ConstructFn(Slot);
	}
	int32 AddNewElement(const FScriptSetLayout& Layout, uint32 KeyHash, TFunctionRef<void(void*)> ConstructFn)
	{
		const int32 Index = Elements.AddUninitialized(Layout.SparseArrayLayout);
		ConstructFn(GetData(Index, Layout));
		*KeyHashAt(Index, Layout) = KeyHash;
		if (UE::Core::Private::NumHashBuckets(Num()) > HashSize)
		{
			RebuildBuckets(Layout);
		}
		else
		{
			LinkElement(Index, Layout);
		}
		return Index;
	}
	void MoveAssign(FScriptSet& Other, const FScriptSetLayout& Layout)
	{
		if (this != &Other)
		{
			Elements.MoveAssign(Other.Elements, Layout.SparseArrayLayout);
			Hash.MoveToEmpty(Other.Hash);
			HashSize = Other.HashSize;
			Other.HashSize = 0;
		}
	}

private:
	int32* NextIdAt(int32 Index, const FScriptSetLayout& Layout)
	{
		return reinterpret_cast<int32*>(static_cast<uint8*>(GetData(Index, Layout)) + Layout.HashNextIdOffset);
	}
	uint32* KeyHashAt(int32 Index, const FScriptSetLayout& Layout)
	{
		return reinterpret_cast<uint32*>(static_cast<uint8*>(GetData(Index, Layout)) + Layout.KeyHashOffset);
	}
	int32* FirstInBucket(uint32 KeyHash)
	{
		return reinterpret_cast<int32*>(Hash.GetAllocation() + UE::Core::Private::HashBucket(KeyHash, HashSize));
	}

	void LinkElement(int32 Index, const FScriptSetLayout& Layout)
	{
		int32* const First = FirstInBucket(*KeyHashAt(Index, Layout));
		*NextIdAt(Index, Layout) = *First;
		*First = Index;
	}
	void RebuildBuckets(const FScriptSetLayout& Layout)
	{
		const int32 Wanted = Num() > 0 ? UE::Core::Private::NumHashBuckets(Num()) : 0;
		ResizeBuckets(Wanted > HashSize ? Wanted : HashSize);
		ClearBuckets();
		for (int32 Index = Elements.FindNextIndex(0); Index != INDEX_NONE; Index = Elements.FindNextIndex(Index + 1))
		{
			LinkElement(Index, Layout);
		}
	}
	void ResizeBuckets(int32 NewSize)
	{
		if (NewSize != HashSize)
		{
			Hash.ResizeAllocation(0, NewSize, sizeof(FSetElementId));
			HashSize = NewSize;
		}
	}
	void ClearBuckets() { FMemory::Memset(Hash.GetAllocation(), 0xff, static_cast<SIZE_T>(HashSize) * sizeof(FSetElementId)); }

	FScriptSparseArray Elements;
	HashType Hash;
	int32 HashSize = 0;
};

static_assert(sizeof(FSetElementId) == sizeof(int32), "Buckets are read as indices");
static_assert(sizeof(FScriptSparseArray) == sizeof(TSparseArray<int32>) && sizeof(FScriptSet) == sizeof(TSet<int32>),
	"The script forms lie over the typed ones");
