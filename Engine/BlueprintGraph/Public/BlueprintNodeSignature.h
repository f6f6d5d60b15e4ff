#pragma once

#include "CoreMinimal.h"

class UClass;
class UEdGraphNode;
class UObject;

/** What tells one action from all others: the node's class and what the node is about. The same from run to run. */
struct BLUEPRINTGRAPH_API FBlueprintNodeSignature
{
	FBlueprintNodeSignature() = default;
	explicit FBlueprintNodeSignature(const UClass* NodeClass);

	/** An empty part is left out. */
	void AddSubObject(const UObject* SignatureObj);
	void AddNamedValue(FName SignatureKey, const FString& Value);
	bool IsValid() const { return !Signature.IsEmpty(); }
	const FString& ToString() const { return Signature; }

private:
	FString Signature;
};
