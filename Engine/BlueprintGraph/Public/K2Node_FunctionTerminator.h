#pragma once

#include "Engine/MemberReference.h"
#include "K2Node_EditablePinBase.h"

#include "K2Node_FunctionTerminator.generated.h"

/** An end of a function's graph. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_FunctionTerminator : public UK2Node_EditablePinBase
{
	GENERATED_BODY()

public:
	/** Function that this graph overrides; for a function of the Blueprint itself, its name alone. */
	UPROPERTY()
	FMemberReference FunctionReference;

	virtual bool HasKnownDefinition() const override;
	/** The overridden function; null for a function of the Blueprint itself. */
	UFunction* FindSignatureFunction() const;

protected:
	/** Makes pins for the function's parameters: those that go in when bForFunctionEntry, else those that come out. */
	bool CreatePinsForFunctionEntryExit(const UFunction* Function, bool bForFunctionEntry);
};
