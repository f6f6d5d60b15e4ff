#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "EdGraphUtilities.h"
#include "Engine/UserDefinedStruct.h"
#include "K2Node_BreakStruct.h"
#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_MakeStruct.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/StructureEditorUtils.h"
#include "Misc/PackageName.h"
#include "UObject/NoExportTypes.h"

namespace
{
using Schema_K2 = UEdGraphSchema_K2;
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");

/** What nodes keep when the definition that they follow has changed. */
class FNodeReconstructionTest : public FGraphTest
{
protected:
	static FEdGraphPinType MakeType(const FName Category, UObject* Object = nullptr)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		Type.PinSubCategory = Category == Schema_K2::PC_Real ? Schema_K2::PC_Double : FName();
		Type.PinSubCategoryObject = Object;
		return Type;
	}

	/** A function of the Blueprint with one parameter, and its entry. */
	UK2Node_EditablePinBase* AddFunction(const TCHAR* Name, const TCHAR* Parameter, const FEdGraphPinType& Type)
	{
		UEdGraph* const Function = FBlueprintEditorUtils::CreateNewGraph(
			Blueprint, Name, UEdGraph::StaticClass(), Schema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Function, true, nullptr);
		UK2Node_EditablePinBase* const Entry = FBlueprintEditorUtils::GetEntryNode(Function);
		Entry->CreateUserDefinedPin(Parameter, Type, EGPD_Output);
		Compile();
		return Entry;
	}

	UK2Node_CallFunction* CallOwn(const TCHAR* Name)
	{
		return Add<UK2Node_CallFunction>([Name](UK2Node_CallFunction& Node)
			{ Node.FunctionReference.SetSelfMember(Name); });
	}

	void Compile() { FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::SkipGarbageCollection); }

	void Reconstruct(UK2Node* Node)
	{
		Compile();
		Node->ReconstructNode();
	}

	UEdGraphPin* Number() { return Call(MathLibrary, TEXT("RandomFloat"))->GetReturnValuePin(); }

	UK2Node* CopyAndPaste(UK2Node* Node)
	{
		FString Text;
		FEdGraphUtilities::ExportNodesToText({Node}, Text);
		TSet<UEdGraphNode*> Pasted;
		FEdGraphUtilities::ImportNodesFromText(Graph, Text, Pasted);
		FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		return Pasted.Num() == 1 ? Cast<UK2Node>(*Pasted.begin()) : nullptr;
	}
};

TEST_F(FNodeReconstructionTest, ParameterThatIsGoneIsAnOrphanUntilItComesBack)
{
	UK2Node_EditablePinBase* const Entry = AddFunction(TEXT("Heal"), TEXT("Amount"), MakeType(Schema_K2::PC_Real));
	UK2Node_CallFunction* const Caller = CallOwn(TEXT("Heal"));
	UEdGraphPin* const Source = Number();
	ASSERT_TRUE(Caller->FindPin(TEXT("Amount")) && Schema().TryCreateConnection(Source, Caller->FindPin(TEXT("Amount"))));

	Entry->RemoveUserDefinedPinByName(TEXT("Amount"));
	Reconstruct(Caller);
	const UEdGraphPin* const Orphan = Caller->FindPin(TEXT("Amount"));
	ASSERT_NE(Orphan, nullptr);
	EXPECT_TRUE(Orphan->bOrphanedPin);
	EXPECT_EQ(Orphan->LinkedTo, TArray<UEdGraphPin*>({Source}));
	Caller->ReconstructNode();
	EXPECT_NE(Caller->FindPin(TEXT("Amount")), nullptr) << "an orphan stays as long as it is linked";

	Entry->CreateUserDefinedPin(TEXT("Amount"), MakeType(Schema_K2::PC_Real), EGPD_Output);
	Reconstruct(Caller);
	const UEdGraphPin* const Back = Caller->FindPin(TEXT("Amount"));
	ASSERT_NE(Back, nullptr);
	EXPECT_FALSE(Back->bOrphanedPin);
	EXPECT_FALSE(Back->bNotConnectable);
	EXPECT_EQ(Back->LinkedTo, TArray<UEdGraphPin*>({Source}));
	EXPECT_EQ(Source->LinkedTo.Num(), 1);
}

