#include "MemberReport.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/FlowReport.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/UsageSearch.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxShownMessages = 10;
constexpr std::size_t MaxShownUses = 10;
constexpr std::size_t MaxShownValue = 200;
constexpr std::size_t MaxOtherUsers = 20;

struct FExplanation
{
	/** Stands in the editor's text. */
	std::string_view Text;
	const char* Meaning;
};

// What the editor's errors mean to somebody who does not know its inside. The first that fits is told.
constexpr FExplanation Explanations[] = {
	{"already exists", "The name is taken."},
	{"Failed to load subcategory object", "It knows no class, struct or enumeration of that name."},
	{"Unknown collection type", "It knows no such type."},
	{"Failed to add variable", "It does not take the name or the type."},
	{"Failed to import text", "The value does not fit the type."},
	{"reference string", "The value is no reference to an object."},
	{"does not contain a valid compound", "There is no such object in the class's defaults."},
	{"is not a compound", "There is no such object in the class's defaults, or it has no properties of its own."},
	{"out of range", "There is no such place in the list."},
	{"is not editable", "The editor does not let it be changed."},
	{"not found in compound", "There is no property of that name."},
	{"Cannot add input pins", "It takes no such pin."},
};

// The editor's words without where in its own inside the error went by.
std::string CoreOfError(const std::string& Error)
{
	constexpr std::string_view Operation = "Failed to execute operation on target '";
	const std::size_t Target = StartsWith(Error, Operation) ? Error.find("': ", Operation.size()) : std::string::npos;
	const std::size_t Begin = Target == std::string::npos ? 0 : Target + 3;
	return Error.substr(Begin, Error.find(", while ", Begin) - Begin);
}

std::string TellUses(const FBlueprintModel& Model, const std::string& Name, std::vector<std::string> Uses)
{
	std::transform(Uses.begin(), Uses.end(), Uses.begin(), &UpperFirst);
	return Bold(Name) + " is used in " + CountOf(Uses.size(), "place") + " of " + Bold(Model.Name) + ":\n\n" + BulletList(Uses, MaxShownUses);
}

/** Blueprints that refer to this one, and use a member of that name which is none of their own. */
std::vector<const FBlueprintModel*> FindOtherUsers(FEditSession& Session, const std::string& Name)
{
	FProjectReader& Reader = Session.Editor.GetReader();
	const std::optional<FJson> Info = Reader.ReadAssetInfo(PackageOf(Session.Editor.GetPath()));
	const std::vector<std::string> Packages = Info ? FindReferencers(*Info) : std::vector<std::string>();
	const std::optional<std::vector<FAssetRow>> Rows = Packages.empty() ? std::nullopt : Reader.FindBlueprints(Packages, MaxOtherUsers);
	std::vector<const FBlueprintModel*> Users;
	for (const FAssetRow& Row : Rows.value_or(std::vector<FAssetRow>()))
	{
		const FBlueprintModel* const Model = Reader.ReadBlueprint(Row.Path);
		const std::vector<std::string> Own = Model ? MemberNames(*Model) : std::vector<std::string>();
		const bool bOwn = std::any_of(Own.begin(), Own.end(), [&Name](const std::string& Member)
			{ return SameName(Member, Name); });
		if (Model && !bOwn && !FindMemberUses(*Model, Name).empty())
		{
			Users.push_back(Model);
		}
	}
	return Users;
}

}

void TellWarnings(FEditSession& Session, const FEditOutcome& Outcome)
{
	if (!Outcome.Warnings.empty())
	{
		Session.Say("This does not stay as it was:\n\n" + BulletList(Outcome.Warnings, MaxShownMessages) + "\n");
	}
}

void TellCompile(FEditSession& Session, const std::vector<std::string>& Others)
{
	const auto Tell = [&Session](FProjectEditor& Editor, const char* Before)
	{
		const FCompileOutcome Outcome = Editor.Compile();
		if (!Session.IsOver())
		{
			Session.Say(Before + DescribeCompile(Outcome, ShortName(Editor.GetPath())));
		}
	};
	if (!Session.IsOver())
	{
		Tell(Session.Editor, "");
	}
	for (std::size_t Index = 0; Index < Others.size() && !Session.IsOver(); ++Index)
	{
		FProjectEditor Other(Session.Editor.GetReader(), Others[Index]);
		Tell(Other, "\n");
	}
}

void TellRefusal(FEditSession& Session, const std::string& What, const std::vector<std::string>& Errors)
{
	if (Session.IsOver())
	{
		return;
	}
	std::string Text = "I could not " + What + ", and left everything as it was.";
	for (const std::string& Error : Errors)
	{
		const auto Meaning = std::find_if(std::begin(Explanations), std::end(Explanations), [&Error](const FExplanation& Row)
			{ return Error.find(Row.Text) != std::string::npos; });
		Text += Meaning == std::end(Explanations) ? std::string() : " " + std::string(Meaning->Meaning);
		Text += " The editor says: " + Code(CoreOfError(Error));
	}
	Session.Say(Text + "\n");
}

std::vector<std::string> TellUsesBefore(FEditSession& Session, const std::string& Name)
{
	const FBlueprintModel& Model = Session.Editor.Blueprint();
	const std::vector<std::string> Uses = FindMemberUses(Model, Name);
	std::string Text = Uses.empty() ? std::string() : TellUses(Model, Name, Uses) + "\n";
	std::vector<std::string> Others;
	for (const FBlueprintModel* const User : FindOtherUsers(Session, Name))
	{
		Text += TellUses(*User, Name, FindMemberUses(*User, Name)) + "\n";
		Others.push_back(User->Id);
	}
	Session.Say(Text.empty() ? "No step uses " + Bold(Name) + ".\n\n" : Text);
	return Others;
}

void TellWiresBefore(FEditSession& Session, const FEditTarget& Target, const std::string& Name)
{
	const FBlueprintGraph* const Graph = Session.Editor.FindGraph(Target.Graph);
	const std::size_t NumNodes = Graph ? Graph->Nodes.size() : 0;
	std::size_t NumWires = 0;
	for (std::size_t Index = 0; Index < NumNodes; ++Index)
	{
		const FBlueprintNode& Node = Graph->Nodes[Index];
		const bool bEnd = IsNodeType(Node, "graph.entry") || IsNodeType(Node, "graph.return");
		const FBlueprintPin* const Pin = (Target.Node.empty() ? bEnd : Node.Id == Target.Node) ? Node.FindPin(Name) : nullptr;
		NumWires += Pin ? Pin->Links.size() : 0;
	}
	Session.Say(NumWires == 0 ? "No wire leads from or to " + Bold(Name) + ".\n\n"
							  : UpperFirst(CountOf(NumWires, "wire")) + (NumWires == 1 ? " leads" : " lead") + " from or to " + Bold(Name) + ".\n\n");
}

std::string ShownValue(const std::string& Value, const std::string& TypeId)
{
	if (Value == "()")
	{
		return "empty";
	}
	const std::string Words = LiteralInWords(Value, TypeId);
	return Shortened(Words.empty() ? (Value.empty() ? "empty" : Value) : Words, MaxShownValue);
}

std::string DescribeVariable(const FBlueprintVariable& Variable)
{
	const bool bHasValue = Variable.Type != "mcdelegate";
	const std::string Text = TypeInWords(Variable.Type) + (bHasValue ? ", default " + ShownValue(Variable.Value, Variable.Type) : "");
	return Variable.Category.empty() || Variable.Category == "Default" ? Text : Text + ", category " + Variable.Category;
}

}
