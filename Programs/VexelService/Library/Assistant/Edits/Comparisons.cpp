#include "Assistant/Edits/FlowRequest.h"

namespace VexelService
{

namespace
{

struct FComparisonWording
{
	std::string_view Pattern;
	/** Empty: the left side is true or, with bNegated, false. */
	std::string_view Operator = {};
	std::string_view Right = {};
	bool bNegated = false;
};

constexpr FComparisonWording ComparisonWordings[] = {
	{"{left} is greater|more|bigger|larger|higher than or equal to {right}", "call.op.GreaterEqual"},
	{"{left} is less|lower|smaller than or equal to {right}", "call.op.LessEqual"},
	{"{left} is at least {right}", "call.op.GreaterEqual"},
	{"{left} is at most {right}", "call.op.LessEqual"},
	{"{left} is {right} or more|greater|higher|above", "call.op.GreaterEqual"},
	{"{left} is {right} or less|lower|below|fewer", "call.op.LessEqual"},
	{"{left} is [greater|more|bigger|larger|higher] than {right}", "call.op.Greater"},
	{"{left} is less|lower|smaller than {right}", "call.op.Less"},
	{"{left} is above|over {right}", "call.op.Greater"},
	{"{left} is below|under {right}", "call.op.Less"},
	{"{left} exceeds|exceed {right}", "call.op.Greater"},
	{"{left} reaches|hits|reach|hit|drops|falls|sinks|gets|is|goes|fall|drop [down] [to] zero", "call.op.LessEqual", "0"},
	{"{left} reaches|hits|reach|hit|drops|falls|sinks|gets|goes|fall|drop [down] [to] 0", "call.op.LessEqual", "0"},
	{"{left} is 0", "call.op.LessEqual", "0"},
	{"{left} runs|run out", "call.op.LessEqual", "0"},
	{"{left} is used up|gone|empty|depleted", "call.op.LessEqual", "0"},
	{"{left} drops|falls|sinks|gets|goes|fall|drop below|under {right}", "call.op.Less"},
	{"{left} rises|climbs|gets|goes above|over {right}", "call.op.Greater"},
	{"{left} drops|falls|sinks|goes|fall|drop [down] to {right}", "call.op.LessEqual"},
	{"{left} reaches|reach {right}", "call.op.GreaterEqual"},
	{"{left} <= {right}", "call.op.LessEqual"},
	{"{left} >= {right}", "call.op.GreaterEqual"},
	{"{left} < {right}", "call.op.Less"},
	{"{left} > {right}", "call.op.Greater"},
	{"{left} != {right}", "call.op.NotEqual"},
	{"{left} ==|= {right}", "call.op.EqualEqual"},
	{"not {left}", {}, {}, true},
	{"{left} is|becomes|gets not true|set", {}, {}, true},
	{"{left} is|becomes|gets|are false|off|unset", {}, {}, true},
	{"{left} is|becomes|gets|are true|on|set", {}},
	{"{left} does not equal {right}", "call.op.NotEqual"},
	{"{left} is not equal to {right}", "call.op.NotEqual"},
	{"{left} equals|equal [to] {right}", "call.op.EqualEqual"},
	{"{left} is equal to {right}", "call.op.EqualEqual"},
	{"{left} is exactly {right}", "call.op.EqualEqual"},
	{"{left} is not {right}", "call.op.NotEqual"},
	{"{left} isn't|aren't {right}", "call.op.NotEqual"},
	{"{left} is|becomes|are {right}", "call.op.EqualEqual"},
};

}

FComparison ReadComparison(const FEditWords& Words)
{
	for (const FComparisonWording& Wording : ComparisonWordings)
	{
		const std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Words);
		if (!Captures)
		{
			continue;
		}
		const auto Right = Captures->find("right");
		return {.Left = Captures->at("left"),
			.Right = Right == Captures->end() ? FEditWords() : Right->second,
			.Operator = Wording.Operator,
			.ImpliedRight = Wording.Right,
			.bNegated = Wording.bNegated};
	}
	return {.Left = Words};
}

}
