#include "MathExpressionGraph.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_CommutativeAssociativeBinaryOperator.h"
#include "K2Node_MathExpression.h"
#include "K2Node_VariableGet.h"
#include "MathExpressionParser.h"
#include "OperatorFunctions.h"
#include "UObject/Class.h"

namespace
{
constexpr int32 ColumnWidth = 256;
constexpr int32 RowHeight = 128;

/** The functions that a word or an operator stands for, the first that takes the operands before the others. */
const TArray<FName>& GetOperations(const FMathExpressionPart& Part)
{
	static const TMap<FString, TArray<FName>> OfOperator = {
		{TEXT("+"), {TEXT("Add"), TEXT("Concat")}},
		{TEXT("-"), {TEXT("Subtract")}},
		{TEXT("*"), {TEXT("Multiply")}},
		{TEXT("/"), {TEXT("Divide")}},
		{TEXT("%"), {TEXT("Percent")}},
		{TEXT("=="), {TEXT("EqualEqual"), TEXT("EqualExactly")}},
		{TEXT("!="), {TEXT("NotEqual"), TEXT("NotEqualExactly")}},
		{TEXT("<"), {TEXT("Less")}},
		{TEXT(">"), {TEXT("Greater")}},
		{TEXT("<="), {TEXT("LessEqual")}},
		{TEXT(">="), {TEXT("GreaterEqual")}},
		{TEXT("&&"), {TEXT("BooleanAND")}},
		{TEXT("||"), {TEXT("BooleanOR")}},
		{TEXT("&"), {TEXT("And")}},
		{TEXT("|"), {TEXT("Or")}},
		{TEXT("^"), {TEXT("Xor")}},
	};
	static const TMap<FString, TArray<FName>> OfSign = {
		{TEXT("-"), {TEXT("Multiply")}},
		{TEXT("!"), {TEXT("Not")}},
		{TEXT("~"), {TEXT("Not")}},
	};
	static const TMap<FString, TArray<FName>> OfWord = {
		{TEXT("abs"), {TEXT("Abs")}},
		{TEXT("ceil"), {TEXT("FCeil")}},
		{TEXT("clamp"), {TEXT("Clamp"), TEXT("FClamp")}},
		{TEXT("color"), {TEXT("MakeColor")}},
		{TEXT("floor"), {TEXT("FFloor")}},
		{TEXT("lerp"), {TEXT("Lerp"), TEXT("VLerp"), TEXT("RLerp")}},
		{TEXT("max"), {TEXT("Max"), TEXT("FMax")}},
		{TEXT("min"), {TEXT("Min"), TEXT("FMin")}},
		{TEXT("mod"), {TEXT("Percent")}},
		{TEXT("pow"), {TEXT("MultiplyMultiply")}},
		{TEXT("power"), {TEXT("MultiplyMultiply")}},
		{TEXT("rotator"), {TEXT("MakeRotator")}},
		{TEXT("select"), {TEXT("SelectFloat"), TEXT("SelectInt"), TEXT("SelectVector"), TEXT("SelectRotator")}},
		{TEXT("trunc"), {TEXT("FTrunc")}},
		{TEXT("vector"), {TEXT("MakeVector")}},
		{TEXT("vector2d"), {TEXT("MakeVector2D")}},
	};
	const TMap<FString, TArray<FName>>& Table = Part.Kind == FMathExpressionPart::EKind::Binary ? OfOperator
		: Part.Kind == FMathExpressionPart::EKind::Unary                                        ? OfSign
																								: OfWord;
	static const TArray<FName> None;
	const TArray<FName>* const Known = Table.Find(Part.Text);
	return Known ? *Known : None;
}

FEdGraphPinType MakeType(const FName Category)
{
	FEdGraphPinType Type;
	Type.PinCategory = Category;
	Type.PinSubCategory = Category == UEdGraphSchema_K2::PC_Real ? UEdGraphSchema_K2::PC_Double : FName();
	return Type;
}
}

FMathExpressionGraph::FMathExpressionGraph(UK2Node_MathExpression& InNode)
	: Graph(*InNode.BoundGraph)
	, Entry(*InNode.GetEntryNode())
	, Exit(*InNode.GetExitNode())
{
}

