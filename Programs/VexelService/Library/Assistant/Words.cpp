#include "Assistant/Words.h"

#include <algorithm>
#include <array>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxLiteralBytes = 120;

bool IsUpper(char Character)
{
	return Character >= 'A' && Character <= 'Z';
}

bool IsLower(char Character)
{
	return Character >= 'a' && Character <= 'z';
}

bool IsDigit(char Character)
{
	return Character >= '0' && Character <= '9';
}

char ToLower(char Character)
{
	return IsUpper(Character) ? static_cast<char>(Character + ('a' - 'A')) : Character;
}

bool EndsWithIgnoringCase(std::string_view Text, std::string_view Suffix)
{
	return Text.size() >= Suffix.size() && EqualIgnoringCase(Text.substr(Text.size() - Suffix.size()), Suffix);
}

struct FTypeWords
{
	std::string_view Category;
	/** For the bare category. */
	const char* Alone;
	/** Around the object's name; '%' stands for it. */
	const char* Named;
};

constexpr std::array<FTypeWords, 24> TypeTable = {{
	{"bool", "Boolean", nullptr},
	{"int", "integer", nullptr},
	{"int64", "64-bit integer", nullptr},
	{"real", "number", nullptr},
	{"float", "number", nullptr},
	{"double", "number", nullptr},
	{"byte", "byte", "%"},
	{"enum", "enumeration", "%"},
	{"string", "string", nullptr},
	{"name", "name", nullptr},
	{"text", "text", nullptr},
	{"struct", "structure", "% structure"},
	{"object", "object reference", "% reference"},
	{"class", "class", "% class"},
	{"softobject", "soft object reference", "soft % reference"},
	{"softclass", "soft class reference", "soft % class"},
	{"soft_object", "soft object reference", "soft % reference"},
	{"soft_class", "soft class reference", "soft % class"},
	{"interface", "interface", "% interface"},
	{"wildcard", "value of any type", nullptr},
	{"delegate", "event", nullptr},
	{"mcdelegate", "event dispatcher", nullptr},
	{"exec", "execution", nullptr},
	{"fieldpath", "field path", nullptr},
}};

std::string Plural(const std::string& Words)
{
	const bool bVowelY = Words.size() < 2 || std::string_view("aeiou").find(Words[Words.size() - 2]) != std::string_view::npos;
	if (Words.empty() || Words.back() == 's')
	{
		return Words + (Words.empty() ? "" : "es");
	}
	return Words.back() == 'y' && !bVowelY ? Words.substr(0, Words.size() - 1) + "ies" : Words + "s";
}

std::string BaseTypeInWords(std::string_view TypeId)
{
	const std::size_t Dot = TypeId.find('.');
	const std::string_view Category = TypeId.substr(0, Dot);
	const auto Row = std::find_if(TypeTable.begin(), TypeTable.end(), [&](const FTypeWords& Candidate)
		{ return EqualIgnoringCase(Candidate.Category, Category); });
	if (Row == TypeTable.end())
	{
		return TypeId.empty() ? "value of an unnamed type" : std::string(TypeId);
	}
	if (Dot == std::string_view::npos || !Row->Named)
	{
		return Row->Alone;
	}
	std::string Words = Row->Named;
	return Words.replace(Words.find('%'), 1, ClassName(TypeId.substr(Dot + 1)));
}

// The source string is the last of the three quoted texts.
std::string TextSource(std::string_view Value)
{
	const std::size_t End = Value.rfind('"');
	std::size_t Begin = End;
	while (Begin != std::string_view::npos && Begin > 0)
	{
		Begin = Value.rfind('"', Begin - 1);
		if (Begin == std::string_view::npos || Begin == 0 || Value[Begin - 1] != '\\')
		{
			break;
		}
	}
	return Begin == std::string_view::npos || Begin >= End ? std::string(Value) : std::string(Value.substr(Begin + 1, End - Begin - 1));
}

// Every run of digits with a point in it, without its trailing zeros.
std::string TrimmedNumbersIn(std::string_view Text)
{
	std::string Result;
	for (std::size_t Index = 0; Index < Text.size();)
	{
		if (!IsDigit(Text[Index]))
		{
			Result += Text[Index++];
			continue;
		}
		std::size_t End = Index;
		while (End < Text.size() && (IsDigit(Text[End]) || Text[End] == '.'))
		{
			++End;
		}
		Result += TrimmedNumber(Text.substr(Index, End - Index));
		Index = End;
	}
	return Result;
}

}

