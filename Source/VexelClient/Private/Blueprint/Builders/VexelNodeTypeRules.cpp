#include "Blueprint/Builders/VexelNodeTypeRules.h"

#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "Blueprint/Builders/VexelNodeProperties.h"
#include "Blueprint/VexelBlueprintMapping.h"
#include "VexelLog.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_CreateDelegate.h"
#include "K2Node_Event.h"
#include "K2Node_Literal.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Message.h"
#include "K2Node_TemporaryVariable.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"

namespace
{
const TCHAR* const AxisKeyFunction = TEXT("GetInputAxisKeyValue");

FString MakeOwnerPrefix(const UClass* Class)
{
	return FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Class);
}

/** "%s.%s" where there is a name, else the id alone. */
FString WithName(const TCHAR* Id, const FString& Name)
{
	return Name.IsEmpty() ? FString(Id) : FString::Printf(TEXT("%s.%s"), Id, *Name);
}

// Calls

UClass* GetFunctionOwner(const UK2Node_CallFunction& Node)
{
	const UFunction* const Function = Node.GetTargetFunction();
	return Function ? Function->GetOwnerClass() : Node.FunctionReference.GetMemberParentClass();
}

FString MakeCallId(const UK2Node_CallFunction& Node)
{
	const FString FunctionName = Node.FunctionReference.GetMemberName().ToString();
	if (FunctionName == AxisKeyFunction)
	{
		VEXEL_LOG(Warning,
			"MakeNodeTypeReference: UK2Node_CallFunction '%s' is a GetInputAxisKeyValue call, which should be handled by UK2Node_GetInputAxisValue!",
			*Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("call.%s%s"), *MakeOwnerPrefix(GetFunctionOwner(Node)), *FunctionName);
}

FString MakeMessageId(const UK2Node_Message& Node)
{
	return FString::Printf(
		TEXT("call.interface.%s%s"), *MakeOwnerPrefix(GetFunctionOwner(Node)), *Node.FunctionReference.GetMemberName().ToString());
}

FString MakeOperatorId(const UEdGraphNode& Node)
{
	FString Operation = VexelNodeProperties::GetText(Node, TEXT("OperationName"));
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(&Node);
	// A node that was pasted carries its function alone: "Add_DoubleDouble".
	if (Operation.IsEmpty() && Call)
	{
		const FString FunctionName = Call->FunctionReference.GetMemberName().ToString();
		if (!FunctionName.Split(TEXT("_"), &Operation, nullptr))
		{
			Operation = FunctionName;
		}
	}
	return FString::Printf(TEXT("call.op.%s"), *Operation);
}

FString MakeAxisValueId(const UEdGraphNode& Node)
{
	FString Axis = VexelNodeProperties::GetText(Node, TEXT("InputAxisName"));
	if (Axis.IsEmpty())
	{
		Axis = VexelNodeProperties::GetKeyName(Node, TEXT("InputAxisKey"));
	}
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(&Node);
	if (Axis.IsEmpty() && Call && Call->FunctionReference.GetMemberName() == AxisKeyFunction)
	{
		VEXEL_LOG(Warning,
			"MakeNodeTypeReference: UK2Node_CallFunction '%s' is a GetInputAxisKeyValue call, but is not of the expected class! Expected: %s, Actual: %s",
			*Node.GetName(), TEXT("K2Node_GetInputAxisKeyValue"), *Node.GetClass()->GetName());
		return FString();
	}
	return FString::Printf(TEXT("call.GetInputAxisKeyValue.%s"), *Axis);
}

FString MakeSubsystemId(const UEdGraphNode& Node, const TCHAR* Format)
{
	const UObject* const Class = VexelNodeProperties::GetObject(Node, TEXT("CustomClass"));
	if (!Class)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: UK2Node_GetSubsystem '%s' has no custom class!", *Node.GetName());
		return FString();
	}
	return FString(Format) + Class->GetName();
}

// Events

FString MakeEventId(const UK2Node_Event& Node)
{
	const UClass* const Class = Node.EventReference.GetMemberParentClass(Node.GetBlueprintClassFromNode());
	if (!Class)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: UK2Node_Event '%s' has no event class!", *Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("event.%s%s"), *MakeOwnerPrefix(Class), *Node.EventReference.GetMemberName().ToString());
}

