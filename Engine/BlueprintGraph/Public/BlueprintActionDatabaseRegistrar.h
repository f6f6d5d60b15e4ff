#pragma once

#include "BlueprintActionDatabase.h"
#include "Templates/SubclassOf.h"

class UBlueprintFieldNodeSpawner;
class UEdGraphNode;
class UEnum;
class UScriptStruct;

/** Takes the actions that node classes offer: passed to UEdGraphNode::GetMenuActions of each class's default object. */
class BLUEPRINTGRAPH_API FBlueprintActionDatabaseRegistrar
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintNodeSpawner*, FMakeStructSpawnerDelegate, const UScriptStruct*);
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintFieldNodeSpawner*, FMakeEnumSpawnerDelegate, const UEnum*);
	DECLARE_DELEGATE_RetVal_OneParam(UBlueprintNodeSpawner*, FMakeFuncSpawnerDelegate, const UFunction*);

	/** With a key, actions that are about anything else are refused. */
	FBlueprintActionDatabaseRegistrar(FBlueprintActionDatabase::FActionRegistry& InRegistry, UObject const* InKeyFilter = nullptr);

	/** Asks the class's default object for its actions. */
	void RegisterNodeClass(UClass& NodeClass);

	/** An action that is about nothing but the node. */
	bool AddBlueprintAction(UBlueprintNodeSpawner* NodeSpawner);
	/** The action's key is what it is about: a class, a structure, an enumeration, an asset. */
	bool AddBlueprintAction(UObject const* ActionKey, UBlueprintNodeSpawner* NodeSpawner);
	/** Ask before actions are made: they would be refused otherwise. */
	bool IsOpenForRegistration(UObject const* ActionKey) const;

	/** One action of each structure or enumeration, or of each function that makes an object of the class. A null action is left out. */
	int32 RegisterStructActions(const FMakeStructSpawnerDelegate& MakeActionCallback);
	int32 RegisterEnumActions(const FMakeEnumSpawnerDelegate& MakeActionCallback);
	int32 RegisterClassFactoryActions(const UClass* TargetType, const FMakeFuncSpawnerDelegate& MakeActionCallback);
	template <class ClassType>
	int32 RegisterClassFactoryActions(const FMakeFuncSpawnerDelegate& MakeActionCallback)
	{
		return RegisterClassFactoryActions(ClassType::StaticClass(), MakeActionCallback);
	}

private:
	/** Calls the visitor with each object of the type that actions may be about now. */
	template <class ObjectType, class VisitorType>
	void ForEachKey(VisitorType Visitor) const;

	FBlueprintActionDatabase::FActionRegistry& Registry;
	UObject const* KeyFilter;
	UClass* GeneratingClass = nullptr;
};
