#pragma once

#include "CoreMinimal.h"
#include "UObject/LinkerLoad.h"

class FJsonValue;

/**
 * Reads the parts that values in a package are made of, as JSON. A name or a path takes a few bytes in the file and may be
 * thousands of characters long, so the text that a document gets from the tables is bounded by the file's size: past that,
 * entries are told by their numbers.
 */
class FPackageValues
{
public:
	using FValue = TSharedPtr<FJsonValue>;

	explicit FPackageValues(FLinkerLoad& InLinker);

	FLinkerLoad& GetLinker() const { return Linker; }

	template <typename Type>
	Type Read()
	{
		Type Value{};
		static_cast<FArchive&>(Linker) << Value;
		return Value;
	}
	FString ReadName();
	/** Null for a reference to nothing; sets the archive's error at an entry that the tables do not have. */
	FValue ReadReference();
	/** The text, and where it has them its namespace and key. */
	FValue ReadText();
	FString ReadSoftPath();
	/** 0, and the archive's error, when what is left could not hold as many. */
	int32 ReadCount(int64 MinEntryBytes = 1);

	/** "/Game/Asset.Asset:Part"; "None" for nothing. */
	FString GetPath(FPackageIndex Index);

private:
	/** The text, or the other one when the document has had its share. */
	FString Spend(FString&& Text, FString&& Short);

	FLinkerLoad& Linker;
	int64 CharactersLeft;
};

/** Makes the archive's reads end at a place while it lives, and clears its error afterwards. */
class FReadLimit
{
public:
	FReadLimit(FLinkerLoad& InLinker, int64 Start, int64 End)
		: Linker(InLinker)
		, OldLimit(InLinker.LimitReads(End))
	{
		Linker.Seek(Start);
	}
	~FReadLimit()
	{
		Linker.ClearError();
		Linker.LimitReads(OldLimit);
	}
	FReadLimit(const FReadLimit&) = delete;
	FReadLimit& operator=(const FReadLimit&) = delete;

	/** Where reading has come to, or where it failed. */
	int64 GetReached() const { return Linker.IsError() ? Linker.GetErrorPosition() : Linker.Tell(); }

private:
	FLinkerLoad& Linker;
	int64 OldLimit;
};
