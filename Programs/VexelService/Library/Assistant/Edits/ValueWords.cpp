#include "Assistant/Edits/ValueWords.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxFields = 4;
constexpr std::size_t MaxElements = 200;

constexpr std::string_view TrueWords = "true|yes|on|enabled|active|checked|visible|shown";
constexpr std::string_view FalseWords = "false|no|off|disabled|inactive|unchecked|invisible|hidden";
// Units in which the editor has its numbers anyway.
constexpr std::string_view Units =
	"degree|degrees|deg|second|seconds|sec|secs|s|unit|units|cm|centimeter|centimeters|lumen|lumens|candela|candelas|kg";
constexpr std::string_view NumberWords[] = {
	"zero", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten", "eleven", "twelve"};

/** A struct whose values people write as numbers in a row. */
struct FNumberStruct
{
	std::string_view Type;
	std::array<const char*, MaxFields> Fields;
	std::size_t NumFields;
};

constexpr FNumberStruct NumberStructs[] = {
	{"struct.Vector", {"X", "Y", "Z"}, 3},
	{"struct.Vector2D", {"X", "Y"}, 2},
	{"struct.Vector4", {"X", "Y", "Z", "W"}, 4},
	{"struct.Rotator", {"Pitch", "Yaw", "Roll"}, 3},
	{"struct.LinearColor", {"R", "G", "B", "A"}, 4},
	{"struct.Color", {"R", "G", "B", "A"}, 4},
	{"struct.IntPoint", {"X", "Y"}, 2},
	{"struct.IntVector", {"X", "Y", "Z"}, 3},
};

struct FColorName
{
	std::string_view Words;
	std::array<double, 4> Value;
};

constexpr FColorName ColorNames[] = {
	{"red", {1, 0, 0, 1}},
	{"green", {0, 1, 0, 1}},
	{"blue", {0, 0, 1, 1}},
	{"white", {1, 1, 1, 1}},
	{"black", {0, 0, 0, 1}},
	{"yellow", {1, 1, 0, 1}},
	{"cyan", {0, 1, 1, 1}},
	{"magenta", {1, 0, 1, 1}},
	{"orange", {1, 0.5, 0, 1}},
	{"purple", {0.5, 0, 1, 1}},
	{"gray|grey", {0.5, 0.5, 0.5, 1}},
	{"transparent", {0, 0, 0, 0}},
};

/** Numbers in a row, each with the letter or word that stands before it. */
struct FFields
{
	std::vector<std::string> Names;
	std::vector<std::string> Numbers;
};

std::optional<std::string> ReadNumber(std::string_view Text)
{
	const auto Word = std::find_if(std::begin(NumberWords), std::end(NumberWords), [Text](std::string_view Candidate)
		{ return EqualIgnoringCase(Candidate, Text); });
	if (Word != std::end(NumberWords))
	{
		return std::to_string(Word - std::begin(NumberWords));
	}
	std::string Figures(StartsWith(Text, "+") ? Text.substr(1) : Text);
	// "5,000" has its thousands apart.
	for (std::size_t Comma = Figures.find(','); Comma != std::string::npos; Comma = Figures.find(',', Comma))
	{
		const std::size_t Behind = Comma + 4;
		const bool bEnds = Behind == Figures.size() || (Behind < Figures.size() && (Figures[Behind] == ',' || Figures[Behind] == '.'));
		if (Comma == 0 || !bEnds)
		{
			return std::nullopt;
		}
		Figures.erase(Comma, 1);
	}
	double Number = 0;
	const std::from_chars_result Result = std::from_chars(Figures.data(), Figures.data() + Figures.size(), Number);
	const bool bNumber = Result.ec == std::errc() && Result.ptr == Figures.data() + Figures.size() && std::isfinite(Number);
	return bNumber ? std::optional<std::string>(Figures) : std::nullopt;
}

// One number, with a unit behind it or without.
std::optional<std::string> ReadNumber(const FEditWords& Said)
{
	const bool bUnit = Said.size() == 2 && IsWord(Said[1], Units);
	return Said.size() == 1 || bUnit ? ReadNumber(Said.front().Text) : std::nullopt;
}

bool IsSeparator(char Character)
{
	return std::string_view(" \t,;()=:").find(Character) != std::string_view::npos;
}

// "1, 2, 3", "(X=1,Y=2,Z=3)", "x 1 y 2", "yaw 90".
std::optional<FFields> ReadFields(std::string_view Text)
{
	FFields Fields;
	std::string Name;
	while (!Text.empty())
	{
		if (IsSeparator(Text.front()))
		{
			Text.remove_prefix(1);
			continue;
		}
		const std::size_t Length = static_cast<std::size_t>(std::find_if(Text.begin(), Text.end(), IsSeparator) - Text.begin());
		const std::string_view Part = Text.substr(0, Length);
		Text.remove_prefix(Length);
		if (IsOneOf(Part, "and"))
		{
			continue;
		}
		const std::optional<std::string> Number = ReadNumber(Part);
		if (!Number && !Name.empty())
		{
			return std::nullopt;
		}
		if (!Number)
		{
			Name = Part;
			continue;
		}
		Fields.Names.push_back(std::exchange(Name, std::string()));
		Fields.Numbers.push_back(*Number);
	}
	return !Name.empty() || Fields.Numbers.empty() ? std::nullopt : std::optional<FFields>(std::move(Fields));
}

const FNumberStruct* FindNumberStruct(std::string_view Type)
{
	const auto Found = std::find_if(std::begin(NumberStructs), std::end(NumberStructs), [Type](const FNumberStruct& Row)
		{ return Row.Type == Type; });
	return Found == std::end(NumberStructs) ? nullptr : Found;
}

bool IsColor(const FNumberStruct& Struct)
{
	return Struct.Type == "struct.LinearColor" || Struct.Type == "struct.Color";
}

std::string ShortNumber(double Number)
{
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%g", Number);
	return Text;
}

const FColorName* FindColor(std::string_view Word)
{
	const auto Found = std::find_if(std::begin(ColorNames), std::end(ColorNames), [Word](const FColorName& Row)
		{ return IsOneOf(Word, Row.Words); });
	return Found == std::end(ColorNames) ? nullptr : Found;
}

std::optional<FFields> ReadColorName(std::string_view Text, bool bBytes)
{
	const FColorName* const Found = FindColor(Text);
	if (!Found)
	{
		return std::nullopt;
	}
	FFields Fields;
	for (const double Channel : Found->Value)
	{
		Fields.Names.emplace_back();
		Fields.Numbers.push_back(bBytes ? std::to_string(std::lround(Channel * 255)) : ShortNumber(Channel));
	}
	return Fields;
}

// The fields' numbers in the struct's own order, nothing where the words name a field that it has not.
std::optional<std::vector<std::pair<std::string, std::string>>> OrderFields(const FNumberStruct& Struct, const FFields& Said)
{
	std::vector<std::pair<std::string, std::string>> Ordered;
	for (std::size_t Index = 0; Index < Said.Numbers.size(); ++Index)
	{
		const std::string& Name = Said.Names[Index];
		const auto Field = std::find_if(Struct.Fields.begin(), Struct.Fields.begin() + static_cast<std::ptrdiff_t>(Struct.NumFields),
			[&Name](const char* Candidate)
			{ return EqualIgnoringCase(Candidate, Name); });
		const bool bNamed = Field != Struct.Fields.begin() + static_cast<std::ptrdiff_t>(Struct.NumFields);
		if (!bNamed && (!Name.empty() || Index >= Struct.NumFields))
		{
			return std::nullopt;
		}
		Ordered.emplace_back(bNamed ? *Field : Struct.Fields[Index], Said.Numbers[Index]);
	}
	return Ordered;
}

FWireValue MakeStructValue(const FEditWords& Said, const FNumberStruct& Struct, EValueForm Form)
{
	const std::string Text = JoinWords(Said);
	std::optional<FFields> Fields = IsColor(Struct) ? ReadColorName(Text, Struct.Type == "struct.Color") : std::nullopt;
	Fields = Fields ? Fields : ReadFields(Text);
	const bool bNamed = Fields && std::any_of(Fields->Names.begin(), Fields->Names.end(), [](const std::string& Name)
									  { return !Name.empty(); });
	const bool bOpaque = Fields && IsColor(Struct) && !bNamed && Fields->Numbers.size() == 3;
	if (bOpaque)
	{
		Fields->Names.emplace_back();
		Fields->Numbers.emplace_back(Struct.Type == "struct.Color" ? "255" : "1");
	}
	const auto Ordered = Fields ? OrderFields(Struct, *Fields) : std::nullopt;
	const bool bAll = Ordered && Ordered->size() == Struct.NumFields;
	const bool bSome = Ordered && bNamed && Form == EValueForm::Property;
	if (!bAll && !bSome)
	{
		std::vector<std::string> Names(Struct.Fields.begin(), Struct.Fields.begin() + static_cast<std::ptrdiff_t>(Struct.NumFields));
		return {.Json = {},
			.Problem = Quoted(Text) + " is no " + TypeInWords(Struct.Type) + ": I need the numbers " + JoinWithAnd(Names) +
				(IsColor(Struct) ? ", or a color's name." : ".")};
	}
	if (!bAll)
	{
		FJson Partial = FJson::object();
		for (const auto& [Name, Number] : *Ordered)
		{
			Partial[Name] = Number;
		}
		return {.Json = Partial};
	}
	std::string Whole;
	for (const auto& [Name, Number] : *Ordered)
	{
		const bool bPin = Form == EValueForm::Pin;
		Whole += (Whole.empty() ? "" : bPin ? ", "
											: ",") +
			(bPin ? std::string() : Name + "=") + Number;
	}
	return {.Json = Form == EValueForm::Pin ? Whole : "(" + Whole + ")"};
}

FWireValue MakeNumberValue(const FEditWords& Said, bool bWhole)
{
	const std::optional<std::string> Number = ReadNumber(Said);
	const bool bFits = Number && (!bWhole || Number->find_first_of(".eE") == std::string::npos);
	if (bFits)
	{
		return {.Json = *Number};
	}
	return {.Json = {}, .Problem = Quoted(JoinWords(Said)) + " is no " + (bWhole ? "whole " : "") + "number."};
}

}

