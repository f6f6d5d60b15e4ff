#pragma once

#include "Containers/ContainerAllocationPolicies.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Serialization/Archive.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <bit>

inline constexpr int32 NumBitsPerDWORD = 32;
inline constexpr int32 NumBitsPerDWORDLogTwo = 5;

/** One bit, to be read and assigned. */
class FBitReference
{
public:
	FBitReference(uint32& InData, uint32 InMask)
		: Data(InData)
		, Mask(InMask)
	{
	}

	operator bool() const { return (Data & Mask) != 0; }
	void operator=(const bool bNewValue) { Data = bNewValue ? Data | Mask : Data & ~Mask; }
	FBitReference& operator=(const FBitReference& Other)
	{
		*this = static_cast<bool>(Other);
		return *this;
	}
	FBitReference& operator|=(const bool bValue)
	{
		Data |= bValue ? Mask : 0;
		return *this;
	}
	FBitReference& operator&=(const bool bValue)
	{
		Data &= bValue ? ~0u : ~Mask;
		return *this;
	}

private:
	uint32& Data;
	uint32 Mask;
};

class FConstBitReference
{
public:
	FConstBitReference(const uint32& InData, uint32 InMask)
		: Data(InData)
		, Mask(InMask)
	{
	}

	operator bool() const { return (Data & Mask) != 0; }

private:
	const uint32& Data;
	uint32 Mask;
};

