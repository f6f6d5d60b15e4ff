#include "BlueprintNodeActions.h"

#include "BlueprintActionDatabaseRegistrar.h"
#include "BlueprintEventNodeSpawner.h"
#include "EdGraphSchema_K2.h"
#include "InputCoreTypes.h"
#include "K2Node_AddComponentByClass.h"
#include "K2Node_AssignmentStatement.h"
#include "K2Node_AsyncAction.h"
#include "K2Node_BitmaskLiteral.h"
#include "K2Node_BreakStruct.h"
#include "K2Node_CastByteToEnum.h"
#include "K2Node_ConvertAsset.h"
#include "K2Node_Copy.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DoOnceMultiInput.h"
#include "K2Node_EaseFunction.h"
#include "K2Node_EnumEquality.h"
#include "K2Node_EnumInequality.h"
#include "K2Node_EnumLiteral.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_ForEachElementInEnum.h"
#include "K2Node_FormatText.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_GenericCreateObject.h"
#include "K2Node_GenericToText.h"
#include "K2Node_GetArrayItem.h"
#include "K2Node_GetClassDefaults.h"
#include "K2Node_GetDataTableRow.h"
#include "K2Node_GetEnumeratorName.h"
#include "K2Node_GetEnumeratorNameAsString.h"
#include "K2Node_GetInputAxisKeyValue.h"
#include "K2Node_GetInputAxisValue.h"
#include "K2Node_GetInputVectorAxisValue.h"
#include "K2Node_GetNumEnumEntries.h"
#include "K2Node_GetSubsystem.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_InputAction.h"
#include "K2Node_InputAxisEvent.h"
#include "K2Node_InputAxisKeyEvent.h"
#include "K2Node_InputKey.h"
#include "K2Node_InputTouch.h"
#include "K2Node_InputVectorAxisEvent.h"
#include "K2Node_Knot.h"
#include "K2Node_LoadAsset.h"
#include "K2Node_LoadAssetClass.h"
#include "K2Node_MakeArray.h"
#include "K2Node_MakeMap.h"
#include "K2Node_MakeSet.h"
#include "K2Node_MakeStruct.h"
#include "K2Node_MapForEach.h"
#include "K2Node_MathExpression.h"
#include "K2Node_MultiGate.h"
#include "K2Node_Select.h"
#include "K2Node_Self.h"
#include "K2Node_SetFieldsInStruct.h"
#include "K2Node_SetForEach.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_SwitchEnum.h"
#include "K2Node_SwitchInteger.h"
#include "K2Node_SwitchName.h"
#include "K2Node_SwitchString.h"
#include "K2Node_TemporaryVariable.h"
#include "K2Node_Timeline.h"
#include "K2Node_VariableSetRef.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectHash.h"

