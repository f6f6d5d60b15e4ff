#include "Assistant/Edits/ValuePlanner.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/NameMatch.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxVariableWords = 4;

struct FNumberWord
{
	std::string_view Words;
	std::string_view Number;
};

constexpr FNumberWord NumberWords[] = {
	{"zero|none|nothing", "0"},
	{"one|a|an|once", "1"},
	{"two|twice|couple", "2"},
	{"three", "3"},
	{"four", "4"},
	{"five", "5"},
	{"six", "6"},
	{"seven", "7"},
	{"eight", "8"},
	{"nine", "9"},
	{"ten", "10"},
	{"twelve", "12"},
	{"fifteen", "15"},
	{"twenty", "20"},
	{"thirty", "30"},
	{"sixty", "60"},
	{"hundred", "100"},
	{"half", "0.5"},
};

constexpr FNumberWord BooleanWords[] = {
	{"true|yes|on|enabled", "true"},
	{"false|no|off|disabled", "false"},
};

/** A value that a node gives by itself. */
struct FValueWording
{
	std::string_view Pattern;
	std::string_view NodeType;
	std::string_view Output;
	std::string_view Type;
	/** The slot and the input that takes it. */
	FActionPin First = {};
	FActionPin Second = {};
};

constexpr FValueWording ValueWordings[] = {
	{"[its|my|own|actor|actor's|self] [own|actor|current] location|position", "call.Actor.K2_GetActorLocation", "ReturnValue",
		"struct.Vector"},
	{"[its|my|own|actor|actor's|self] [own|actor|current] place|spot", "call.Actor.K2_GetActorLocation", "ReturnValue", "struct.Vector"},
	{"location|position of {actor}", "call.Actor.K2_GetActorLocation", "ReturnValue", "struct.Vector",
		{"actor", "self", EValueKind::Object}},
	{"player|player's location|position", "call.Actor.K2_GetActorLocation", "ReturnValue", "struct.Vector",
		{"player", "self", EValueKind::Object}},
	{"[its|my|own|actor|actor's] [actor|current] rotation", "call.Actor.K2_GetActorRotation", "ReturnValue", "struct.Rotator"},
	{"rotation of {actor}", "call.Actor.K2_GetActorRotation", "ReturnValue", "struct.Rotator", {"actor", "self", EValueKind::Object}},
	{"[its|my|own|actor|actor's] forward vector|direction", "call.Actor.GetActorForwardVector", "ReturnValue", "struct.Vector"},
	{"player|player's pawn|character", PlayerPawnType, "ReturnValue", "object.Pawn"},
	{"player", PlayerPawnType, "ReturnValue", "object.Pawn"},
	{"player controller", "call.GameplayStatics.GetPlayerController", "ReturnValue", "object.PlayerController"},
	{"random number|value|float between|from {low} and|to {high}", "call.KismetMathLibrary.RandomFloatInRange", "ReturnValue", "real",
		{"low", "Min", EValueKind::Number}, {"high", "Max", EValueKind::Number}},
	{"random integer|int between|from {low} and|to {high}", "call.KismetMathLibrary.RandomIntegerInRange", "ReturnValue", "int",
		{"low", "Min", EValueKind::Integer}, {"high", "Max", EValueKind::Integer}},
	{"[game] time [in] [seconds]", "call.KismetSystemLibrary.GetGameTimeInSeconds", "ReturnValue", "real"},
	{"distance to|from {actor}", "call.Actor.GetDistanceTo", "ReturnValue", "real", {"actor", "OtherActor", EValueKind::Object}},
	{"[its] name", "call.KismetSystemLibrary.GetObjectName", "ReturnValue", "string"},
	{"name of {actor}", "call.KismetSystemLibrary.GetDisplayName", "ReturnValue", "string", {"actor", "Object", EValueKind::Object}},
	{"current level", "call.GameplayStatics.GetCurrentLevelName", "ReturnValue", "string"},
};

/** Operations between two values, the weaker first. */
struct FOperation
{
	std::string_view Words;
	std::string_view Type;
};

constexpr FOperation Operations[] = {
	{"+|plus", "call.op.Add"},
	{"-|minus", "call.op.Subtract"},
	{"*|times", "call.op.Multiply"},
	{"/", "call.op.Divide"},
};

