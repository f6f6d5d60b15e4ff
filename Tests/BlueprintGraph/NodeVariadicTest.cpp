#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "EdGraphUtilities.h"
#include "K2Node_AddPinInterface.h"
#include "K2Node_CallArrayFunction.h"
#include "K2Node_CommutativeAssociativeBinaryOperator.h"
#include "K2Node_DoOnceMultiInput.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_FormatText.h"
#include "K2Node_MakeArray.h"
#include "K2Node_MakeMap.h"
#include "K2Node_MakeSet.h"
#include "K2Node_MultiGate.h"
#include "K2Node_PromotableOperator.h"
#include "K2Node_Select.h"
#include "K2Node_SwitchInteger.h"
#include "K2Node_SwitchString.h"
#include "K2Node_TemporaryVariable.h"

namespace
{
using Schema_K2 = UEdGraphSchema_K2;
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");

/** Nodes with as many pins as a user wants, and functions of containers of any type. */
class FNodeVariadicTest : public FGraphTest
{
protected:
	using FNames = std::vector<std::string>;

	static FNames NamesOf(const UEdGraphNode& Node)
	{
		FNames Names;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (!Pin->bHidden)
			{
				Names.push_back(TCHAR_TO_UTF8(*Pin->PinName.ToString()));
			}
		}
		return Names;
	}

	static FName CategoryOf(const UEdGraphPin* Pin) { return Pin ? Pin->PinType.PinCategory : FName(); }

	UEdGraphPin* Integer() { return Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin(); }

	UEdGraphPin* Variable(const FName Category, const EPinContainerType Container, const FName ValueCategory = NAME_None)
	{
		return Add<UK2Node_TemporaryVariable>([&](UK2Node_TemporaryVariable& Node)
			{
				Node.VariableType.PinCategory = Category;
				Node.VariableType.ContainerType = Container;
				Node.VariableType.PinValueType.TerminalCategory = ValueCategory; })
			->GetVariablePin();
	}

	template <class NodeType>
	NodeType* Operator(const TCHAR* FunctionName)
	{
		return Add<NodeType>([FunctionName](NodeType& Node)
			{ Node.SetFromFunction(FindObject<UClass>(nullptr, MathLibrary)->FindFunctionByName(FunctionName)); });
	}

	UEdGraphNode* CopyAndPaste(UEdGraphNode* Node)
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText({Node}, Text);
		TSet<UEdGraphNode*> Pasted;
		FEdGraphUtilities::ImportNodesFromText(Graph, Text, Pasted);
		FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		return Pasted.Num() == 1 ? *Pasted.begin() : nullptr;
	}
};

TEST_F(FNodeVariadicTest, AddedPinsComeWithACopyAndOutliveReconstruction)
{
	UK2Node_Select* const Select = Add<UK2Node_Select>();
	EXPECT_TRUE(Schema().TryCreateConnection(Integer(), Select->GetIndexPin()));
	const TArray<UK2Node*> Nodes = {Add<UK2Node_ExecutionSequence>(), Add<UK2Node_MultiGate>(), Add<UK2Node_DoOnceMultiInput>(),
		Add<UK2Node_MakeArray>(), Add<UK2Node_MakeSet>(), Add<UK2Node_MakeMap>(),
		Operator<UK2Node_CommutativeAssociativeBinaryOperator>(TEXT("BooleanOR")),
		Operator<UK2Node_PromotableOperator>(TEXT("Add_DoubleDouble")), Select};
	for (UK2Node* const Node : Nodes)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Node->GetClass()->GetName()));
		IK2Node_AddPinInterface* const Pins = Cast<IK2Node_AddPinInterface>(Node);
		ASSERT_NE(Pins, nullptr);
		const FNames Before = NamesOf(*Node);
		Pins->AddInputPin();
		const FNames One = NamesOf(*Node);
		EXPECT_GT(One.size(), Before.size());
		Pins->AddInputPin();
		const FNames After = NamesOf(*Node);
		EXPECT_GT(After.size(), One.size());
		Node->ReconstructNode();
		EXPECT_EQ(NamesOf(*Node), After);
		const UEdGraphNode* const Copy = CopyAndPaste(Node);
		ASSERT_NE(Copy, nullptr);
		EXPECT_EQ(NamesOf(*Copy), After);
		// Each added pin can go again, whatever stands behind it.
		const TArray<UEdGraphPin*> Removable = Node->Pins.FilterByPredicate([Pins](const UEdGraphPin* Pin)
			{ return Pins->CanRemovePin(Pin); });
		ASSERT_GT(Removable.Num(), 0);
		Pins->RemoveInputPin(Removable[0]);
		EXPECT_EQ(NamesOf(*Node), One) << "names close the gap";
		Node->ReconstructNode();
		EXPECT_EQ(NamesOf(*Node), One);
	}
}

