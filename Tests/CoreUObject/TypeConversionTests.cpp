#include "TaggedValues.h"

#include <gtest/gtest.h>

namespace
{
/** A member that had one type when it was saved and has another now. */
struct FConversionCase
{
	const char* Name;
	FPropertyDescription (*Before)();
	const TCHAR* Saved;
	FPropertyDescription (*After)();
	/** The value now; null where the member keeps its default because nothing of the old value can be used. */
	const TCHAR* Loaded;
};

template <EPropertyGenKind Kind>
FPropertyDescription Of()
{
	return Describe(Kind, TEXT("Member"));
}

FPropertyDescription OfObjectKind(EPropertyGenKind Kind)
{
	return Describe(Kind, TEXT("Member"), UObject::StaticClass());
}

template <EPropertyGenKind Kind>
FPropertyDescription OfReference()
{
	return OfObjectKind(Kind);
}

FPropertyDescription Enum()
{
	return Describe(EPropertyGenKind::Enum, TEXT("Member"), GetDoorEnum());
}

FPropertyDescription ByteEnum()
{
	return Describe(EPropertyGenKind::Byte, TEXT("Member"), GetDoorEnum());
}

FPropertyDescription Item()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Member"), GetItemStruct());
}

FPropertyDescription OtherItem()
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	UScriptStruct* Struct = FindObject<UScriptStruct>(Package, TEXT("OtherItem"));
	Struct = Struct ? Struct : MakeTestStruct(Package, TEXT("OtherItem"), {Describe(EPropertyGenKind::Str, TEXT("Name"))});
	return Describe(EPropertyGenKind::Struct, TEXT("Member"), Struct);
}

template <FPropertyDescription (*Inner)()>
FPropertyDescription ArrayOf()
{
	return DescribeContainer(EPropertyGenKind::Array, Inner(), TEXT("Member"));
}

template <FPropertyDescription (*Inner)()>
FPropertyDescription SetOf()
{
	return DescribeContainer(EPropertyGenKind::Set, Inner(), TEXT("Member"));
}

template <FPropertyDescription (*Key)(), FPropertyDescription (*Value)()>
FPropertyDescription MapOf()
{
	return DescribeMap(Key(), Value(), TEXT("Member"));
}

constexpr auto Bool = &Of<EPropertyGenKind::Bool>;
constexpr auto Byte = &Of<EPropertyGenKind::Byte>;
constexpr auto Int = &Of<EPropertyGenKind::Int>;
constexpr auto Int64 = &Of<EPropertyGenKind::Int64>;
constexpr auto UInt32 = &Of<EPropertyGenKind::UInt32>;
constexpr auto UInt64 = &Of<EPropertyGenKind::UInt64>;
constexpr auto Float = &Of<EPropertyGenKind::Float>;
constexpr auto Double = &Of<EPropertyGenKind::Double>;
constexpr auto Name = &Of<EPropertyGenKind::Name>;
constexpr auto Str = &Of<EPropertyGenKind::Str>;
constexpr auto Text = &Of<EPropertyGenKind::Text>;
constexpr auto Object = &OfReference<EPropertyGenKind::Object>;
constexpr auto Soft = &OfReference<EPropertyGenKind::SoftObject>;