FTypeParts SplitTypeId(std::string_view TypeId)
{
	if (StartsWith(TypeId, "ref|"))
	{
		TypeId.remove_prefix(4);
	}
	const std::size_t Bar = TypeId.find('|');
	if (Bar == std::string_view::npos)
	{
		return {.Container = {}, .Element = std::string(TypeId), .Value = {}};
	}
	const std::string_view Inner = TypeId.substr(Bar + 1);
	const std::size_t Split = TypeId.substr(0, Bar) == "map" ? Inner.find_last_of(",|") : std::string_view::npos;
	return {.Container = std::string(TypeId.substr(0, Bar)),
		.Element = std::string(Inner.substr(0, Split)),
		.Value = Split == std::string_view::npos ? std::string() : std::string(Inner.substr(Split + 1))};
}

bool IsReferenceType(std::string_view TypeId)
{
	const std::string_view Category = TypeId.substr(0, TypeId.find('.'));
	return IsOneOf(Category, "object|class|softobject|softclass|interface");
}

std::optional<bool> ReadBoolean(const FEditWords& Said)
{
	const bool bOne = Said.size() == 1 && !Said.front().bQuoted;
	const bool bTrue = bOne && (IsWord(Said.front(), TrueWords) || Said.front().Text == "1");
	const bool bFalse = bOne && (IsWord(Said.front(), FalseWords) || Said.front().Text == "0");
	return bTrue || bFalse ? std::optional<bool>(bTrue) : std::nullopt;
}

