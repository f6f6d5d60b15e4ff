#pragma once

#include "Containers/Array.h"
#include "Serialization/Archive.h"

/** Shared by every container: the count is an int32, checked when read against what the archive could still hold. */
CORE_API int32 SerializeContainerNum(FArchive& Ar, int32 Num, int64 MinElementBytes = 1);

template <typename ElementType, typename Allocator>
FArchive& operator<<(FArchive& Ar, TArray<ElementType, Allocator>& Array)
{
	using SizeType = typename TArray<ElementType, Allocator>::SizeType;
	constexpr bool bIsBulk =
		TCanBulkSerialize<ElementType>::Value || (sizeof(ElementType) == 1 && std::is_trivially_copyable_v<ElementType>);

	const int32 Num = SerializeContainerNum(Ar, static_cast<int32>(Array.Num()), bIsBulk ? sizeof(ElementType) : 1);
	if constexpr (bIsBulk)
	{
		if (Ar.IsLoading())
		{
			// An archive that does not know its size could announce anything, so the room grows with what really came.
			constexpr SizeType ChunkElements = 1 << 20;
			Array.Reset();
			for (SizeType Done = 0; Done < Num && !Ar.IsError();)
			{
				const SizeType Left = Num - Done;
				const SizeType Count = Left < ChunkElements ? Left : ChunkElements;
				Array.AddUninitialized(Count);
				Ar.Serialize(Array.GetData() + Done, static_cast<int64>(Count) * sizeof(ElementType));
				Done += Count;
			}
			if (Ar.IsError())
			{
				Array.Empty();
			}
		}
		else
		{
			Ar.Serialize(Array.GetData(), static_cast<int64>(Num) * sizeof(ElementType));
		}
	}
	else if (Ar.IsLoading())
	{
		Array.Reset();
		for (SizeType Index = 0; Index < Num && !Ar.IsError(); ++Index)
		{
			Ar << Array.AddDefaulted_GetRef();
		}
	}
	else
	{
		for (SizeType Index = 0; Index < Array.Num(); ++Index)
		{
			Ar << Array[Index];
		}
	}
	return Ar;
}
