#include "Assistant/Edits/TypeWords.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxTypeWords = 14;
constexpr std::size_t MaxNameWords = 4;

struct FTypeWords
{
	/** Ways to say it, in the singular. */
	std::string_view Words;
	const char* Category;
	const char* Name;
	/** Whether the words can be nothing but a type. */
	bool bTelling;
};

constexpr FTypeWords TypeWords[] = {
	{"boolean|bool|flag", "bool", "", true},
	{"byte", "byte", "", true},
	{"integer|int|whole number|int32|integer number", "int", "", true},
	{"integer64|int64|long|long integer|64-bit integer|64 bit integer", "int64", "", true},
	{"float|double|number|real|decimal|real number|decimal number|floating point number|floating-point number", "real", "", true},
	{"name", "name", "", true},
	{"string|str", "string", "", true},
	{"text", "text", "", true},
	{"vector|vector3|vector 3d|3d vector|fvector", "struct", "Vector", true},
	{"vector2d|vector 2d|2d vector|fvector2d|vector2", "struct", "Vector2D", true},
	{"vector4|4d vector", "struct", "Vector4", true},
	{"rotator|frotator|rotation", "struct", "Rotator", true},
	{"transform|ftransform", "struct", "Transform", true},
	{"color|colour|linear color|linear colour|linearcolor|flinearcolor", "struct", "LinearColor", true},
	{"fcolor|8-bit color|8 bit color", "struct", "Color", true},
	{"event dispatcher|dispatcher", "mcdelegate", "", true},
	{"timer handle", "struct", "TimerHandle", false},
	{"object", "object", "Object", false},
	{"actor", "object", "Actor", false},
	{"pawn", "object", "Pawn", false},
	{"character", "object", "Character", false},
	{"static mesh", "object", "StaticMesh", false},
	{"material", "object", "MaterialInterface", false},
	{"texture", "object", "Texture2D", false},
	{"sound", "object", "SoundBase", false},
	{"class", "class", "Object", false},
};

struct FNamedTypePattern
{
	std::string_view Pattern;
	const char* Category;
	/** Whether the words can be nothing but a type: "the key object" may be an object in the level. */
	bool bTelling;
};

// What a type names stands in {name}. The more particular ones come first.
constexpr FNamedTypePattern NamedTypePatterns[] = {
	{"soft class reference|ref|pointer to|of {name}", "softclass", true},
	{"{name} soft class [reference|ref|pointer]", "softclass", true},
	{"soft [object] reference|ref|pointer to|of {name}", "softobject", true},
	{"{name} soft [object] reference|ref|pointer", "softobject", true},
	{"class reference|ref|pointer to|of {name}", "class", true},
	{"{name} class reference|ref|pointer", "class", true},
	{"{name} class|classes", "class", false},
	{"class of {name}", "class", true},
	{"subclass|subclasses|child of {name}", "class", true},
	{"[object] reference|references|ref|refs|pointer|pointers|handle to|of [object|actor|instance] of class|type {name}", "object", true},
	{"[object] reference|references|ref|refs|pointer|pointers|handle to|of {name} [object|actor|instance|asset]", "object", true},
	{"{name} [object] reference|references|ref|refs|pointer|pointers", "object", true},
	{"{name} object|objects|instance|instances", "object", false},
	{"object|objects|instance|instances|actor|actors [of] class|type {name}", "object", true},
	{"instance|instances of {name}", "object", false},
	{"interface {name}", "interface", true},
	{"{name} interface", "interface", false},
	{"enum|enumeration {name}", "enum", true},
	{"{name} enum|enumeration", "enum", true},
	{"struct|structure {name}", "struct", true},
	{"{name} struct|structure|structs", "struct", true},
};

struct FContainerPattern
{
	std::string_view Pattern;
	const char* Container;
};

constexpr FContainerPattern ContainerPatterns[] = {
	{"map|dictionary|maps from|of {element} to {value}", "map"},
	{"map|dictionary of {element} and {value}", "map"},
	{"map|dictionary with {element} key|keys and {value} value|values", "map"},
	{"map|dictionary with {element} as key|keys and {value} as value|values", "map"},
	{"{element} to {value} map|dictionary", "map"},
	{"array|list of {element}", "array"},
	{"{element} array|list", "array"},
	{"set of {element}", "set"},
	{"{element} set", "set"},
};

FEditWordSpan WithoutArticle(FEditWordSpan Words)
{
	return !Words.empty() && IsWord(Words.front(), "a|an|the") ? Words.subspan(1) : Words;
}

std::string LowerText(FEditWordSpan Words)
{
	std::string Text;
	for (const FEditWord& Word : Words)
	{
		Text += (Text.empty() ? "" : " ") + LowerCase(Word.Text);
	}
	return Text;
}

std::string Singular(std::string Text)
{
	const bool bPlural = Text.size() > 2 && Text.back() == 's' && Text[Text.size() - 2] != 's';
	return bPlural ? Text.substr(0, Text.size() - 1) : Text;
}

const FTypeWords* FindTypeWords(const std::string& Text)
{
	const auto Found = std::find_if(std::begin(TypeWords), std::end(TypeWords), [&Text](const FTypeWords& Row)
		{
			for (std::string_view Rest = Row.Words; !Rest.empty();)
			{
				const std::size_t Bar = std::min(Rest.find('|'), Rest.size());
				if (Rest.substr(0, Bar) == Text)
				{
					return true;
				}
				Rest.remove_prefix(std::min(Bar + 1, Rest.size()));
			}
			return false; });
	return Found == std::end(TypeWords) ? nullptr : Found;
}