bool IsColorName(std::string_view Word)
{
	return FindColor(Word) != nullptr;
}

std::optional<int> ReadCount(std::string_view Text)
{
	const std::optional<std::string> Number = ReadNumber(Text);
	int Count = 0;
	const char* const End = Number ? Number->data() + Number->size() : nullptr;
	const bool bWhole = Number && std::from_chars(Number->data(), End, Count).ptr == End;
	return bWhole ? std::optional<int>(Count) : std::nullopt;
}

bool SaysNothing(const FEditWords& Said)
{
	return Said.size() == 1 && IsWord(Said.front(), "none|nothing|null|empty|nobody");
}

FWireValue MakeWireValue(const FEditWords& Said, std::string_view TypeId, EValueForm Form)
{
	const std::string Text = JoinWords(Said);
	if (TypeId == "bool")
	{
		const std::optional<bool> Boolean = ReadBoolean(Said);
		return Boolean ? FWireValue{.Json = *Boolean ? "True" : "False"}
					   : FWireValue{.Json = {}, .Problem = Quoted(Text) + " is neither true nor false."};
	}
	if (IsOneOf(TypeId, "byte|int|int8|int16|int32|int64|uint16|uint32|uint64"))
	{
		return MakeNumberValue(Said, true);
	}
	if (IsOneOf(TypeId, "real|float|double"))
	{
		return MakeNumberValue(Said, false);
	}
	if (const FNumberStruct* const Struct = FindNumberStruct(TypeId))
	{
		return MakeStructValue(Said, *Struct, Form);
	}
	// A name that is none is the word for it; a text is whatever was said.
	return {.Json = Text};
}

