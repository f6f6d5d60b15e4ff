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
#include "UObject/Interface.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

using EKind = UECodeGen_Private::EPropertyGenKind;

namespace
{
const TCHAR* const SignatureSuffix = TEXT("__DelegateSignature");
const TCHAR* const TimelineComponentPath = TEXT("/Script/Engine.TimelineComponent");

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

/** Categories whose properties need nothing but their kind. */
bool FindSimpleKind(const FEdGraphPinType& Type, EKind& OutKind)
{
	static const TMap<FName, EKind> Kinds = {
		{UEdGraphSchema_K2::PC_Boolean, EKind::Bool},
		{UEdGraphSchema_K2::PC_Int, EKind::Int},
		{UEdGraphSchema_K2::PC_Int64, EKind::Int64},
		{UEdGraphSchema_K2::PC_Name, EKind::Name},
		{UEdGraphSchema_K2::PC_String, EKind::Str},
		{UEdGraphSchema_K2::PC_Text, EKind::Text},
		{UEdGraphSchema_K2::PC_FieldPath, EKind::FieldPath},
	};
	if (Type.PinCategory == UEdGraphSchema_K2::PC_Real)
	{
		OutKind = Type.PinSubCategory == UEdGraphSchema_K2::PC_Float ? EKind::Float : EKind::Double;
		return true;
	}
	if (const EKind* const Kind = Kinds.Find(Type.PinCategory))
	{
		OutKind = *Kind;
		return true;
	}
	return false;
}
}

void FBlueprintClassBuilder::Build(TArray<FString>& OutErrors)
{
	Errors = &OutErrors;
	AddDispatcherSignatures();
	AddComponentsAndTimelines();
	AddVariables();
	AddInterfaces();
	AddFunctions();
	AddEvents();
}

bool FBlueprintClassBuilder::DescribeTerminal(const FEdGraphPinType& Type, FPropertyDescription& OutDescription)
{
	if (FindSimpleKind(Type, OutDescription.Kind))
	{
		return true;
	}
	UObject* const TypeObject = Type.PinSubCategory == UEdGraphSchema_K2::PSC_Self ? &Class : Type.PinSubCategoryObject.Get();
	const FName Category = Type.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_Byte || Category == UEdGraphSchema_K2::PC_Enum)
	{
		UEnum* const Enum = Cast<UEnum>(TypeObject);
		OutDescription.Kind = Enum && Enum->GetCppForm() == UEnum::ECppForm::EnumClass ? EKind::Enum : EKind::Byte;
		OutDescription.Type = Enum;
		return true;
	}
	if (Category == UEdGraphSchema_K2::PC_Struct)
	{
		OutDescription.Kind = EKind::Struct;
		OutDescription.Type = Cast<UScriptStruct>(TypeObject);
		return OutDescription.Type != nullptr;
	}
	if (Category == UEdGraphSchema_K2::PC_Delegate || Category == UEdGraphSchema_K2::PC_MCDelegate)
	{
		OutDescription.Kind = Category == UEdGraphSchema_K2::PC_Delegate ? EKind::Delegate : EKind::MulticastInlineDelegate;
		OutDescription.Type = FMemberReference::ResolveSimpleMemberReference<UFunction>(Type.PinSubCategoryMemberReference, &Class);
		return OutDescription.Type != nullptr;
	}

	UClass* const ObjectClass = Cast<UClass>(TypeObject);
	const bool bIsClassKind = Category == UEdGraphSchema_K2::PC_Class || Category == UEdGraphSchema_K2::PC_SoftClass;
	if (Category == UEdGraphSchema_K2::PC_Object)
	{
		OutDescription.Kind = Type.bIsWeakPointer ? EKind::WeakObject : EKind::Object;
	}
	else if (Category == UEdGraphSchema_K2::PC_SoftObject)
	{
		OutDescription.Kind = EKind::SoftObject;
	}
	else if (Category == UEdGraphSchema_K2::PC_Interface)
	{
		OutDescription.Kind = EKind::Interface;
	}
	else if (bIsClassKind)
	{
		OutDescription.Kind = Category == UEdGraphSchema_K2::PC_Class ? EKind::Class : EKind::SoftClass;
	}
	else
	{
		return false;
	}
	OutDescription.Type = bIsClassKind ? UClass::StaticClass() : ObjectClass;
	OutDescription.MetaClass = bIsClassKind ? ObjectClass : nullptr;
	return ObjectClass != nullptr;
}

