#include "UObject/NameTable.h"

#include "Misc/StringBuilder.h"

#include <mutex>
#include <new>

namespace
{
bool EntryEquals(const FNameEntry& Entry, FStringView Text, bool bIgnoreCase)
{
	if (Entry.Len != Text.Len())
	{
		return false;
	}
	if (Entry.bWide)
	{
		return FStringView(Entry.GetWide(), Entry.Len).Equals(Text, bIgnoreCase ? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive);
	}
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Stored = static_cast<TCHAR>(Entry.GetAnsi()[Index]);
		if (Stored != Text[Index] && !(bIgnoreCase && FChar::ToLower(Stored) == FChar::ToLower(Text[Index])))
		{
			return false;
		}
	}
	return true;
}

bool HasWideCharacters(FStringView Text)
{
	for (const TCHAR Char : Text)
	{
		if (!FChar::IsAscii(Char))
		{
			return true;
		}
	}
	return false;
}
}

FNameTable& FNameTable::Get()
{
	// Never destroyed: names are used by the last destructors of the process.
	static FNameTable* const Table = new FNameTable();
	return *Table;
}

FNameTable::FNameTable()
{
	// "None" comes first, so that its place is 0 and a zeroed name is None.
	static constexpr const TCHAR* HardcodedNames[] = {
#define UE_NAME_TEXT(Name) TEXT(#Name),
		UE_FOR_EACH_HARDCODED_NAME(UE_NAME_TEXT)
#undef UE_NAME_TEXT
	};
	for (uint32 Index = 0; Index < UE_ARRAY_COUNT(HardcodedNames); ++Index)
	{
		FEntryIds Ids;
		FindOrAdd(HardcodedNames[Index], FNAME_Add, Ids);
		HardcodedIds[Index] = Ids.Comparison;
	}
	check(HardcodedIds[0].IsNone());
}

const FNameEntry* FNameTable::Resolve(FNameEntryId Id) const
{
	const uint32 Value = Id.ToUnstableInt();
	const uint32 Block = Value >> OffsetBits;
	const uint8* const Base = Block < MaxBlocks ? Blocks[Block].load(std::memory_order_acquire) : nullptr;
	if (Base == nullptr)
	{
		return nullptr;
	}
	const uint32 Offset = (Value & ((1u << OffsetBits) - 1)) * EntryAlignment;
	return reinterpret_cast<const FNameEntry*>(Base + Offset);
}

bool FNameTable::FindOrAdd(FStringView Text, EFindName FindType, FEntryIds& OutIds)
{
	const uint32 Hash = UE::String::Private::HashIgnoringCase(Text.GetData(), Text.Len());
	FShard& Shard = Shards[Hash % NumShards];
	OutIds = FEntryIds();
	{
		const std::shared_lock Lock(Shard.Mutex);
		FEntryIds Found;
		const bool bExact = Find(Shard, Hash, Text, Found);
		if (bExact)
		{
			OutIds = Found;
			return true;
		}
	}
	const std::unique_lock Lock(Shard.Mutex);
	FEntryIds Found{FNameEntryId::FromUnstableInt(~0u), FNameEntryId()};
	if (!Find(Shard, Hash, Text, Found))
	{
		const bool bIsNew = Found.Comparison.ToUnstableInt() == ~0u;
		if (FindType == FNAME_Find)
		{
			// The text in another case is the same name, so it is found, shown as it was first written.
			OutIds = bIsNew ? FEntryIds() : FEntryIds{Found.Comparison, Found.Comparison};
			return !bIsNew;
		}
		Found.Display = Add(Shard, Hash, Text, Found.Comparison);
		Found.Comparison = bIsNew ? Found.Display : Found.Comparison;
	}
	OutIds = Found;
	return true;
}

