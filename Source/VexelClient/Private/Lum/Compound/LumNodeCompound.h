#pragma once

#include "Lum/LumCompound.h"
#include "UObject/WeakObjectPtr.h"

class FLumPinVariable;
class UEdGraphNode;
class UEdGraphPin;
class UK2Node_EditablePinBase;

/** A node: its name where it can be changed, and its pins as properties. */
class FLumNodeCompound : public ILumCompound
{
public:
	/** The compound for the node's kind. */
	static TSharedRef<FLumNodeCompound> Create(UEdGraphNode& Node);

	explicit FLumNodeCompound(UEdGraphNode& Node);

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

	/** Makes the property of one pin. */
	virtual TSharedRef<FLumPinVariable> MakePin(const UEdGraphNode& Node, const UEdGraphPin& Pin) const;
	/** Hands over the pins that are variables. */
	virtual TVexelExpected<void> IterateEditablePins(ILumPropertyCollector& Collector) const { return {}; }
	TVexelExpected<UEdGraphNode*> GetNode() const;

private:
	TVexelExpected<void> IterateName(ILumPropertyCollector& Collector) const;
	/** bSkipHidden leaves out pins that a user neither sees nor has linked. */
	TVexelExpected<void> IteratePins(ILumPropertyCollector& Collector, bool bSkipHidden) const;

	TWeakObjectPtr<UEdGraphNode> WeakNode;
};

/** A node with pins that a user defines. They are its variables too. */
class FLumEditablePinsNodeCompound : public FLumNodeCompound
{
public:
	using FLumNodeCompound::FLumNodeCompound;

	virtual TVexelExpected<TArray<TVexelVarScopeId>> GetVariableScopes() const override;
	virtual TVexelExpected<void> AddVariable(const FLumVarDesc& Desc) override;
	virtual TVexelExpected<void> RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) override;

protected:
	virtual TSharedRef<FLumPinVariable> MakePin(const UEdGraphNode& Node, const UEdGraphPin& Pin) const override;
	virtual TVexelExpected<void> IterateEditablePins(ILumPropertyCollector& Collector) const override;

private:
	TVexelExpected<UK2Node_EditablePinBase*> GetEditableNode() const;
};