namespace
{
using FRegistrar = FBlueprintActionDatabaseRegistrar;
using FAddActions = void (*)(UClass&, FRegistrar&);

/** An action whose node is made ready by a function of the node. */
template <class NodeType, class InitializeType>
UBlueprintNodeSpawner* MakeAction(UClass& NodeClass, InitializeType Initialize)
{
	const auto Customize = [Initialize](UEdGraphNode* Node, bool)
	{ Initialize(*CastChecked<NodeType>(Node)); };
	return UBlueprintNodeSpawner::Create(&NodeClass, nullptr, UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda(Customize));
}

/** Most nodes: one action, and the node is about nothing. */
void AddOne(UClass& NodeClass, FRegistrar& Registrar)
{
	if (Registrar.IsOpenForRegistration(&NodeClass))
	{
		Registrar.AddBlueprintAction(UBlueprintNodeSpawner::Create(&NodeClass));
	}
}

template <class NodeType, TObjectPtr<UEnum> NodeType::*Member>
void AddOfEnums(UClass& NodeClass, FRegistrar& Registrar)
{
	const auto Make = [&NodeClass](const UEnum* Enum)
	{
		UBlueprintFieldNodeSpawner* const Spawner = UBlueprintFieldNodeSpawner::Create(&NodeClass, Enum);
		Spawner->SetNodeFieldDelegate.BindLambda(
			[](UEdGraphNode* Node, FFieldVariant Field)
			{
				NodeType* const Typed = CastChecked<NodeType>(Node);
				if constexpr (std::is_same_v<NodeType, UK2Node_SwitchEnum>)
				{
					Typed->SetEnum(Field.Get<UEnum>());
				}
				else
				{
					Typed->*Member = Field.Get<UEnum>();
				}
			});
		return Spawner;
	};
	Registrar.RegisterEnumActions(FRegistrar::FMakeEnumSpawnerDelegate::CreateLambda(Make));
}

void AddBitmasks(UClass& NodeClass, FRegistrar& Registrar)
{
	AddOne(NodeClass, Registrar);
	const auto Make = [&NodeClass](const UEnum* Enum) -> UBlueprintFieldNodeSpawner*
	{
		if (!Enum->HasMetaData(TEXT("Bitflags")))
		{
			return nullptr;
		}
		UBlueprintFieldNodeSpawner* const Spawner = UBlueprintFieldNodeSpawner::Create(&NodeClass, Enum);
		Spawner->SetNodeFieldDelegate.BindLambda([](UEdGraphNode* Node, FFieldVariant Field)
			{ CastChecked<UK2Node_BitmaskLiteral>(Node)->BitflagsEnum = Field.Get<UEnum>(); });
		return Spawner;
	};
	Registrar.RegisterEnumActions(FRegistrar::FMakeEnumSpawnerDelegate::CreateLambda(Make));
}

/** A structure with a function of its own for it is made and broken by that function's call. */
template <class NodeType>
bool HasAction(const UScriptStruct& Struct)
{
	const bool bMakes = NodeType::StaticClass() == UK2Node_MakeStruct::StaticClass();
	const bool bBreaks = NodeType::StaticClass() == UK2Node_BreakStruct::StaticClass();
	const bool bHasOwnFunction = (bMakes && Struct.HasMetaData(TEXT("HasNativeMake"))) ||
		(bBreaks && Struct.HasMetaData(TEXT("HasNativeBreak")));
	if (bHasOwnFunction || !UEdGraphSchema_K2::IsAllowableBlueprintVariableType(&Struct))
	{
		return false;
	}
	for (TFieldIterator<FProperty> Property(&Struct); Property; ++Property)
	{
		const bool bWritten = !bBreaks;
		if (Property->HasAnyPropertyFlags(CPF_BlueprintVisible) && !(bWritten && Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly)))
		{
			return true;
		}
	}
	return false;
}

template <class NodeType>
void AddOfStructs(UClass& NodeClass, FRegistrar& Registrar)
{
	const auto Make = [&NodeClass](const UScriptStruct* Struct) -> UBlueprintNodeSpawner*
	{
		if (!HasAction<NodeType>(*Struct))
		{
			return nullptr;
		}
		const TWeakObjectPtr<UScriptStruct> Weak = const_cast<UScriptStruct*>(Struct);
		return MakeAction<NodeType>(NodeClass, [Weak](NodeType& Node)
			{ Node.StructType = Weak.Get(); });
	};
	Registrar.RegisterStructActions(FRegistrar::FMakeStructSpawnerDelegate::CreateLambda(Make));
}

bool IsButton(const FKey& Key)
{
	return !Key.IsAxis1D() && !Key.IsVector();
}

bool IsAxis(const FKey& Key)
{
	return Key.IsAxis1D();
}

bool IsVector(const FKey& Key)
{
	return Key.IsVector();
}

template <class NodeType>
void SetKey(NodeType& Node, const FKey& Key)
{
	if constexpr (std::is_same_v<NodeType, UK2Node_InputKey>)
	{
		Node.InputKey = Key;
	}
	else
	{
		Node.Initialize(Key);
	}
}

template <class NodeType, bool (*IsWanted)(const FKey&)>
void AddOfKeys(UClass& NodeClass, FRegistrar& Registrar)
{
	if (!Registrar.IsOpenForRegistration(&NodeClass))
	{
		return;
	}
	TArray<FKey> Keys;
	EKeys::GetAllKeys(Keys);
	for (const FKey& Key : Keys)
	{
		if (IsWanted(Key))
		{
			Registrar.AddBlueprintAction(MakeAction<NodeType>(NodeClass, [Key](NodeType& Node)
				{ SetKey(Node, Key); }));
		}
	}
}

/**
 * The names of a list of the project's input settings, each once: (ActionName="Jump",Key=SpaceBar),
 * (AxisName="Turn",Scale=1.0,Key=MouseX).
 */
TSet<FName> GetNamesOfMappings(const TCHAR* List, const TCHAR* NameField)
{
	TArray<FString> Lines;
	if (GConfig)
	{
		GConfig->GetArray(TEXT("/Script/Engine.InputSettings"), List, Lines, GInputIni);
	}
	TSet<FName> Names;
	for (const FString& Line : Lines)
	{
		FString Name;
		if (FParse::Value(*Line, NameField, Name) && !Name.IsEmpty())
		{
			Names.Add(FName(*Name));
		}
	}
	return Names;
}