FString MakeComponentEventId(const UK2Node_ComponentBoundEvent& Node)
{
	if (!Node.DelegateOwnerClass)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: UK2Node_Event '%s' has no event class!", *Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("event.%s%s.%s"), *MakeOwnerPrefix(Node.DelegateOwnerClass), *Node.DelegatePropertyName.ToString(),
		*Node.ComponentPropertyName.ToString());
}

// Variables

/** How the ids of reading a variable differ from those of writing one. */
struct FVariableWords
{
	const TCHAR* Member;
	const TCHAR* Local;
	const TCHAR* NodeClass;
};
constexpr FVariableWords GetWords = {TEXT("var.get."), TEXT("var.local.get."), TEXT("UK2Node_VariableGet")};
constexpr FVariableWords SetWords = {TEXT("var.set."), TEXT("var.local.set."), TEXT("UK2Node_VariableSet")};

FString MakeVariableId(const UK2Node_Variable& Node, const FVariableWords& Words)
{
	const FMemberReference& Reference = Node.VariableReference;
	const FString Name = Reference.GetMemberName().ToString();
	if (Reference.IsLocalScope())
	{
		return Words.Local + Name;
	}
	if (Reference.IsSelfContext())
	{
		return Words.Member + Name;
	}
	const UClass* const Owner = Reference.GetMemberParentClass();
	if (!Owner)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: %s '%s' has no variable source class!", Words.NodeClass, *Node.GetName());
		return FString();
	}
	return Words.Member + MakeOwnerPrefix(Owner) + Name;
}

FString MakeSetByReferenceId(const UEdGraphNode& Node)
{
	const UEdGraphPin* const Pin = Node.FindPin(TEXT("VariableReference"));
	const UEdGraphPin* const Source = Pin && Pin->LinkedTo.Num() > 0 ? Pin->LinkedTo[0] : nullptr;
	const UK2Node_Variable* const Variable = Source ? Cast<UK2Node_Variable>(Source->GetOwningNodeUnchecked()) : nullptr;
	if (!Variable)
	{
		return TEXT("var.set_ref");
	}
	return FString::Printf(TEXT("var.set_ref.%s%s"), *MakeOwnerPrefix(Variable->VariableReference.GetMemberParentClass()),
		*Variable->VariableReference.GetMemberName().ToString());
}

FString MakeTemporaryId(const UK2Node_TemporaryVariable& Node, FVexelBlueprintMapping& Mapping)
{
	const TCHAR* const Id = Node.bIsPersistent ? TEXT("var.make_temp_persistent") : TEXT("var.make_temp");
	return FString::Printf(TEXT("%s.%s"), Id, *Mapping.MakePropTypeReference(Node.VariableType, nullptr));
}

// Delegates, macros, literals

FString MakeDelegateId(const UK2Node_BaseMCDelegate& Node, const TCHAR* Verb)
{
	const FProperty* const Dispatcher = Node.GetProperty();
	const UClass* const Owner =
		Dispatcher ? Dispatcher->GetOwnerClass() : Node.DelegateReference.GetMemberParentClass(Node.GetBlueprintClassFromNode());
	return FString::Printf(TEXT("delegate.%s.%s%s"), Verb, *MakeOwnerPrefix(Owner), *Node.GetPropertyName().ToString());
}

FString MakeAsyncId(const UEdGraphNode& Node)
{
	const UObject* const Class = VexelNodeProperties::GetObject(Node, TEXT("ProxyFactoryClass"));
	const FString Function = VexelNodeProperties::GetText(Node, TEXT("ProxyFactoryFunctionName"));
	if (!Class || Function.IsEmpty())
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: UK2Node_BaseAsyncTask '%s' has no proxy factory class or function!", *Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("async.%s.%s"), *Class->GetName(), *Function);
}

FString MakeMacroId(const UK2Node_MacroInstance& Node)
{
	const UEdGraph* const Graph = Node.GetMacroGraph();
	if (!Graph)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: UK2Node_MacroInstance '%s' has no macro graph!", *Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("macro.%s"), *Graph->GetName());
}

FString MakeLiteralId(const UK2Node_Literal& Node)
{
	const UObject* const Object = Node.GetObjectRef();
	return Object ? FString::Printf(TEXT("literal.%s"), *Object->GetName()) : FString(TEXT("literal.value"));
}

