#include "MemberFamilies.h"

#include "MemberReport.h"
#include "MemberLookup.h"
#include "MemberSentence.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <memory>

namespace VexelService
{

namespace
{

constexpr std::string_view AddVerbs = "add|create|make|declare|define|introduce|insert|new|need|want|append";

/** Adds variables to a Blueprint or to one of its functions. */
class FAddVariables final : public IEdit
{
public:
	FAddVariables(std::vector<FSaidVariable> InSaid, std::string InFunction)
		: Said(std::move(InSaid))
		, Function(std::move(InFunction))
	{
	}

	void Run(FEditSession& Session) const override
	{
		FEditTarget Target;
		if (!Function.empty())
		{
			const FBlueprintModel& Model = Session.Editor.Blueprint();
			const TMemberMatch<FBlueprintGraph> Match = FindFunction(Model, Function);
			if (!Match.Found)
			{
				Session.Say(TellMissing(Model, "function", Function, Match.Nearest));
				return;
			}
			Target.Graph = Match.Found->Id;
		}
		bool bChanged = false;
		for (const FSaidVariable& Variable : Said)
		{
			for (const std::string& Name : Variable.Names)
			{
				bChanged |= !Session.IsOver() && Add(Session, Target, Name, Variable);
			}
		}
		if (bChanged && !Session.IsOver())
		{
			TellCompile(Session);
		}
	}

private:
	const char* Scope() const { return Function.empty() ? "member" : "local"; }

	const FBlueprintVariable* Find(FEditSession& Session, const FEditTarget& Target, const std::string& Name) const
	{
		return FindVariableAt(Session.Editor.Blueprint(), Target, Scope(), Name);
	}

	/** Whether the variable is there now. */
	bool Add(FEditSession& Session, const FEditTarget& Target, const std::string& Name, const FSaidVariable& Variable) const
	{
		const std::string What = "add the variable " + Bold(Name);
		if (const FBlueprintVariable* const There = Find(Session, Target, Name))
		{
			Session.Say(Bold(Session.Editor.Blueprint().Name) + " already has a variable " + Bold(There->Id) + " (" +
				DescribeVariable(*There) + "). I changed nothing.\n");
			return false;
		}
		std::vector<std::string> Errors;
		for (const std::string& TypeId : ResolveType(Session, *Variable.Type))
		{
			const FWireValue Default = Variable.Default.empty() ? FWireValue() : ResolveValue(Session, Variable.Default, TypeId);
			if (!Default.Problem.empty())
			{
				Session.Say("I did not " + What + ": " + Default.Problem + "\n");
				return false;
			}
			const FEditOutcome Added =
				Session.Editor.AddVariable({.Name = Name, .Type = TypeId, .Scope = Scope(), .Category = Variable.Category}, Target);
			if (Session.IsOver())
			{
				return false;
			}
			if (!Added.IsComplete())
			{
				// Of several guesses at a type the first is the likeliest.
				Errors = Errors.empty() ? Added.Errors : Errors;
				continue;
			}
			return !Default.Json || SetDefault(Session, Target, Name, *Default.Json) ? TellAdded(Session, Target, Name) : false;
		}
		TellRefusal(Session, What, Errors);
		return false;
	}

	/** A variable without the default that was asked for is half of what was asked: it goes again. */
	bool SetDefault(FEditSession& Session, const FEditTarget& Target, const std::string& Name, const FJson& Value) const
	{
		const FEditOutcome Set = Session.Editor.SetVariableDefault(Name, Value, Scope(), Target);
		if (Set.IsComplete() || Session.IsOver())
		{
			return !Session.IsOver();
		}
		const FEditOutcome Removed = Session.Editor.RemoveVariable(Name, Scope(), Target);
		if (Removed.IsComplete())
		{
			TellRefusal(Session, "give " + Bold(Name) + " that default", Set.Errors);
			return false;
		}
		Session.Say("I added the variable " + Bold(Name) + ", but could neither give it the default nor remove it again. The editor says: " +
			Code(Set.Errors.empty() ? "" : Set.Errors.front()) + "\n");
		return false;
	}

	bool TellAdded(FEditSession& Session, const FEditTarget& Target, const std::string& Name) const
	{
		const FBlueprintVariable* const Variable = Find(Session, Target, Name);
		if (!Variable)
		{
			Session.Say("The editor took the variable " + Bold(Name) + ", but does not show it.\n");
			return false;
		}
		const std::string Where = Function.empty() ? Bold(Session.Editor.Blueprint().Name) : "the function " + Bold(Target.Graph);
		Session.Say("I added the " + std::string(Function.empty() ? "" : "local ") + "variable " + Bold(Variable->Id) + " to " + Where + ": " +
			DescribeVariable(*Variable) + ".\n");
		return true;
	}

	const std::vector<FSaidVariable> Said;
	const std::string Function;
};

std::string TellUnderstood(const FSaidVariable& Said)
{
	std::string Text = "I understood that you want to add a variable";
	Text += Said.Names.empty() ? ", but not its name" : " " + Bold(Said.Names.front());
	Text += Said.Type ? "" : Said.Names.empty() ? " and its type"
												: ", but not its type";
	return Text + ". Say for example: add a float variable Health with default 100.\n";
}

}

std::optional<FEditRequest> ReadAddVariable(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	if (!Read || Read->Words.size() < 2 || !IsWord(Read->Words.front(), AddVerbs))
	{
		return std::nullopt;
	}
	const FEditWordSpan Words = FEditWordSpan(Read->Words).subspan(1);
	if (IsWord(Read->Words.front(), "make") && !IsWord(Words.front(), "a|an|another|new|two|three|some"))
	{
		// "Make Health an integer" is about what is there.
		return std::nullopt;
	}
	const FClauses Clauses =
		SplitClauses(Words, {EClause::Name, EClause::Type, EClause::Default, EClause::Category, EClause::Editable, EClause::Owner});
	FEditRequest Request{.Blueprint = Read->Blueprint};
	std::optional<std::vector<FSaidVariable>> Said;
	if (const std::optional<FSaidVariable> One = ReadSaidVariable(Clauses))
	{
		Said = std::vector<FSaidVariable>{*One};
	}
	else if (!Clauses.Find(EClause::Owner))
	{
		Said = ReadSaidVariables(Words);
	}
	const bool bVariable = Said && std::any_of(Said->begin(), Said->end(), [](const FSaidVariable& Variable)
									   { return Variable.bNoun || Variable.Type; });
	if (!bVariable)
	{
		return std::nullopt;
	}
	const auto Unclear = std::find_if(Said->begin(), Said->end(), [](const FSaidVariable& Variable)
		{ return Variable.Names.empty() || !Variable.Type; });
	if (Unclear != Said->end())
	{
		Request.Question = TellUnderstood(*Unclear);
		return Request;
	}
	const FEditWords* const Owner = Clauses.Find(EClause::Owner);
	const bool bLocal = Said->front().bLocal;
	if (bLocal && !Owner)
	{
		Request.Question = "I understood that you want to add the local variable " + Bold(Said->front().Names.front()) +
			", but not to which function. Add \"to the function ...\".\n";
		return Request;
	}
	Request.Subject = !Owner && Said->size() == 1 && Said->front().Names.size() == 1 ? Said->front().Names.front() : std::string();
	Request.Edit = std::make_shared<FAddVariables>(*Said, Owner ? JoinWords(*Owner) : std::string());
	return Request;
}

}
