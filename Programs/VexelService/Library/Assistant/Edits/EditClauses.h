#pragma once

#include "Assistant/Edits/EditWords.h"
#include "Assistant/Edits/TypeWords.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

/** What a part of a request tells about the thing that it is about. */
enum class EClause
{
	/** "called Health" */
	Name,
	/** "of type float" */
	Type,
	/** "with default 100" */
	Default,
	/** "in the category Stats" */
	Category,
	/** "with an input Amount of type float" */
	Inputs,
	/** "that returns a float NewHealth" */
	Outputs,
	/** "of the function Heal" */
	Owner,
	/** "editable" */
	Editable,
};

struct FClause
{
	EClause Kind;
	/** What follows the words that lead to it. */
	FEditWords Words;
};

/** A request taken apart. */
struct FClauses
{
	/** What stands before the first clause. */
	FEditWords Head;
	std::vector<FClause> Rest;

	/** The first clause of a kind; null when there is none. */
	const FEditWords* Find(EClause Kind) const;
};

/** Takes words apart at those that lead to clauses of some kinds; words of other kinds stay where they are. */
FClauses SplitClauses(FEditWordSpan Words, std::initializer_list<EClause> Kinds);

/** The words without "please", "can you" and the like before them, and thanks behind them. */
FEditWords WithoutPoliteness(const FEditWords& Words);

/** The words without marks and words like "the" and "and" at both ends. */
FEditWords Trimmed(FEditWordSpan Words);

/**
 * The name that words give to something new: one word or one text in quotes as it is, a few capitalised words joined. Nothing when
 * they are no name.
 */
std::optional<std::string> ReadNewName(FEditWordSpan Words);

/** Several such names: "Health, MaxHealth and Armor". Nothing when one of them is none. */
std::optional<std::vector<std::string>> ReadNewNames(FEditWordSpan Words);

/** What a request tells about a variable, an input or an output. */
struct FSaidVariable
{
	std::vector<std::string> Names;
	std::optional<FSaidType> Type;
	/** Empty where none was said. */
	FEditWords Default = {};
	std::string Category = {};
	bool bLocal = false;
	bool bEditable = false;
	/** The word "variable" or the like was said. */
	bool bNoun = false;
};

/** Reads "a float variable Health with default 100 in the category Stats"; nothing when the words are no description of a variable. */
std::optional<FSaidVariable> ReadSaidVariable(FEditWordSpan Words);

/** The same of a request that was taken apart; clauses that say nothing about a variable are passed over. */
std::optional<FSaidVariable> ReadSaidVariable(const FClauses& Clauses);

/** Several of them: "Amount of type float and a boolean bForce". */
std::optional<std::vector<FSaidVariable>> ReadSaidVariables(FEditWordSpan Words);

}
