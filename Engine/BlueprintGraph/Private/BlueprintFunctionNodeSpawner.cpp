#include "BlueprintFunctionNodeSpawner.h"

#include "EdGraphSchema_K2.h"
#include "K2Node_CallArrayFunction.h"
#include "K2Node_CallDataTableFunction.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CallMaterialParameterCollectionFunction.h"
#include "K2Node_CommutativeAssociativeBinaryOperator.h"
#include "K2Node_PromotableOperator.h"
#include "OperatorFunctions.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Functions with pins of a kind that a plain call does not make. */
TSubclassOf<UK2Node_CallFunction> ChooseNodeClass(const UFunction& Function)
{
	if (FOperatorFunctions::IsPromotable(Function))
	{
		return UK2Node_PromotableOperator::StaticClass();
	}
	struct FChoice
	{
		const TCHAR* MetaData;
		UClass* NodeClass;
	};
	static const FChoice Choices[] = {
		{TEXT("CommutativeAssociativeBinaryOperator"), UK2Node_CommutativeAssociativeBinaryOperator::StaticClass()},
		{TEXT("ArrayParm"), UK2Node_CallArrayFunction::StaticClass()},
		{TEXT("MaterialParameterCollectionFunction"), UK2Node_CallMaterialParameterCollectionFunction::StaticClass()},
		{TEXT("DataTablePin"), UK2Node_CallDataTableFunction::StaticClass()},
	};
	for (const FChoice& Choice : Choices)
	{
		const bool bSaysOtherwise = Function.GetMetaData(Choice.MetaData).Equals(TEXT("false"), ESearchCase::IgnoreCase);
		if (Function.HasMetaData(Choice.MetaData) && !bSaysOtherwise)
		{
			return Choice.NodeClass;
		}
	}
	return UK2Node_CallFunction::StaticClass();
}
}

UBlueprintFunctionNodeSpawner* UBlueprintFunctionNodeSpawner::Create(UFunction const* const Function, UObject* Outer)
{
	return Create(ChooseNodeClass(*Function), Function, Outer);
}

UBlueprintFunctionNodeSpawner* UBlueprintFunctionNodeSpawner::Create(
	TSubclassOf<UK2Node_CallFunction> NodeClass, UFunction const* const Function, UObject* Outer)
{
	UBlueprintFunctionNodeSpawner* const Spawner = NewObject<UBlueprintFunctionNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(Function, nullptr);
	return Spawner;
}

UEdGraphNode* UBlueprintFunctionNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const UFunction* const Function = GetFunction();
	if (!Function)
	{
		return nullptr;
	}
	const auto Customize = [this, Function](UEdGraphNode* Node, bool bIsTemplate)
	{
		CastChecked<UK2Node_CallFunction>(Node)->SetFromFunction(Function);
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}
