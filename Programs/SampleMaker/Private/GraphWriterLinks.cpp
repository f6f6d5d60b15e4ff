#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Failure.h"
#include "GraphWriter.h"

namespace
{
FString DescribeNode(const UEdGraphNode& Node)
{
	return FString::Printf(TEXT("'%s' of %s"), *Node.GetNodeTitle(ENodeTitleType::ListView).ToString(), *Node.GetGraph()->GetPathName());
}

FString DescribePin(const UEdGraphPin& Pin)
{
	return FString::Printf(TEXT("pin '%s' of %s"), *Pin.PinName.ToString(), *DescribeNode(*Pin.GetOwningNode()));
}

FString ListPins(const UEdGraphNode& Node, EEdGraphPinDirection Direction)
{
	TArray<FString> Names;
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin->Direction == Direction)
		{
			Names.Add(Pin->PinName.ToString());
		}
	}
	return FString::Join(Names, TEXT(", "));
}

UEdGraphPin& FindPin(const UEdGraphNode& Node, FName Name, EEdGraphPinDirection Direction)
{
	UEdGraphPin* const Pin = Node.FindPin(Name, Direction);
	if (!Pin)
	{
		Fail(FString::Printf(TEXT("%s has no %s '%s'; it has: %s"), *DescribeNode(Node), Direction == EGPD_Input ? TEXT("input") : TEXT("output"),
			*Name.ToString(), *ListPins(Node, Direction)));
	}
	return *Pin;
}

bool IsValue(const UEdGraphPin& Pin)
{
	const FName Category = Pin.PinType.PinCategory;
	return !Pin.bHidden && Category != UEdGraphSchema_K2::PC_Exec && Category != UEdGraphSchema_K2::PC_Delegate;
}

/** The node's only pin of a kind; none, or more than one, ends the program. */
UEdGraphPin& FindOnlyPin(const UEdGraphNode& Node, EEdGraphPinDirection Direction, TFunctionRef<bool(const UEdGraphPin&)> IsOfKind, const TCHAR* Kind)
{
	UEdGraphPin* Only = nullptr;
	for (UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin->Direction != Direction || !IsOfKind(*Pin))
		{
			continue;
		}
		if (Only)
		{
			Fail(FString::Printf(TEXT("%s has more than one %s; it has: %s"), *DescribeNode(Node), Kind, *ListPins(Node, Direction)));
		}
		Only = Pin;
	}
	return Require(Only, FString::Printf(TEXT("%s in %s"), Kind, *DescribeNode(Node)));
}

UEdGraphPin& FindExecInput(const UEdGraphNode& Node)
{
	return FindOnlyPin(Node, EGPD_Input, &UEdGraphSchema_K2::IsExecPin, TEXT("execution input"));
}

UEdGraphPin& FindThen(const UEdGraphNode& Node)
{
	UEdGraphPin* const Then = Node.FindPin(UEdGraphSchema_K2::PN_Then, EGPD_Output);
	return Then ? *Then : FindOnlyPin(Node, EGPD_Output, &UEdGraphSchema_K2::IsExecPin, TEXT("execution output"));
}
}

void FGraphWriter::Link(UEdGraphPin& Output, UEdGraphPin& Input)
{
	const UEdGraphSchema& Schema = *Graph.GetSchema();
	const FPinConnectionResponse Response = Schema.CanCreateConnection(&Output, &Input);
	if (!Schema.TryCreateConnection(&Output, &Input) || !Output.LinkedTo.Contains(&Input))
	{
		Fail(FString::Printf(TEXT("%s does not link to %s: %s"), *DescribePin(Output), *DescribePin(Input), *Response.Message.ToString()));
	}
}

void FGraphWriter::Run(UEdGraphNode& From, UEdGraphNode& To)
{
	Link(FindThen(From), FindExecInput(To));
}

void FGraphWriter::Run(UEdGraphNode& From, FName Output, UEdGraphNode& To)
{
	Link(FindPin(From, Output, EGPD_Output), FindExecInput(To));
}

void FGraphWriter::Feed(UEdGraphNode& From, UEdGraphNode& To, FName Input)
{
	Link(FindOnlyPin(From, EGPD_Output, &IsValue, TEXT("value")), FindPin(To, Input, EGPD_Input));
}

void FGraphWriter::Feed(UEdGraphNode& From, FName Output, UEdGraphNode& To, FName Input)
{
	Link(FindPin(From, Output, EGPD_Output), FindPin(To, Input, EGPD_Input));
}

void FGraphWriter::SetDefault(UEdGraphNode& Node, FName Input, const FString& Value)
{
	UEdGraphPin& Pin = FindPin(Node, Input, EGPD_Input);
	Graph.GetSchema()->TrySetDefaultValue(Pin, Value);
	const FString Complaint = Graph.GetSchema()->IsCurrentPinDefaultValid(&Pin);
	if (Pin.GetDefaultAsString() != Value || !Complaint.IsEmpty())
	{
		Fail(FString::Printf(TEXT("%s does not take the value '%s': %s"), *DescribePin(Pin), *Value, *Complaint));
	}
}

void FGraphWriter::SetDefault(UEdGraphNode& Node, FName Input, UClass& Value)
{
	UEdGraphPin& Pin = FindPin(Node, Input, EGPD_Input);
	Graph.GetSchema()->TrySetDefaultObject(Pin, &Value);
	if (Pin.DefaultObject != &Value)
	{
		Fail(FString::Printf(TEXT("%s does not take the class %s"), *DescribePin(Pin), *Value.GetName()));
	}
}
