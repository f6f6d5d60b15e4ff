#pragma once

#include "Containers/StringFwd.h"
#include "CoreTypes.h"
#include "Templates/TypeHash.h"

class FArchive;
class FString;

/** The texts of a GUID, shown for 01234567-89ab-cdef-0123-456789abcdef. */
enum class EGuidFormats
{
	/** 0123456789ABCDEF0123456789ABCDEF */
	Digits,
	/** 0123456789abcdef0123456789abcdef */
	DigitsLower,
	/** 01234567-89AB-CDEF-0123-456789ABCDEF */
	DigitsWithHyphens,
	/** 01234567-89ab-cdef-0123-456789abcdef */
	DigitsWithHyphensLower,
	/** {01234567-89AB-CDEF-0123-456789ABCDEF} */
	DigitsWithHyphensInBraces,
	/** (01234567-89AB-CDEF-0123-456789ABCDEF) */
	DigitsWithHyphensInParentheses,
	/** {0x01234567,0x89ab,0xcdef,{0x01,0x23,0x45,0x67,0x89,0xab,0xcd,0xef}} */
	HexValuesInBraces,
	/** 01234567-89ABCDEF-01234567-89ABCDEF */
	UniqueObjectGuid,
	/** 22 characters of URL-safe base 64 */
	Short,
	/** 25 characters of base 36 */
	Base36Encoded
};

/** A number of 128 bits that is made to be unique. All zero is no GUID. */
struct CORE_API FGuid
{
	constexpr FGuid()
		: A(0)
		, B(0)
		, C(0)
		, D(0)
	{
	}
	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}
	/** Reads any of the formats; invalid if the text has none of them. */
	explicit FGuid(const FString& InGuidStr);

	/** A random one, of version 4. Safe to call from any thread. */
	static FGuid NewGuid();
	/** The same one for the same path at every call, of version 8. */
	static FGuid NewDeterministicGuid(FStringView ObjectPath, uint64 Seed = 0);
	static FGuid Combine(const FGuid& GuidA, const FGuid& GuidB);

	constexpr bool IsValid() const { return (A | B | C | D) != 0; }
	void Invalidate() { A = B = C = D = 0; }
	friend constexpr bool operator==(const FGuid& X, const FGuid& Y) = default;
	friend constexpr bool operator<(const FGuid& X, const FGuid& Y)
	{
		const uint64 HighX = (static_cast<uint64>(X.A) << 32) | X.B;
		const uint64 HighY = (static_cast<uint64>(Y.A) << 32) | Y.B;
		const uint64 LowX = (static_cast<uint64>(X.C) << 32) | X.D;
		const uint64 LowY = (static_cast<uint64>(Y.C) << 32) | Y.D;
		return HighX < HighY || (HighX == HighY && LowX < LowY);
	}
	uint32& operator[](int32 Index);
	const uint32& operator[](int32 Index) const;

	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;
	/** Reads any of the formats. Answers false, and leaves OutGuid alone, if the text has none of them. */
	static bool Parse(const FString& GuidString, FGuid& OutGuid);
	static bool ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid);

	bool Serialize(FArchive& Ar);
	/** As a property's value: 32 digits. Reading takes any of the formats, and leaves Buffer alone when it finds none. */
	bool ExportTextItem(
		FString& ValueStr, const FGuid& DefaultValue, class UObject* Parent, int32 PortFlags, class UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, class UObject* Parent, class FOutputDevice* ErrorText);
	friend CORE_API FArchive& operator<<(FArchive& Ar, FGuid& Guid);
	friend constexpr uint32 GetTypeHash(const FGuid& Guid)
	{
		return HashCombineFast(HashCombineFast(Guid.A, Guid.B), HashCombineFast(Guid.C, Guid.D));
	}

	uint32 A;
	uint32 B;
	uint32 C;
	uint32 D;
};
