#pragma once

#include "Support/JsonText.h"

#include <string>
#include <vector>

namespace VexelService
{

/** Pins of an export, as a test writes them. */
FJson ExecIn(const std::string& Id = "execute");
FJson ExecOut(const std::string& Id = "then");
FJson DataIn(const std::string& Id, const std::string& Type, const std::string& Value = "");
FJson DataOut(const std::string& Id, const std::string& Type);

FJson MakeNode(const std::string& Id, const std::string& NodeType, std::vector<FJson> Pins);

/** A graph of the export's shape. */
FJson MakeGraph(const std::string& Id, const std::string& GraphType, std::vector<FJson> Nodes);

/** Wires two pins of a graph, "Node.Pin" each, at both ends as the export does. */
void Link(FJson& Graph, const std::string& From, const std::string& To);

FJson MakeVariable(const std::string& Id, const std::string& Type, const std::string& Value, const std::string& Scope = "member");

FJson MakeBlueprint(const std::string& Path, std::vector<FJson> Graphs, std::vector<FJson> Variables = {});

/** BeginPlay of BP_Door: if Health <= 0 it destroys itself, else it prints "Hello". */
FJson MakeDoor();

}