bool FBlueprintClassBuilder::Describe(FName Name, const FEdGraphPinType& Type, FPropertyDescription& OutDescription)
{
	OutDescription.Name = Name;
	if (!Type.IsContainer())
	{
		return DescribeTerminal(Type, OutDescription);
	}
	OutDescription.Kind = Type.IsArray() ? EKind::Array : Type.IsSet() ? EKind::Set
																	   : EKind::Map;
	OutDescription.Inner = MakeShared<FPropertyDescription>();
	// A map's key is named apart from the map, as its saved definition has it.
	OutDescription.Inner->Name = Type.IsMap() ? FName(*(Name.ToString() + TEXT("_Key"))) : Name;
	if (!DescribeTerminal(Type, *OutDescription.Inner))
	{
		return false;
	}
	if (Type.IsMap())
	{
		OutDescription.Value = MakeShared<FPropertyDescription>();
		OutDescription.Value->Name = Name;
		return DescribeTerminal(FEdGraphPinType::GetPinTypeForTerminalType(Type.PinValueType), *OutDescription.Value);
	}
	return true;
}

FProperty* FBlueprintClassBuilder::AddProperty(FName Name, const FEdGraphPinType& Type, uint64 Flags)
{
	FPropertyDescription Description;
	if (!Describe(Name, Type, Description))
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

void FBlueprintClassBuilder::AddObjectProperty(FName Name, UClass* ObjectClass)
{
	if (!ObjectClass || Name.IsNone())
	{
		return;
	}
	FPropertyDescription Description;
	Description.Name = Name;
	Description.Kind = EKind::Object;
	Description.Type = ObjectClass;
	Description.PropertyFlags = CPF_BlueprintVisible | CPF_NonTransactional | CPF_InstancedReference;
	if (FProperty* const Property = ConstructPropertyFromDescription(&Class, Description))
	{
		Class.AddCppProperty(Property);
	}
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
				AddObjectProperty(Node->GetVariableName(), ComponentClass);
			}
		}
	}
	for (const UTimelineTemplate* const Timeline : Blueprint.Timelines)
	{
		if (Timeline)
		{
			AddObjectProperty(Timeline->GetVariableName(), FindObject<UClass>(nullptr, TimelineComponentPath));
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

UFunction* FBlueprintClassBuilder::AddFunction(FName Name, uint32 Flags, const TArray<UEdGraphPin*>& Parameters, const TArray<UEdGraphPin*>& Results)
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
			if (!Describe(Pin->PinName, Pin->PinType, Description))
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
			AddFunction(FName(*(Graph->GetName() + SignatureSuffix)), FUNC_Public | FUNC_MulticastDelegate | FUNC_Delegate | FUNC_BlueprintEvent | FUNC_BlueprintCallable,
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
	UFunction* const Function = AddFunction(Graph.GetFName(), static_cast<uint32>(Entry->GetFunctionFlags()) | FUNC_BlueprintCallable | FUNC_BlueprintEvent,
		GetParameterPins(*Entry, EGPD_Output), Exit ? GetParameterPins(*Exit, EGPD_Input) : TArray<UEdGraphPin*>());
	if (!Function)
	{
		return;
	}
	for (const FBPVariableDescription& Local : Entry->LocalVariables)
	{
		FPropertyDescription Description;
		if (Describe(Local.VarName, Local.VarType, Description))
		{
			Description.PropertyFlags = static_cast<EPropertyFlags>(Local.PropertyFlags & ~static_cast<uint64>(CPF_ParmFlags));
			if (FProperty* const Property = ConstructPropertyFromDescription(Function, Description))
			{
				Function->AddCppProperty(Property);
			}
		}
	}
	Function->StaticLink(true);
	if (!Entry->MetaData.Category.IsEmpty())
	{
		Function->SetMetaData(TEXT("Category"), *Entry->MetaData.Category.ToString());
	}
	if (!Entry->MetaData.ToolTip.IsEmpty())
	{
		Function->SetMetaData(TEXT("ToolTip"), *Entry->MetaData.ToolTip.ToString());
	}
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
			const uint32 Flags = FUNC_Event | FUNC_Public | FUNC_BlueprintEvent | Event->FunctionFlags |
				(Event->IsA<UK2Node_CustomEvent>() ? FUNC_BlueprintCallable : FUNC_None);
			AddFunction(Name, Flags, GetParameterPins(*Event, EGPD_Output), {});
		}
	}
}
