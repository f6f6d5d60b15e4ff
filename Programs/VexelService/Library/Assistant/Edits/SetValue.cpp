#include "MemberFamilies.h"

#include "Components.h"
#include "MemberLookup.h"
#include "MemberReport.h"
#include "MemberSentence.h"
#include "PropertyNames.h"
#include "Assistant/AssetFinder.h"
#include "Assistant/Markdown.h"
#include "Assistant/Question.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace VexelService
{

namespace
{

/** A guess costs a call of the editor's tool. */
constexpr std::size_t MaxAttempts = 16;
constexpr const char* DefaultObject = "$ClassDefaultObject";

constexpr std::string_view Patterns[] = {
	"set|change|update|adjust|assign|put {member} to|as|=|at {rest}",
	"let {member} be|= {rest}",
	"{member} should|must be {rest}",
	"{member} = {rest}",
	"give {member} value [of] {rest}",
	"give {member} default|initial|starting [value] [of] {rest}",
	"make {member} {rest:1}",
};

/** Values that say by themselves what they are of: "make the mesh invisible". */
struct FAdjective
{
	std::string_view Words;
	/** Of a component, and of the Blueprint itself. */
	const char* Property;
	const char* OwnProperty;
	const char* Value;
	const char* OwnValue;
};

constexpr FAdjective Adjectives[] = {
	{"visible", "bVisible", "bHidden", "true", "false"},
	{"invisible", "bVisible", "bHidden", "false", "true"},
	{"hidden", "bHiddenInGame", "bHidden", "true", "true"},
};

const FBlueprintProperty* FindDefault(const FBlueprintModel& Model, std::string_view Path)
{
	const FBlueprintProperty* Property = &Model.Defaults;
	for (std::string_view Rest = Path.substr(std::min(Path.find('.'), Path.size() - 1) + 1); Property && !Rest.empty();)
	{
		const std::size_t Dot = std::min(Rest.find('.'), Rest.size());
		Property = Property->FindPart(Rest.substr(0, Dot));
		Rest.remove_prefix(std::min(Dot + 1, Rest.size()));
	}
	return Property;
}

/** Sets the default of a variable, or a property of the class's default object. */
class FSetValue final : public IEdit
{
public:
	FSetValue(FSaidMember InMember, FEditWords InValue)
		: Member(std::move(InMember))
		, Value(std::move(InValue))
	{
	}

	void Run(FEditSession& Session) const override
	{
		const FBlueprintModel& Model = Session.Editor.Blueprint();
		const bool bOwned = Member.Names.size() > 1;
		const bool bOfFunction = !Member.Owner.empty() || (bOwned && FindFunction(Model, Member.Names[1]).Found) ||
			Member.Noun == EMemberNoun::Input || Member.Noun == EMemberNoun::Output || Member.Noun == EMemberNoun::LocalVariable;
		const TMemberMatch<FBlueprintVariable> Variable = FindVariable(Model.Variables, Member.Names.back(), "member");
		if (bOfFunction)
		{
			const FMemberPlace Place = FindMemberPlace(Model, Member);
			Place.Name.empty() ? Session.Say(Place.Problem) : SetVariable(Session, *Place.Variable, Place.Target);
			return;
		}
		if (Variable.Found && !bOwned)
		{
			SetVariable(Session, *Variable.Found, {});
			return;
		}
		const bool bColorOf = !bOwned && Value.size() == 1 && IsColorName(Value.front().Text);
		if (bColorOf)
		{
			// "Make the light red" is about its color.
			FSaidMember Color = Member;
			Color.Names.insert(Color.Names.begin(), "color");
			FSetValue(Color, Value).SetProperty(Session, {}, Variable.Nearest);
			return;
		}
		if (Variable.Found && StartsWith(Variable.Found->Type, "map|"))
		{
			SetEntry(Session, *Variable.Found);
			return;
		}
		SetProperty(Session, Variable.Found ? Variable.Found->Id : std::string(), Variable.Nearest);
	}

private:
	void SetVariable(FEditSession& Session, const FBlueprintVariable& Variable, const FEditTarget& Target) const
	{
		const std::string Scope = Variable.Scope;
		const std::string Name = Variable.Id;
		const std::string Type = Variable.Type;
		const std::string OldValue = ShownValue(Variable.Value, Type);
		const std::size_t NumElements = Variable.Parts.size();
		const FWireValue Wire = ResolveValue(Session, Value, Type,
			Scope == "in" || Scope == "out" ? EValueForm::Pin : EValueForm::Property);
		if (!Wire.Json)
		{
			Session.Say("I did not set " + Bold(Name) + ", which is " + WithArticle(TypeInWords(Type)) + ": " + Wire.Problem + "\n");
			return;
		}
		FJson Operations = FJson::array();
		const bool bContainer = Wire.Json->is_object() && !SplitTypeId(Type).Container.empty();
		if (!bContainer || !Wire.Json->empty())
		{
			Operations.push_back({{"operation", "update"}, {"scope", Scope}, {"prop_path", Name}, {"value", *Wire.Json}});
		}
		// What is longer than the new list goes, from its end, so that the places before stay what they are.
		for (std::size_t Index = NumElements; bContainer && Index > Wire.Json->size(); --Index)
		{
			Operations.push_back({{"operation", "remove"}, {"scope", Scope}, {"prop_path", Name}, {"index", Index - 1}});
		}
		if (Operations.empty())
		{
			Session.Say(Bold(Name) + " is empty already. I changed nothing.\n");
			return;
		}
		const FEditOutcome Outcome = Session.Editor.EditObjects(Target, Operations);
		if (!Outcome.IsComplete())
		{
			TellRefusal(Session, "set " + Bold(Name), Outcome.Errors);
			return;
		}
		const FBlueprintVariable* const Now = FindVariableAt(Session.Editor.Blueprint(), Target, Scope, Name);
		const std::string NewValue = Now ? ShownValue(Now->Value, Type) : JoinWords(Value);
		Session.Say("I set the default of " + Bold(Name) + " from " + OldValue + " to " + NewValue + ".\n");
		TellCompile(Session);
	}

	/** "Set Gold in Prices to 5", where Prices is a map. */
	void SetEntry(FEditSession& Session, const FBlueprintVariable& Map) const
	{
		const std::string Name = Map.Id;
		const std::string& Key = Member.Names.front();
		FEditWords Entry = {{.Text = Key}, {.Text = "="}};
		Entry.insert(Entry.end(), Value.begin(), Value.end());
		const FWireValue Wire = ResolveValue(Session, Entry, Map.Type);
		if (!Wire.Json)
		{
			Session.Say("I did not set " + Bold(Key) + " of " + Bold(Name) + ": " + Wire.Problem + "\n");
			return;
		}
		const FJson& NewEntry = Wire.Json->begin().value();
		const auto There = std::find_if(Map.Parts.begin(), Map.Parts.end(), [&NewEntry](const FBlueprintProperty& Part)
			{
				const FBlueprintProperty* const PartKey = Part.FindPart("key");
				return PartKey && EqualIgnoringCase(PartKey->Value, NewEntry["key"].get<std::string>()); });
		const bool bNew = There == Map.Parts.end();
		const FJson Index = There - Map.Parts.begin();
		const FEditOutcome Outcome = bNew
			? Session.Editor.EditObjects({},
				  {{{"operation", "insert"}, {"scope", "member"}, {"prop_path", Name}, {"index", Index}, {"value", NewEntry}}})
			: Session.Editor.SetVariableDefault(Name, FJson{{std::to_string(Index.get<std::size_t>()), NewEntry}});
		if (!Outcome.IsComplete())
		{
			TellRefusal(Session, "set " + Bold(Key) + " of " + Bold(Name), Outcome.Errors);
			return;
		}
		Session.Say((bNew ? "I added " + Bold(Key) + " to " + Bold(Name) + ", with " : "I set " + Bold(Key) + " of " + Bold(Name) + " to ") +
			JoinWords(Value) + ".\n");
		TellCompile(Session);
	}

	/** The names that the outermost object may have, to which the property belongs; nothing, and why, where there is none. */
	std::vector<std::string> FindOutermost(const FBlueprintModel& Model, const std::string& VariableName, std::string& OutProblem) const
	{
		if (!VariableName.empty())
		{
			return {VariableName};
		}
		const FComponents Components(Model);
		const std::string& Said = Member.Names.back();
		const std::vector<FComponent> Found = Components.Find(Said);
		if (Found.size() == 1)
		{
			return {Found.front().Name};
		}
		const std::vector<std::string> Guesses = GuessComponentNames(Said);
		const bool bRoot = Guesses.size() == 1;
		if (Found.empty() && (bRoot || !Components.AreAllKnown() || HasDefault(Model, Guesses)))
		{
			return Guesses;
		}
		OutProblem = Found.empty() ? Bold(Model.Name) + " has no component and no variable called " + Quoted(Said) + "."
								   : FComponents::DescribeChoice(Model, Said, Found);
		return {};
	}

	/** Whether the class's default object shows a property of one of the names. */
	static bool HasDefault(const FBlueprintModel& Model, const std::vector<std::string>& Names)
	{
		return std::any_of(Names.begin(), Names.end(), [&Model](const std::string& Name)
			{ return Model.Defaults.FindPart(Name) != nullptr; });
	}

	/** The objects that the words may mean, by their paths; VariableName is that of a variable whose field is meant, or empty. */
	std::vector<std::string> GuessOwners(const FBlueprintModel& Model, const std::string& VariableName, std::string& OutProblem) const
	{
		std::vector<std::string> Owners = {DefaultObject};
		for (std::size_t Index = Member.Names.size(); Index > 1; --Index)
		{
			const bool bOutermost = Index == Member.Names.size();
			std::vector<std::string> Names;
			if (bOutermost)
			{
				Names = FindOutermost(Model, VariableName, OutProblem);
			}
			for (const FPropertyName& Name : bOutermost ? std::vector<FPropertyName>() : GuessPropertyNames(Member.Names[Index - 1]))
			{
				Names.push_back(Name.Name);
			}
			std::vector<std::string> Longer;
			for (const std::string& Owner : Owners)
			{
				for (const std::string& Name : Names)
				{
					Longer.push_back(Owner + "." + Name);
				}
			}
			Owners = std::move(Longer);
		}
		return Owners;
	}

	std::vector<FJson> GuessValues(FEditSession& Session, const std::string& Owner, const FPropertyName& Name, std::string& Problem) const
	{
		const FBlueprintProperty* const Known = FindDefault(Session.Editor.Blueprint(), Owner + "." + Name.Name);
		const std::string& Type = Known && !Known->Type.empty() ? Known->Type : Name.Type;
		if (Type.empty())
		{
			return GuessWireValues(Value);
		}
		const bool bOne = Value.size() == 1 && Value.front().Text.find(',') == std::string::npos;
		const bool bForEach = Name.bUniform && bOne && Type == "struct.Vector";
		const FWireValue Wire = ResolveValue(Session, bForEach ? FEditWords(3, Value.front()) : Value, Type);
		Problem = Wire.Problem.empty() ? Problem : Wire.Problem;
		return Wire.Json ? std::vector<FJson>{*Wire.Json} : std::vector<FJson>();
	}

	enum class EAttempt
	{
		Done,
		/** The value is not what the property takes. */
		WrongValue,
		NoProperty,
		/** There is nothing at all at the path before the property. */
		NoOwner,
	};

	/** Tries one guess; Errors holds what the editor said of the guess that came nearest. */
	EAttempt Try(FEditSession& Session, const std::string& Owner, const std::string& Name, const FJson& Wire,
		std::vector<std::string>& Errors) const
	{
		const std::string Path = Owner + "." + Name;
		const FBlueprintProperty* const Before = FindDefault(Session.Editor.Blueprint(), Path);
		const std::string OldValue = Before ? ShownValue(Before->Value, Before->Type) : std::string();
		const FEditOutcome Outcome = Session.Editor.SetProperty(Path, Wire);
		if (Outcome.IsComplete())
		{
			TellSet(Session, Path, OldValue);
			return EAttempt::Done;
		}
		const std::string Error = Outcome.Errors.empty() ? std::string() : Outcome.Errors.front();
		const bool bNoProperty = Error.find("'" + Name + "' not found in compound") != std::string::npos;
		const bool bNowhere = Error.find("not found in compound") != std::string::npos || Error.find("is not a compound") != std::string::npos ||
			Error.find("does not contain a valid compound") != std::string::npos;
		const bool bNoOwner = bNowhere && !bNoProperty;
		// What is said of a property that is there tells more than that another is not.
		const bool bTellsMore = !bNoProperty && !bNoOwner;
		Errors = Errors.empty() || bTellsMore ? Outcome.Errors : Errors;
		return bNoOwner ? EAttempt::NoOwner : bNoProperty ? EAttempt::NoProperty
														  : EAttempt::WrongValue;
	}

	/** Tries the properties of one object; whether one of them was set. */
	bool TryOwner(FEditSession& Session, const std::string& Owner, std::vector<std::string>& Errors, std::string& Problem,
		std::size_t& NumAttempts) const
	{
		for (const FPropertyName& Name : GuessPropertyNames(Member.Names.front()))
		{
			for (const FJson& Wire : GuessValues(Session, Owner, Name, Problem))
			{
				if (Session.IsOver() || ++NumAttempts > MaxAttempts)
				{
					return false;
				}
				const EAttempt Attempt = Try(Session, Owner, Name.Name, Wire, Errors);
				if (Attempt == EAttempt::Done || Attempt == EAttempt::NoOwner)
				{
					return Attempt == EAttempt::Done;
				}
				if (Attempt == EAttempt::NoProperty)
				{
					break;
				}
			}
		}
		return false;
	}

	void SetProperty(FEditSession& Session, const std::string& VariableName, const std::string& Nearest) const
	{
		std::vector<std::string> Errors;
		std::string Problem;
		std::size_t NumAttempts = 0;
		for (const std::string& Owner : GuessOwners(Session.Editor.Blueprint(), VariableName, Problem))
		{
			if (TryOwner(Session, Owner, Errors, Problem, NumAttempts))
			{
				return;
			}
		}
		const std::string Said = JoinedNames();
		if (Errors.empty() && !Problem.empty())
		{
			Session.Say("I did not set " + Quoted(Said) + ": " + Problem + "\n");
			return;
		}
		TellRefusal(Session, "set " + Quoted(Said) + " of " + Bold(Session.Editor.Blueprint().Name), Errors);
		Session.Say(Nearest.empty() ? std::string() : "Its variable " + Bold(Nearest) + " has a name like it; name it if you mean that.\n");
		const bool bOwned = Member.Names.size() > 1 && VariableName.empty();
		Session.Say(bOwned ? "Components have the names that the editor's list of components shows.\n" : "");
	}

	void TellSet(FEditSession& Session, const std::string& Path, const std::string& OldValue) const
	{
		// The export leaves out what the parent class, or a component's own class, has too.
		const FBlueprintProperty* const Now = FindDefault(Session.Editor.Blueprint(), Path);
		const std::string NewValue = Now ? ShownValue(Now->Value, Now->Type) : JoinWords(Value);
		const std::string Property = Path.substr(std::string_view(DefaultObject).size() + 1);
		Session.Say("I set the default of " + Bold(Property) + (OldValue.empty() ? "" : " from " + OldValue) + " to " + NewValue + ".\n");
		TellCompile(Session);
	}

	std::string JoinedNames() const
	{
		std::string Text;
		for (const std::string& Name : Member.Names)
		{
			Text += (Text.empty() ? "" : " of ") + Name;
		}
		return Text;
	}

	const FSaidMember Member;
	const FEditWords Value;
};

// "Make the mesh invisible" with its property and its value in words.
void ReadAdjective(FSplitRequest& Split)
{
	const auto Found = std::find_if(std::begin(Adjectives), std::end(Adjectives), [&Split](const FAdjective& Row)
		{ return Split.Rest.size() == 1 && IsWord(Split.Rest.front(), Row.Words); });
	if (Found == std::end(Adjectives))
	{
		return;
	}
	const bool bItself = Split.Member.Names.size() == 1 && IsBackReference(Split.Member.Names.front());
	if (bItself)
	{
		Split.Member.Names.clear();
	}
	Split.Member.Names.insert(Split.Member.Names.begin(), bItself ? Found->OwnProperty : Found->Property);
	Split.Rest = {{.Text = bItself ? Found->OwnValue : Found->Value}};
}

// A word that can be nothing but a value, so that "make X Y" sets X.
bool IsPlainValue(const FEditWords& Words)
{
	return Words.size() == 1 && (Words.front().bQuoted || MakeWireValue(Words, "real").Json || GuessWireValues(Words).size() > 1);
}

}

std::optional<FEditRequest> ReadSetValue(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	for (const std::string_view Pattern : Patterns)
	{
		std::optional<FSplitRequest> Split = Read ? SplitRequest(Pattern, Read->Words) : std::nullopt;
		const bool bPlain = !StartsWith(Pattern, "make") || (Split && IsPlainValue(Split->Rest));
		if (!Split || !bPlain || Split->Member.Element.IsSaid())
		{
			continue;
		}
		ReadAdjective(*Split);
		FEditRequest Request{.Blueprint = Read->Blueprint};
		if (!ResolveSubject(Split->Member, *Read))
		{
			Request.Question = "What do you want to set to " + Bold(JoinWords(Split->Rest)) + "? Name the variable or the property.\n";
			return Request;
		}
		Request.Subject = SubjectOf(Split->Member);
		Request.Edit = std::make_shared<FSetValue>(Split->Member, Split->Rest);
		return Request;
	}
	return std::nullopt;
}

}
