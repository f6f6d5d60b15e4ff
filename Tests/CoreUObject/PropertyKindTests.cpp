#include "PropertyTestTypes.h"
#include "ReflectedTestTypes.h"

#include "Serialization/DuplicatedObject.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
/** One kind of property and two different values of it, as the text between quotes and commas of a struct. */
struct FKindCase
{
	const char* Name;
	FPropertyDescription (*Describe)();
	const TCHAR* Text;
	const TCHAR* OtherText;
	/** Starts of texts that are no value of the kind. Null where any text is one. */
	const TCHAR* Garbage;
};

template <EPropertyGenKind Kind>
FPropertyDescription OfKind()
{
	return Describe(Kind);
}

template <EPropertyGenKind Kind>
FPropertyDescription OfObjects()
{
	return Describe(Kind, TEXT("Value"), UObject::StaticClass());
}

template <typename StructType>
FPropertyDescription OfStruct()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), TBaseStructure<StructType>::Get());
}

FPropertyDescription OfEnum()
{
	return Describe(EPropertyGenKind::Enum, TEXT("Value"), GetDoorEnum());
}

FPropertyDescription OfByteEnum()
{
	return Describe(EPropertyGenKind::Byte, TEXT("Value"), GetDoorEnum());
}

FPropertyDescription OfInterface()
{
	return Describe(EPropertyGenKind::Interface, TEXT("Value"), UReflectedSpeaker::StaticClass());
}

FPropertyDescription OfItem()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), GetItemStruct());
}

FPropertyDescription OfBits()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), FReflectedBits::StaticStruct());
}

FPropertyDescription OfNames()
{
	return DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Name));
}

FPropertyDescription OfTexts()
{
	return DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Text));
}

FPropertyDescription OfObjectList()
{
	return DescribeContainer(EPropertyGenKind::Array, OfObjects<EPropertyGenKind::Object>());
}

FPropertyDescription OfItems()
{
	return DescribeContainer(EPropertyGenKind::Array, OfItem());
}

FPropertyDescription OfNumberSet()
{
	return DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Int));
}

FPropertyDescription OfEnumSet()
{
	return DescribeContainer(EPropertyGenKind::Set, OfEnum());
}

FPropertyDescription OfNameMap()
{
	return DescribeMap(Describe(EPropertyGenKind::Name), Describe(EPropertyGenKind::Float));
}

FPropertyDescription OfStructMap()
{
	return DescribeMap(OfEnum(), OfItem());
}

FPropertyDescription OfOptional()
{
	return DescribeContainer(EPropertyGenKind::Optional, Describe(EPropertyGenKind::Str));
}

FPropertyDescription OfOptionalStruct()
{
	return DescribeContainer(EPropertyGenKind::Optional, OfItem());
}

#define OBJECT_TEXT TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\"")
#define OTHER_OBJECT_TEXT TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Package'\"")
#define THING_TEXT TEXT("\"/Script/ReflectedTestTypes.ReflectedThing'/Script/ReflectedTestTypes.Default__ReflectedThing'\"")
#define THING_PATH "/Script/ReflectedTestTypes.Default__ReflectedThing"

