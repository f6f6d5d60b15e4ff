#pragma once

#include "Containers/SetElement.h"
#include "Containers/SetKeyFuncs.h"
#include "Containers/SetOperations.h"

/**
 * A hashed set in one block of memory. While nothing is removed, the order is that of insertion; later additions fill the
 * holes. Elements move when the set grows. Keys must not be changed in place without a Rehash.
 */
template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet : public TSetOperations<TSet<InElementType, KeyFuncs, Allocator>, InElementType, KeyFuncs>
{
	using KeyInitType = typename KeyFuncs::KeyInitType;
	using ElementInitType = typename KeyFuncs::ElementInitType;
	using SetElementType = TSetElement<InElementType>;
	using ElementArrayType = TSparseArray<SetElementType, typename Allocator::SparseArrayAllocator>;
	using HashType = typename Allocator::HashAllocator::template ForElementType<FSetElementId>;

	template <typename OtherType, typename OtherKeyFuncs, typename OtherAllocator>
	friend class TSet;

public:
	using ElementType = InElementType;
	using KeyFuncsType = KeyFuncs;
	using SizeType = int32;

	TSet() = default;
	TSet(const TSet& Other)
		: Elements(Other.Elements)
	{
		RebuildBuckets();
	}
	TSet(TSet&& Other) { *this = MoveTemp(Other); }
	explicit TSet(const TArray<ElementType>& InArray) { Append(InArray); }
	explicit TSet(TArray<ElementType>&& InArray) { Append(MoveTemp(InArray)); }
	TSet(std::initializer_list<ElementType> InitList) { Append(InitList); }
	template <typename OtherAllocator>
	requires(!std::is_same_v<OtherAllocator, Allocator>) explicit TSet(const TSet<ElementType, KeyFuncs, OtherAllocator>& Other)
	{
		Append(Other);
	}
	~TSet() = default;
	TSet& operator=(const TSet& Other)
	{
		if (this != &Other)
		{
			Elements = Other.Elements;
			RebuildBuckets();
		}
		return *this;
	}
	TSet& operator=(TSet&& Other)
	{
		if (this != &Other)
		{
			Elements = MoveTemp(Other.Elements);
			Hash.MoveToEmpty(Other.Hash);
			HashSize = Other.HashSize;
			Other.HashSize = 0;
		}
		return *this;
	}
	TSet& operator=(std::initializer_list<ElementType> InitList)
	{
		Reset();
		Append(InitList);
		return *this;
	}

	int32 Num() const { return Elements.Num(); }
	int32 Max() const { return Elements.Max(); }
	int32 GetMaxIndex() const { return Elements.GetMaxIndex(); }
	bool IsEmpty() const { return Elements.IsEmpty(); }
	SIZE_T GetAllocatedSize() const { return Elements.GetAllocatedSize() + Hash.GetAllocatedSize(HashSize, sizeof(FSetElementId)); }
	bool IsValidId(FSetElementId Id) const { return Elements.IsValidIndex(Id.AsInteger()); }
	ElementType& operator[](FSetElementId Id) { return Elements[Id.AsInteger()].Value; }
	const ElementType& operator[](FSetElementId Id) const { return Elements[Id.AsInteger()].Value; }
	ElementType& Get(FSetElementId Id) { return (*this)[Id]; }
	const ElementType& Get(FSetElementId Id) const { return (*this)[Id]; }

	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty(ExpectedNumElements);
		ResizeBuckets(ExpectedNumElements > 0 ? UE::Core::Private::NumHashBuckets(ExpectedNumElements) : 0);
	}
	/** Removes all and keeps the memory. */
	void Reset()
	{
		Elements.Reset();
		ClearBuckets();
	}
	void Reserve(int32 Number)
	{
		if (Number > Elements.Max())
		{
			Elements.Reserve(Number);
		}
		if (Number > Elements.Num() && UE::Core::Private::NumHashBuckets(Number) > HashSize)
		{
			ResizeBuckets(UE::Core::Private::NumHashBuckets(Number));
		}
	}
	void Shrink()
	{
		Elements.Shrink();
		Relax();
	}
	void Compact()
	{
		if (Elements.Compact())
		{
			RebuildBuckets();
		}
	}
	void CompactStable()
	{
		if (Elements.CompactStable())
		{
			RebuildBuckets();
		}
	}
	/** Gives back the buckets that so few elements do not need. */
	void Relax()
	{
		const int32 Wanted = Elements.Num() > 0 ? UE::Core::Private::NumHashBuckets(Elements.Num()) : 0;
		if (Wanted < HashSize)
		{
			ResizeBuckets(Wanted);
		}
	}
	/** Hashes every key again, after keys were changed in place. */
	void Rehash() const
	{
		for (const SetElementType& Element : Elements)
		{
			Element.KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Element.Value));
		}
		const_cast<TSet*>(this)->RebuildBuckets();
	}

	/** Adds an element, or puts it in the place of the one with the same key. */
	FSetElementId Add(const InElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(InElement, bIsAlreadyInSetPtr); }
	FSetElementId Add(InElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return Emplace(MoveTempIfPossible(InElement), bIsAlreadyInSetPtr);
	}
	FSetElementId AddByHash(uint32 KeyHash, const InElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return EmplaceByHash(KeyHash, InElement, bIsAlreadyInSetPtr);
	}
	FSetElementId AddByHash(uint32 KeyHash, InElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return EmplaceByHash(KeyHash, MoveTempIfPossible(InElement), bIsAlreadyInSetPtr);
	}
	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		// Made beside the set, because the argument may refer to an element that growth would move.
		TTypeCompatibleBytes<SetElementType> Item;
		SetElementType* const Made = ::new (static_cast<void*>(Item.Pad)) SetElementType{InElementType(Forward<ArgType>(Arg))};
		return Insert(KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Made->Value)), Made, bIsAlreadyInSetPtr);
	}
	template <typename ArgType>
	FSetElementId EmplaceByHash(uint32 KeyHash, ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		TTypeCompatibleBytes<SetElementType> Item;
		SetElementType* const Made = ::new (static_cast<void*>(Item.Pad)) SetElementType{InElementType(Forward<ArgType>(Arg))};
		return Insert(KeyHash, Made, bIsAlreadyInSetPtr);
	}
	/** The element with the key of InElement, which is added if there is none; an existing one stays as it is. */
	ElementType& FindOrAdd(const InElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return FindOrAddImpl(InElement, bIsAlreadyInSetPtr);
	}
	ElementType& FindOrAdd(InElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return FindOrAddImpl(MoveTempIfPossible(InElement), bIsAlreadyInSetPtr);
	}
	/** Adds an element whose key is known not to be there, for a caller who has looked already. */
	template <typename ArgType>
	FSetElementId EmplaceNewByHash(uint32 KeyHash, ArgType&& Arg)
	{
		TTypeCompatibleBytes<SetElementType> Item;
		return InsertNew(KeyHash, ::new (static_cast<void*>(Item.Pad)) SetElementType{InElementType(Forward<ArgType>(Arg))});
	}

	template <typename ArrayAllocator>
	void Append(const TArray<ElementType, ArrayAllocator>& InElements)
	{
		Reserve(Elements.Num() + InElements.Num());
		for (const ElementType& Element : InElements)
		{
			Add(Element);
		}
	}
	template <typename ArrayAllocator>
	void Append(TArray<ElementType, ArrayAllocator>&& InElements)
	{
		Reserve(Elements.Num() + InElements.Num());
		for (ElementType& Element : InElements)
		{
			Add(MoveTempIfPossible(Element));
		}
		InElements.Reset();
	}
	template <typename OtherAllocator>
	void Append(const TSet<ElementType, KeyFuncs, OtherAllocator>& OtherSet)
	{
		if (static_cast<const void*>(this) == static_cast<const void*>(&OtherSet))
		{
			return;
		}
		Reserve(Elements.Num() + OtherSet.Num());
		for (const ElementType& Element : OtherSet)
		{
			Add(Element);
		}
	}
	void Append(std::initializer_list<ElementType> InitList)
	{
		Reserve(Elements.Num() + static_cast<int32>(InitList.size()));
		for (const ElementType& Element : InitList)
		{
			Add(Element);
		}
	}

	FSetElementId FindId(KeyInitType Key) const { return FindIdByHash(KeyFuncs::GetKeyHash(Key), Key); }
	template <typename ComparableKey>
	FSetElementId FindIdByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return FSetElementId::FromInteger(FindIndex(KeyHash, Key));
	}
	ElementType* Find(KeyInitType Key) { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }
	const ElementType* Find(KeyInitType Key) const { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }
	template <typename ComparableKey>
	ElementType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		const int32 Index = FindIndex(KeyHash, Key);
		return Index == INDEX_NONE ? nullptr : &Elements.GetUnsafe(Index).Value;
	}
	template <typename ComparableKey>
	const ElementType* FindByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return const_cast<TSet*>(this)->FindByHash(KeyHash, Key);
	}
	ElementType* FindArbitraryElement() { return Elements.Num() > 0 ? &*begin() : nullptr; }
	const ElementType* FindArbitraryElement() const { return const_cast<TSet*>(this)->FindArbitraryElement(); }
	bool Contains(KeyInitType Key) const { return FindIndex(KeyFuncs::GetKeyHash(Key), Key) != INDEX_NONE; }
	template <typename ComparableKey>
	bool ContainsByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return FindIndex(KeyHash, Key) != INDEX_NONE;
	}

	void Remove(FSetElementId ElementId)
	{
		Unlink(ElementId.AsInteger());
		Elements.RemoveAt(ElementId.AsInteger());
	}
	/** Removes every element with that key; answers how many. */
	int32 Remove(KeyInitType Key) { return RemoveByHash(KeyFuncs::GetKeyHash(Key), Key); }
	template <typename ComparableKey>
	int32 RemoveByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		// The key may be an element of this set, so nothing is destructed before the search is over.
		int32 FirstRemoved = INDEX_NONE;
		int32 NumRemoved = 0;
		if (HashSize == 0)
		{
			return 0;
		}
		FSetElementId* Next = &Bucket(KeyHash);
		while (Next->IsValidId())
		{
			const int32 Index = Next->AsInteger();
			SetElementType& Element = Elements.GetUnsafe(Index);
			if (Element.KeyHash != KeyHash || !KeyFuncs::Matches(KeyFuncs::GetSetKey(Element.Value), Key))
			{
				Next = reinterpret_cast<FSetElementId*>(&Element.HashNextId);
				continue;
			}
			*Next = FSetElementId::FromInteger(Element.HashNextId);
			Element.HashNextId = FirstRemoved;
			FirstRemoved = Index;
			++NumRemoved;
			if constexpr (!KeyFuncs::bAllowDuplicateKeys)
			{
				break;
			}
		}
		while (FirstRemoved != INDEX_NONE)
		{
			const int32 Index = FirstRemoved;
			FirstRemoved = Elements.GetUnsafe(Index).HashNextId;
			Elements.RemoveAt(Index);
		}
		return NumRemoved;
	}

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	template <typename Predicate>
	void Sort(const Predicate& Pred)
	{
		Elements.Sort([&Pred](const SetElementType& A, const SetElementType& B)
			{ return DereferencedLess(Pred, A.Value, B.Value); });
		RebuildBuckets();
	}
	template <typename Predicate>
	void StableSort(const Predicate& Pred)
	{
		Elements.StableSort([&Pred](const SetElementType& A, const SetElementType& B)
			{ return DereferencedLess(Pred, A.Value, B.Value); });
		RebuildBuckets();
	}
	/** Makes the next additions fill the lowest holes first. */
	void SortFreeList() { Elements.SortFreeList(); }

	template <bool bConst>
	class TBaseIterator
	{
		using SetType = std::conditional_t<bConst, const TSet, TSet>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;
		using ElementItType = std::conditional_t<bConst, typename ElementArrayType::TConstIterator, typename ElementArrayType::TIterator>;

	public:
		TBaseIterator(SetType& InSet, const ElementItType& InIt)
			: Set(&InSet)
			, ElementIt(InIt)
		{
		}
		explicit TBaseIterator(SetType& InSet)
			: Set(&InSet)
			, ElementIt(InSet.Elements.begin())
		{
		}

		TBaseIterator& operator++()
		{
			++ElementIt;
			return *this;
		}
		explicit operator bool() const { return static_cast<bool>(ElementIt); }
		ItElementType& operator*() const { return ElementIt->Value; }
		ItElementType* operator->() const { return &ElementIt->Value; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(ElementIt.GetIndex()); }
		/** Removes the current element; ++ goes on to the next. */
		void RemoveCurrent() requires(!bConst)
		{
			Set->Remove(GetId());
		}
		friend bool operator==(const TBaseIterator& A, const TBaseIterator& B) { return A.ElementIt == B.ElementIt; }

	private:
		SetType* Set;
		ElementItType ElementIt;
	};
	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	using TRangedForIterator = TIterator;
	using TRangedForConstIterator = TConstIterator;

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TIterator begin() { return TIterator(*this); }
	TConstIterator begin() const { return TConstIterator(*this); }
	TIterator end() { return TIterator(*this, Elements.end()); }
	TConstIterator end() const { return TConstIterator(*this, Elements.end()); }

	/** Goes through the elements of one key, the youngest first. */
	template <bool bConst>
	class TBaseKeyIterator
	{
		using SetType = std::conditional_t<bConst, const TSet, TSet>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;
		using ReferenceOrValueType = typename TTypeTraits<typename KeyFuncs::KeyType>::ConstPointerType;

	public:
		TBaseKeyIterator(SetType& InSet, KeyInitType InKey)
			: Set(InSet)
			, Key(InKey)
			, KeyHash(KeyFuncs::GetKeyHash(InKey))
			, Id(InSet.FindIndex(KeyHash, Key))
		{
			FindNext();
		}
		TBaseKeyIterator& operator++()
		{
			Id = NextId;
			FindNext();
			return *this;
		}
		explicit operator bool() const { return Id != INDEX_NONE; }
		ItElementType& operator*() const { return Set.Elements[Id].Value; }
		ItElementType* operator->() const { return &Set.Elements[Id].Value; }
		void RemoveCurrent() requires(!bConst)
		{
			Set.Remove(FSetElementId::FromInteger(Id));
			Id = INDEX_NONE;
		}

	private:
		void FindNext()
		{
			NextId = Id;
			while (NextId != INDEX_NONE)
			{
				NextId = Set.Elements[NextId].HashNextId;
				if (NextId != INDEX_NONE && KeyFuncs::Matches(KeyFuncs::GetSetKey(Set.Elements[NextId].Value), Key))
				{
					break;
				}
			}
		}

		SetType& Set;
		ReferenceOrValueType Key;
		uint32 KeyHash;
		int32 Id;
		int32 NextId = INDEX_NONE;
	};
	using TKeyIterator = TBaseKeyIterator<false>;
	using TConstKeyIterator = TBaseKeyIterator<true>;
	TKeyIterator CreateKeyIterator(KeyInitType Key) { return TKeyIterator(*this, Key); }
	TConstKeyIterator CreateConstKeyIterator(KeyInitType Key) const { return TConstKeyIterator(*this, Key); }

	friend bool LegacyCompareEqual(const TSet& A, const TSet& B) { return A.Num() == B.Num() && A.Includes(B); }

	friend FArchive& operator<<(FArchive& Ar, TSet& Set)
	{
		const int32 Num = SerializeContainerNum(Ar, Set.Num());
		if (Ar.IsLoading())
		{
			Set.Empty();
			for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
			{
				ElementType Element = ElementType();
				Ar << Element;
				if (!Ar.IsError())
				{
					Set.Add(MoveTempIfPossible(Element));
				}
			}
			return Ar;
		}
		for (ElementType& Element : Set)
		{
			Ar << Element;
		}
		return Ar;
	}

