#pragma once

#include "CoreMinimal.h"
#include "Math/Color.h"

class UEdGraphNode;
class UEdGraphPin;
struct FEdGraphPinType;

/** The form in which a node is drawn. */
enum class ENodeForm : uint8
{
	/** With a header that has the title. */
	Full,
	/** Without a header: what it reads stands beside its pin. */
	Variable,
	/** Without a header: a sign in its middle. */
	Compact,
	/** A bend of a wire. */
	Knot,
	/** A box behind other nodes. */
	Comment
};

/** How the editor's users know nodes and pins: by their colours and forms. */
namespace NodeLook
{
ENodeForm GetForm(const UEdGraphNode& Node);
bool ShowsPinName(const UEdGraphPin& Pin);
FColor GetTitleColor(const UEdGraphNode& Node);
FColor GetPinColor(const FEdGraphPinType& Type);
}
