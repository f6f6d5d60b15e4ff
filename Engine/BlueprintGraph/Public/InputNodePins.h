#pragma once

#include "CoreMinimal.h"

class UEdGraphNode;
struct FKey;

/** What the nodes about keys and actions have in common. */
struct BLUEPRINTGRAPH_API FInputNodePins
{
	/** The outputs "Pressed", "Released" and "Key". */
	static void CreateKeyPins(UEdGraphNode& Node);
	/** The key with the modifiers that must be held: "Ctrl+Shift+A". */
	static FText GetKeyText(const FKey& Key, bool bControl, bool bAlt, bool bShift, bool bCommand);
};