FString MakeDebugKeyId(const UEdGraphNode& Node)
{
	if (!VexelNodeProperties::Has(Node, TEXT("InputKey")))
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: K2Node_InputDebugKey '%s' has no InputKey property!", *Node.GetName());
		return FString();
	}
	const FString Key = VexelNodeProperties::GetKeyName(Node, TEXT("InputKey"));
	if (Key.IsEmpty())
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: K2Node_InputDebugKey '%s' has no input key!", *Node.GetName());
		return FString();
	}
	return FString::Printf(TEXT("input.debug_key.%s"), *Key);
}

FString MakeAxisEventId(const UEdGraphNode& Node)
{
	const FString Key = VexelNodeProperties::GetKeyName(Node, TEXT("AxisKey"));
	return FString::Printf(TEXT("input.axis.%s"), Key.IsEmpty() ? *VexelNodeProperties::GetText(Node, TEXT("InputAxisName")) : *Key);
}

FString MakeArrayGetId(const UEdGraphNode& Node)
{
	return VexelNodeProperties::GetBool(Node, TEXT("bReturnByRefDesired")) ? TEXT("array.get_ref") : TEXT("array.get");
}

// Shapes of rules that many classes share

/** The class and the exact id. */
struct FFixedRule
{
	const TCHAR* NodeClass;
	const TCHAR* Id;
};

/** A node that is about one object: a class, a struct, an enumeration. */
struct FObjectRule
{
	const TCHAR* NodeClass;
	const TCHAR* IdPrefix;
	/** Reflected member that holds the object. */
	const TCHAR* Property;
	/** How the log line about a node without the object calls the node and the object. */
	const TCHAR* NameInLog;
	const TCHAR* Missing;
};

constexpr FFixedRule FixedRules[] = {
	{TEXT("K2Node_CallParentFunction"), TEXT("call.super")},
	{TEXT("K2Node_Copy"), TEXT("call.copy")},
	{TEXT("K2Node_CustomEvent"), TEXT("event.custom")},
	{TEXT("K2Node_Self"), TEXT("var.self")},
	{TEXT("K2Node_AssignmentStatement"), TEXT("var.assign")},
	{TEXT("K2Node_PropertyAccess"), TEXT("var.property_access")},
	{TEXT("K2Node_InputTouch"), TEXT("input.touch")},
	{TEXT("K2Node_Knot"), TEXT("graph.knot")},
	{TEXT("EdGraphNode_Comment"), TEXT("graph.comment")},
	{TEXT("EdGraphNode_Documentation"), TEXT("graph.docs")},
	{TEXT("K2Node_FunctionEntry"), TEXT("graph.entry")},
	{TEXT("K2Node_FunctionResult"), TEXT("graph.return")},
	{TEXT("K2Node_IfThenElse"), TEXT("flow.if")},
	{TEXT("K2Node_Select"), TEXT("flow.select")},
	{TEXT("K2Node_ExecutionSequence"), TEXT("flow.sequence")},
	{TEXT("K2Node_MultiGate"), TEXT("flow.multigate")},
	{TEXT("K2Node_DoOnceMultiInput"), TEXT("flow.do_once_multi")},
	{TEXT("K2Node_MakeArray"), TEXT("make.array")},
	{TEXT("K2Node_MakeMap"), TEXT("make.map")},
	{TEXT("K2Node_MakeSet"), TEXT("make.set")},
	{TEXT("K2Node_MapForEach"), TEXT("foreach.map")},
	{TEXT("K2Node_SetForEach"), TEXT("foreach.set")},
	{TEXT("K2Node_SwitchInteger"), TEXT("switch.integer")},
	{TEXT("K2Node_SwitchName"), TEXT("switch.name")},
	{TEXT("K2Node_SwitchString"), TEXT("switch.string")},
	{TEXT("K2Node_FormatText"), TEXT("text.format")},
	{TEXT("K2Node_GenericToText"), TEXT("text.to_text")},
	{TEXT("K2Node_EaseFunction"), TEXT("math.ease")},
	{TEXT("K2Node_MathExpression"), TEXT("math.expression")},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface"), TEXT("gameplay_tags.multi_compare_asset_interface")},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags"), TEXT("gameplay_tags.multi_compare_asset_interface_single")},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainer"), TEXT("gameplay_tags.multi_compare_container")},
	{TEXT("GameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags"), TEXT("gameplay_tags.multi_compare_container_single")},
	{TEXT("GameplayTagsK2Node_SwitchGameplayTag"), TEXT("gameplay_tags.switch_tag")},
	{TEXT("GameplayTagsK2Node_SwitchGameplayTagContainer"), TEXT("gameplay_tags.switch_container")},
	{TEXT("K2Node_StateTreeBlueprintPropertyRef"), TEXT("state_tree.property_ref")},
	{TEXT("K2Node_StateTreeNodeGetPropertyDescription"), TEXT("state_tree.get_property_description")},
	{TEXT("K2Node_MakeStateTreeReference"), TEXT("state_tree.make_reference")},
	{TEXT("K2Node_EvaluateLiveLinkFrameWithSpecificRole"), TEXT("livelink.evaluate_frame_with_role")},
	{TEXT("K2Node_EvaluateLiveLinkFrameAtWorldTime"), TEXT("livelink.evaluate_frame_at_world_time")},
	{TEXT("K2Node_EvaluateLiveLinkFrameAtSceneTime"), TEXT("livelink.evaluate_frame_at_scene_time")},
	{TEXT("K2Node_UpdateVirtualSubjectStaticData"), TEXT("livelink.update_virtual_subject_static_data")},
	{TEXT("K2Node_UpdateVirtualSubjectFrameData"), TEXT("livelink.update_virtual_subject_frame_data")},
	{TEXT("K2Node_GetSequenceBinding"), TEXT("sequencer.get_binding")},
	{TEXT("K2Node_SetCameraRigParameters"), TEXT("camera_rig.set_parameters")},
};