const FKindCase KindCases[] = {
	{"Bool", &OfKind<EPropertyGenKind::Bool>, TEXT("True"), TEXT("False"), TEXT("perhaps")},
	{"BitFields", &OfBits, TEXT("(bFirst=True,bSecond=False,bThird=True,Count=5)"),
		TEXT("(bFirst=False,bSecond=True,bThird=True,Count=5)"), TEXT("(bFirst=often)")},
	{"Byte", &OfKind<EPropertyGenKind::Byte>, TEXT("200"), TEXT("7"), TEXT("?")},
	{"ByteEnum", &OfByteEnum, TEXT("Locked"), TEXT("Open"), TEXT("Ajar")},
	{"Enum", &OfEnum, TEXT("Closed"), TEXT("Open"), TEXT("Ajar")},
	{"Int8", &OfKind<EPropertyGenKind::Int8>, TEXT("-128"), TEXT("127"), TEXT("*")},
	{"Int16", &OfKind<EPropertyGenKind::Int16>, TEXT("-32768"), TEXT("32767"), TEXT("*")},
	{"Int", &OfKind<EPropertyGenKind::Int>, TEXT("-2147483648"), TEXT("2147483647"), TEXT("many")},
	{"Int64", &OfKind<EPropertyGenKind::Int64>, TEXT("-9223372036854775808"), TEXT("9223372036854775807"), TEXT("many")},
	{"UInt16", &OfKind<EPropertyGenKind::UInt16>, TEXT("65535"), TEXT("1"), TEXT("many")},
	{"UInt32", &OfKind<EPropertyGenKind::UInt32>, TEXT("4294967295"), TEXT("1"), TEXT("many")},
	{"UInt64", &OfKind<EPropertyGenKind::UInt64>, TEXT("18446744073709551615"), TEXT("1"), TEXT("many")},
	{"Float", &OfKind<EPropertyGenKind::Float>, TEXT("-0.500000"), TEXT("1000000.000000"), TEXT("fast")},
	{"FloatInfinity", &OfKind<EPropertyGenKind::Float>, TEXT("inf"), TEXT("-inf"), TEXT("fast")},
	{"Double", &OfKind<EPropertyGenKind::Double>, TEXT("0.015625"), TEXT("-3.000000"), TEXT("fast")},
	{"Name", &OfKind<EPropertyGenKind::Name>, TEXT("\"A \\\"B\\\" 7\""), TEXT("\"C_2\""), TEXT("\"open")},
	{"String", &OfKind<EPropertyGenKind::Str>, TEXT("\"tab\\tline\\nquote\\\"back\\\\slash, (x=1) \u00e4\u9580\""), TEXT("\"b\""),
		TEXT("\"open")},
	{"Text", &OfKind<EPropertyGenKind::Text>, TEXT("NSLOCTEXT(\"n\", \"k\", \"a \\\"b\\\"\")"), TEXT("INVTEXT(\"c\")"),
		TEXT("NSLOCTEXT(\"n\",")},
	{"TextOfNumber", &OfKind<EPropertyGenKind::Text>, TEXT("LOCGEN_NUMBER_CUSTOM(5, SetAlwaysSign(true).SetUseGrouping(false), \"en\")"),
		TEXT("LOCGEN_NUMBER_CUSTOM(5, SetAlwaysSign(true), \"en\")"), TEXT("LOCGEN_NUMBER_CUSTOM(5, \"en\")")},
	{"TextOfTime", &OfKind<EPropertyGenKind::Text>, TEXT("LOCGEN_TIME_UTC(1709211909, EDateTimeStyle::Medium, \"\", \"\")"),
		TEXT("LOCGEN_TIME_UTC(1709211909, EDateTimeStyle::Default, \"\", \"\")"), TEXT("LOCGEN_TIME_UTC(1709211909, \"\")")},
	{"TextOfText", &OfKind<EPropertyGenKind::Text>, TEXT("LOCGEN_TOUPPER(NSLOCTEXT(\"n\", \"k\", \"1\"))"),
		TEXT("LOCGEN_TOLOWER(NSLOCTEXT(\"n\", \"k\", \"1\"))"), TEXT("LOCGEN_TOUPPER(NSLOCTEXT(\"n\", \"k\"))")},
	{"Object", &OfObjects<EPropertyGenKind::Object>, OBJECT_TEXT, OTHER_OBJECT_TEXT, TEXT("Class'/Script/Open")},
	{"WeakObject", &OfObjects<EPropertyGenKind::WeakObject>, OBJECT_TEXT, OTHER_OBJECT_TEXT, TEXT("Class'/Script/Open")},
	{"LazyObject", &OfObjects<EPropertyGenKind::LazyObject>, OBJECT_TEXT, OTHER_OBJECT_TEXT, TEXT("Class'/Script/Open")},
	{"SoftObject", &OfObjects<EPropertyGenKind::SoftObject>, TEXT("\"/Game/A/B.B:C\""), TEXT("\"/Game/A/D.D\""), TEXT("\"/Game/Open")},
	{"Class", &OfKind<EPropertyGenKind::Class>, OBJECT_TEXT, OTHER_OBJECT_TEXT, THING_TEXT},
	{"SoftClass", &OfKind<EPropertyGenKind::SoftClass>, TEXT("\"/Game/A/B.B_C\""), TEXT("\"/Game/A/D.D_C\""), TEXT("\"/Game/Open")},
	{"Interface", &OfInterface, THING_TEXT, TEXT("None"), OBJECT_TEXT},
	{"Delegate", &OfKind<EPropertyGenKind::Delegate>, TEXT(THING_PATH ".Add"), TEXT("(null).None"), TEXT(THING_PATH ".Subtract")},
	{"MulticastDelegate", &OfKind<EPropertyGenKind::MulticastInlineDelegate>, TEXT("(" THING_PATH ".Add)"), TEXT("()"),
		TEXT("(" THING_PATH ".Subtract)")},
	{"FieldPath", &OfKind<EPropertyGenKind::FieldPath>, TEXT("\"/Script/ReflectedTestTypes.ReflectedThing:Number\""), TEXT("\"None\""),
		TEXT("\"open")},
	{"Struct", &OfItem, TEXT("(Name=\"n\\\"\",Count=-1,Ratio=0.250000,Note=\"x y\")"),
		TEXT("(Name=\"\",Count=2,Ratio=0.000000,Note=\"\")"), TEXT("(Count=many)")},
	{"Vector", &OfStruct<FVector>, TEXT("(X=1.500000,Y=-2.000000,Z=0.000000)"), TEXT("(X=0.000000,Y=0.000000,Z=1.000000)"),
		TEXT("(X=east)")},
	{"Vector2D", &OfStruct<FVector2D>, TEXT("(X=1.500000,Y=-2.000000)"), TEXT("(X=0.000000,Y=1.000000)"), TEXT("(X=east)")},
	{"Rotator", &OfStruct<FRotator>, TEXT("(Pitch=10.000000,Yaw=20.000000,Roll=30.000000)"),
		TEXT("(Pitch=0.000000,Yaw=1.000000,Roll=0.000000)"), TEXT("(Yaw=up)")},
	{"Transform", &OfStruct<FTransform>,
		TEXT("(Rotation=(X=0.000000,Y=0.000000,Z=1.000000,W=0.000000),Translation=(X=1.000000,Y=2.000000,Z=3.000000),Scale3D=(X=2.000000,"
			 "Y=2.000000,Z=2.000000))"),
		TEXT("(Rotation=(X=0.000000,Y=0.000000,Z=0.000000,W=1.000000),Translation=(X=0.000000,Y=0.000000,Z=5.000000),Scale3D=(X=1.000000,"
			 "Y=1.000000,Z=1.000000))"),
		TEXT("(Rotation=up)")},
	{"LinearColor", &OfStruct<FLinearColor>, TEXT("(R=0.500000,G=0.250000,B=1.000000,A=1.000000)"),
		TEXT("(R=1.000000,G=0.000000,B=0.000000,A=0.000000)"), TEXT("(R=red)")},
	{"Color", &OfStruct<FColor>, TEXT("(B=3,G=2,R=1,A=255)"), TEXT("(B=0,G=0,R=9,A=0)"), TEXT("(R=red)")},
	{"IntPoint", &OfStruct<FIntPoint>, TEXT("(X=-3,Y=4)"), TEXT("(X=1,Y=1)"), TEXT("(X=east)")},
	{"Guid", &OfStruct<FGuid>, TEXT("0123456789ABCDEF0123456789ABCDEF"), TEXT("00000000000000000000000000000001"), TEXT("(A=x)")},
	{"DateTime", &OfStruct<FDateTime>, TEXT("2024.02.29-23.59.58"), TEXT("2000.01.01-00.00.00"), TEXT("tomorrow")},
	{"Timespan", &OfStruct<FTimespan>, TEXT("+00000001.02:03:04.500000100"), TEXT("-00000000.00:00:01.000000000"), TEXT("soon")},
	{"SoftObjectPath", &OfStruct<FSoftObjectPath>, TEXT("\"/Game/A/B.B:C\""), TEXT("\"/Game/A/D.D\""), TEXT("\"/Game/Open")},
	{"ArrayOfNames", &OfNames, TEXT("(\"a\",\"b, c\")"), TEXT("(\"\")"), TEXT("(\"a\"")},
	{"ArrayOfTexts", &OfTexts, TEXT("(INVTEXT(\"a\"),NSLOCTEXT(\"n\", \"k\", \"b)\"))"), TEXT("(INVTEXT(\"c\"))"), TEXT("(INVTEXT(\"a\"")},
	{"ArrayOfObjects", &OfObjectList, TEXT("(\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\",None)"), TEXT("(None)"),
		TEXT("(None")},
	{"ArrayOfStructs", &OfItems, TEXT("((Count=3),(Name=\"x\"),())"), TEXT("(())"), TEXT("((Count=3)")},
	{"Set", &OfNumberSet, TEXT("(3,1,2)"), TEXT("(3)"), TEXT("(3,x)")},
	{"SetOfEnums", &OfEnumSet, TEXT("(Locked,Open)"), TEXT("(Closed)"), TEXT("(Ajar)")},
	{"Map", &OfNameMap, TEXT("((\"k\", 1.000000),(\"l\", -2.500000))"), TEXT("((\"k\", 2.000000))"), TEXT("((\"k\"))")},
	{"MapToStructs", &OfStructMap, TEXT("((Locked, (Count=1)),(Open, ()))"), TEXT("((Open, (Count=2)))"), TEXT("((Open, (Count=x)))")},
	{"Optional", &OfOptional, TEXT("(\"x\")"), TEXT("(\"\")"), TEXT("(x\"")},
	{"OptionalStruct", &OfOptionalStruct, TEXT("((Name=\"\",Count=1,Ratio=0.000000,Note=\"\"))"),
		TEXT("((Name=\"\",Count=2,Ratio=0.000000,Note=\"\"))"), TEXT("((Count=1)")},
};

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

