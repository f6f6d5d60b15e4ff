#include "BlueprintClassActions.h"

#include "BlueprintBoundEventNodeSpawner.h"
#include "BlueprintComponentNodeSpawner.h"
#include "BlueprintDelegateNodeSpawner.h"
#include "BlueprintEventNodeSpawner.h"
#include "BlueprintFunctionNodeSpawner.h"
#include "BlueprintVariableNodeSpawner.h"
#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_ActorBoundEvent.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_AssignDelegate.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_ClassDynamicCast.h"
#include "K2Node_ClearDelegate.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Message.h"
#include "K2Node_RemoveDelegate.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "OperatorFunctions.h"
#include "UObject/Package.h"

namespace
{
using FActionList = FBlueprintActionDatabase::FActionList;

void AddFunction(UFunction& Function, const bool bIsInterface, FActionList& Out)
{
	if (UEdGraphSchema_K2::FunctionCanBePlacedAsEvent(&Function))
	{
		Out.Add(UBlueprintEventNodeSpawner::Create(&Function));
	}
	if (!UEdGraphSchema_K2::CanUserKismetCallFunction(&Function))
	{
		return;
	}
	if (bIsInterface)
	{
		// A call of an interface asks any object, which may not answer.
		Out.Add(UBlueprintFunctionNodeSpawner::Create(UK2Node_Message::StaticClass(), &Function));
	}
	// Of an operation's functions the one of doubles stands for all.
	else if (!FOperatorFunctions::IsPromotable(Function) || Function.GetName().EndsWith(TEXT("_DoubleDouble")))
	{
		Out.Add(UBlueprintFunctionNodeSpawner::Create(&Function));
	}
}

void AddDispatcher(FMulticastDelegateProperty& Property, const UClass& Class, FActionList& Out)
{
	if (Property.HasAnyPropertyFlags(CPF_BlueprintAssignable))
	{
		for (UClass* const NodeClass : {UK2Node_AddDelegate::StaticClass(), UK2Node_AssignDelegate::StaticClass(),
				 UK2Node_RemoveDelegate::StaticClass(), UK2Node_ClearDelegate::StaticClass()})
		{
			Out.Add(UBlueprintDelegateNodeSpawner::Create(NodeClass, &Property));
		}
		if (Class.IsChildOf(UActorComponent::StaticClass()))
		{
			Out.Add(UBlueprintBoundEventNodeSpawner::Create(UK2Node_ComponentBoundEvent::StaticClass(), &Property));
		}
		else if (Class.IsChildOf(AActor::StaticClass()))
		{
			Out.Add(UBlueprintBoundEventNodeSpawner::Create(UK2Node_ActorBoundEvent::StaticClass(), &Property));
		}
	}
	if (Property.HasAnyPropertyFlags(CPF_BlueprintCallable))
	{
		Out.Add(UBlueprintDelegateNodeSpawner::Create(UK2Node_CallDelegate::StaticClass(), &Property));
	}
}

void AddProperty(FProperty& Property, UClass& Class, FActionList& Out)
{
	if (FMulticastDelegateProperty* const Dispatcher = CastField<FMulticastDelegateProperty>(&Property))
	{
		AddDispatcher(*Dispatcher, Class, Out);
		return;
	}
	FEdGraphPinType Type;
	const bool bIsVisible = Property.HasAnyPropertyFlags(CPF_BlueprintVisible) &&
		GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(&Property, Type);
	if (!bIsVisible)
	{
		return;
	}
	Out.Add(UBlueprintVariableNodeSpawner::CreateFromMemberOrParam(UK2Node_VariableGet::StaticClass(), &Property, nullptr, &Class));
	if (!Property.HasAnyPropertyFlags(CPF_BlueprintReadOnly))
	{
		Out.Add(UBlueprintVariableNodeSpawner::CreateFromMemberOrParam(UK2Node_VariableSet::StaticClass(), &Property, nullptr, &Class));
	}
}

void AddCasts(UClass& Class, FActionList& Out)
{
	if (!UEdGraphSchema_K2::IsAllowableBlueprintVariableType(&Class))
	{
		return;
	}
	for (UClass* const NodeClass : {UK2Node_DynamicCast::StaticClass(), UK2Node_ClassDynamicCast::StaticClass()})
	{
		const TWeakObjectPtr<UClass> Target = Class.GetAuthoritativeClass();
		Out.Add(UBlueprintNodeSpawner::Create(NodeClass, nullptr,
			UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda([Target](UEdGraphNode* Node, bool)
				{ CastChecked<UK2Node_DynamicCast>(Node)->TargetType = Target.Get(); })));
	}
}

void AddMacros(const UBlueprint& Blueprint, FActionList& Out)
{
	for (UEdGraph* const Graph : Blueprint.MacroGraphs)
	{
		if (!Graph)
		{
			continue;
		}
		const TWeakObjectPtr<UEdGraph> Macro = Graph;
		Out.Add(UBlueprintNodeSpawner::Create(UK2Node_MacroInstance::StaticClass(), nullptr,
			UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda([Macro](UEdGraphNode* Node, bool)
				{ CastChecked<UK2Node_MacroInstance>(Node)->SetMacroGraph(Macro.Get()); })));
	}
}

void AddLocalVariables(UBlueprint& Blueprint, FActionList& Out)
{
	const UClass* const Skeleton = Blueprint.SkeletonGeneratedClass.Get();
	for (UEdGraph* const Graph : Blueprint.FunctionGraphs)
	{
		TArray<UK2Node_FunctionEntry*> Entries;
		if (Graph)
		{
			Graph->GetNodesOfClass(Entries);
		}
		const UFunction* const Function = Graph && Skeleton ? Skeleton->FindFunctionByName(Graph->GetFName()) : nullptr;
		for (const UK2Node_FunctionEntry* const Entry : Entries)
		{
			for (const FBPVariableDescription& Variable : Entry->LocalVariables)
			{
				FProperty* const Property = Function ? FindFProperty<FProperty>(Function, Variable.VarName) : nullptr;
				for (UClass* const NodeClass : {UK2Node_VariableGet::StaticClass(), UK2Node_VariableSet::StaticClass()})
				{
					Out.Add(UBlueprintVariableNodeSpawner::CreateFromLocal(NodeClass, Graph, Variable, Property));
				}
			}
		}
	}
}

void AddMembers(UClass& Class, FActionList& Out)
{
	const bool bIsInterface = Class.HasAnyClassFlags(CLASS_Interface);
	for (TFieldIterator<UFunction> Function(&Class, EFieldIterationFlags::None); Function; ++Function)
	{
		// An override is an action of the class that declared the function.
		if (!Function->GetSuperFunction())
		{
			AddFunction(**Function, bIsInterface, Out);
		}
	}
	for (TFieldIterator<FProperty> Property(&Class, EFieldIterationFlags::None); Property; ++Property)
	{
		AddProperty(**Property, Class, Out);
	}
}
}