TEST_F(FNodeReconstructionTest, RenamedParameterKeepsTheLinksOfBothEnds)
{
	UK2Node_EditablePinBase* const Entry = AddFunction(
		TEXT("Heal"), TEXT("Amount"), MakeType(Schema_K2::PC_Struct, TBaseStructure<FVector>::Get()));
	UK2Node_CallFunction* const Caller = CallOwn(TEXT("Heal"));
	Schema().SplitPin(Caller->FindPinChecked(TEXT("Amount")));
	UEdGraphPin* const Source = Number();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Caller->FindPinChecked(TEXT("Amount_Y"))));

	EXPECT_EQ(Entry->RenameUserDefinedPin(TEXT("Nothing"), TEXT("Other")), UK2Node::ERenamePinResult_NoSuchPin);
	EXPECT_EQ(Entry->RenameUserDefinedPin(TEXT("Amount"), Schema_K2::PN_Then), UK2Node::ERenamePinResult_NameCollision);
	EXPECT_EQ(Entry->RenameUserDefinedPin(TEXT("Amount"), TEXT("Offset"), true), UK2Node::ERenamePinResult_Success);
	EXPECT_NE(Entry->FindPin(TEXT("Amount")), nullptr) << "a test changes nothing";
	EXPECT_EQ(Entry->RenameUserDefinedPin(TEXT("Amount"), TEXT("Offset")), UK2Node::ERenamePinResult_Success);
	EXPECT_EQ(Caller->RenameUserDefinedPin(TEXT("Amount"), TEXT("Offset")), UK2Node::ERenamePinResult_Success);
	EXPECT_TRUE(Entry->UserDefinedPinExists(TEXT("Offset")));
	Reconstruct(Caller);
	Entry->ReconstructNode();
	EXPECT_NE(Entry->FindPin(TEXT("Offset")), nullptr);
	EXPECT_EQ(Entry->FindPin(TEXT("Amount")), nullptr);
	ASSERT_NE(Caller->FindPin(TEXT("Offset_Y")), nullptr);
	EXPECT_EQ(Caller->FindPin(TEXT("Offset_Y"))->LinkedTo, TArray<UEdGraphPin*>({Source}));
	EXPECT_EQ(Caller->FindPin(TEXT("Amount_Y")), nullptr);
}

TEST_F(FNodeReconstructionTest, ValueThatTheNewTypeCannotHoldIsGivenUp)
{
	UK2Node_EditablePinBase* const Entry = AddFunction(TEXT("Heal"), TEXT("Amount"), MakeType(Schema_K2::PC_Real));
	UK2Node_CallFunction* const Caller = CallOwn(TEXT("Heal"));
	Schema().TrySetDefaultValue(*Caller->FindPinChecked(TEXT("Amount")), TEXT("5.5"));
	for (const auto& [Category, Expected] : {std::pair(Schema_K2::PC_String, TEXT("5.5")), std::pair(Schema_K2::PC_Boolean, TEXT("false"))})
	{
		Entry->RemoveUserDefinedPinByName(TEXT("Amount"));
		Entry->CreateUserDefinedPin(TEXT("Amount"), MakeType(Category), EGPD_Output);
		Reconstruct(Caller);
		const UEdGraphPin* const Pin = Caller->FindPin(TEXT("Amount"));
		ASSERT_NE(Pin, nullptr);
		EXPECT_EQ(Pin->PinType.PinCategory, Category);
		EXPECT_EQ(Pin->DefaultValue, FString(Expected));
	}
}

TEST_F(FNodeReconstructionTest, EveryResultNodeGetsTheFunctionsResults)
{
	UK2Node_EditablePinBase* const Entry = AddFunction(TEXT("Measure"), TEXT("Amount"), MakeType(Schema_K2::PC_Real));
	UK2Node_FunctionResult* const Result = FBlueprintEditorUtils::FindOrCreateFunctionResultNode(Entry);
	ASSERT_NE(Result, nullptr);
	Result->CreateUserDefinedPin(TEXT("Size"), MakeType(Schema_K2::PC_Int), EGPD_Input);
	FGraphNodeCreator<UK2Node_FunctionResult> Creator(*Entry->GetGraph());
	const UK2Node_FunctionResult* const Second = Creator.CreateNode(false);
	Creator.Finalize();
	EXPECT_NE(Second->FindPin(TEXT("Size"), EGPD_Input), nullptr);
	Compile();
	const UK2Node_CallFunction* const Caller = CallOwn(TEXT("Measure"));
	ASSERT_NE(Caller->FindPin(TEXT("Size"), EGPD_Output), nullptr);
	EXPECT_EQ(Caller->FindPin(TEXT("Size"))->PinType.PinCategory, Schema_K2::PC_Int);
}

