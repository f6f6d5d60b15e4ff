#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Templates/SharedPointer.h"

/**
 * The bytes of one state of an object. An object's states are mostly alike, so of those that an undo buffer has, the one last seen is
 * held whole, and of each other one what differs from the state next to it.
 */
class FStateBytes
{
public:
	/** Total is told how much memory the bytes take, and outlives them. */
	FStateBytes(TConstArrayView<uint8> Whole, SIZE_T& InTotal);
	~FStateBytes();
	UE_NONCOPYABLE(FStateBytes)

	/** The bytes; holds them whole from here on. The answer is valid until they rest on others. */
	const TArray<uint8>& GetWhole();
	/** Holds from here on what differs from Base, which is held whole; nothing changes where that would not take less memory. */
	void RestOn(const TSharedRef<FStateBytes>& NewBase);

	bool IsWhole() const { return !Base; }
	SIZE_T GetAllocatedSize() const { return sizeof(FStateBytes) + Bytes.GetAllocatedSize() + Stretches.GetAllocatedSize(); }

private:
	/** A piece of the whole: from BaseStart on in the base, or the next one of the bytes here. */
	struct FStretch
	{
		/** INDEX_NONE for bytes that the base does not have. */
		int32 BaseStart;
		int32 Num;
	};

	/** Appends what makes Whole of BaseWhole. */
	static void Compare(const TArray<uint8>& Whole, const TArray<uint8>& BaseWhole, TArray<FStretch>& OutStretches, TArray<uint8>& OutBytes);
	TArray<uint8> PutTogether(const TArray<uint8>& BaseWhole) const;
	void Set(TArray<uint8>&& NewBytes, TArray<FStretch>&& NewStretches, const TSharedPtr<FStateBytes>& NewBase);

	TArray<uint8> Bytes;
	TArray<FStretch> Stretches;
	TSharedPtr<FStateBytes> Base;
	SIZE_T& Total;
};
