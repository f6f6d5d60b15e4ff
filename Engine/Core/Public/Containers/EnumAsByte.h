#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** An unscoped enum kept in one byte. */
template <typename InEnumType>
class TEnumAsByte
{
	static_assert(std::is_enum_v<InEnumType>, "TEnumAsByte is for enums");

public:
	using EnumType = InEnumType;

	TEnumAsByte() = default;
	constexpr TEnumAsByte(EnumType InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit constexpr TEnumAsByte(int32 InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit constexpr TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{
	}

	constexpr operator EnumType() const { return static_cast<EnumType>(Value); }
	constexpr EnumType GetValue() const { return static_cast<EnumType>(Value); }
	constexpr uint8 GetIntValue() const { return Value; }

	friend constexpr bool operator==(TEnumAsByte A, EnumType B) { return A.GetValue() == B; }
	friend constexpr bool operator==(TEnumAsByte A, TEnumAsByte B) { return A.Value == B.Value; }
	friend constexpr uint32 GetTypeHash(TEnumAsByte Enum) { return Enum.Value; }
	template <typename ArchiveType>
	friend ArchiveType& operator<<(ArchiveType& Ar, TEnumAsByte& Enum)
	{
		Ar.Serialize(&Enum.Value, sizeof(Enum.Value));
		return Ar;
	}

private:
	uint8 Value;
};

template <typename T>
struct TIsTEnumAsByte
{
	static constexpr bool Value = false;
};

template <typename T>
struct TIsTEnumAsByte<TEnumAsByte<T>>
{
	static constexpr bool Value = true;
};