TEST_F(FNodeReconstructionTest, MacroInstanceFollowsTheMacrosEnds)
{
	UEdGraph* const Macro = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, TEXT("Ring"), UEdGraph::StaticClass(), Schema_K2::StaticClass());
	FBlueprintEditorUtils::AddMacroGraph(Blueprint, Macro, true, nullptr);
	UK2Node_Tunnel* const Entry = const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Macro, true));
	Entry->CreateUserDefinedPin(TEXT("Times"), MakeType(Schema_K2::PC_Int), EGPD_Output);
	UK2Node_MacroInstance* const Instance = Add<UK2Node_MacroInstance>([Macro](UK2Node_MacroInstance& Node)
		{ Node.SetMacroGraph(Macro); });
	ASSERT_NE(Instance->FindPin(TEXT("Times"), EGPD_Input), nullptr);
	ASSERT_TRUE(
		Schema().TryCreateConnection(Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin(), Instance->FindPin(TEXT("Times"))));

	Entry->CreateUserDefinedPin(TEXT("Loud"), MakeType(Schema_K2::PC_Boolean), EGPD_Output);
	EXPECT_EQ(Entry->RenameUserDefinedPin(TEXT("Times"), TEXT("Count")), UK2Node::ERenamePinResult_Success);
	Instance->ReconstructNode();
	EXPECT_NE(Instance->FindPin(TEXT("Loud"), EGPD_Input), nullptr);
	EXPECT_NE(Instance->FindPin(TEXT("Count"), EGPD_Input), nullptr);
	ASSERT_NE(Instance->FindPin(TEXT("Times")), nullptr);
	EXPECT_TRUE(Instance->FindPin(TEXT("Times"))->bOrphanedPin);

	// The instance in the text names the macro of its own Blueprint.
	const UK2Node_MacroInstance* const Copy = Cast<UK2Node_MacroInstance>(CopyAndPaste(Instance));
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(Copy->GetMacroGraph(), Macro);
}

TEST_F(FNodeReconstructionTest, CopyOfASplitPinIsSplitAndCombinesAgain)
{
	UK2Node_CallFunction* const Move = Call(TEXT("/Script/Engine.Actor"), TEXT("K2_SetActorLocation"));
	Schema().SplitPin(Move->FindPinChecked(TEXT("NewLocation")));
	Schema().TrySetDefaultValue(*Move->FindPinChecked(TEXT("NewLocation_Y")), TEXT("12.5"));
	ASSERT_TRUE(Schema().TryCreateConnection(Number(), Move->FindPinChecked(TEXT("NewLocation_X"))));

	UK2Node* const Copy = CopyAndPaste(Move);
	ASSERT_NE(Copy, nullptr);
	UEdGraphPin* const Parent = Copy->FindPinChecked(TEXT("NewLocation"));
	ASSERT_EQ(Parent->SubPins.Num(), 3);
	EXPECT_TRUE(Parent->bHidden);
	EXPECT_EQ(Copy->FindPinChecked(TEXT("NewLocation_Y"))->DefaultValue, FString(TEXT("12.5")));
	EXPECT_EQ(Copy->FindPinChecked(TEXT("NewLocation_X"))->LinkedTo.Num(), 0) << "the other end was not copied";
	Copy->ReconstructNode();
	Schema().RecombinePin(Copy->FindPinChecked(TEXT("NewLocation_Z")));
	EXPECT_EQ(Copy->FindPinChecked(TEXT("NewLocation"))->DefaultValue, FString(TEXT("0.000000,12.500000,0.000000")));

	// Links of parts have nowhere to go.
	Schema().RecombinePin(Move->FindPinChecked(TEXT("NewLocation")));
	EXPECT_EQ(Move->FindPin(TEXT("NewLocation_X")), nullptr);
	EXPECT_EQ(Move->FindPinChecked(TEXT("NewLocation"))->LinkedTo.Num(), 0);
}

