#include "GraphEditor/NodeLook.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraphNode_Comment.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CallParentFunction.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_Event.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_InputKey.h"
#include "K2Node_Knot.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Self.h"
#include "K2Node_ConstructObjectFromClass.h"
#include "K2Node_Switch.h"
#include "K2Node_Timeline.h"
#include "K2Node_Tunnel.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "UObject/Class.h"

namespace
{
constexpr FColor FlowColor(0x9A, 0x9A, 0x9A);
constexpr FColor EventColor(0x9E, 0x14, 0x14);
constexpr FColor TerminatorColor(0x7A, 0x2E, 0x9E);
constexpr FColor FunctionColor(0x31, 0x6E, 0xA6);
constexpr FColor ParentFunctionColor(0xC7, 0x7E, 0x1B);
constexpr FColor PureColor(0x4E, 0x91, 0x45);
constexpr FColor CastColor(0x1F, 0x8B, 0x96);
constexpr FColor TimelineColor(0xA8, 0x7A, 0x1E);
constexpr FColor TunnelColor(0x8A, 0x73, 0x3C);
constexpr FColor SwitchColor(0xA8, 0xA0, 0x2A);
constexpr FColor DelegateColor(0xB0, 0x2F, 0x2F);

/** Of the pin's colour, in the title of a node that sets a value: text must stand out from it. */
constexpr float TitleDarkness = 0.35f;

/** A class of nodes, with those below it, and the colour of their titles. The first row that fits counts. */
struct FTitleRow
{
	UClass* (*GetClass)();
	FColor Color;
};

const FTitleRow TitleRows[] = {
	{&UK2Node_Event::StaticClass, EventColor},
	{&UK2Node_InputKey::StaticClass, EventColor},
	{&UK2Node_FunctionTerminator::StaticClass, TerminatorColor},
	{&UK2Node_Timeline::StaticClass, TimelineColor},
	{&UK2Node_BaseMCDelegate::StaticClass, DelegateColor},
	{&UK2Node_DynamicCast::StaticClass, CastColor},
	{&UK2Node_Switch::StaticClass, SwitchColor},
	{&UK2Node_MacroInstance::StaticClass, FlowColor},
	{&UK2Node_Tunnel::StaticClass, TunnelColor},
	{&UK2Node_CallParentFunction::StaticClass, ParentFunctionColor},
	{&UK2Node_CallFunction::StaticClass, FunctionColor},
	{&UK2Node_ConstructObjectFromClass::StaticClass, FunctionColor},
};

/** A category of pins and its colour. */
struct FPinRow
{
	const FName& Category;
	FColor Color;
};

const FPinRow PinRows[] = {
	{UEdGraphSchema_K2::PC_Exec, FColor(0xFF, 0xFF, 0xFF)},
	{UEdGraphSchema_K2::PC_Boolean, FColor(0x96, 0x00, 0x00)},
	{UEdGraphSchema_K2::PC_Byte, FColor(0x00, 0x6F, 0x65)},
	{UEdGraphSchema_K2::PC_Enum, FColor(0x00, 0x6F, 0x65)},
	{UEdGraphSchema_K2::PC_Int, FColor(0x1F, 0xE3, 0xAF)},
	{UEdGraphSchema_K2::PC_Int64, FColor(0xAC, 0xE3, 0xAF)},
	{UEdGraphSchema_K2::PC_Real, FColor(0xA1, 0xFF, 0x45)},
	{UEdGraphSchema_K2::PC_Float, FColor(0xA1, 0xFF, 0x45)},
	{UEdGraphSchema_K2::PC_Double, FColor(0xA1, 0xFF, 0x45)},
	{UEdGraphSchema_K2::PC_Name, FColor(0xCC, 0x83, 0xFF)},
	{UEdGraphSchema_K2::PC_String, FColor(0xFF, 0x00, 0xD4)},
	{UEdGraphSchema_K2::PC_Text, FColor(0xE7, 0x7C, 0xAA)},
	{UEdGraphSchema_K2::PC_Struct, FColor(0x00, 0x59, 0xCB)},
	{UEdGraphSchema_K2::PC_Object, FColor(0x00, 0xAA, 0xF5)},
	{UEdGraphSchema_K2::PC_Class, FColor(0x59, 0x00, 0xBC)},
	{UEdGraphSchema_K2::PC_SoftObject, FColor(0x95, 0xFF, 0xFF)},
	{UEdGraphSchema_K2::PC_SoftClass, FColor(0xFF, 0x95, 0xFF)},
	{UEdGraphSchema_K2::PC_Interface, FColor(0xF1, 0xFF, 0xAA)},
	{UEdGraphSchema_K2::PC_Delegate, FColor(0xFF, 0x38, 0x38)},
	{UEdGraphSchema_K2::PC_MCDelegate, FColor(0xFF, 0x38, 0x38)},
	{UEdGraphSchema_K2::PC_Wildcard, FColor(0x80, 0x7A, 0x7A)},
};

/** Structures that have a colour of their own. */
struct FStructRow
{
	const TCHAR* Name;
	FColor Color;
};

constexpr FStructRow StructRows[] = {
	{TEXT("Vector"), FColor(0xFF, 0xC9, 0x22)},
	{TEXT("Rotator"), FColor(0xA0, 0xB3, 0xFF)},
	{TEXT("Transform"), FColor(0xFF, 0x73, 0x00)},
};
}

