#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"

class UK2Node;
class UK2Node_EditablePinBase;
class UK2Node_Variable;

/**
 * The nodes of all loaded Blueprints that show a parameter which an end of a function or macro, or an event, declares: calls, overrides,
 * uses of a macro, and inside the function the nodes that get the parameter.
 */
class FLumParameterPins
{
public:
	/** Looks for them while the declaration is as they know it. NodeDirection is the parameter's on the declaring node. */
	FLumParameterPins(const UK2Node_EditablePinBase& Declaring, FName InName, EEdGraphPinDirection NodeDirection);

	/** Has the pins bear the new name, which keeps their links when the nodes make their pins again. */
	void Rename(FName NewName);
	/** When the type has changed: makes the pins again of the nodes that get the parameter, which nothing else does, and mends the links of all. */
	void FollowType() const;

private:
	void FindGetters(const UK2Node_EditablePinBase& Declaring);

	FName Name;
	/** On the nodes outside: what goes in there comes out of the declaring node. */
	EEdGraphPinDirection OuterDirection;
	TArray<UK2Node*> Users;
	TArray<UK2Node_Variable*> Getters;
};
