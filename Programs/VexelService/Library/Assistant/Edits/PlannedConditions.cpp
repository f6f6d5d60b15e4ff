#include "Assistant/Edits/ValuePlanner.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

FPlanValue FValuePlanner::Negated(const FPlanValue& Value, const FValueScope& Scope)
{
	const FPlanIndex Node = AddNode(Scope, "call.KismetMathLibrary.Not_PreBool");
	Fill(Node, "A", Value);
	return {.Literal = {}, .Pin = FPlanPin{Node, "ReturnValue", "bool"}, .Type = "bool"};
}

FPlanValue FValuePlanner::ReadCondition(const FEditWords& Words, const FValueScope& Scope)
{
	for (const auto& [Word, Type] :
		{std::pair("or", "call.KismetMathLibrary.BooleanOR"), std::pair("and", "call.KismetMathLibrary.BooleanAND")})
	{
		for (std::size_t At = 1; At + 1 < Words.size(); ++At)
		{
			const bool bRange = At > 0 && IsWord(Words[At - 1], "than|equal") && IsWord(Words[At], "or");
			const bool bOrLess = At + 1 < Words.size() && IsWord(Words[At + 1], "equal|less|more|greater|below|above|lower|higher");
			if (!IsWord(Words[At], Word) || bRange || bOrLess || ++Depth >= MaxValueDepth)
			{
				continue;
			}
			const FPlanValue Left = ReadCondition(PartOf(Words, 0, At), Scope);
			const FPlanValue Right = ReadCondition(PartOf(Words, At + 1, Words.size()), Scope);
			--Depth;
			const FPlanIndex Node = AddNode(Scope, Type);
			Fill(Node, "A", Left);
			Fill(Node, "B", Right);
			return {.Literal = {}, .Pin = FPlanPin{Node, "ReturnValue", "bool"}, .Type = "bool"};
		}
	}
	const FComparison Comparison = ReadComparison(Words);
	if (!Comparison.Operator.empty())
	{
		return ReadSides(Comparison, Scope);
	}
	const FPlanValue Truth = ReadTruth(Comparison.Left, Scope);
	if (Truth.IsEmpty())
	{
		AddProblem("I do not know what " + Quoted(Shortened(JoinWords(Words), 100)) +
			" would be: name a Boolean variable, or compare two values.");
		return {};
	}
	return Comparison.bNegated ? Negated(Truth, Scope) : Truth;
}

FPlanValue FValuePlanner::ReadTruth(const FEditWords& Words, const FValueScope& Scope)
{
	const std::string Said = JoinWords(Words);
	const std::optional<FBlueprintVariable> Variable = FindVariable(Said);
	return Variable && Variable->Type == "bool" ? ReadVariable(*Variable, Scope) : FPlanValue();
}

FPlanValue FValuePlanner::ReadSides(const FComparison& Comparison, const FValueScope& Scope)
{
	const bool bEqual = Comparison.Operator == "call.op.EqualEqual";
	if (bEqual || Comparison.Operator == "call.op.NotEqual")
	{
		// "The door is locked" is about the variable Locked, "it is open" about IsOpen.
		FEditWords Predicate = Comparison.Right;
		FPlanValue Truth = ReadTruth(Predicate, Scope);
		Predicate.insert(Predicate.begin(), FEditWord{.Text = "is"});
		Truth = Truth.IsEmpty() ? ReadTruth(Predicate, Scope) : Truth;
		const bool bOfSelf = MeansSelf(Model(), JoinWords(Comparison.Left)) && !FindVariable(JoinWords(Comparison.Left));
		if (!Truth.IsEmpty() && bOfSelf)
		{
			return bEqual ? Truth : Negated(Truth, Scope);
		}
	}
	const FEditWords Right =
		Comparison.ImpliedRight.empty() ? Comparison.Right : FEditWords{{.Text = std::string(Comparison.ImpliedRight)}};
	FPlanValue Left = Read(Comparison.Left, EValueKind::None, Scope);
	FPlanValue Other = IsObjectType(Left.Type) ? ReadObject(JoinWords(Right), Scope) : Read(Right, EValueKind::None, Scope);
	if (IsObjectType(Left.Type) && Other.IsEmpty())
	{
		Other = {.Literal = {}, .Pin = FPlanPin{AddNode(Scope, "var.self"), "self", "object"}, .Type = "object"};
	}
	const FPlanIndex Node = AddNode(Scope, Comparison.Operator);
	Fill(Node, "A", Left);
	Fill(Node, "B", Other);
	return {.Literal = {}, .Pin = FPlanPin{Node, "ReturnValue", "bool"}, .Type = "bool"};
}

FPlanValue FValuePlanner::IsPlayer(const FPlanPin& Actor, const FValueScope& Scope)
{
	const FPlanIndex Player = AddNode(Scope, PlayerPawnType);
	const FPlanIndex Equal = AddNode(Scope, "call.op.EqualEqual");
	Plan.AddLink(Actor.Node, Actor.Pin, Equal, "A");
	Plan.AddLink(Player, "ReturnValue", Equal, "B");
	return {.Literal = {}, .Pin = FPlanPin{Equal, "ReturnValue", "bool"}, .Type = "bool"};
}

}