template <class NodeType>
void AddOfAxisMappings(UClass& NodeClass, FRegistrar& Registrar)
{
	if (!Registrar.IsOpenForRegistration(&NodeClass))
	{
		return;
	}
	for (const FName& Axis : GetNamesOfMappings(TEXT("AxisMappings"), TEXT("AxisName=")))
	{
		Registrar.AddBlueprintAction(MakeAction<NodeType>(NodeClass, [Axis](NodeType& Node)
			{ Node.Initialize(Axis); }));
	}
}

void AddOfActionMappings(UClass& NodeClass, FRegistrar& Registrar)
{
	if (!Registrar.IsOpenForRegistration(&NodeClass))
	{
		return;
	}
	for (const FName& Action : GetNamesOfMappings(TEXT("ActionMappings"), TEXT("ActionName=")))
	{
		Registrar.AddBlueprintAction(MakeAction<UK2Node_InputAction>(NodeClass, [Action](UK2Node_InputAction& Node)
			{ Node.InputActionName = Action; }));
	}
}

/** One action of each class below any of the named ones. */
void AddSubsystems(UClass& NodeClass, FRegistrar& Registrar, std::initializer_list<const TCHAR*> BaseClasses)
{
	for (const TCHAR* const BaseClass : BaseClasses)
	{
		const UClass* const Base = FindObject<UClass>(nullptr, BaseClass);
		TArray<UClass*> Subsystems;
		if (Base)
		{
			GetDerivedClasses(Base, Subsystems);
		}
		for (UClass* const Subsystem : Subsystems)
		{
			if (!Registrar.IsOpenForRegistration(Subsystem) || Subsystem->HasAnyClassFlags(CLASS_Abstract | CLASS_NewerVersionExists) ||
				!UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Subsystem, true))
			{
				continue;
			}
			const TWeakObjectPtr<UClass> Weak = Subsystem;
			Registrar.AddBlueprintAction(
				Subsystem, MakeAction<UK2Node_GetSubsystem>(NodeClass, [Weak](UK2Node_GetSubsystem& Node)
							   { Node.Initialize(Weak.Get()); }));
		}
	}
}

void AddGameSubsystems(UClass& NodeClass, FRegistrar& Registrar)
{
	AddSubsystems(NodeClass, Registrar,
		{TEXT("/Script/Engine.GameInstanceSubsystem"), TEXT("/Script/Engine.WorldSubsystem"), TEXT("/Script/Engine.LocalPlayerSubsystem")});
}

void AddPlayerSubsystems(UClass& NodeClass, FRegistrar& Registrar)
{
	AddSubsystems(NodeClass, Registrar, {TEXT("/Script/Engine.LocalPlayerSubsystem")});
}

void AddEngineSubsystems(UClass& NodeClass, FRegistrar& Registrar)
{
	AddSubsystems(NodeClass, Registrar, {TEXT("/Script/Engine.EngineSubsystem")});
}

void AddEditorSubsystems(UClass& NodeClass, FRegistrar& Registrar)
{
	AddSubsystems(NodeClass, Registrar, {TEXT("/Script/EditorSubsystem.EditorSubsystem")});
}

void AddArrayItems(UClass& NodeClass, FRegistrar& Registrar)
{
	if (!Registrar.IsOpenForRegistration(&NodeClass))
	{
		return;
	}
	for (const bool bByReference : {false, true})
	{
		Registrar.AddBlueprintAction(
			MakeAction<UK2Node_GetArrayItem>(NodeClass, [bByReference](UK2Node_GetArrayItem& Node)
				{ Node.bReturnByRefDesired = bByReference; }));
	}
}

void AddCustomEvent(UClass& NodeClass, FRegistrar& Registrar)
{
	if (Registrar.IsOpenForRegistration(&NodeClass))
	{
		Registrar.AddBlueprintAction(UBlueprintEventNodeSpawner::Create(&NodeClass, FName(TEXT("CustomEvent"))));
	}
}

