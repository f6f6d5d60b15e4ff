#include "BlueprintValidator.h"

#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "GraphValidator.h"
#include "K2Node_Event.h"
#include "Kismet2/BlueprintReinstancer.h"
#include "Kismet2/CompilerResultsLog.h"
#include "MacroUses.h"
#include "UObject/Class.h"
#include "UObject/Interface.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/UnrealType.h"

namespace
{
/** The names that are given so far, and what bears each. */
using FTakenNames = TMap<FName, const UObject*>;

const UClass* GetSkeleton(const UBlueprint& Blueprint)
{
	return Blueprint.SkeletonGeneratedClass ? Blueprint.SkeletonGeneratedClass.Get() : Blueprint.GeneratedClass.Get();
}

/** The Blueprint's events with the functions that they become. */
TArray<const UK2Node_Event*> GetEvents(const UBlueprint& Blueprint)
{
	TArray<const UK2Node_Event*> Events;
	for (const UEdGraph* const Graph : Blueprint.UbergraphPages)
	{
		TArray<UK2Node_Event*> OfGraph;
		if (Graph)
		{
			Graph->GetNodesOfClass(OfGraph);
		}
		for (const UK2Node_Event* const Event : OfGraph)
		{
			if (Event->IsNodeEnabled() && !Event->GetFunctionName().IsNone())
			{
				Events.Add(Event);
			}
		}
	}
	return Events;
}
}

bool FBlueprintValidator::ValidateParent() const
{
	if (!Blueprint.ParentClass)
	{
		Log.Error(TEXT("The parent class of @@ does not exist. Reparent it to another class."), &Blueprint);
		return false;
	}
	for (const UClass* Ancestor = Blueprint.ParentClass.Get(); Ancestor; Ancestor = Ancestor->GetSuperClass())
	{
		if (UE::CoreUObject::IsPlaceholder(Ancestor))
		{
			Log.Error(TEXT("The class @@, of which @@ is a child, does not exist. Reparent it to another class."), Ancestor, &Blueprint);
			return false;
		}
	}
	if (const UBlueprint* const Twice = FBlueprintCompileReinstancer::FindRingOfParents(Blueprint))
	{
		Log.Error(TEXT("The parents of @@ form a ring: @@ is its own ancestor"), &Blueprint, Twice);
		return false;
	}
	const UBlueprint* const Parent = UBlueprint::GetBlueprintFromClass(Blueprint.ParentClass.Get());
	if (Parent && Parent->Status == BS_Error)
	{
		Log.Warning(TEXT("The parent @@ of @@ has errors of its own"), Parent, &Blueprint);
	}
	return true;
}

void FBlueprintValidator::Validate() const
{
	ValidateVariables();
	ValidateNames();
	ValidateInterfaces();
	ValidateOverrides();
	ValidateComponents();
	ValidateGraphs();
}

void FBlueprintValidator::ValidateVariables() const
{
	TSet<FName> Names;
	for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		bool bIsTwice = false;
		Names.Add(Variable.VarName, &bIsTwice);
		if (bIsTwice)
		{
			Log.Error(TEXT("Found more than one member variable with the same name @@"), Variable.VarName);
		}
		const FProperty* const Inherited = Blueprint.ParentClass ? FindFProperty<FProperty>(Blueprint.ParentClass.Get(), Variable.VarName)
																 : nullptr;
		if (Inherited)
		{
			Log.Error(TEXT("The variable @@ has the name of a variable of its parent @@"), Variable.VarName, Inherited->GetOwnerClass());
		}
		if (!Variable.RepNotifyFunc.IsNone())
		{
			const UClass* const Skeleton = GetSkeleton(Blueprint);
			if (!Skeleton || !Skeleton->FindFunctionByName(Variable.RepNotifyFunc))
			{
				Log.Warning(TEXT("The variable @@ is to call @@ when it is replicated, and there is no such function"), Variable.VarName,
					Variable.RepNotifyFunc);
			}
		}
	}
}

void FBlueprintValidator::ValidateNames() const
{
	FTakenNames Taken;
	const auto Take = [this, &Taken](const FName Name, const UObject* Bearer)
	{
		if (const UObject** const First = Taken.Find(Name))
		{
			Log.Error(TEXT("Found more than one function with the same name @@; second occurance at @@"), *First, Bearer);
			return;
		}
		Taken.Add(Name, Bearer);
	};
	for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
	{
		if (Graph)
		{
			Take(Graph->GetFName(), Graph);
		}
	}
	for (const UK2Node_Event* const Event : GetEvents(Blueprint))
	{
		Take(Event->GetFunctionName(), Event);
	}
	for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		if (const UObject** const Function = Taken.Find(Variable.VarName))
		{
			Log.Error(TEXT("The variable @@ has the name of the function @@"), Variable.VarName, *Function);
		}
	}
}

