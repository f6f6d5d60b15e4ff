#include "Hash/CityHash.h"

#include <bit>
#include <cstring>
#include <utility>

namespace
{
// The algorithm's own constants: primes between 2^63 and 2^64.
constexpr uint64 K0 = 0xc3a5c85c97cb3127ULL;
constexpr uint64 K1 = 0xb492b66fbe98f273ULL;
constexpr uint64 K2 = 0x9ae16a3b2f90404fULL;

uint64 Fetch64(const char* Bytes)
{
	uint64 Result;
	std::memcpy(&Result, Bytes, sizeof(Result));
	return Result;
}

uint64 Fetch32(const char* Bytes)
{
	uint32 Result;
	std::memcpy(&Result, Bytes, sizeof(Result));
	return Result;
}

uint64 ShiftMix(uint64 Value)
{
	return Value ^ (Value >> 47);
}

uint64 HashLen16(uint64 U, uint64 V, uint64 Multiplier)
{
	const uint64 A = ShiftMix((U ^ V) * Multiplier);
	return ShiftMix((V ^ A) * Multiplier) * Multiplier;
}

uint64 HashLen16(uint64 U, uint64 V)
{
	return HashLen16(U, V, 0x9ddfea08eb382d69ULL);
}

uint64 HashLen0To16(const char* Bytes, uint64 Length)
{
	const uint64 Multiplier = K2 + Length * 2;
	if (Length >= 8)
	{
		const uint64 A = Fetch64(Bytes) + K2;
		const uint64 B = Fetch64(Bytes + Length - 8);
		const uint64 C = std::rotr(B, 37) * Multiplier + A;
		const uint64 D = (std::rotr(A, 25) + B) * Multiplier;
		return HashLen16(C, D, Multiplier);
	}
	if (Length >= 4)
	{
		return HashLen16(Length + (Fetch32(Bytes) << 3), Fetch32(Bytes + Length - 4), Multiplier);
	}
	if (Length > 0)
	{
		const uint8 A = static_cast<uint8>(Bytes[0]);
		const uint8 B = static_cast<uint8>(Bytes[Length >> 1]);
		const uint8 C = static_cast<uint8>(Bytes[Length - 1]);
		const uint32 Y = static_cast<uint32>(A) + (static_cast<uint32>(B) << 8);
		const uint32 Z = static_cast<uint32>(Length) + (static_cast<uint32>(C) << 2);
		return ShiftMix(Y * K2 ^ Z * K0) * K2;
	}
	return K2;
}

uint64 HashLen17To32(const char* Bytes, uint64 Length)
{
	const uint64 Multiplier = K2 + Length * 2;
	const uint64 A = Fetch64(Bytes) * K1;
	const uint64 B = Fetch64(Bytes + 8);
	const uint64 C = Fetch64(Bytes + Length - 8) * Multiplier;
	const uint64 D = Fetch64(Bytes + Length - 16) * K2;
	return HashLen16(std::rotr(A + B, 43) + std::rotr(C, 30) + D, A + std::rotr(B + K2, 18) + C, Multiplier);
}

uint64 HashLen33To64(const char* Bytes, uint64 Length)
{
	const uint64 Multiplier = K2 + Length * 2;
	const uint64 A = Fetch64(Bytes) * K2;
	const uint64 B = Fetch64(Bytes + 8);
	const uint64 C = Fetch64(Bytes + Length - 24);
	const uint64 D = Fetch64(Bytes + Length - 32);
	const uint64 E = Fetch64(Bytes + 16) * K2;
	const uint64 F = Fetch64(Bytes + 24) * 9;
	const uint64 G = Fetch64(Bytes + Length - 8);
	const uint64 H = Fetch64(Bytes + Length - 16) * Multiplier;
	const uint64 U = std::rotr(A + G, 43) + (std::rotr(B, 30) + C) * 9;
	const uint64 V = ((A + G) ^ D) + F + 1;
	const uint64 W = __builtin_bswap64((U + V) * Multiplier) + H;
	const uint64 X = std::rotr(E + F, 42) + C;
	const uint64 Y = (__builtin_bswap64((V + W) * Multiplier) + G) * Multiplier;
	const uint64 Z = E + F + C;
	const uint64 Mixed = __builtin_bswap64((X + Z) * Multiplier + Y) + B;
	return ShiftMix((Z + Mixed) * Multiplier + D + H) * Multiplier + X;
}

using FPair = std::pair<uint64, uint64>;

FPair WeakHashLen32WithSeeds(const char* Bytes, uint64 A, uint64 B)
{
	const uint64 W = Fetch64(Bytes);
	const uint64 X = Fetch64(Bytes + 8);
	const uint64 Y = Fetch64(Bytes + 16);
	const uint64 Z = Fetch64(Bytes + 24);
	A += W;
	B = std::rotr(B + A + Z, 21);
	const uint64 C = A;
	A += X + Y;
	B += std::rotr(A, 44);
	return {A + Z, B + C};
}
}

uint64 CityHash64(const char* Bytes, uint32 BufferLength)
{
	uint64 Length = BufferLength;
	if (Length <= 16)
	{
		return HashLen0To16(Bytes, Length);
	}
	if (Length <= 32)
	{
		return HashLen17To32(Bytes, Length);
	}
	if (Length <= 64)
	{
		return HashLen33To64(Bytes, Length);
	}

	// 56 bytes of state, mixed with 64 bytes at a time after the last 64 of them.
	uint64 X = Fetch64(Bytes + Length - 40);
	uint64 Y = Fetch64(Bytes + Length - 16) + Fetch64(Bytes + Length - 56);
	uint64 Z = HashLen16(Fetch64(Bytes + Length - 48) + Length, Fetch64(Bytes + Length - 24));
	FPair V = WeakHashLen32WithSeeds(Bytes + Length - 64, Length, Z);
	FPair W = WeakHashLen32WithSeeds(Bytes + Length - 32, Y + K1, X);
	X = X * K1 + Fetch64(Bytes);
	for (Length = (Length - 1) & ~static_cast<uint64>(63); Length != 0; Length -= 64, Bytes += 64)
	{
		X = std::rotr(X + Y + V.first + Fetch64(Bytes + 8), 37) * K1;
		Y = std::rotr(Y + V.second + Fetch64(Bytes + 48), 42) * K1;
		X ^= W.second;
		Y += V.first + Fetch64(Bytes + 40);
		Z = std::rotr(Z + W.first, 33) * K1;
		V = WeakHashLen32WithSeeds(Bytes, V.second * K1, X + W.first);
		W = WeakHashLen32WithSeeds(Bytes + 32, Z + W.second, Y + Fetch64(Bytes + 16));
		std::swap(Z, X);
	}
	return HashLen16(HashLen16(V.first, W.first) + ShiftMix(Y) * K1 + Z, HashLen16(V.second, W.second) + X);
}

uint64 CityHash64WithSeeds(const char* Buffer, uint32 Length, uint64 Seed0, uint64 Seed1)
{
	return HashLen16(CityHash64(Buffer, Length) - Seed0, Seed1);
}

uint64 CityHash64WithSeed(const char* Buffer, uint32 Length, uint64 Seed)
{
	return CityHash64WithSeeds(Buffer, Length, K2, Seed);
}

uint64 CityHash128to64(uint64 Low, uint64 High)
{
	return HashLen16(Low, High);
}
