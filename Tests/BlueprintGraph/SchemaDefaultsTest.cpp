#include "SchemaFixture.h"

#include "K2Node_CustomEvent.h"

namespace
{
/** What a pin of the type says to a default; nothing where it takes it. */
struct FDefaultCase
{
	const char* Type;
	const char* Value;
	const char* Complaint;
};

const FDefaultCase DefaultCases[] = {
	{"bool", "true", ""},
	{"bool", "False", ""},
	{"bool", "", ""},
	{"bool", "2", "Boolean pins must be 'true' or 'false'"},
	{"byte", "0", ""},
	{"byte", "255", ""},
	{"byte", "256", "Expected a value between 0 and 255 for a byte property"},
	{"byte", "-1", "Expected a value between 0 and 255 for a byte property"},
	{"byte", "one", "Expected a valid unsigned number for a byte property"},
	{"byte", "1.5", "Expected a valid unsigned number for a byte property"},
	{"byte ECollisionChannel", "ECC_Pawn", ""},
	{"byte ECollisionChannel", "ECC_Nothing", "'ECC_Nothing' is not a valid enumerant of '<ECollisionChannel>'"},
	{"byte ECollisionChannel", "(INVALID)", "'(INVALID)' is not a valid enumerant of '<ECollisionChannel>'"},
	{"byte ECollisionChannel", "1", "'1' is not a valid enumerant of '<ECollisionChannel>'"},
	{"int", "-2147483648", ""},
	{"int", "2147483647", ""},
	{"int", "2147483648", "Expected a value between -2147483648 and 2147483647 for an integer property"},
	{"int", "0x10", ""},
	{"int", "1.0", "Expected a valid number for an integer property"},
	{"int", "99999999999999999999", "Expected a valid number for an integer property"},
	{"int", "1 2", "Expected a valid number for an integer property"},
	{"int64", "9223372036854775807", ""},
	{"int64", "9223372036854775808", "Expected a valid number for an integer64 property"},
	{"real double", "1", ""},
	{"real double", "-0.5", ""},
	{"real double", "1e10", ""},
	{"real double", "1,5", "Expected a valid number for a double property"},
	{"real double", "fast", "Expected a valid number for a double property"},
	{"real float", "1.5.2", "Expected a valid number for a float property"},
	{"name", "anything at all", ""},
	{"string", "\"(= anything", ""},
	{"struct Vector", "1, 2, 3", ""},
	{"struct Vector", "1.000000,2.000000,3.000000", ""},
	{"struct Vector", "(X=1,Y=2,Z=3)", ""},
	{"struct Vector", "1, 2", "Invalid value for an FVector"},
	{"struct Vector", "1, 2, x", "Invalid value for an FVector"},
	{"struct Vector", "(X=1,Y=2,Z=3", "Invalid value for an FVector"},
	{"struct Vector", "(X=1,Y=2,Z=3) and more", "Invalid value for an FVector"},
	{"struct Rotator", "0, 90, 0", ""},
	{"struct Rotator", "north", "Invalid value for an FRotator"},
	{"struct LinearColor", "(R=0.0,G=0.5,B=1.0,A=1.0)", ""},
	{"struct LinearColor", "red", "Invalid value for an FLinearColor"},
	{"struct Vector2D", "(X=1.0,Y=2.0)", ""},
	{"struct IntPoint", "1", "Invalid value for Int Point Structure: '1'"},
	{"softobject Actor", "/Game/Maps/Town.Town:PersistentLevel.Door", ""},
	{"softobject Actor", "None", ""},
	{"softobject Actor", "Door", "'Door' is no path of an asset (specified on pin Pin)"},
	{"softclass Actor", "/Script/Engine.Character", ""},
	{"softclass Character", "/Script/Engine.Actor", "/Script/Engine.Actor isn't a valid subclass of Character (specified on pin Pin)"},
	{"softclass Actor", "/Script/Engine.Default__Actor", "Literal on pin Pin is not a class."},
	{"array of int", "(1,2)", ""},
	{"array of int", "1", "Literal values are not allowed for container pin Pin"},
	{"wildcard", "1", "Unsupported type Wildcard on pin Pin"},
	{"exec", "1", "Unsupported type Exec on pin Pin"},
};
}

class FSchemaDefaultsTest : public FSchemaFixture
{
};

