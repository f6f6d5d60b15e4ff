#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "K2Node_MathExpression.h"
#include "K2Node_VariableGet.h"
#include "Kismet2/BlueprintEditorUtils.h"

#include <map>

namespace
{
class FMathExpressionTest : public FGraphTest
{
protected:
	UK2Node_MathExpression* Make(const TCHAR* Expression)
	{
		UK2Node_MathExpression* const Node = Add<UK2Node_MathExpression>();
		Node->OnRenameNode(Expression);
		return Node;
	}

	/** How the result is made, as calls: "Add_DoubleDouble(x,2)". */
	static std::string Read(const UEdGraphPin* Pin)
	{
		if (Pin->LinkedTo.Num() == 0)
		{
			return TCHAR_TO_UTF8(*Pin->DefaultValue);
		}
		const UEdGraphPin* const Source = Pin->LinkedTo[0];
		const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Source->GetOwningNode());
		if (!Call)
		{
			return TCHAR_TO_UTF8(*Source->PinName.ToString());
		}
		std::string Text = std::string(TCHAR_TO_UTF8(*Call->GetFunctionName().ToString())) + "(";
		for (const UEdGraphPin* const Operand : Call->Pins)
		{
			if (Operand->Direction == EGPD_Input && !Operand->bHidden)
			{
				Text += (Text.back() == '(' ? "" : ",") + Read(Operand);
			}
		}
		return Text + ")";
	}

	static std::string ReadResult(const UK2Node_MathExpression* Node)
	{
		const UEdGraphPin* const Result = Node->GetExitNode()->FindPin(UEdGraphSchema_K2::PN_ReturnValue);
		return Result ? Read(Result) : "no result: " + std::string(TCHAR_TO_UTF8(*Node->ErrorMsg));
	}
};

TEST_F(FMathExpressionTest, ExpressionBecomesCallsInTheOrderOfItsOperators)
{
	const std::map<const TCHAR*, std::string> Cases = {
		{TEXT("1 + 2 * 3"), "Add_IntInt(1,Multiply_IntInt(2,3))"},
		{TEXT("(1 + 2) * 3"), "Multiply_IntInt(Add_IntInt(1,2),3)"},
		{TEXT("a - b - c"), "Subtract_DoubleDouble(Subtract_DoubleDouble(a,b),c)"},
		{TEXT("x < 2.5 && !(y >= 1)"), "BooleanAND(Less_DoubleDouble(x,2.5),Not_PreBool(GreaterEqual_DoubleDouble(y,1)))"},
		{TEXT("sin(angle) + -1.0"), "Add_DoubleDouble(Sin(angle),-1.0)"},
		{TEXT("vector(x, 0.0, -y)"), "MakeVector(x,0.0,Multiply_DoubleDouble(y,-1))"},
		{TEXT("max(3, 4)"), "Max(3,4)"},
	};
	for (const auto& [Expression, Calls] : Cases)
	{
		EXPECT_EQ(ReadResult(Make(Expression)), Calls) << TCHAR_TO_UTF8(Expression);
	}
}

TEST_F(FMathExpressionTest, NamesAreInputsOrVariables)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Int;
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Score"), Type));
	UK2Node_MathExpression* const Node = Make(TEXT("Score * factor"));
	EXPECT_EQ(Node->FindPin(TEXT("Score")), nullptr);
	ASSERT_NE(Node->FindPin(TEXT("factor"), EGPD_Input), nullptr);
	EXPECT_EQ(Node->FindPin(TEXT("factor"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Real);
	TArray<UK2Node_VariableGet*> Gets;
	Node->BoundGraph->GetNodesOfClass(Gets);
	EXPECT_EQ(Gets.Num(), 1);
}

TEST_F(FMathExpressionTest, ChangedExpressionKeepsTheLinksOfTheInputsThatItStillNames)
{
	UK2Node_MathExpression* const Node = Make(TEXT("a + b"));
	UEdGraphPin* const Source = Call(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("RandomFloat"))->GetReturnValuePin();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Node->FindPin(TEXT("a"))));
	Node->OnRenameNode(TEXT("a / c"));
	EXPECT_EQ(Node->FindPin(TEXT("b")), nullptr);
	EXPECT_NE(Node->FindPin(TEXT("c")), nullptr);
	ASSERT_NE(Node->FindPin(TEXT("a")), nullptr);
	EXPECT_EQ(Node->FindPin(TEXT("a"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), FString(TEXT("a / c")));
}

TEST_F(FMathExpressionTest, BadExpressionIsTheNodesError)
{
	FString Deep;
	for (int32 Index = 0; Index < 500; ++Index)
	{
		Deep += TEXT("(");
	}
	const std::map<FString, FString> Cases = {
		{TEXT("1 +"), TEXT("Expected a value at character 4")},
		{TEXT("(1 + 2"), TEXT("Expected ')' at character 7")},
		{TEXT("1 2"), TEXT("Expected an operator at character 3")},
		{TEXT("1.2.3"), TEXT("'1.2.3' at character 1 is no number")},
		{TEXT("frob(1)"), TEXT("No function 'frob' takes (Integer)")},
		{Deep, TEXT("The expression is nested too deeply")},
		{FString::ChrN(5000, TEXT('1')), TEXT("The expression has 5000 characters")},
		{TEXT(""), TEXT("Expected a value at character 1")},
	};
	for (const auto& [Expression, Error] : Cases)
	{
		const UK2Node_MathExpression* const Node = Make(*Expression);
		EXPECT_TRUE(Node->ErrorMsg.StartsWith(Error)) << TCHAR_TO_UTF8(*Node->ErrorMsg);
		EXPECT_TRUE(Node->bHasCompilerMessage);
		EXPECT_EQ(Node->Expression, Expression);
	}
	UK2Node_MathExpression* const Mended = Make(TEXT("1 +"));
	Mended->OnRenameNode(TEXT("1 + 1"));
	EXPECT_FALSE(Mended->bHasCompilerMessage);
	EXPECT_EQ(ReadResult(Mended), "Add_IntInt(1,1)");
}
}
