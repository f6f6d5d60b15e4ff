#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "K2Node_CallArrayFunction.h"
#include "K2Node_ConvertAsset.h"
#include "K2Node_EnumEquality.h"
#include "K2Node_EnumLiteral.h"
#include "K2Node_Knot.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_MakeArray.h"
#include "K2Node_MakeMap.h"
#include "K2Node_MapForEach.h"
#include "K2Node_PromotableOperator.h"
#include "K2Node_Select.h"
#include "K2Node_TemporaryVariable.h"

namespace
{
using Schema_K2 = UEdGraphSchema_K2;
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");
const TCHAR* const ArrayLibrary = TEXT("/Script/Engine.KismetArrayLibrary");

/** How pins without a fixed type take one from their links, and lose it again. */
class FNodeTypingTest : public FGraphTest
{
protected:
	UEdGraphPin* Integer() { return Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin(); }
	UEdGraphPin* Number() { return Call(MathLibrary, TEXT("RandomFloat"))->GetReturnValuePin(); }
	UEdGraphPin* Vector() { return Call(MathLibrary, TEXT("RandomUnitVector"))->GetReturnValuePin(); }

	/** A pin that gives values of the type. */
	UEdGraphPin* Variable(const FEdGraphPinType& Type)
	{
		return Add<UK2Node_TemporaryVariable>([&Type](UK2Node_TemporaryVariable& Node)
			{ Node.VariableType = Type; })
			->GetVariablePin();
	}

	UEdGraphPin* MapOfNameToInteger()
	{
		FEdGraphPinType Type;
		Type.PinCategory = Schema_K2::PC_Name;
		Type.ContainerType = EPinContainerType::Map;
		Type.PinValueType.TerminalCategory = Schema_K2::PC_Int;
		return Variable(Type);
	}

	UK2Node_PromotableOperator* Operator(const TCHAR* FunctionName)
	{
		const UFunction* const Function = FindObject<UClass>(nullptr, MathLibrary)->FindFunctionByName(FunctionName);
		return Add<UK2Node_PromotableOperator>([Function](UK2Node_PromotableOperator& Node)
			{ Node.SetFromFunction(Function); });
	}

	static std::string TypeOf(const UEdGraphPin* Pin)
	{
		return Pin ? TCHAR_TO_UTF8(*Schema_K2::TypeToText(Pin->PinType).ToString()) : "no pin";
	}
	static FName CategoryOf(const UEdGraphPin* Pin) { return Pin ? Pin->PinType.PinCategory : FName(); }
};

TEST_F(FNodeTypingTest, ArrayTakesTheTypeOfItsFirstElementAndLosesItWithTheLastLink)
{
	UK2Node_MakeArray* const Make = Add<UK2Node_MakeArray>();
	Make->AddInputPin();
	UEdGraphPin* const Source = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Make->FindPin(TEXT("[0]"))));
	EXPECT_EQ(TypeOf(Make->GetOutputPin()), "Array of Integers");
	EXPECT_EQ(CategoryOf(Make->FindPin(TEXT("[1]"))), Schema_K2::PC_Int);
	Make->AddInputPin();
	EXPECT_EQ(CategoryOf(Make->FindPin(TEXT("[2]"))), Schema_K2::PC_Int);
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Make->GetOutputPin()), Schema_K2::PC_Wildcard);
	EXPECT_EQ(Make->GetOutputPin()->PinType.ContainerType, EPinContainerType::Array);
	EXPECT_EQ(CategoryOf(Make->FindPin(TEXT("[2]"))), Schema_K2::PC_Wildcard);
}

TEST_F(FNodeTypingTest, TypedInElementKeepsTheArraysType)
{
	UK2Node_MakeArray* const Make = Add<UK2Node_MakeArray>();
	Make->AddInputPin();
	UEdGraphPin* const Source = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Make->FindPin(TEXT("[0]"))));
	Schema().TrySetDefaultValue(*Make->FindPin(TEXT("[1]")), TEXT("7"));
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Make->GetOutputPin()), Schema_K2::PC_Int);
	EXPECT_EQ(Make->FindPin(TEXT("[1]"))->DefaultValue, FString(TEXT("7")));
}

