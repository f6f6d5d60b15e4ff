#include "BlueprintActionFilter.h"

#include "BlueprintDelegateNodeSpawner.h"
#include "BlueprintEventNodeSpawner.h"
#include "BlueprintFieldNodeSpawner.h"
#include "BlueprintVariableNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_MacroInstance.h"
#include "UObject/Class.h"

namespace
{
const UClass* GetSelf(const UBlueprint& Blueprint)
{
	const UClass* const Class = Blueprint.SkeletonGeneratedClass ? Blueprint.SkeletonGeneratedClass.Get() : Blueprint.GeneratedClass.Get();
	return Class ? Class : Blueprint.ParentClass.Get();
}

/** The class is the Blueprint's, or one above it. */
bool IsInherited(const UClass& Owner, const UBlueprint& Blueprint)
{
	const UClass* const Self = GetSelf(Blueprint);
	return UBlueprint::GetBlueprintFromClass(&Owner) == &Blueprint ||
		(Self && (Self->IsChildOf(&Owner) || Self->GetAuthoritativeClass()->IsChildOf(Owner.GetAuthoritativeClass())));
}
}

const UClass* FBlueprintActionInfo::GetNodeClass() const
{
	return NodeSpawner->NodeClass.Get();
}

UFunction const* FBlueprintActionInfo::GetAssociatedFunction() const
{
	const UBlueprintFieldNodeSpawner* const Field = Cast<UBlueprintFieldNodeSpawner>(NodeSpawner);
	return Field ? Field->GetFunction() : nullptr;
}

FProperty const* FBlueprintActionInfo::GetAssociatedProperty() const
{
	const UBlueprintFieldNodeSpawner* const Field = Cast<UBlueprintFieldNodeSpawner>(NodeSpawner);
	return Field ? Field->GetProperty() : nullptr;
}

UClass const* FBlueprintActionInfo::GetOwnerClass() const
{
	const UBlueprintFieldNodeSpawner* const Field = Cast<UBlueprintFieldNodeSpawner>(NodeSpawner);
	return Field ? Field->GetOwnerClass() : nullptr;
}

bool FBlueprintActionFilter::IsFiltered(FBlueprintActionInfo& BlueprintAction) const
{
	for (const UBlueprint* const Blueprint : Context.Blueprints)
	{
		if (IsRefusedByBlueprint(BlueprintAction, *Blueprint))
		{
			return true;
		}
	}
	for (const UEdGraph* const Graph : Context.Graphs)
	{
		if (IsRefusedByGraph(BlueprintAction, *Graph))
		{
			return true;
		}
	}
	return false;
}

bool FBlueprintActionFilter::IsRefusedByBlueprint(const FBlueprintActionInfo& Action, const UBlueprint& Blueprint)
{
	const UClass* const Owner = Action.GetOwnerClass();
	const bool bInherited = Owner && IsInherited(*Owner, Blueprint);
	const UFunction* const Function = Action.GetAssociatedFunction();
	if (const UBlueprintEventNodeSpawner* const Event = Cast<UBlueprintEventNodeSpawner>(Action.NodeSpawner))
	{
		// A Blueprint answers its own class's events, and those of its interfaces.
		const UClass* const Self = GetSelf(Blueprint);
		const bool bOfInterface = Owner && Self && Owner->HasAnyClassFlags(CLASS_Interface) && Self->ImplementsInterface(Owner);
		return !Blueprint.SupportsEventGraphs() || (Function && !Event->IsForCustomEvent() && !bInherited && !bOfInterface);
	}
	if (Function && Function->HasAnyFunctionFlags(FUNC_Private))
	{
		return UBlueprint::GetBlueprintFromClass(Owner) != &Blueprint;
	}
	if (Function && Function->HasAnyFunctionFlags(FUNC_Protected))
	{
		return !bInherited;
	}
	const FProperty* const Property = Action.GetAssociatedProperty();
	if (Property && Property->HasMetaData(FBlueprintMetadata::MD_Protected))
	{
		return !bInherited;
	}
	const UBlueprint* const Source = Cast<UBlueprint>(Action.GetActionOwner());
	const bool bIsMacro = Action.GetNodeClass() && Action.GetNodeClass()->IsChildOf(UK2Node_MacroInstance::StaticClass());
	return bIsMacro && Source && !UK2Node_MacroInstance::CanUseMacroOf(*Source, Blueprint);
}

bool FBlueprintActionFilter::IsRefusedByGraph(const FBlueprintActionInfo& Action, const UEdGraph& Graph)
{
	const UClass* const NodeClass = Action.GetNodeClass();
	const UEdGraphNode* const Default = NodeClass ? GetDefault<UEdGraphNode>(NodeClass) : nullptr;
	if (!Default || !Default->IsCompatibleWithGraph(&Graph))
	{
		return true;
	}
	const UBlueprintVariableNodeSpawner* const Variable = Cast<UBlueprintVariableNodeSpawner>(Action.NodeSpawner);
	if (Variable && Variable->IsLocalVariable())
	{
		return Variable->GetVarContext() != &Graph;
	}
	const UFunction* const Function = Action.GetAssociatedFunction();
	const UEdGraphSchema* const Schema = Graph.GetSchema();
	const bool bIsFunctionGraph = Schema && Schema->GetGraphType(&Graph) == GT_Function;
	return bIsFunctionGraph && Function && Function->HasMetaData(FBlueprintMetadata::MD_Latent);
}
