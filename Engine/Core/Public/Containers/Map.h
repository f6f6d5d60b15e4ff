#pragma once

#include "Containers/Set.h"
#include "Templates/Tuple.h"

/** The base of the key functions of maps. */
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapKeyFuncs : BaseKeyFuncs<TPair<KeyType, ValueType>, KeyType, bInAllowDuplicateKeys>
{
	using KeyInitType = typename TTypeTraits<KeyType>::ConstPointerType;
	using ElementInitType = const TPair<KeyType, ValueType>&;

	static KeyInitType GetSetKey(ElementInitType Element) { return Element.Key; }
	template <typename ComparableKey>
	static bool Matches(KeyInitType A, const ComparableKey& B)
	{
		return A == B;
	}
	template <typename ComparableKey>
	static uint32 GetKeyHash(const ComparableKey& Key)
	{
		return GetTypeHash(Key);
	}
};

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : TDefaultMapKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>
{
};

/** What maps of one and of several values a key have in common. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMapBase
{
	template <typename OtherKeyType, typename OtherValueType, typename OtherAllocator, typename OtherKeyFuncs>
	friend class TMapBase;

public:
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = TPair<InKeyType, InValueType>;
	using SizeType = int32;
	using KeyConstPointerType = typename TTypeTraits<InKeyType>::ConstPointerType;
	using KeyInitType = typename TTypeTraits<InKeyType>::ConstPointerType;
	using ValueInitType = const InValueType&;
	using ElementSetType = TSet<ElementType, KeyFuncs, SetAllocator>;

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }
	int32 GetMaxIndex() const { return Pairs.GetMaxIndex(); }
	SIZE_T GetAllocatedSize() const { return Pairs.GetAllocatedSize(); }
	void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }
	void Reset() { Pairs.Reset(); }
	void Shrink() { Pairs.Shrink(); }
	void Compact() { Pairs.Compact(); }
	void CompactStable() { Pairs.CompactStable(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }
	/** Hashes every key again, after keys were changed in place. */
	void Rehash() { Pairs.Rehash(); }
	bool IsValidId(FSetElementId Id) const { return Pairs.IsValidId(Id); }
	ElementType& Get(FSetElementId Id) { return Pairs[Id]; }
	const ElementType& Get(FSetElementId Id) const { return Pairs[Id]; }
	FSetElementId FindId(KeyInitType Key) const { return Pairs.FindId(Key); }

	/** True if both have the same keys with equal values, in whatever order. */
	bool OrderIndependentCompareEqual(const TMapBase& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : Pairs)
		{
			const ValueType* const OtherValue = Other.Find(Pair.Key);
			if (OtherValue == nullptr || !(*OtherValue == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	/** Sets the value of a key. In a map of one value a key, it replaces the old pair. */
	ValueType& Add(const KeyType& InKey, const ValueType& InValue) { return Emplace(InKey, InValue); }
	ValueType& Add(const KeyType& InKey, ValueType&& InValue) { return Emplace(InKey, MoveTempIfPossible(InValue)); }
	ValueType& Add(KeyType&& InKey, const ValueType& InValue) { return Emplace(MoveTempIfPossible(InKey), InValue); }
	ValueType& Add(KeyType&& InKey, ValueType&& InValue) { return Emplace(MoveTempIfPossible(InKey), MoveTempIfPossible(InValue)); }
	ValueType& Add(const KeyType& InKey) { return Emplace(InKey); }
	ValueType& Add(KeyType&& InKey) { return Emplace(MoveTempIfPossible(InKey)); }
	ValueType& Add(const ElementType& InPair) { return Emplace(InPair.Key, InPair.Value); }
	ValueType& Add(ElementType&& InPair) { return Emplace(MoveTempIfPossible(InPair.Key), MoveTempIfPossible(InPair.Value)); }
	ValueType& AddByHash(uint32 KeyHash, const KeyType& InKey, const ValueType& InValue)
	{
		return Pairs[Pairs.EmplaceByHash(KeyHash, ElementType(InKey, InValue))].Value;
	}
	template <typename InitKeyType, typename InitValueType>
	ValueType& Emplace(InitKeyType&& InKey, InitValueType&& InValue)
	{
		return Pairs[Pairs.Emplace(
						 FPairInitializer<InitKeyType, InitValueType>{Forward<InitKeyType>(InKey), Forward<InitValueType>(InValue)})]
			.Value;
	}
	template <typename InitKeyType>
	ValueType& Emplace(InitKeyType&& InKey)
	{
		return Pairs[Pairs.Emplace(FKeyInitializer<InitKeyType>{Forward<InitKeyType>(InKey)})].Value;
	}

	ValueType* Find(KeyConstPointerType Key)
	{
		ElementType* const Pair = Pairs.FindByHash(KeyFuncs::GetKeyHash(Key), Key);
		return Pair == nullptr ? nullptr : &Pair->Value;
	}
	const ValueType* Find(KeyConstPointerType Key) const { return const_cast<TMapBase*>(this)->Find(Key); }
	template <typename ComparableKey>
	ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		ElementType* const Pair = Pairs.FindByHash(KeyHash, Key);
		return Pair == nullptr ? nullptr : &Pair->Value;
	}
	template <typename ComparableKey>
	const ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return const_cast<TMapBase*>(this)->FindByHash(KeyHash, Key);
	}
	const ElementType* FindPair(KeyConstPointerType Key) const { return Pairs.FindByHash(KeyFuncs::GetKeyHash(Key), Key); }
	bool Contains(KeyConstPointerType Key) const { return Pairs.ContainsByHash(KeyFuncs::GetKeyHash(Key), Key); }
	template <typename ComparableKey>
	bool ContainsByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return Pairs.ContainsByHash(KeyHash, Key);
	}
	/** A copy of the value, or a default one if the key is not there. */
	ValueType FindRef(KeyConstPointerType Key) const
	{
		const ValueType* const Value = Find(Key);
		return Value != nullptr ? *Value : ValueType();
	}
	ValueType FindRef(KeyConstPointerType Key, const ValueType& Default) const
	{
		const ValueType* const Value = Find(Key);
		return Value != nullptr ? *Value : Default;
	}
	/** The key of an equal value; looks at every pair. */
	const KeyType* FindKey(ValueInitType Value) const
	{
		for (const ElementType& Pair : Pairs)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}
	template <typename Predicate>
	ElementType* FindPairByPredicate(Predicate Pred)
	{
		for (ElementType& Pair : Pairs)
		{
			if (Invoke(Pred, Pair.Key, Pair.Value))
			{
				return &Pair;
			}
		}
		return nullptr;
	}
	template <typename Predicate>
	TMap<KeyType, ValueType, SetAllocator, KeyFuncs> FilterByPredicate(Predicate Pred) const
	{
		TMap<KeyType, ValueType, SetAllocator, KeyFuncs> Result;
		for (const ElementType& Pair : Pairs)
		{
			if (Invoke(Pred, Pair))
			{
				Result.Add(Pair);
			}
		}
		return Result;
	}

	ValueType& FindOrAdd(const KeyType& Key) { return FindOrAddImpl(Key); }
	ValueType& FindOrAdd(KeyType&& Key) { return FindOrAddImpl(MoveTempIfPossible(Key)); }
	ValueType& FindOrAdd(const KeyType& Key, const ValueType& Value) { return FindOrAddImpl(Key, Value); }
	ValueType& FindOrAdd(const KeyType& Key, ValueType&& Value) { return FindOrAddImpl(Key, MoveTempIfPossible(Value)); }
	ValueType& FindOrAdd(KeyType&& Key, const ValueType& Value) { return FindOrAddImpl(MoveTempIfPossible(Key), Value); }
	ValueType& FindOrAdd(KeyType&& Key, ValueType&& Value) { return FindOrAddImpl(MoveTempIfPossible(Key), MoveTempIfPossible(Value)); }

	int32 Remove(KeyConstPointerType Key) { return Pairs.RemoveByHash(KeyFuncs::GetKeyHash(Key), Key); }
	template <typename ComparableKey>
	int32 RemoveByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		return Pairs.RemoveByHash(KeyHash, Key);
	}

	/** The keys, each once; answers how many. */
	template <typename ArrayAllocator>
	int32 GetKeys(TArray<KeyType, ArrayAllocator>& OutKeys) const
	{
		OutKeys.Reset();
		if constexpr (!KeyFuncs::bAllowDuplicateKeys)
		{
			GenerateKeyArray(OutKeys);
		}
		else
		{
			TSet<KeyType> Visited;
			Visited.Reserve(Num());
			for (const ElementType& Pair : Pairs)
			{
				bool bIsAlreadyInSet = false;
				Visited.Add(Pair.Key, &bIsAlreadyInSet);
				if (!bIsAlreadyInSet)
				{
					OutKeys.Add(Pair.Key);
				}
			}
		}
		return OutKeys.Num();
	}
	template <typename KeySetAllocator>
	int32 GetKeys(TSet<KeyType, DefaultKeyFuncs<KeyType>, KeySetAllocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}
	template <typename ArrayAllocator>
	void GenerateKeyArray(TArray<KeyType, ArrayAllocator>& OutArray) const
	{
		OutArray.Empty(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Key);
		}
	}
	template <typename ArrayAllocator>
	void GenerateValueArray(TArray<ValueType, ArrayAllocator>& OutArray) const
	{
		OutArray.Empty(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Value);
		}
	}
	TArray<ElementType> Array() const { return Pairs.Array(); }

	template <bool bConst>
	class TBaseIterator
	{
		using PairItType = std::conditional_t<bConst, typename ElementSetType::TConstIterator, typename ElementSetType::TIterator>;
		using ItKeyType = std::conditional_t<bConst, const KeyType, KeyType>;
		using ItValueType = std::conditional_t<bConst, const ValueType, ValueType>;
		using PairType = std::conditional_t<bConst, const ElementType, ElementType>;

	public:
		explicit TBaseIterator(const PairItType& InElementIt)
			: PairIt(InElementIt)
		{
		}
		explicit TBaseIterator(std::conditional_t<bConst, const TMapBase, TMapBase>& Map)
			: PairIt(Map.Pairs.begin())
		{
		}
		TBaseIterator& operator++()
		{
			++PairIt;
			return *this;
		}
		explicit operator bool() const { return static_cast<bool>(PairIt); }
		FSetElementId GetId() const { return PairIt.GetId(); }
		ItKeyType& Key() const { return PairIt->Key; }
		ItValueType& Value() const { return PairIt->Value; }
		PairType& operator*() const { return *PairIt; }
		PairType* operator->() const { return &*PairIt; }
		/** Removes the current pair; ++ goes on to the next. */
		void RemoveCurrent() requires(!bConst)
		{
			PairIt.RemoveCurrent();
		}
		friend bool operator==(const TBaseIterator& A, const TBaseIterator& B) { return A.PairIt == B.PairIt; }

	private:
		PairItType PairIt;
	};
	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TIterator begin() { return TIterator(Pairs.begin()); }
	TConstIterator begin() const { return TConstIterator(Pairs.begin()); }
	TIterator end() { return TIterator(Pairs.end()); }
	TConstIterator end() const { return TConstIterator(Pairs.end()); }

	/** Goes through the pairs of one key, the youngest first. */
	template <bool bConst>
	class TBaseKeyIterator
	{
		using SetItType = std::conditional_t<bConst, typename ElementSetType::TConstKeyIterator, typename ElementSetType::TKeyIterator>;
		using ItValueType = std::conditional_t<bConst, const ValueType, ValueType>;

	public:
		explicit TBaseKeyIterator(const SetItType& InSetIt)
			: SetIt(InSetIt)
		{
		}
		TBaseKeyIterator& operator++()
		{
			++SetIt;
			return *this;
		}
		explicit operator bool() const { return static_cast<bool>(SetIt); }
		const KeyType& Key() const { return SetIt->Key; }
		ItValueType& Value() const { return SetIt->Value; }
		void RemoveCurrent() requires(!bConst)
		{
			SetIt.RemoveCurrent();
		}

	private:
		SetItType SetIt;
	};
	using TKeyIterator = TBaseKeyIterator<false>;
	using TConstKeyIterator = TBaseKeyIterator<true>;
	TKeyIterator CreateKeyIterator(KeyInitType InKey) { return TKeyIterator(Pairs.CreateKeyIterator(InKey)); }
	TConstKeyIterator CreateConstKeyIterator(KeyInitType InKey) const { return TConstKeyIterator(Pairs.CreateConstKeyIterator(InKey)); }

	template <typename Predicate>
	void KeySort(const Predicate& Pred)
	{
		Pairs.Sort([&Pred](const ElementType& A, const ElementType& B)
			{ return UE::Core::Private::TDereferencingPredicate<KeyType, Predicate>{Pred}(A.Key, B.Key); });
	}
	template <typename Predicate>
	void KeyStableSort(const Predicate& Pred)
	{
		Pairs.StableSort([&Pred](const ElementType& A, const ElementType& B)
			{ return UE::Core::Private::TDereferencingPredicate<KeyType, Predicate>{Pred}(A.Key, B.Key); });
	}
	template <typename Predicate>
	void ValueSort(const Predicate& Pred)
	{
		Pairs.Sort([&Pred](const ElementType& A, const ElementType& B)
			{ return UE::Core::Private::TDereferencingPredicate<ValueType, Predicate>{Pred}(A.Value, B.Value); });
	}
	template <typename Predicate>
	void ValueStableSort(const Predicate& Pred)
	{
		Pairs.StableSort([&Pred](const ElementType& A, const ElementType& B)
			{ return UE::Core::Private::TDereferencingPredicate<ValueType, Predicate>{Pred}(A.Value, B.Value); });
	}
	void SortFreeList() { Pairs.SortFreeList(); }

	friend FArchive& operator<<(FArchive& Ar, TMapBase& Map) { return Ar << Map.Pairs; }

