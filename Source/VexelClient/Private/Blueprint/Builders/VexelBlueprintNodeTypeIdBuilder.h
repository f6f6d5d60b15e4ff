#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

class FVexelBlueprintMapping;
class UClass;
class UEdGraphNode;

/** Says what kind of node a node is, in an id such as "call.KismetMathLibrary.Add_IntInt". Game thread. */
class FVexelBlueprintNodeTypeIdBuilder
{
public:
	/** Empty, with a log line, where no rule covers the node's class or the node lacks what its id names. */
	static TVexelNodeTypeId Create(const UEdGraphNode* Node, FVexelBlueprintMapping& Mapping);

	/** "BP_Door." of the class BP_Door_C or its skeleton; empty without a class. */
	static FString MakeOwnerPrefix(const UClass* OwnerClass);
};
