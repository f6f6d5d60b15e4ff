#include "PropertyTestTypes.h"

#include <gtest/gtest.h>

namespace
{
struct FTextCase
{
	const char* Name;
	FPropertyDescription (*Describe)();
	const TCHAR* Text;
	/** What is written after reading Text; null when it is the same. */
	const TCHAR* Written;
};

FPropertyDescription DescribeItem()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), GetItemStruct());
}

template <EPropertyGenKind Kind>
FPropertyDescription OfKind()
{
	return Describe(Kind);
}

FPropertyDescription OfEnum()
{
	return Describe(EPropertyGenKind::Enum, TEXT("Value"), GetDoorEnum());
}

FPropertyDescription OfByteEnum()
{
	return Describe(EPropertyGenKind::Byte, TEXT("Value"), GetDoorEnum());
}

FPropertyDescription OfObject()
{
	return Describe(EPropertyGenKind::Object, TEXT("Value"), UObject::StaticClass());
}

FPropertyDescription OfClass()
{
	return Describe(EPropertyGenKind::Class);
}

FPropertyDescription OfStrings()
{
	return DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Str));
}

FPropertyDescription OfItems()
{
	return DescribeContainer(EPropertyGenKind::Array, DescribeItem());
}

FPropertyDescription OfNameSet()
{
	return DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Name));
}

FPropertyDescription OfMap()
{
	return DescribeMap(Describe(EPropertyGenKind::Str), Describe(EPropertyGenKind::Int));
}

FPropertyDescription OfOptional()
{
	return DescribeContainer(EPropertyGenKind::Optional, Describe(EPropertyGenKind::Str));
}

const FTextCase TextCases[] = {
	{"NativeBool", &OfKind<EPropertyGenKind::Bool>, TEXT("True"), nullptr},
	{"BoolFromNumber", &OfKind<EPropertyGenKind::Bool>, TEXT("1"), TEXT("True")},
	{"BoolFromLowerCase", &OfKind<EPropertyGenKind::Bool>, TEXT("false"), TEXT("False")},
	{"Int8", &OfKind<EPropertyGenKind::Int8>, TEXT("-128"), nullptr},
	{"Int16", &OfKind<EPropertyGenKind::Int16>, TEXT("-32768"), nullptr},
	{"Int", &OfKind<EPropertyGenKind::Int>, TEXT("-2147483648"), nullptr},
	{"Int64", &OfKind<EPropertyGenKind::Int64>, TEXT("-9223372036854775808"), nullptr},
	{"UInt16", &OfKind<EPropertyGenKind::UInt16>, TEXT("65535"), nullptr},
	{"UInt32", &OfKind<EPropertyGenKind::UInt32>, TEXT("4294967295"), nullptr},
	{"UInt64", &OfKind<EPropertyGenKind::UInt64>, TEXT("18446744073709551615"), nullptr},
	{"HexInt", &OfKind<EPropertyGenKind::Int>, TEXT("0x1F"), TEXT("31")},
	{"Byte", &OfKind<EPropertyGenKind::Byte>, TEXT("255"), nullptr},
	{"Float", &OfKind<EPropertyGenKind::Float>, TEXT("1.500000"), nullptr},
	{"DoubleFromExponent", &OfKind<EPropertyGenKind::Double>, TEXT("-2.5e2"), TEXT("-250.000000")},
	{"EnumShort", &OfEnum, TEXT("Locked"), nullptr},
	{"EnumQualified", &OfEnum, TEXT("EDoor::Closed"), TEXT("Closed")},
	{"ByteEnum", &OfByteEnum, TEXT("Closed"), nullptr},
	{"Name", &OfKind<EPropertyGenKind::Name>, TEXT("Some_Name_7"), nullptr},
	{"Str", &OfKind<EPropertyGenKind::Str>, TEXT("a \"quoted\" word, (open"), nullptr},
	{"Text", &OfKind<EPropertyGenKind::Text>, TEXT("NSLOCTEXT(\"ns\", \"key\", \"source \\\"text\\\"\")"), nullptr},
	{"NullObject", &OfObject, TEXT("None"), nullptr},
	{"ObjectQuotedWhole", &OfObject, TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\""), nullptr},
	{"ObjectQuotedInside", &OfObject, TEXT("/Script/CoreUObject.Class'\"/Script/CoreUObject.Object\"'"),
		TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\"")},
	{"ObjectShortClass", &OfObject, TEXT("Class'/Script/CoreUObject.Object'"),
		TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\"")},
	{"ObjectPlainPath", &OfObject, TEXT("/Script/CoreUObject.Object"), TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\"")},
	{"Class", &OfClass, TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Package'\""), nullptr},
	{"MissingAsset", &OfObject, TEXT("\"/Script/Engine.Texture2D'/Game/Nowhere/T_Missing.T_Missing'\""), nullptr},
	{"Struct", &DescribeItem, TEXT("(Name=\"a\\\"b\",Count=3,Ratio=0.250000,Note=\"n\")"), nullptr},
	{"StructWithBlanks", &DescribeItem, TEXT("( Name = \"a\" , Count = 3 )"), TEXT("(Name=\"a\",Count=3,Ratio=0.000000,Note=\"\")")},
	{"Array", &OfStrings, TEXT("(\"a\",\"b, c\",\"\")"), nullptr},
	{"EmptyArray", &OfStrings, TEXT(""), nullptr},
	{"ArrayOfStructsOmitsDefaults", &OfItems, TEXT("((Count=3),(Name=\"x\"),())"), nullptr},
	{"Set", &OfNameSet, TEXT("(\"a\",\"b\")"), nullptr},
	{"Map", &OfMap, TEXT("((\"k\", 1),(\"l\", 2))"), nullptr},
	{"MapWithoutBlank", &OfMap, TEXT("((\"k\",1),(\"l\",2))"), TEXT("((\"k\", 1),(\"l\", 2))")},
	{"EmptyMap", &OfMap, TEXT("()"), nullptr},
	{"UnsetOptional", &OfOptional, TEXT("()"), nullptr},
	{"SetOptional", &OfOptional, TEXT("(\"x\")"), nullptr},
};