TEST_F(FSchemaDefaultsTest, EachTypeTakesItsValuesAndSaysWhatIsWrongWithOthers)
{
	for (const FDefaultCase& Case : DefaultCases)
	{
		SCOPED_TRACE(std::string(Case.Type) + " = " + Case.Value);
		UEdGraphPin& Pin = MakePin(EGPD_Input, Case.Type);
		Pin.DefaultValue = TEXT("before");
		const FString Value(UTF8_TO_TCHAR(Case.Value));
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Schema().IsPinDefaultValid(&Pin, Value, nullptr, FText()))), Case.Complaint);
		Schema().TrySetDefaultValue(Pin, Value);
		const bool bTaken = std::string(Case.Complaint).empty();
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Pin.DefaultValue)), bTaken ? Case.Value : "before");
	}
}

TEST_F(FSchemaDefaultsTest, EntriesOfEnumerationsAreTakenByAnyOfTheirNames)
{
	UEdGraphPin& Pin = MakePin(EGPD_Input, "byte ECollisionChannel");
	const UEnum* const Enum = Cast<UEnum>(Pin.PinType.PinSubCategoryObject.Get());
	const int32 Index = Enum->GetIndexByNameString(TEXT("ECC_WorldDynamic"));
	for (const FString& Name : {FString(TEXT("ECC_WorldDynamic")), FString(TEXT("ECollisionChannel::ECC_WorldDynamic")),
			 Enum->GetDisplayNameTextByIndex(Index).ToString()})
	{
		Pin.DefaultValue.Empty();
		Schema().TrySetDefaultValue(Pin, Name);
		EXPECT_EQ(Pin.DefaultValue, FString(TEXT("ECC_WorldDynamic"))) << TCHAR_TO_UTF8(*Name);
	}
}

TEST_F(FSchemaDefaultsTest, ObjectsAndClassesMustBeWhatThePinAsksFor)
{
	UClass* const Character = FindFirstObject<UClass>(TEXT("Character"), EFindFirstObjectOptions::NativeFirst);
	struct FCase
	{
		const char* Type;
		UObject* Object;
		const char* Complaint;
	};
	const FCase Cases[] = {
		{"class Actor", Character, ""},
		{"class Character", AActor::StaticClass(), "/Script/Engine.Actor isn't a valid subclass of Character (specified on pin Pin)"},
		{"class Actor", Blueprint->GeneratedClass, ""},
		{"class Actor", Blueprint, "Literal on pin Pin is not a class."},
		{"object Blueprint", Blueprint, ""},
		{"object Actor", AActor::StaticClass()->GetDefaultObject(), ""},
		{"object Character", AActor::StaticClass()->GetDefaultObject(),
			"/Script/Engine.Default__Actor isn't a Character (specified on pin Pin)"},
		{"object Actor", nullptr, ""},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Type);
		UEdGraphPin& Pin = MakePin(EGPD_Input, Case.Type);
		EXPECT_EQ(Schema().IsPinDefaultValid(&Pin, FString(), Case.Object, FText()), FString(UTF8_TO_TCHAR(Case.Complaint)));
		Schema().TrySetDefaultObject(Pin, Case.Object);
		EXPECT_EQ(Pin.DefaultObject.Get(), std::string(Case.Complaint).empty() ? Case.Object : nullptr);
	}
}

TEST_F(FSchemaDefaultsTest, PathOfAnObjectIsItsDefaultAndABadOneLeavesThePinAlone)
{
	UEdGraphPin& Pin = MakePin(EGPD_Input, "class Actor");
	Schema().TrySetDefaultValue(Pin, TEXT("/Script/Engine.Character"));
	ASSERT_NE(Pin.DefaultObject.Get(), nullptr);
	EXPECT_EQ(Pin.DefaultObject->GetName(), FString(TEXT("Character")));
	EXPECT_TRUE(Pin.DefaultValue.IsEmpty());
	UObject* const Before = Pin.DefaultObject;
	for (const TCHAR* const Bad : {TEXT("/Game/Nothing.Nothing_C"), TEXT("Character"), TEXT("/Script/CoreUObject.Object")})
	{
		Schema().TrySetDefaultValue(Pin, Bad);
		EXPECT_EQ(Pin.DefaultObject.Get(), Before);
	}
	Schema().TrySetDefaultValue(Pin, TEXT("None"));
	EXPECT_EQ(Pin.DefaultObject.Get(), nullptr);
}

