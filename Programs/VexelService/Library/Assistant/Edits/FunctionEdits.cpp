#include "MemberFamilies.h"

#include "MemberReport.h"
#include "MemberLookup.h"
#include "MemberSentence.h"
#include "Assistant/Markdown.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::string_view AddVerbs = "add|create|make|define|declare|write|new|need|want|introduce";

/** An input or an output that is to be made. */
struct FSaidParameter
{
	bool bOutput = false;
	FSaidVariable Variable;
};

std::string ParameterInWords(const FSaidParameter& Parameter)
{
	return std::string(Parameter.bOutput ? "the output " : "the input ") + Bold(Parameter.Variable.Names.front());
}

/** What has inputs and outputs: a function by its graph, or a custom event by its node. */
class FParameterOwner
{
public:
	FParameterOwner(FEditSession& InSession, FEditTarget InTarget, std::string InName)
		: Session(InSession)
		, Target(std::move(InTarget))
		, Name(std::move(InName))
	{
	}

	bool IsEvent() const { return !Target.Node.empty(); }
	const std::string& GetName() const { return Name; }

	const FBlueprintVariable* Find(const FSaidParameter& Parameter, const std::string& ParameterName) const
	{
		return FindVariableAt(Session.Editor.Blueprint(), Target, ScopeOf(Parameter), ParameterName);
	}

	/** Adds one parameter with its default; of one that cannot be had whole nothing stays, and Problem says why. */
	bool Add(const FSaidParameter& Parameter, const std::string& ParameterName, std::string& Problem) const
	{
		if (Find(Parameter, ParameterName))
		{
			Problem = Bold(Name) + " has " + ParameterInWords(Parameter) + " already.";
			return false;
		}
		const std::string Scope = ScopeOf(Parameter);
		for (const std::string& TypeId : ResolveType(Session, *Parameter.Variable.Type))
		{
			const FWireValue Default =
				Parameter.Variable.Default.empty() ? FWireValue() : ResolveValue(Session, Parameter.Variable.Default, TypeId, EValueForm::Pin);
			if (!Default.Problem.empty() || Session.IsOver())
			{
				Problem = Default.Problem;
				return false;
			}
			const FEditOutcome Added = Session.Editor.AddVariable({.Name = ParameterName, .Type = TypeId, .Scope = Scope}, Target);
			if (!Added.IsComplete())
			{
				Problem = "The editor says: " + Code(Added.Errors.empty() ? "" : Added.Errors.front());
				continue;
			}
			const FEditOutcome Set = Default.Json ? Session.Editor.SetVariableDefault(ParameterName, *Default.Json, Scope, Target)
												  : FEditOutcome{.bDone = true};
			if (Set.IsComplete())
			{
				return true;
			}
			Session.Editor.RemoveVariable(ParameterName, Scope, Target);
			Problem = "The editor says of its default: " + Code(Set.Errors.empty() ? "" : Set.Errors.front());
			return false;
		}
		return false;
	}

private:
	/** What goes into an event comes out of its node. */
	std::string ScopeOf(const FSaidParameter& Parameter) const { return Parameter.bOutput || IsEvent() ? "out" : "in"; }

	FEditSession& Session;
	const FEditTarget Target;
	const std::string Name;
};

std::string Describe(const FParameterOwner& Owner, const FSaidParameter& Parameter, const std::string& Name)
{
	const FBlueprintVariable* const Made = Owner.Find(Parameter, Name);
	const std::string Value = Made ? ShownValue(Made->Value, Made->Type) : std::string();
	const bool bDefault = Made && !Parameter.Variable.Default.empty();
	return std::string(Parameter.bOutput ? "the output " : "the input ") + Bold(Name) +
		(Made ? " (" + TypeInWords(Made->Type) + (bDefault ? ", default " + Value : "") + ")" : "");
}

/** Adds a function, whole or not at all. */
class FAddFunction final : public IEdit
{
public:
	FAddFunction(std::string InName, std::vector<FSaidParameter> InParameters)
		: Name(std::move(InName))
		, Parameters(std::move(InParameters))
	{
	}