constexpr FObjectRule ObjectRules[] = {
	{TEXT("K2Node_AddComponent"), TEXT("call.add_component."), TEXT("TemplateType"), TEXT("UK2Node_AddComponent"), TEXT("template type")},
	{TEXT("K2Node_BreakStruct"), TEXT("struct.break."), TEXT("StructType"), TEXT("UK2Node_BreakStruct"), TEXT("struct type")},
	{TEXT("K2Node_MakeStruct"), TEXT("struct.make."), TEXT("StructType"), TEXT("UK2Node_MakeStruct"), TEXT("struct type")},
	{TEXT("K2Node_SetFieldsInStruct"), TEXT("struct.set_members."), TEXT("StructType"), TEXT("UK2Node_SetFieldsInStruct"),
		TEXT("struct type")},
	{TEXT("K2Node_DynamicCast"), TEXT("cast."), TEXT("TargetType"), TEXT("UK2Node_DynamicCast"), TEXT("target type")},
	{TEXT("K2Node_ClassDynamicCast"), TEXT("cast.class."), TEXT("TargetType"), TEXT("UK2Node_ClassDynamicCast"), TEXT("target type")},
	{TEXT("K2Node_CastByteToEnum"), TEXT("cast.byte_to_enum."), TEXT("Enum"), TEXT("UK2Node_CastByteToEnum"), TEXT("enum type")},
	{TEXT("K2Node_EnumLiteral"), TEXT("enum.literal."), TEXT("Enum"), TEXT("UK2Node_EnumLiteral"), TEXT("enum type")},
	{TEXT("K2Node_ForEachElementInEnum"), TEXT("enum.foreach."), TEXT("Enum"), TEXT("K2Node_ForEachElementInEnum"), TEXT("enum type")},
	{TEXT("K2Node_GetNumEnumEntries"), TEXT("enum.get_num."), TEXT("Enum"), TEXT("K2Node_GetNumEnumEntries"), TEXT("enum type")},
	{TEXT("K2Node_SwitchEnum"), TEXT("enum.switch."), TEXT("Enum"), TEXT("K2Node_SwitchEnum"), TEXT("enum type")},
};

/** The names under which the nodes that take a class have their class pin. */
const TArray<const TCHAR*> ClassPins = {TEXT("ClassToSpawn"), TEXT("ClassType"), TEXT("Class")};
const TArray<const TCHAR*> AssetPins = {TEXT("OutputAssetClass"), TEXT("Asset"), TEXT("AssetClass")};
const TArray<const TCHAR*> EnumPins = {TEXT("Enum"), TEXT("Enumerator"), TEXT("A")};