bool FNameTable::Find(const FShard& Shard, uint32 Hash, FStringView Text, FEntryIds& OutIds) const
{
	const uint32 Mask = static_cast<uint32>(Shard.Slots.size()) - 1;
	// The low bits chose the shard.
	for (uint32 Index = Hash / NumShards & Mask; Shard.Slots[Index].bUsed; Index = (Index + 1) & Mask)
	{
		const FSlot& Slot = Shard.Slots[Index];
		if (Slot.Hash != Hash)
		{
			continue;
		}
		const FNameEntry& Entry = *Resolve(Slot.Id);
		if (!EntryEquals(Entry, Text, true))
		{
			continue;
		}
		OutIds.Comparison = Entry.ComparisonId;
		if (EntryEquals(Entry, Text, false))
		{
			OutIds.Display = Slot.Id;
			return true;
		}
	}
	return false;
}

FNameEntryId FNameTable::Add(FShard& Shard, uint32 Hash, FStringView Text, FNameEntryId ComparisonId)
{
	const bool bWide = HasWideCharacters(Text);
	const uint32 TextBytes = static_cast<uint32>(Text.Len()) * (bWide ? sizeof(TCHAR) : sizeof(ANSICHAR));
	FNameEntryId Id;
	FNameEntry* const Entry = Allocate(Shard, static_cast<uint32>(sizeof(FNameEntry)) + TextBytes, Id);
	Entry->ComparisonId = ComparisonId.ToUnstableInt() == ~0u ? Id : ComparisonId;
	Entry->Len = static_cast<uint16>(Text.Len());
	Entry->bWide = bWide;
	if (bWide)
	{
		FMemory::Memcpy(Entry + 1, Text.GetData(), TextBytes);
	}
	else
	{
		UE::Core::Private::ConvertTCharToAnsi(reinterpret_cast<ANSICHAR*>(Entry + 1), Text.GetData(), Text.Len());
	}

	if ((Shard.NumUsed + 1) * 3 > Shard.Slots.size() * 2)
	{
		std::vector<FSlot> OldSlots(Shard.Slots.size() * 2);
		OldSlots.swap(Shard.Slots);
		for (const FSlot& Slot : OldSlots)
		{
			if (Slot.bUsed)
			{
				Insert(Shard, Slot);
			}
		}
	}
	Insert(Shard, {Hash, true, Id});
	++Shard.NumUsed;
	return Id;
}

void FNameTable::Insert(FShard& Shard, const FSlot& Slot)
{
	const uint32 Mask = static_cast<uint32>(Shard.Slots.size()) - 1;
	uint32 Index = Slot.Hash / NumShards & Mask;
	while (Shard.Slots[Index].bUsed)
	{
		Index = (Index + 1) & Mask;
	}
	Shard.Slots[Index] = Slot;
}

FNameEntry* FNameTable::Allocate(FShard& Shard, uint32 Bytes, FNameEntryId& OutId)
{
	const uint32 Aligned = (Bytes + EntryAlignment - 1) & ~(EntryAlignment - 1);
	if (Shard.BlockUsed + Aligned > BlockBytes)
	{
		Shard.Block = NumBlocks.fetch_add(1);
		checkf(Shard.Block < MaxBlocks, TEXT("The name table is full"));
		Shard.BlockUsed = 0;
		Blocks[Shard.Block].store(static_cast<uint8*>(FMemory::Malloc(BlockBytes)), std::memory_order_release);
	}
	OutId = FNameEntryId::FromUnstableInt(Shard.Block << OffsetBits | Shard.BlockUsed / EntryAlignment);
	uint8* const At = Blocks[Shard.Block].load(std::memory_order_relaxed) + Shard.BlockUsed;
	Shard.BlockUsed += Aligned;
	return new (At) FNameEntry();
}

void AppendNameEntry(const FNameEntry& Entry, FStringBuilderBase& Out)
{
	if (Entry.bWide)
	{
		Out.Append(Entry.GetWide(), Entry.Len);
		return;
	}
	Out.AppendAnsi(Entry.GetAnsi(), Entry.Len);
}
