#pragma once

#include "BlueprintActionDatabase.h"
#include "Templates/SubclassOf.h"

class UBlueprintFieldNodeSpawner;
class UEnum;
class UField;
class UK2Node;
class UScriptStruct;

/** Takes the actions that a node class offers. Passed to UEdGraphNode::GetMenuActions of the class's default object. */
class BLUEPRINTGRAPH_API FBlueprintActionDatabaseRegistrar
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintNodeSpawner*, FMakeStructSpawnerDelegate, const UScriptStruct*);
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintFieldNodeSpawner*, FMakeEnumSpawnerDelegate, const UEnum*);
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintNodeSpawner*, FMakeFuncSpawnerDelegate, const UFunction*);

	FBlueprintActionDatabaseRegistrar(FBlueprintActionDatabase::FActionList& InActions, UClass* InGeneratingClass);

	/** An action that is about no class or asset but the node's own. */
	bool AddBlueprintAction(UBlueprintNodeSpawner* NodeSpawner);
	/** ActionKey is what the action is about. */
	bool AddBlueprintAction(UObject const* ActionKey, UBlueprintNodeSpawner* NodeSpawner);
	bool IsOpenForRegistration(UObject const* ActionKey) const;

	/** One action of each struct, enum, or function that makes an asynchronous object of the class. */
	int32 RegisterStructActions(const FMakeStructSpawnerDelegate& MakeActionCallback);
	int32 RegisterEnumActions(const FMakeEnumSpawnerDelegate& MakeActionCallback);
	int32 RegisterClassFactoryActions(const UClass* TargetType, const FMakeFuncSpawnerDelegate& MakeActionCallback);
	template <class ClassType>
	int32 RegisterClassFactoryActions(const FMakeFuncSpawnerDelegate& MakeActionCallback)
	{
		return RegisterClassFactoryActions(ClassType::StaticClass(), MakeActionCallback);
	}

private:
	FBlueprintActionDatabase::FActionList& Actions;
	UClass* GeneratingClass;
};
