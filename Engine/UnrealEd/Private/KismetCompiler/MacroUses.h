#pragma once

#include "CoreMinimal.h"

class UEdGraph;
class UK2Node;

/** What a macro brings along into the graph that uses it, through the macros that it uses in turn. */
namespace MacroUses
{
/** The node goes on after the call that started it has returned; a macro instance does when a node in the macro does. */
bool IsLatent(const UK2Node& Node);
/** Whether the macro is expanded within itself, without end. */
bool UsesItself(const UEdGraph& Macro);
}