TEST_F(FNodeTypingTest, KeysAndValuesOfAMapHaveTypesOfTheirOwn)
{
	UK2Node_MakeMap* const Make = Add<UK2Node_MakeMap>();
	Make->AddInputPin();
	UEdGraphPin* const Value = Vector();
	ASSERT_TRUE(Schema().TryCreateConnection(Integer(), Make->FindPin(TEXT("Key 1"))));
	ASSERT_TRUE(Schema().TryCreateConnection(Value, Make->FindPin(TEXT("Value 0"))));
	EXPECT_EQ(TypeOf(Make->GetOutputPin()), "Map of Integers to Vectors");
	EXPECT_EQ(TypeOf(Make->FindPin(TEXT("Value 1"))), "Vector");
	Schema().BreakPinLinks(*Value, true);
	EXPECT_EQ(CategoryOf(Make->FindPin(TEXT("Value 1"))), Schema_K2::PC_Wildcard);
	EXPECT_EQ(CategoryOf(Make->FindPin(TEXT("Key 0"))), Schema_K2::PC_Int);
}

TEST_F(FNodeTypingTest, LoopOverAMapGivesItsKeysAndValues)
{
	UK2Node_MapForEach* const Loop = Add<UK2Node_MapForEach>();
	UEdGraphPin* const Source = MapOfNameToInteger();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Loop->GetContainerPin()));
	EXPECT_EQ(CategoryOf(Loop->GetKeyPin()), Schema_K2::PC_Name);
	EXPECT_EQ(CategoryOf(Loop->GetValuePin()), Schema_K2::PC_Int);
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Loop->GetKeyPin()), Schema_K2::PC_Wildcard);
	EXPECT_EQ(CategoryOf(Loop->GetValuePin()), Schema_K2::PC_Wildcard);
	EXPECT_TRUE(Loop->GetContainerPin()->PinType.IsMap());
}

TEST_F(FNodeTypingTest, ArrayFunctionsFollowTheirArray)
{
	UK2Node_CallArrayFunction* const Node = Add<UK2Node_CallArrayFunction>([](UK2Node_CallArrayFunction& Call)
		{ Call.SetFromFunction(FindObject<UClass>(nullptr, ArrayLibrary)->FindFunctionByName(TEXT("Array_Add"))); });
	FEdGraphPinType Type;
	Type.PinCategory = Schema_K2::PC_String;
	Type.ContainerType = EPinContainerType::Array;
	UEdGraphPin* const Source = Variable(Type);
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Node->GetTargetArrayPin()));
	EXPECT_EQ(CategoryOf(Node->FindPin(TEXT("NewItem"))), Schema_K2::PC_String);
	EXPECT_FALSE(Node->FindPin(TEXT("NewItem"))->PinType.IsContainer());
	Node->ReconstructNode();
	EXPECT_EQ(CategoryOf(Node->FindPin(TEXT("NewItem"))), Schema_K2::PC_String);
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Node->FindPin(TEXT("NewItem"))), Schema_K2::PC_Wildcard);
}

TEST_F(FNodeTypingTest, SelectTakesOptionsOfOneTypeAndAnIndexOfAnother)
{
	UK2Node_Select* const Select = Add<UK2Node_Select>();
	UEdGraphPin* const Source = Vector();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Select->FindPin(TEXT("Option 1"))));
	EXPECT_EQ(TypeOf(Select->GetReturnValuePin()), "Vector");
	EXPECT_EQ(TypeOf(Select->FindPin(TEXT("Option 0"))), "Vector");
	FEdGraphPinType Boolean;
	Boolean.PinCategory = Schema_K2::PC_Boolean;
	ASSERT_TRUE(Schema().TryCreateConnection(Variable(Boolean), Select->GetIndexPin()));
	EXPECT_EQ(Select->FindPin(TEXT("Option 0"))->PinFriendlyName.ToString(), FString(TEXT("False")));
	EXPECT_EQ(Select->FindPin(TEXT("Option 1"))->LinkedTo.Num(), 1);
	EXPECT_FALSE(Select->CanAddPin());
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Select->GetReturnValuePin()), Schema_K2::PC_Wildcard);
	EXPECT_EQ(CategoryOf(Select->GetIndexPin()), Schema_K2::PC_Boolean);
}

