#include "Blueprint/VexelComponentEventType.h"

#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"

#include "BlueprintNodeSpawner.h"
#include "Engine/Blueprint.h"
#include "K2Node_ComponentBoundEvent.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
/** Null where the class has no dispatcher of the name, or one that another class than the prefix names declares. */
const FMulticastDelegateProperty* FindDispatcher(const UClass* Class, const FString& Name, const FString& OwnerPrefix)
{
	const auto* const Dispatcher = Class ? FindFProperty<FMulticastDelegateProperty>(Class, FName(*Name)) : nullptr;
	const bool bIsOwners = Dispatcher && FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Dispatcher->GetOwnerClass()) == OwnerPrefix;
	return bIsOwners && Dispatcher->HasAnyPropertyFlags(CPF_BlueprintAssignable) ? Dispatcher : nullptr;
}
}

UBlueprintNodeSpawner* VexelComponentEventType::MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint)
{
	// Most ids are others, and are passed over without a copy.
	if (!Id.ToString().StartsWith(TEXT("event.")))
	{
		return nullptr;
	}
	TArray<FString> Parts;
	Id.ToString().ParseIntoArray(Parts, TEXT("."), false);
	constexpr int32 NumParts = 4;
	if (Parts.Num() != NumParts || Parts[2].Len() >= NAME_SIZE || Parts[3].Len() >= NAME_SIZE)
	{
		return nullptr;
	}
	const UClass* const Class = FBlueprintEditorUtils::GetMostUpToDateClass(Blueprint.GeneratedClass);
	const auto* const Component = Class ? FindFProperty<FObjectProperty>(Class, FName(*Parts[3])) : nullptr;
	const auto* const Dispatcher = Component ? FindDispatcher(Component->PropertyClass, Parts[2], Parts[1] + TEXT(".")) : nullptr;
	if (!Dispatcher)
	{
		return nullptr;
	}
	const auto Bind = [Component, Dispatcher](UEdGraphNode* Node, bool)
	{
		CastChecked<UK2Node_ComponentBoundEvent>(Node)->InitializeComponentBoundEventParams(Component, Dispatcher);
	};
	return UBlueprintNodeSpawner::Create<UK2Node_ComponentBoundEvent>(
		nullptr, UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda(Bind));
}
