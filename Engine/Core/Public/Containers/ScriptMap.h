#pragma once

#include "Containers/Map.h"
#include "Containers/ScriptSet.h"

/** Where the parts of a TMap's pair of run-time types lie. The key is at the start. */
struct FScriptMapLayout
{
	int32 ValueOffset = 0;
	FScriptSetLayout SetLayout;
};

/** A TMap whose key and value types are known only at run time, lying over the memory of the typed one. */
class FScriptMap
{
public:
	static FScriptMapLayout GetScriptLayout(int32 KeySize, int32 KeyAlignment, int32 ValueSize, int32 ValueAlignment)
	{
		const int32 PairAlignment = KeyAlignment > ValueAlignment ? KeyAlignment : ValueAlignment;
		FScriptMapLayout Layout;
		Layout.ValueOffset = Align(KeySize, ValueAlignment);
		Layout.SetLayout = FScriptSet::GetScriptLayout(Align(Layout.ValueOffset + ValueSize, PairAlignment), PairAlignment);
		return Layout;
	}

	bool IsValidIndex(int32 Index) const { return Pairs.IsValidIndex(Index); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }
	int32 Num() const { return Pairs.Num(); }
	int32 NumUnchecked() const { return Pairs.Num(); }
	int32 GetMaxIndex() const { return Pairs.GetMaxIndex(); }
	/** The pair, which is the key; the value is ValueOffset bytes on. */
	void* GetData(int32 Index, const FScriptMapLayout& Layout) { return Pairs.GetData(Index, Layout.SetLayout); }
	const void* GetData(int32 Index, const FScriptMapLayout& Layout) const { return Pairs.GetData(Index, Layout.SetLayout); }
	void MoveAssign(FScriptMap& Other, const FScriptMapLayout& Layout) { Pairs.MoveAssign(Other.Pairs, Layout.SetLayout); }
	void Empty(int32 Slack, const FScriptMapLayout& Layout) { Pairs.Empty(Slack, Layout.SetLayout); }
	void RemoveAt(int32 Index, const FScriptMapLayout& Layout) { Pairs.RemoveAt(Index, Layout.SetLayout); }
	int32 AddUninitialized(const FScriptMapLayout& Layout) { return Pairs.AddUninitialized(Layout.SetLayout); }
	void Rehash(const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash)
	{
		Pairs.Rehash(Layout.SetLayout, GetKeyHash);
	}

	int32 FindPairIndex(const void* Key, const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> KeyEqualityFn) const
	{
		return Pairs.FindIndex(Key, Layout.SetLayout, GetKeyHash, KeyEqualityFn);
	}
	/** The value of a key, or null. */
	uint8* FindValue(const void* Key, const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> KeyEqualityFn)
	{
		const int32 Index = FindPairIndex(Key, Layout, GetKeyHash, KeyEqualityFn);
		return Index == INDEX_NONE ? nullptr : static_cast<uint8*>(GetData(Index, Layout)) + Layout.ValueOffset;
	}
	/** Sets the value of a key, whose pair is constructed if there is none. */
	void Add(const void* Key, const void* Value, const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> KeyEqualityFn, TFunctionRef<void(void*)> KeyConstructAndAssignFn,
		TFunctionRef<void(void*)> ValueConstructAndAssignFn, TFunctionRef<void(void*)> ValueAssignFn,
		TFunctionRef<void(void*)> DestructKeyFn, TFunctionRef<void(void*)> DestructValueFn)
	{
		if (uint8* const Existing = FindValue(Key, Layout, GetKeyHash, KeyEqualityFn))
		{
			ValueAssignFn(Existing);
			return;
		}
		AddPair(Key, Layout, GetKeyHash, KeyConstructAndAssignFn, ValueConstructAndAssignFn);
	}
	/** The value of a key, whose pair is constructed if there is none. */
	void* FindOrAdd(const void* Key, const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<bool(const void*, const void*)> KeyEqualityFn,
		TFunctionRef<void(void* NewPairKey, void* NewPairValue)> ConstructPairFn)
	{
		if (uint8* const Existing = FindValue(Key, Layout, GetKeyHash, KeyEqualityFn))
		{
			return Existing;
		}
		const int32 Index = Pairs.AddNewElement(Layout.SetLayout, GetKeyHash(Key),
			[&](void* Pair)
			{ ConstructPairFn(Pair, static_cast<uint8*>(Pair) + Layout.ValueOffset); });
		return static_cast<uint8*>(GetData(Index, Layout)) + Layout.ValueOffset;
	}

private:
	void AddPair(const void* Key, const FScriptMapLayout& Layout, TFunctionRef<uint32(const void*)> GetKeyHash,
		TFunctionRef<void(void*)> ConstructKeyFn, TFunctionRef<void(void*)> ConstructValueFn)
	{
		Pairs.AddNewElement(Layout.SetLayout, GetKeyHash(Key), [&](void* Pair)
			{
			ConstructKeyFn(Pair);
			ConstructValueFn(static_cast<uint8*>(Pair) + Layout.ValueOffset); });
	}

	FScriptSet Pairs;
};

static_assert(sizeof(FScriptMap) == sizeof(TMap<int32, int32>), "The script form lies over the typed one");