ENodeForm NodeLook::GetForm(const UEdGraphNode& Node)
{
	if (Node.IsA<UEdGraphNode_Comment>())
	{
		return ENodeForm::Comment;
	}
	if (Node.IsA<UK2Node_Knot>())
	{
		return ENodeForm::Knot;
	}
	if (Node.IsA<UK2Node_VariableGet>() || Node.IsA<UK2Node_Self>())
	{
		return ENodeForm::Variable;
	}
	return Node.ShouldDrawCompact() ? ENodeForm::Compact : ENodeForm::Full;
}

bool NodeLook::ShowsPinName(const UEdGraphPin& Pin)
{
	// What a node sets stands on its left side already.
	const bool bSetValue = Pin.Direction == EGPD_Output && Pin.GetOwningNode()->IsA<UK2Node_VariableSet>();
	const ENodeForm Form = GetForm(*Pin.GetOwningNode());
	return !bSetValue && Form != ENodeForm::Compact && Form != ENodeForm::Knot;
}

FColor NodeLook::GetTitleColor(const UEdGraphNode& Node)
{
	if (const UK2Node_Variable* const Variable = Cast<UK2Node_Variable>(&Node))
	{
		const UEdGraphPin* const Value = Variable->FindPin(Variable->GetVarName());
		const FLinearColor Bright = FLinearColor(Value ? GetPinColor(Value->PinType) : FlowColor);
		return (Node.IsNodePure() ? Bright : Bright * TitleDarkness).CopyWithNewOpacity(1.0f).ToFColor(true);
	}
	if (Node.IsA<UK2Node_Self>() && !Node.Pins.IsEmpty())
	{
		return GetPinColor(Node.Pins[0]->PinType);
	}
	if (Node.IsA<UK2Node_CallFunction>() && Node.IsNodePure())
	{
		return PureColor;
	}
	for (const FTitleRow& Row : TitleRows)
	{
		if (Node.IsA(Row.GetClass()))
		{
			return Row.Color;
		}
	}
	return Node.IsNodePure() ? PureColor : FlowColor;
}

FColor NodeLook::GetPinColor(const FEdGraphPinType& Type)
{
	const UObject* const Struct = Type.PinCategory == UEdGraphSchema_K2::PC_Struct ? Type.PinSubCategoryObject.Get() : nullptr;
	for (const FStructRow& Row : StructRows)
	{
		if (Struct && Struct->GetName() == Row.Name)
		{
			return Row.Color;
		}
	}
	for (const FPinRow& Row : PinRows)
	{
		if (Row.Category == Type.PinCategory)
		{
			return Row.Color;
		}
	}
	return FlowColor;
}
