#include "SchemaFixture.h"

#include "BlueprintEditorSettings.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_PromotableOperator.h"

namespace
{
/** What becomes of a link from a value of the one type to a pin of the other. */
struct FLinkCase
{
	const char* From;
	const char* To;
	/** "yes", "no", or the function or node class that stands between afterwards. */
	const char* Answer;
};

const FLinkCase LinkCases[] = {
	// Single values
	{"bool", "bool", "yes"},
	{"bool", "int", "Conv_BoolToInt"},
	{"bool", "byte", "Conv_BoolToByte"},
	{"bool", "real double", "Conv_BoolToDouble"},
	{"bool", "string", "Conv_BoolToString"},
	{"bool", "text", "Conv_BoolToText"},
	{"bool", "name", "no"},
	{"byte", "int", "Conv_ByteToInt"},
	{"byte", "int64", "Conv_ByteToInt64"},
	{"byte", "real double", "Conv_ByteToDouble"},
	{"byte", "real float", "Conv_ByteToDouble"},
	{"byte", "string", "Conv_ByteToString"},
	{"byte", "text", "Conv_ByteToText"},
	{"int", "bool", "Conv_IntToBool"},
	{"int", "byte", "Conv_IntToByte"},
	{"int", "int64", "Conv_IntToInt64"},
	{"int", "real double", "Conv_IntToDouble"},
	{"int", "real float", "Conv_IntToDouble"},
	{"int", "string", "Conv_IntToString"},
	{"int", "text", "Conv_IntToText"},
	{"int", "name", "no"},
	{"int64", "int", "Conv_Int64ToInt"},
	{"int64", "byte", "Conv_Int64ToByte"},
	{"int64", "real double", "Conv_Int64ToDouble"},
	{"int64", "string", "Conv_Int64ToString"},
	{"real float", "real double", "yes"},
	{"real double", "real float", "yes"},
	{"real double", "int", "FTrunc"},
	{"real float", "int", "FTrunc"},
	{"real double", "string", "Conv_DoubleToString"},
	{"real float", "string", "Conv_FloatToString"},
	{"real double", "text", "Conv_DoubleToText"},
	{"real float", "text", "Conv_DoubleToText"},
	{"real double", "bool", "no"},
	{"name", "string", "Conv_NameToString"},
	{"name", "text", "Conv_NameToText"},
	{"string", "name", "Conv_StringToName"},
	{"string", "text", "Conv_StringToText"},
	{"string", "int", "Conv_StringToInt"},
	{"string", "bool", "no"},
	{"text", "string", "Conv_TextToString"},
	{"text", "name", "no"},
	// Enumerations
	{"byte ECollisionChannel", "byte ECollisionChannel", "yes"},
	{"byte ECollisionChannel", "byte", "yes"},
	{"byte", "byte ECollisionChannel", "K2Node_CastByteToEnum"},
	{"byte ECollisionChannel", "byte EEndPlayReason", "no"},
	{"byte ECollisionChannel", "int", "Conv_ByteToInt"},
	{"byte ECollisionChannel", "string", "K2Node_GetEnumeratorNameAsString"},
	{"byte ECollisionChannel", "name", "K2Node_GetEnumeratorName"},
	{"byte ECollisionChannel", "bool", "no"},
	{"int", "byte ECollisionChannel", "no"},
	// Structs
	{"struct Vector", "struct Vector", "yes"},
	{"struct Vector", "struct Vector3f", "yes"},
	{"struct Vector3f", "struct Vector", "yes"},
	{"struct Vector_NetQuantize", "struct Vector", "yes"},
	{"struct Vector", "struct Vector_NetQuantize", "no"},
	{"struct Vector", "struct Rotator", "Conv_VectorToRotator"},
	{"struct Rotator", "struct Vector", "Conv_RotatorToVector"},
	{"struct Vector", "struct Transform", "Conv_VectorToTransform"},
	{"struct Rotator", "struct Transform", "Conv_RotatorToTransform"},
	{"struct Vector", "struct Vector2D", "Conv_VectorToVector2D"},
	{"struct Vector2D", "struct Vector", "Conv_Vector2DToVector"},
	{"struct LinearColor", "struct Color", "Conv_LinearColorToColor"},
	{"struct Color", "struct LinearColor", "Conv_ColorToLinearColor"},
	{"struct Quat", "struct Rotator", "Quat_Rotator"},
	{"struct Vector", "string", "Conv_VectorToString"},
	{"struct Transform", "text", "Conv_TransformToText"},
	{"struct Transform", "struct Vector", "no"},
	{"real double", "struct Vector", "Conv_DoubleToVector"},
	{"struct Vector", "real double", "no"},
	// Objects and classes
	{"object Character", "object Actor", "yes"},
	{"object Actor", "object Object", "yes"},
	{"object Actor", "object Character", "no"},
	{"object Actor", "object SceneComponent", "no"},
	{"object Actor", "string", "GetDisplayName"},
	{"object Actor", "text", "Conv_ObjectToText"},
	{"object Actor", "name", "no"},
	{"object Actor", "class Actor", "GetObjectClass"},
	{"object Actor", "class Character", "no"},
	{"object Actor", "softobject Actor", "Conv_ObjectToSoftObjectReference"},
	{"object Character", "softobject Actor", "Conv_ObjectToSoftObjectReference"},
	{"object Actor", "softobject Character", "no"},
	{"class Character", "class Actor", "yes"},
	{"class Actor", "class Character", "no"},
	{"class Actor", "object Object", "no"},
	{"class Actor", "string", "GetClassDisplayName"},
	{"class Actor", "softclass Actor", "Conv_ClassToSoftClassReference"},
	{"softobject Actor", "object Actor", "K2Node_ConvertAsset"},
	{"softobject Character", "object Actor", "K2Node_ConvertAsset"},
	{"softobject Actor", "object Character", "no"},
	{"softobject Character", "softobject Actor", "yes"},
	{"softobject Actor", "string", "Conv_SoftObjectReferenceToString"},
	{"softclass Character", "class Actor", "Conv_SoftClassReferenceToClass"},
	{"softclass Actor", "softobject Actor", "no"},
	// Interfaces
	{"interface UserObjectListEntry", "interface UserListEntry", "yes"},
	{"interface UserListEntry", "interface UserObjectListEntry", "no"},
	{"interface UserListEntry", "object Object", "yes"},
	{"interface UserListEntry", "object Actor", "K2Node_DynamicCast"},
	{"object Actor", "interface UserListEntry", "no"},
	// Containers
	{"array of int", "array of int", "yes"},
	{"array of int", "int", "no"},
	{"int", "array of int", "K2Node_MakeArray"},
	{"object Character", "array of object Actor", "K2Node_MakeArray"},
	{"string", "array of int", "no"},
	{"int", "set of int", "no"},
	{"array of object Character", "array of object Actor", "yes"},
	{"array of object Actor", "array of object Character", "no"},
	{"array of real float", "array of real double", "yes"},
	{"array of real float", "ref array of real double", "no"},
	{"int", "ref array of int", "no"},
	{"array of int", "array of real double", "no"},
	{"array of struct Vector_NetQuantize", "array of struct Vector", "yes"},
	{"set of name", "array of name", "Set_ToArray"},
	{"set of name", "array of string", "no"},
	{"array of name", "set of name", "no"},
	{"map name int", "map name int", "yes"},
	{"map name int", "map name string", "no"},
	{"map name int", "map string int", "no"},
	{"map name int", "map name wildcard", "yes"},
	{"map name object Character", "map name object Actor", "yes"},
	// Wildcards
	{"int", "wildcard", "yes"},
	{"array of int", "wildcard", "yes"},
	{"array of int", "array of wildcard", "yes"},
	{"int", "array of wildcard", "no"},
	{"set of int", "array of wildcard", "Set_ToArray"},
	{"exec", "wildcard", "no"},
	{"wildcard", "exec", "no"},
	{"int", "wildcard index", "yes"},
	{"byte ECollisionChannel", "wildcard index", "yes"},
	{"bool", "wildcard index", "yes"},
	{"string", "wildcard index", "no"},
	{"array of int", "wildcard index", "no"},
	// Execution and delegates
	{"exec", "exec", "yes"},
	{"exec", "bool", "no"},
	{"delegate", "delegate", "yes"},
	{"delegate", "exec", "no"},
	{"delegate", "mcdelegate", "no"},
};

/** What stands between two pins, as the table spells it. */
std::string DescribeBetween(const UEdGraphPin& Output, const UEdGraphPin& Input)
{
	if (Input.LinkedTo.Num() != 1)
	{
		return "no";
	}
	if (Input.LinkedTo[0] == &Output)
	{
		return "yes";
	}
	const UEdGraphNode* const Node = Input.LinkedTo[0]->GetOwningNode();
	const bool bIsFed = Node->Pins.ContainsByPredicate([&Output](const UEdGraphPin* Pin)
		{ return Pin->LinkedTo.Contains(const_cast<UEdGraphPin*>(&Output)); });
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Node);
	const FString Name = Call ? Call->GetFunctionName().ToString() : Node->GetClass()->GetName();
	return (bIsFed ? "" : "unfed ") + std::string(TCHAR_TO_UTF8(*Name));
}
}