void AddAsyncTasks(UClass& NodeClass, FRegistrar& Registrar)
{
	const UClass* const TaskClass = FindObject<UClass>(nullptr, TEXT("/Script/Engine.BlueprintAsyncActionBase"));
	const auto Make = [&NodeClass](const UFunction* Factory) -> UBlueprintNodeSpawner*
	{
		// Such a class comes with a node class of its own.
		if (Factory->GetOwnerClass()->HasMetaData(TEXT("HasDedicatedAsyncNode")))
		{
			return nullptr;
		}
		UBlueprintFieldNodeSpawner* const Spawner = UBlueprintFieldNodeSpawner::Create(&NodeClass, const_cast<UFunction*>(Factory));
		Spawner->SetNodeFieldDelegate.BindLambda([](UEdGraphNode* Node, FFieldVariant Field)
			{ CastChecked<UK2Node_AsyncAction>(Node)->InitializeProxyFromFunction(Field.Get<UFunction>()); });
		return Spawner;
	};
	if (TaskClass)
	{
		Registrar.RegisterClassFactoryActions(TaskClass, FRegistrar::FMakeFuncSpawnerDelegate::CreateLambda(Make));
	}
}

void AddTemporaryVariables(UClass& NodeClass, FRegistrar& Registrar)
{
	if (!Registrar.IsOpenForRegistration(&NodeClass))
	{
		return;
	}
	using FSchema = UEdGraphSchema_K2;
	const auto AddType = [&NodeClass, &Registrar](FEdGraphPinType Type, const bool bIsPersistent)
	{
		const auto Initialize = [Type, bIsPersistent](UK2Node_TemporaryVariable& Node)
		{
			Node.VariableType = Type;
			Node.bIsPersistent = bIsPersistent;
		};
		Registrar.AddBlueprintAction(MakeAction<UK2Node_TemporaryVariable>(NodeClass, Initialize));
	};
	const auto MakeType = [](const FName Category, const FName SubCategory = NAME_None, UObject* SubCategoryObject = nullptr)
	{ return FEdGraphPinType(Category, SubCategory, SubCategoryObject, EPinContainerType::None, false, FEdGraphTerminalType()); };
	const FEdGraphPinType Types[] = {MakeType(FSchema::PC_Int), MakeType(FSchema::PC_Real, FSchema::PC_Double),
		MakeType(FSchema::PC_Boolean), MakeType(FSchema::PC_Struct, NAME_None, TBaseStructure<FVector>::Get()),
		MakeType(FSchema::PC_Struct, NAME_None, TBaseStructure<FRotator>::Get()),
		MakeType(FSchema::PC_Struct, NAME_None, TBaseStructure<FTransform>::Get()), MakeType(FSchema::PC_String),
		MakeType(FSchema::PC_Text), MakeType(FSchema::PC_Byte)};
	for (FEdGraphPinType Type : Types)
	{
		AddType(Type, false);
		Type.ContainerType = EPinContainerType::Array;
		AddType(Type, false);
	}
	AddType(MakeType(FSchema::PC_Int), true);
	AddType(MakeType(FSchema::PC_Boolean), true);
}