const FConversionCase ConversionCases[] = {
	{"IntToInt64", Int, TEXT("-5"), Int64, TEXT("-5")},
	{"Int64ToIntWraps", Int64, TEXT("4294967297"), Int, TEXT("1")},
	{"IntToByte", Int, TEXT("200"), Byte, TEXT("200")},
	{"ByteToInt", Byte, TEXT("200"), Int, TEXT("200")},
	{"UInt32ToInt64KeepsItsSign", UInt32, TEXT("4294967295"), Int64, TEXT("4294967295")},
	{"UInt64ToDouble", UInt64, TEXT("18446744073709551615"), Double, TEXT("18446744073709551616.000000")},
	{"IntToFloat", Int, TEXT("-7"), Float, TEXT("-7.000000")},
	{"FloatToDouble", Float, TEXT("0.5"), Double, TEXT("0.500000")},
	{"DoubleToFloat", Double, TEXT("-2.25"), Float, TEXT("-2.250000")},
	{"FloatToIntTruncates", Float, TEXT("-2.75"), Int, TEXT("-2")},
	{"HugeDoubleToIntStopsAtTheEnd", Double, TEXT("1e30"), Int, TEXT("2147483647")},
	{"NanToInt", Double, TEXT("nan"), Int, TEXT("0")},
	{"BoolToInt", Bool, TEXT("True"), Int, TEXT("1")},
	{"BoolToByte", Bool, TEXT("True"), Byte, TEXT("1")},
	{"IntToBool", Int, TEXT("3"), Bool, TEXT("True")},
	{"ByteToBool", Byte, TEXT("1"), Bool, TEXT("True")},
	{"StrToName", Str, TEXT("a b"), Name, TEXT("a b")},
	{"NameToStr", Name, TEXT("n_3"), Str, TEXT("n_3")},
	{"TextToStr", Text, TEXT("NSLOCTEXT(\"a\", \"b\", \"c\")"), Str, TEXT("c")},
	{"StrToText", Str, TEXT("words"), Text, TEXT("words")},
	{"EnumToByteEnum", Enum, TEXT("Locked"), ByteEnum, TEXT("Locked")},
	{"ByteEnumToEnum", ByteEnum, TEXT("Locked"), Enum, TEXT("Locked")},
	{"EnumToInt", Enum, TEXT("Locked"), Int, TEXT("4")},
	{"ByteEnumToInt", ByteEnum, TEXT("Locked"), Int, TEXT("4")},
	{"ByteEnumToByte", ByteEnum, TEXT("Locked"), Byte, TEXT("4")},
	{"ByteToByteEnum", Byte, TEXT("4"), ByteEnum, TEXT("Locked")},
	{"ByteToEnum", Byte, TEXT("4"), Enum, TEXT("Locked")},
	{"IntToEnum", Int, TEXT("1"), Enum, TEXT("Closed")},
	{"ObjectToSoft", Object, TEXT("/Script/CoreUObject.Object"), Soft, TEXT("/Script/CoreUObject.Object")},
	{"StrToSoft", Str, TEXT("/Game/A.A"), Soft, TEXT("/Game/A.A")},
	{"NameToSoft", Name, TEXT("/Game/A.A"), Soft, TEXT("/Game/A.A")},
	{"SoftToStr", Soft, TEXT("/Game/A.A:B"), Str, TEXT("/Game/A.A:B")},
	{"ArrayOfIntToArrayOfFloat", &ArrayOf<&Of<EPropertyGenKind::Int>>, TEXT("(1,2)"), &ArrayOf<&Of<EPropertyGenKind::Float>>,
		TEXT("(1.000000,2.000000)")},
	{"ArrayOfNameToArrayOfStr", &ArrayOf<&Of<EPropertyGenKind::Name>>, TEXT("(\"a\",\"b\")"), &ArrayOf<&Of<EPropertyGenKind::Str>>,
		TEXT("(\"a\",\"b\")")},
	{"SetOfIntToSetOfByteMergesWhatBecomesEqual", &SetOf<&Of<EPropertyGenKind::Int>>, TEXT("(1,257,2)"),
		&SetOf<&Of<EPropertyGenKind::Byte>>, TEXT("(1,2)")},
	{"MapKeysAndValuesConvert", &MapOf<&Of<EPropertyGenKind::Name>, &Of<EPropertyGenKind::Int>>, TEXT("((\"k\", 1),(\"l\", 2))"),
		&MapOf<&Of<EPropertyGenKind::Str>, &Of<EPropertyGenKind::Double>>, TEXT("((\"k\", 1.000000),(\"l\", 2.000000))")},
	{"StrToIntIsLost", Str, TEXT("5"), Int, nullptr},
	{"IntToStrIsLost", Int, TEXT("5"), Str, nullptr},
	{"StructToOtherStructIsLost", &Item, TEXT("(Name=\"a\")"), &OtherItem, nullptr},
	{"StructToIntIsLost", &Item, TEXT("(Count=3)"), Int, nullptr},
	{"IntToStructIsLost", Int, TEXT("3"), &Item, nullptr},
	{"IntToArrayIsLost", Int, TEXT("3"), &ArrayOf<&Of<EPropertyGenKind::Int>>, nullptr},
	{"ArrayToSetIsLost", &ArrayOf<&Of<EPropertyGenKind::Int>>, TEXT("(3)"),
		&MapOf<&Of<EPropertyGenKind::Int>, &Of<EPropertyGenKind::Int>>, nullptr},
	{"ArrayOfStructToArrayOfOtherIsLost", &ArrayOf<&Item>, TEXT("((Name=\"a\"))"), &ArrayOf<&OtherItem>, nullptr},
	{"MapOfBadValuesIsLost", &MapOf<&Of<EPropertyGenKind::Name>, &Of<EPropertyGenKind::Str>>, TEXT("((\"k\", \"v\"))"),
		&MapOf<&Of<EPropertyGenKind::Name>, &Of<EPropertyGenKind::Int>>, nullptr},
};

