#include "ObjectTestSupport.h"
#include "PropertyTestTypes.h"

#include "UObject/ScriptHeaderLoader.h"
#include "UObject/UnrealType.h"

#include <cstring>

using namespace UE::CoreUObject;

namespace
{
FScriptHeaderReport LoadText(const std::string& Text)
{
	FScriptHeaderSource Source;
	Source.Path = TEXT("Defaults.h");
	Source.Text.Append(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
	return LoadScriptHeaderSources({Source});
}

struct FInitialiserCase
{
	const char* Declaration;
	/** Of the class's default object. */
	const TCHAR* Value;
};

const FInitialiserCase InitialiserCases[] = {
	{"int32 Value = 7", TEXT("7")},
	{"int32 Value{-3}", TEXT("-3")},
	{"int32 Value = 0x1F", TEXT("31")},
	{"int32 Value = 1'000u", TEXT("1000")},
	{"int32 Value = INDEX_NONE", TEXT("-1")},
	{"int32 Value = MAX_int32", TEXT("2147483647")},
	{"int32 Value = 1 << 4", TEXT("16")},
	{"uint64 Value = MAX_uint64", TEXT("18446744073709551615")},
	{"int64 Value = -9223372036854775807", TEXT("-9223372036854775807")},
	{"uint8 Value = 2 * (3 + 4)", TEXT("14")},
	{"float Value = 5.f", TEXT("5.000000")},
	{"float Value = -.5f", TEXT("-0.500000")},
	{"float Value = 60.f * 60.f", TEXT("3600.000000")},
	{"double Value = 1e3", TEXT("1000.000000")},
	{"double Value = UE_PI / 2", TEXT("1.570796")},
	{"double Value = 1.0 / 4", TEXT("0.250000")},
	{"int32 Value = 12 / 4", TEXT("3")},
	{"bool Value = true", TEXT("True")},
	{"bool Value = false", TEXT("False")},
	{"uint8 Value : 1 = true", TEXT("True")},
	{"FName Value = NAME_None", TEXT("None")},
	{"FName Value = FName(TEXT(\"Root\"))", TEXT("Root")},
	{"FName Value = \"Root\"", TEXT("Root")},
	{"FString Value = TEXT(\"a \\\"b\\\" \\n\")", TEXT("a \"b\" \n")},
	{"FString Value = TEXT(\"a\") TEXT(\"b\")", TEXT("ab")},
	{"FString Value = FString()", TEXT("")},
	{"FText Value = NSLOCTEXT(\"n\", \"k\", \"t\")", TEXT("NSLOCTEXT(\"n\", \"k\", \"t\")")},
	{"FText Value = INVTEXT(\"t\")", TEXT("INVTEXT(\"t\")")},
	{"FText Value = FText::GetEmpty()", TEXT("")},
	{"EReflectedMood Value = EReflectedMood::Angry", TEXT("Angry")},
	{"EReflectedMood Value = EReflectedMood(1)", TEXT("Angry")},
	{"TEnumAsByte<EDefaultPlain> Value = PLAIN_B", TEXT("PLAIN_B")},
	{"TEnumAsByte<EDefaultPlain> Value{EDefaultPlain::PLAIN_B}", TEXT("PLAIN_B")},
	{"TObjectPtr<UObject> Value = nullptr", TEXT("None")},
	{"UObject* Value{}", TEXT("None")},
	{"TSubclassOf<UObject> Value = UReflectedPart::StaticClass()",
		TEXT("\"/Script/CoreUObject.Class'/Script/ReflectedTestTypes.ReflectedPart'\"")},
	{"FVector Value = FVector(1, 2.5f, -3)", TEXT("(X=1.000000,Y=2.500000,Z=-3.000000)")},
	{"FVector Value{4.0}", TEXT("(X=4.000000,Y=4.000000,Z=4.000000)")},
	{"FVector Value = FVector::ZeroVector", TEXT("(X=0.000000,Y=0.000000,Z=0.000000)")},
	{"FVector Value = FVector::UpVector", TEXT("(X=0.000000,Y=0.000000,Z=1.000000)")},
	{"FVector Value = FVector(ForceInit)", TEXT("(X=0.000000,Y=0.000000,Z=0.000000)")},
	{"FVector2D Value = FVector2D(1.f, 2.f)", TEXT("(X=1.000000,Y=2.000000)")},
	{"FRotator Value = {10, 20, 30}", TEXT("(Pitch=10.000000,Yaw=20.000000,Roll=30.000000)")},
	{"FLinearColor Value = FLinearColor(1, 0, 0.5)", TEXT("(R=1.000000,G=0.000000,B=0.500000,A=1.000000)")},
	{"FLinearColor Value = FLinearColor::White", TEXT("(R=1.000000,G=1.000000,B=1.000000,A=1.000000)")},
	{"FColor Value = FColor(1, 2, 3)", TEXT("(B=3,G=2,R=1,A=255)")},
	{"FTransform Value = FTransform::Identity",
		TEXT("(Rotation=(X=0.000000,Y=0.000000,Z=0.000000,W=1.000000),Translation=(X=0.000000,Y=0.000000,Z=0.000000),Scale3D=(X=1.000000,"
			 "Y=1.000000,Z=1.000000))")},
	{"TArray<int32> Value = {1, 2, 3}", TEXT("(1,2,3)")},
	{"TArray<FVector> Value = {FVector(1), {2, 3, 4}}", TEXT("((X=1.000000,Y=1.000000,Z=1.000000),(X=2.000000,Y=3.000000,Z=4.000000))")},
	{"TArray<FString> Value", TEXT("")},
	{"TSet<FName> Value = {\"a\", TEXT(\"b\")}", TEXT("(\"a\",\"b\")")},
	{"TMap<FName, float> Value = {{TEXT(\"a\"), 1.f}, {\"b\", 2}}", TEXT("((\"a\", 1.000000),(\"b\", 2.000000))")},
	{"FDefaultsInner Value", TEXT("(Count=4,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"inner\")")},
	{"FDefaultsInner Value = {9}", TEXT("(Count=9,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"inner\")")},
	{"FDefaultsInner Value = {.Label = TEXT(\"named\")}", TEXT("(Count=4,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"named\")")},
	{"FDefaultsInner Value = FDefaultsInner()", TEXT("(Count=4,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"inner\")")},
	{"FDefaultsOuter Value", TEXT("(Inner=(Count=4,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"inner\"),Ratio=0.250000)")},
};

constexpr const char* Shared =
	"UENUM()\nenum EDefaultPlain : int { PLAIN_A, PLAIN_B };\n"
	"USTRUCT()\nstruct FDefaultsOuter { GENERATED_BODY() UPROPERTY() FDefaultsInner Inner; UPROPERTY() float Ratio = 0.25f; };\n"
	"USTRUCT()\nstruct FDefaultsInner { GENERATED_BODY() UPROPERTY() int32 Count = 4; UPROPERTY() FVector Place = FVector::OneVector; "
	"UPROPERTY() FString Label = TEXT(\"inner\"); };\n";

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

FString GetValue(const UObject* Object, const TCHAR* Name)
{
	FString Text;
	const FProperty* const Property = FindFProperty<FProperty>(Object->GetClass(), Name);
	if (Property)
	{
		Property->ExportTextItem_InContainer(Text, Object, nullptr, nullptr, PPF_None);
	}
	return Text;
}
}

class FScriptHeaderDefaults : public FObjectTest, public testing::WithParamInterface<FInitialiserCase>
{
};

TEST_P(FScriptHeaderDefaults, InitialiserIsTheDefaultObjectsValue)
{
	static int32 Number = 0;
	const std::string Suffix = std::to_string(++Number);
	const FScriptHeaderReport Report = LoadText("// Package: /Script/Defaults" + Suffix + "\n" + Shared +
		"UCLASS()\nclass UDefaultsHolder : public UObject { GENERATED_BODY() public: UPROPERTY() " + GetParam().Declaration + "; };\n");
	ASSERT_EQ(Report.Errors, TArray<FString>());
	const UClass* const Class = FindObject<UClass>(nullptr, UTF8_TO_TCHAR(("/Script/Defaults" + Suffix + ".DefaultsHolder").c_str()));
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(ToStd(GetValue(Class->GetDefaultObject(), TEXT("Value"))), ToStd(GetParam().Value));
	EXPECT_EQ(ToStd(GetValue(NewObject<UObject>(Package, Class), TEXT("Value"))), ToStd(GetParam().Value));
}

INSTANTIATE_TEST_SUITE_P(Initialisers, FScriptHeaderDefaults, testing::ValuesIn(InitialiserCases));

using FScriptHeaderInitialisers = FObjectTest;

TEST_F(FScriptHeaderInitialisers, WhatIsNotUnderstoodIsReportedWithItsPlaceAndZero)
{
	const char* const Refused[] = {"int32 Value = ComputeIt()", "int32 Value = 3000000000", "int32 Value = 1.5f", "uint8 Value = -1",
		"int32 Value = 1 / 0", "float Value = 1 / 2", "bool Value = maybe", "EReflectedMood Value = EReflectedMood::Gone",
		"FVector Value = FVector(1, 2)", "FVector Value = FRotator(1, 2, 3)", "FVector Value = FVector::Sideways",
		"TArray<int32> Value = {1, x}", "UObject* Value = MakeIt()", "FName Value = GetName()", "FText Value = LOCTEXT(\"k\")",
		"TSubclassOf<UObject> Value = UNoSuchClass::StaticClass()", "int32 Value = ((((1"};
	int32 Number = 0;
	for (const char* const Declaration : Refused)
	{
		const std::string Path = "/Script/RefusedDefaults" + std::to_string(++Number);
		const FScriptHeaderReport Report = LoadText("// Package: " + Path +
			"\nUCLASS()\nclass URefusedHolder : public UObject\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\t" + Declaration + ";\n};\n");
		ASSERT_EQ(Report.Errors.Num(), 1) << Declaration;
		EXPECT_TRUE(Report.Errors[0].StartsWith(TEXT("Defaults.h:"))) << ToStd(Report.Errors[0]);
		const UClass* const Class = FindObject<UClass>(nullptr, UTF8_TO_TCHAR((Path + ".RefusedHolder").c_str()));
		const FProperty* const Property = Class ? FindFProperty<FProperty>(Class, TEXT("Value")) : nullptr;
		if (Property)
		{
			EXPECT_TRUE(Property->Identical_InContainer(Class->GetDefaultObject(), nullptr)) << Declaration;
			EXPECT_TRUE(Report.Errors[0].StartsWith(TEXT("Defaults.h:7:"))) << ToStd(Report.Errors[0]);
		}
	}
}

TEST_F(FScriptHeaderInitialisers, ChildClassesInheritAndOverride)
{
	const FScriptHeaderReport Report =
		LoadText("// Package: /Script/InheritedDefaults\n"
				 "UCLASS()\nclass UDefaultsChild : public UDefaultsParent { GENERATED_BODY() public: UPROPERTY() int32 Own = 2; };\n"
				 "UCLASS()\nclass UDefaultsParent : public UReflectedThing { GENERATED_BODY() public: UPROPERTY() int32 Inherited = 3; "
				 "UPROPERTY() int32 Slots[3] = {1, 2}; };\n");
	ASSERT_EQ(Report.Errors, TArray<FString>());
	const UClass* const Child = FindObject<UClass>(nullptr, TEXT("/Script/InheritedDefaults.DefaultsChild"));
	const UObject* const Instance = NewObject<UObject>(Package, Child);
	EXPECT_EQ(GetValue(Instance, TEXT("Inherited")), TEXT("3"));
	EXPECT_EQ(GetValue(Instance, TEXT("Own")), TEXT("2"));
	EXPECT_EQ(GetValue(Instance, TEXT("Number")), TEXT("7"));
	const int32* const Slots = FindFProperty<FProperty>(Child, TEXT("Slots"))->ContainerPtrToValuePtr<int32>(Instance);
	EXPECT_EQ(Slots[0], 1);
	EXPECT_EQ(Slots[1], 2);
	EXPECT_EQ(Slots[2], 0);
}

TEST_F(FScriptHeaderInitialisers, StructsInContainersStartWithTheirDefaults)
{
	const FScriptHeaderReport Report = LoadText(std::string("// Package: /Script/ContainedDefaults\n") + Shared);
	ASSERT_EQ(Report.Errors, TArray<FString>());
	UScriptStruct* const Inner = FindObject<UScriptStruct>(nullptr, TEXT("/Script/ContainedDefaults.DefaultsInner"));
	ASSERT_NE(Inner, nullptr);
	FTestValue Value(DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Struct, TEXT("Value"), Inner)));
	ASSERT_TRUE(Value.Import(TEXT("((),(Count=5))")));
	EXPECT_EQ(ToStd(Value.Export()), "((),(Count=5))");
	EXPECT_EQ(ToStd(Value.Export(PPF_ExternalEditor)),
		"((Count=4,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label=\"inner\"),(Count=5,Place=(X=1.000000,Y=1.000000,Z=1.000000),Label="
		"\"inner\"))");
}
