#include "GraphFixture.h"

#include "Containers/StringConv.h"
#include "K2Node_AddPinInterface.h"
#include "K2Node_AssignDelegate.h"
#include "K2Node_CommutativeAssociativeBinaryOperator.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DoOnceMultiInput.h"
#include "K2Node_EaseFunction.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_FormatText.h"
#include "K2Node_GetClassDefaults.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_MakeMap.h"
#include "K2Node_SetFieldsInStruct.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_SwitchInteger.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/NoExportTypes.h"

namespace
{
const TCHAR* const SystemLibrary = TEXT("/Script/Engine.KismetSystemLibrary");
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");

/** Pins that come and go: by a user's wish, by a class, by a changed definition. */
class FNodePinsTest : public FGraphTest
{
protected:
	static std::vector<std::string> NamesOf(const UEdGraphNode* Node, EEdGraphPinDirection Direction)
	{
		std::vector<std::string> Names;
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			if (Pin->Direction == Direction && Pin->PinName != TEXT("execute") && !Pin->bHidden)
			{
				Names.push_back(TCHAR_TO_UTF8(*Pin->PinName.ToString()));
			}
		}
		return Names;
	}

	using FNames = std::vector<std::string>;
};

TEST_F(FNodePinsTest, SequenceKeepsItsLinksWhenOutputsComeAndGo)
{
	UK2Node_ExecutionSequence* const Sequence = Add<UK2Node_ExecutionSequence>();
	UK2Node_IfThenElse* const Last = Add<UK2Node_IfThenElse>();
	ASSERT_TRUE(Schema().TryCreateConnection(Sequence->GetThenPinGivenIndex(1), Last->GetExecPin()));
	Sequence->InsertPinIntoExecutionNode(Sequence->GetThenPinGivenIndex(0), false);
	EXPECT_EQ(NamesOf(Sequence, EGPD_Output), FNames({"then_0", "then_1", "then_2"}));
	EXPECT_EQ(Last->GetExecPin()->LinkedTo[0], Sequence->GetThenPinGivenIndex(2));
	IK2Node_AddPinInterface* const Pins = Cast<IK2Node_AddPinInterface>(Sequence);
	ASSERT_NE(Pins, nullptr);
	Pins->RemoveInputPin(Sequence->GetThenPinGivenIndex(0));
	EXPECT_EQ(Last->GetExecPin()->LinkedTo[0], Sequence->GetThenPinGivenIndex(1));
	EXPECT_FALSE(Pins->CanRemovePin(Sequence->GetThenPinGivenIndex(0)));
	Pins->AddInputPin();
	Sequence->ReconstructNode();
	EXPECT_EQ(NamesOf(Sequence, EGPD_Output), FNames({"then_0", "then_1", "then_2"}));
	EXPECT_EQ(Last->GetExecPin()->LinkedTo[0], Sequence->GetThenPinGivenIndex(1));
}

TEST_F(FNodePinsTest, OperandsAreNamedByLettersWithoutGaps)
{
	UK2Node_CommutativeAssociativeBinaryOperator* const And = Add<UK2Node_CommutativeAssociativeBinaryOperator>(
		[](UK2Node_CommutativeAssociativeBinaryOperator& Node)
		{ Node.SetFromFunction(FindObject<UClass>(nullptr, MathLibrary)->FindFunctionByName(TEXT("BooleanAND"))); });
	And->AddInputPin();
	And->AddInputPin();
	Schema().TrySetDefaultValue(*And->FindPin(TEXT("D")), TEXT("true"));
	And->RemoveInputPin(And->FindPin(TEXT("B")));
	EXPECT_EQ(NamesOf(And, EGPD_Input), FNames({"A", "B", "C"}));
	EXPECT_EQ(And->FindPin(TEXT("C"))->DefaultValue, FString(TEXT("true")));
	And->ReconstructNode();
	EXPECT_EQ(NamesOf(And, EGPD_Input), FNames({"A", "B", "C"}));
	while (And->CanAddPin())
	{
		And->AddInputPin();
	}
	EXPECT_EQ(NamesOf(And, EGPD_Input).back(), "Z");
}

