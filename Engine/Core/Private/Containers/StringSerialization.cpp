#include "Containers/UnrealString.h"

#include "Serialization/Archive.h"

FArchive& operator<<(FArchive& Ar, FString& String)
{
	// As much text as any real archive holds in one string.
	constexpr int64 MaxStringUnits = 512 * 1024 * 1024;

	if (Ar.IsLoading())
	{
		int32 SaveNum = 0;
		Ar << SaveNum;
		String.Reset();
		const bool bIsUtf16 = SaveNum < 0;
		const int64 Num = bIsUtf16 ? -static_cast<int64>(SaveNum) : SaveNum;
		const int64 NumBytes = Num * (bIsUtf16 ? 2 : 1);
		const int64 Rest = Ar.TotalSize() == INDEX_NONE ? MaxStringUnits * 2 : Ar.TotalSize() - Ar.Tell();
		const bool bPassesLimit = Ar.GetMaxSerializeSize() > 0 && NumBytes > Ar.GetMaxSerializeSize();
		if (Ar.IsError() || Num > MaxStringUnits || NumBytes > Rest || bPassesLimit)
		{
			Ar.SetError();
			return Ar;
		}
		if (Num == 0)
		{
			return Ar;
		}
		if (bIsUtf16)
		{
			Ar.Serialize(String.AddRoom(static_cast<int32>(Num) - 1), NumBytes);
		}
		else
		{
			constexpr int64 MaxChunkBytes = 512;
			ANSICHAR Chunk[MaxChunkBytes];
			TCHAR* Out = String.AddRoom(static_cast<int32>(Num) - 1);
			for (int64 Left = NumBytes; Left > 0 && !Ar.IsError(); Left -= MaxChunkBytes)
			{
				const int64 ChunkBytes = Left < MaxChunkBytes ? Left : MaxChunkBytes;
				Ar.Serialize(Chunk, ChunkBytes);
				for (int64 Index = 0; Index < ChunkBytes; ++Index)
				{
					*Out++ = static_cast<uint8>(Chunk[Index]);
				}
			}
		}
		if (Ar.IsError() || String.GetCharArray().GetData()[Num - 1] != 0)
		{
			Ar.SetError();
			String.Reset();
			return Ar;
		}
		if (Num == 1)
		{
			String.Reset();
		}
		return Ar;
	}

	const bool bIsAscii = !Ar.IsForcingUnicode() && FCString::IsPureAnsi(*String);
	const int32 Num = String.IsEmpty() ? 0 : String.Len() + 1;
	int32 SaveNum = bIsAscii ? Num : -Num;
	Ar << SaveNum;
	if (Num == 0)
	{
		return Ar;
	}
	if (!bIsAscii)
	{
		Ar.Serialize(const_cast<TCHAR*>(*String), static_cast<int64>(Num) * 2);
		return Ar;
	}
	const FTCHARToANSI Bytes(*String, String.Len());
	Ar.Serialize(const_cast<ANSICHAR*>(Bytes.Get()), Num);
	return Ar;
}