const FVexelOptionalObjectRule OptionalObjectRules[] = {
	{TEXT("K2Node_AddComponentByClass"), TEXT("call.add_component_by_class"), ClassPins},
	{TEXT("K2Node_CreateWidget"), TEXT("call.create_widget"), ClassPins},
	{TEXT("K2Node_CreateDragDropOperation"), TEXT("call.create_drag_drop"), ClassPins},
	{TEXT("K2Node_GenericCreateObject"), TEXT("call.create_object"), ClassPins},
	{TEXT("K2Node_SpawnActorFromClass"), TEXT("call.spawn_actor"), ClassPins},
	{TEXT("K2Node_GetClassDefaults"), TEXT("call.get_class_defaults"), ClassPins},
	{TEXT("K2Node_GetDataTableRow"), TEXT("call.get_data_table_row"), {TEXT("DataTable")}},
	{TEXT("K2Node_LoadAsset"), TEXT("call.load_asset"), AssetPins},
	{TEXT("K2Node_LoadAssetClass"), TEXT("call.load_asset_class"), AssetPins},
	{TEXT("K2Node_EnumEquality"), TEXT("enum.equal"), EnumPins},
	{TEXT("K2Node_EnumInequality"), TEXT("enum.not_equal"), EnumPins},
	{TEXT("K2Node_GetEnumeratorName"), TEXT("enum.get_name"), EnumPins},
	{TEXT("K2Node_GetEnumeratorNameAsString"), TEXT("enum.get_name_string"), EnumPins},
	{TEXT("K2Node_BitmaskLiteral"), TEXT("literal.bitmask"), {}, TEXT("BitflagsEnum")},
	{TEXT("K2Node_EnhancedInputAction"), TEXT("input.enhanced"), {}, TEXT("InputAction")},
	{TEXT("K2Node_GetInputActionValue"), TEXT("input.get_action_value"), {}, TEXT("InputAction")},
	{TEXT("K2Node_ConvertAsset"), TEXT("convert.asset"), {TEXT("TargetClass")}, TEXT("TargetClass")},
};

FString MakeObjectId(const UEdGraphNode& Node, const FObjectRule& Rule)
{
	const UObject* const Object = VexelNodeProperties::GetObject(Node, Rule.Property);
	if (!Object)
	{
		VEXEL_LOG(Warning, "MakeNodeTypeReference: %s '%s' has no %s!", Rule.NameInLog, *Node.GetName(), Rule.Missing);
		return FString();
	}
	return Rule.IdPrefix + Object->GetName();
}

FString MakeOptionalObjectId(const UEdGraphNode& Node, const FVexelOptionalObjectRule& Rule)
{
	for (const TCHAR* const PinName : Rule.Pins)
	{
		const FString Name = VexelNodeProperties::GetPinObjectName(Node, PinName);
		if (!Name.IsEmpty())
		{
			return WithName(Rule.Id, Name);
		}
	}
	const UObject* const Object = Rule.Property ? VexelNodeProperties::GetObject(Node, Rule.Property) : nullptr;
	return WithName(Rule.Id, Object ? Object->GetName() : FString());
}

/** The rule of a node class that is known here, made of a function that takes the class itself. */
template <typename NodeType, typename FunctionType>
void AddTyped(TMap<FName, FVexelNodeTypeRule>& OutRules, FunctionType Function)
{
	OutRules.Add(NodeType::StaticClass()->GetFName(), [Function](const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping) -> FString
		{
		const NodeType& Typed = *CastChecked<NodeType>(&Node);
		if constexpr (std::is_invocable_v<FunctionType, const NodeType&, FVexelBlueprintMapping&>)
		{
			return Function(Typed, Mapping);
		}
		else
		{
			return Function(Typed);
		} });
}

/** The rule of a node class of a module that may be absent. */
void AddNamed(TMap<FName, FVexelNodeTypeRule>& OutRules, const TCHAR* NodeClass, TFunction<FString(const UEdGraphNode&)> Function)
{
	OutRules.Add(FName(NodeClass), [Function = MoveTemp(Function)](const UEdGraphNode& Node, FVexelBlueprintMapping&)
		{ return Function(Node); });
}
}

TArrayView<const FVexelOptionalObjectRule> FVexelNodeTypeRules::GetOptionalObjectRules()
{
	return OptionalObjectRules;
}

