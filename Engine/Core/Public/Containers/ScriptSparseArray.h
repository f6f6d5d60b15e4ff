#pragma once

#include "Containers/BitArray.h"
#include "Containers/ScriptArray.h"
#include "Containers/SparseArray.h"

using FScriptBitArray = TBitArray<>;

/** Where the elements of a TSparseArray of a run-time type lie. */
struct FScriptSparseArrayLayout
{
	int32 Alignment = 0;
	int32 Size = 0;
};

/** A TSparseArray whose element type is known only at run time, lying over the memory of the typed one. */
class FScriptSparseArray
{
public:
	static FScriptSparseArrayLayout GetScriptLayout(int32 ElementSize, int32 ElementAlignment)
	{
		const int32 Alignment = ElementAlignment > static_cast<int32>(alignof(FFreeListLink))
			? ElementAlignment
			: static_cast<int32>(alignof(FFreeListLink));
		const int32 Size =
			ElementSize > static_cast<int32>(sizeof(FFreeListLink)) ? ElementSize : static_cast<int32>(sizeof(FFreeListLink));
		return {Alignment, Align(Size, Alignment)};
	}

	FScriptSparseArray() = default;
	FScriptSparseArray(const FScriptSparseArray&) = delete;
	FScriptSparseArray& operator=(const FScriptSparseArray&) = delete;

	bool IsValidIndex(int32 Index) const { return AllocationFlags.IsValidIndex(Index) && AllocationFlags[Index]; }
	bool IsEmpty() const { return Num() == 0; }
	int32 Num() const { return Data.Num() - NumFreeIndices; }
	int32 GetMaxIndex() const { return Data.Num(); }
	bool IsCompact() const { return NumFreeIndices == 0; }
	int32 FindNextIndex(int32 Index) const { return AllocationFlags.FindFrom(true, Index); }
	void* GetData(int32 Index, const FScriptSparseArrayLayout& Layout)
	{
		return static_cast<uint8*>(Data.GetData()) + static_cast<SIZE_T>(Index) * Layout.Size;
	}
	const void* GetData(int32 Index, const FScriptSparseArrayLayout& Layout) const
	{
		return const_cast<FScriptSparseArray*>(this)->GetData(Index, Layout);
	}

	int32 AddUninitialized(const FScriptSparseArrayLayout& Layout)
	{
		if (NumFreeIndices == 0)
		{
			AllocationFlags.Add(true);
			return Data.Add(1, Layout.Size, Layout.Alignment);
		}
		const int32 Index = FirstFreeIndex;
		FirstFreeIndex = Link(Index, Layout)->NextFreeIndex;
		--NumFreeIndices;
		if (NumFreeIndices > 0)
		{
			Link(FirstFreeIndex, Layout)->PrevFreeIndex = INDEX_NONE;
		}
		AllocationFlags[Index] = true;
		return Index;
	}
	void RemoveAtUninitialized(const FScriptSparseArrayLayout& Layout, int32 Index, int32 Count = 1)
	{
		for (int32 Removed = Index; Removed < Index + Count; ++Removed)
		{
			check(IsValidIndex(Removed));
			if (NumFreeIndices > 0)
			{
				Link(FirstFreeIndex, Layout)->PrevFreeIndex = Removed;
			}
			FFreeListLink* const Freed = Link(Removed, Layout);
			Freed->PrevFreeIndex = INDEX_NONE;
			Freed->NextFreeIndex = NumFreeIndices > 0 ? FirstFreeIndex : INDEX_NONE;
			FirstFreeIndex = Removed;
			++NumFreeIndices;
			AllocationFlags[Removed] = false;
		}
	}
	void Empty(int32 Slack, const FScriptSparseArrayLayout& Layout)
	{
		Data.Empty(Slack, Layout.Size, Layout.Alignment);
		AllocationFlags.Empty(Slack);
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
	}
	void MoveAssign(FScriptSparseArray& Other, const FScriptSparseArrayLayout& Layout)
	{
		if (this != &Other)
		{
			Data.MoveAssign(Other.Data, Layout.Size, Layout.Alignment);
			AllocationFlags = MoveTemp(Other.AllocationFlags);
			FirstFreeIndex = Other.FirstFreeIndex;
			NumFreeIndices = Other.NumFreeIndices;
			Other.FirstFreeIndex = INDEX_NONE;
			Other.NumFreeIndices = 0;
		}
	}

private:
	struct FFreeListLink
	{
		int32 PrevFreeIndex;
		int32 NextFreeIndex;
	};

	FFreeListLink* Link(int32 Index, const FScriptSparseArrayLayout& Layout) { return static_cast<FFreeListLink*>(GetData(Index, Layout)); }

	FScriptArray Data;
	FScriptBitArray AllocationFlags;
	int32 FirstFreeIndex = INDEX_NONE;
	int32 NumFreeIndices = 0;
};
