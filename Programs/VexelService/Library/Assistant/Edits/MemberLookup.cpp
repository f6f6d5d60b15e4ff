#include "MemberLookup.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/BlueprintEntries.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <cctype>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxSaid = 100;

bool IsUpper(char Character)
{
	return std::isupper(static_cast<unsigned char>(Character)) != 0;
}

// Where a name stands among others: itself, or with the "b" that Booleans begin with; or the one that was probably meant.
std::optional<FNameMatch> FindMember(std::string_view Said, const std::vector<std::string>& Names)
{
	for (const std::string& Form : {std::string(Said), "b" + std::string(Said)})
	{
		const auto Found = std::find_if(Names.begin(), Names.end(), [&Form](const std::string& Name)
			{ return SameName(Form, Name); });
		if (Found != Names.end())
		{
			return FNameMatch{static_cast<std::size_t>(Found - Names.begin()), true};
		}
	}
	std::optional<FNameMatch> Near = FindName(Said, Names);
	if (Near)
	{
		Near->bExact = false;
	}
	return Near;
}

template <typename T, typename FNameOf>
TMemberMatch<T> Match(std::string_view Said, const std::vector<const T*>& Items, FNameOf NameOf)
{
	std::vector<std::string> Names;
	for (const T* const Item : Items)
	{
		Names.push_back(NameOf(*Item));
	}
	const std::optional<FNameMatch> Found = FindMember(Said, Names);
	if (!Found)
	{
		return {};
	}
	return Found->bExact ? TMemberMatch<T>{Items[Found->Index]} : TMemberMatch<T>{nullptr, Names[Found->Index]};
}

/** The asset of a name that a user says, with its tag or without; nothing when there is none. */
std::optional<FAssetRow> FindAsset(FEditSession& Session, const std::string& Name)
{
	const std::string Said = ShortName(Name);
	const std::optional<FAssetList> List = Session.Editor.GetReader().SearchAssets({.Words = Said, .Class = {}});
	for (const bool bWithTag : {true, false})
	{
		for (const FAssetRow& Row : List ? List->Rows : std::vector<FAssetRow>())
		{
			const bool bTagged = IsPrefixedAssetName(Row.Name);
			const std::string Own = !bWithTag && bTagged ? Row.Name.substr(Row.Name.find('_') + 1) : Row.Name;
			if (SameName(Own, Said))
			{
				return Row;
			}
		}
	}
	return std::nullopt;
}

// "AActor" and "FVector" as the editor calls them.
std::string WithoutClassPrefix(const std::string& Name, std::string_view Prefixes)
{
	const bool bPrefixed = Name.size() > 2 && Prefixes.find(Name[0]) != std::string_view::npos && IsUpper(Name[1]) && !IsUpper(Name[2]);
	return bPrefixed ? Name.substr(1) : Name;
}

std::vector<std::string> NativeCandidates(const std::string& Category, const std::string& Name)
{
	if (!Category.empty())
	{
		return {Category + "." + WithoutClassPrefix(Name, Category == "struct" ? "F" : Category == "enum" ? ""
																										  : "AUI")};
	}
	const bool bEnum = Name.size() > 2 && Name[0] == 'E' && (IsUpper(Name[1]) || Name[1] == '_');
	if (bEnum)
	{
		return {"enum." + Name, "object." + Name};
	}
	const bool bStruct = StartsWith(Name, "S_") || StartsWith(Name, "ST_") || StartsWith(Name, "F_") || WithoutClassPrefix(Name, "F") != Name;
	if (bStruct)
	{
		return {"struct." + WithoutClassPrefix(Name, "F"), "object." + Name};
	}
	const std::string Class = WithoutClassPrefix(Name, "AUI");
	return {"object." + Class, "struct." + Name, "enum." + Name};
}