std::vector<FJson> GuessWireValues(const FEditWords& Said)
{
	std::vector<FJson> Guesses;
	const auto Add = [&Guesses](const FWireValue& Value)
	{
		if (Value.Json && std::find(Guesses.begin(), Guesses.end(), *Value.Json) == Guesses.end())
		{
			Guesses.push_back(*Value.Json);
		}
	};
	const bool bOneQuoted = Said.size() == 1 && Said.front().bQuoted;
	if (!bOneQuoted)
	{
		for (const char* const Type :
			{"real", "bool", "struct.Vector", "struct.Rotator", "struct.LinearColor", "struct.Color", "struct.Vector2D"})
		{
			Add(MakeWireValue(Said, Type));
		}
	}
	Add({.Json = JoinWords(Said)});
	return Guesses;
}

std::vector<FEditWords> SplitListWords(const FEditWords& Said, std::string_view ElementType)
{
	const bool bRowIsOne = FindNumberStruct(ElementType) != nullptr;
	std::vector<FEditWords> Elements(1);
	const auto Begin = [&Elements]
	{
		if (!Elements.back().empty() && Elements.size() < MaxElements)
		{
			Elements.emplace_back();
		}
	};
	for (const FEditWord& Word : Said)
	{
		if (Word.bMark || IsWord(Word, "and"))
		{
			Begin();
			continue;
		}
		// Numbers in a row come as one word.
		std::string_view Rest = Word.Text;
		for (std::size_t Comma = Rest.find(','); !Word.bQuoted && !bRowIsOne && Comma != std::string_view::npos; Comma = Rest.find(','))
		{
			Elements.back().push_back({.Text = std::string(Rest.substr(0, Comma))});
			Begin();
			Rest.remove_prefix(std::min(Rest.find_first_not_of(", ", Comma), Rest.size()));
		}
		Elements.back().push_back({.Text = std::string(Rest), .bQuoted = Word.bQuoted});
	}
	if (Elements.back().empty())
	{
		Elements.pop_back();
	}
	return Elements;
}

}
