#include "BlueprintClassBuilder.h"

#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "PinTypeProperty.h"
#include "UObject/Interface.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

using EKind = UECodeGen_Private::EPropertyGenKind;

namespace
{
const TCHAR* const SignatureSuffix = TEXT("__DelegateSignature");
const TCHAR* const WidgetPath = TEXT("/Script/UMG.Widget");
const TCHAR* const TimelineComponentPath = TEXT("/Script/Engine.TimelineComponent");

/** What an event has of the function that it overrides. */
constexpr uint32 FlagsOfOverrides = FUNC_FuncInherit | FUNC_AccessSpecifiers | FUNC_BlueprintPure;

constexpr uint64 ComponentFlags = CPF_BlueprintVisible | CPF_NonTransactional | CPF_InstancedReference;
constexpr uint64 WidgetFlags = CPF_BlueprintVisible | CPF_ExportObject | CPF_InstancedReference | CPF_RepSkip | CPF_PersistentInstance;

/** Pins of a terminator that are parameters: no execution, no split members, no target. */
TArray<UEdGraphPin*> GetParameterPins(const UEdGraphNode& Node, EEdGraphPinDirection Direction)
{
	TArray<UEdGraphPin*> Parameters;
	for (UEdGraphPin* const Pin : Node.Pins)
	{
		const bool bIsParameter = Pin->Direction == Direction && !Pin->ParentPin && !Pin->bOrphanedPin &&
			Pin->PinType.PinCategory != UEdGraphSchema_K2::PC_Exec && Pin->PinName != UEdGraphSchema_K2::PN_Self &&
			Pin->PinName != UK2Node_Event::DelegateOutputName;
		if (bIsParameter)
		{
			Parameters.Add(Pin);
		}
	}
	return Parameters;
}

template <typename NodeType>
NodeType* FindNode(const UEdGraph& Graph)
{
	TArray<NodeType*> Nodes;
	Graph.GetNodesOfClass(Nodes);
	return Nodes.Num() > 0 ? Nodes[0] : nullptr;
}
}

namespace
{
void SetDeprecation(UFunction& Function, bool bIsDeprecated, const FString& Message)
{
	if (bIsDeprecated)
	{
		Function.SetMetaData(TEXT("DeprecatedFunction"), TEXT(""));
		Function.SetMetaData(TEXT("DeprecationMessage"), *Message);
	}
}

void SetFlag(UFunction& Function, const TCHAR* Key, bool bIsSet)
{
	if (bIsSet)
	{
		Function.SetMetaData(Key, TEXT("true"));
	}
}

/** What the user declared of the function in its details. */
void SetDeclaredMetaData(UFunction& Function, const FKismetUserDeclaredFunctionMetadata& Declared)
{
	const struct
	{
		const TCHAR* Key;
		const FText& Value;
	} Texts[] = {
		{TEXT("Category"), Declared.Category},
		{TEXT("ToolTip"), Declared.ToolTip},
		{TEXT("Keywords"), Declared.Keywords},
		{TEXT("CompactNodeTitle"), Declared.CompactNodeTitle},
	};
	for (const auto& Text : Texts)
	{
		if (!Text.Value.IsEmpty())
		{
			Function.SetMetaData(Text.Key, *Text.Value.ToString());
		}
	}
	SetFlag(Function, TEXT("CallInEditor"), Declared.bCallInEditor);
	SetFlag(Function, TEXT("BlueprintThreadSafe"), Declared.bThreadSafe);
	SetFlag(Function, TEXT("UnsafeDuringActorConstruction"), Declared.bIsUnsafeDuringActorConstruction);
	SetDeprecation(Function, Declared.bIsDeprecated, Declared.DeprecationMessage);
}

/** A call's pins start with the values that the parameters have at the function's entry. */
void SetParameterDefaults(UFunction& Function, const TArray<UEdGraphPin*>& Parameters)
{
	for (const UEdGraphPin* const Pin : Parameters)
	{
		const FString Value = Pin->GetDefaultAsString();
		if (!Value.IsEmpty())
		{
			Function.SetMetaData(Pin->PinName, *Value);
		}
	}
}
}

