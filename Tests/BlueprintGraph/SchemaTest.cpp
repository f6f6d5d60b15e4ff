#include "GraphFixture.h"

#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Self.h"

namespace
{
const TCHAR* const SystemLibrary = TEXT("/Script/Engine.KismetSystemLibrary");
const TCHAR* const MathLibrary = TEXT("/Script/Engine.KismetMathLibrary");
}

class FSchemaTest : public FGraphTest
{
};

TEST_F(FSchemaTest, RefusalsSayWhy)
{
	const UK2Node_IfThenElse* const Branch = Add<UK2Node_IfThenElse>();
	const UK2Node_IfThenElse* const Other = Add<UK2Node_IfThenElse>();
	const UK2Node_Self* const Self = Add<UK2Node_Self>();
	struct FCase
	{
		const UEdGraphPin* A;
		const UEdGraphPin* B;
		const TCHAR* Reason;
	};
	const FCase Cases[] = {
		{Branch->GetExecPin(), Branch->GetThenPin(), TEXT("Both are on the same node")},
		{Branch->GetThenPin(), Other->GetElsePin(), TEXT("Directions are not compatible")},
		{Branch->GetThenPin(), Other->GetConditionPin(), TEXT("Exec is not compatible with Boolean.")},
		{Self->Pins[0], Other->GetConditionPin(), TEXT("Self Object Reference is not compatible with Boolean.")},
	};
	for (const FCase& Case : Cases)
	{
		const FPinConnectionResponse Response = Schema().CanCreateConnection(Case.A, Case.B);
		EXPECT_EQ(Response.Response, CONNECT_RESPONSE_DISALLOW);
		EXPECT_EQ(Response.Message.ToString(), FString(Case.Reason));
	}
}

TEST_F(FSchemaTest, ExecutionOutputIsReplacedAndInputIsShared)
{
	UK2Node_IfThenElse* const First = Add<UK2Node_IfThenElse>();
	UK2Node_IfThenElse* const Second = Add<UK2Node_IfThenElse>();
	UK2Node_IfThenElse* const Third = Add<UK2Node_IfThenElse>();
	ASSERT_TRUE(Schema().TryCreateConnection(First->GetThenPin(), Second->GetExecPin()));
	EXPECT_EQ(Schema().CanCreateConnection(First->GetThenPin(), Third->GetExecPin()).Response, CONNECT_RESPONSE_BREAK_OTHERS_A);
	ASSERT_TRUE(Schema().TryCreateConnection(First->GetElsePin(), Second->GetExecPin()));
	EXPECT_EQ(Second->GetExecPin()->LinkedTo.Num(), 2);
	ASSERT_TRUE(Schema().TryCreateConnection(First->GetThenPin(), Third->GetExecPin()));
	EXPECT_EQ(Second->GetExecPin()->LinkedTo.Num(), 1);
}

TEST_F(FSchemaTest, IntegerIntoStringPutsAConversionBetween)
{
	UK2Node_CallFunction* const Source = Call(MathLibrary, TEXT("RandomInteger"));
	UK2Node_CallFunction* const Print = Call(SystemLibrary, TEXT("PrintString"));
	UEdGraphPin* const Text = Print->FindPinChecked(TEXT("InString"));
	const FPinConnectionResponse Response = Schema().CanCreateConnection(Source->GetReturnValuePin(), Text);
	ASSERT_EQ(Response.Response, CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE);
	EXPECT_EQ(Response.Message.ToString(), FString(TEXT("Convert Integer to String.")));
	ASSERT_TRUE(Schema().TryCreateConnection(Source->GetReturnValuePin(), Text));
	ASSERT_EQ(Text->LinkedTo.Num(), 1);
	EXPECT_EQ(Cast<UK2Node_CallFunction>(Text->LinkedTo[0]->GetOwningNode())->GetFunctionName(), FName(TEXT("Conv_IntToString")));
}

TEST_F(FSchemaTest, ReconstructionKeepsIdsLinksAndDefaults)
{
	UK2Node_CallFunction* const Print = Call(SystemLibrary, TEXT("PrintString"));
	UK2Node_IfThenElse* const Branch = Add<UK2Node_IfThenElse>();
	ASSERT_TRUE(Schema().TryCreateConnection(Branch->GetThenPin(), Print->GetExecPin()));
	Schema().TrySetDefaultValue(*Print->FindPinChecked(TEXT("Duration")), TEXT("7.5"));
	const FGuid Id = Print->FindPinChecked(TEXT("Duration"))->PinId;
	Print->ReconstructNode();
	EXPECT_EQ(Print->FindPinChecked(TEXT("Duration"))->DefaultValue, FString(TEXT("7.5")));
	EXPECT_EQ(Print->FindPinChecked(TEXT("Duration"))->PinId, Id);
	ASSERT_EQ(Branch->GetThenPin()->LinkedTo.Num(), 1);
	EXPECT_EQ(Branch->GetThenPin()->LinkedTo[0], Print->GetExecPin());
}