std::optional<std::string> FindIn(std::string_view Word, std::span<const FNumberWord> Rows)
{
	const auto Found = std::find_if(Rows.begin(), Rows.end(), [Word](const FNumberWord& Row)
		{ return IsOneOf(Word, Row.Words); });
	return Found == Rows.end() ? std::nullopt : std::optional<std::string>(Found->Number);
}

// "X=0, Y=0 Z=100" and "0,0,100" as "0, 0, 100"; nothing where there are not three numbers.
std::optional<std::string> ReadTriple(const std::string& Said)
{
	std::vector<std::string> Numbers(1);
	for (const char Character : Said)
	{
		const bool bDigit = std::string_view("0123456789.-").find(Character) != std::string_view::npos;
		if (bDigit)
		{
			Numbers.back() += Character;
		}
		else if (!Numbers.back().empty())
		{
			Numbers.emplace_back();
		}
		if (!bDigit && std::string_view(" ,xyzXYZ=()+").find(Character) == std::string_view::npos)
		{
			return std::nullopt;
		}
	}
	std::erase(Numbers, std::string());
	const bool bThree = Numbers.size() == 3 &&
		std::all_of(Numbers.begin(), Numbers.end(), [](const std::string& Number)
			{ return ReadNumber(Number).has_value(); });
	return bThree ? std::optional<std::string>(Numbers[0] + ", " + Numbers[1] + ", " + Numbers[2]) : std::nullopt;
}

}

bool IsObjectType(std::string_view Type) { return StartsWith(Type, "object.") || Type == "object"; }

std::optional<std::string> ReadNumber(std::string_view Word)
{
	const std::string_view Digits = StartsWith(Word, "-") || StartsWith(Word, "+") ? Word.substr(1) : Word;
	const bool bNumber = !Digits.empty() && Digits.size() < 20 && Digits.find_first_not_of("0123456789.") == std::string_view::npos &&
		std::count(Digits.begin(), Digits.end(), '.') <= 1 && Digits != ".";
	return bNumber ? std::optional<std::string>(Word.front() == '+' ? Digits : Word) : FindIn(Word, NumberWords);
}

bool FPlanValue::IsComponent() const
{
	return IsObjectType(Type) && Type.size() > 9 && EqualIgnoringCase(std::string_view(Type).substr(Type.size() - 9), "Component");
}

FValuePlanner::FValuePlanner(FProjectEditor& InEditor, FEditPlan& InPlan)
	: Editor(InEditor)
	, Plan(InPlan)
{
}

void FValuePlanner::AddProblem(std::string Problem)
{
	if (std::find(Problems.begin(), Problems.end(), Problem) == Problems.end())
	{
		Problems.push_back(std::move(Problem));
	}
}

FPlanIndex FValuePlanner::AddNode(const FValueScope& Scope, std::string_view Type)
{
	return Plan.AddNode({.Graph = Scope.Graph, .Type = std::string(Type)});
}

void FValuePlanner::Fill(FPlanIndex Node, std::string_view Pin, const FPlanValue& Value)
{
	if (Value.Pin)
	{
		Plan.AddLink(Value.Pin->Node, Value.Pin->Pin, Node, Pin);
	}
	else if (!Value.Literal.empty())
	{
		Plan.Nodes[Node].PinValues.emplace_back(Pin, Value.Literal);
	}
}

FPlanValue FValuePlanner::Read(const FEditWords& Words, EValueKind Kind, const FValueScope& Scope)
{
	const std::string Said = JoinWords(Words);
	switch (Kind)
	{
		case EValueKind::Name:
			return {.Literal = Said, .Pin = {}};
		case EValueKind::Class:
			return {.Literal = FindClass(Said), .Pin = {}};
		case EValueKind::Asset:
			return {.Literal = FindAsset(Said), .Pin = {}};
		case EValueKind::Object:
			return ReadObject(Said, Scope);
		default:
			break;
	}
	if (FPlanValue Literal = ReadLiteral(Words, Kind); !Literal.IsEmpty())
	{
		return Literal;
	}
	if (Kind == EValueKind::Text)
	{
		return ReadText(Words, Scope);
	}
	if (FPlanValue Named = ReadNamed(Said, Kind, Scope); !Named.IsEmpty())
	{
		return Named;
	}
	if (FPlanValue Phrase = ReadPhrase(Words, Scope); !Phrase.IsEmpty())
	{
		const bool bPlace = Kind == EValueKind::Vector && IsObjectType(Phrase.Type);
		return bPlace ? ReadPhrase(SplitEditWords("location of " + Said).value_or(FEditWords()), Scope) : Phrase;
	}
	if (FPlanValue Operation = ReadOperation(Words, Kind, Scope); !Operation.IsEmpty())
	{
		return Operation;
	}
	AddProblem("I do not know what " + Quoted(Shortened(Said, 100)) + " is: it is no value, and the Blueprint has nothing of that name.");
	return {};
}