struct FConversion
{
	FConversionCase Case;
	bool bOldTags;
};

std::vector<FConversion> GetConversions()
{
	std::vector<FConversion> Result;
	for (const FConversionCase& Case : ConversionCases)
	{
		Result.push_back({Case, false});
		Result.push_back({Case, true});
	}
	return Result;
}

class FTypeConversion : public testing::TestWithParam<FConversion>
{
};

/** A member after the converted one shows that the reader found its place again. */
UScriptStruct* MakeHolder(const FPropertyDescription& Member)
{
	static int32 Number = 0;
	const FString Name = FString::Printf(TEXT("Conversion%d"), ++Number);
	return MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), *Name, {Member, Describe(EPropertyGenKind::Int, TEXT("Last"))});
}

FString ExportMember(const FTestValue& Holder, const FProperty* Member)
{
	FString Result;
	Member->ExportTextItem_Direct(Result, Member->ContainerPtrToValuePtr<void>(Holder.Memory), nullptr, nullptr, PPF_None);
	return Result;
}
}

TEST_P(FTypeConversion, KeepsWhatCanBeKept)
{
	const FConversionCase& Case = GetParam().Case;
	UScriptStruct* const Before = MakeHolder(Case.Before());
	UScriptStruct* const After = MakeHolder(Case.After());
	FTestValue Saved(Describe(EPropertyGenKind::Struct, TEXT("Value"), Before));
	const FProperty* const OldMember = Before->FindPropertyByName(TEXT("Member"));
	FErrorText Errors;
	ASSERT_TRUE(OldMember->ImportText_InContainer(Case.Saved, Saved.Memory, nullptr, PPF_None, &Errors)) << TCHAR_TO_UTF8(*Errors.Text);
	*Before->FindPropertyByName(TEXT("Last"))->ContainerPtrToValuePtr<int32>(Saved.Memory) = 77;
	const FPackageFileVersion Version = GetParam().bOldTags ? OldTagVersion : GPackageFileUEVersion;

	FTestValue Loaded(Describe(EPropertyGenKind::Struct, TEXT("Value"), After));
	const FProperty* const NewMember = After->FindPropertyByName(TEXT("Member"));
	const FString Default = ExportMember(Loaded, NewMember);
	ASSERT_TRUE(LoadValue(Loaded, SaveValue(Saved, Version), Version));
	EXPECT_EQ(
		std::string(TCHAR_TO_UTF8(*ExportMember(Loaded, NewMember))), std::string(TCHAR_TO_UTF8(Case.Loaded ? Case.Loaded : *Default)));
	EXPECT_EQ(*After->FindPropertyByName(TEXT("Last"))->ContainerPtrToValuePtr<int32>(Loaded.Memory), 77);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FTypeConversion, testing::ValuesIn(GetConversions()), [](const testing::TestParamInfo<FConversion>& Info)
	{ return std::string(Info.param.Case.Name) + (Info.param.bOldTags ? "OldTag" : ""); });

