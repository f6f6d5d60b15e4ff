#pragma once

#include "Assistant/Edits/TypeWords.h"
#include "Support/JsonText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** A property-type id taken apart: "map|string,object.Actor" is a map of string and object.Actor. */
struct FTypeParts
{
	/** "array", "set", "map", or empty. */
	std::string Container;
	/** Of a map, its key. */
	std::string Element;
	/** Of a map alone. */
	std::string Value;
};

FTypeParts SplitTypeId(std::string_view TypeId);

/** Whether values of the type are references to objects or classes, which are looked for before they are set. */
bool IsReferenceType(std::string_view TypeId);

/** How a value is written: as a property's, or as the default of a pin. */
enum class EValueForm
{
	Property,
	Pin,
};

/** A value as the editor takes it, or why the words cannot be one. */
struct FWireValue
{
	std::optional<FJson> Json;
	/** A sentence for the user, where there is no value. */
	std::string Problem = {};
};

/** The value that words mean for a type that holds no others and is no reference; any text for a type that is not known here. */
FWireValue MakeWireValue(const FEditWords& Said, std::string_view TypeId, EValueForm Form = EValueForm::Property);

/** What words may mean for a property of which nothing is known, the likeliest first. */
std::vector<FJson> GuessWireValues(const FEditWords& Said);

/** The elements of a list of a type: "1, 2 and 3", "Coin, Gem"; of vectors "(0, 0, 0) and (1, 2, 3)". */
std::vector<FEditWords> SplitListWords(const FEditWords& Said, std::string_view ElementType);

/** Whether the words say that there is nothing: "none", "nothing", "empty". */
bool SaysNothing(const FEditWords& Said);

/** A Boolean in words: "true", "off", "yes". */
std::optional<bool> ReadBoolean(const FEditWords& Said);

/** Whether a word names a color: "red". */
bool IsColorName(std::string_view Word);

/** A whole number in figures or in words. */
std::optional<int> ReadCount(std::string_view Text);

}
