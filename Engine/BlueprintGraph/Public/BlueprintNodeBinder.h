#pragma once

#include "CoreMinimal.h"
#include "UObject/Field.h"
#include "UObject/WeakObjectPtr.h"

class UEdGraphNode;

/** Something that a new node is bound to: an object or a property, such as the component whose event a node takes. */
using FBindingObject = FFieldVariant;

/** Binds new nodes to what they are about. */
class BLUEPRINTGRAPH_API IBlueprintNodeBinder
{
public:
	typedef TSet<FBindingObject> FBindingSet;

	virtual ~IBlueprintNodeBinder() = default;
	virtual bool IsBindingCompatible(FBindingObject BindingCandidate) const { return false; }
	virtual bool CanBindMultipleObjects() const { return false; }
	/** False when the node cannot be bound to it; the node is as before then. */
	virtual bool BindToNode(UEdGraphNode* Node, FBindingObject Binding) const { return false; }
};
