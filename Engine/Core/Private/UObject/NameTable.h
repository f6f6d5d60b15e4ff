#pragma once

#include "Containers/StringView.h"
#include "UObject/NameTypes.h"

#include <atomic>
#include <shared_mutex>
#include <vector>

/** A stored text. The characters follow the entry: one byte each for ASCII, else two. */
struct FNameEntry
{
	/** The entry that stands for this text in any case; its own place if it is that entry. */
	FNameEntryId ComparisonId;
	uint16 Len;
	bool bWide;

	const ANSICHAR* GetAnsi() const { return reinterpret_cast<const ANSICHAR*>(this + 1); }
	const TCHAR* GetWide() const { return reinterpret_cast<const TCHAR*>(this + 1); }
};

/**
 * All texts of names. Entries are cut from blocks that are never freed or moved, so reading one needs no lock; each shard has a lock of
 * its own for finding and adding.
 */
class FNameTable
{
public:
	struct FEntryIds
	{
		FNameEntryId Comparison;
		FNameEntryId Display;
	};

	static FNameTable& Get();

	/**
	 * `Text` has no number and at most NAME_SIZE - 1 characters. False, with None in `OutIds`, when it is not there and may not be added.
	 */
	bool FindOrAdd(FStringView Text, EFindName FindType, FEntryIds& OutIds);
	FNameEntryId GetHardcoded(EName Name) const { return HardcodedIds[static_cast<uint32>(Name)]; }
	/** Null for an id that no entry has. */
	const FNameEntry* Resolve(FNameEntryId Id) const;

private:
	static constexpr uint32 NumShards = 32;
	static constexpr uint32 MaxBlocks = 8192;
	static constexpr uint32 EntryAlignment = 4;
	static constexpr uint32 OffsetBits = 16;
	static constexpr uint32 BlockBytes = EntryAlignment << OffsetBits;

	struct FSlot
	{
		uint32 Hash = 0;
		bool bUsed = false;
		FNameEntryId Id;
	};

	struct FShard
	{
		std::shared_mutex Mutex;
		/** Open addressing; the size is a power of two and at most two thirds are used. */
		std::vector<FSlot> Slots = std::vector<FSlot>(64);
		uint32 NumUsed = 0;
		uint32 Block = 0;
		uint32 BlockUsed = BlockBytes;
	};

	FNameTable();
	/** True when the text stands in the shard in the very case; else OutIds has as much as was found. */
	bool Find(const FShard& Shard, uint32 Hash, FStringView Text, FEntryIds& OutIds) const;
	FNameEntryId Add(FShard& Shard, uint32 Hash, FStringView Text, FNameEntryId ComparisonId);
	FNameEntry* Allocate(FShard& Shard, uint32 Bytes, FNameEntryId& OutId);
	static void Insert(FShard& Shard, const FSlot& Slot);

	FShard Shards[NumShards];
	std::atomic<uint8*> Blocks[MaxBlocks] = {};
	std::atomic<uint32> NumBlocks{0};
	FNameEntryId HardcodedIds[static_cast<uint32>(EName::MaxHardcodedNameIndex)];
};

/** Appends a stored text to anything that takes characters. */
void AppendNameEntry(const FNameEntry& Entry, FStringBuilderBase& Out);
