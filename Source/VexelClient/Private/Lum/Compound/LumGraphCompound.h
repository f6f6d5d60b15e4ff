#pragma once

#include "Lum/LumCompound.h"
#include "UObject/WeakObjectPtr.h"

class UEdGraph;

/** A graph: its name where it can be changed, its inputs, outputs and local variables; its export has its nodes too. */
class FLumGraphCompound : public ILumCompound
{
public:
	explicit FLumGraphCompound(UEdGraph& Graph);

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TArray<TVexelVarScopeId> GetVariableScopes() const override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	TVexelExpected<UEdGraph*> GetGraph() const;

	TWeakObjectPtr<UEdGraph> WeakGraph;
};