TEST_F(FNodePinsTest, PairOfAMapGoesAsAWhole)
{
	UK2Node_MakeMap* const Make = Add<UK2Node_MakeMap>();
	Make->AddInputPin();
	Make->AddInputPin();
	ASSERT_TRUE(
		Schema().TryCreateConnection(Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin(), Make->FindPin(TEXT("Value 2"))));
	Make->RemoveInputPin(Make->FindPin(TEXT("Value 1")));
	EXPECT_EQ(NamesOf(Make, EGPD_Input), FNames({"Key 0", "Value 0", "Key 1", "Value 1"}));
	EXPECT_EQ(Make->FindPin(TEXT("Value 1"))->LinkedTo.Num(), 1);
}

TEST_F(FNodePinsTest, WaysOfADoOnceHaveBothEnds)
{
	UK2Node_DoOnceMultiInput* const Node = Add<UK2Node_DoOnceMultiInput>();
	Node->AddInputPin();
	Node->AddInputPin();
	Node->RemoveInputPin(Node->FindPin(TEXT("B Out")));
	EXPECT_EQ(NamesOf(Node, EGPD_Output), FNames({"A Out", "B Out"}));
	EXPECT_EQ(Node->NumAdditionalInputs, 1);
	Node->ReconstructNode();
	EXPECT_EQ(NamesOf(Node, EGPD_Input), FNames({"Reset", "StartClosed", "A In", "B In"}));
}

TEST_F(FNodePinsTest, CasesOfASwitchOnNumbersStayInARow)
{
	UK2Node_SwitchInteger* const Switch = Add<UK2Node_SwitchInteger>();
	Switch->AddPinToSwitchNode();
	Switch->AddPinToSwitchNode();
	Switch->AddPinToSwitchNode();
	UK2Node_IfThenElse* const Target = Add<UK2Node_IfThenElse>();
	ASSERT_TRUE(Schema().TryCreateConnection(Switch->FindPin(TEXT("0")), Target->GetExecPin()));
	Switch->RemovePinFromSwitchNode(Switch->FindPin(TEXT("1")));
	EXPECT_EQ(NamesOf(Switch, EGPD_Output), FNames({"Default", "0", "1"}));
	EXPECT_EQ(Target->GetExecPin()->LinkedTo.Num(), 1);
}

TEST_F(FNodePinsTest, FormatTextFollowsTheNamesInItsText)
{
	UK2Node_FormatText* const Format = Add<UK2Node_FormatText>();
	Schema().TrySetDefaultText(*Format->GetFormatPin(), FText::FromString(TEXT("{Name} has {Count} of `{Total`}")));
	EXPECT_EQ(NamesOf(Format, EGPD_Input), FNames({"Format", "Name", "Count"}));
	UEdGraphPin* const Source = Call(MathLibrary, TEXT("RandomInteger"))->GetReturnValuePin();
	ASSERT_TRUE(Schema().TryCreateConnection(Source, Format->FindArgumentPin(TEXT("Count"))));
	Schema().TrySetDefaultText(*Format->GetFormatPin(), FText::FromString(TEXT("{Count} of {Name}")));
	EXPECT_EQ(NamesOf(Format, EGPD_Input), FNames({"Format", "Count", "Name"}));
	EXPECT_EQ(Format->FindArgumentPin(TEXT("Count"))->LinkedTo.Num(), 1);
}