FPlanValue FValuePlanner::ReadLiteral(const FEditWords& Words, EValueKind Kind)
{
	const std::string Said = JoinWords(Words);
	const bool bQuoted = Words.size() == 1 && Words.front().bQuoted;
	std::optional<std::string> Literal;
	switch (Kind)
	{
		case EValueKind::Text:
			return {.Literal = bQuoted ? Said : std::string(), .Pin = {}, .Type = "string"};
		case EValueKind::Number:
		case EValueKind::Integer:
			Literal = ReadNumber(Said);
			return {.Literal = Literal.value_or(""), .Pin = {}, .Type = Kind == EValueKind::Integer ? "int" : "real"};
		case EValueKind::Boolean:
			return {.Literal = FindIn(Said, BooleanWords).value_or(""), .Pin = {}, .Type = "bool"};
		case EValueKind::Vector:
			return {.Literal = ReadTriple(Said).value_or(""), .Pin = {}, .Type = "struct.Vector"};
		case EValueKind::Rotator:
			// One angle is a turn about the upright axis, as for a door.
			Literal = ReadNumber(Said);
			return {.Literal = Literal ? "0, " + *Literal + ", 0" : ReadTriple(Said).value_or(""), .Pin = {}, .Type = "struct.Rotator"};
		default:
			break;
	}
	// What the value is for is not known: its own look tells.
	if (bQuoted)
	{
		return {.Literal = Said, .Pin = {}, .Type = "string"};
	}
	for (const EValueKind Guess : {EValueKind::Number, EValueKind::Boolean, EValueKind::Vector})
	{
		FPlanValue Value = ReadLiteral(Words, Guess);
		if (!Value.IsEmpty())
		{
			return Value;
		}
	}
	return {};
}

FPlanValue FValuePlanner::ReadText(const FEditWords& Words, const FValueScope& Scope)
{
	const std::string Said = JoinWords(Words);
	FPlanValue Value = ReadNamed(Said, EValueKind::Text, Scope);
	Value = Value.IsEmpty() ? ReadPhrase(Words, Scope) : Value;
	if (!Value.IsEmpty())
	{
		return Value;
	}
	for (std::size_t At = Words.size(); At-- > 1;)
	{
		const bool bJoins =
			At + 1 < Words.size() && IsWord(Words[At], "+|plus|and|&|followed") && (Words[At - 1].bQuoted || Words[At + 1].bQuoted);
		if (bJoins && ++Depth < MaxValueDepth)
		{
			const FPlanValue Left = Read(PartOf(Words, 0, At), EValueKind::Text, Scope);
			const FPlanValue Right = Read(PartOf(Words, At + 1, Words.size()), EValueKind::Text, Scope);
			const FPlanIndex Join = AddNode(Scope, "call.KismetStringLibrary.Concat_StrStr");
			Fill(Join, "A", Left);
			Fill(Join, "B", Right);
			--Depth;
			return {.Literal = {}, .Pin = FPlanPin{Join, "ReturnValue", "string"}, .Type = "string"};
		}
	}
	return {.Literal = Said, .Pin = {}, .Type = "string"};
}

FPlanValue FValuePlanner::ReadNamed(const std::string& Said, EValueKind Kind, const FValueScope& Scope)
{
	for (const FOutputName& Row : GetOutputNames())
	{
		const auto Output = Scope.Outputs.find(Row.Pin);
		if (Output != Scope.Outputs.end() && (IsOneOf(Said, Row.Words) || SameName(Said, Row.Pin)))
		{
			return {.Literal = {}, .Pin = Output->second, .Type = Output->second.Type};
		}
	}
	const auto Output =
		std::find_if(Scope.Outputs.begin(), Scope.Outputs.end(), [&Said](const auto& Named)
			{ return SameName(Said, Named.first); });
	if (Output != Scope.Outputs.end())
	{
		return {.Literal = {}, .Pin = Output->second, .Type = Output->second.Type};
	}
	const std::optional<FBlueprintVariable> Variable = FindVariable(Said);
	// A text may be anything: only the very name of a variable means the variable.
	const bool bSaid = Variable && (Kind != EValueKind::Text || SameName(Said, Variable->Id) || SameName("b" + Said, Variable->Id));
	return bSaid ? ReadVariable(*Variable, Scope) : FPlanValue();
}