/** The value through an archive that keeps references as they are. */
void CopyThroughBytes(FTestValue& From, FTestValue& To)
{
	TArray<uint8> Bytes;
	FDuplicateDataWriter Writer(Bytes);
	From.Property->SerializeItem(Writer, From.Memory);
	FDuplicateDataReader Reader(Bytes, 0, [](UObject* Object)
		{ return Object; });
	To.Property->SerializeItem(Reader, To.Memory);
	EXPECT_FALSE(Reader.IsError());
	EXPECT_EQ(Reader.Tell(), Bytes.Num());
}

class FPropertyKind : public testing::TestWithParam<FKindCase>
{
protected:
	void SetUp() override { MakeTestPackage(TEXT("/Script/PropertyTests")); }
};

TEST_P(FPropertyKind, TextIsReadAndWrittenToTheLetter)
{
	FTestValue Value(GetParam().Describe());
	for (const TCHAR* const Text : {GetParam().Text, GetParam().OtherText, GetParam().Text})
	{
		ASSERT_TRUE(Value.Import(Text, PPF_Delimited)) << ToStd(Text) << " " << ToStd(Value.Errors.Text);
		EXPECT_EQ(ToStd(Value.Export(PPF_Delimited)), ToStd(Text));
		EXPECT_EQ(Value.Errors.Text, FString());
	}
	// What stands alone is read as it is written too.
	FTestValue Alone(GetParam().Describe());
	ASSERT_TRUE(Alone.Import(*Value.Export())) << ToStd(Value.Export());
	EXPECT_TRUE(Value.Property->Identical(Value.Memory, Alone.Memory));
}