class FSchemaConversionTest : public FSchemaFixture
{
protected:
	virtual void TearDown() override
	{
		GetMutableDefault<UBlueprintEditorSettings>()->bAutoCastObjectConnections = false;
		FSchemaFixture::TearDown();
	}
};

TEST_F(FSchemaConversionTest, EachPairOfTypesHasItsAnswer)
{
	for (const FLinkCase& Case : LinkCases)
	{
		SCOPED_TRACE(std::string(Case.From) + " to " + Case.To);
		UEdGraphPin& Output = MakePin(EGPD_Output, Case.From);
		UEdGraphPin& Input = MakePin(EGPD_Input, Case.To);
		const int32 NumNodes = Graph->Nodes.Num();
		const std::string Answer = Case.Answer;
		const FPinConnectionResponse Response = Schema().CanCreateConnection(&Output, &Input);
		const ECanCreateConnectionResponse Expected = Answer == "yes" ? CONNECT_RESPONSE_MAKE
			: Answer == "no"                                          ? CONNECT_RESPONSE_DISALLOW
																	  : CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE;
		EXPECT_EQ(Response.Response.GetValue(), Expected);
		// The answer does not depend on the pin that the drag starts from.
		EXPECT_EQ(Schema().CanCreateConnection(&Input, &Output).Response.GetValue(), Expected);
		EXPECT_EQ(Response.Message.IsEmpty(), Expected == CONNECT_RESPONSE_MAKE);
		EXPECT_EQ(Schema().TryCreateConnection(&Output, &Input), Answer != "no");
		EXPECT_EQ(DescribeBetween(Output, Input), Answer);
		EXPECT_EQ(Graph->Nodes.Num(), NumNodes + (Expected == CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE ? 1 : 0));
	}
}

