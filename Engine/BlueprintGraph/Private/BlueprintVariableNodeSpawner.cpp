#include "BlueprintVariableNodeSpawner.h"

#include "EdGraph/EdGraph.h"
#include "K2Node_Variable.h"
#include "UObject/UObjectGlobals.h"

UBlueprintVariableNodeSpawner* UBlueprintVariableNodeSpawner::CreateFromMemberOrParam(
	TSubclassOf<UK2Node_Variable> NodeClass, FProperty const* VarProperty, UEdGraph* VarContext, UClass* OwnerClass)
{
	UBlueprintVariableNodeSpawner* const Spawner = NewObject<UBlueprintVariableNodeSpawner>(GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(VarProperty, OwnerClass);
	Spawner->LocalVarOuter = VarContext;
	Spawner->LocalVarName = VarContext ? VarProperty->GetFName() : NAME_None;
	return Spawner;
}

UBlueprintVariableNodeSpawner* UBlueprintVariableNodeSpawner::CreateFromLocal(TSubclassOf<UK2Node_Variable> NodeClass, UEdGraph* VarContext,
	FBPVariableDescription const& VarDesc, FProperty* VarProperty, UObject* Outer)
{
	UBlueprintVariableNodeSpawner* const Spawner = NewObject<UBlueprintVariableNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(VarProperty, nullptr);
	Spawner->LocalVarOuter = VarContext;
	Spawner->LocalVarName = VarDesc.VarName;
	Spawner->LocalVarGuid = VarDesc.VarGuid;
	return Spawner;
}

FBlueprintNodeSignature UBlueprintVariableNodeSpawner::GetSpawnerSignature() const
{
	FBlueprintNodeSignature Signature = Super::GetSpawnerSignature();
	Signature.AddSubObject(LocalVarOuter);
	Signature.AddNamedValue(TEXT("Local"), LocalVarOuter ? LocalVarName.ToString() : FString());
	return Signature;
}

UEdGraphNode* UBlueprintVariableNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const FProperty* const Property = GetProperty();
	if (!Property && !IsLocalVariable())
	{
		return nullptr;
	}
	const auto Customize = [this, Property, ParentGraph](UEdGraphNode* Node, bool bIsTemplate)
	{
		UK2Node_Variable* const Variable = CastChecked<UK2Node_Variable>(Node);
		if (IsLocalVariable())
		{
			Variable->VariableReference.SetLocalMember(LocalVarName, LocalVarOuter->GetName(), LocalVarGuid);
		}
		else
		{
			UClass* const Owner = const_cast<UClass*>(GetOwnerClass());
			Variable->SetFromProperty(Property, IsMemberOfSelf(Owner, ParentGraph), Owner);
		}
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}