std::string LowerCase(std::string_view Text)
{
	std::string Lower(Text);
	std::transform(Lower.begin(), Lower.end(), Lower.begin(), ToLower);
	return Lower;
}

bool EqualIgnoringCase(std::string_view A, std::string_view B)
{
	return std::equal(A.begin(), A.end(), B.begin(), B.end(), [](char Left, char Right)
		{ return ToLower(Left) == ToLower(Right); });
}

bool StartsWith(std::string_view Text, std::string_view Prefix)
{
	return Text.substr(0, Prefix.size()) == Prefix;
}

std::string UpperFirst(std::string Text)
{
	if (!Text.empty() && IsLower(Text.front()))
	{
		Text.front() = static_cast<char>(Text.front() - ('a' - 'A'));
	}
	return Text;
}

std::string LowerFirst(std::string Text)
{
	if (!Text.empty())
	{
		Text.front() = ToLower(Text.front());
	}
	return Text;
}

std::string_view LastSegment(std::string_view Text, char Separator)
{
	const std::size_t Found = Text.rfind(Separator);
	return Found == std::string_view::npos ? Text : Text.substr(Found + 1);
}

std::string ShortName(std::string_view ObjectPath)
{
	while (!ObjectPath.empty() && (ObjectPath.back() == '\'' || ObjectPath.back() == '"'))
	{
		ObjectPath.remove_suffix(1);
	}
	for (const char Separator : {'\'', '"', '|', '/', ':', '.'})
	{
		ObjectPath = LastSegment(ObjectPath, Separator);
	}
	return ClassName(ObjectPath);
}

std::string ClassName(std::string_view Class)
{
	constexpr std::string_view Skeleton = "SKEL_";
	constexpr std::string_view Generated = "_C";
	if (!EndsWithIgnoringCase(Class, Generated) || Class.size() == Generated.size())
	{
		return std::string(Class);
	}
	Class.remove_suffix(Generated.size());
	Class.remove_prefix(StartsWith(Class, Skeleton) ? Skeleton.size() : 0);
	return std::string(Class);
}

bool IsPrefixedAssetName(std::string_view Name)
{
	static constexpr std::string_view CommonTags[] = {"bp", "abp", "wbp", "bpi", "bpm", "bpc", "bpfl", "bfl", "bml"};
	constexpr std::size_t MaxTag = 5;
	const std::size_t Underscore = Name.find('_');
	if (Underscore == std::string_view::npos || Underscore == 0 || Underscore > MaxTag || Underscore + 1 == Name.size())
	{
		return false;
	}
	const std::string_view Tag = Name.substr(0, Underscore);
	const bool bCommon = std::any_of(std::begin(CommonTags), std::end(CommonTags), [Tag](std::string_view Common)
		{ return EqualIgnoringCase(Common, Tag); });
	return bCommon || std::all_of(Tag.begin(), Tag.end(), IsUpper);
}

std::string SpacedName(std::string_view CodeName)
{
	if (StartsWith(CodeName, "K2_"))
	{
		CodeName.remove_prefix(3);
	}
	if (CodeName.size() > 1 && CodeName[0] == 'b' && IsUpper(CodeName[1]))
	{
		CodeName.remove_prefix(1);
	}
	std::string Words;
	for (std::size_t Index = 0; Index < CodeName.size(); ++Index)
	{
		const char Character = CodeName[Index];
		if (Character == '_' || Character == ' ')
		{
			if (!Words.empty() && Words.back() != ' ')
			{
				Words += ' ';
			}
			continue;
		}
		const bool bAfterLower = Index > 0 && (IsLower(CodeName[Index - 1]) || IsDigit(CodeName[Index - 1]));
		const bool bBeforeLower = Index + 1 < CodeName.size() && IsLower(CodeName[Index + 1]);
		const bool bAfterUpper = Index > 0 && IsUpper(CodeName[Index - 1]);
		if (IsUpper(Character) && (bAfterLower || (bAfterUpper && bBeforeLower)) && !Words.empty() && Words.back() != ' ')
		{
			Words += ' ';
		}
		Words += Character;
	}
	return Words;
}