TEST_F(FNodeTypingTest, SelectByEnumHasAnOptionForEachValue)
{
	UEnum* const Enum = FindObject<UEnum>(nullptr, TEXT("/Script/Engine.ECollisionEnabled"));
	UK2Node_Select* const Select = Add<UK2Node_Select>();
	const UK2Node_EnumLiteral* const Literal = Add<UK2Node_EnumLiteral>([Enum](UK2Node_EnumLiteral& Node)
		{ Node.Enum = Enum; });
	ASSERT_TRUE(Schema().TryCreateConnection(Literal->FindPin(TEXT("ReturnValue")), Select->GetIndexPin()));
	EXPECT_EQ(Select->GetEnum(), Enum);
	EXPECT_NE(Select->FindPin(TEXT("QueryOnly")), nullptr);
	EXPECT_EQ(Select->FindPin(TEXT("Option 0")), nullptr);
	EXPECT_EQ(Select->GetIndexPin()->LinkedTo.Num(), 1);
}

TEST_F(FNodeTypingTest, EnumComparisonTakesTheEnumOnBothSides)
{
	UEnum* const Enum = FindObject<UEnum>(nullptr, TEXT("/Script/Engine.ECollisionEnabled"));
	UK2Node_EnumEquality* const Equal = Add<UK2Node_EnumEquality>();
	const UK2Node_EnumLiteral* const Literal = Add<UK2Node_EnumLiteral>([Enum](UK2Node_EnumLiteral& Node)
		{ Node.Enum = Enum; });
	ASSERT_TRUE(Schema().TryCreateConnection(Literal->FindPin(TEXT("ReturnValue")), Equal->FindPin(TEXT("A"))));
	EXPECT_EQ(Equal->FindPin(TEXT("B"))->PinType.PinSubCategoryObject.Get(), Enum);
	Schema().BreakPinLinks(*Equal->FindPin(TEXT("A")), true);
	EXPECT_EQ(CategoryOf(Equal->FindPin(TEXT("B"))), Schema_K2::PC_Wildcard);
}

TEST_F(FNodeTypingTest, MacroLoopTakesTheTypeOfItsArray)
{
	UK2Node_MacroInstance* const Loop = Add<UK2Node_MacroInstance>([](UK2Node_MacroInstance& Node)
		{ Node.SetMacroGraph(FStandardMacros::Find(TEXT("ForEachLoop"))); });
	FEdGraphPinType Type;
	Type.PinCategory = Schema_K2::PC_Name;
	Type.ContainerType = EPinContainerType::Array;
	UEdGraphPin* const Source = Variable(Type);
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Loop->FindPin(TEXT("Array"))));
	EXPECT_EQ(TypeOf(Loop->FindPin(TEXT("Array Element"))), "Name");
	Loop->ReconstructNode();
	EXPECT_EQ(TypeOf(Loop->FindPin(TEXT("Array Element"))), "Name");
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Loop->FindPin(TEXT("Array Element"))), Schema_K2::PC_Wildcard);
	EXPECT_TRUE(Loop->FindPin(TEXT("Array"))->PinType.IsArray());
}

TEST_F(FNodeTypingTest, RerouteLosesItsTypeWithItsLastLink)
{
	UK2Node_Knot* const Knot = Add<UK2Node_Knot>();
	UEdGraphPin* const Source = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Knot->GetInputPin()));
	EXPECT_EQ(CategoryOf(Knot->GetOutputPin()), Schema_K2::PC_Int);
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Knot->GetOutputPin()), Schema_K2::PC_Wildcard);
}