TEST_P(FPropertyKind, ValuesAreComparedCopiedAndCleared)
{
	FTestValue Value(GetParam().Describe());
	FTestValue Other(GetParam().Describe());
	const FTestValue Fresh(GetParam().Describe());
	const FProperty& Property = *Value.Property;
	ASSERT_TRUE(Value.Import(GetParam().Text, PPF_Delimited) && Other.Import(GetParam().OtherText, PPF_Delimited));
	EXPECT_TRUE(Property.Identical(Value.Memory, Value.Memory));
	EXPECT_FALSE(Property.Identical(Value.Memory, Other.Memory));
	EXPECT_FALSE(Property.Identical(Other.Memory, Value.Memory));
	EXPECT_FALSE(Property.Identical(Value.Memory, Fresh.Memory));
	EXPECT_FALSE(Property.Identical(Value.Memory, nullptr));
	EXPECT_TRUE(Property.Identical(Fresh.Memory, nullptr));
	Property.CopySingleValue(Other.Memory, Value.Memory);
	EXPECT_TRUE(Property.Identical(Value.Memory, Other.Memory));
	if (Property.HasAnyPropertyFlags(CPF_HasGetValueTypeHash))
	{
		EXPECT_EQ(Property.GetValueTypeHash(Value.Memory), Property.GetValueTypeHash(Other.Memory));
	}
	Property.ClearValue(Value.Memory);
	EXPECT_TRUE(Property.Identical(Value.Memory, Fresh.Memory));
	EXPECT_EQ(ToStd(Other.Export(PPF_Delimited)), ToStd(GetParam().Text)) << "the copy shares something with its source";
}

