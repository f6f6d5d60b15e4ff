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
	virtual TVexelExpected<TArray<TVexelVarScopeId>> GetVariableScopes() const override;
	virtual TVexelExpected<void> AddVariable(const FLumVarDesc& Desc) override;
	virtual TVexelExpected<void> RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	/** Who holds the variables of a scope: the ends of the graph, or its function. */
	enum class EGraphScope : uint8
	{
		Parameter,
		Local
	};

	TVexelExpected<UEdGraph*> GetGraph() const;
	TVexelExpected<EGraphScope> CheckScope(const TVexelVarScopeId& ScopeId) const;

	TWeakObjectPtr<UEdGraph> WeakGraph;
};