TEST_F(FNodePinsTest, SpawnedClassGivesItsExposedProperties)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Int;
	UBlueprint* const Spawned = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Spawned")), TEXT("BP_Spawned"), BPTYPE_Normal);
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Spawned, TEXT("Ammo"), Type, TEXT("30")));
	*FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(Spawned, TEXT("Ammo")) |= CPF_ExposeOnSpawn | CPF_BlueprintVisible;
	FBlueprintEditorUtils::SetBlueprintVariableMetaData(Spawned, TEXT("Ammo"), nullptr, FBlueprintMetadata::MD_ExposeOnSpawn, TEXT("true"));
	FKismetEditorUtilities::CompileBlueprint(Spawned);

	UK2Node_SpawnActorFromClass* const Spawn = Add<UK2Node_SpawnActorFromClass>();
	Schema().TrySetDefaultObject(*Spawn->GetClassPin(), Spawned->GeneratedClass);
	ASSERT_NE(Spawn->FindPin(TEXT("Ammo")), nullptr);
	EXPECT_EQ(Spawn->FindPin(TEXT("Ammo"))->DefaultValue, FString(TEXT("30")));
	EXPECT_EQ(Spawn->GetResultPin()->PinType.PinSubCategoryObject.Get(), Spawned->GeneratedClass.Get());
	Schema().TrySetDefaultValue(*Spawn->FindPin(TEXT("Ammo")), TEXT("5"));
	Spawn->ReconstructNode();
	EXPECT_EQ(Spawn->FindPin(TEXT("Ammo"))->DefaultValue, FString(TEXT("5")));
	Schema().TrySetDefaultObject(*Spawn->GetClassPin(), AActor::StaticClass());
	const UEdGraphPin* const Orphan = Spawn->FindPin(TEXT("Ammo"));
	ASSERT_NE(Orphan, nullptr);
	EXPECT_TRUE(Orphan->bOrphanedPin);
	EXPECT_EQ(Spawn->GetResultPin()->PinType.PinSubCategoryObject.Get(), AActor::StaticClass());

	UK2Node_GetClassDefaults* const Defaults = Add<UK2Node_GetClassDefaults>();
	Schema().TrySetDefaultObject(*Defaults->FindClassPin(), Spawned->GeneratedClass);
	EXPECT_NE(Defaults->FindPin(TEXT("Ammo"), EGPD_Output), nullptr);
	Schema().TrySetDefaultObject(*Defaults->FindClassPin(), nullptr);
	EXPECT_EQ(Defaults->FindPin(TEXT("Ammo"), EGPD_Output), nullptr);
}

TEST_F(FNodePinsTest, AssignedDispatcherGetsAnEventOfItsOwn)
{
	const UK2Node_AssignDelegate* const Assign = Add<UK2Node_AssignDelegate>(
		[](UK2Node_AssignDelegate& Node)
		{
			Node.DelegateReference.SetExternalMember(
				TEXT("OnComponentHit"), FindObject<UClass>(nullptr, TEXT("/Script/Engine.PrimitiveComponent")));
		});
	ASSERT_NE(Assign->GetDelegatePin(), nullptr);
	ASSERT_EQ(Assign->GetDelegatePin()->LinkedTo.Num(), 1);
	const UK2Node_CustomEvent* const Event = Cast<UK2Node_CustomEvent>(Assign->GetDelegatePin()->LinkedTo[0]->GetOwningNode());
	ASSERT_NE(Event, nullptr);
	EXPECT_EQ(Event->CustomFunctionName, FName(TEXT("OnComponentHit_Event")));
	EXPECT_NE(Event->FindPin(TEXT("OtherActor"), EGPD_Output), nullptr);
	EXPECT_NE(Event->FindPin(TEXT("Hit"), EGPD_Output), nullptr);
}

TEST_F(FNodePinsTest, EaseShowsTheSettingsOfItsFunction)
{
	UK2Node_EaseFunction* const Ease = Add<UK2Node_EaseFunction>();
	EXPECT_EQ(NamesOf(Ease, EGPD_Input), FNames({"Function", "Alpha", "A", "B"}));
	Schema().TrySetDefaultValue(*Ease->FindPinChecked(TEXT("Function")), TEXT("EaseIn"));
	EXPECT_EQ(NamesOf(Ease, EGPD_Input), FNames({"Function", "Alpha", "A", "B", "BlendExp"}));
	Schema().TrySetDefaultValue(*Ease->FindPinChecked(TEXT("Function")), TEXT("Step"));
	Ease->ReconstructNode();
	EXPECT_EQ(NamesOf(Ease, EGPD_Input), FNames({"Function", "Alpha", "A", "B", "Steps"}));
	ASSERT_TRUE(Schema().TryCreateConnection(Call(MathLibrary, TEXT("RandomRotator"))->GetReturnValuePin(), Ease->FindPin(TEXT("A"))));
	EXPECT_EQ(NamesOf(Ease, EGPD_Input), FNames({"Function", "Alpha", "A", "B", "ShortestPath", "Steps"}));
}

