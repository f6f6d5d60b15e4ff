#include "Lum/LumCompound.h"

#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumJsonPropertyCollector.h"
#include "Lum/LumProperty.h"
#include "Lum/LumPropertyRoom.h"
#include "Lum/LumVariable.h"

namespace
{
/** Keeps the first property, or the first variable of a scope, that has the id. */
class FFindingCollector : public ILumPropertyCollector
{
public:
	explicit FFindingCollector(FStringView InPropId, const TVexelVarScopeId* InScopeId = nullptr)
		: PropId(InPropId)
		, ScopeId(InScopeId)
	{
	}

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>& Property) override
	{
		if (ScopeId || FoundProperty)
		{
			return {};
		}
		VEXEL_TRY(const TVexelPropId Id, Property->GetPropId());
		if (PropId.Equals(Id.ToString(), ESearchCase::IgnoreCase))
		{
			FoundProperty = Property;
		}
		return {};
	}

	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>& Variable) override
	{
		if (!ScopeId || FoundVariable)
		{
			return {};
		}
		VEXEL_TRY(const TVexelPropId Id, Variable->GetPropId());
		VEXEL_TRY(const TVexelVarScopeId VariableScopeId, Variable->GetVarScopeId());
		if (PropId.Equals(Id.ToString(), ESearchCase::IgnoreCase) && VariableScopeId == *ScopeId)
		{
			FoundVariable = Variable;
		}
		return {};
	}

	TSharedPtr<ILumProperty> FoundProperty;
	TSharedPtr<ILumVariable> FoundVariable;

private:
	FStringView PropId;
	const TVexelVarScopeId* ScopeId;
};
}

TSharedRef<ILumCompound> ILumCompound::Create(UBlueprint& Blueprint)
{
	return MakeShared<FLumBlueprintCompound>(Blueprint);
}

TVexelExpected<void> ILumCompound::IterateProperties(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY_VOID(Iterate(Collector), "while iterating properties");
	return {};
}

TVexelExpected<TSharedPtr<ILumProperty>> ILumCompound::FindProperty(const TVexelPropId& PropId) const
{
	VEXEL_TRY(TSharedPtr<ILumProperty> Property, Find(PropId.ToString()), "while iterating properties");
	return Property;
}

TVexelExpected<void> ILumCompound::FindProperty(FStringView PropId, FLumPropertyRoom& OutProperty) const
{
	VEXEL_TRY_VOID(FindInPlace(PropId, OutProperty), "while iterating properties");
	return {};
}

TVexelExpected<TSharedPtr<ILumProperty>> ILumCompound::Find(FStringView PropId) const
{
	FFindingCollector Collector(PropId);
	VEXEL_TRY_VOID(Iterate(Collector));
	return Collector.FoundProperty;
}

TVexelExpected<void> ILumCompound::FindInPlace(FStringView PropId, FLumPropertyRoom& OutProperty) const
{
	VEXEL_TRY(TSharedPtr<ILumProperty> Property, Find(PropId));
	OutProperty.Set(MoveTemp(Property));
	return {};
}

TVexelExpected<TSharedPtr<ILumVariable>> ILumCompound::FindVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId) const
{
	FFindingCollector Collector(PropId.ToString(), &ScopeId);
	VEXEL_TRY_VOID(IterateProperties(Collector));
	return Collector.FoundVariable;
}

TVexelExpected<TSharedRef<FJsonObject>> ILumCompound::JsonExportObject(const FLumContext& Context) const
{
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType(), "while getting compound type");
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("type"), Type.ToString());
	VEXEL_TRY_VOID(JsonExportPropertiesAndVariables(Context, Object));
	return Object;
}

TVexelExpected<void> ILumCompound::JsonExportPropertiesAndVariables(const FLumContext& Context, const TSharedRef<FJsonObject>& Object) const
{
	FLumJsonPropertyCollector Collector(Context);
	VEXEL_TRY_VOID(IterateForExport(Collector), "while iterating properties for JSON export");
	Collector.MoveTo(Object, TEXT("properties"), TEXT("variables"));
	return {};
}

TVexelExpected<void> ILumCompound::AddVariable(const FLumVarDesc& Desc)
{
	return VEXEL_ERROR(FLumError_Write, "Variable '%s' cannot be added: the target holds no variables", *Desc.PropId);
}

TVexelExpected<void> ILumCompound::RemoveVariable(const TVexelVarScopeId&, const TVexelPropId& PropId)
{
	return VEXEL_ERROR(FLumError_Write, "Variable '%s' cannot be removed: the target holds no variables", *PropId);
}

TVexelExpected<void> ILumCompound::JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object)
{
	for (const auto& [Key, Value] : Object->Values)
	{
		FLumPropertyRoom Property;
		VEXEL_TRY_VOID(FindProperty(Key, Property), "while finding property '%s'", *Key);
		if (!Property.Get())
		{
			return VEXEL_ERROR(FLumError_Import, "Property '%s' not found", *Key);
		}
		if (!Value || Value->IsNull())
		{
			return VEXEL_ERROR(FLumError_Import, "Invalid JSON value for key '%s'", *Key);
		}
		VEXEL_TRY_VOID(Property.Get()->JsonImportValue(Context, Value.ToSharedRef()), "while importing property '%s'", *Key);
	}
	return {};
}