const TMap<const UClass*, FAddActions>& GetTable()
{
	static const TMap<const UClass*, FAddActions> Table = {
		{UK2Node_AddComponentByClass::StaticClass(), AddOne},
		{UK2Node_AssignmentStatement::StaticClass(), AddOne},
		{UK2Node_AsyncAction::StaticClass(), AddAsyncTasks},
		{UK2Node_BitmaskLiteral::StaticClass(), AddBitmasks},
		{UK2Node_BreakStruct::StaticClass(), AddOfStructs<UK2Node_BreakStruct>},
		{UK2Node_CastByteToEnum::StaticClass(), AddOfEnums<UK2Node_CastByteToEnum, &UK2Node_CastByteToEnum::Enum>},
		{UK2Node_ConvertAsset::StaticClass(), AddOne},
		{UK2Node_Copy::StaticClass(), AddOne},
		{UK2Node_CreateDelegate::StaticClass(), AddOne},
		{UK2Node_CustomEvent::StaticClass(), AddCustomEvent},
		{UK2Node_DoOnceMultiInput::StaticClass(), AddOne},
		{UK2Node_EaseFunction::StaticClass(), AddOne},
		{UK2Node_EnumEquality::StaticClass(), AddOne},
		{UK2Node_EnumInequality::StaticClass(), AddOne},
		{UK2Node_EnumLiteral::StaticClass(), AddOfEnums<UK2Node_EnumLiteral, &UK2Node_EnumLiteral::Enum>},
		{UK2Node_ExecutionSequence::StaticClass(), AddOne},
		{UK2Node_ForEachElementInEnum::StaticClass(), AddOfEnums<UK2Node_ForEachElementInEnum, &UK2Node_ForEachElementInEnum::Enum>},
		{UK2Node_FormatText::StaticClass(), AddOne},
		{UK2Node_FunctionResult::StaticClass(), AddOne},
		{UK2Node_GenericCreateObject::StaticClass(), AddOne},
		{UK2Node_GenericToText::StaticClass(), AddOne},
		{UK2Node_GetArrayItem::StaticClass(), AddArrayItems},
		{UK2Node_GetClassDefaults::StaticClass(), AddOne},
		{UK2Node_GetDataTableRow::StaticClass(), AddOne},
		{UK2Node_GetEditorSubsystem::StaticClass(), AddEditorSubsystems},
		{UK2Node_GetEngineSubsystem::StaticClass(), AddEngineSubsystems},
		{UK2Node_GetEnumeratorName::StaticClass(), AddOne},
		{UK2Node_GetEnumeratorNameAsString::StaticClass(), AddOne},
		{UK2Node_GetInputAxisKeyValue::StaticClass(), AddOfKeys<UK2Node_GetInputAxisKeyValue, IsAxis>},
		{UK2Node_GetInputAxisValue::StaticClass(), AddOfAxisMappings<UK2Node_GetInputAxisValue>},
		{UK2Node_GetInputVectorAxisValue::StaticClass(), AddOfKeys<UK2Node_GetInputVectorAxisValue, IsVector>},
		{UK2Node_GetNumEnumEntries::StaticClass(), AddOfEnums<UK2Node_GetNumEnumEntries, &UK2Node_GetNumEnumEntries::Enum>},
		{UK2Node_GetSubsystem::StaticClass(), AddGameSubsystems},
		{UK2Node_GetSubsystemFromPC::StaticClass(), AddPlayerSubsystems},
		{UK2Node_IfThenElse::StaticClass(), AddOne},
		{UK2Node_InputAction::StaticClass(), AddOfActionMappings},
		{UK2Node_InputAxisEvent::StaticClass(), AddOfAxisMappings<UK2Node_InputAxisEvent>},
		{UK2Node_InputAxisKeyEvent::StaticClass(), AddOfKeys<UK2Node_InputAxisKeyEvent, IsAxis>},
		{UK2Node_InputKey::StaticClass(), AddOfKeys<UK2Node_InputKey, IsButton>},
		{UK2Node_InputTouch::StaticClass(), AddOne},
		{UK2Node_InputVectorAxisEvent::StaticClass(), AddOfKeys<UK2Node_InputVectorAxisEvent, IsVector>},
		{UK2Node_Knot::StaticClass(), AddOne},
		{UK2Node_LoadAsset::StaticClass(), AddOne},
		{UK2Node_LoadAssetClass::StaticClass(), AddOne},
		{UK2Node_MakeArray::StaticClass(), AddOne},
		{UK2Node_MakeMap::StaticClass(), AddOne},
		{UK2Node_MakeSet::StaticClass(), AddOne},
		{UK2Node_MakeStruct::StaticClass(), AddOfStructs<UK2Node_MakeStruct>},
		{UK2Node_MapForEach::StaticClass(), AddOne},
		{UK2Node_MathExpression::StaticClass(), AddOne},
		{UK2Node_MultiGate::StaticClass(), AddOne},
		{UK2Node_Select::StaticClass(), AddOne},
		{UK2Node_Self::StaticClass(), AddOne},
		{UK2Node_SetFieldsInStruct::StaticClass(), AddOfStructs<UK2Node_SetFieldsInStruct>},
		{UK2Node_SetForEach::StaticClass(), AddOne},
		{UK2Node_SpawnActorFromClass::StaticClass(), AddOne},
		{UK2Node_SwitchEnum::StaticClass(), AddOfEnums<UK2Node_SwitchEnum, &UK2Node_SwitchEnum::Enum>},
		{UK2Node_SwitchInteger::StaticClass(), AddOne},
		{UK2Node_SwitchName::StaticClass(), AddOne},
		{UK2Node_SwitchString::StaticClass(), AddOne},
		{UK2Node_TemporaryVariable::StaticClass(), AddTemporaryVariables},
		{UK2Node_Timeline::StaticClass(), AddOne},
		{UK2Node_VariableSetRef::StaticClass(), AddOne},
	};
	return Table;
}
}

void BlueprintNodeActions::Add(UClass& NodeClass, FBlueprintActionDatabaseRegistrar& Registrar)
{
	const bool bIsOurs = NodeClass.GetOuter() == UK2Node::StaticClass()->GetOuter();
	const FAddActions* const Row = GetTable().Find(&NodeClass);
	if (Row || !bIsOurs)
	{
		(Row ? *Row : AddOne)(NodeClass, Registrar);
	}
}
