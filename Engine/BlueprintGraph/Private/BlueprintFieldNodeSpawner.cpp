#include "BlueprintFieldNodeSpawner.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node.h"
#include "UObject/UObjectGlobals.h"

UBlueprintFieldNodeSpawner* UBlueprintFieldNodeSpawner::Create(
	TSubclassOf<UK2Node> NodeClass, FFieldVariant InField, UObject* Outer, UClass const* OwnerClass)
{
	UBlueprintFieldNodeSpawner* const Spawner = NewObject<UBlueprintFieldNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(InField, OwnerClass);
	return Spawner;
}

void UBlueprintFieldNodeSpawner::SetField(FFieldVariant InField, UClass const* InOwnerClass)
{
	FieldObject = InField.Get<UField>();
	if (const FProperty* const Property = InField.Get<FProperty>())
	{
		PropertyOwner = Property->GetOwnerStruct();
		PropertyName = Property->GetFName();
	}
	OwnerClass = const_cast<UClass*>(InOwnerClass ? InOwnerClass : InField.GetOwnerClass());
}

FFieldVariant UBlueprintFieldNodeSpawner::GetField() const
{
	return FieldObject.IsValid() ? FFieldVariant(FieldObject.Get()) : FFieldVariant(GetProperty());
}

FProperty const* UBlueprintFieldNodeSpawner::GetProperty() const
{
	const UStruct* const Owner = PropertyOwner.Get();
	return Owner ? FindFProperty<FProperty>(Owner, PropertyName) : nullptr;
}

FBlueprintNodeSignature UBlueprintFieldNodeSpawner::GetSpawnerSignature() const
{
	FBlueprintNodeSignature Signature(NodeClass.Get());
	Signature.AddSubObject(FieldObject.Get());
	if (const UStruct* const Owner = PropertyOwner.Get())
	{
		Signature.AddNamedValue(TEXT("Property"), Owner->GetPathName() + TEXT(":") + PropertyName.ToString());
	}
	Signature.AddSubObject(OwnerClass.Get());
	return Signature;
}

UEdGraphNode* UBlueprintFieldNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const FFieldVariant Field = GetField();
	if (!Field)
	{
		return nullptr;
	}
	const auto Customize = [this, Field](UEdGraphNode* Node, bool bIsTemplate)
	{
		SetNodeFieldDelegate.ExecuteIfBound(Node, Field);
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}

bool UBlueprintFieldNodeSpawner::IsMemberOfSelf(const UClass* MemberOwner, const UEdGraph* Graph)
{
	const UBlueprint* const Blueprint = Graph->GetTypedOuter<UBlueprint>();
	if (!Blueprint || !MemberOwner)
	{
		return false;
	}
	const UClass* const Self = Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Blueprint->ParentClass.Get();
	return UBlueprint::GetBlueprintFromClass(MemberOwner) == Blueprint ||
		(Self && Self->GetAuthoritativeClass()->IsChildOf(MemberOwner->GetAuthoritativeClass())) || (Self && Self->IsChildOf(MemberOwner));
}