protected:
	template <typename InitKeyType, typename InitValueType>
	struct FPairInitializer
	{
		InitKeyType&& Key;
		InitValueType&& Value;
		operator ElementType() { return ElementType(static_cast<InitKeyType&&>(Key), static_cast<InitValueType&&>(Value)); }
	};
	template <typename InitKeyType>
	struct FKeyInitializer
	{
		InitKeyType&& Key;
		operator ElementType() { return ElementType(static_cast<InitKeyType&&>(Key), ValueType()); }
	};

	template <typename InitKeyType, typename... ValueArgs>
	ValueType& FindOrAddImpl(InitKeyType&& Key, ValueArgs&&... Value)
	{
		const uint32 KeyHash = KeyFuncs::GetKeyHash(Key);
		if (ElementType* const Pair = Pairs.FindByHash(KeyHash, Key))
		{
			return Pair->Value;
		}
		ElementType Added(Forward<InitKeyType>(Key), ValueType(Forward<ValueArgs>(Value)...));
		return Pairs[Pairs.EmplaceNewByHash(KeyHash, MoveTemp(Added))].Value;
	}

	TMapBase() = default;
	TMapBase(const TMapBase&) = default;
	TMapBase(TMapBase&&) = default;
	TMapBase& operator=(const TMapBase&) = default;
	TMapBase& operator=(TMapBase&&) = default;
	~TMapBase() = default;

	ElementSetType Pairs;
};