TEST_F(FNodeReconstructionTest, SplitPinFollowsItsStructure)
{
	UPackage* const Package = CreatePackage(*(Blueprint->GetOutermost()->GetName() + TEXT("_S")));
	UUserDefinedStruct* const Struct = FStructureEditorUtils::CreateUserDefinedStruct(
		Package, *FPackageName::GetShortName(Package), RF_Public | RF_Standalone | RF_Transactional);
	FStructureEditorUtils::ChangeVariableType(Struct, FStructureEditorUtils::GetVarDesc(Struct)[0].VarGuid, MakeType(Schema_K2::PC_Int));
	FStructureEditorUtils::RenameVariable(Struct, FStructureEditorUtils::GetVarDesc(Struct)[0].VarGuid, TEXT("Count"));
	FStructureEditorUtils::AddVariable(Struct, MakeType(Schema_K2::PC_String));
	FStructureEditorUtils::RenameVariable(Struct, FStructureEditorUtils::GetVarDesc(Struct)[1].VarGuid, TEXT("Label"));
	AddFunction(TEXT("Take"), TEXT("What"), MakeType(Schema_K2::PC_Struct, Struct));
	UK2Node_CallFunction* const Caller = CallOwn(TEXT("Take"));
	Schema().SplitPin(Caller->FindPinChecked(TEXT("What")));
	ASSERT_EQ(Caller->FindPinChecked(TEXT("What"))->SubPins.Num(), 2);
	const FName CountName = Caller->FindPinChecked(TEXT("What"))->SubPins[0]->PinName;
	Schema().TrySetDefaultValue(*Caller->FindPinChecked(CountName), TEXT("7"));

	FStructureEditorUtils::RemoveVariable(Struct, FStructureEditorUtils::GetVarDesc(Struct)[1].VarGuid);
	FStructureEditorUtils::AddVariable(Struct, MakeType(Schema_K2::PC_Boolean));
	Reconstruct(Caller);
	const UEdGraphPin* const Parent = Caller->FindPinChecked(TEXT("What"));
	ASSERT_EQ(Parent->SubPins.Num(), 2);
	EXPECT_EQ(Parent->SubPins[0]->PinName, CountName);
	EXPECT_EQ(Parent->SubPins[0]->DefaultValue, FString(TEXT("7")));
	EXPECT_EQ(Parent->SubPins[1]->PinType.PinCategory, Schema_K2::PC_Boolean);
	EXPECT_EQ(Parent->SubPins[1]->ParentPin, Parent);
	for (const UEdGraphPin* const SubPin : Parent->SubPins)
	{
		EXPECT_TRUE(Caller->Pins.Contains(const_cast<UEdGraphPin*>(SubPin)));
	}
}

TEST_F(FNodeReconstructionTest, MakeAndBreakFollowTheirStructure)
{
	UPackage* const Package = CreatePackage(*(Blueprint->GetOutermost()->GetName() + TEXT("_M")));
	UUserDefinedStruct* const Struct = FStructureEditorUtils::CreateUserDefinedStruct(
		Package, *FPackageName::GetShortName(Package), RF_Public | RF_Standalone | RF_Transactional);
	FStructureEditorUtils::ChangeVariableType(Struct, FStructureEditorUtils::GetVarDesc(Struct)[0].VarGuid, MakeType(Schema_K2::PC_Int));
	UK2Node_MakeStruct* const Make = Add<UK2Node_MakeStruct>([Struct](UK2Node_MakeStruct& Node)
		{ Node.StructType = Struct; });
	UK2Node_BreakStruct* const Break = Add<UK2Node_BreakStruct>([Struct](UK2Node_BreakStruct& Node)
		{ Node.StructType = Struct; });
	const FName Member = Make->Pins.Last()->Direction == EGPD_Input ? Make->Pins.Last()->PinName : Make->Pins[0]->PinName;
	ASSERT_NE(Break->FindPin(Member, EGPD_Output), nullptr);
	ASSERT_TRUE(Schema().TryCreateConnection(Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin(), Make->FindPin(Member)));
	const int32 NumBefore = Make->Pins.Num();
	FStructureEditorUtils::AddVariable(Struct, MakeType(Schema_K2::PC_String));
	FStructureEditorUtils::RenameVariable(Struct, FStructureEditorUtils::GetVarDesc(Struct)[0].VarGuid, TEXT("Count"));
	Make->ReconstructNode();
	Break->ReconstructNode();
	EXPECT_EQ(Make->Pins.Num(), NumBefore + 1);
	EXPECT_EQ(Break->Pins.Num(), NumBefore + 1);
	TArray<UEdGraphPin*> Linked = Make->Pins.FilterByPredicate([](const UEdGraphPin* Pin)
		{ return Pin->LinkedTo.Num() > 0; });
	ASSERT_EQ(Linked.Num(), 1) << "a renamed member keeps its link";
	EXPECT_FALSE(Linked[0]->bOrphanedPin);
	EXPECT_EQ(Linked[0]->PinFriendlyName.ToString(), FString(TEXT("Count")));
}
}
