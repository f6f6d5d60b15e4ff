#include "Assistant/Edits/Recipes.h"

#include <string>

namespace VexelService
{

namespace
{

/** A behavior's name, and what it means; "{slot}" is what the user said there. */
struct FRecipe
{
	std::string_view Pattern;
	std::string_view Meaning;
};

constexpr FRecipe Recipes[] = {
	{"[add|make|create|build|implement] [it] [into|as] {what} that|which opens|open on|when overlap|overlapped|touched and closes|close "
	 "[again] after {n} second",
		"on overlap open {what}, wait {n} seconds, close {what}"},
	{"[add|make|create|build|implement] [it] [into|as] {what} that|which opens|open on|when overlap|overlapped|touched and closes|close "
	 "[again] after [short] delay",
		"on overlap open {what}, wait, close {what}"},
	{"make|let|have {what} opens|open on|when overlap|overlapped|touched and closes|close [it] [again] after {n} second",
		"on overlap open {what}, wait {n} seconds, close {what}"},
	{"make|let|have {what} opens|open on|when overlap|overlapped|touched and closes|close [it] [again] after [short] delay",
		"on overlap open {what}, wait, close {what}"},
	{"[add|make|create|give|build|implement] [it] {health} that|which drops|decreases|goes|falls|shrinks [down] on|by|with damage and "
	 "destroys|destroy [it|actor|itself] at|on zero|0",
		"on any damage subtract damage from {health}, then if {health} is 0 or less destroy itself"},
	{"[add|make|create|give|build|implement] [it] {health} that|which drops|decreases|goes|falls|shrinks [down] on|by|with damage and "
	 "it|actor is destroyed|dies at|on zero|0",
		"on any damage subtract damage from {health}, then if {health} is 0 or less destroy itself"},
	{"[add|make|create|give|build|implement] [it] {health} that|which drops|decreases|goes|falls|shrinks [down] when [it] [is|takes|gets] "
	 "damaged|damage|hurt|hit and destroys|destroy [it|actor|itself] at|on|when zero|0 [reached]",
		"on any damage subtract damage from {health}, then if {health} is 0 or less destroy itself"},
	{"[add|make|create|build|implement] health system|bar", "on any damage subtract damage from Health, then if Health is 0 or less destroy itself"},
	{"[add|make|create|build|implement] health system|bar with {n} health|hp",
		"on any damage subtract damage from Health, then if Health is 0 or less destroy itself"},
	{"[add|make|create|build|implement|set|start] [looping|repeating] timer that|which|to {steps} every {n} second", "every {n} seconds {steps}"},
	{"[add|make|create|build|implement|set|start] [looping|repeating] timer of {n} second that|which|to {steps}", "every {n} seconds {steps}"},
	{"[on] [event] beginplay|begin [play] start|set|add|create|make [looping|repeating] timer of {n} second that|which|to {steps}",
		"every {n} seconds {steps}"},
	{"[on] [event] beginplay|begin [play] start|set|add|create|make [looping|repeating] timer that|which|to {steps} every {n} second",
		"every {n} seconds {steps}"},
	{"[add|make|create|build|implement|set|start] timer that|which every {n} second {steps}", "every {n} seconds {steps}"},
	{"bind|map|assign {key} [key] to {steps}", "when {key} is pressed {steps}"},
	{"use {key} [key] to {steps}", "when {key} is pressed {steps}"},
	{"[add|make|create|build|implement] spawner that|which|of spawns|spawn {class} every {n} second", "every {n} seconds spawn {class}"},
	{"[add|make|create|let|have] {key} key|press|button [press|pressed] that|which|to toggles|toggle {what}",
		"when {key} is pressed toggle {what}"},
	{"[add|make|create|let|have] key|keypress|press [of] {key} [that|which|to] toggles|toggle {what}",
		"when {key} is pressed toggle {what}"},
	{"make|let|have {key:1} [key] toggle {what}", "when {key} is pressed toggle {what}"},
	{"toggle {what} with {key} [key]", "when {key} is pressed toggle {what}"},
	{"jump with|on {key} [key]", "when {key} is pressed jump"},
	{"make|let|have {key:1} [key] [make|let] [it|character|player] jump", "when {key} is pressed jump"},
};

}

std::optional<FEditWords> ExpandRecipe(const FEditWords& Words)
{
	for (const FRecipe& Recipe : Recipes)
	{
		const std::optional<FCaptures> Captures = MatchWords(Recipe.Pattern, Words);
		if (!Captures)
		{
			continue;
		}
		FEditWords Meaning;
		for (FEditWord& Word : SplitEditWords(Recipe.Meaning).value_or(FEditWords()))
		{
			// Brackets are no part of a word, so a slot stands there by its bare name.
			const auto Slot = Captures->find(Word.Text);
			if (Slot == Captures->end())
			{
				Meaning.push_back(std::move(Word));
				continue;
			}
			Meaning.insert(Meaning.end(), Slot->second.begin(), Slot->second.end());
		}
		return Meaning;
	}
	return std::nullopt;
}

}