bool BlueprintClassActions::IsUsable(const UClass& Class)
{
	const bool bIsOld = Class.HasAnyClassFlags(CLASS_NewerVersionExists | CLASS_Deprecated) ||
		Class.GetOutermost() == GetTransientPackage();
	return !bIsOld && !Class.IsChildOf(UEdGraphNode::StaticClass());
}

void BlueprintClassActions::Add(UClass& Class, FBlueprintActionDatabase::FActionList& OutActions)
{
	AddMembers(Class, OutActions);
	AddCasts(Class, OutActions);
	static const FName SpawnableComponent(TEXT("BlueprintSpawnableComponent"));
	const bool bIsComponent = Class.IsChildOf(UActorComponent::StaticClass()) && !Class.HasAnyClassFlags(CLASS_Abstract);
	if (bIsComponent && (Class.HasMetaData(SpawnableComponent) || Class.HasAnyClassFlags(CLASS_CompiledFromBlueprint)))
	{
		OutActions.Add(UBlueprintComponentNodeSpawner::Create(&Class));
	}
}

void BlueprintClassActions::AddOfBlueprint(UBlueprint& Blueprint, FBlueprintActionDatabase::FActionList& OutActions)
{
	UClass* const Members = Blueprint.SkeletonGeneratedClass ? Blueprint.SkeletonGeneratedClass.Get() : Blueprint.GeneratedClass.Get();
	if (Members && Blueprint.BlueprintType != BPTYPE_MacroLibrary)
	{
		AddMembers(*Members, OutActions);
	}
	if (Blueprint.GeneratedClass && Blueprint.BlueprintType != BPTYPE_MacroLibrary)
	{
		AddCasts(*Blueprint.GeneratedClass.Get(), OutActions);
	}
	AddLocalVariables(Blueprint, OutActions);
	AddMacros(Blueprint, OutActions);
}