void FBlueprintClassBuilder::Build(TArray<FString>& OutErrors)
{
	Errors = &OutErrors;
	AddDispatcherSignatures();
	AddComponentsAndTimelines();
	AddWidgets();
	AddVariables();
	AddInterfaces();
	AddFunctions();
	AddEvents();
}

FProperty* FBlueprintClassBuilder::AddProperty(FName Name, const FEdGraphPinType& Type, uint64 Flags)
{
	FPropertyDescription Description;
	if (!DescribePinType(Name, Type, &Class, Description))
	{
		Errors->Add(FString::Printf(TEXT("The variable type of %s is unknown; try changing the variable's type."), *Name.ToString()));
		return nullptr;
	}
	Description.PropertyFlags = static_cast<EPropertyFlags>(Flags);
	FProperty* const Property = ConstructPropertyFromDescription(&Class, Description);
	if (Property)
	{
		Class.AddCppProperty(Property);
	}
	return Property;
}

FProperty* FBlueprintClassBuilder::AddObjectProperty(FName Name, UClass* ObjectClass, uint64 Flags)
{
	if (!ObjectClass || Name.IsNone())
	{
		return nullptr;
	}
	FPropertyDescription Description;
	Description.Name = Name;
	Description.Kind = EKind::Object;
	Description.Type = ObjectClass;
	Description.PropertyFlags = static_cast<EPropertyFlags>(Flags);
	FProperty* const Property = ConstructPropertyFromDescription(&Class, Description);
	if (Property)
	{
		Class.AddCppProperty(Property);
	}
	return Property;
}

void FBlueprintClassBuilder::AddVariables()
{
	for (FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		FEdGraphPinType Type = Variable.VarType;
		if (Type.PinCategory == UEdGraphSchema_K2::PC_MCDelegate)
		{
			Type.PinSubCategoryMemberReference.Reset();
			Type.PinSubCategoryMemberReference.MemberParent = &Class;
			Type.PinSubCategoryMemberReference.MemberName = FName(*(Variable.VarName.ToString() + SignatureSuffix));
		}
		FProperty* const Property = AddProperty(Variable.VarName, Type, Variable.PropertyFlags);
		if (!Property)
		{
			continue;
		}
		Property->RepNotifyFunc = Variable.RepNotifyFunc;
		Property->SetMetaData(TEXT("DisplayName"), *Variable.FriendlyName);
		Property->SetMetaData(TEXT("Category"), *Variable.Category.ToString());
		for (const FBPVariableMetaDataEntry& Entry : Variable.MetaDataArray)
		{
			Property->SetMetaData(*Entry.DataKey.ToString(), *Entry.DataValue);
		}
		Class.PropertyGuids.Add(Variable.VarName, Variable.VarGuid);
	}
}

void FBlueprintClassBuilder::AddComponentsAndTimelines()
{
	if (Blueprint.SimpleConstructionScript)
	{
		for (const USCS_Node* const Node : Blueprint.SimpleConstructionScript->GetAllNodes())
		{
			UClass* const ComponentClass = Node &&
					Node->ComponentTemplate
				? Node->ComponentTemplate->GetClass()
				: Node ? Node->ComponentClass.Get()
					   : nullptr;
			if (ComponentClass)
			{
				AddObjectProperty(Node->GetVariableName(), ComponentClass, ComponentFlags);
			}
		}
	}
	for (const UTimelineTemplate* const Timeline : Blueprint.Timelines)
	{
		if (Timeline)
		{
			AddObjectProperty(Timeline->GetVariableName(), FindObject<UClass>(nullptr, TimelineComponentPath), ComponentFlags);
		}
	}
}

