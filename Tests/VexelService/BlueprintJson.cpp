#include "BlueprintJson.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace VexelService
{

namespace
{

FJson MakePin(const std::string& Id, const char* Direction, const std::string& Type)
{
	return {{"id", Id}, {"dir", Direction}, {"guid", "00000000000000000000000000000000"}, {"name", Id}, {"type", Type}};
}

FJson& FindById(FJson& List, const std::string& Id)
{
	for (FJson& Item : List)
	{
		if (Item["id"] == Id)
		{
			return Item;
		}
	}
	std::fprintf(stderr, "the test's graph has no \"%s\"\n", Id.c_str());
	std::abort();
}

}

FJson ExecIn(const std::string& Id)
{
	return MakePin(Id, "input", "exec");
}

FJson ExecOut(const std::string& Id)
{
	return MakePin(Id, "output", "exec");
}

FJson DataIn(const std::string& Id, const std::string& Type, const std::string& Value)
{
	FJson Pin = MakePin(Id, "input", Type);
	if (!Value.empty())
	{
		Pin["value"] = Value;
	}
	return Pin;
}

FJson DataOut(const std::string& Id, const std::string& Type)
{
	return MakePin(Id, "output", Type);
}

FJson MakeNode(const std::string& Id, const std::string& NodeType, std::vector<FJson> Pins)
{
	return {{"type", "object.K2Node"}, {"id", Id}, {"node_type", NodeType}, {"guid", "00000000000000000000000000000000"},
		{"pins", std::move(Pins)}};
}

FJson MakeGraph(const std::string& Id, const std::string& GraphType, std::vector<FJson> Nodes)
{
	return {{"type", "object.EdGraph"}, {"graph_type", GraphType}, {"id", Id}, {"name", Id}, {"nodes", std::move(Nodes)}};
}

void Link(FJson& Graph, const std::string& From, const std::string& To)
{
	const auto Half = [](const std::string& End, bool bPin)
	{ return bPin ? End.substr(End.find('.') + 1) : End.substr(0, End.find('.')); };
	const auto Connect = [&](const std::string& At, const std::string& Other)
	{
		FJson& Pin = FindById(FindById(Graph["nodes"], Half(At, false))["pins"], Half(At, true));
		Pin["connections"].push_back({{"node", Half(Other, false)}, {"pin", Half(Other, true)}, {"guid", ""}});
	};
	Connect(From, To);
	Connect(To, From);
}

FJson MakeVariable(const std::string& Id, const std::string& Type, const std::string& Value, const std::string& Scope)
{
	return {{"id", Id}, {"declared_in", "object.BP_Door"}, {"type", Type}, {"value", Value}, {"category", "Default"}, {"scope", Scope}};
}

FJson MakeBlueprint(const std::string& Path, std::vector<FJson> Graphs, std::vector<FJson> Variables)
{
	return {{"type", "object.Blueprint"}, {"id", Path}, {"parent_chain", {"Actor", "Object"}}, {"bp_type", "normal"},
		{"graphs", std::move(Graphs)}, {"variables", std::move(Variables)}};
}

FJson MakeDoor()
{
	FJson Graph = MakeGraph("EventGraph", "ubergraph",
		{
			MakeNode("EventBeginPlay_0", "event.Actor.ReceiveBeginPlay", {ExecOut()}),
			MakeNode("Branch_0", "flow.if", {ExecIn(), DataIn("Condition", "bool"), ExecOut("then"), ExecOut("else")}),
			MakeNode("GetHealth_0", "var.get.Health", {DataOut("Health", "real")}),
			MakeNode(
				"LessEqual_0", "call.op.LessEqual", {DataIn("A", "real"), DataIn("B", "real", "0.000000"), DataOut("ReturnValue", "bool")}),
			MakeNode("DestroyActor_0", "call.Actor.K2_DestroyActor", {ExecIn(), DataIn("self", "object.Actor"), ExecOut()}),
			MakeNode("PrintString_0", "call.KismetSystemLibrary.PrintString",
				{ExecIn(), DataIn("InString", "string", "Hello"), DataIn("bPrintToScreen", "bool", "true"), ExecOut()}),
		});
	Link(Graph, "EventBeginPlay_0.then", "Branch_0.execute");
	Link(Graph, "GetHealth_0.Health", "LessEqual_0.A");
	Link(Graph, "LessEqual_0.ReturnValue", "Branch_0.Condition");
	Link(Graph, "Branch_0.then", "DestroyActor_0.execute");
	Link(Graph, "Branch_0.else", "PrintString_0.execute");
	return MakeBlueprint("/Game/BP_Door.BP_Door", {Graph}, {MakeVariable("Health", "real", "100.000000")});
}

}
