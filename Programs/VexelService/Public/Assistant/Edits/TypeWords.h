#pragma once

#include "Assistant/Edits/EditWords.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace VexelService
{

using FEditWordSpan = std::span<const FEditWord>;

/** A type that holds no others, as a user says it. */
struct FSaidTerminal
{
	/** Of the property-type id: "real", "object", "struct"; empty where a name alone was said. */
	std::string Category;
	/** The class, the struct or the enumeration as the user writes it; empty where the category says all. */
	std::string Name = {};
};

/** A type as a user says it; the names in it have not been looked for. */
struct FSaidType
{
	/** "array", "set", "map", or empty. */
	std::string Container;
	/** Of a map, its key. */
	FSaidTerminal Element;
	/** Of a map alone. */
	FSaidTerminal Value = {};
};

enum class ETypeNames
{
	/** Only words that can be nothing but a type: "integer", "array of strings", "reference to Actor". */
	Telling,
	/** Any name too, as behind "of type". */
	Any,
};

/** The type that all the words say; nothing when they say none. */
std::optional<FSaidType> ReadType(FEditWordSpan Words, ETypeNames Names);

/** "struct.Vector", "real"; only of a terminal whose category is known. */
std::string TerminalTypeId(const FSaidTerminal& Terminal);

/** The property-type id, with the ids of its terminals. */
std::string MakeTypeId(std::string_view Container, std::string_view Element, std::string_view Value);

}