void FMathExpressionGraph::Clear()
{
	for (UEdGraphNode* const Node : TArray<UEdGraphNode*>(Graph.Nodes))
	{
		if (Node != &Entry && Node != &Exit)
		{
			Node->Modify();
			Node->DestroyNode();
		}
	}
	Exit.Modify();
	for (const TSharedPtr<FUserPinInfo>& Info : TArray<TSharedPtr<FUserPinInfo>>(Exit.UserDefinedPins))
	{
		Exit.RemoveUserDefinedPin(Info);
	}
}

FString FMathExpressionGraph::Build(const FMathExpressionPart& Root)
{
	FValue Result;
	if (MakeValue(Root, 0, Result))
	{
		UEdGraphPin* const ResultPin = Exit.CreateUserDefinedPin(UEdGraphSchema_K2::PN_ReturnValue, Result.Type, EGPD_Input);
		Feed(Result, ResultPin);
	}
	// What is linked to an input that the expression still names stays linked: the others go.
	Entry.Modify();
	for (const TSharedPtr<FUserPinInfo>& Info : TArray<TSharedPtr<FUserPinInfo>>(Entry.UserDefinedPins))
	{
		if (!UsedInputs.Contains(Info->PinName) && Error.IsEmpty())
		{
			Entry.RemoveUserDefinedPin(Info);
		}
	}
	Entry.NodePosX = Exit.NodePosX - (Rows.Num() + 1) * ColumnWidth;
	return Error;
}

template <class NodeType>
NodeType* FMathExpressionGraph::AddNode(const int32 Rank, TFunctionRef<void(NodeType&)> Prepare)
{
	while (Rows.Num() <= Rank)
	{
		Rows.Add(0);
	}
	FGraphNodeCreator<NodeType> Creator(Graph);
	NodeType* const Node = Creator.CreateNode(false);
	Prepare(*Node);
	Node->NodePosX = Exit.NodePosX - (Rank + 1) * ColumnWidth;
	Node->NodePosY = Exit.NodePosY + Rows[Rank]++ * RowHeight;
	Creator.Finalize();
	return Node;
}

FMathExpressionGraph::FValue FMathExpressionGraph::MakeLiteral(const FString& Text) const
{
	FValue Value;
	Value.Literal = Text;
	const bool bIsBoolean = Text == TEXT("true") || Text == TEXT("false");
	const bool bIsReal = Text.Contains(TEXT("."));
	Value.Type = MakeType(bIsBoolean ? UEdGraphSchema_K2::PC_Boolean : bIsReal ? UEdGraphSchema_K2::PC_Real
																			   : UEdGraphSchema_K2::PC_Int);
	return Value;
}

FMathExpressionGraph::FValue FMathExpressionGraph::MakeName(const FString& Name, const int32 Rank)
{
	FValue Value;
	const UBlueprint* const Blueprint = Graph.GetTypedOuter<UBlueprint>();
	const FName VariableName(*Name);
	const bool bIsVariable = Blueprint && Blueprint->NewVariables.ContainsByPredicate([VariableName](const FBPVariableDescription& Variable)
											  { return Variable.VarName == VariableName; });
	if (bIsVariable)
	{
		UK2Node_VariableGet* const Get = AddNode<UK2Node_VariableGet>(Rank, [VariableName](UK2Node_VariableGet& Node)
			{ Node.VariableReference.SetSelfMember(VariableName); });
		Value.Pin = Get->GetValuePin();
	}
	else
	{
		UsedInputs.Add(VariableName);
		Value.Pin = Entry.FindPin(VariableName, EGPD_Output);
		Value.Pin = Value.Pin ? Value.Pin : Entry.CreateUserDefinedPin(VariableName, MakeType(UEdGraphSchema_K2::PC_Real), EGPD_Output);
	}
	Value.Type = Value.Pin ? Value.Pin->PinType : FEdGraphPinType();
	return Value;
}

