#pragma once

#include "CoreMinimal.h"

class UEdGraphNode;
class UEdGraphPin;

/** The values that flow into nodes, written as expressions: "Health - Damage", "Get Actor Location(Target: Door)". */
namespace PinExpression
{
/** A node's title on one line. */
FString GetTitle(const UEdGraphNode& Node);

/** A pin as the user reads it. */
FString GetName(const UEdGraphPin& Pin);

bool IsExec(const UEdGraphPin& Pin);

/** Whether a node only computes values: no execution wire runs through it. */
bool IsPure(const UEdGraphNode& Node);

/** The pin that a wire really comes from or goes to, behind any reroute nodes; null where it ends at one. */
const UEdGraphPin* FollowReroutes(const UEdGraphPin& Linked);

/** An input's value; empty where it has none that anybody set. Adds the pure nodes that it is computed by to Used. */
FString GetInput(const UEdGraphPin& Pin, TSet<const UEdGraphNode*>& Used);
}
