#include "Misc/Char.h"

namespace
{
/** Capitals of a script: each `Stride`th character from First to Last, whose small letter stands `Delta` further. */
struct FCaseRange
{
	uint16 First;
	uint16 Last;
	int16 Delta;
	uint8 Stride;
};

constexpr FCaseRange CaseRanges[] = {
	{0x00C0, 0x00D6, 32, 1}, {0x00D8, 0x00DE, 32, 1}, // Latin-1
	{0x0100, 0x012E, 1, 2}, {0x0132, 0x0136, 1, 2}, {0x0139, 0x0147, 1, 2}, {0x014A, 0x0176, 1, 2}, // Latin Extended-A
	{0x0178, 0x0178, -121, 1}, {0x0179, 0x017D, 1, 2},
	{0x01CD, 0x01DB, 1, 2}, {0x01DE, 0x01EE, 1, 2}, {0x01F8, 0x021E, 1, 2}, // Latin Extended-B
	{0x0222, 0x0232, 1, 2}, {0x0246, 0x024E, 1, 2},
	{0x0386, 0x0386, 38, 1}, {0x0388, 0x038A, 37, 1}, {0x038C, 0x038C, 64, 1}, {0x038E, 0x038F, 63, 1}, // Greek
	{0x0391, 0x03A1, 32, 1}, {0x03A3, 0x03AB, 32, 1},
	{0x0400, 0x040F, 80, 1}, {0x0410, 0x042F, 32, 1}, {0x0460, 0x0480, 1, 2}, {0x048A, 0x04BE, 1, 2}, // Cyrillic
	{0x04C0, 0x04C0, 15, 1}, {0x04C1, 0x04CD, 1, 2}, {0x04D0, 0x052E, 1, 2},
	{0x0531, 0x0556, 48, 1}, // Armenian
	{0x1E00, 0x1E94, 1, 2}, {0x1EA0, 0x1EFE, 1, 2}, // Latin Extended Additional
	{0x2160, 0x216F, 16, 1}, {0x24B6, 0x24CF, 26, 1}, {0xFF21, 0xFF3A, 32, 1}, // Roman numerals, circled, full width
};
}

char16_t UE::Core::Private::ToLowerBeyondAscii(char16_t Char)
{
	for (const FCaseRange& Range : CaseRanges)
	{
		if (Char < Range.First)
		{
			// The ranges stand in ascending order.
			return Char;
		}
		if (Char <= Range.Last)
		{
			return (Char - Range.First) % Range.Stride == 0 ? static_cast<char16_t>(Char + Range.Delta) : Char;
		}
	}
	return Char;
}

char16_t UE::Core::Private::ToUpperBeyondAscii(char16_t Char)
{
	for (const FCaseRange& Range : CaseRanges)
	{
		const int32 Capital = static_cast<int32>(Char) - Range.Delta;
		if (Capital >= Range.First && Capital <= Range.Last && (Capital - Range.First) % Range.Stride == 0)
		{
			return static_cast<char16_t>(Capital);
		}
	}
	return Char;
}