	void Run(FEditSession& Session) const override
	{
		const FEditOutcome Outcome = Session.Editor.AddFunction(Name);
		if (!Outcome.IsComplete())
		{
			TellRefusal(Session, "add the function " + Bold(Name), Outcome.Errors);
			return;
		}
		const TMemberMatch<FBlueprintGraph> Match = FindFunction(Session.Editor.Blueprint(), Name);
		const FParameterOwner Owner(Session, {.Graph = Match.Found ? Match.Found->Id : Name}, Name);
		std::vector<std::string> Made;
		for (const FSaidParameter& Parameter : Parameters)
		{
			for (const std::string& ParameterName : Parameter.Variable.Names)
			{
				std::string Problem;
				if (!Owner.Add(Parameter, ParameterName, Problem))
				{
					TakeBack(Session, Parameter, Problem);
					return;
				}
				Made.push_back(Describe(Owner, Parameter, ParameterName));
			}
		}
		Session.Say("I added the function " + Bold(Name) + " to " + Bold(Session.Editor.Blueprint().Name) +
			(Made.empty() ? "" : ", with " + JoinWithAnd(Made)) + ".\n");
		TellCompile(Session);
	}

private:
	void TakeBack(FEditSession& Session, const FSaidParameter& Parameter, const std::string& Problem) const
	{
		if (Session.IsOver())
		{
			return;
		}
		const bool bGone = Session.Editor.RemoveFunction(Name).IsComplete();
		Session.Say("I could not give the function " + Bold(Name) + " " + ParameterInWords(Parameter) +
			(bGone ? ", so I took the function back. " : "; the function stands without it, and I could not remove it. ") + Problem + "\n");
	}

	const std::string Name;
	const std::vector<FSaidParameter> Parameters;
};

/** Adds inputs or outputs to what is there. */
class FAddParameters final : public IEdit
{
public:
	FAddParameters(std::vector<FSaidParameter> InParameters, std::string InOwner)
		: Parameters(std::move(InParameters))
		, OwnerName(std::move(InOwner))
	{
	}

	void Run(FEditSession& Session) const override
	{
		const FBlueprintModel& Model = Session.Editor.Blueprint();
		const TMemberMatch<FBlueprintGraph> Function = FindFunction(Model, OwnerName);
		const FEventNode Event = Function.Found ? FEventNode() : FindCustomEvent(Model, OwnerName);
		if (!Function.Found && !Event.Node)
		{
			Session.Say(TellMissing(Model, "function or custom event", OwnerName, Function.Nearest));
			return;
		}
		if (Event.Node && std::any_of(Parameters.begin(), Parameters.end(), [](const FSaidParameter& Parameter)
							  { return Parameter.bOutput; }))
		{
			Session.Say("An event gives nothing back, so it can have no output. I changed nothing.\n");
			return;
		}
		const std::string Name = Function.Found ? Function.Found->Title() : OwnerName;
		const FEditTarget Target = Event.Node ? FEditTarget{Event.Graph->Id, Event.Node->Id} : FEditTarget{Function.Found->Id};
		const std::vector<std::string> Others = TellUsesBefore(Session, Name);
		const FParameterOwner Owner(Session, Target, Name);
		bool bChanged = false;
		for (const FSaidParameter& Parameter : Parameters)
		{
			for (const std::string& ParameterName : Parameter.Variable.Names)
			{
				bChanged |= !Session.IsOver() && AddOne(Session, Owner, Parameter, ParameterName);
			}
		}
		if (bChanged)
		{
			TellCompile(Session, Others);
		}
	}

private:
	static bool AddOne(FEditSession& Session, const FParameterOwner& Owner, const FSaidParameter& Parameter, const std::string& Name)
	{
		const std::string Where = std::string(Owner.IsEvent() ? "the event " : "the function ") + Bold(Owner.GetName());
		std::string Problem;
		if (!Owner.Add(Parameter, Name, Problem))
		{
			Session.Say("I could not add " + ParameterInWords(Parameter) + " to " + Where + ", and left it as it was. " + Problem + "\n");
			return false;
		}
		Session.Say("I added " + Describe(Owner, Parameter, Name) + " to " + Where + ".\n");
		return true;
	}

	const std::vector<FSaidParameter> Parameters;
	const std::string OwnerName;
};