TEST_P(FPropertyKind, BytesBringBackTheValueOverAnyOther)
{
	FTestValue Value(GetParam().Describe());
	ASSERT_TRUE(Value.Import(GetParam().Text, PPF_Delimited));
	FTestValue Fresh(GetParam().Describe());
	CopyThroughBytes(Value, Fresh);
	EXPECT_TRUE(Value.Property->Identical(Value.Memory, Fresh.Memory)) << ToStd(Fresh.Export());
	FTestValue Other(GetParam().Describe());
	ASSERT_TRUE(Other.Import(GetParam().OtherText, PPF_Delimited));
	CopyThroughBytes(Value, Other);
	EXPECT_TRUE(Value.Property->Identical(Value.Memory, Other.Memory)) << ToStd(Other.Export());
}

TEST_P(FPropertyKind, TextThatIsNoValueIsRefusedWithAReasonAndLeavesAValue)
{
	FTestValue Value(GetParam().Describe());
	ASSERT_TRUE(Value.Import(GetParam().Text, PPF_Delimited));
	EXPECT_FALSE(Value.Import(GetParam().Garbage, PPF_Delimited)) << ToStd(Value.Export());
	EXPECT_FALSE(Value.Errors.Text.IsEmpty());
	// Whatever was read of it, it can be written, copied and replaced.
	const FString Left = Value.Export(PPF_Delimited);
	FTestValue Copy(GetParam().Describe());
	Value.Property->CopySingleValue(Copy.Memory, Value.Memory);
	EXPECT_EQ(ToStd(Copy.Export(PPF_Delimited)), ToStd(Left));
	EXPECT_TRUE(Value.Import(GetParam().OtherText, PPF_Delimited));
}

TEST(Property, IntegerTakesWhatItCanHoldAlone)
{
	const struct
	{
		FPropertyDescription Description;
		/** The least and the greatest. */
		const TCHAR* Good[2];
		/** One less and one more, and the bits of more than the type has. */
		const TCHAR* Bad[3];
	} Cases[] = {
		{OfKind<EPropertyGenKind::Int8>(), {TEXT("-128"), TEXT("127")}, {TEXT("-129"), TEXT("128"), TEXT("0x100")}},
		{OfKind<EPropertyGenKind::Int>(), {TEXT("-2147483648"), TEXT("2147483647")},
			{TEXT("-2147483649"), TEXT("2147483648"), TEXT("0x100000000")}},
		{OfKind<EPropertyGenKind::UInt16>(), {TEXT("0"), TEXT("65535")}, {TEXT("-1"), TEXT("65536"), TEXT("0x10000")}},
		{OfKind<EPropertyGenKind::Int64>(), {TEXT("-9223372036854775808"), TEXT("9223372036854775807")},
			{TEXT("-9223372036854775809"), TEXT("9223372036854775808"), TEXT("0x10000000000000000")}},
		{OfKind<EPropertyGenKind::UInt64>(), {TEXT("0"), TEXT("18446744073709551615")},
			{TEXT("-1"), TEXT("18446744073709551616"), TEXT("99999999999999999999999")}},
	};
	for (const auto& Case : Cases)
	{
		FTestValue Value(Case.Description);
		for (const TCHAR* const Good : Case.Good)
		{
			EXPECT_TRUE(Value.Import(Good)) << ToStd(Good);
			EXPECT_EQ(ToStd(Good), ToStd(Value.Export()));
			for (const TCHAR* const Bad : Case.Bad)
			{
				EXPECT_FALSE(Value.Import(Bad)) << ToStd(Bad);
				EXPECT_EQ(ToStd(Good), ToStd(Value.Export())) << ToStd(Bad);
			}
		}
	}
	FTestValue Bits(OfKind<EPropertyGenKind::Int8>());
	EXPECT_TRUE(Bits.Import(TEXT("0xFF")));
	EXPECT_EQ("-1", ToStd(Bits.Export()));
}

TEST_P(FPropertyKind, TextCutOffAnywhereIsReadOrRefused)
{
	const FString Text = GetParam().Text;
	FTestValue Value(GetParam().Describe());
	for (int32 Length = 0; Length < Text.Len(); ++Length)
	{
		const FString Cut = Text.Left(Length);
		const TCHAR* const End = Value.Property->ImportText_Direct(*Cut, Value.Memory, nullptr, PPF_Delimited, &Value.Errors);
		EXPECT_TRUE(End == nullptr || (End >= *Cut && End <= *Cut + Length)) << ToStd(Cut);
		EXPECT_TRUE(End || !Value.Errors.Text.IsEmpty()) << ToStd(Cut);
		Value.Export(PPF_Delimited);
	}
	ASSERT_TRUE(Value.Import(*Text, PPF_Delimited));
	EXPECT_EQ(ToStd(Value.Export(PPF_Delimited)), ToStd(Text));
}

