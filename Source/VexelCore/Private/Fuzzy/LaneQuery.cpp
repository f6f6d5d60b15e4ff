#include "Fuzzy/FuzzyText.h"
#include "Fuzzy/PartialQuery.h"

#include <algorithm>
#include <array>
#include <vector>

namespace
{
/** Bytes that one step works on: two registers of the smallest machines, which hides the latency of one behind the other. */
constexpr size_t StepBytes = 32;

/**
 * The longest common subsequences of several pairs of texts, a pair a lane. Each bit of a lane is a place in the pair's first text;
 * a step takes one character of each second text, as the bits of the places where the first has it. A bit that has become 0 is one
 * character in common. The loops have the shape that compilers turn into vector instructions.
 */
template <typename LaneType>
struct TLanes
{
	static constexpr size_t Num = StepBytes / sizeof(LaneType);

	TLanes() { std::fill(Rows, Rows + Num, LaneType(~LaneType(0))); }

	void TakeStep(const LaneType* Places)
	{
		for (size_t Lane = 0; Lane < Num; ++Lane)
		{
			const LaneType Matches = Rows[Lane] & Places[Lane];
			Rows[Lane] = LaneType(LaneType(Rows[Lane] + Matches) | LaneType(Rows[Lane] - Matches));
		}
	}

	/** How many characters each pair has in common, of the first so many places. */
	void CountCommon(size_t NumPlaces, LaneType* OutCounts) const
	{
		constexpr size_t NumBits = 8 * sizeof(LaneType);
		const LaneType Used = NumPlaces >= NumBits ? LaneType(~LaneType(0)) : LaneType((LaneType(1) << NumPlaces) - 1);
		for (size_t Lane = 0; Lane < Num; ++Lane)
		{
			OutCounts[Lane] = CountBits(LaneType(~Rows[Lane] & Used));
		}
	}

	/** The usual sum of neighbouring bits, pairs and halves; an instruction for it is not on every machine. */
	static LaneType CountBits(LaneType Bits)
	{
		constexpr LaneType Ones = LaneType(~LaneType(0));
		constexpr LaneType Pairs = LaneType(Ones / 3);
		constexpr LaneType Nibbles = LaneType(Ones / 5);
		constexpr LaneType Bytes = LaneType(Ones / 17);
		Bits = LaneType(Bits - ((Bits >> 1) & Pairs));
		Bits = LaneType((Bits & Nibbles) + ((Bits >> 2) & Nibbles));
		Bits = LaneType((Bits + (Bits >> 4)) & Bytes);
		for (size_t Shift = 8; Shift < 8 * sizeof(LaneType); Shift *= 2)
		{
			Bits = LaneType(Bits + (Bits >> Shift));
		}
		return LaneType(Bits & 0x7F);
	}

	LaneType Rows[Num];
};

/** Where the characters of a query stand, for lanes of that many bits. */
template <typename LaneType>
class TPlaces
{
public:
	TPlaces(std::u32string_view Query, const FCharacterClasses& InClasses)
		: Classes(InClasses)
		, Stride((Query.size() + TLanes<LaneType>::Num - 1) / TLanes<LaneType>::Num * TLanes<LaneType>::Num)
		, Values(Classes.GetNum() * Stride)
	{
		for (size_t Index = 0; Index < Query.size(); ++Index)
		{
			LaneType* const OfClass = Values.data() + Classes.Find(Query[Index]) * Stride;
			const size_t NumBits = 8 * sizeof(LaneType);
			for (size_t Begin = Index < NumBits ? 0 : Index - NumBits + 1; Begin <= Index; ++Begin)
			{
				OfClass[Begin] |= LaneType(LaneType(1) << (Index - Begin));
			}
		}
		for (char32_t Character = 0; Character < FuzzyText::NumAscii && Stride > 0; ++Character)
		{
			FirstOfAscii[Character] = *Find(Character);
		}
	}

	/** For each place of the query, where the character stands from that place on; places behind the query are padding. */
	const LaneType* Find(char32_t Character) const { return Values.data() + Classes.Find(Character) * Stride; }

	/** Where the character stands in the query, the shortest way to what most texts consist of. */
	LaneType FindFirst(char32_t Character) const
	{
		return Character < FuzzyText::NumAscii ? FirstOfAscii[Character] : *Find(Character);
	}

private:
	const FCharacterClasses& Classes;
	/** Places of the query, rounded up to whole steps. */
	size_t Stride;
	std::vector<LaneType> Values;
	std::array<LaneType, FuzzyText::NumAscii> FirstOfAscii = {};
};

/** Offers the stretches of the first so many lanes, whose lengths the function knows. */
template <typename LaneType, typename GetLengthType>
void Offer(const TLanes<LaneType>& Lanes, size_t NumPlaces, size_t NumUsed, FBestRating& Best, GetLengthType&& GetLength)
{
	LaneType Counts[TLanes<LaneType>::Num];
	Lanes.CountCommon(NumPlaces, Counts);
	for (size_t Lane = 0; Lane < NumUsed; ++Lane)
	{
		Best.Offer(GetLength(Lane), Counts[Lane]);
	}
}

/** A lane has as many bits as the shorter text has characters, at the least: shorter texts have more stretches rated at once. */
class FLaneQuery final : public IPartialQuery
{
public:
	explicit FLaneQuery(std::u32string_view Query)
		: Length(Query.size())
		, Classes(Query)
		, Places16(Query, Classes)
		, Places32(Query, Classes)
		, Places64(Query, Classes)
	{
	}
	UE_NONCOPYABLE(FLaneQuery)

