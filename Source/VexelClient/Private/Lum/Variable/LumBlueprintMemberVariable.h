#pragma once

#include "Lum/Variable/LumDescriptionBasedVariable.h"

/** A member variable that a Blueprint declares. Its value is its default, which the class default object holds. */
class FLumBlueprintMemberVariable : public FLumDescriptionBasedVariable
{
public:
	using FLumDescriptionBasedVariable::FLumDescriptionBasedVariable;

	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override;
	virtual TVexelExpected<TArray<ELumVarFlag>> GetVariableFlags() const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> CreateLumValueWrapper() const override;
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) override;

protected:
	virtual TVexelExpected<const FBPVariableDescription*> GetBpVariableDescription() const override;

private:
	/** The default object's own value; null until a compile has given the class the variable as it is described now. */
	TSharedPtr<ILumProperty> FindCompiledValue(const UBlueprint& Blueprint, const FBPVariableDescription& Description) const;
};