void FBlueprintClassBuilder::AddWidgets()
{
	// Widget Blueprints are known by declaration alone: what holds their widgets is found by its name.
	const FObjectPropertyBase* const Holder = FindFProperty<FObjectPropertyBase>(Blueprint.GetClass(), TEXT("WidgetTree"));
	const UObject* const Tree = Holder ? Holder->GetObjectPropertyValue_InContainer(&Blueprint) : nullptr;
	const UClass* const WidgetClass = FindObject<UClass>(nullptr, WidgetPath);
	TArray<UObject*> Widgets;
	if (Tree && WidgetClass)
	{
		GetObjectsWithOuter(Tree, Widgets, false, RF_Transient, EInternalObjectFlags::Garbage);
	}
	const FBoolProperty* const IsVariable = WidgetClass ? FindFProperty<FBoolProperty>(WidgetClass, TEXT("bIsVariable")) : nullptr;
	Widgets.RemoveAll([WidgetClass, IsVariable](const UObject* Widget)
		{ return !Widget->IsA(WidgetClass) || !IsVariable || !IsVariable->GetPropertyValue_InContainer(Widget); });
	Widgets.Sort([](const UObject& A, const UObject& B)
		{ return A.GetFName().LexicalLess(B.GetFName()); });
	for (const UObject* const Widget : Widgets)
	{
		if (FProperty* const Property = AddObjectProperty(Widget->GetFName(), Widget->GetClass(), WidgetFlags))
		{
			Property->SetMetaData(TEXT("DisplayName"), *Widget->GetName());
			Property->SetMetaData(TEXT("Category"), *Blueprint.GetName());
		}
	}
}

void FBlueprintClassBuilder::AddInterfaces()
{
	for (const FBPInterfaceDescription& Description : Blueprint.ImplementedInterfaces)
	{
		if (Description.Interface)
		{
			Class.Interfaces.Add(FImplementedInterface(Description.Interface.Get(), 0, true));
		}
	}
}

UFunction* FBlueprintClassBuilder::AddFunction(
	FName Name, uint32 Flags, const TArray<UEdGraphPin*>& Parameters, const TArray<UEdGraphPin*>& Results)
{
	if (StaticFindObjectFast(nullptr, &Class, Name))
	{
		Errors->Add(FString::Printf(TEXT("Duplicate function name %s"), *Name.ToString()));
		return nullptr;
	}
	const bool bIsSignature = Name.ToString().EndsWith(SignatureSuffix, ESearchCase::CaseSensitive);
	UClass* const FunctionClass = bIsSignature ? UDelegateFunction::StaticClass() : UFunction::StaticClass();
	UFunction* const Function = NewObject<UFunction>(&Class, FunctionClass, Name, RF_Public);
	Function->FunctionFlags = static_cast<EFunctionFlags>(Flags);
	UClass* const SuperClass = Class.GetSuperClass();
	Function->SetSuperStruct(SuperClass ? SuperClass->FindFunctionByName(Name) : nullptr);

	const auto AddParameters = [this, Function](const TArray<UEdGraphPin*>& Pins, uint64 ParameterFlags)
	{
		for (const UEdGraphPin* const Pin : Pins)
		{
			FPropertyDescription Description;
			if (!DescribePinType(Pin->PinName, Pin->PinType, &Class, Description))
			{
				Errors->Add(FString::Printf(TEXT("The type of parameter %s of %s is unknown."), *Pin->GetName(), *Function->GetName()));
				continue;
			}
			const EPropertyFlags ReferenceFlags = Pin->PinType.bIsReference ? CPF_OutParm | CPF_ReferenceParm : CPF_None;
			const EPropertyFlags ConstFlags = Pin->PinType.bIsConst ? CPF_ConstParm : CPF_None;
			Description.PropertyFlags = static_cast<EPropertyFlags>(CPF_Parm | CPF_BlueprintVisible | CPF_BlueprintReadOnly |
				ParameterFlags | ReferenceFlags | ConstFlags);
			if (FProperty* const Property = ConstructPropertyFromDescription(Function, Description))
			{
				Function->AddCppProperty(Property);
			}
		}
	};
	AddParameters(Parameters, 0);
	AddParameters(Results, CPF_OutParm);
	if (Results.Num() > 0)
	{
		Function->FunctionFlags |= FUNC_HasOutParms;
	}
	Function->Next = Class.Children;
	Class.Children = Function;
	Function->StaticLink(true);
	Class.AddFunctionToFunctionMap(Function, Name);
	return Function;
}

