#include "Chat/Utils/VexelUtf8Stream.h"

#include "Containers/StringConv.h"

namespace
{
/** Length of the character that a byte begins, 1 for a byte that begins none. */
int32 GetCharacterLength(uint8 Lead)
{
	if (Lead >= 0xC2 && Lead <= 0xDF)
	{
		return 2;
	}
	if (Lead >= 0xE0 && Lead <= 0xEF)
	{
		return 3;
	}
	return Lead >= 0xF0 && Lead <= 0xF4 ? 4 : 1;
}

bool IsContinuation(uint8 Byte)
{
	return (Byte & 0xC0) == 0x80;
}

/** How many bytes at the end begin a character that is not all there. */
int32 CountUnfinished(TConstArrayView<uint8> Bytes)
{
	const int32 MaxBack = FMath::Min(3, Bytes.Num());
	for (int32 Back = 1; Back <= MaxBack; ++Back)
	{
		const uint8 Byte = Bytes[Bytes.Num() - Back];
		if (!IsContinuation(Byte))
		{
			return GetCharacterLength(Byte) > Back ? Back : 0;
		}
	}
	return 0;
}

FString ToText(TConstArrayView<uint8> Bytes)
{
	const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Bytes.GetData()), Bytes.Num());
	return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
}
}

FString FVexelUtf8Stream::Convert(TConstArrayView<uint8> Bytes)
{
	FString Text;
	if (!Kept.IsEmpty())
	{
		// The rest of the kept character ends at the first byte that is no continuation, or with its own length.
		const int32 Length = GetCharacterLength(Kept[0]);
		int32 NumTaken = 0;
		while (NumTaken < Bytes.Num() && Kept.Num() < Length && IsContinuation(Bytes[NumTaken]))
		{
			Kept.Add(Bytes[NumTaken++]);
		}
		Bytes = Bytes.RightChop(NumTaken);
		if (Kept.Num() < Length && Bytes.IsEmpty())
		{
			return Text;
		}
		Text = ToText(Kept);
		Kept.Reset();
	}

	const int32 NumUnfinished = CountUnfinished(Bytes);
	Kept.Append(Bytes.GetData() + Bytes.Num() - NumUnfinished, NumUnfinished);
	const TConstArrayView<uint8> Whole = Bytes.LeftChop(NumUnfinished);
	if (Whole.IsEmpty())
	{
		return Text;
	}
	return Text.IsEmpty() ? ToText(Whole) : Text + ToText(Whole);
}

FString FVexelUtf8Stream::Finish()
{
	const FString Text = Kept.IsEmpty() ? FString() : ToText(Kept);
	Kept.Reset();
	return Text;
}
