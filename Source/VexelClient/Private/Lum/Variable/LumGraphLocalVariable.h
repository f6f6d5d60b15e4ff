#pragma once

#include "Lum/Variable/LumDescriptionBasedVariable.h"

class UEdGraph;
class UK2Node_FunctionEntry;

/** A local variable of a function. Its value is its default. */
class FLumGraphLocalVariable : public FLumDescriptionBasedVariable
{
public:
	FLumGraphLocalVariable(UBlueprint& Blueprint, UK2Node_FunctionEntry& Entry, FName InName);

	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> CreateLumValueWrapper() const override;
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) override;

protected:
	virtual TVexelExpected<const FBPVariableDescription*> GetBpVariableDescription() const override;

private:
	TWeakObjectPtr<UK2Node_FunctionEntry> WeakEntry;
};