TEST_F(FNodeVariadicTest, RemovedElementTakesItsLinkAndTheOthersKeepTheirs)
{
	UK2Node_MakeArray* const Make = Add<UK2Node_MakeArray>();
	Make->AddInputPin();
	Make->AddInputPin();
	UEdGraphPin* const First = Integer();
	UEdGraphPin* const Last = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(First, Make->FindPin(TEXT("[1]"))));
	ASSERT_TRUE(Schema().TryCreateConnection(Last, Make->FindPin(TEXT("[2]"))));
	Make->RemoveInputPin(Make->FindPin(TEXT("[1]")));
	EXPECT_EQ(First->LinkedTo.Num(), 0);
	ASSERT_NE(Make->FindPin(TEXT("[1]")), nullptr);
	EXPECT_EQ(Make->FindPin(TEXT("[1]"))->LinkedTo, TArray<UEdGraphPin*>({Last}));
	EXPECT_EQ(CategoryOf(Make->GetOutputPin()), Schema_K2::PC_Int);
}

TEST_F(FNodeVariadicTest, OptionsOfASelectKeepTheirValues)
{
	UK2Node_Select* const Select = Add<UK2Node_Select>();
	ASSERT_TRUE(Schema().TryCreateConnection(Integer(), Select->GetIndexPin()));
	Select->AddInputPin();
	UEdGraphPin* const Source = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Select->FindPin(TEXT("Option 0"))));
	Schema().TrySetDefaultValue(*Select->FindPinChecked(TEXT("Option 2")), TEXT("42"));
	Select->RemoveInputPin(Select->FindPin(TEXT("Option 1")));
	EXPECT_EQ(Select->FindPinChecked(TEXT("Option 1"))->DefaultValue, FString(TEXT("42")));
	Select->ReconstructNode();
	EXPECT_EQ(Select->FindPinChecked(TEXT("Option 1"))->DefaultValue, FString(TEXT("42")));
	EXPECT_EQ(Select->FindPinChecked(TEXT("Option 0"))->LinkedTo, TArray<UEdGraphPin*>({Source}));
	EXPECT_FALSE(Select->CanRemovePin(Select->FindPin(TEXT("Option 0")))) << "two options stay";
	const UEdGraphNode* const Copy = CopyAndPaste(Select);
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(CategoryOf(Copy->FindPin(TEXT("Option 1"))), Schema_K2::PC_Int);
	EXPECT_EQ(Copy->FindPinChecked(TEXT("Option 1"))->DefaultValue, FString(TEXT("42")));
}

