#pragma once

#include "EdGraph/EdGraphPin.h"
#include "Lum/LumVariable.h"
#include "UObject/WeakObjectPtr.h"

class UEdGraphNode;

/** A pin of a node: its scope is its direction, its value its default. It is exported as pins are, with its links. */
class FLumPinVariable : public ILumEditableVariable
{
public:
	/** bInEditablePin tells, on a node that has user-defined pins, whether this is one. */
	explicit FLumPinVariable(const UEdGraphPin& Pin, TOptional<bool> bInEditablePin = {});

	virtual TVexelExpected<TVexelPropId> GetPropId() const override;
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override;
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override;
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override;
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override;
	/** The pin's default; an empty string for a pin that has none by its nature. */
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext& Context) const override;
	/** Takes the pin's default as it is exported. */
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const override;
	/** Null unless a user has defined the pin and may change it. */
	virtual ILumEditableVariable* AsEditableVariable() override;
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) override;

protected:
	FName GetPinName() const { return PinName; }
	/** The pin, found again by its id, since a reconstruction replaces pins. */
	TVexelExpected<const UEdGraphPin*> GetPin() const;

private:
	TWeakObjectPtr<UEdGraphNode> WeakNode;
	FGuid PinId;
	FName PinName;
	TOptional<bool> bEditablePin;
};

/** A pin that a user has defined, as a variable of its node: without links, but with what tells that it can be changed. */
class FLumEditablePinVariable : public FLumPinVariable
{
public:
	using FLumPinVariable::FLumPinVariable;

	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const override;
};

/** An input or output of a graph: a pin of the node where the graph begins or ends, which points the other way. */
class FLumGraphInputOutputVariable : public FLumPinVariable
{
public:
	using FLumPinVariable::FLumPinVariable;

	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override;
	virtual TVexelExpected<void> SetVariableDescriptor(const FLumVarDesc& Desc) override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportPropertyObject(const FLumContext& Context) const override;
};
