#pragma once

#include "Lum/Property/LumUnrealVirtualProperty.h"
#include "UObject/WeakObjectPtr.h"

class UBlueprint;
class UK2Node_FunctionEntry;

/** The default of a member variable that the Blueprint's class does not have yet: what is imported becomes the description's text. */
class FLumMemberVariableVirtualProperty : public FLumUnrealVirtualProperty
{
public:
	FLumMemberVariableVirtualProperty(const FValue& InValue, UBlueprint& Blueprint, FName InName);

	virtual TVexelExpected<void> OnImport() override;

private:
	TWeakObjectPtr<UBlueprint> WeakBlueprint;
	FName Name;
};

/** The default of a local variable, which its description alone has. */
class FLumLocalVariableVirtualProperty : public FLumUnrealVirtualProperty
{
public:
	FLumLocalVariableVirtualProperty(const FValue& InValue, UK2Node_FunctionEntry& Entry, FName InName);

	virtual TVexelExpected<void> OnImport() override;

private:
	TWeakObjectPtr<UK2Node_FunctionEntry> WeakEntry;
	FName Name;
};