TEST_F(FNodeTypingTest, RerouteTakesExecution)
{
	UK2Node_Knot* const Knot = Add<UK2Node_Knot>();
	UK2Node_CallFunction* const First = Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	UK2Node_CallFunction* const Second = Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
	ASSERT_TRUE(Schema().TryCreateConnection(First->GetThenPin(), Knot->GetInputPin()));
	ASSERT_TRUE(Schema().TryCreateConnection(Knot->GetOutputPin(), Second->GetExecPin()));
	EXPECT_EQ(CategoryOf(Knot->GetOutputPin()), Schema_K2::PC_Exec);
	EXPECT_EQ(Schema().CanCreateConnection(Knot->GetOutputPin(), Second->FindPin(TEXT("InString"))).Response, CONNECT_RESPONSE_DISALLOW);
}

TEST_F(FNodeTypingTest, SoftReferenceResolvesToItsOwnClass)
{
	UK2Node_ConvertAsset* const Convert = Add<UK2Node_ConvertAsset>();
	FEdGraphPinType Type;
	Type.PinCategory = Schema_K2::PC_SoftClass;
	Type.PinSubCategoryObject = AActor::StaticClass();
	UEdGraphPin* const Source = Variable(Type);
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Convert->FindPin(TEXT("Asset"))));
	EXPECT_EQ(CategoryOf(Convert->FindPin(TEXT("Object"))), Schema_K2::PC_Class);
	EXPECT_EQ(Convert->GetTargetClass(), AActor::StaticClass());
	Schema().BreakPinLinks(*Source, true);
	EXPECT_EQ(CategoryOf(Convert->FindPin(TEXT("Object"))), Schema_K2::PC_Wildcard);
	EXPECT_EQ(Schema().CanCreateConnection(Integer(), Convert->FindPin(TEXT("Asset"))).Response, CONNECT_RESPONSE_DISALLOW);
}

TEST_F(FNodeTypingTest, OperatorChoosesTheFunctionForItsOperands)
{
	struct FCase
	{
		const TCHAR* Function;
		UEdGraphPin* A;
		UEdGraphPin* B;
		const char* Chosen;
		const char* Result;
	};
	const FCase Cases[] = {
		{TEXT("Add_DoubleDouble"), Integer(), nullptr, "Add_IntInt", "Integer"},
		{TEXT("Add_DoubleDouble"), Integer(), Integer(), "Add_IntInt", "Integer"},
		{TEXT("Add_DoubleDouble"), Vector(), nullptr, "Add_VectorVector", "Vector"},
		{TEXT("Multiply_DoubleDouble"), Vector(), Number(), "Multiply_VectorFloat", "Vector"},
		{TEXT("Less_DoubleDouble"), Integer(), nullptr, "Less_IntInt", "Boolean"},
	};
	for (const FCase& Case : Cases)
	{
		UK2Node_PromotableOperator* const Node = Operator(Case.Function);
		SCOPED_TRACE(Case.Chosen);
		ASSERT_TRUE(Schema().TryCreateConnection(Case.A, Node->FindPin(TEXT("A"))));
		ASSERT_TRUE(!Case.B || Schema().TryCreateConnection(Case.B, Node->FindPin(TEXT("B"))));
		EXPECT_EQ(TCHAR_TO_UTF8(*Node->GetFunctionName().ToString()), std::string(Case.Chosen));
		EXPECT_EQ(TypeOf(Node->GetReturnValuePin()), Case.Result);
	}
}

TEST_F(FNodeTypingTest, OperatorIsOpenAgainWithoutLinks)
{
	UK2Node_PromotableOperator* const Node = Operator(TEXT("Add_DoubleDouble"));
	UEdGraphPin* const Source = Vector();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Node->FindPin(TEXT("A"))));
	Schema().SplitPin(Node->FindPin(TEXT("B")));
	Schema().BreakPinLinks(*Source, true);
	for (const TCHAR* const Name : {TEXT("A"), TEXT("B"), TEXT("ReturnValue")})
	{
		EXPECT_EQ(CategoryOf(Node->FindPin(Name)), Schema_K2::PC_Wildcard);
	}
	EXPECT_EQ(Node->FindPin(TEXT("B_X")), nullptr);
	EXPECT_FALSE(Node->FindPin(TEXT("B"))->bHidden);
}
}