void FVexelNodeTypeRules::Collect(TMap<FName, FVexelNodeTypeRule>& OutRules)
{
	for (const FFixedRule& Rule : FixedRules)
	{
		AddNamed(OutRules, Rule.NodeClass, [&Rule](const UEdGraphNode&)
			{ return FString(Rule.Id); });
	}
	for (const FObjectRule& Rule : ObjectRules)
	{
		AddNamed(OutRules, Rule.NodeClass, [&Rule](const UEdGraphNode& Node)
			{ return MakeObjectId(Node, Rule); });
	}
	for (const FVexelOptionalObjectRule& Rule : OptionalObjectRules)
	{
		AddNamed(OutRules, Rule.NodeClass, [&Rule](const UEdGraphNode& Node)
			{ return MakeOptionalObjectId(Node, Rule); });
	}

	AddTyped<UK2Node_CallFunction>(OutRules, &MakeCallId);
	AddTyped<UK2Node_Message>(OutRules, &MakeMessageId);
	AddNamed(OutRules, TEXT("K2Node_PromotableOperator"), &MakeOperatorId);
	AddNamed(OutRules, TEXT("K2Node_GetInputAxisValue"), &MakeAxisValueId);
	AddNamed(OutRules, TEXT("K2Node_GetInputAxisKeyValue"), &MakeAxisValueId);
	AddNamed(OutRules, TEXT("K2Node_GetSubsystem"), [](const UEdGraphNode& Node)
		{ return MakeSubsystemId(Node, TEXT("call.get_subsystem.")); });
	AddNamed(OutRules, TEXT("K2Node_GetSubsystemFromPC"), [](const UEdGraphNode& Node)
		{ return MakeSubsystemId(Node, TEXT("call.get_subsystem.pc.")); });

	AddTyped<UK2Node_Event>(OutRules, &MakeEventId);
	AddTyped<UK2Node_ComponentBoundEvent>(OutRules, &MakeComponentEventId);

	AddTyped<UK2Node_VariableGet>(OutRules, [](const UK2Node_VariableGet& Node)
		{ return MakeVariableId(Node, GetWords); });
	AddTyped<UK2Node_VariableSet>(OutRules, [](const UK2Node_VariableSet& Node)
		{ return MakeVariableId(Node, SetWords); });
	AddNamed(OutRules, TEXT("K2Node_VariableSetRef"), &MakeSetByReferenceId);
	AddTyped<UK2Node_TemporaryVariable>(OutRules, &MakeTemporaryId);

	static constexpr FFixedRule DelegateVerbs[] = {
		{TEXT("K2Node_AssignDelegate"), TEXT("assign")},
		{TEXT("K2Node_AddDelegate"), TEXT("add")},
		{TEXT("K2Node_RemoveDelegate"), TEXT("remove")},
		{TEXT("K2Node_CallDelegate"), TEXT("call")},
		{TEXT("K2Node_ClearDelegate"), TEXT("clear")},
	};
	for (const FFixedRule& Verb : DelegateVerbs)
	{
		AddNamed(OutRules, Verb.NodeClass, [&Verb](const UEdGraphNode& Node)
			{ return MakeDelegateId(*CastChecked<UK2Node_BaseMCDelegate>(&Node), Verb.Id); });
	}
	AddTyped<UK2Node_CreateDelegate>(
		OutRules, [](const UK2Node_CreateDelegate& Node)
		{ return FString::Printf(TEXT("delegate.create.%s"), *Node.GetFunctionName().ToString()); });
	AddNamed(OutRules, TEXT("K2Node_BaseAsyncTask"), &MakeAsyncId);
	AddTyped<UK2Node_MacroInstance>(OutRules, &MakeMacroId);
	AddTyped<UK2Node_Literal>(OutRules, &MakeLiteralId);

	AddNamed(OutRules, TEXT("K2Node_InputKey"),
		[](const UEdGraphNode& Node)
		{ return FString::Printf(TEXT("input.key.%s"), *VexelNodeProperties::GetKeyName(Node, TEXT("InputKey"))); });
	AddNamed(OutRules, TEXT("K2Node_InputAxisEvent"), &MakeAxisEventId);
	AddNamed(OutRules, TEXT("K2Node_InputAxisKeyEvent"), &MakeAxisEventId);
	AddNamed(OutRules, TEXT("K2Node_InputDebugKey"), &MakeDebugKeyId);
	AddNamed(OutRules, TEXT("K2Node_GetArrayItem"), &MakeArrayGetId);
	AddNamed(OutRules, TEXT("K2Node_Timeline"),
		[](const UEdGraphNode& Node)
		{ return WithName(TEXT("timeline"), VexelNodeProperties::GetText(Node, TEXT("TimelineName"))); });
}
