#include "Lum/Compound/LumBlueprintCompound.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/VexelBlueprintEnums.h"
#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/LumVariableEdits.h"
#include "Lum/LumVariableRules.h"
#include "Lum/Property/LumClassDefaultObjectProperty.h"
#include "Lum/Variable/LumBlueprintMemberVariable.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"

namespace
{
/** Names of the classes above the Blueprint's, the nearest first. */
TArray<TSharedPtr<FJsonValue>> MakeParentChain(const UBlueprint& Blueprint)
{
	TArray<TSharedPtr<FJsonValue>> Chain;
	for (const UClass* Class = Blueprint.ParentClass; Class; Class = Class->GetSuperClass())
	{
		Chain.Add(MakeShared<FJsonValueString>(FVexelBlueprintPropTypeBuilder::GetTypeName(*Class)));
	}
	return Chain;
}

TVexelExpected<void> CheckScope(const TVexelVarScopeId& ScopeId)
{
	if (ScopeId != LumScope::Member())
	{
		return VEXEL_ERROR(FLumError_Write, "Only 'member' scope is supported by blueprint compound");
	}
	return {};
}
}

FLumBlueprintCompound::FLumBlueprintCompound(UBlueprint& Blueprint)
	: WeakBlueprint(&Blueprint)
{
}

TVexelExpected<UBlueprint*> FLumBlueprintCompound::GetBlueprint() const
{
	return FLumHelper::GetValid(WeakBlueprint, TEXT("Blueprint object is not valid"));
}

TVexelExpected<TVexelPropTypeId> FLumBlueprintCompound::GetCompoundType() const
{
	VEXEL_TRY(const UBlueprint* const Blueprint, GetBlueprint());
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Blueprint->GetClass());
}

TVexelExpected<TArray<TVexelVarScopeId>> FLumBlueprintCompound::GetVariableScopes() const
{
	return TArray<TVexelVarScopeId>{LumScope::Member()};
}

TVexelExpected<void> FLumBlueprintCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	const FString BlueprintName = Blueprint->GetName();
	TArray<FName> Names;
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		Names.Add(Variable.VarName);
	}
	for (const FName& Name : Names)
	{
		VEXEL_TRY_VOID(Collector.Variable(MakeShared<FLumBlueprintMemberVariable>(*Blueprint, Name)),
			"while processing member variable '%s' in blueprint '%s'", *Name.ToString(), *BlueprintName);
	}
	const UClass* const Class = Blueprint->GeneratedClass;
	UObject* const DefaultObject = Class ? Class->GetDefaultObject(false) : nullptr;
	if (DefaultObject)
	{
		VEXEL_TRY_VOID(Collector.Property(MakeShared<FLumClassDefaultObjectProperty>(*DefaultObject)),
			"while processing class default object in blueprint '%s'", *BlueprintName);
	}
	return {};
}

TVexelExpected<void> FLumBlueprintCompound::AddVariable(const FLumVarDesc& Desc)
{
	VEXEL_TRY_VOID(CheckScope(Desc.ScopeId));
	VEXEL_TRY_VOID(LumVariableRules::CheckComplete(Desc));
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	return LumVariableEdits::AddMember(*Blueprint, Desc);
}

TVexelExpected<void> FLumBlueprintCompound::RemoveVariable(const TVexelVarScopeId& ScopeId, const TVexelPropId& PropId)
{
	VEXEL_TRY_VOID(CheckScope(ScopeId));
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	VEXEL_TRY(const FName Name, LumVariableRules::MakeName(PropId));
	return LumVariableEdits::RemoveMember(*Blueprint, Name);
}

TVexelExpected<TSharedRef<FJsonObject>> FLumBlueprintCompound::JsonExportObject(const FLumContext& Context) const
{
	VEXEL_TRY(UBlueprint* const Blueprint, GetBlueprint());
	VEXEL_TRY(const TVexelPropTypeId Type, GetCompoundType(), "while getting type id for blueprint '%s'", *Blueprint->GetName());

	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("type"), Type.ToString());
	Object->SetStringField(TEXT("id"), Context.GetMapping().MakeBlueprintReference(*Blueprint).ToString());
	Object->SetArrayField(TEXT("parent_chain"), MakeParentChain(*Blueprint));
	Object->SetStringField(TEXT("bp_type"), VexelBlueprintWords::GetWord(Blueprint->BlueprintType));

	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	TArray<TSharedPtr<FJsonValue>> GraphValues;
	for (UEdGraph* const Graph : Graphs)
	{
		if (Graph)
		{
			VEXEL_TRY(const TSharedRef<FJsonObject> GraphObject, FLumGraphCompound(*Graph).JsonExportObject(Context),
				"while processing graph '%s'", *Graph->GetName());
			GraphValues.Add(MakeShared<FJsonValueObject>(GraphObject));
		}
	}
	if (!GraphValues.IsEmpty())
	{
		Object->SetArrayField(TEXT("graphs"), MoveTemp(GraphValues));
	}
	VEXEL_TRY_VOID(JsonExportPropertiesAndVariables(Context, Object), "while exporting properties and variables to JSON");
	return Object;
}
