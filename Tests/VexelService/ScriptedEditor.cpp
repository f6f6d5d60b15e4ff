#include "ScriptedEditor.h"

#include "Assistant/Assistant.h"
#include "Assistant/NameMatch.h"
#include "BlueprintJson.h"

namespace VexelService
{

namespace
{

// Open of BP_Door sets bOpen; BP_Player calls it when play begins and reads the Health of BP_Enemy.
FJson MakeOpenableDoor()
{
	FJson Open = MakeGraph("Open", "function",
		{MakeNode("Open_0", "graph.entry", {ExecOut()}),
			MakeNode("SetbOpen_0", "var.set.bOpen", {ExecIn(), DataIn("bOpen", "bool", "true"), ExecOut()})});
	Link(Open, "Open_0.then", "SetbOpen_0.execute");
	return MakeBlueprint("/Game/Doors/BP_Door.BP_Door", {Open}, {MakeVariable("bOpen", "bool", "False")});
}

FJson MakePlayer()
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()}),
			MakeNode("Open_0", "call.BP_Door_C.Open", {ExecIn(), DataIn("self", "object.BP_Door_C"), ExecOut()})});
	Link(Graph, "EventBeginPlay_0.then", "Open_0.execute");
	return MakeBlueprint("/Game/BP_Player.BP_Player", {Graph}, {MakeVariable("Door", "object.BP_Door_C", "")});
}

FJson MakeEnemy()
{
	FJson Enemy = MakeDoor();
	Enemy["id"] = "/Game/Enemies/BP_Enemy.BP_Enemy";
	return Enemy;
}

std::string PackageOf(const std::string& Path)
{
	return Path.substr(0, Path.find('.'));
}

}

