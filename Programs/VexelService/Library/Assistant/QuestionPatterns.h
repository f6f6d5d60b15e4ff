#pragma once

#include "Assistant/Question.h"

#include <string_view>
#include <vector>

namespace VexelService
{

/**
 * A way in which people ask: words and slots. "a|b" is either word; {bp} takes one word that can be the Blueprint, {bp's} its
 * possessive, {asset} one that names an asset for certain; {subject} takes one or more words, as few as possible; {list} takes a word
 * for a part of a Blueprint, {assets} one for a kind of asset, {file} a file's name. The first pattern that covers the whole message
 * decides. A Blueprint that stands elsewhere, as within the subject, is taken out of it.
 */
struct FPattern
{
	EQuestionKind Kind;
	std::vector<std::string_view> Slots;
};

/** All patterns, the most telling ones first. */
const std::vector<FPattern>& GetPatterns();

/** The question of a word for parts of a Blueprint, such as "functions"; Unknown for any other. */
EQuestionKind ListKind(std::string_view Word);

/** The class of a word for a kind of asset: "levels" are of World. Empty for "assets", nothing for any other word. */
const char* FindAssetClass(std::string_view Word);

/** Words of questions, for those that are mistyped. */
std::string_view GetQuestionWords();

}
