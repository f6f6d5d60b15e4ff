#include "Containers/StringView.h"

#include <cstring>

namespace
{
constexpr uint64 Lanes(uint64 Value)
{
	return Value * 0x0001000100010001ull;
}

/** Four characters in four 16-bit lanes, in lower case. */
template <typename CharType>
uint64 LoadLowerLanes(const CharType* Text, int32 Count)
{
	uint64 Block = 0;
	if constexpr (sizeof(CharType) == sizeof(TCHAR))
	{
		std::memcpy(&Block, Text, static_cast<SIZE_T>(Count) * sizeof(CharType));
	}
	else
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Block |= static_cast<uint64>(static_cast<uint8>(Text[Index])) << (16 * Index);
		}
	}
	if ((Block & Lanes(0xFF80)) == 0)
	{
		const uint64 AtLeastA = Block + Lanes(0x80 - 'A');
		const uint64 BeyondZ = Block + Lanes(0x80 - 'Z' - 1);
		return Block | ((AtLeastA & ~BeyondZ & Lanes(0x80)) >> 2);
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const uint64 Lower = static_cast<uint16>(TChar<TCHAR>::ToLower(static_cast<TCHAR>(Block >> (16 * Index))));
		Block = (Block & ~(0xFFFFull << (16 * Index))) | (Lower << (16 * Index));
	}
	return Block;
}

template <typename CharType>
uint32 HashLanes(const CharType* Text, int32 Len)
{
	uint64 Hash = static_cast<uint64>(Len) * 0x9E3779B97F4A7C15ull;
	for (int32 Index = 0; Index < Len; Index += 4)
	{
		const uint64 Block = LoadLowerLanes(Text + Index, Len - Index < 4 ? Len - Index : 4);
		Hash = (Hash ^ Block) * 0xBF58476D1CE4E5B9ull;
		Hash ^= Hash >> 29;
	}
	Hash *= 0x94D049BB133111EBull;
	return static_cast<uint32>(Hash >> 32);
}
}

uint32 UE::String::Private::HashIgnoringCase(const TCHAR* Text, int32 Len)
{
	return HashLanes(Text, Len);
}

uint32 UE::String::Private::HashIgnoringCase(const ANSICHAR* Text, int32 Len)
{
	return HashLanes(Text, Len);
}

uint32 UE::String::Private::HashIgnoringCase(const UTF8CHAR* Text, int32 Len)
{
	return HashLanes(Text, Len);
}