/** One value a key. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap : public TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
	static_assert(!KeyFuncs::bAllowDuplicateKeys, "TMap has one value a key; use TMultiMap");
	using Super = TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>;

public:
	using typename Super::ElementType;
	using typename Super::KeyConstPointerType;
	using typename Super::KeyType;
	using typename Super::ValueType;

	TMap() = default;
	TMap(const TMap&) = default;
	TMap(TMap&&) = default;
	TMap& operator=(const TMap&) = default;
	TMap& operator=(TMap&&) = default;
	~TMap() = default;
	TMap(std::initializer_list<TPair<InKeyType, InValueType>> InitList) { Append(InitList); }
	template <typename OtherSetAllocator>
	requires(!std::is_same_v<OtherSetAllocator, SetAllocator>) explicit TMap(
		const TMap<InKeyType, InValueType, OtherSetAllocator, KeyFuncs>& Other)
	{
		Append(Other);
	}
	TMap& operator=(std::initializer_list<TPair<InKeyType, InValueType>> InitList)
	{
		this->Reset();
		Append(InitList);
		return *this;
	}

	ValueType& FindChecked(KeyConstPointerType Key)
	{
		ValueType* const Value = this->Find(Key);
		checkf(Value != nullptr, TEXT("FindChecked: the map has no such key"));
		return *Value;
	}
	const ValueType& FindChecked(KeyConstPointerType Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }
	ValueType& operator[](KeyConstPointerType Key) { return FindChecked(Key); }
	const ValueType& operator[](KeyConstPointerType Key) const { return FindChecked(Key); }

	/** Removes the pair and moves its value out; answers whether it was there. */
	bool RemoveAndCopyValue(KeyConstPointerType Key, ValueType& OutRemovedValue)
	{
		const FSetElementId Id = this->Pairs.FindIdByHash(KeyFuncs::GetKeyHash(Key), Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTempIfPossible(this->Pairs[Id].Value);
		this->Pairs.Remove(Id);
		return true;
	}
	ValueType FindAndRemoveChecked(KeyConstPointerType Key)
	{
		ValueType Result = MoveTempIfPossible(FindChecked(Key));
		this->Remove(Key);
		return Result;
	}

	template <typename OtherSetAllocator>
	void Append(const TMap<KeyType, ValueType, OtherSetAllocator, KeyFuncs>& Other)
	{
		if (static_cast<const void*>(this) == static_cast<const void*>(&Other))
		{
			return;
		}
		this->Reserve(this->Num() + Other.Num());
		for (const ElementType& Pair : Other)
		{
			this->Add(Pair);
		}
	}
	template <typename OtherSetAllocator>
	void Append(TMap<KeyType, ValueType, OtherSetAllocator, KeyFuncs>&& Other)
	{
		if (static_cast<const void*>(this) == static_cast<const void*>(&Other))
		{
			return;
		}
		this->Reserve(this->Num() + Other.Num());
		for (ElementType& Pair : Other)
		{
			this->Add(MoveTemp(Pair));
		}
		Other.Reset();
	}
	void Append(std::initializer_list<TPair<InKeyType, InValueType>> InitList)
	{
		this->Reserve(this->Num() + static_cast<int32>(InitList.size()));
		for (const ElementType& Pair : InitList)
		{
			this->Add(Pair);
		}
	}
};