void FBlueprintValidator::ValidateInterfaces() const
{
	const UClass* const Skeleton = GetSkeleton(Blueprint);
	for (const FBPInterfaceDescription& Description : Blueprint.ImplementedInterfaces)
	{
		const UClass* const Interface = Description.Interface.Get();
		if (!Interface)
		{
			Log.Error(TEXT("@@ implements an interface that does not exist. Remove it from the class settings."), &Blueprint);
			continue;
		}
		for (TFieldIterator<UFunction> Function(Interface, EFieldIterationFlags::None); Function; ++Function)
		{
			// What can be an event need not be answered.
			const bool bMustBeThere = UEdGraphSchema_K2::CanKismetOverrideFunction(*Function) &&
				!UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(*Function);
			const UFunction* const Own = Skeleton ? Skeleton->FindFunctionByName(Function->GetFName(), EIncludeSuperFlag::ExcludeSuper)
												  : nullptr;
			const UClass* const Parent = Blueprint.ParentClass.Get();
			const bool bInherited = Parent && Parent->ImplementsInterface(Interface);
			if (bMustBeThere && !Own && !bInherited)
			{
				Log.Error(TEXT("The interface @@ asks for the function @@, and @@ has no graph for it"), Interface, Function->GetFName(),
					&Blueprint);
			}
			else if (bMustBeThere && Own && !Function->IsSignatureCompatibleWith(Own))
			{
				Log.Error(TEXT("The function @@ does not have the parameters of the function of @@ that it implements"), Own, Interface);
			}
		}
	}
}

void FBlueprintValidator::ValidateOverrides() const
{
	const UClass* const Parent = Blueprint.ParentClass.Get();
	const UClass* const Skeleton = GetSkeleton(Blueprint);
	for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
	{
		const UFunction* const Overridden = Graph && Parent ? Parent->FindFunctionByName(Graph->GetFName()) : nullptr;
		if (!Overridden)
		{
			continue;
		}
		const UFunction* const Own = Skeleton ? Skeleton->FindFunctionByName(Graph->GetFName(), EIncludeSuperFlag::ExcludeSuper) : nullptr;
		if (!Overridden->HasAnyFunctionFlags(FUNC_BlueprintEvent))
		{
			Log.Error(
				TEXT("The function @@ has the name of a function of @@ that cannot be overridden"), Graph, Overridden->GetOwnerClass());
		}
		else if (Own && !Overridden->IsSignatureCompatibleWith(Own))
		{
			Log.Error(TEXT("The function @@ does not have the parameters of the function of @@ that it overrides"), Graph,
				Overridden->GetOwnerClass());
		}
	}
}

void FBlueprintValidator::ValidateComponents() const
{
	TSet<FName> Names;
	const auto Take = [this, &Names](const FName Name)
	{
		bool bIsTwice = false;
		Names.Add(Name, &bIsTwice);
		if (bIsTwice || Blueprint.NewVariables.ContainsByPredicate([Name](const FBPVariableDescription& Variable)
							{ return Variable.VarName == Name; }))
		{
			Log.Error(TEXT("Found more than one member with the name @@ of a component or timeline"), Name);
		}
	};
	if (Blueprint.SimpleConstructionScript)
	{
		for (const USCS_Node* const Node : Blueprint.SimpleConstructionScript->GetAllNodes())
		{
			if (!Node || (!Node->ComponentTemplate && !Node->ComponentClass))
			{
				Log.Error(TEXT("The component @@ has a class that does not exist"), Node ? Node->GetVariableName() : NAME_None);
				continue;
			}
			Take(Node->GetVariableName());
		}
	}
	for (const UTimelineTemplate* const Timeline : Blueprint.Timelines)
	{
		if (Timeline)
		{
			Take(Timeline->GetVariableName());
		}
	}
}

void FBlueprintValidator::ValidateGraphs() const
{
	TArray<UEdGraph*> Graphs;
	Graphs.Append(Blueprint.UbergraphPages);
	Graphs.Append(Blueprint.FunctionGraphs);
	Graphs.Append(Blueprint.MacroGraphs);
	for (const FBPInterfaceDescription& Interface : Blueprint.ImplementedInterfaces)
	{
		Graphs.Append(Interface.Graphs);
	}
	for (const UEdGraph* const Macro : Blueprint.MacroGraphs)
	{
		if (Macro && MacroUses::UsesItself(*Macro))
		{
			Log.Error(TEXT("The macro @@ uses itself, which would never end"), Macro);
		}
	}
	for (const UEdGraph* const Graph : Graphs)
	{
		const bool bIsBlueprintGraph = Graph && Cast<UEdGraphSchema_K2>(Graph->GetSchema());
		if (bIsBlueprintGraph)
		{
			FGraphValidator(Blueprint, *Graph, Log).Validate();
		}
	}
}