TEST_F(FNodeVariadicTest, ThirdOperandIsAddedLikeTheSecond)
{
	UK2Node_PromotableOperator* const Node = Operator<UK2Node_PromotableOperator>(TEXT("Multiply_DoubleDouble"));
	ASSERT_TRUE(Schema().TryCreateConnection(Integer(), Node->FindPin(TEXT("A"))));
	Node->AddInputPin();
	ASSERT_NE(Node->FindPin(TEXT("C")), nullptr);
	EXPECT_EQ(CategoryOf(Node->FindPin(TEXT("C"))), Schema_K2::PC_Int);
	UEdGraphPin* const Number = Call(MathLibrary, TEXT("RandomFloat"))->GetReturnValuePin();
	ASSERT_TRUE(Schema().TryCreateConnection(Number, Node->FindPin(TEXT("C"))));
	EXPECT_EQ(CategoryOf(Node->GetReturnValuePin()), Schema_K2::PC_Real) << "the wider operand decides";
	EXPECT_EQ(Node->FindPin(TEXT("A"))->LinkedTo.Num(), 1);
	Node->RemoveInputPin(Node->FindPin(TEXT("B")));
	EXPECT_EQ(Node->FindPin(TEXT("C")), nullptr);
	EXPECT_EQ(Node->FindPinChecked(TEXT("B"))->LinkedTo, TArray<UEdGraphPin*>({Number}));
	const UEdGraphNode* const Copy = CopyAndPaste(Node);
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(NamesOf(*Copy), NamesOf(*Node));
	Node->AddInputPin();
	Node->RemoveInputPin(Node->FindPin(TEXT("B")));
	EXPECT_EQ(CategoryOf(Node->GetReturnValuePin()), Schema_K2::PC_Int) << "only the integer is left";
}

TEST_F(FNodeVariadicTest, NamedCasesOfASwitchComeAndGo)
{
	UK2Node_SwitchString* const Switch = Add<UK2Node_SwitchString>();
	Switch->AddPinToSwitchNode();
	Switch->AddPinToSwitchNode();
	UK2Node_ExecutionSequence* const Target = Add<UK2Node_ExecutionSequence>();
	ASSERT_TRUE(Schema().TryCreateConnection(Switch->FindPin(TEXT("Case_1")), Target->GetExecPin()));
	Switch->RemovePinFromSwitchNode(Switch->FindPin(TEXT("Case_0")));
	Switch->ReconstructNode();
	EXPECT_EQ(Switch->FindPin(TEXT("Case_0")), nullptr);
	ASSERT_NE(Switch->FindPin(TEXT("Case_1")), nullptr);
	EXPECT_EQ(Switch->FindPin(TEXT("Case_1"))->LinkedTo.Num(), 1);
	// As a user names a case in the details of the node.
	Switch->PinNames[0] = TEXT("open");
	Switch->ReconstructNode();
	EXPECT_NE(Switch->FindPin(TEXT("open"), EGPD_Output), nullptr);
	EXPECT_EQ(Target->GetExecPin()->LinkedTo.Num(), 1);
	const UEdGraphNode* const Copy = CopyAndPaste(Switch);
	ASSERT_NE(Copy, nullptr);
	EXPECT_NE(Copy->FindPin(TEXT("open"), EGPD_Output), nullptr);
}

TEST_F(FNodeVariadicTest, ArgumentsOfALinkedFormatAreTheUsers)
{
	UK2Node_FormatText* const Format = Add<UK2Node_FormatText>();
	Schema().TrySetDefaultText(*Format->GetFormatPin(), FText::FromString(TEXT("{Name}")));
	EXPECT_FALSE(Format->CanAddPin());
	EXPECT_FALSE(Format->CanRemovePin(Format->FindPin(TEXT("Name"))));
	ASSERT_TRUE(Schema().TryCreateConnection(Variable(Schema_K2::PC_Text, EPinContainerType::None), Format->GetFormatPin()));
	EXPECT_EQ(Format->FindPin(TEXT("Name")), nullptr) << "the node's own text names nothing any more";
	Format->AddInputPin();
	Format->AddInputPin();
	EXPECT_EQ(NamesOf(*Format), FNames({"Format", "Result", "0", "1"}));
	UEdGraphPin* const Source = Integer();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Format->FindPin(TEXT("0"))));
	Format->SetArgumentName(0, TEXT("Count"));
	Format->SetArgumentName(1, TEXT("Count"));
	EXPECT_EQ(Format->GetArgumentName(1), FName(TEXT("1"))) << "the name is taken";
	Format->SwapArguments(0, 1);
	EXPECT_EQ(NamesOf(*Format), FNames({"Format", "Result", "1", "Count"}));
	EXPECT_EQ(Format->FindPinChecked(TEXT("Count"))->LinkedTo, TArray<UEdGraphPin*>({Source}));
	Format->RemoveInputPin(Format->FindPin(TEXT("1")));
	Format->ReconstructNode();
	EXPECT_EQ(NamesOf(*Format), FNames({"Format", "Result", "Count"}));
	EXPECT_EQ(Format->FindPinChecked(TEXT("Count"))->LinkedTo.Num(), 1);
}

