#pragma once

#include "Lum/LumCompound.h"
#include "UObject/WeakObjectPtr.h"

class UBlueprint;

/** A Blueprint: its member variables and its class default object; its export has its graphs too. */
class FLumBlueprintCompound : public ILumCompound
{
public:
	explicit FLumBlueprintCompound(UBlueprint& Blueprint);

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<TArray<TVexelVarScopeId>> GetVariableScopes() const override;
	virtual TVexelExpected<void> AddVariable(const FLumVarDesc& Desc) override;
	virtual TVexelExpected<void> RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) override;
	virtual TVexelExpected<TSharedRef<FJsonObject>> JsonExportObject(const FLumContext& Context) const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	TVexelExpected<UBlueprint*> GetBlueprint() const;

	TWeakObjectPtr<UBlueprint> WeakBlueprint;
};
