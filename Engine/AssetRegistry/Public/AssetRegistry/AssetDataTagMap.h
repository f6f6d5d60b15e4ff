#pragma once

#include "Containers/SortedMap.h"
#include "CoreMinimal.h"

/** An asset's tags, in the order of their names. */
using FAssetDataTagMap = TSortedMap<FName, FString, FDefaultAllocator, FNameLexicalLess>;

/** The value of a tag, valid as long as the map that gave it. */
class FAssetTagValueRef
{
public:
	FAssetTagValueRef() = default;
	explicit FAssetTagValueRef(const FString* InValue)
		: Value(InValue)
	{
	}

	bool IsSet() const { return Value != nullptr; }
	/** Empty for a tag that is not there. */
	FString AsString() const { return Value ? *Value : FString(); }
	FString GetValue() const { return AsString(); }
	/** Whether the text is the value, without regard to case. */
	bool Equals(FStringView Text) const { return Value && FStringView(*Value).Equals(Text, ESearchCase::IgnoreCase); }

private:
	const FString* Value = nullptr;
};

/** Tags that many copies of an asset's data share. They never change: whoever has others makes another map. */
class FAssetDataTagMapSharedView
{
public:
	FAssetDataTagMapSharedView() = default;
	FAssetDataTagMapSharedView(FAssetDataTagMap&& InMap)
		: Map(InMap.IsEmpty() ? nullptr : TSharedPtr<const FAssetDataTagMap>(MakeShared<FAssetDataTagMap>(MoveTemp(InMap))))
	{
	}

	int32 Num() const { return GetMap().Num(); }
	bool Contains(FName Tag) const { return GetMap().Contains(Tag); }
	bool ContainsKeyValue(FName Tag, const FString& Value) const { return FindTag(Tag).Equals(Value); }
	FAssetTagValueRef FindTag(FName Tag) const { return FAssetTagValueRef(GetMap().Find(Tag)); }
	template <typename FunctionType>
	void ForEach(FunctionType Function) const
	{
		for (const TPair<FName, FString>& Pair : GetMap())
		{
			Function(Pair);
		}
	}
	const FAssetDataTagMap& GetMap() const
	{
		static const FAssetDataTagMap Nothing;
		return Map ? *Map : Nothing;
	}
	FAssetDataTagMap CopyMap() const { return GetMap(); }
	bool operator==(const FAssetDataTagMapSharedView& Other) const { return Map == Other.Map || GetMap() == Other.GetMap(); }

	const TPair<FName, FString>* begin() const { return GetMap().begin(); }
	const TPair<FName, FString>* end() const { return GetMap().end(); }

private:
	/** Null for no tags. */
	TSharedPtr<const FAssetDataTagMap> Map;
};
