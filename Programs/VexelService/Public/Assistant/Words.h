#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

std::string LowerCase(std::string_view Text);
bool EqualIgnoringCase(std::string_view A, std::string_view B);
bool StartsWith(std::string_view Text, std::string_view Prefix);
std::string UpperFirst(std::string Text);
std::string LowerFirst(std::string Text);

/** The last segment behind Separator, or the whole text. */
std::string_view LastSegment(std::string_view Text, char Separator);

/** "/Game/Doors/BP_Door.BP_Door_C", "Class'/Script/Engine.Actor'" and "ref|/Game/X.X" as people call them: BP_Door, Actor, X. */
std::string ShortName(std::string_view ObjectPath);

/** A class as people call it: the classes that Blueprints generate, BP_Door_C and SKEL_BP_Door_C, are BP_Door. */
std::string ClassName(std::string_view Class);

/** Whether a name begins as those of assets do, with a short tag and an underscore: BP_Door, WBP_Menu, L_Harbor. */
bool IsPrefixedAssetName(std::string_view Name);

/** A code name as the words it is made of: "K2_SetActorLocation" is "Set Actor Location", "bNewHidden" is "New Hidden". */
std::string SpacedName(std::string_view CodeName);

/** A property-type id in words: "array|object.Actor" is "array of Actor references". */
std::string TypeInWords(std::string_view TypeId);

/** A default value as it reads in a sentence; empty when there is nothing worth saying. */
std::string LiteralInWords(std::string_view Value, std::string_view TypeId);

/** A number with its trailing zeros dropped; any other text as it is. */
std::string TrimmedNumber(std::string_view Text);

/** "a PointLight", "an Actor". */
std::string WithArticle(const std::string& Noun);

/** "a", "a and b", "a, b and c". */
std::string JoinWithAnd(const std::vector<std::string>& Items);

/** "1 variable", "3 variables", "no variables". */
std::string CountOf(std::size_t Count, const std::string& Noun);

/** Cut at MaxBytes, between two characters, with an ellipsis. */
std::string Shortened(std::string Text, std::size_t MaxBytes);

}
