#pragma once

#include "CoreTypes.h"

/** Check sums of 32 bits, stable everywhere: the CRC of zip files and Ethernet. */
struct CORE_API FCrc
{
	/** CRC goes on from the sum of what stood before the data. */
	static uint32 MemCrc32(const void* Data, int32 Length, uint32 CRC = 0);

	/** Sum of a text, the same for every width of characters: each counts as four bytes. */
	template <typename CharType>
	static uint32 StrCrc32(const CharType* Data, uint32 CRC = 0)
	{
		CRC = ~CRC;
		for (; *Data != 0; ++Data)
		{
			CRC = AddCharacter(CRC, static_cast<uint32>(*Data));
		}
		return ~CRC;
	}

	/** Hashes of the engine's older files. They use another polynomial order and go through upper case for Stri. */
	static uint32 MemCrc_DEPRECATED(const void* Data, int32 Length, uint32 CRC = 0);
	static uint32 Strihash_DEPRECATED(const ANSICHAR* Data);
	static uint32 Strihash_DEPRECATED(const TCHAR* Data);
	static uint32 Strihash_DEPRECATED(int32 DataLen, const TCHAR* Data);
	static uint32 StrCrc_DEPRECATED(const TCHAR* Data);
	static uint32 StrCrc_DEPRECATED(int32 DataLen, const TCHAR* Data);

private:
	static uint32 AddCharacter(uint32 CRC, uint32 Character);
};