private:
	template <typename Predicate>
	static bool DereferencedLess(const Predicate& Pred, const ElementType& A, const ElementType& B)
	{
		return UE::Core::Private::TDereferencingPredicate<ElementType, Predicate>{Pred}(A, B);
	}

	FSetElementId& Bucket(uint32 KeyHash) const { return Hash.GetAllocation()[UE::Core::Private::HashBucket(KeyHash, HashSize)]; }

	template <typename ComparableKey>
	int32 FindIndex(uint32 KeyHash, const ComparableKey& Key) const
	{
		if (HashSize == 0)
		{
			return INDEX_NONE;
		}
		int32 Index = Bucket(KeyHash).AsInteger();
		while (Index != INDEX_NONE)
		{
			const SetElementType& Element = Elements.GetUnsafe(Index);
			if (Element.KeyHash == KeyHash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Element.Value), Key))
			{
				break;
			}
			Index = Element.HashNextId;
		}
		return Index;
	}

	template <typename ArgType>
	ElementType& FindOrAddImpl(ArgType&& Arg, bool* bIsAlreadyInSetPtr)
	{
		const uint32 KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Arg));
		int32 Index = FindIndex(KeyHash, KeyFuncs::GetSetKey(Arg));
		const bool bIsAlreadyInSet = Index != INDEX_NONE;
		if (!bIsAlreadyInSet)
		{
			Index = EmplaceNewByHash(KeyHash, Forward<ArgType>(Arg)).AsInteger();
		}
		if (bIsAlreadyInSetPtr != nullptr)
		{
			*bIsAlreadyInSetPtr = bIsAlreadyInSet;
		}
		return Elements.GetUnsafe(Index).Value;
	}

	FSetElementId Insert(uint32 KeyHash, SetElementType* Made, bool* bIsAlreadyInSetPtr)
	{
		int32 Existing = INDEX_NONE;
		if constexpr (!KeyFuncs::bAllowDuplicateKeys)
		{
			Existing = FindIndex(KeyHash, KeyFuncs::GetSetKey(Made->Value));
		}
		if (bIsAlreadyInSetPtr != nullptr)
		{
			*bIsAlreadyInSetPtr = Existing != INDEX_NONE;
		}
		if (Existing == INDEX_NONE)
		{
			return InsertNew(KeyHash, Made);
		}
		ElementType* const Old = &Elements.GetUnsafe(Existing).Value;
		DestructItem(Old);
		RelocateConstructItems(static_cast<void*>(Old), &Made->Value, 1);
		return FSetElementId::FromInteger(Existing);
	}

	FSetElementId InsertNew(uint32 KeyHash, SetElementType* Made)
	{
		Made->KeyHash = KeyHash;
		const int32 Index = Elements.AddRelocated(Made);
		const int32 Wanted = UE::Core::Private::NumHashBuckets(Elements.Num());
		if (Wanted > HashSize)
		{
			ResizeBuckets(Wanted);
		}
		else
		{
			LinkElement(Index);
		}
		return FSetElementId::FromInteger(Index);
	}

	void LinkElement(int32 Index) const
	{
		const SetElementType& Element = Elements.GetUnsafe(Index);
		FSetElementId& First = Bucket(Element.KeyHash);
		Element.HashNextId = First.AsInteger();
		First = FSetElementId::FromInteger(Index);
	}

	void Unlink(int32 Index)
	{
		const SetElementType& Removed = Elements[Index];
		FSetElementId* Next = &Bucket(Removed.KeyHash);
		while (Next->AsInteger() != Index)
		{
			checkf(Next->IsValidId(), TEXT("A key of a set was changed in place without Rehash"));
			Next = reinterpret_cast<FSetElementId*>(&Elements.GetUnsafe(Next->AsInteger()).HashNextId);
		}
		*Next = FSetElementId::FromInteger(Removed.HashNextId);
	}

	void ClearBuckets() const
	{
		FMemory::Memset(Hash.GetAllocation(), 0xff, static_cast<SIZE_T>(HashSize) * sizeof(FSetElementId));
	}

	void ResizeBuckets(int32 NewSize)
	{
		if (NewSize != HashSize)
		{
			Hash.ResizeAllocation(0, NewSize, sizeof(FSetElementId));
			HashSize = NewSize;
		}
		LinkAll();
	}

	void RebuildBuckets()
	{
		const int32 Wanted = Elements.Num() > 0 ? UE::Core::Private::NumHashBuckets(Elements.Num()) : 0;
		ResizeBuckets(Wanted > HashSize ? Wanted : HashSize);
	}

	void LinkAll() const
	{
		ClearBuckets();
		for (auto It = Elements.CreateConstIterator(); It; ++It)
		{
			LinkElement(It.GetIndex());
		}
	}

	ElementArrayType Elements;
	HashType Hash;
	int32 HashSize = 0;
};

template <typename T>
struct TIsTSet : TIntegralConstant<bool, false>
{
};

template <typename ElementType, typename KeyFuncs, typename Allocator>
struct TIsTSet<TSet<ElementType, KeyFuncs, Allocator>> : TIntegralConstant<bool, true>
{
};
