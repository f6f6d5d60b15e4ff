#include "BlueprintActionDatabaseRegistrar.h"

#include "BlueprintFieldNodeSpawner.h"
#include "EdGraphSchema_K2.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

FBlueprintActionDatabaseRegistrar::FBlueprintActionDatabaseRegistrar(
	FBlueprintActionDatabase::FActionRegistry& InRegistry, UObject const* InKeyFilter)
	: Registry(InRegistry)
	, KeyFilter(InKeyFilter)
{
}

void FBlueprintActionDatabaseRegistrar::RegisterNodeClass(UClass& NodeClass)
{
	if (!NodeClass.HasAnyClassFlags(CLASS_Abstract | CLASS_NewerVersionExists | CLASS_Deprecated))
	{
		GeneratingClass = &NodeClass;
		GetDefault<UEdGraphNode>(&NodeClass)->GetMenuActions(*this);
	}
}

bool FBlueprintActionDatabaseRegistrar::IsOpenForRegistration(UObject const* ActionKey) const
{
	return ActionKey && (!KeyFilter || KeyFilter == ActionKey);
}

bool FBlueprintActionDatabaseRegistrar::AddBlueprintAction(UBlueprintNodeSpawner* NodeSpawner)
{
	return AddBlueprintAction(GeneratingClass, NodeSpawner);
}

bool FBlueprintActionDatabaseRegistrar::AddBlueprintAction(UObject const* ActionKey, UBlueprintNodeSpawner* NodeSpawner)
{
	if (!NodeSpawner || !IsOpenForRegistration(ActionKey))
	{
		return false;
	}
	if (!NodeSpawner->NodeClass)
	{
		NodeSpawner->NodeClass = GeneratingClass;
	}
	Registry.FindOrAdd(FObjectKey(ActionKey)).Add(NodeSpawner);
	return true;
}

template <class ObjectType, class VisitorType>
void FBlueprintActionDatabaseRegistrar::ForEachKey(VisitorType Visitor) const
{
	if (KeyFilter)
	{
		if (const ObjectType* const Only = Cast<ObjectType>(KeyFilter))
		{
			Visitor(Only);
		}
		return;
	}
	// Actions are objects too: what they are about is listed before the first is made.
	TArray<const ObjectType*> Keys;
	for (TObjectIterator<ObjectType> Key; Key; ++Key)
	{
		// Where layouts go that were replaced.
		if (Key->GetOutermost() != GetTransientPackage())
		{
			Keys.Add(*Key);
		}
	}
	for (const ObjectType* const Key : Keys)
	{
		Visitor(Key);
	}
}

int32 FBlueprintActionDatabaseRegistrar::RegisterStructActions(const FMakeStructSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	ForEachKey<UScriptStruct>([&](const UScriptStruct* Struct)
		{ NumRegistered += AddBlueprintAction(Struct, MakeActionCallback.Execute(Struct)) ? 1 : 0; });
	return NumRegistered;
}

int32 FBlueprintActionDatabaseRegistrar::RegisterEnumActions(const FMakeEnumSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	ForEachKey<UEnum>(
		[&](const UEnum* Enum)
		{
			const bool bIsUsable = UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Enum);
			NumRegistered += bIsUsable && AddBlueprintAction(Enum, MakeActionCallback.Execute(Enum)) ? 1 : 0;
		});
	return NumRegistered;
}

int32 FBlueprintActionDatabaseRegistrar::RegisterClassFactoryActions(
	const UClass* TargetType, const FMakeFuncSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	const auto RegisterOf = [&](const UClass* Class)
	{
		if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_NewerVersionExists) || !Class->IsChildOf(TargetType))
		{
			return;
		}
		for (TFieldIterator<UFunction> Function(Class, EFieldIterationFlags::None); Function; ++Function)
		{
			const FObjectProperty* const Result = CastField<FObjectProperty>(Function->GetReturnProperty());
			const bool bIsFactory = Function->HasAllFunctionFlags(FUNC_Static | FUNC_BlueprintCallable) && Result &&
				Result->PropertyClass->IsChildOf(TargetType);
			NumRegistered += bIsFactory && AddBlueprintAction(Class, MakeActionCallback.Execute(*Function)) ? 1 : 0;
		}
	};
	ForEachKey<UClass>(RegisterOf);
	return NumRegistered;
}
