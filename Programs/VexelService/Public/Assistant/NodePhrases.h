#pragma once

#include <string>
#include <string_view>

namespace VexelService
{

/** What sort of words an expression is. */
enum class EExpressionForm
{
	/** A name, a literal, or a phrase that stands as one: "the player's pawn". */
	Atom,
	/** Needs parentheses inside a larger one: "A + B". */
	Operation,
	/** A clause that holds or does not: "A is less than B". */
	Predicate,
};

/**
 * How calls of one function are worded. In a template "{Pin}" stands for the value of that input, "{self}" for the object that the
 * function is called on, "{self's}" for its possessive, "{Pin?hides:shows}" for one of two words by a Boolean input, and
 * "{Pin& words %}" for the words with the value in them, or for nothing where the input has none. "{it}" is "{self}" where a
 * clause has another subject.
 */
struct FActionPhrase
{
	std::string_view Function;
	std::string_view Template;
	/** The steps behind the call run later, while others go on. */
	bool bLatent = false;
};

struct FValuePhrase
{
	std::string_view Function;
	std::string_view Template;
	EExpressionForm Form = EExpressionForm::Atom;
	/** The output that the phrase words. */
	std::string_view Output = "ReturnValue";
};

/** An operator whose operands are all the node's data inputs in order. */
struct FOperatorPhrase
{
	/** The operation's name, alone or before the first "_" of a function's name. */
	std::string_view Operation;
	/** What stands between two operands. */
	std::string_view Between;
	EExpressionForm Form = EExpressionForm::Operation;
};

/** How an event is told. */
struct FEventPhrase
{
	std::string_view Event;
	/** "%" stands for the component of a component's event. */
	std::string_view When;
	/** Further words by which people ask for it. */
	std::string_view Keywords;
};

/** What an output of an engine event is called. */
struct FParameterPhrase
{
	std::string_view Pin;
	std::string_view Phrase;
};

/** Each returns null when its table has no row. */
const FActionPhrase* FindActionPhrase(std::string_view Function);
const FValuePhrase* FindValuePhrase(std::string_view Function);
const FOperatorPhrase* FindOperatorPhrase(std::string_view Operation);
const FEventPhrase* FindEventPhrase(std::string_view Event);
const FParameterPhrase* FindParameterPhrase(std::string_view Pin);

}