std::vector<std::string> ResolveTerminal(FEditSession& Session, const FSaidTerminal& Terminal)
{
	const bool bKnown =
		Terminal.Category == "struct" && IsOneOf(Terminal.Name, "Vector|Vector2D|Vector4|Rotator|Transform|LinearColor|Color");
	if (Terminal.Name.empty() || bKnown)
	{
		return {TerminalTypeId(Terminal)};
	}
	const std::optional<FAssetRow> Asset = FindAsset(Session, Terminal.Name);
	const bool bStruct = Asset && Asset->Class == "UserDefinedStruct";
	const bool bEnum = Asset && Asset->Class == "UserDefinedEnum";
	if (bStruct || bEnum)
	{
		return {(bStruct ? "struct." : "enum.") + Asset->Name};
	}
	if (Asset && IsBlueprintLike(*Asset))
	{
		return {(Terminal.Category.empty() ? "object" : Terminal.Category) + "." + Asset->Name};
	}
	return NativeCandidates(Terminal.Category, Terminal.Name);
}

FWireValue ResolveReference(FEditSession& Session, const FEditWords& Said, const std::string& TypeId)
{
	if (SaysNothing(Said))
	{
		return {.Json = "ref|None"};
	}
	const std::string Text = JoinWords(Said);
	const bool bPath = StartsWith(Text, "/");
	const std::optional<FAssetRow> Asset = bPath ? std::nullopt : FindAsset(Session, Text);
	if (!bPath && !Asset)
	{
		return {.Json = {}, .Problem = "I find no asset called " + Quoted(Text) + " for it; name one, or give its path."};
	}
	std::string Path = bPath ? Text : Asset->Path;
	if (Path.find('.') == std::string::npos)
	{
		Path += "." + std::string(LastSegment(Path, '/'));
	}
	const std::string_view Category = std::string_view(TypeId).substr(0, TypeId.find('.'));
	const bool bClass = IsOneOf(Category, "class|softclass") && !StartsWith(Path, "/Script/") && Path.substr(Path.size() - 2) != "_C";
	return {.Json = "ref|" + Path + (bClass ? "_C" : "")};
}

FWireValue ResolveTerminalValue(FEditSession& Session, const FEditWords& Said, const std::string& TypeId, EValueForm Form)
{
	return IsReferenceType(TypeId) ? ResolveReference(Session, Said, TypeId) : MakeWireValue(Said, TypeId, Form);
}

// "Gold = 5" and "Gold: 5" are an entry of a map.
FWireValue ResolveEntry(FEditSession& Session, const FEditWords& Said, const FTypeParts& Type)
{
	const auto Between = std::find_if(Said.begin(), Said.end(), [](const FEditWord& Word)
		{ return !Word.bQuoted && (Word.Text == "=" || Word.Text == ":" || Word.Text == "->" || IsWord(Word, "is|to")); });
	if (Between == Said.begin() || Said.end() - Between < 2)
	{
		return {.Json = {}, .Problem = "A map's entry has a key and a value: say it as \"Key = Value\"."};
	}
	const FWireValue Key = ResolveTerminalValue(Session, FEditWords(Said.begin(), Between), Type.Element, EValueForm::Property);
	const FWireValue Value = ResolveTerminalValue(Session, FEditWords(Between + 1, Said.end()), Type.Value, EValueForm::Property);
	if (!Key.Json || !Value.Json)
	{
		return Key.Json ? Value : Key;
	}
	return {.Json = FJson{{"key", *Key.Json}, {"value", *Value.Json}}};
}

}

TMemberMatch<FBlueprintVariable> FindVariable(
	const std::vector<FBlueprintVariable>& Variables, std::string_view Said, std::string_view Scope)
{
	std::vector<const FBlueprintVariable*> InScope;
	for (const FBlueprintVariable& Variable : Variables)
	{
		if (Variable.Scope == Scope)
		{
			InScope.push_back(&Variable);
		}
	}
	return Match(Said, InScope, [](const FBlueprintVariable& Variable)
		{ return Variable.Id; });
}