namespace
{
FPropertyDescription EveryKind()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEveryKindStruct());
}

bool Mentions(const TArray<uint8>& Bytes, const char* Word)
{
	const std::string Text(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num()));
	return Text.find(Word) != std::string::npos;
}
}

TEST(DeltaSerialization, OnlyMembersThatDifferFromTheDefaultsAreSaved)
{
	FTestValue Defaults(EveryKind());
	FTestValue Value(EveryKind());
	ASSERT_TRUE(Defaults.Import(EveryKindText));
	ASSERT_TRUE(Value.Import(EveryKindText));
	const TArray<uint8> Nothing = SaveValue(Value, GPackageFileUEVersion, Defaults.Memory);
	EXPECT_FALSE(Mentions(Nothing, "Property"));
	ASSERT_TRUE(Value.Import(TEXT("(Int=33,Slots[2]=9)")));
	const TArray<uint8> Some = SaveValue(Value, GPackageFileUEVersion, Defaults.Memory);
	EXPECT_TRUE(Mentions(Some, "Slots"));
	EXPECT_FALSE(Mentions(Some, "Str"));
	EXPECT_FALSE(Mentions(Some, "Map"));

	FTestValue Loaded(EveryKind());
	Loaded.Property->CopyCompleteValue(Loaded.Memory, Defaults.Memory);
	ASSERT_TRUE(LoadValue(Loaded, Some, GPackageFileUEVersion, Defaults.Memory));
	EXPECT_EQ(Loaded.Export(), Value.Export());
}

TEST(DeltaSerialization, AValueSetBackToEmptyIsSavedAgainstDefaultsThatAreNot)
{
	FTestValue Defaults(EveryKind());
	FTestValue Value(EveryKind());
	ASSERT_TRUE(Defaults.Import(EveryKindText));
	for (const FPackageFileVersion& Version : {OldTagVersion, GPackageFileUEVersion})
	{
		const TArray<uint8> Bytes = SaveValue(Value, Version, Defaults.Memory);
		FTestValue Loaded(EveryKind());
		Loaded.Property->CopyCompleteValue(Loaded.Memory, Defaults.Memory);
		ASSERT_TRUE(LoadValue(Loaded, Bytes, Version, Defaults.Memory));
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Loaded.Export())), std::string(TCHAR_TO_UTF8(*Value.Export())));
	}
}

TEST(DeltaSerialization, MapsAndSetsFollowTheirDefaultsInWhatTheyDoNotChange)
{
	UScriptStruct* const Struct = MakeHolder(DescribeMap(Describe(EPropertyGenKind::Str), Describe(EPropertyGenKind::Int), TEXT("Member")));
	const FPropertyDescription Description = Describe(EPropertyGenKind::Struct, TEXT("Value"), Struct);
	FTestValue OldDefaults(Description);
	FTestValue NewDefaults(Description);
	FTestValue Value(Description);
	ASSERT_TRUE(OldDefaults.Import(TEXT("(Member=((\"a\",1),(\"b\",2),(\"c\",3)))")));
	ASSERT_TRUE(Value.Import(TEXT("(Member=((\"a\",1),(\"b\",20),(\"d\",4)))")));
	// The class's own value of "a" changes after the object was saved.
	ASSERT_TRUE(NewDefaults.Import(TEXT("(Member=((\"a\",100),(\"b\",2),(\"c\",3),(\"e\",5)))")));
	const TArray<uint8> Bytes = SaveValue(Value, GPackageFileUEVersion, OldDefaults.Memory);
	FTestValue Loaded(Description);
	ASSERT_TRUE(LoadValue(Loaded, Bytes, GPackageFileUEVersion, NewDefaults.Memory));
	FTestValue Expected(Description);
	ASSERT_TRUE(Expected.Import(TEXT("(Member=((\"a\",100),(\"b\",20),(\"d\",4),(\"e\",5)))")));
	EXPECT_TRUE(Loaded.Property->Identical(Loaded.Memory, Expected.Memory)) << TCHAR_TO_UTF8(*Loaded.Export());
}
