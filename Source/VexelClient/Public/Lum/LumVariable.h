#pragma once

#include "Lum/LumProperty.h"

/** What a variable is, apart from its value. */
struct FLumVarDesc
{
	TVexelVarScopeId ScopeId;
	TVexelPropId PropId;
	TVexelPropTypeId TypeId;
	/** The editor's category; may be empty. */
	FString Category;

	/** Empty members have no key. */
	TSharedRef<FJsonObject> ToJson() const;
	static FLumVarDesc FromJson(const TSharedRef<FJsonObject>& Object);
};

/** A property that belongs to a scope of its compound: a member, a local variable, an input or an output. */
class ILumVariable : public ILumProperty
{
public:
	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const = 0;
	TVexelExpected<FLumVarDesc> GetVariableDescriptor() const;

	/** As a property's, with the scope behind it. */
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const override;
};

/** A variable that takes a new name, type or category. */
class ILumEditableVariable : public ILumVariable
{
public:
	/** Renames, retypes and recategorises to what the descriptor says; what is empty in it stays. Each change is an undo entry. */
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) = 0;

	virtual ILumEditableVariable* AsEditableVariable() override { return this; }
};