/** Whatever is made is what a compile lets pass: each link of a conversion would be allowed by itself. */
TEST_F(FSchemaConversionTest, LinksOfConversionsStandByThemselves)
{
	for (const FLinkCase& Case : LinkCases)
	{
		SCOPED_TRACE(std::string(Case.From) + " to " + Case.To);
		UEdGraphPin& Output = MakePin(EGPD_Output, Case.From);
		UEdGraphPin& Input = MakePin(EGPD_Input, Case.To);
		if (!Schema().TryCreateConnection(&Output, &Input) || Input.LinkedTo[0] == &Output)
		{
			continue;
		}
		UEdGraphNode* const Node = Input.LinkedTo[0]->GetOwningNode();
		EXPECT_TRUE(Schema().ArePinsCompatible(Input.LinkedTo[0], &Input));
		EXPECT_TRUE(Schema().ArePinsCompatible(&Output, Output.LinkedTo[0]));
		Node->ReconstructNode();
		EXPECT_EQ(DescribeBetween(Output, Input), Case.Answer);
	}
}

TEST_F(FSchemaConversionTest, ObjectsAreCastDownOnlyWhenTheUserWantsIt)
{
	UEdGraphPin& Actor = MakePin(EGPD_Output, "object Actor");
	UEdGraphPin& Character = MakePin(EGPD_Input, "object Character");
	EXPECT_EQ(Schema().CanCreateConnection(&Actor, &Character).Message.ToString(),
		FString(TEXT("Actor Object Reference is not compatible with Character Object Reference.")));
	GetMutableDefault<UBlueprintEditorSettings>()->bAutoCastObjectConnections = true;
	EXPECT_EQ(Schema().CanCreateConnection(&Actor, &Character).Message.ToString(),
		FString(TEXT("Convert Actor Object Reference to Character Object Reference.")));
	ASSERT_TRUE(Schema().TryCreateConnection(&Actor, &Character));
	const UK2Node_DynamicCast* const Between = Cast<UK2Node_DynamicCast>(Character.LinkedTo[0]->GetOwningNode());
	ASSERT_NE(Between, nullptr);
	EXPECT_TRUE(Between->IsNodePure());
	EXPECT_EQ(Between->TargetType.Get(), Character.PinType.PinSubCategoryObject.Get());
	EXPECT_EQ(Between->GetCastResultPin()->LinkedTo[0], &Character);

	UEdGraphPin& ClassOutput = MakePin(EGPD_Output, "class Actor");
	UEdGraphPin& ClassInput = MakePin(EGPD_Input, "class Character");
	ASSERT_TRUE(Schema().TryCreateConnection(&ClassOutput, &ClassInput));
	EXPECT_EQ(DescribeBetween(ClassOutput, ClassInput), "K2Node_ClassDynamicCast");
	EXPECT_FALSE(Schema().TryCreateConnection(&MakePin(EGPD_Output, "object Actor"), &MakePin(EGPD_Input, "object SceneComponent")));
}