void FBlueprintClassBuilder::AddDispatcherSignatures()
{
	for (const UEdGraph* const Graph : Blueprint.DelegateSignatureGraphs)
	{
		const UK2Node_FunctionEntry* const Entry = Graph ? FindNode<UK2Node_FunctionEntry>(*Graph) : nullptr;
		if (Entry)
		{
			AddFunction(FName(*(Graph->GetName() + SignatureSuffix)),
				FUNC_Public | FUNC_MulticastDelegate | FUNC_Delegate | FUNC_BlueprintEvent | FUNC_BlueprintCallable,
				GetParameterPins(*Entry, EGPD_Output), {});
		}
	}
}

void FBlueprintClassBuilder::AddFunctionOfGraph(const UEdGraph& Graph)
{
	const UK2Node_FunctionEntry* const Entry = FindNode<UK2Node_FunctionEntry>(Graph);
	if (!Entry)
	{
		Errors->Add(FString::Printf(TEXT("Could not find a root node for the graph %s"), *Graph.GetName()));
		return;
	}
	const UK2Node_FunctionResult* const Exit = FindNode<UK2Node_FunctionResult>(Graph);
	UFunction* const Function = AddFunction(Graph.GetFName(),
		static_cast<uint32>(Entry->GetFunctionFlags()) | FUNC_BlueprintCallable | FUNC_BlueprintEvent,
		GetParameterPins(*Entry, EGPD_Output), Exit ? GetParameterPins(*Exit, EGPD_Input) : TArray<UEdGraphPin*>());
	if (!Function)
	{
		return;
	}
	for (const FBPVariableDescription& Local : Entry->LocalVariables)
	{
		FPropertyDescription Description;
		if (DescribePinType(Local.VarName, Local.VarType, &Class, Description))
		{
			Description.PropertyFlags = static_cast<EPropertyFlags>(Local.PropertyFlags & ~static_cast<uint64>(CPF_ParmFlags));
			if (FProperty* const Property = ConstructPropertyFromDescription(Function, Description))
			{
				Function->AddCppProperty(Property);
			}
		}
	}
	Function->StaticLink(true);
	SetDeclaredMetaData(*Function, Entry->MetaData);
	SetParameterDefaults(*Function, GetParameterPins(*Entry, EGPD_Output));
}

void FBlueprintClassBuilder::AddFunctions()
{
	for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
	{
		if (Graph)
		{
			AddFunctionOfGraph(*Graph);
		}
	}
	for (const FBPInterfaceDescription& Interface : Blueprint.ImplementedInterfaces)
	{
		for (const UEdGraph* const Graph : Interface.Graphs)
		{
			if (Graph)
			{
				AddFunctionOfGraph(*Graph);
			}
		}
	}
}

void FBlueprintClassBuilder::AddEvents()
{
	TArray<UK2Node_Event*> Events;
	for (const UEdGraph* const Graph : Blueprint.UbergraphPages)
	{
		if (Graph)
		{
			Graph->GetNodesOfClass(Events);
		}
	}
	for (const UK2Node_Event* const Event : Events)
	{
		const FName Name = Event->GetFunctionName();
		// A disabled event is the editor's suggestion, not the Blueprint's.
		if (Event->IsNodeEnabled() && !Name.IsNone())
		{
			const UClass* const SuperClass = Class.GetSuperClass();
			const UFunction* const Overridden = SuperClass ? SuperClass->FindFunctionByName(Name) : nullptr;
			const uint32 InheritedFlags = Overridden ? static_cast<uint32>(Overridden->FunctionFlags) & FlagsOfOverrides : FUNC_None;
			const uint32 Flags = FUNC_BlueprintEvent | InheritedFlags | (Event->FunctionFlags & FUNC_NetFuncFlags) |
				(Event->IsA<UK2Node_CustomEvent>() ? FUNC_BlueprintCallable : FUNC_None);
			const TArray<UEdGraphPin*> Parameters = GetParameterPins(*Event, EGPD_Output);
			UFunction* const Function = AddFunction(Name, Flags, Parameters, {});
			const UK2Node_CustomEvent* const Custom = Function ? Cast<UK2Node_CustomEvent>(Event) : nullptr;
			if (Custom)
			{
				SetFlag(*Function, TEXT("CallInEditor"), Custom->bCallInEditor);
				SetDeprecation(*Function, Custom->bIsDeprecated, Custom->DeprecationMessage);
				SetParameterDefaults(*Function, Parameters);
			}
		}
	}
}