TEST_F(FNodeVariadicTest, FunctionsOfMapsAndSetsTakeTheirContainersTypes)
{
	UK2Node_CallFunction* const AddToMap = Call(TEXT("/Script/Engine.BlueprintMapLibrary"), TEXT("Map_Add"));
	UEdGraphPin* const Map = Variable(Schema_K2::PC_Name, EPinContainerType::Map, Schema_K2::PC_Int);
	ASSERT_TRUE(Schema().TryCreateConnection(Map, AddToMap->FindPin(TEXT("TargetMap"))));
	EXPECT_EQ(CategoryOf(AddToMap->FindPin(TEXT("Key"))), Schema_K2::PC_Name);
	EXPECT_EQ(CategoryOf(AddToMap->FindPin(TEXT("Value"))), Schema_K2::PC_Int);
	AddToMap->ReconstructNode();
	EXPECT_EQ(CategoryOf(AddToMap->FindPin(TEXT("Key"))), Schema_K2::PC_Name);
	EXPECT_EQ(AddToMap->FindPin(TEXT("TargetMap"))->PinType.PinValueType.TerminalCategory, Schema_K2::PC_Int);
	EXPECT_EQ(Schema()
				  .CanCreateConnection(Call(MathLibrary, TEXT("RandomUnitVector"))->GetReturnValuePin(), AddToMap->FindPin(TEXT("Value")))
				  .Response,
		CONNECT_RESPONSE_DISALLOW);
	Schema().BreakPinLinks(*Map, true);
	EXPECT_EQ(CategoryOf(AddToMap->FindPin(TEXT("Key"))), Schema_K2::PC_Wildcard);
	EXPECT_EQ(CategoryOf(AddToMap->FindPin(TEXT("Value"))), Schema_K2::PC_Wildcard);

	UK2Node_CallFunction* const AddToSet = Call(TEXT("/Script/Engine.BlueprintSetLibrary"), TEXT("Set_Add"));
	UEdGraphPin* const Set = Variable(Schema_K2::PC_String, EPinContainerType::Set);
	ASSERT_TRUE(Schema().TryCreateConnection(Set, AddToSet->FindPin(TEXT("TargetSet"))));
	EXPECT_EQ(CategoryOf(AddToSet->FindPin(TEXT("NewItem"))), Schema_K2::PC_String);
	EXPECT_FALSE(AddToSet->FindPin(TEXT("NewItem"))->PinType.IsContainer());
}

TEST_F(FNodeVariadicTest, ElementDecidesTheArraysTypeAsWell)
{
	UK2Node_CallArrayFunction* const Find = Add<UK2Node_CallArrayFunction>(
		[](UK2Node_CallArrayFunction& Node)
		{
			Node.SetFromFunction(
				FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetArrayLibrary"))->FindFunctionByName(TEXT("Array_Find")));
		});
	ASSERT_TRUE(Schema().TryCreateConnection(Integer(), Find->FindPin(TEXT("ItemToFind"))));
	EXPECT_EQ(CategoryOf(Find->GetTargetArrayPin()), Schema_K2::PC_Int);
	EXPECT_TRUE(Find->GetTargetArrayPin()->PinType.IsArray());
	EXPECT_EQ(Schema().CanCreateConnection(Variable(Schema_K2::PC_String, EPinContainerType::Array), Find->GetTargetArrayPin()).Response,
		CONNECT_RESPONSE_DISALLOW);
	EXPECT_TRUE(Schema().TryCreateConnection(Variable(Schema_K2::PC_Int, EPinContainerType::Array), Find->GetTargetArrayPin()));
}
}