FScriptedEditor::FScriptedEditor()
{
	for (FJson Blueprint : {MakeOpenableDoor(), MakeEnemy(), MakePlayer()})
	{
		Blueprints[PackageOf(Blueprint["id"])] = Blueprint;
	}
	SetTool("read_blueprint", [this](const FJson& Arguments)
		{ return ReadBlueprint(Arguments); });
	SetTool("search_assets", [this](const FJson& Arguments)
		{ return SearchAssets(Arguments); });
	SetTool("get_asset_info", [](const FJson& Arguments) -> FJson
		{
			if (Arguments.value("asset", "") != "/Game/Doors/BP_Door")
			{
				return {};
			}
			return {{"name", "BP_Door"}, {"class", "Blueprint"}, {"parent_class", "Actor"}, {"package", "/Game/Doors/BP_Door"},
				{"file", "Content/Doors/BP_Door.uasset"}, {"size", 23'456}, {"modified", "2026-01-02T03:04:05Z"},
				{"dependencies", {{"hard", {"/Script/Engine", "/Game/M_Wood"}}, {"soft", FJson::array()}}},
				{"referencers", {{"hard", {"/Game/BP_Player", "/Game/L_Harbor"}}, {"soft", FJson::array()}}}}; });
	SetTool("get_project", [](const FJson&) -> FJson
		{ return {{"name", "Harbor"}, {"file", "Harbor.uproject"}, {"engine_version", "5.7"}, {"description", "A quiet place."},
			  {"maps", {"/Game/L_Harbor.L_Harbor"}}, {"game_default_map", "/Game/L_Harbor.L_Harbor"},
			  {"config_files", {"Config/DefaultEngine.ini"}}, {"source_files", {"Source/Harbor/Door.h"}},
			  {"content", {{"total", 4}, {"by_class", {{"Blueprint", 3}, {"World", 1}}}}}}; });
	SetTool("get_source", [](const FJson& Arguments) -> FJson
		{
			if (Arguments.contains("symbol"))
			{
				return {{"symbol", Arguments.value("symbol", "")},
					{"declarations", {{{"kind", "class"}, {"name", "ADoor"}, {"file", "Source/Harbor/Door.h"}, {"first_line", 3}, {"last_line", 5},
										 {"text", "class ADoor\n{\n};\n"}}}}};
			}
			return {{"file", Arguments.value("file", "")}, {"first_line", 1}, {"last_line", 2}, {"total_lines", 2}, {"text", "[Section]\nKey=```Value\n"}}; });
	SetTool("get_scene_screenshot", [](const FJson& Arguments) -> FJson
		{ return {{"title", Arguments.value("mode", "") == "editor" ? "BP_Door - Open" : "L_Harbor"}, {"image", "iVBORw0KGgo="}}; });
}

FJson FScriptedEditor::ReadBlueprint(const FJson& Arguments) const
{
	const auto Found = Blueprints.find(PackageOf(Arguments.value("blueprint", "")));
	return Found == Blueprints.end() ? FJson() : Found->second;
}

FJson FScriptedEditor::SearchAssets(const FJson& Arguments) const
{
	FJson Assets = FJson::array();
	const std::string Query = Arguments.value("query", "");
	const auto Add = [&](const std::string& Path, const char* Class, const char* Parent)
	{
		const std::string Name = Path.substr(Path.rfind('/') + 1);
		const bool bFits = Query.empty() || EditDistance(CompactName(Query), CompactName(Name)) < Name.size();
		if (bFits && Arguments.value("class", Class) == Class)
		{
			Assets.push_back({{"path", Path + "." + Name}, {"name", Name}, {"class", Class}});
			if (*Parent)
			{
				Assets.back()["parent_class"] = Parent;
			}
		}
	};
	for (const auto& [Path, Blueprint] : Blueprints)
	{
		Add(Path, "Blueprint", "Actor");
	}
	Add("/Game/L_Harbor", "World", "");
	const std::size_t Total = Assets.size();
	const std::size_t Limit = Arguments.value("limit", std::size_t(20));
	Assets.erase(Assets.begin() + static_cast<std::ptrdiff_t>(std::min(Limit, Total)), Assets.end());
	return {{"total", Total}, {"offset", 0}, {"assets", Assets}};
}

std::string FScriptedEditor::Ask(const std::string& Question)
{
	Request.Messages.push_back({.Role = "user", .Text = Question});
	Answer.clear();
	Calls.clear();
	FChatMessage Reply{.Role = "assistant", .Text = {}};
	AnswerTurn(Request, *this);
	Reply.Text = Answer;
	for (const std::string& Call : Calls)
	{
		if (Call.starts_with("read_blueprint "))
		{
			Reply.ReadBlueprints.push_back(Call.substr(Call.find(' ') + 1));
		}
	}
	Request.Messages.push_back(Reply);
	return Answer;
}

bool FScriptedEditor::Say(std::string_view Text)
{
	Answer += Text;
	return true;
}

bool FScriptedEditor::ShowImage(std::string_view Base64)
{
	Images.emplace_back(Base64);
	return true;
}

FToolOutcome FScriptedEditor::CallTool(std::string_view ToolName, const FJson& Arguments)
{
	std::string Call(ToolName);
	for (const char* const Key : {"blueprint", "graph", "asset", "file", "symbol", "query", "class", "mode"})
	{
		Call += Arguments.contains(Key) ? " " + Arguments[Key].get<std::string>() : "";
	}
	Calls.push_back(Call);
	const auto Ended = Outcomes.find(std::string(ToolName));
	if (Ended != Outcomes.end())
	{
		return {.Status = Ended->second};
	}
	const auto Tool = Tools.find(std::string(ToolName));
	// Through its text, as it would come: numbers then are what a reader makes of them.
	const FJson Reply = Tool == Tools.end() ? FJson() : FJson::parse(Tool->second(Arguments).dump());
	return Reply.is_null() ? FToolOutcome{.Status = EToolStatus::Failed, .ErrorMessage = "no such thing"}
						   : FToolOutcome{.Status = EToolStatus::Replied, .Reply = Reply};
}

}
