#include "BlueprintDelegateNodeSpawner.h"

#include "K2Node_BaseMCDelegate.h"
#include "UObject/UObjectGlobals.h"

UBlueprintDelegateNodeSpawner* UBlueprintDelegateNodeSpawner::Create(
	TSubclassOf<UK2Node_BaseMCDelegate> NodeClass, FMulticastDelegateProperty const* const Property, UObject* Outer)
{
	UBlueprintDelegateNodeSpawner* const Spawner = NewObject<UBlueprintDelegateNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(Property, nullptr);
	return Spawner;
}

FMulticastDelegateProperty const* UBlueprintDelegateNodeSpawner::GetDelegateProperty() const
{
	return CastField<FMulticastDelegateProperty>(GetProperty());
}

UEdGraphNode* UBlueprintDelegateNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const FMulticastDelegateProperty* const Property = GetDelegateProperty();
	if (!Property)
	{
		return nullptr;
	}
	const auto Customize = [this, Property, ParentGraph](UEdGraphNode* Node, bool bIsTemplate)
	{
		UClass* const Owner = const_cast<UClass*>(GetOwnerClass());
		CastChecked<UK2Node_BaseMCDelegate>(Node)->SetFromProperty(Property, IsMemberOfSelf(Owner, ParentGraph), Owner);
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}