/** A dynamic array of bits. The bits of the last word that are past the end are always zero. */
template <typename Allocator>
class TBitArray
{
	using AllocatorType = typename Allocator::template ForElementType<uint32>;

public:
	TBitArray()
		: NumBits(0)
		, MaxBits(AllocatorInstance.GetInitialCapacity() * NumBitsPerDWORD)
	{
		ClearWords(0, NumWords(MaxBits));
	}
	explicit TBitArray(bool bValue, int32 InNumBits)
		: TBitArray()
	{
		Init(bValue, InNumBits);
	}
	TBitArray(const TBitArray& Other)
		: TBitArray()
	{
		*this = Other;
	}
	TBitArray(TBitArray&& Other)
		: TBitArray()
	{
		*this = MoveTemp(Other);
	}
	TBitArray& operator=(const TBitArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.NumBits);
			NumBits = Other.NumBits;
			FMemory::Memcpy(GetData(), Other.GetData(), NumWords(NumBits) * sizeof(uint32));
		}
		return *this;
	}
	TBitArray& operator=(TBitArray&& Other)
	{
		if (this != &Other)
		{
			AllocatorInstance.MoveToEmpty(Other.AllocatorInstance);
			NumBits = Other.NumBits;
			MaxBits = Other.MaxBits;
			Other.NumBits = 0;
			Other.MaxBits = Other.AllocatorInstance.GetInitialCapacity() * NumBitsPerDWORD;
			Other.ClearWords(0, NumWords(Other.MaxBits));
		}
		return *this;
	}

	bool operator==(const TBitArray& Other) const
	{
		return NumBits == Other.NumBits && FMemory::Memcmp(GetData(), Other.GetData(), NumWords(NumBits) * sizeof(uint32)) == 0;
	}

	uint32* GetData() { return AllocatorInstance.GetAllocation(); }
	const uint32* GetData() const { return AllocatorInstance.GetAllocation(); }
	int32 Num() const { return NumBits; }
	int32 Max() const { return MaxBits; }
	bool IsEmpty() const { return NumBits == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < NumBits; }
	SIZE_T GetAllocatedSize() const { return AllocatorInstance.GetAllocatedSize(NumWords(MaxBits), sizeof(uint32)); }

	FBitReference operator[](int32 Index)
	{
		check(IsValidIndex(Index));
		return FBitReference(GetData()[Index / NumBitsPerDWORD], 1u << (Index & 31));
	}
	FConstBitReference operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return FConstBitReference(GetData()[Index / NumBitsPerDWORD], 1u << (Index & 31));
	}

	int32 Add(const bool bValue)
	{
		const int32 Index = AddUninitialized(1);
		(*this)[Index] = bValue;
		return Index;
	}
	int32 Add(const bool bValue, int32 NumBitsToAdd)
	{
		check(NumBitsToAdd >= 0);
		const int32 Index = AddUninitialized(NumBitsToAdd);
		SetRange(Index, NumBitsToAdd, bValue);
		return Index;
	}
	void Insert(bool bValue, int32 Index)
	{
		check(Index >= 0 && Index <= NumBits);
		AddUninitialized(1);
		for (int32 Bit = NumBits - 1; Bit > Index; --Bit)
		{
			(*this)[Bit] = static_cast<bool>((*this)[Bit - 1]);
		}
		(*this)[Index] = bValue;
	}
	void Init(bool bValue, int32 InNumBits)
	{
		Empty(InNumBits);
		Add(bValue, InNumBits);
	}
	void Reserve(int32 Number)
	{
		if (Number > MaxBits)
		{
			Grow(NumWords(Number));
		}
	}
	/** Clears the array and makes room for ExpectedNumBits. */
	void Empty(int32 ExpectedNumBits = 0)
	{
		ClearWords(0, NumWords(NumBits));
		NumBits = 0;
		const int32 InlineWords = AllocatorInstance.GetInitialCapacity();
		const int32 Words = NumWords(ExpectedNumBits) < InlineWords ? InlineWords : NumWords(ExpectedNumBits);
		if (Words * NumBitsPerDWORD != MaxBits)
		{
			AllocatorInstance.ResizeAllocation(0, Words, sizeof(uint32));
			MaxBits = Words * NumBitsPerDWORD;
			ClearWords(0, Words);
		}
	}
	/** Clears the array and keeps its memory. */
	void Reset()
	{
		ClearWords(0, NumWords(NumBits));
		NumBits = 0;
	}
	void SetNum(int32 InNumBits, const bool bValue)
	{
		if (InNumBits > NumBits)
		{
			Add(bValue, InNumBits - NumBits);
		}
		else
		{
			RemoveAt(InNumBits, NumBits - InNumBits);
		}
	}
	void SetNumUninitialized(int32 InNumBits) { SetNum(InNumBits, false); }
	void SetRange(int32 Index, int32 NumBitsToSet, bool bValue)
	{
		check(Index >= 0 && NumBitsToSet >= 0 && NumBitsToSet <= NumBits - Index);
		uint32* const Data = GetData();
		for (int32 Bit = Index, End = Index + NumBitsToSet; Bit < End;)
		{
			const int32 InWord = Bit & 31;
			const int32 Count = (End - Bit) < (32 - InWord) ? (End - Bit) : (32 - InWord);
			const uint32 Mask = (Count == 32 ? ~0u : ((1u << Count) - 1)) << InWord;
			uint32& Word = Data[Bit / NumBitsPerDWORD];
			Word = bValue ? Word | Mask : Word & ~Mask;
			Bit += Count;
		}
	}
	void RemoveAt(int32 BaseIndex, int32 NumBitsToRemove = 1)
	{
		check(BaseIndex >= 0 && NumBitsToRemove >= 0 && NumBitsToRemove <= NumBits - BaseIndex);
		for (int32 Bit = BaseIndex; Bit + NumBitsToRemove < NumBits; ++Bit)
		{
			(*this)[Bit] = static_cast<bool>((*this)[Bit + NumBitsToRemove]);
		}
		SetRange(NumBits - NumBitsToRemove, NumBitsToRemove, false);
		NumBits -= NumBitsToRemove;
	}
	void RemoveAtSwap(int32 BaseIndex, int32 NumBitsToRemove = 1)
	{
		check(BaseIndex >= 0 && NumBitsToRemove >= 0 && NumBitsToRemove <= NumBits - BaseIndex);
		const int32 NumAfter = NumBits - BaseIndex - NumBitsToRemove;
		const int32 NumToMove = NumAfter < NumBitsToRemove ? NumAfter : NumBitsToRemove;
		for (int32 Offset = 0; Offset < NumToMove; ++Offset)
		{
			(*this)[BaseIndex + Offset] = static_cast<bool>((*this)[NumBits - NumToMove + Offset]);
		}
		SetRange(NumBits - NumBitsToRemove, NumBitsToRemove, false);
		NumBits -= NumBitsToRemove;
	}

	/** Index of the first bit of that value at or after StartIndex, or INDEX_NONE. */
	int32 FindFrom(bool bValue, int32 StartIndex) const
	{
		const uint32* const Data = GetData();
		const uint32 Flip = bValue ? 0u : ~0u;
		const int32 LastWord = NumWords(NumBits);
		uint32 Mask = ~0u << (StartIndex & 31);
		for (int32 Word = StartIndex / NumBitsPerDWORD; Word < LastWord; ++Word, Mask = ~0u)
		{
			const uint32 Bits = (Data[Word] ^ Flip) & Mask;
			if (Bits != 0)
			{
				const int32 Index = Word * NumBitsPerDWORD + std::countr_zero(Bits);
				return Index < NumBits ? Index : INDEX_NONE;
			}
		}
		return INDEX_NONE;
	}
	int32 Find(bool bValue) const { return FindFrom(bValue, 0); }
	int32 FindLast(bool bValue) const
	{
		for (int32 Index = NumBits - 1; Index >= 0; --Index)
		{
			if ((*this)[Index] == bValue)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	bool Contains(bool bValue) const { return Find(bValue) != INDEX_NONE; }
	int32 FindAndSetFirstZeroBit(int32 ConservativeStartIndex = 0)
	{
		const int32 Index = FindFrom(false, ConservativeStartIndex);
		if (Index != INDEX_NONE)
		{
			(*this)[Index] = true;
		}
		return Index;
	}
	int32 CountSetBits(int32 FromIndex = 0, int32 ToIndex = INDEX_NONE) const
	{
		const int32 End = ToIndex == INDEX_NONE ? NumBits : ToIndex;
		int32 Count = 0;
		for (int32 Index = FindFrom(true, FromIndex); Index != INDEX_NONE && Index < End; Index = FindFrom(true, Index + 1))
		{
			++Count;
		}
		return Count;
	}

	class FConstIterator
	{
	public:
		explicit FConstIterator(const TBitArray& InArray, int32 StartIndex = 0)
			: Array(InArray)
			, Index(StartIndex)
		{
		}
		FConstIterator& operator++()
		{
			++Index;
			return *this;
		}
		explicit operator bool() const { return Index < Array.Num(); }
		bool operator*() const { return GetValue(); }
		bool GetValue() const { return Array[Index]; }
		int32 GetIndex() const { return Index; }
		friend bool operator==(const FConstIterator& A, const FConstIterator& B) { return A.Index == B.Index; }

	private:
		const TBitArray& Array;
		int32 Index;
	};
	FConstIterator begin() const { return FConstIterator(*this); }
	FConstIterator end() const { return FConstIterator(*this, NumBits); }

	/** Reads and writes the count of bits and then their words. */
	void Serialize(FArchive& Ar)
	{
		int32 Count = NumBits;
		Ar << Count;
		if (Ar.IsLoading())
		{
			if (Count < 0 || !Ar.CanHold(static_cast<int64>(Count) / 8))
			{
				Ar.SetError();
				Count = 0;
			}
			Init(false, Count);
		}
		Ar.Serialize(GetData(), NumWords(NumBits) * static_cast<int64>(sizeof(uint32)));
		if (Ar.IsLoading() && (NumBits & 31) != 0)
		{
			GetData()[NumBits / NumBitsPerDWORD] &= (1u << (NumBits & 31)) - 1;
		}
	}
	friend FArchive& operator<<(FArchive& Ar, TBitArray& Array)
	{
		Array.Serialize(Ar);
		return Ar;
	}
	friend uint32 GetTypeHash(const TBitArray& Array)
	{
		uint32 Hash = GetTypeHash(Array.NumBits);
		for (int32 Word = 0; Word < NumWords(Array.NumBits); ++Word)
		{
			Hash = HashCombineFast(Hash, Array.GetData()[Word]);
		}
		return Hash;
	}

private:
	static int32 NumWords(int32 Bits) { return static_cast<int32>((static_cast<uint32>(Bits) + 31) / 32); }

	void ClearWords(int32 First, int32 Last)
	{
		if (Last > First)
		{
			FMemory::Memzero(GetData() + First, (Last - First) * sizeof(uint32));
		}
	}

	int32 AddUninitialized(int32 Count)
	{
		check(Count <= std::numeric_limits<int32>::max() - 32 - NumBits);
		const int32 Index = NumBits;
		if (NumBits + Count > MaxBits)
		{
			const int32 Words = NumWords(NumBits + Count);
			Grow(AllocatorInstance.CalculateSlackGrow(Words, NumWords(MaxBits), sizeof(uint32)));
		}
		NumBits += Count;
		return Index;
	}

	void Grow(int32 Words)
	{
		// Room of more bits than an int32 counts would never be used.
		constexpr int32 MostWords = std::numeric_limits<int32>::max() / NumBitsPerDWORD;
		Words = Words < MostWords ? Words : MostWords;
		const int32 OldWords = NumWords(MaxBits);
		AllocatorInstance.ResizeAllocation(OldWords, Words, sizeof(uint32));
		MaxBits = Words * NumBitsPerDWORD;
		ClearWords(OldWords, Words);
	}

	AllocatorType AllocatorInstance;
	int32 NumBits;
	int32 MaxBits;
};

/** Goes through the indices of the set bits, in order. The array may lose the current bit meanwhile. */
template <typename Allocator = FDefaultBitArrayAllocator>
class TConstSetBitIterator
{
public:
	explicit TConstSetBitIterator(const TBitArray<Allocator>& InArray, int32 StartIndex = 0)
		: Array(&InArray)
		, Index(Array->FindFrom(true, StartIndex))
	{
	}

	TConstSetBitIterator& operator++()
	{
		Index = Array->FindFrom(true, Index + 1);
		return *this;
	}
	explicit operator bool() const { return Index != INDEX_NONE; }
	int32 operator*() const { return Index; }
	int32 GetIndex() const { return Index; }
	friend bool operator==(const TConstSetBitIterator& A, const TConstSetBitIterator& B)
	{
		return A.Index == B.Index && A.Array == B.Array;
	}

private:
	const TBitArray<Allocator>* Array;
	int32 Index;
};