TEST_F(FSchemaTest, BadDefaultsAreNotTaken)
{
	UK2Node_CallFunction* const Print = Call(SystemLibrary, TEXT("PrintString"));
	UEdGraphPin* const Duration = Print->FindPinChecked(TEXT("Duration"));
	UEdGraphPin* const ToScreen = Print->FindPinChecked(TEXT("bPrintToScreen"));
	UEdGraphPin* const Color = Print->FindPinChecked(TEXT("TextColor"));
	for (UEdGraphPin* const Pin : {Duration, ToScreen, Color})
	{
		const FString Before = Pin->DefaultValue;
		Schema().TrySetDefaultValue(*Pin, TEXT("nonsense"));
		EXPECT_EQ(Pin->DefaultValue, Before);
		EXPECT_FALSE(Schema().IsPinDefaultValid(Pin, TEXT("nonsense"), nullptr, FText()).IsEmpty());
	}
}

TEST_F(FSchemaTest, RerouteNodesTakeTheTypeAlongTheChain)
{
	UK2Node_Knot* const First = Add<UK2Node_Knot>();
	UK2Node_Knot* const Second = Add<UK2Node_Knot>();
	UK2Node_IfThenElse* const Branch = Add<UK2Node_IfThenElse>();
	ASSERT_TRUE(Schema().TryCreateConnection(First->GetOutputPin(), Second->GetInputPin()));
	ASSERT_TRUE(Schema().TryCreateConnection(Second->GetOutputPin(), Branch->GetConditionPin()));
	EXPECT_EQ(First->GetInputPin()->PinType.PinCategory, UEdGraphSchema_K2::PC_Boolean);
}

TEST_F(FSchemaTest, TitlesAreWhatAUserReads)
{
	const auto Title = [](const UEdGraphNode* Node)
	{ return Node->GetNodeTitle(ENodeTitleType::MenuTitle).ToString(); };
	EXPECT_EQ(Title(Call(SystemLibrary, TEXT("PrintString"))), FString(TEXT("Print String")));
	EXPECT_EQ(Title(Add<UK2Node_IfThenElse>()), FString(TEXT("Branch")));
	EXPECT_EQ(Title(Add<UK2Node_DynamicCast>([this](UK2Node_DynamicCast& Node)
				  { Node.TargetType = Blueprint->GeneratedClass; })),
		FString(TEXT("Cast To BP_Test")));
	EXPECT_EQ(Title(Add<UK2Node_MacroInstance>([](UK2Node_MacroInstance& Node)
				  { Node.SetMacroGraph(FStandardMacros::Find(TEXT("ForEachLoop"))); })),
		FString(TEXT("For Each Loop")));
	UK2Node_Event* const Event = Add<UK2Node_Event>([](UK2Node_Event& Node)
		{
			Node.EventReference.SetExternalMember(TEXT("ReceiveBeginPlay"), AActor::StaticClass());
			Node.bOverrideFunction = true; });
	EXPECT_EQ(Title(Event), FString(TEXT("Event BeginPlay")));
}

TEST_F(FSchemaTest, SplitPinRecombinesToItsValue)
{
	UK2Node_CallFunction* const Print = Call(SystemLibrary, TEXT("PrintString"));
	UEdGraphPin* const Color = Print->FindPinChecked(TEXT("TextColor"));
	Schema().SplitPin(Color);
	ASSERT_EQ(Color->SubPins.Num(), 4);
	Schema().TrySetDefaultValue(*Print->FindPinChecked(TEXT("TextColor_R")), TEXT("0.5"));
	Print->ReconstructNode();
	UEdGraphPin* const After = Print->FindPinChecked(TEXT("TextColor"));
	ASSERT_EQ(After->SubPins.Num(), 4);
	Schema().RecombinePin(After);
	EXPECT_EQ(After->DefaultValue, FString(TEXT("(R=0.500000,G=0.660000,B=1.000000,A=1.000000)")));
	EXPECT_FALSE(After->bHidden);
	EXPECT_EQ(Print->FindPin(TEXT("TextColor_R")), nullptr);
}