FPlanValue FValuePlanner::ReadPhrase(const FEditWords& Words, const FValueScope& Scope)
{
	for (const FValueWording& Wording : ValueWordings)
	{
		const std::optional<FCaptures> Captures = MatchWords(Wording.Pattern, Words);
		if (!Captures || ++Depth >= MaxValueDepth)
		{
			continue;
		}
		const FPlanIndex Node = AddNode(Scope, Wording.NodeType);
		for (const FActionPin& Input : {Wording.First, Wording.Second})
		{
			const bool bPlayer = Input.Slot == "player";
			if (bPlayer || Captures->contains(Input.Slot))
			{
				Fill(Node, Input.Pin,
					Read(bPlayer ? FEditWords{{.Text = "player"}} : Captures->find(Input.Slot)->second, Input.Kind, Scope));
			}
		}
		--Depth;
		return {.Literal = {},
			.Pin = FPlanPin{Node, std::string(Wording.Output), std::string(Wording.Type)},
			.Type = std::string(Wording.Type)};
	}
	return {};
}

FPlanValue FValuePlanner::ReadOperation(const FEditWords& Words, EValueKind Kind, const FValueScope& Scope)
{
	for (const FOperation& Operation : Operations)
	{
		for (std::size_t At = Words.size(); At-- > 1;)
		{
			if (At + 1 >= Words.size() || !IsWord(Words[At], Operation.Words) || Depth >= MaxValueDepth)
			{
				continue;
			}
			++Depth;
			const FPlanValue Left = Read(PartOf(Words, 0, At), Kind, Scope);
			const FPlanValue Right = Read(PartOf(Words, At + 1, Words.size()), Kind, Scope);
			--Depth;
			const FPlanIndex Node = AddNode(Scope, Operation.Type);
			Fill(Node, "A", Left);
			Fill(Node, "B", Right);
			const std::string Type = Left.Type.empty() ? Right.Type : Left.Type;
			return {.Literal = {}, .Pin = FPlanPin{Node, "ReturnValue", Type}, .Type = Type};
		}
	}
	return {};
}

std::optional<FBlueprintVariable> FValuePlanner::FindVariable(std::string_view Said)
{
	if (const FBlueprintVariable* const Variable = FindMemberVariable(Model(), Said))
	{
		return *Variable;
	}
	const auto New = std::find_if(NewVariables.begin(), NewVariables.end(),
		[Said](const FBlueprintVariable& Variable)
		{ return SameName(Said, Variable.Id) || SameName("b" + std::string(Said), Variable.Id); });
	return New == NewVariables.end() ? std::nullopt : std::optional<FBlueprintVariable>(*New);
}

std::optional<FBlueprintVariable> FValuePlanner::WantVariable(std::string_view Said, std::string_view Type, std::string_view Default)
{
	if (std::optional<FBlueprintVariable> Found = FindVariable(Said))
	{
		return Found;
	}
	std::string Name = ToMemberName(Said);
	if (Name.empty() || SplitWords(Said, MaxVariableWords).size() > MaxVariableWords)
	{
		AddProblem("The Blueprint has no variable called " + Quoted(Shortened(std::string(Said), 100)) + ".");
		return std::nullopt;
	}
	Name = UniqueMemberName(Model(), Type == "bool" ? "b" + Name : Name);
	FBlueprintVariable Variable{.Id = Name, .Type = std::string(Type), .Value = std::string(Default), .Category = {}, .Scope = "member"};
	Plan.Variables.push_back({{.Name = Name, .Type = Variable.Type}, Variable.Value});
	NewVariables.push_back(Variable);
	return Variable;
}

FPlanValue FValuePlanner::ReadVariable(const FBlueprintVariable& Variable, const FValueScope& Scope)
{
	const FPlanIndex Node = AddNode(Scope, "var.get." + Variable.Id);
	return {.Literal = {}, .Pin = FPlanPin{Node, Variable.Id, Variable.Type}, .Type = Variable.Type};
}

}