UFunction* FMathExpressionGraph::FindFunction(const FMathExpressionPart& Part, const TArray<FEdGraphPinType>& Types) const
{
	TArray<FName> Operations = GetOperations(Part);
	if (Part.Kind == FMathExpressionPart::EKind::Call)
	{
		// Any function of the libraries can be called by its name.
		Operations.Add(FName(*Part.Text));
	}
	for (const FName Operation : Operations)
	{
		UFunction* const Function = FOperatorFunctions::FindBest(Operation, Types, FEdGraphPinType());
		int32 NumOperands = 0;
		if (Function && FOperatorFunctions::GetTypes(*Function, NumOperands).Num() > 0 && NumOperands == Types.Num())
		{
			return Function;
		}
	}
	return nullptr;
}

bool FMathExpressionGraph::Feed(const FValue& Value, UEdGraphPin* Pin)
{
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	if (!Pin)
	{
		return false;
	}
	if (Value.Pin)
	{
		return Schema->TryCreateConnection(Value.Pin, Pin);
	}
	Schema->TrySetDefaultValue(*Pin, Value.Literal);
	return true;
}

bool FMathExpressionGraph::MakeCall(const FMathExpressionPart& Part, const int32 Rank, FValue& OutValue)
{
	TArray<FValue> Values;
	TArray<FEdGraphPinType> Types;
	for (const TUniquePtr<FMathExpressionPart>& Operand : Part.Operands)
	{
		FValue Value;
		if (!MakeValue(*Operand, Rank + 1, Value))
		{
			return false;
		}
		Types.Add(Value.Type);
		Values.Add(MoveTemp(Value));
	}
	if (Part.Kind == FMathExpressionPart::EKind::Unary && Part.Text == TEXT("-"))
	{
		Values.Add(MakeLiteral(TEXT("-1")));
		Types.Add(Values.Last().Type);
	}
	UFunction* const Function = FindFunction(Part, Types);
	if (!Function)
	{
		TArray<FString> TypeTexts;
		for (const FEdGraphPinType& Type : Types)
		{
			TypeTexts.Add(UEdGraphSchema_K2::TypeToText(Type).ToString());
		}
		Error = FString::Printf(TEXT("No function '%s' takes (%s)"), *Part.Text, *FString::Join(TypeTexts, TEXT(", ")));
		return false;
	}
	const auto Prepare = [Function](UK2Node_CallFunction& Node)
	{ Node.SetFromFunction(Function); };
	const bool bTakesMore = Function->HasMetaData(FBlueprintMetadata::MD_CommutativeAssociativeBinaryOperator);
	UK2Node_CallFunction* const Call = bTakesMore ? AddNode<UK2Node_CommutativeAssociativeBinaryOperator>(Rank, Prepare)
												  : AddNode<UK2Node_CallFunction>(Rank, Prepare);
	int32 Index = 0;
	for (TFieldIterator<FProperty> Parameter(Function); Parameter && Index < Values.Num(); ++Parameter)
	{
		const bool bIsOperand = !Parameter->HasAnyPropertyFlags(CPF_ReturnParm) &&
			Parameter->GetFName() != FOperatorFunctions::GetToleranceName();
		if (bIsOperand && !Feed(Values[Index++], Call->FindPin(Parameter->GetFName(), EGPD_Input)))
		{
			Error = FString::Printf(TEXT("'%s' does not take what is given as %s"), *Part.Text, *Parameter->GetName());
			return false;
		}
	}
	OutValue.Pin = Call->GetReturnValuePin();
	OutValue.Type = OutValue.Pin ? OutValue.Pin->PinType : FEdGraphPinType();
	return OutValue.Pin != nullptr;
}

bool FMathExpressionGraph::MakeValue(const FMathExpressionPart& Part, const int32 Rank, FValue& OutValue)
{
	switch (Part.Kind)
	{
		case FMathExpressionPart::EKind::Literal:
			OutValue = MakeLiteral(Part.Text);
			return true;
		case FMathExpressionPart::EKind::Name:
			OutValue = MakeName(Part.Text, Rank);
			return true;
		default:
			return MakeCall(Part, Rank, OutValue);
	}
}