// "static mesh component" and "Static Mesh Component" are StaticMeshComponent.
std::optional<std::string> ReadTypeName(FEditWordSpan Words)
{
	Words = WithoutArticle(Words);
	if (Words.empty() || Words.size() > MaxNameWords)
	{
		return std::nullopt;
	}
	std::string Name;
	for (const FEditWord& Word : Words)
	{
		const bool bName = !Word.bMark && !Word.Text.empty() && !IsWord(Word, "a|an|the|of|to|in|with|and|or|is|as|for|variable");
		if (!bName && !Word.bQuoted)
		{
			return std::nullopt;
		}
		Name += StartsWith(Word.Text, "/") || IsPrefixedAssetName(Word.Text) ? Word.Text : UpperFirst(Word.Text);
	}
	return Name;
}

std::optional<FSaidTerminal> ReadNamedTerminal(FEditWordSpan Words, ETypeNames Names, bool bPlural)
{
	const FEditWords Copy(Words.begin(), Words.end());
	for (const FNamedTypePattern& Row : NamedTypePatterns)
	{
		const std::optional<FCaptures> Captures = Row.bTelling || Names == ETypeNames::Any ? MatchWords(Row.Pattern, Copy) : std::nullopt;
		if (!Captures)
		{
			continue;
		}
		const FEditWords& Captured = Captures->find("name")->second;
		const FTypeWords* const Known = FindTypeWords(Singular(LowerText(Captured)));
		if (Known && std::string_view(Known->Category) == "object")
		{
			return FSaidTerminal{Row.Category, Known->Name};
		}
		const std::optional<std::string> Name = ReadTypeName(Captured);
		if (Name)
		{
			return FSaidTerminal{Row.Category, bPlural ? Singular(*Name) : *Name};
		}
	}
	return std::nullopt;
}

std::optional<FSaidTerminal> ReadTerminal(FEditWordSpan Words, ETypeNames Names, bool bPlural)
{
	Words = WithoutArticle(Words);
	if (Words.empty() || Words.size() > MaxTypeWords)
	{
		return std::nullopt;
	}
	const std::string Text = LowerText(Words);
	const bool bOneQuoted = Words.size() == 1 && Words.front().bQuoted;
	const FTypeWords* const Known = FindTypeWords(Text) ? FindTypeWords(Text) : FindTypeWords(Singular(Text));
	if (Known && !bOneQuoted && (Known->bTelling || Names == ETypeNames::Any))
	{
		return FSaidTerminal{Known->Category, Known->Name};
	}
	if (const std::optional<FSaidTerminal> Named = ReadNamedTerminal(Words, Names, bPlural))
	{
		return Named;
	}
	const bool bSurelyName = Words.size() == 1 && (IsPrefixedAssetName(Words.front().Text) || StartsWith(Words.front().Text, "/"));
	const std::optional<std::string> Name = bSurelyName || Names == ETypeNames::Any ? ReadTypeName(Words) : std::nullopt;
	return Name ? std::optional<FSaidTerminal>({"", bPlural ? Singular(*Name) : *Name}) : std::nullopt;
}

}

std::optional<FSaidType> ReadType(FEditWordSpan Words, ETypeNames Names)
{
	Words = WithoutArticle(Words);
	if (Words.empty() || Words.size() > MaxTypeWords)
	{
		return std::nullopt;
	}
	const FEditWords Copy(Words.begin(), Words.end());
	for (const FContainerPattern& Row : ContainerPatterns)
	{
		const std::optional<FCaptures> Captures = MatchWords(Row.Pattern, Copy);
		if (!Captures)
		{
			continue;
		}
		// "An array of Doors" says by itself that a type follows; "a Waypoints array" does not.
		const bool bLeads = IsWord(Copy.front(), "array|list|set|map|dictionary|maps");
		const ETypeNames ElementNames = bLeads ? ETypeNames::Any : Names;
		const std::optional<FSaidTerminal> Element = ReadTerminal(Captures->find("element")->second, ElementNames, true);
		const auto ValueWords = Captures->find("value");
		const std::optional<FSaidTerminal> Value =
			ValueWords == Captures->end() ? std::optional<FSaidTerminal>({"", ""}) : ReadTerminal(ValueWords->second, ElementNames, true);
		if (Element && Value)
		{
			return FSaidType{Row.Container, *Element, *Value};
		}
	}
	const std::optional<FSaidTerminal> Terminal = ReadTerminal(Words, Names, false);
	return Terminal ? std::optional<FSaidType>({"", *Terminal}) : std::nullopt;
}

std::string TerminalTypeId(const FSaidTerminal& Terminal)
{
	return Terminal.Name.empty() ? Terminal.Category : Terminal.Category + "." + Terminal.Name;
}

std::string MakeTypeId(std::string_view Container, std::string_view Element, std::string_view Value)
{
	const std::string Inner(Element);
	if (Container.empty())
	{
		return Inner;
	}
	return std::string(Container) + "|" + Inner + (Container == "map" ? "," + std::string(Value) : std::string());
}

}