// The parameters of one clause; nothing when its words are no descriptions.
bool AppendParameters(FEditWordSpan Words, bool bOutput, std::vector<FSaidParameter>& Parameters)
{
	const std::optional<std::vector<FSaidVariable>> Said = ReadSaidVariables(Words);
	for (const FSaidVariable& Variable : Said ? *Said : std::vector<FSaidVariable>())
	{
		Parameters.push_back({bOutput, Variable});
	}
	return Said.has_value();
}

std::optional<std::string> FindUnclear(const std::vector<FSaidParameter>& Parameters)
{
	const auto Unclear = std::find_if(Parameters.begin(), Parameters.end(), [](const FSaidParameter& Parameter)
		{ return Parameter.Variable.Names.empty() || !Parameter.Variable.Type; });
	if (Unclear == Parameters.end())
	{
		return std::nullopt;
	}
	const std::string Noun = Unclear->bOutput ? "the output" : "the input";
	return Unclear->Variable.Names.empty() ? "the name of " + Noun : "the type of " + Noun + " " + Bold(Unclear->Variable.Names.front());
}

// An output named as another parameter was, without a type, has that one's: "an input Amount of type float and an output NewHealth".
void ShareTypes(std::vector<FSaidParameter>& Parameters)
{
	for (std::size_t Index = 1; Index < Parameters.size(); ++Index)
	{
		if (!Parameters[Index].Variable.Type)
		{
			Parameters[Index].Variable.Type = Parameters[Index - 1].Variable.Type;
		}
	}
}

/** A request for inputs or outputs of something that is there, taken apart. */
struct FSaidParameters
{
	bool bOutput = false;
	/** The function or the event; empty where none was said. */
	std::string Owner;
	/** Of variables: the words for inputs and outputs stand in it as that. */
	FEditWords Description;
};

constexpr std::string_view ParameterNouns = "input|inputs|output|outputs|parameter|parameters|argument|arguments|pin|pins|result|results";

// "Let Heal return a float NewHealth", "make Heal take a boolean bForce".
std::optional<FSaidParameters> ReadGiving(const FEditWords& Words)
{
	for (const bool bOutput : {true, false})
	{
		const char* const Pattern = bOutput ? "let|make|have [function] {owner:1} return|returns|output {what}"
											: "let|make|have [function|event] {owner:1} take|takes|accept {what}";
		if (const std::optional<FCaptures> Captures = MatchWords(Pattern, Words))
		{
			return FSaidParameters{bOutput, CapturedText(*Captures, "owner"), Captures->find("what")->second};
		}
	}
	return std::nullopt;
}

// The function or event that a description ends with or begins with; its words are taken out.
std::string TakeOwner(FEditWords& Description, bool bGive)
{
	if (bGive)
	{
		const auto Article = std::find_if(Description.begin(), Description.end(), [](const FEditWord& Word)
			{ return IsWord(Word, "a|an|another|new|two|three"); });
		const FEditWords Owner = Trimmed(FEditWords(Description.begin(), Article));
		Description.erase(Description.begin(), Article);
		return Owner.empty() ? std::string() : Owner.back().Text;
	}
	const FClauses Clauses = SplitClauses(Description, {EClause::Owner});
	const FEditWords* const Said = Clauses.Find(EClause::Owner);
	if (Said && !Said->empty())
	{
		// The owner's name is one word; what follows belongs to the input.
		Description = Clauses.Head;
		Description.insert(Description.end(), Said->begin() + 1, Said->end());
		return Said->front().Text;
	}
	const bool bEnds = Description.size() > 2 && IsWord(Description[Description.size() - 2], "to|of|for|from");
	const std::string Owner = bEnds ? Description.back().Text : std::string();
	Description.resize(Description.size() - (bEnds ? 2 : 0));
	return Owner;
}

