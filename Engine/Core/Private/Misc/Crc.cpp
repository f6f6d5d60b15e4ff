#include "Misc/Crc.h"

#include "Misc/CString.h"
#include "Misc/Char.h"

#include <array>
#include <type_traits>

namespace
{
/** Table of the reflected polynomial, for data that goes in least significant bit first. */
constexpr std::array<uint32, 256> MakeReflectedTable()
{
	std::array<uint32, 256> Table{};
	for (uint32 Byte = 0; Byte < 256; ++Byte)
	{
		uint32 Rest = Byte;
		for (int32 Bit = 0; Bit < 8; ++Bit)
		{
			Rest = (Rest >> 1) ^ ((Rest & 1) != 0 ? 0xedb88320u : 0u);
		}
		Table[Byte] = Rest;
	}
	return Table;
}

/** Table of the same polynomial, for data that goes in most significant bit first. */
constexpr std::array<uint32, 256> MakeForwardTable()
{
	std::array<uint32, 256> Table{};
	for (uint32 Byte = 0; Byte < 256; ++Byte)
	{
		uint32 Rest = Byte << 24;
		for (int32 Bit = 0; Bit < 8; ++Bit)
		{
			Rest = (Rest << 1) ^ ((Rest & 0x80000000u) != 0 ? 0x04c11db7u : 0u);
		}
		Table[Byte] = Rest;
	}
	return Table;
}

constexpr std::array<uint32, 256> ReflectedTable = MakeReflectedTable();
constexpr std::array<uint32, 256> ForwardTable = MakeForwardTable();

uint32 AddByteReflected(uint32 CRC, uint8 Byte)
{
	return (CRC >> 8) ^ ReflectedTable[(CRC ^ Byte) & 0xff];
}

uint32 AddByteForward(uint32 CRC, uint8 Byte)
{
	return (CRC << 8) ^ ForwardTable[(CRC >> 24) ^ Byte];
}

/** One character of the old name hash, its low byte first. */
template <typename CharType>
uint32 AddToNameHash(uint32 Hash, CharType Char)
{
	const uint32 Upper = static_cast<std::make_unsigned_t<std::conditional_t<std::is_same_v<CharType, TCHAR>, uint16, CharType>>>(
		TChar<CharType>::ToUpper(Char));
	Hash = (Hash >> 8) ^ ForwardTable[(Hash ^ Upper) & 0xff];
	if constexpr (sizeof(CharType) > 1)
	{
		Hash = (Hash >> 8) ^ ForwardTable[(Hash ^ (Upper >> 8)) & 0xff];
	}
	return Hash;
}
}

uint32 FCrc::MemCrc32(const void* Data, int32 Length, uint32 CRC)
{
	const uint8* Byte = static_cast<const uint8*>(Data);
	CRC = ~CRC;
	for (const uint8* const End = Byte + Length; Byte < End; ++Byte)
	{
		CRC = AddByteReflected(CRC, *Byte);
	}
	return ~CRC;
}

uint32 FCrc::AddCharacter(uint32 CRC, uint32 Character)
{
	for (int32 Shift = 0; Shift < 32; Shift += 8)
	{
		CRC = AddByteReflected(CRC, static_cast<uint8>(Character >> Shift));
	}
	return CRC;
}

uint32 FCrc::MemCrc_DEPRECATED(const void* Data, int32 Length, uint32 CRC)
{
	const uint8* Byte = static_cast<const uint8*>(Data);
	CRC = ~CRC;
	for (const uint8* const End = Byte + Length; Byte < End; ++Byte)
	{
		CRC = AddByteForward(CRC, *Byte);
	}
	return ~CRC;
}

uint32 FCrc::Strihash_DEPRECATED(const ANSICHAR* Data)
{
	uint32 Hash = 0;
	for (; *Data != 0; ++Data)
	{
		Hash = AddToNameHash(Hash, *Data);
	}
	return Hash;
}

uint32 FCrc::Strihash_DEPRECATED(const TCHAR* Data)
{
	return Strihash_DEPRECATED(FCString::Strlen(Data), Data);
}

uint32 FCrc::Strihash_DEPRECATED(int32 DataLen, const TCHAR* Data)
{
	uint32 Hash = 0;
	for (int32 Index = 0; Index < DataLen; ++Index)
	{
		Hash = AddToNameHash(Hash, Data[Index]);
	}
	return Hash;
}

uint32 FCrc::StrCrc_DEPRECATED(const TCHAR* Data)
{
	return StrCrc_DEPRECATED(FCString::Strlen(Data), Data);
}

uint32 FCrc::StrCrc_DEPRECATED(int32 DataLen, const TCHAR* Data)
{
	uint32 CRC = ~0u;
	for (int32 Index = 0; Index < DataLen; ++Index)
	{
		CRC = AddByteForward(CRC, static_cast<uint8>(Data[Index]));
		CRC = AddByteForward(CRC, static_cast<uint8>(Data[Index] >> 8));
	}
	return ~CRC;
}
