#include "MemberFamilies.h"

#include "MemberReport.h"
#include "MemberLookup.h"
#include "MemberSentence.h"
#include "Assistant/Edits/WiringEdits.h"
#include "Assistant/Markdown.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace VexelService
{

namespace
{

enum class EChange
{
	Rename,
	Retype,
	Remove,
	Recategorize,
	/** Changes one of the editor's marks of a variable, and may move it to a category too. */
	SetFlag,
};

struct FChangePattern
{
	EChange Change;
	/** With {member}, and {rest} for the new name, type or category. */
	std::string_view Pattern;
	/** Of a new type: whether any name counts as one, since the pattern speaks of types. */
	ETypeNames TypeNames = ETypeNames::Telling;
};

constexpr FChangePattern Patterns[] = {
	{EChange::Rename, "rename {member} to|as|into {rest}"},
	{EChange::Rename, "change|set name of {member} to {rest}"},
	{EChange::Rename, "change|set {member} name to {rest}"},
	{EChange::Rename, "give {member} name {rest}"},
	{EChange::Rename, "give {member} new name {rest}"},
	{EChange::Rename, "{member} should|must be called|named {rest}"},
	{EChange::Retype, "change|set type of {member} from {old} to {rest}", ETypeNames::Any},
	{EChange::Retype, "change|set type of {member} to|into {rest}", ETypeNames::Any},
	{EChange::Retype, "change|set {member} type to|into {rest}", ETypeNames::Any},
	{EChange::Retype, "retype {member} to|as|into {rest}", ETypeNames::Any},
	{EChange::Retype, "make {member} of type {rest}", ETypeNames::Any},
	{EChange::Retype, "{member} should|must be of type {rest}", ETypeNames::Any},
	{EChange::Retype, "convert|turn|change {member} from {old} to|into {rest}"},
	{EChange::Retype, "convert|turn|change {member} to|into {rest}"},
	{EChange::Retype, "make {member} a|an {rest}"},
	{EChange::Retype, "{member} should|must be a|an {rest}"},
	{EChange::Recategorize, "put|move|place|sort|group {member} in|into|under|to category {rest}"},
	{EChange::Recategorize, "put|move|place|sort|group {member} in|into|under|to {rest} category|section"},
	{EChange::Recategorize, "change|set category of {member} to|as {rest}"},
	{EChange::Recategorize, "change|set {member} category to|as {rest}"},
	{EChange::Recategorize, "give {member} category {rest}"},
	{EChange::Remove, "remove|delete|drop|erase {member}"},
	{EChange::Remove, "get rid of {member}"},
};

/** A mark that the editor keeps for a variable, in a user's words. */
struct FFlagPattern
{
	std::string_view Pattern;
	const char* Key;
	bool bValue;
};

constexpr FFlagPattern FlagPatterns[] = {
	{"make|mark|set|let {member} [as|to|be] [instance] not editable|instance-editable|exposed|public", "instance_editable", false},
	{"make|mark|set|let {member} [as|to|be] no longer [instance] editable|instance-editable|exposed|public", "instance_editable", false},
	{"make|mark|set|let {member} [as|to|be] [instance] editable|instance-editable|exposed|public", "instance_editable", true},
	{"make|mark|set|let {member} [as|to|be] editable [per] instance|instances", "instance_editable", true},
	{"expose {member} on spawn", "expose_on_spawn", true},
	{"make|mark|set|let {member} [as|to|be] exposed on spawn", "expose_on_spawn", true},
	{"expose {member}", "instance_editable", true},
	{"make|mark|set|let {member} [as|to|be] not|non private", "private", false},
	{"make|mark|set|let {member} [as|to|be] private", "private", true},
	{"make|mark|set|let {member} [as|to|be] read-only|readonly", "read_only", true},
	{"make|mark|set|let {member} [as|to|be] read only", "read_only", true},
	{"make|mark|set|let {member} [as|to|be] writable", "read_only", false},
	{"make|mark|set|let {member} [as|to|be] not replicated", "replicated", false},
	{"make|mark|set|let {member} [as|to|be] replicated", "replicated", true},
	{"replicate {member}", "replicated", true},
	{"make|mark|set|let {member} [as|to|be] not transient", "transient", false},
	{"make|mark|set|let {member} [as|to|be] transient", "transient", true},
	{"save {member} in|with game|savegame|savegames|games", "save_game", true},
	{"save {member} in save game|games", "save_game", true},
};

/** A change of one member, as it was said. */
struct FSaidChange
{
	EChange Change;
	FSaidMember Member;
	/** The new name or category. */
	std::string Text = {};
	FSaidType Type = {};
	std::string FlagKey = {};
	bool bFlag = false;
};

std::string PlaceInWords(const FMemberPlace& Place)
{
	return "the " + Place.Noun + " " + Bold(Place.Name);
}

class FChangeMember final : public IEdit
{
public:
	explicit FChangeMember(FSaidChange InSaid)
		: Said(std::move(InSaid))
	{
	}

	void Run(FEditSession& Session) const override
	{
		const FMemberPlace Place = FindMemberPlace(Session.Editor.Blueprint(), Said.Member);
		if (Place.Name.empty())
		{
			// "Remove Delay" may mean a node as well.
			const bool bMayBeNode = Said.Change == EChange::Remove && Said.Member.Noun == EMemberNoun::Any;
			if (!bMayBeNode || !RemoveNodeCalled(Session, Said.Member.Names.front()))
			{
				Session.Say(Place.Problem);
			}
			return;
		}
		switch (Said.Change)
		{
			case EChange::Rename:
				Rename(Session, Place);
				break;
			case EChange::Retype:
				Retype(Session, Place);
				break;
			case EChange::Remove:
				Remove(Session, Place);
				break;
			default:
				Recategorize(Session, Place);
				break;
		}
	}

private:
	static FVariableToAdd DescriptionOf(const FBlueprintVariable& Variable)
	{
		return {.Name = Variable.Id, .Type = Variable.Type, .Scope = Variable.Scope, .Category = Variable.Category};
	}

	/** What a change of the member has an effect on. Returns the paths of other Blueprints that it has an effect on. */
	static std::vector<std::string> TellUses(FEditSession& Session, const FMemberPlace& Place)
	{
		const bool bParameter = Place.Variable && (Place.Variable->Scope == "in" || Place.Variable->Scope == "out");
		if (!bParameter)
		{
			return TellUsesBefore(Session, Place.Name);
		}
		TellWiresBefore(Session, Place.Target, Place.Name);
		return TellUsesBefore(Session, Place.Owner);
	}

	/** Whether it was done; tells why when it was not. */
	static bool Succeeded(FEditSession& Session, const FEditOutcome& Outcome, const std::string& What)
	{
		if (!Outcome.IsComplete())
		{
			TellRefusal(Session, What, Outcome.Errors);
		}
		return Outcome.IsComplete();
	}

	void Rename(FEditSession& Session, const FMemberPlace& Place) const
	{
		const std::string What = "rename " + PlaceInWords(Place);
		const std::string Done = "I renamed " + PlaceInWords(Place) + " to " + Bold(Said.Text) + ".\n";
		const FEditTarget Target = Place.Target;
		FVariableToAdd Changed = Place.Variable ? DescriptionOf(*Place.Variable) : FVariableToAdd();
		const std::string OldName = std::exchange(Changed.Name, Said.Text);
		const std::vector<std::string> Others = TellUses(Session, Place);
		if (Session.IsOver())
		{
			return;
		}
		const FEditOutcome Outcome =
			Place.Variable ? Session.Editor.EditVariable(OldName, Changed, Target) : Session.Editor.SetProperty("name", Said.Text, Target);
		if (Succeeded(Session, Outcome, What))
		{
			Session.Say(Done);
			TellWarnings(Session, Outcome);
			TellCompile(Session, Others);
		}
	}

	void Retype(FEditSession& Session, const FMemberPlace& Place) const
	{
		if (!Place.Variable)
		{
			Session.Say(UpperFirst(PlaceInWords(Place)) + " has no type of its own. I changed nothing.\n");
			return;
		}
		const std::string What = "change the type of " + PlaceInWords(Place);
		const std::string Subject = PlaceInWords(Place);
		const FEditTarget Target = Place.Target;
		FVariableToAdd Changed = DescriptionOf(*Place.Variable);
		const std::string OldType = Changed.Type;
		const std::vector<std::string> Types = ResolveType(Session, Said.Type);
		if (Types.front() == OldType)
		{
			Session.Say(UpperFirst(Subject) + " is of type " + TypeInWords(OldType) + " already. I changed nothing.\n");
			return;
		}
		const std::vector<std::string> Others = TellUses(Session, Place);
		FEditOutcome Outcome;
		for (const std::string& Type : Types)
		{
			Changed.Type = Type;
			const FEditOutcome Tried = Session.IsOver() ? FEditOutcome() : Session.Editor.EditVariable(Changed.Name, Changed, Target);
			// Of several guesses at a type the first is the likeliest, so that its error tells most.
			Outcome = Tried.IsComplete() || Outcome.Errors.empty() ? Tried : Outcome;
			if (Tried.IsComplete())
			{
				break;
			}
		}
		if (Succeeded(Session, Outcome, What))
		{
			Session.Say("I changed the type of " + Subject + " from " + TypeInWords(OldType) + " to " + TypeInWords(Changed.Type) + ".\n");
			TellWarnings(Session, Outcome);
			TellCompile(Session, Others);
		}
	}

	void Remove(FEditSession& Session, const FMemberPlace& Place) const
	{
		const std::string Subject = PlaceInWords(Place);
		const FEditTarget Target = Place.Target;
		const std::string Name = Place.Name;
		const std::string Scope = Place.Variable ? Place.Variable->Scope : std::string();
		const bool bEvent = Place.IsEvent();
		const std::vector<std::string> Others = TellUses(Session, Place);
		if (Session.IsOver())
		{
			return;
		}
		const FEditOutcome Outcome = !Scope.empty() ? Session.Editor.RemoveVariable(Name, Scope, Target)
			: bEvent                                ? Session.Editor.RemoveNodes(Target.Graph, {Target.Node})
													: Session.Editor.RemoveFunction(Target.Graph);
		if (Succeeded(Session, Outcome, "remove " + Subject))
		{
			Session.Say("I removed " + Subject + ".\n");
			TellWarnings(Session, Outcome);
			TellCompile(Session, Others);
		}
	}

	void Recategorize(FEditSession& Session, const FMemberPlace& Place) const
	{
		const std::string Subject = PlaceInWords(Place);
		if (!Place.Variable || Place.Variable->Scope != "member")
		{
			Session.Say(UpperFirst(Subject) + " has no such settings; variables of a Blueprint have. I changed nothing.\n");
			return;
		}
		FVariableToAdd Changed = DescriptionOf(*Place.Variable);
		const std::string OldCategory = Changed.Category.empty() ? "Default" : Changed.Category;
		Changed.Category = Said.Text.empty() ? Changed.Category : Said.Text;
		if (!Said.FlagKey.empty())
		{
			Changed.Flags[Said.FlagKey] = Said.bFlag;
		}
		if (!Succeeded(Session, Session.Editor.EditVariable(Changed.Name, Changed), "change " + Subject))
		{
			return;
		}
		Session.Say(Said.FlagKey.empty() ? "" : TellFlag(Session, Subject, Changed.Name));
		const std::string Moved = "I moved " + Subject + " from the category " + Bold(OldCategory) + " to " + Bold(Said.Text) + ".\n";
		Session.Say(Said.Text.empty() ? std::string() : Moved);
		TellCompile(Session);
	}

	/** What the editor shows of the mark now: one that does not know it lets it pass without a word. */
	std::string TellFlag(FEditSession& Session, const std::string& Subject, const std::string& Name) const
	{
		const FBlueprintVariable* const Variable = FindVariableAt(Session.Editor.Blueprint(), {}, "member", Name);
		const bool bSet = Variable && std::find(Variable->Flags.begin(), Variable->Flags.end(), Said.FlagKey) != Variable->Flags.end();
		const std::string Flag = Bold(SpacedName(Said.FlagKey));
		return bSet != Said.bFlag ? "The editor did not take the mark " + Flag + " of " + Subject + ": set it in its details there.\n"
								  : UpperFirst(Subject) + " is " + (bSet ? "now" : "no longer") + " marked " + Flag + ".\n";
	}

	const FSaidChange Said;
};

// What a pattern's match says, where its words are a name, a type or a category as it needs them.
std::optional<FSaidChange> ReadChange(const FChangePattern& Pattern, const FEditWords& Words)
{
	const std::optional<FSplitRequest> Split = SplitRequest(Pattern.Pattern, Words);
	if (!Split || Split->Member.Element.IsSaid())
	{
		return std::nullopt;
	}
	FSaidChange Change{.Change = Pattern.Change, .Member = Split->Member};
	if (Pattern.Change == EChange::Retype)
	{
		const std::optional<FSaidType> Type = ReadType(Split->Rest, Pattern.TypeNames);
		Change.Type = Type.value_or(FSaidType());
		return Type ? std::optional<FSaidChange>(Change) : std::nullopt;
	}
	if (Pattern.Change == EChange::Rename)
	{
		Change.Text = ReadNewName(Split->Rest).value_or(std::string());
		return Change;
	}
	Change.Text = JoinWords(Split->Rest);
	return Change;
}

std::optional<FSaidChange> ReadFlag(const FEditWords& Words)
{
	const FClauses Clauses = SplitClauses(Words, {EClause::Category});
	for (const FFlagPattern& Pattern : FlagPatterns)
	{
		const std::optional<FSplitRequest> Split = SplitRequest(Pattern.Pattern, Clauses.Head);
		if (Split)
		{
			const FEditWords* const Category = Clauses.Find(EClause::Category);
			FSaidChange Change{.Change = EChange::SetFlag, .Member = Split->Member, .FlagKey = Pattern.Key, .bFlag = Pattern.bValue};
			Change.Text = Category ? JoinWords(*Category) : std::string();
			return Change;
		}
	}
	return std::nullopt;
}

bool IsClear(const FSaidChange& Change)
{
	return Change.Change != EChange::Rename || !Change.Text.empty();
}

// A removal of something that has no noun and more than a word for its name is not about a member.
bool IsOfMember(const FSaidChange& Change)
{
	const bool bOneWord = Change.Member.Names.front().find(' ') == std::string::npos;
	return Change.Change != EChange::Remove || Change.Member.Noun != EMemberNoun::Any || bOneWord;
}

FEditRequest MakeRequest(const FEditMessage& Message, FSaidChange& Change)
{
	FEditRequest Request{.Blueprint = Message.Blueprint};
	if (!ResolveSubject(Change.Member, Message))
	{
		Request.Question = "Which variable, function or event do you mean? Name it.\n";
		return Request;
	}
	if (!IsClear(Change))
	{
		Request.Question = "I understood that you want to rename " + Bold(Change.Member.Names.front()) +
			", but not to what. A name is one word, or stands in quotes.\n";
		return Request;
	}
	const bool bRenamed = Change.Change == EChange::Rename && !SubjectOf(Change.Member).empty();
	Request.Subject = bRenamed ? Change.Text : Change.Change == EChange::Remove ? std::string()
																				: SubjectOf(Change.Member);
	Request.Edit = std::make_shared<FChangeMember>(Change);
	return Request;
}

}

std::optional<FEditRequest> ReadChangeMember(const FEditMessage& Message)
{
	const std::optional<FEditMessage> Read = ReadMemberMessage(Message);
	if (std::optional<FSaidChange> Flag = Read ? ReadFlag(Read->Words) : std::nullopt)
	{
		return MakeRequest(*Read, *Flag);
	}
	for (const FChangePattern& Pattern : Patterns)
	{
		std::optional<FSaidChange> Change = Read ? ReadChange(Pattern, Read->Words) : std::nullopt;
		if (Change && IsOfMember(*Change))
		{
			return MakeRequest(*Read, *Change);
		}
	}
	return std::nullopt;
}

}