TEST_F(FSchemaConversionTest, CallOnAnActorGoesToTheComponentThatHasTheFunction)
{
	UK2Node_CallFunction* const Call = FSchemaFixture::Call(TEXT("/Script/Engine.SceneComponent"), TEXT("K2_SetRelativeLocation"));
	UEdGraphPin& Actor = MakePin(EGPD_Output, "object Actor");
	UEdGraphPin* const Target = Call->FindPinChecked(UEdGraphSchema_K2::PN_Self);
	ASSERT_EQ(Schema().CanCreateConnection(&Actor, Target).Response, CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE);
	ASSERT_TRUE(Schema().TryCreateConnection(&Actor, Target));
	EXPECT_EQ(DescribeBetween(Actor, *Target), "K2Node_VariableGet");
	EXPECT_EQ(Target->LinkedTo[0]->PinName, FName(TEXT("RootComponent")));
	// What has no such component is refused as it always was.
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "object SoundBase"), Target).Response, CONNECT_RESPONSE_DISALLOW);
}

TEST_F(FSchemaConversionTest, ConversionStandsBetweenAndTakesTheFormerLinksPlace)
{
	UEdGraphPin& Integer = MakePin(EGPD_Output, "int");
	UEdGraphPin& Former = MakePin(EGPD_Output, "string");
	UEdGraphPin& Text = MakePin(EGPD_Input, "string");
	Integer.GetOwningNode()->NodePosX = 100;
	Integer.GetOwningNode()->NodePosY = -40;
	Text.GetOwningNode()->NodePosX = 500;
	Text.GetOwningNode()->NodePosY = 80;
	ASSERT_TRUE(Schema().TryCreateConnection(&Former, &Text));
	ASSERT_TRUE(Schema().TryCreateConnection(&Integer, &Text));
	EXPECT_EQ(DescribeBetween(Integer, Text), "Conv_IntToString");
	EXPECT_EQ(Former.LinkedTo.Num(), 0);
	const UEdGraphNode* const Node = Text.LinkedTo[0]->GetOwningNode();
	EXPECT_EQ(Node->NodePosX, 300);
	EXPECT_EQ(Node->NodePosY, 20);
	EXPECT_TRUE(Node->NodeGuid.IsValid());
	EXPECT_TRUE(Node->HasAnyFlags(RF_Transactional));
}

TEST_F(FSchemaConversionTest, OperatorWidensToItsNewOperand)
{
	const UFunction* const Function =
		FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetMathLibrary"))->FindFunctionByName(TEXT("Add_IntInt"));
	UK2Node_PromotableOperator* const Add = FSchemaFixture::Add<UK2Node_PromotableOperator>([Function](UK2Node_PromotableOperator& Node)
		{ Node.SetFromFunction(Function); });
	ASSERT_TRUE(Schema().TryCreateConnection(&MakePin(EGPD_Output, "int"), Add->FindPinChecked(TEXT("A"))));
	ASSERT_EQ(Add->FindPinChecked(TEXT("B"))->PinType.PinCategory, UEdGraphSchema_K2::PC_Int);
	UEdGraphPin& Number = MakePin(EGPD_Output, "real double");
	const FPinConnectionResponse Response = Schema().CanCreateConnection(&Number, Add->FindPinChecked(TEXT("B")));
	EXPECT_EQ(Response.Response, CONNECT_RESPONSE_MAKE_WITH_PROMOTION);
	EXPECT_EQ(Response.Message.ToString(), FString(TEXT("Promote Integer to Float (double-precision).")));
	ASSERT_TRUE(Schema().TryCreateConnection(&Number, Add->FindPinChecked(TEXT("B"))));
	EXPECT_EQ(Number.LinkedTo[0], Add->FindPin(TEXT("B")));
	EXPECT_EQ(Add->GetFunctionName(), FName(TEXT("Add_DoubleDouble")));
	// A value that widens to what the operator has needs no promotion of the operator.
	EXPECT_EQ(Schema().CanCreateConnection(&MakePin(EGPD_Output, "int"), Add->FindPinChecked(TEXT("B"))).Response,
		CONNECT_RESPONSE_BREAK_OTHERS_B);
}

TEST_F(FSchemaConversionTest, SelfIsOfTheBlueprintsClass)
{
	UEdGraphPin& Self = MakePin(EGPD_Output, "object self");
	EXPECT_EQ(Schema().CanCreateConnection(&Self, &MakePin(EGPD_Input, "object Actor")).Response, CONNECT_RESPONSE_MAKE);
	EXPECT_EQ(Schema().CanCreateConnection(&Self, &MakePin(EGPD_Input, "object Pawn")).Response, CONNECT_RESPONSE_DISALLOW);
	FEdGraphPinType Own = Self.PinType;
	Own.PinSubCategory = NAME_None;
	Own.PinSubCategoryObject = Blueprint->GeneratedClass.Get();
	EXPECT_EQ(Schema().CanCreateConnection(&Self, &MakePin(EGPD_Input, Own)).Response, CONNECT_RESPONSE_MAKE);
}