const FBlueprintVariable* FindVariableAt(
	const FBlueprintModel& Model, const FEditTarget& Target, std::string_view Scope, std::string_view Name)
{
	const FBlueprintGraph* const Graph = Target.Graph.empty() ? nullptr : Model.FindGraph(Target.Graph);
	const FBlueprintNode* const Node = Graph && !Target.Node.empty() ? Graph->FindNode(Target.Node) : nullptr;
	const bool bMissing = (!Target.Graph.empty() && !Graph) || (!Target.Node.empty() && !Node);
	static const std::vector<FBlueprintVariable> None;
	const std::vector<FBlueprintVariable>& Variables = bMissing ? None : Node ? Node->EditablePins
		: Graph                                                               ? Graph->Variables
																			  : Model.Variables;
	const auto Found = std::find_if(Variables.begin(), Variables.end(), [&](const FBlueprintVariable& Variable)
		{ return Variable.Scope == Scope && EqualIgnoringCase(Variable.Id, Name); });
	return Found == Variables.end() ? nullptr : &*Found;
}

TMemberMatch<FBlueprintGraph> FindFunction(const FBlueprintModel& Model, std::string_view Said)
{
	std::vector<const FBlueprintGraph*> Functions;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		if (Graph.Kind == EGraphKind::Function && Graph.Id != ConstructionScript)
		{
			Functions.push_back(&Graph);
		}
	}
	return Match(Said, Functions, [](const FBlueprintGraph& Graph)
		{ return Graph.Title(); });
}

FEventNode FindCustomEvent(const FBlueprintModel& Model, std::string_view Said)
{
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (IsNodeType(Node, "event.custom") && SameName(Node.Name.empty() ? NodeTitle(Node) : Node.Name, Said))
			{
				return {&Graph, &Node};
			}
		}
	}
	return {};
}

std::string TellMissing(const FBlueprintModel& Model, const std::string& Noun, const std::string& Said, const std::string& Nearest)
{
	return Bold(Model.Name) + " has no " + Noun + " called " + Quoted(Said) + ". " +
		(Nearest.empty() ? "" : "The nearest is " + Bold(Nearest) + "; name it if you mean that. ") + "I changed nothing.\n";
}

namespace
{

struct FScopeNoun
{
	const char* Scope;
	const char* Noun;
};

std::vector<FScopeNoun> ScopesOf(EMemberNoun Noun)
{
	static constexpr FScopeNoun Input{"in", "input"};
	static constexpr FScopeNoun Output{"out", "output"};
	static constexpr FScopeNoun Local{"local", "local variable"};
	switch (Noun)
	{
		case EMemberNoun::Input:
			return {Input};
		case EMemberNoun::Output:
			return {Output};
		case EMemberNoun::LocalVariable:
		case EMemberNoun::Variable:
			return {Local, Input, Output};
		default:
			return {Input, Output, Local};
	}
}

FMemberPlace FindParameter(const FBlueprintModel& Model, const FSaidMember& Said, const std::string& Owner)
{
	const TMemberMatch<FBlueprintGraph> Function = FindFunction(Model, Owner);
	const FEventNode Event = Function.Found ? FEventNode() : FindCustomEvent(Model, Owner);
	if (!Function.Found && !Event.Node)
	{
		return {.Problem = TellMissing(Model, "function or custom event", Owner, Function.Nearest)};
	}
	const std::string& Name = Said.Names.front();
	FMemberPlace Place;
	Place.Target = Event.Node ? FEditTarget{Event.Graph->Id, Event.Node->Id} : FEditTarget{Function.Found->Id};
	std::string Nearest;
	// What goes into an event comes out of its node.
	const std::vector<FScopeNoun> Scopes = Event.Node ? std::vector<FScopeNoun>{{"out", "input"}, {"in", "input"}} : ScopesOf(Said.Noun);
	for (const FScopeNoun& Scope : Scopes)
	{
		const TMemberMatch<FBlueprintVariable> Match =
			FindVariable(Event.Node ? Event.Node->EditablePins : Function.Found->Variables, Name, Scope.Scope);
		if (Match.Found)
		{
			Place.Variable = Match.Found;
			Place.Name = Match.Found->Id;
			Place.Owner = Function.Found ? Function.Found->Title() : Owner;
			Place.Noun = Scope.Noun;
			return Place;
		}
		Nearest = Nearest.empty() ? Match.Nearest : Nearest;
	}
	const bool bNoun = Said.Noun != EMemberNoun::Any && Said.Noun != EMemberNoun::Variable;
	Place.Problem = TellMissing(Model, bNoun ? Scopes.front().Noun : "input, output or local variable", Name, Nearest);
	return Place;
}

}

