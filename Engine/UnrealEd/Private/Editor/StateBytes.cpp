#include "StateBytes.h"

#include "HAL/UnrealMemory.h"
#include "Math/UnrealMathUtility.h"

namespace
{
/** Shorter pieces cost more to name than to hold. */
constexpr int32 MinStretch = 16;

int32 CountEqual(const uint8* Left, const uint8* Right, int32 Num)
{
	int32 Count = 0;
	uint64 LeftWord = 0;
	uint64 RightWord = 0;
	for (; Count + static_cast<int32>(sizeof(uint64)) <= Num; Count += sizeof(uint64))
	{
		FMemory::Memcpy(&LeftWord, Left + Count, sizeof(uint64));
		FMemory::Memcpy(&RightWord, Right + Count, sizeof(uint64));
		if (LeftWord != RightWord)
		{
			break;
		}
	}
	while (Count < Num && Left[Count] == Right[Count])
	{
		++Count;
	}
	return Count;
}

/** How many bytes from Start on are those of Other that lie Shift further on. */
int32 CountEqualShifted(const TArray<uint8>& Whole, int32 Start, const TArray<uint8>& Other, int32 Shift)
{
	const int32 OtherStart = Start + Shift;
	return OtherStart < 0 || OtherStart >= Other.Num()
		? 0
		: CountEqual(Whole.GetData() + Start, Other.GetData() + OtherStart, FMath::Min(Whole.Num() - Start, Other.Num() - OtherStart));
}
}

FStateBytes::FStateBytes(TConstArrayView<uint8> Whole, SIZE_T& InTotal)
	: Bytes(Whole.GetData(), Whole.Num())
	, Total(InTotal)
{
	Total += GetAllocatedSize();
}

FStateBytes::~FStateBytes()
{
	Total -= GetAllocatedSize();
	// Bytes that rest on bytes that rest on bytes, and so on, are not let go of by as many calls within each other.
	while (Base && Base.IsUnique())
	{
		Base = MoveTemp(Base->Base);
	}
}

const TArray<uint8>& FStateBytes::GetWhole()
{
	if (IsWhole())
	{
		return Bytes;
	}
	TArray<const FStateBytes*> Chain;
	const FStateBytes* Lowest = this;
	for (; !Lowest->IsWhole(); Lowest = Lowest->Base.Get())
	{
		Chain.Add(Lowest);
	}
	TArray<uint8> Whole = Chain.Pop()->PutTogether(Lowest->Bytes);
	while (!Chain.IsEmpty())
	{
		Whole = Chain.Pop()->PutTogether(Whole);
	}
	Set(MoveTemp(Whole), {}, nullptr);
	return Bytes;
}

void FStateBytes::RestOn(const TSharedRef<FStateBytes>& NewBase)
{
	check(NewBase->IsWhole() && &NewBase.Get() != this);
	TArray<FStretch> NewStretches;
	TArray<uint8> NewBytes;
	Compare(GetWhole(), NewBase->Bytes, NewStretches, NewBytes);
	if (NewStretches.Num() * sizeof(FStretch) + NewBytes.Num() < static_cast<SIZE_T>(Bytes.Num()))
	{
		NewStretches.Shrink();
		NewBytes.Shrink();
		Set(MoveTemp(NewBytes), MoveTemp(NewStretches), NewBase);
	}
}

void FStateBytes::Compare(
	const TArray<uint8>& Whole, const TArray<uint8>& BaseWhole, TArray<FStretch>& OutStretches, TArray<uint8>& OutBytes)
{
	// Most edits insert or remove at one place: what stands before it is as far from the beginning, what stands behind it from the end.
	const int32 Shift = BaseWhole.Num() - Whole.Num();
	int32 NumNew = 0;
	const auto AddNew = [&](int32 End)
	{
		if (NumNew > 0)
		{
			OutStretches.Add({INDEX_NONE, NumNew});
			OutBytes.Append(Whole.GetData() + End - NumNew, NumNew);
			NumNew = 0;
		}
	};
	for (int32 Position = 0; Position < Whole.Num();)
	{
		const int32 FromBeginning = CountEqualShifted(Whole, Position, BaseWhole, 0);
		const int32 FromEnd = Shift != 0 ? CountEqualShifted(Whole, Position, BaseWhole, Shift) : 0;
		const int32 NumEqual = FMath::Max(FromBeginning, FromEnd);
		if (NumEqual < MinStretch)
		{
			++NumNew;
			++Position;
			continue;
		}
		AddNew(Position);
		OutStretches.Add({FromBeginning >= FromEnd ? Position : Position + Shift, NumEqual});
		Position += NumEqual;
	}
	AddNew(Whole.Num());
}

TArray<uint8> FStateBytes::PutTogether(const TArray<uint8>& BaseWhole) const
{
	int32 Num = 0;
	for (const FStretch& Stretch : Stretches)
	{
		Num += Stretch.Num;
	}
	TArray<uint8> Whole;
	Whole.Reserve(Num);
	int32 NumTaken = 0;
	for (const FStretch& Stretch : Stretches)
	{
		const bool bFromBase = Stretch.BaseStart != INDEX_NONE;
		Whole.Append(bFromBase ? BaseWhole.GetData() + Stretch.BaseStart : Bytes.GetData() + NumTaken, Stretch.Num);
		NumTaken += bFromBase ? 0 : Stretch.Num;
	}
	return Whole;
}

void FStateBytes::Set(TArray<uint8>&& NewBytes, TArray<FStretch>&& NewStretches, const TSharedPtr<FStateBytes>& NewBase)
{
	Total -= GetAllocatedSize();
	Bytes = MoveTemp(NewBytes);
	Stretches = MoveTemp(NewStretches);
	Base = NewBase;
	Total += GetAllocatedSize();
}