// "Add an integer input Count to the custom event OnHit", "give Heal a float input Amount".
std::optional<FSaidParameters> ReadAdding(const FEditWords& Words)
{
	const bool bGive = IsWord(Words.front(), "give");
	const bool bNew = !IsWord(Words.front(), "make") || (Words.size() > 1 && IsWord(Words[1], "a|an|another|new"));
	if (Words.size() < 2 || (!bGive && (!bNew || !IsWord(Words.front(), AddVerbs))))
	{
		return std::nullopt;
	}
	FSaidParameters Said{.Owner = {}, .Description = FEditWords(Words.begin() + 1, Words.end())};
	Said.Owner = TakeOwner(Said.Description, bGive);
	auto Noun = std::find_if(Said.Description.begin(), Said.Description.end(), [](const FEditWord& Word)
		{ return IsWord(Word, ParameterNouns); });
	if (Noun == Said.Description.end())
	{
		return std::nullopt;
	}
	Said.bOutput = IsWord(*Noun, "output|outputs|result|results");
	Noun->Text = "variable";
	++Noun;
	// "Input parameter" and "output pin" say it twice.
	const bool bTwice = Noun != Said.Description.end() && IsWord(*Noun, "parameter|parameters|argument|arguments|pin|pins");
	Said.Description.erase(Noun, Noun + (bTwice ? 1 : 0));
	return Said;
}

}

std::optional<FEditRequest> ReadAddFunction(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	if (!Read || Read->Words.size() < 2 || !IsWord(Read->Words.front(), AddVerbs))
	{
		return std::nullopt;
	}
	const FClauses Clauses = SplitClauses(FEditWordSpan(Read->Words).subspan(1), {EClause::Inputs, EClause::Outputs});
	const FEditWords Head = Trimmed(Clauses.Head);
	std::optional<FCaptures> Captures;
	for (const char* const Pattern : {"[new] function|method called|named {name}", "[new] function|method {name}",
			 "[new] {name} function|method", "[new] function|method"})
	{
		Captures = Captures ? Captures : MatchWords(Pattern, Head);
	}
	if (!Captures)
	{
		return std::nullopt;
	}
	FEditRequest Request{.Blueprint = Read->Blueprint};
	const auto Said = Captures->find("name");
	const std::optional<std::string> Name = Said == Captures->end() ? std::nullopt : ReadNewName(Said->second);
	if (!Name && Said != Captures->end())
	{
		// "A function that prints Health" tells what it does.
		return std::nullopt;
	}
	if (!Name)
	{
		Request.Question = "I understood that you want to add a function, but not its name: one word, or in quotes.\n";
		return Request;
	}
	std::vector<FSaidParameter> Parameters;
	bool bRead = true;
	for (const FClause& Clause : Clauses.Rest)
	{
		bRead = bRead && AppendParameters(Clause.Words, Clause.Kind == EClause::Outputs, Parameters);
	}
	ShareTypes(Parameters);
	const std::optional<std::string> Unclear = bRead ? FindUnclear(Parameters) : std::optional<std::string>("its inputs and outputs");
	if (Unclear)
	{
		Request.Question = "I understood that you want to add the function " + Bold(*Name) + ", but not " + *Unclear +
			". Say for example: with an input Amount of type float and an output NewHealth of type float.\n";
		return Request;
	}
	Request.Subject = *Name;
	Request.Edit = std::make_shared<FAddFunction>(*Name, Parameters);
	return Request;
}

std::optional<FEditRequest> ReadAddParameter(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	std::optional<FSaidParameters> Said = Read ? ReadGiving(Read->Words) : std::nullopt;
	Said = Said || !Read ? Said : ReadAdding(Read->Words);
	if (!Said)
	{
		return std::nullopt;
	}
	FEditRequest Request{.Blueprint = Read->Blueprint};
	std::vector<FSaidParameter> Parameters;
	const bool bRead = AppendParameters(Said->Description, Said->bOutput, Parameters);
	const std::optional<std::string> Unclear = bRead ? FindUnclear(Parameters) : std::optional<std::string>("its name and type");
	if (Unclear || Said->Owner.empty())
	{
		Request.Question = std::string("I understood that you want to add ") + (Said->bOutput ? "an output" : "an input") + ", but not " +
			(Unclear ? *Unclear : "to which function or event") + ". Say for example: add a float input Amount to the function Heal.\n";
		return Request;
	}
	Request.Edit = std::make_shared<FAddParameters>(Parameters, Said->Owner);
	return Request;
}

}
