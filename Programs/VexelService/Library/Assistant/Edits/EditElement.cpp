#include "MemberFamilies.h"

#include "MemberReport.h"
#include "MemberLookup.h"
#include "MemberSentence.h"
#include "PropertyNames.h"
#include "Assistant/Markdown.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace VexelService
{

namespace
{

enum class EElementEdit
{
	Set,
	Add,
	Remove,
	/** The element that has a value. */
	RemoveValue,
};

struct FElementPattern
{
	EElementEdit Edit;
	std::string_view Pattern;
	/** Whether a new element goes to the beginning. */
	bool bFirst = false;
	/** Whether the words alone say that a list is meant. */
	bool bTelling = false;
};

constexpr FElementPattern Patterns[] = {
	{EElementEdit::Set, "set|change|update|make|replace {member} to|with|by|= {rest}"},
	{EElementEdit::Add, "add|append|insert|push|put {rest} at|to beginning|start|front of {member}", true, true},
	{EElementEdit::Add, "add|append|insert|push|put {rest} to|in|into {member} as first element|item|entry", true, true},
	{EElementEdit::Add, "add|append|insert|push|put {rest} at|to end|back of {member}", false, true},
	{EElementEdit::Add, "append|push {rest} to|onto|on {member}", false, true},
	{EElementEdit::Add, "add|insert|put element|item|entry|value {rest} to|in|into {member}", false, true},
	{EElementEdit::Add, "add|insert|put {rest} to|into {member}"},
	{EElementEdit::Remove, "remove|delete|drop|erase {member}"},
	{EElementEdit::RemoveValue, "remove|delete|drop|erase element|item|entry|value {rest} from {member}", false, true},
	{EElementEdit::RemoveValue, "remove|delete|drop|erase|take {rest} from {member}"},
	{EElementEdit::RemoveValue, "take {rest} out of {member}"},
};

// Words of which a request speaks that is about something else than a list's elements.
constexpr std::string_view OtherNouns =
	"variable|variables|function|event|input|output|parameter|argument|pin|node|nodes|component|print|call|macro|dispatcher|category|"
	"branch|delay|link|wire|connection|boolean|integer|float|string|vector|interface|comment|timeline|result|graph";

/** A list that can be edited: a variable, or a property of the class's defaults. */
struct FList
{
	FEditTarget Target = {};
	/** Empty for a property of the class's defaults. */
	std::string Scope = {};
	std::string Path = {};
	std::string Name = {};
	/** Empty where the editor alone knows it. */
	std::string Type = {};
	std::vector<std::string> Elements = {};
	std::string Problem = {};
};

std::vector<std::string> ValuesOf(const std::vector<FBlueprintProperty>& Parts)
{
	std::vector<std::string> Values;
	for (const FBlueprintProperty& Part : Parts)
	{
		const FBlueprintProperty* const Key = Part.FindPart("key");
		const FBlueprintProperty* const Value = Part.FindPart("value");
		Values.push_back(Key && Value ? Key->Value + " = " + Value->Value : Part.Value);
	}
	return Values;
}

/** A property that its class has empty is not in the export, so that only an element to add can tell whether it is there. */
FList FindList(const FBlueprintModel& Model, const FSaidMember& Said, bool bAdds)
{
	const std::string& Name = Said.Names.front();
	const bool bOfFunction = !Said.Owner.empty() || Said.Noun == EMemberNoun::LocalVariable;
	const TMemberMatch<FBlueprintVariable> Match = FindVariable(Model.Variables, Name, "member");
	const FMemberPlace Place = bOfFunction ? FindMemberPlace(Model, Said) : FMemberPlace{.Variable = Match.Found};
	if (!Place.Problem.empty())
	{
		return {.Problem = Place.Problem};
	}
	const FBlueprintVariable* const Variable = Place.Variable;
	if (Variable && SplitTypeId(Variable->Type).Container.empty())
	{
		return {.Problem = "I understood that you want to change elements of " + Bold(Variable->Id) + ", but that is " +
				WithArticle(TypeInWords(Variable->Type)) + " and has none. I changed nothing.\n"};
	}
	if (Variable)
	{
		return {.Target = Place.Target,
			.Scope = Variable->Scope,
			.Path = Variable->Id,
			.Name = Variable->Id,
			.Type = Variable->Type,
			.Elements = ValuesOf(Variable->Parts)};
	}
	const std::string Property = GuessPropertyNames(Name).front().Name;
	const FBlueprintProperty* const Known = Model.Defaults.FindPart(Property);
	if (!Known && (!Match.Nearest.empty() || !bAdds))
	{
		return {.Problem = TellMissing(Model, "list with elements", Name, Match.Nearest)};
	}
	return {.Path = "$ClassDefaultObject." + Property,
		.Name = Property,
		.Type = Known ? Known->Type : std::string(),
		.Elements = Known ? ValuesOf(Known->Parts) : std::vector<std::string>()};
}

class FEditElement final : public IEdit
{
public:
	FEditElement(EElementEdit InEdit, FSaidMember InMember, FEditWords InValue, bool bInFirst)
		: Edit(InEdit)
		, Member(std::move(InMember))
		, Value(std::move(InValue))
		, bFirst(bInFirst)
	{
	}

	void Run(FEditSession& Session) const override
	{
		const FList List = FindList(Session.Editor.Blueprint(), Member, Edit == EElementEdit::Add);
		if (!List.Problem.empty())
		{
			Session.Say(List.Problem);
			return;
		}
		switch (Edit)
		{
			case EElementEdit::Set:
				Set(Session, List);
				break;
			case EElementEdit::Add:
				Add(Session, List);
				break;
			default:
				Remove(Session, List);
				break;
		}
	}

private:
	static FJson Operation(const FList& List, const char* Name)
	{
		return {{"operation", Name}, {"scope", List.Scope}, {"prop_path", List.Path}};
	}

	static std::string HowMany(const FList& List)
	{
		return Bold(List.Name) + " has " + CountOf(List.Elements.size(), "element") + ", counted from 0";
	}

	/** The place that was said, among the elements that there are; nothing when it has told that there is none. */
	std::optional<std::size_t> FindIndex(FEditSession& Session, const FList& List) const
	{
		const std::size_t Count = List.Elements.size();
		const std::size_t Index = Member.Element.bLast ? Count - 1 : static_cast<std::size_t>(Member.Element.Index.value_or(0));
		if (Index < Count)
		{
			return Index;
		}
		Session.Say("There is no such element: " + HowMany(List) + ". I changed nothing.\n");
		return std::nullopt;
	}

	/** One element's value; nothing when it has told why the words are none. */
	std::optional<FJson> ReadValue(FEditSession& Session, const FList& List) const
	{
		if (List.Type.empty())
		{
			return GuessWireValues(Value).front();
		}
		const FTypeParts Parts = SplitTypeId(List.Type);
		const bool bMap = Parts.Container == "map";
		const FWireValue Wire = ResolveValue(Session, Value, bMap ? List.Type : Parts.Element);
		if (!Wire.Json)
		{
			Session.Say("I did not change " + Bold(List.Name) + ": " + Wire.Problem + "\n");
			return std::nullopt;
		}
		return bMap ? Wire.Json->begin().value() : *Wire.Json;
	}

	void Set(FEditSession& Session, const FList& List) const
	{
		const std::optional<std::size_t> Index = FindIndex(Session, List);
		const std::optional<FJson> Wire = Index ? ReadValue(Session, List) : std::nullopt;
		if (!Wire)
		{
			return;
		}
		FJson Update = Operation(List, "update");
		Update["value"] = FJson{{std::to_string(*Index), *Wire}};
		Finish(Session, List, Update, "set that element of " + Bold(List.Name),
			"I set the element " + std::to_string(*Index) + " of " + Bold(List.Name) + " from " + Shown(List, *Index) + " to " +
				JoinWords(Value));
	}

	void Add(FEditSession& Session, const FList& List) const
	{
		const std::optional<FJson> Wire = ReadValue(Session, List);
		if (!Wire)
		{
			return;
		}
		FJson Insert = Operation(List, "insert");
		Insert["index"] = bFirst ? 0 : List.Elements.size();
		Insert["value"] = *Wire;
		Finish(Session, List, Insert, "add that to " + Bold(List.Name), "I added " + JoinWords(Value) + " to " + Bold(List.Name));
	}

	void Remove(FEditSession& Session, const FList& List) const
	{
		std::optional<std::size_t> Index;
		if (Edit == EElementEdit::RemoveValue)
		{
			const auto Found = std::find_if(List.Elements.begin(), List.Elements.end(), [this](const std::string& Element)
				{ return EqualIgnoringCase(Element, JoinWords(Value)) || EqualIgnoringCase(ShortName(Element), JoinWords(Value)); });
			Index = Found == List.Elements.end() ? std::nullopt : std::optional<std::size_t>(Found - List.Elements.begin());
			if (!Index)
			{
				Session.Say(Bold(List.Name) + " has no element " + JoinWords(Value) + ". I changed nothing.\n");
			}
		}
		else
		{
			Index = FindIndex(Session, List);
		}
		if (!Index)
		{
			return;
		}
		FJson Removal = Operation(List, "remove");
		Removal["index"] = *Index;
		Finish(Session, List, Removal, "remove that from " + Bold(List.Name),
			"I removed the element " + std::to_string(*Index) + ", " + Shown(List, *Index) + ", from " + Bold(List.Name));
	}

	static std::string Shown(const FList& List, std::size_t Index)
	{
		const FTypeParts Type = SplitTypeId(List.Type);
		return ShownValue(List.Elements[Index], Type.Container == "map" ? std::string() : Type.Element);
	}

	void Finish(FEditSession& Session, const FList& List, const FJson& Done, const std::string& What, const std::string& Told) const
	{
		const FEditOutcome Outcome = Session.Editor.EditObjects(List.Target, FJson::array({Done}));
		if (!Outcome.IsComplete())
		{
			TellRefusal(Session, What, Outcome.Errors);
			return;
		}
		const FList Now = FindList(Session.Editor.Blueprint(), Member, true);
		std::string Text = Told + ".";
		if (Now.Problem.empty())
		{
			std::vector<std::string> Values;
			for (std::size_t Index = 0; Index < std::min<std::size_t>(Now.Elements.size(), 20); ++Index)
			{
				Values.push_back(Shown(Now, Index));
			}
			Text += Values.empty() ? " It is empty now." : " It holds " + JoinWithAnd(Values) + " now.";
		}
		Session.Say(Text + "\n");
		TellCompile(Session);
	}

	const EElementEdit Edit;
	const FSaidMember Member;
	const FEditWords Value;
	const bool bFirst;
};

bool HasWord(const FEditWords& Words, std::string_view Alternatives)
{
	return std::any_of(Words.begin(), Words.end(), [Alternatives](const FEditWord& Word)
		{ return IsWord(Word, Alternatives); });
}

// Whether it must be elements that a request is about: it says so, or what it adds can be nothing else.
bool IsOfList(const FElementPattern& Pattern, const FSplitRequest& Split, const FEditWords& Words)
{
	if (Pattern.Edit == EElementEdit::Set || Pattern.Edit == EElementEdit::Remove)
	{
		return Split.Member.Element.IsSaid();
	}
	if (Pattern.bTelling || HasWord(Words, "array|list|set|map"))
	{
		return true;
	}
	// "Add 5 to Score" is a step, unless it says that Score is a list.
	const bool bOther = HasWord(Words, OtherNouns) || MakeWireValue(Split.Rest, "real").Json.has_value();
	return !bOther && (Split.Rest.size() == 1 || HasWord(Split.Rest, "="));
}

}

std::optional<FEditRequest> ReadEditElement(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	for (const FElementPattern& Pattern : Patterns)
	{
		std::optional<FSplitRequest> Split = Read ? SplitRequest(Pattern.Pattern, Read->Words) : std::nullopt;
		if (!Split || !IsOfList(Pattern, *Split, Read->Words))
		{
			continue;
		}
		FEditRequest Request{.Blueprint = Read->Blueprint};
		if (!ResolveSubject(Split->Member, *Read))
		{
			Request.Question = "Which list do you mean? Name it.\n";
			return Request;
		}
		Request.Subject = SubjectOf(Split->Member);
		Request.Edit = std::make_shared<FEditElement>(Pattern.Edit, Split->Member, Split->Rest, Pattern.bFirst);
		return Request;
	}
	return std::nullopt;
}

}
