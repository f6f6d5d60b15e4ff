#include "BlueprintActionDatabaseRegistrar.h"

#include "BlueprintFieldNodeSpawner.h"
#include "EdGraphSchema_K2.h"
#include "UObject/UObjectIterator.h"

FBlueprintActionDatabaseRegistrar::FBlueprintActionDatabaseRegistrar(FBlueprintActionDatabase::FActionList& InActions, UClass* InGeneratingClass)
	: Actions(InActions)
	, GeneratingClass(InGeneratingClass)
{
}

bool FBlueprintActionDatabaseRegistrar::IsOpenForRegistration(UObject const* ActionKey) const
{
	return ActionKey != nullptr;
}

bool FBlueprintActionDatabaseRegistrar::AddBlueprintAction(UBlueprintNodeSpawner* NodeSpawner)
{
	return AddBlueprintAction(GeneratingClass, NodeSpawner);
}

bool FBlueprintActionDatabaseRegistrar::AddBlueprintAction(UObject const* ActionKey, UBlueprintNodeSpawner* NodeSpawner)
{
	if (!ActionKey || !NodeSpawner)
	{
		return false;
	}
	// A node class's actions are found below the class, whatever struct or enum each of them is about.
	NodeSpawner->NodeClass = NodeSpawner->NodeClass ? NodeSpawner->NodeClass : TSubclassOf<UEdGraphNode>(GeneratingClass);
	Actions.Add(NodeSpawner);
	return true;
}

int32 FBlueprintActionDatabaseRegistrar::RegisterStructActions(const FMakeStructSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	for (TObjectIterator<UScriptStruct> Struct; Struct; ++Struct)
	{
		const bool bIsAsset = !Struct->HasAnyFlags(RF_Transient);
		NumRegistered += bIsAsset && AddBlueprintAction(*Struct, MakeActionCallback.Execute(*Struct)) ? 1 : 0;
	}
	return NumRegistered;
}

int32 FBlueprintActionDatabaseRegistrar::RegisterEnumActions(const FMakeEnumSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	for (TObjectIterator<UEnum> Enum; Enum; ++Enum)
	{
		const bool bIsUsable = !Enum->HasAnyFlags(RF_Transient) && UEdGraphSchema_K2::IsAllowableBlueprintVariableType(*Enum);
		NumRegistered += bIsUsable && AddBlueprintAction(*Enum, MakeActionCallback.Execute(*Enum)) ? 1 : 0;
	}
	return NumRegistered;
}

int32 FBlueprintActionDatabaseRegistrar::RegisterClassFactoryActions(const UClass* TargetType, const FMakeFuncSpawnerDelegate& MakeActionCallback)
{
	int32 NumRegistered = 0;
	for (TObjectIterator<UClass> Class; Class; ++Class)
	{
		if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_NewerVersionExists) || !Class->IsChildOf(TargetType))
		{
			continue;
		}
		for (TFieldIterator<UFunction> Function(*Class, EFieldIterationFlags::None); Function; ++Function)
		{
			const FObjectProperty* const Result = CastField<FObjectProperty>(Function->GetReturnProperty());
			const bool bIsFactory = Function->HasAllFunctionFlags(FUNC_Static | FUNC_BlueprintCallable) && Result && Result->PropertyClass->IsChildOf(TargetType);
			NumRegistered += bIsFactory && AddBlueprintAction(*Class, MakeActionCallback.Execute(*Function)) ? 1 : 0;
		}
	}
	return NumRegistered;
}