/** Any number of values a key. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMultiMap : public TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
	static_assert(KeyFuncs::bAllowDuplicateKeys, "TMultiMap needs key functions that allow duplicates");
	using Super = TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>;

public:
	using Super::Remove;
	using typename Super::ElementType;
	using typename Super::KeyConstPointerType;
	using typename Super::KeyType;
	using typename Super::ValueInitType;
	using typename Super::ValueType;

	TMultiMap() = default;
	TMultiMap(const TMultiMap&) = default;
	TMultiMap(TMultiMap&&) = default;
	TMultiMap& operator=(const TMultiMap&) = default;
	TMultiMap& operator=(TMultiMap&&) = default;
	~TMultiMap() = default;
	TMultiMap(std::initializer_list<TPair<InKeyType, InValueType>> InitList)
	{
		for (const ElementType& Pair : InitList)
		{
			this->Add(Pair);
		}
	}

	/** Appends the values of a key: the youngest first, or in the order of addition if asked for. */
	template <typename ArrayAllocator>
	void MultiFind(KeyConstPointerType Key, TArray<ValueType, ArrayAllocator>& OutValues, bool bMaintainOrder = false) const
	{
		const int32 First = OutValues.Num();
		for (auto It = this->CreateConstKeyIterator(Key); It; ++It)
		{
			OutValues.Add(It.Value());
		}
		if (bMaintainOrder)
		{
			for (int32 Low = First, High = OutValues.Num() - 1; Low < High; ++Low, --High)
			{
				OutValues.Swap(Low, High);
			}
		}
	}
	ValueType* FindPair(KeyConstPointerType Key, ValueInitType Value)
	{
		for (auto It = this->CreateKeyIterator(Key); It; ++It)
		{
			if (It.Value() == Value)
			{
				return &It.Value();
			}
		}
		return nullptr;
	}
	const ValueType* FindPair(KeyConstPointerType Key, ValueInitType Value) const
	{
		return const_cast<TMultiMap*>(this)->FindPair(Key, Value);
	}
	ValueType& AddUnique(const KeyType& Key, const ValueType& Value)
	{
		ValueType* const Existing = FindPair(Key, Value);
		return Existing != nullptr ? *Existing : this->Add(Key, Value);
	}
	int32 Remove(KeyConstPointerType Key, ValueInitType Value) { return RemovePairs(Key, Value, NoLimit); }
	int32 RemoveSingle(KeyConstPointerType Key, ValueInitType Value) { return RemovePairs(Key, Value, 1); }
	int32 Num(KeyConstPointerType Key) const
	{
		int32 Count = 0;
		for (auto It = this->CreateConstKeyIterator(Key); It; ++It)
		{
			++Count;
		}
		return Count;
	}
	using Super::Num;

private:
	static constexpr int32 NoLimit = std::numeric_limits<int32>::max();

	int32 RemovePairs(KeyConstPointerType Key, ValueInitType Value, int32 Most)
	{
		int32 NumRemoved = 0;
		for (auto It = this->CreateKeyIterator(Key); It && NumRemoved < Most; ++It)
		{
			if (It.Value() == Value)
			{
				It.RemoveCurrent();
				++NumRemoved;
			}
		}
		return NumRemoved;
	}
};

template <typename T>
struct TIsTMap : TIntegralConstant<bool, false>
{
};

template <typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
struct TIsTMap<TMap<KeyType, ValueType, SetAllocator, KeyFuncs>> : TIntegralConstant<bool, true>
{
};
