#pragma once

#include "Lum/Variable/LumDescriptionBasedVariable.h"

/** A member variable that a Blueprint declares. Its value is its default, which the class default object holds. */
class FLumBlueprintMemberVariable : public FLumDescriptionBasedVariable
{
public:
	using FLumDescriptionBasedVariable::FLumDescriptionBasedVariable;

	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override;
	virtual TVexelExpected<TSharedPtr<ILumProperty>> CreateLumValueWrapper() const override;

protected:
	virtual TVexelExpected<const FBPVariableDescription*> GetBpVariableDescription() const override;
};