std::string TypeInWords(std::string_view TypeId)
{
	// Each round takes one prefix off, so the loop ends; a container of containers is not a type, but may come from outside.
	std::string Around;
	while (true)
	{
		const std::size_t Bar = TypeId.find('|');
		const std::string_view Word = TypeId.substr(0, Bar);
		if (Bar == std::string_view::npos)
		{
			return Around.empty() ? BaseTypeInWords(TypeId) : Around + Plural(BaseTypeInWords(TypeId));
		}
		TypeId.remove_prefix(Bar + 1);
		if (Word == "array" || Word == "set")
		{
			Around += std::string(Word) + " of ";
		}
		else if (Word == "map")
		{
			const std::size_t Separator = TypeId.find_last_of(",|");
			const std::string_view Key = TypeId.substr(0, Separator);
			const std::string_view Value = Separator == std::string_view::npos ? std::string_view() : TypeId.substr(Separator + 1);
			return Around + "map from " + Plural(BaseTypeInWords(Key)) + " to " + Plural(BaseTypeInWords(Value));
		}
	}
}

std::string TrimmedNumber(std::string_view Text)
{
	const std::size_t Point = Text.find('.');
	const std::string_view Digits = StartsWith(Text, "-") || StartsWith(Text, "+") ? Text.substr(1) : Text;
	if (Point == std::string_view::npos || Digits.find_first_not_of("0123456789.") != std::string_view::npos || Text.rfind('.') != Point)
	{
		return std::string(Text);
	}
	while (Text.back() == '0')
	{
		Text.remove_suffix(1);
	}
	if (Text.back() == '.')
	{
		Text.remove_suffix(1);
	}
	return Text.empty() || Text == "-" ? "0" : std::string(Text);
}

std::string LiteralInWords(std::string_view Value, std::string_view TypeId)
{
	const std::string_view Base = StartsWith(TypeId, "ref|") ? TypeId.substr(4) : TypeId;
	if (Base == "bool")
	{
		return EqualIgnoringCase(Value, "true") ? "true" : "false";
	}
	if (Base == "string" || Base == "name" || Base == "text")
	{
		const bool bLocalized = StartsWith(Value, "NSLOCTEXT(") || StartsWith(Value, "LOCTEXT(") || StartsWith(Value, "INVTEXT(");
		return "\"" + Shortened(bLocalized ? TextSource(Value) : std::string(Value), MaxLiteralBytes) + "\"";
	}
	if (Value.empty())
	{
		return {};
	}
	if (StartsWith(Value, "ref|") || StartsWith(Value, "/") || Value.find('\'') != std::string_view::npos)
	{
		const std::string Name = ShortName(Value);
		return Name == "None" || Name.empty() ? "nothing" : Name;
	}
	if (StartsWith(Base, "enum.") || StartsWith(Base, "byte."))
	{
		return SpacedName(LastSegment(Value, ':'));
	}
	if (Value.front() == '(' || Value.find(',') != std::string_view::npos)
	{
		const std::string Inner = TrimmedNumbersIn(Value);
		return Shortened(Inner.front() == '(' ? Inner : "(" + Inner + ")", MaxLiteralBytes);
	}
	return Value == "None" ? "nothing" : Shortened(TrimmedNumber(Value), MaxLiteralBytes);
}

std::string WithArticle(const std::string& Noun)
{
	const bool bVowel = !Noun.empty() && std::string_view("aeioAEIO").find(Noun.front()) != std::string_view::npos;
	return (bVowel ? "an " : "a ") + Noun;
}

std::string JoinWithAnd(const std::vector<std::string>& Items)
{
	std::string Text;
	for (std::size_t Index = 0; Index < Items.size(); ++Index)
	{
		if (Index > 0)
		{
			Text += Index + 1 == Items.size() ? " and " : ", ";
		}
		Text += Items[Index];
	}
	return Text;
}

std::string CountOf(std::size_t Count, const std::string& Noun)
{
	if (Count == 1)
	{
		return "1 " + Noun;
	}
	return (Count == 0 ? std::string("no") : std::to_string(Count)) + " " + Plural(Noun);
}

std::string Shortened(std::string Text, std::size_t MaxBytes)
{
	if (Text.size() <= MaxBytes)
	{
		return Text;
	}
	std::size_t End = MaxBytes;
	while (End > 0 && (static_cast<unsigned char>(Text[End]) & 0xC0) == 0x80)
	{
		--End;
	}
	Text.resize(End);
	return Text + "…";
}

}