TEST_P(FPropertyKind, ADuplicateOfThePropertyDoesTheSame)
{
	FTestValue Value(GetParam().Describe());
	ASSERT_TRUE(Value.Import(GetParam().Text, PPF_Delimited));
	const TUniquePtr<FProperty> Duplicate(CastFieldChecked<FProperty>(FField::Duplicate(Value.Property.Get(), FFieldVariant())));
	FArchive Linker;
	Duplicate->LinkWithoutChangingOffset(Linker);
	EXPECT_TRUE(Duplicate->SameType(Value.Property.Get()));
	EXPECT_EQ(Duplicate->GetSize(), Value.Property->GetSize());
	FString Text;
	Duplicate->ExportTextItem_Direct(Text, Value.Memory, nullptr, nullptr, PPF_Delimited);
	EXPECT_EQ(ToStd(Text), ToStd(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(Kinds, FPropertyKind, testing::ValuesIn(KindCases), [](const testing::TestParamInfo<FKindCase>& Info)
	{ return std::string(Info.param.Name); });

TEST(PropertyKinds, EveryKindIsInTheTable)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	TSet<EPropertyGenKind> Kinds;
	for (const FKindCase& Case : KindCases)
	{
		Kinds.Add(Case.Describe().Kind);
	}
	EXPECT_EQ(Kinds.Num(), static_cast<int32>(EPropertyGenKind::Optional) + 1);
}

TEST(PropertyKinds, SparseDelegatesKeepTheirInvocationList)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	UObject* const Thing = UReflectedThing::StaticClass()->GetDefaultObject();
	const TUniquePtr<FMulticastSparseDelegateProperty> Property(new FMulticastSparseDelegateProperty(FFieldVariant(), TEXT("Value")));
	FArchive Linker;
	Property->LinkWithoutChangingOffset(Linker);
	void* const Value = Property->AllocateAndInitializeValue();
	FScriptDelegate Delegate;
	Delegate.BindUFunction(Thing, TEXT("Add"));
	Property->AddDelegate(Delegate, Thing, Value);
	Property->AddDelegate(Delegate, Thing, Value);
	FString Text;
	Property->ExportTextItem_Direct(Text, Value, nullptr, nullptr, PPF_None);
	EXPECT_EQ(Text, TEXT("(" THING_PATH ".Add)"));
	Property->RemoveDelegate(Delegate, Thing, Value);
	EXPECT_TRUE(Property->Identical(Value, nullptr));
	Property->DestroyAndFreeValue(Value);
}

TEST(PropertyKinds, BitFieldsLeaveTheirNeighboursAlone)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	FReflectedBits Bits;
	const FBoolProperty* const Second = FindFProperty<FBoolProperty>(FReflectedBits::StaticStruct(), TEXT("bSecond"));
	ASSERT_NE(Second, nullptr);
	EXPECT_FALSE(Second->IsNativeBool());
	Bits.bFirst = true;
	Bits.bThird = true;
	Second->SetPropertyValue_InContainer(&Bits, true);
	EXPECT_TRUE(Bits.bFirst && Bits.bSecond && Bits.bThird);
	Second->ClearValue(Second->ContainerPtrToValuePtr<void>(&Bits));
	EXPECT_TRUE(Bits.bFirst && !Bits.bSecond && Bits.bThird);
	FReflectedBits Other;
	Other.bSecond = true;
	Second->CopyCompleteValue_InContainer(&Bits, &Other);
	EXPECT_TRUE(Bits.bFirst && Bits.bSecond && Bits.bThird);
	EXPECT_EQ(Bits.Count, 5);
}

TEST(PropertyKinds, ArrayTextThatEndsEarlyNamesThePropertyAndKeepsWhatWasRead)
{
	FTestValue Value(DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Int), TEXT("Numbers")));
	EXPECT_FALSE(Value.Import(TEXT("(1,2,three,4)")));
	EXPECT_TRUE(Value.Errors.Text.Contains(TEXT("Numbers"))) << ToStd(Value.Errors.Text);
	EXPECT_TRUE(Value.Errors.Text.Contains(TEXT("three,4)")));
	EXPECT_EQ(Value.Export(), TEXT("(1,2,0)"));
}
}