FMemberPlace FindMemberPlace(const FBlueprintModel& Model, const FSaidMember& Said)
{
	const std::string& Name = Said.Names.front();
	const std::string Owner = !Said.Owner.empty() ? Said.Owner : Said.Names.size() > 1 ? Said.Names[1]
																					   : std::string();
	if (!Owner.empty())
	{
		return FindParameter(Model, Said, Owner);
	}
	const bool bOfFunction = Said.Noun == EMemberNoun::Input || Said.Noun == EMemberNoun::Output || Said.Noun == EMemberNoun::LocalVariable;
	if (bOfFunction)
	{
		return {.Problem = "Of which function or event is " + Bold(Name) + "? Add \"of the function ...\".\n"};
	}
	const bool bAny = Said.Noun == EMemberNoun::Any;
	std::string Nearest;
	if (bAny || Said.Noun == EMemberNoun::Variable)
	{
		const TMemberMatch<FBlueprintVariable> Match = FindVariable(Model.Variables, Name, "member");
		if (Match.Found)
		{
			return {.Variable = Match.Found, .Name = Match.Found->Id, .Noun = "variable"};
		}
		Nearest = Match.Nearest;
	}
	if (bAny || Said.Noun == EMemberNoun::Function)
	{
		const TMemberMatch<FBlueprintGraph> Match = FindFunction(Model, Name);
		if (Match.Found)
		{
			return {.Target = {.Graph = Match.Found->Id}, .Name = Match.Found->Title(), .Noun = "function"};
		}
		Nearest = Nearest.empty() ? Match.Nearest : Nearest;
	}
	const FEventNode Event = bAny || Said.Noun == EMemberNoun::Event ? FindCustomEvent(Model, Name) : FEventNode();
	if (Event.Node)
	{
		const std::string& OwnName = Event.Node->Name;
		return {.Target = {Event.Graph->Id, Event.Node->Id}, .Name = OwnName.empty() ? Name : OwnName, .Noun = "event"};
	}
	const char* const Noun = bAny ? "variable, function or custom event" : Said.Noun == EMemberNoun::Variable ? "variable"
		: Said.Noun == EMemberNoun::Function                                                                  ? "function"
																											  : "custom event";
	return {.Problem = TellMissing(Model, Noun, Name, Nearest)};
}

std::vector<std::string> ResolveType(FEditSession& Session, const FSaidType& Type)
{
	const std::vector<std::string> Elements = ResolveTerminal(Session, Type.Element);
	const std::vector<std::string> Values = Type.Container == "map" ? ResolveTerminal(Session, Type.Value) : std::vector<std::string>{""};
	std::vector<std::string> Ids;
	for (const std::string& Element : Elements)
	{
		for (const std::string& Value : Values)
		{
			Ids.push_back(MakeTypeId(Type.Container, Element, Value));
		}
	}
	return Ids;
}

FWireValue ResolveValue(FEditSession& Session, const FEditWords& Said, const std::string& TypeId, EValueForm Form)
{
	const FTypeParts Parts = SplitTypeId(TypeId);
	if (Parts.Container.empty())
	{
		return ResolveTerminalValue(Session, Said, Parts.Element, Form);
	}
	if (Form == EValueForm::Pin)
	{
		return {.Json = {}, .Problem = "An input or an output that holds several values has no default."};
	}
	FJson Elements = FJson::object();
	if (SaysNothing(Said))
	{
		return {.Json = Elements};
	}
	for (const FEditWords& Element : SplitListWords(Said, Parts.Element))
	{
		const bool bMap = Parts.Container == "map";
		const FWireValue Value = bMap ? ResolveEntry(Session, Element, Parts) : ResolveTerminalValue(Session, Element, Parts.Element, Form);
		if (!Value.Json)
		{
			return Value;
		}
		Elements[std::to_string(Elements.size())] = *Value.Json;
	}
	return {.Json = Elements};
}

}