TEST_F(FNodePinsTest, MembersToSetAreChosenOneByOne)
{
	UK2Node_SetFieldsInStruct* const Set = Add<UK2Node_SetFieldsInStruct>([](UK2Node_SetFieldsInStruct& Node)
		{ Node.StructType = TBaseStructure<FVector>::Get(); });
	EXPECT_EQ(NamesOf(Set, EGPD_Input), FNames({"StructRef"}));
	Set->SetMemberVisible(TEXT("Y"), true);
	EXPECT_EQ(NamesOf(Set, EGPD_Input), FNames({"StructRef", "Y"}));
	Set->SetMemberVisible(TEXT("Y"), false);
	EXPECT_EQ(NamesOf(Set, EGPD_Input), FNames({"StructRef"}));
}

TEST_F(FNodePinsTest, PinThatItsFunctionLostStaysOnlyWhileItIsInUse)
{
	UK2Node_CallFunction* const Print = Call(SystemLibrary, TEXT("PrintString"));
	UK2Node_CallFunction* const Source = Call(MathLibrary, TEXT("RandomInteger"));
	Schema().TrySetDefaultValue(*Print->FindPinChecked(TEXT("Duration")), TEXT("7.5"));
	ASSERT_TRUE(Schema().TryCreateConnection(Source->GetReturnValuePin(), Print->FindPinChecked(TEXT("InString"))));
	Print->FunctionReference.SetExternalMember(TEXT("Delay"), FindObject<UClass>(nullptr, SystemLibrary));
	Print->ReconstructNode();
	const UEdGraphPin* const Linked = Print->FindPin(TEXT("InString"));
	ASSERT_NE(Linked, nullptr);
	EXPECT_TRUE(Linked->bOrphanedPin);
	EXPECT_EQ(Linked->LinkedTo.Num(), 1);
	EXPECT_EQ(Print->FindPin(TEXT("bPrintToLog")), nullptr);
	ASSERT_NE(Print->FindPin(TEXT("Duration")), nullptr);
	EXPECT_FALSE(Print->FindPin(TEXT("Duration"))->bOrphanedPin);
	EXPECT_EQ(Print->FindPin(TEXT("Duration"))->DefaultValue, FString(TEXT("7.5")));
	Schema().BreakPinLinks(*Print->FindPin(TEXT("InString")), true);
	Print->ReconstructNode();
	EXPECT_EQ(Print->FindPin(TEXT("InString")), nullptr);
}

TEST_F(FNodePinsTest, SplitPinsShowThePartsThatAUserKnows)
{
	UK2Node_CallFunction* const Move = Call(TEXT("/Script/Engine.Actor"), TEXT("K2_SetActorTransform"));
	UEdGraphPin* const Transform = Move->FindPinChecked(TEXT("NewTransform"));
	Schema().SplitPin(Transform);
	UEdGraphPin* const Rotation = Move->FindPin(TEXT("NewTransform_Rotation"));
	ASSERT_TRUE(Move->FindPin(TEXT("NewTransform_Location")) && Rotation && Move->FindPin(TEXT("NewTransform_Scale")));
	EXPECT_EQ(Rotation->PinType.PinSubCategoryObject.Get(), TBaseStructure<FRotator>::Get());
	Schema().SplitPin(Rotation);
	ASSERT_EQ(Rotation->SubPins.Num(), 3);
	EXPECT_EQ(Rotation->SubPins[0]->PinName, FName(TEXT("NewTransform_Rotation_Roll")));
	Schema().TrySetDefaultValue(*Rotation->SubPins[1], TEXT("90.0"));
	Move->ReconstructNode();
	UEdGraphPin* const After = Move->FindPin(TEXT("NewTransform_Rotation"));
	ASSERT_TRUE(After && After->SubPins.Num() == 3);
	EXPECT_EQ(Move->FindPin(TEXT("NewTransform_Rotation_Pitch"))->DefaultValue, FString(TEXT("90.0")));
	Schema().RecombinePin(After);
	EXPECT_EQ(After->DefaultValue, FString(TEXT("90.000000,0.000000,0.000000")));
	Schema().RecombinePin(Move->FindPin(TEXT("NewTransform")));
	EXPECT_EQ(Move->FindPin(TEXT("NewTransform_Rotation")), nullptr);
	EXPECT_FALSE(Move->FindPin(TEXT("NewTransform"))->bHidden);
}
}
