#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Logging/TokenizedMessage.h"
#include "UObject/WeakObjectPtr.h"

class UEdGraphNode;
class UObject;

/** A piece of a compiler's message that stands for a node, a pin or another object of a Blueprint. */
class BLUEPRINTGRAPH_API FEdGraphToken : public IMessageToken
{
public:
	static TSharedRef<FEdGraphToken> Create(const UObject* InObject);
	static TSharedRef<FEdGraphToken> Create(const UEdGraphPin* InPin);

	virtual EMessageToken::Type GetType() const override { return EMessageToken::EdGraph; }
	/** Null when the pin is gone, or when the token stands for an object. */
	const UEdGraphPin* GetPin() const { return PinBeingReferenced.Get(); }
	/** The object, or the pin's node. Null when it is gone. */
	const UObject* GetGraphObject() const { return ObjectBeingReferenced.Get(); }

private:
	FEdGraphToken(const UObject* InObject, const UEdGraphPin* InPin, const FText& Text);

	TWeakObjectPtr<const UObject> ObjectBeingReferenced;
	FEdGraphPinReference PinBeingReferenced;
};
