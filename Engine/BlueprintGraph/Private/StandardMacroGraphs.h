#pragma once

#include "CoreMinimal.h"

class UEdGraph;

/**
 * Puts the nodes between the ends of one of the standard macros; its graph has its entry and exit with their pins. What could not be
 * wired, because a function that it calls is not declared, is logged. False then, and for a graph of another name.
 */
bool WireStandardMacro(UEdGraph& Graph);
