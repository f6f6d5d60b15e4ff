#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

class FProperty;
class UBlueprint;
class UK2Node_FunctionEntry;
class UObject;
struct FBPVariableDescription;

/**
 * The default values of a Blueprint's variables and of those of its functions, as they were when this was made: what new types have cost can
 * be told from it, also of the values that derived Blueprints and placed objects have instead.
 */
class FVexelBlueprintDefaults
{
public:
	explicit FVexelBlueprintDefaults(UBlueprint& Blueprint);

	/** A sentence for each value that the new type of its variable does not take, or takes in part; of many, the first ones. */
	TArray<FString> DescribeLost() const;

private:
	struct FMember
	{
		FGuid Guid;
		FEdGraphPinType Type;
		/** Empty where it is the one that every variable of the type starts with. */
		FString Default;
	};
	/** The local variables of a function. */
	struct FFunction
	{
		TWeakObjectPtr<UK2Node_FunctionEntry> Entry;
		TArray<FMember> Locals;
	};

	void DescribeLost(const FMember& Member, TArray<FString>& OutTexts) const;
	void DescribeLost(const FFunction& Function, TArray<FString>& OutTexts) const;

	TStrongObjectPtr<UBlueprint> Blueprint;
	TArray<FMember> Members;
	TArray<FFunction> Functions;
};