	virtual double Rate(std::u32string_view Text) const override
	{
		const size_t ShorterLength = std::min(Length, Text.size());
		if (ShorterLength == 0)
		{
			return 0.0;
		}
		if (ShorterLength <= 16)
		{
			return RateWith(Places16, Text, ShorterLength);
		}
		return ShorterLength <= 32 ? RateWith(Places32, Text, ShorterLength) : RateWith(Places64, Text, ShorterLength);
	}

private:
	template <typename LaneType>
	double RateWith(const TPlaces<LaneType>& Places, std::u32string_view Text, size_t ShorterLength) const
	{
		check(ShorterLength <= 8 * sizeof(LaneType));
		FBestRating Best(ShorterLength);
		// Of two texts of one length either may be the one that has the stretch.
		if (Text.size() >= Length)
		{
			RateStretchesOf(Text, Places, Best);
		}
		if (Text.size() <= Length)
		{
			RateStretchesOfQuery(Text, Places, Best);
		}
		return Best.Get();
	}

	/**
	 * The text is the longer one. With nothing in front of it and behind it, as many nothings as the query is long but one, all of
	 * its stretches are as long as the query, and neighbouring lanes have neighbouring stretches.
	 */
	template <typename LaneType>
	void RateStretchesOf(std::u32string_view Text, const TPlaces<LaneType>& Places, FBestRating& Best) const
	{
		using FLanes = TLanes<LaneType>;
		const size_t NumAround = Length - 1;
		const size_t NumStretches = Text.size() + NumAround;
		thread_local std::vector<LaneType> Padded;
		Padded.resize(NumStretches + NumAround + FLanes::Num);
		auto At = std::fill_n(Padded.begin(), NumAround, LaneType(0));
		for (const char32_t Character : Text)
		{
			*At++ = Places.FindFirst(Character);
		}
		std::fill(At, Padded.end(), LaneType(0));

		const auto RateFrom = [&](size_t Begin)
		{
			FLanes Lanes;
			for (size_t Step = 0; Step < Length; ++Step)
			{
				Lanes.TakeStep(Padded.data() + Begin + Step);
			}
			Offer(Lanes, Length, std::min(FLanes::Num, NumStretches - Begin), Best, [&](size_t Lane)
				{ return std::min({Begin + Lane + 1, Length, NumStretches - Begin - Lane}); });
		};
		// The shorter stretches at both ends come last and from the longest on: soon none can be better than what was found.
		for (size_t Begin = NumAround; Begin < NumStretches; Begin += FLanes::Num)
		{
			const size_t Longest = std::min(Length, NumStretches - Begin);
			if (!Best.IsBetter(Longest, Longest))
			{
				break;
			}
			RateFrom(Begin);
		}
		for (size_t Begin = NumAround; Begin > 0 && Best.IsBetter(Begin, Begin);)
		{
			Begin -= std::min(Begin, FLanes::Num);
			RateFrom(Begin);
		}
	}

	/** The text is the shorter one, and lanes have the stretches of the query that begin at neighbouring places. */
	template <typename LaneType>
	void RateStretchesOfQuery(std::u32string_view Text, const TPlaces<LaneType>& Places, FBestRating& Best) const
	{
		using FLanes = TLanes<LaneType>;
		thread_local std::vector<const LaneType*> PlacesOfText;
		PlacesOfText.clear();
		for (const char32_t Character : Text)
		{
			PlacesOfText.push_back(Places.Find(Character));
		}
		LaneType FirstRow = 0;
		for (size_t Begin = 0; Begin < Length; Begin += FLanes::Num)
		{
			const size_t Longest = std::min(Text.size(), Length - Begin);
			if (!Best.IsBetter(Longest, Longest))
			{
				break;
			}
			FLanes Lanes;
			for (const LaneType* const Each : PlacesOfText)
			{
				Lanes.TakeStep(Each + Begin);
			}
			FirstRow = Begin == 0 ? Lanes.Rows[0] : FirstRow;
			Offer(Lanes, Text.size(), std::min(FLanes::Num, Length - Begin), Best, [&](size_t Lane)
				{ return std::min(Text.size(), Length - Begin - Lane); });
		}
		// What the query's first places have in common with the text does not depend on the places behind them.
		for (size_t Num = Text.size() - 1; Num > 0 && Best.IsBetter(Num, Num); --Num)
		{
			Best.Offer(Num, FLanes::CountBits(LaneType(~FirstRow & LaneType((LaneType(1) << Num) - 1))));
		}
	}

	size_t Length;
	FCharacterClasses Classes;
	TPlaces<uint16> Places16;
	TPlaces<uint32> Places32;
	TPlaces<uint64> Places64;
};
}

std::unique_ptr<const IPartialQuery> MakeLaneQuery(std::u32string_view Query)
{
	return std::make_unique<FLaneQuery>(Query);
}