class FPropertyText : public testing::TestWithParam<FTextCase>
{
};

TEST_P(FPropertyText, ReadsAndWrites)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	FTestValue Value(GetParam().Describe());
	ASSERT_TRUE(Value.Import(GetParam().Text)) << TCHAR_TO_UTF8(*Value.Errors.Text);
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Value.Export())),
		std::string(TCHAR_TO_UTF8(GetParam().Written ? GetParam().Written : GetParam().Text)));
}

INSTANTIATE_TEST_SUITE_P(Kinds, FPropertyText, testing::ValuesIn(TextCases), [](const testing::TestParamInfo<FTextCase>& Info)
	{ return std::string(Info.param.Name); });

struct FRefusedCase
{
	const char* Name;
	FPropertyDescription (*Describe)();
	const TCHAR* Text;
};

const FRefusedCase RefusedCases[] = {
	{"WordAsNumber", &OfKind<EPropertyGenKind::Int>, TEXT("many")},
	{"NothingAsNumber", &OfKind<EPropertyGenKind::Float>, TEXT("")},
	{"WordAsBool", &OfKind<EPropertyGenKind::Bool>, TEXT("maybe")},
	{"UnknownEnumerator", &OfEnum, TEXT("Ajar")},
	{"StructWithoutParenthesis", &DescribeItem, TEXT("Name=\"a\"")},
	{"StructCutOff", &DescribeItem, TEXT("(Name=\"a\"")},
	{"StructBadMember", &DescribeItem, TEXT("(Count=many)")},
	{"ArrayCutOff", &OfStrings, TEXT("(\"a\",\"b\"")},
	{"ArrayOpenQuote", &OfStrings, TEXT("(\"a")},
	{"MapKeyWithoutValue", &OfMap, TEXT("((\"k\"))")},
	{"ObjectOpenQuote", &OfObject, TEXT("Class'/Script/CoreUObject.Object")},
};

class FPropertyTextRefused : public testing::TestWithParam<FRefusedCase>
{
};

TEST_P(FPropertyTextRefused, SaysWhy)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	FTestValue Value(GetParam().Describe());
	EXPECT_FALSE(Value.Import(GetParam().Text));
	EXPECT_FALSE(Value.Errors.Text.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, FPropertyTextRefused, testing::ValuesIn(RefusedCases), [](const testing::TestParamInfo<FRefusedCase>& Info)
	{ return std::string(Info.param.Name); });

TEST(PropertyText, UnknownMembersAreSkippedWithAWarning)
{
	FTestValue Value(DescribeItem());
	ASSERT_TRUE(Value.Import(TEXT("(Gone=(A=1,B=\")\"),Count=5,AlsoGone=Class'\"/Script/X.Y\"')")));
	EXPECT_TRUE(Value.Errors.Text.Contains(TEXT("Unknown property in Item: Gone")));
	EXPECT_TRUE(Value.Errors.Text.Contains(TEXT("AlsoGone")));
	EXPECT_TRUE(Value.Export().Contains(TEXT("Count=5")));
}

TEST(PropertyText, StructsWriteOnlyMembersThatDifferFromTheDefault)
{
	FTestValue Default(DescribeItem());
	FTestValue Value(DescribeItem());
	ASSERT_TRUE(Default.Import(TEXT("(Name=\"a\",Count=1)")));
	ASSERT_TRUE(Value.Import(TEXT("(Name=\"a\",Count=2)")));
	FString Text;
	Value.Property->ExportTextItem_Direct(Text, Value.Memory, Default.Memory, nullptr, PPF_None);
	EXPECT_EQ(Text, TEXT("(Count=2)"));
}

TEST(PropertyText, StaticArrayElementsAreNamedByIndex)
{
	FPropertyDescription Slots = Describe(EPropertyGenKind::Int, TEXT("Slots"));
	Slots.ArrayDim = 3;
	UScriptStruct* const Struct = MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("Holder"), {Slots});
	FTestValue Value(Describe(EPropertyGenKind::Struct, TEXT("Value"), Struct));
	ASSERT_TRUE(Value.Import(TEXT("(Slots(0)=7,Slots[2]=9)")));
	EXPECT_EQ(Value.Export(), TEXT("(Slots[0]=7,Slots[1]=0,Slots[2]=9)"));
	ASSERT_TRUE(Value.Import(TEXT("(Slots[3]=1)")));
	EXPECT_TRUE(Value.Errors.Text.Contains(TEXT("Out of bound array")));
}

TEST(PropertyText, MemberNamesMayHoldBlanksAndBrackets)
{
	UScriptStruct* const Struct = MakeTestStruct(
		MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("Odd"), {Describe(EPropertyGenKind::Int, TEXT("Speed (cm)"))});
	FTestValue Value(Describe(EPropertyGenKind::Struct, TEXT("Value"), Struct));
	ASSERT_TRUE(Value.Import(TEXT("(Speed (cm)=12)")));
	EXPECT_EQ(Value.Export(), TEXT("(Speed (cm)=12)"));
}
}