TEST_F(FSchemaDefaultsTest, TextPinsKeepTheKeyOfALocalizedText)
{
	UEdGraphPin& Pin = MakePin(EGPD_Input, "text");
	Schema().TrySetDefaultValue(Pin, TEXT("NSLOCTEXT(\"Door\", \"Open\", \"It opens\")"));
	EXPECT_EQ(Pin.DefaultTextValue.ToString(), FString(TEXT("It opens")));
	EXPECT_TRUE(Pin.DefaultValue.IsEmpty());
	Schema().TrySetDefaultText(Pin, FText::FromString(TEXT("It shuts")));
	EXPECT_EQ(Pin.DefaultTextValue.ToString(), FString(TEXT("It shuts")));
	UEdGraphPin& Number = MakePin(EGPD_Input, "int");
	Number.DefaultValue = TEXT("5");
	Schema().TrySetDefaultObject(Number, Blueprint);
	EXPECT_EQ(Number.DefaultValue, FString(TEXT("5"))) << "a number holds no object";
	UEdGraphPin& Soft = MakePin(EGPD_Input, "softclass Actor");
	Schema().TrySetDefaultObject(Soft, AActor::StaticClass());
	EXPECT_EQ(Soft.DefaultValue, FString(TEXT("/Script/Engine.Actor"))) << "a soft reference is kept as a path";
	EXPECT_EQ(Soft.DefaultObject.Get(), nullptr);
}

TEST_F(FSchemaDefaultsTest, ParametersByReferenceTakeDefaultsWhereTheFunctionSaysSo)
{
	UK2Node_CallFunction* const Transform = Call(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("TransformLocation"));
	for (const UEdGraphPin* const Pin : Transform->Pins)
	{
		const UFunction* const Function = Transform->GetTargetFunction();
		TArray<FString> Names;
		UEdGraphSchema_K2::GetAutoEmitTermParameters(Function, Names);
		EXPECT_EQ(UEdGraphSchema_K2::IsAutoCreateRefTerm(Pin), Names.Contains(Pin->PinName.ToString()));
	}
	UFunction* const Function =
		FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetSystemLibrary"))->FindFunctionByName(TEXT("LineTraceSingle"));
	TArray<FString> Names;
	UEdGraphSchema_K2::GetAutoEmitTermParameters(Function, Names);
	EXPECT_TRUE(Names.Contains(TEXT("ActorsToIgnore")));
	const UK2Node_CallFunction* const Trace = Call(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("LineTraceSingle"));
	EXPECT_TRUE(UEdGraphSchema_K2::IsAutoCreateRefTerm(Trace->FindPinChecked(TEXT("ActorsToIgnore"))));
	EXPECT_FALSE(UEdGraphSchema_K2::IsAutoCreateRefTerm(Trace->FindPinChecked(TEXT("Start"))));
}

TEST_F(FSchemaDefaultsTest, PropertiesOfFunctionsBecomeThePinTypesOfTheirParameters)
{
	struct FCase
	{
		const TCHAR* Class;
		const TCHAR* Function;
		const TCHAR* Parameter;
		const char* Text;
	};
	const FCase Cases[] = {
		{TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("LineTraceSingle"), TEXT("Start"), "Vector"},
		{TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("LineTraceSingle"), TEXT("ActorsToIgnore"), "Array of Actor Object References"},
		{TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("LineTraceSingle"), TEXT("OutHit"), "Hit Result Structure"},
		{TEXT("/Script/Engine.GameplayStatics"), TEXT("GetAllActorsOfClass"), TEXT("ActorClass"), "Actor Class Reference"},
		{TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("LoadAsset"), TEXT("Asset"), "Soft Object Reference"},
		{TEXT("/Script/Engine.KismetMathLibrary"), TEXT("RandomFloat"), TEXT("ReturnValue"), "Float (double-precision)"},
		{TEXT("/Script/Engine.Actor"), TEXT("GetLocalRole"), TEXT("ReturnValue"), "ENet Role Enum"},
	};
	for (const FCase& Case : Cases)
	{
		const UFunction* const Function = FindObject<UClass>(nullptr, Case.Class)->FindFunctionByName(Case.Function);
		ASSERT_NE(Function, nullptr) << TCHAR_TO_UTF8(Case.Function);
		EXPECT_EQ(
			std::string(TCHAR_TO_UTF8(*UEdGraphSchema_K2::TypeToText(Function->FindPropertyByName(Case.Parameter)).ToString())), Case.Text);
	}
	EXPECT_EQ(
		UEdGraphSchema_K2::TypeToText(Type("map name object Actor")).ToString(), FString(TEXT("Map of Names to Actor Object References")));
	EXPECT_EQ(UEdGraphSchema_K2::TypeToText(Type("ref struct Vector")).ToString(), FString(TEXT("Vector (by ref)")));
	EXPECT_EQ(UEdGraphSchema_K2::TypeToText(Type("set of string")).ToString(), FString(TEXT("Set of Strings")));
}
