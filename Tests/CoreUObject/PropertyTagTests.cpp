#include "PropertyTestTypes.h"

#include "TaggedValues.h"
#include "UObject/PropertyTag.h"

#include <gtest/gtest.h>

namespace
{
class FTaggedProperties : public testing::TestWithParam<FPackageFileVersion>
{
};

TEST_P(FTaggedProperties, EveryKindSurvivesARoundTrip)
{
	const FPropertyDescription Description = Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEveryKindStruct());
	FTestValue Saved(Description);
	ASSERT_TRUE(Saved.Import(EveryKindText)) << TCHAR_TO_UTF8(*Saved.Errors.Text);
	FTestValue Loaded(Description);
	ASSERT_TRUE(LoadValue(Loaded, SaveValue(Saved, GetParam()), GetParam()));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Loaded.Export())), std::string(TCHAR_TO_UTF8(*Saved.Export())));
	EXPECT_TRUE(Loaded.Property->Identical(Loaded.Memory, Saved.Memory));
}

TEST_P(FTaggedProperties, EveryCutOffLengthIsAnErrorOrReadsLess)
{
	const FPropertyDescription Description = Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEveryKindStruct());
	FTestValue Saved(Description);
	ASSERT_TRUE(Saved.Import(EveryKindText));
	const TArray<uint8> Bytes = SaveValue(Saved, GetParam());
	for (int32 Length = 0; Length < Bytes.Num(); ++Length)
	{
		FTestValue Loaded(Description);
		EXPECT_FALSE(LoadValue(Loaded, TArray<uint8>(Bytes.GetData(), Length), GetParam())) << Length;
	}
}

TEST_P(FTaggedProperties, MembersThatAreGoneAreSteppedOver)
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	FTestValue Saved(Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEveryKindStruct()));
	ASSERT_TRUE(Saved.Import(EveryKindText));
	UScriptStruct* const Fewer = MakeTestStruct(
		Package, TEXT("Fewer"), {Describe(EPropertyGenKind::Str, TEXT("Str")), Describe(EPropertyGenKind::Int, TEXT("New"))});
	FTestValue Loaded(Describe(EPropertyGenKind::Struct, TEXT("Value"), Fewer));
	ASSERT_TRUE(LoadValue(Loaded, SaveValue(Saved, GetParam()), GetParam()));
	EXPECT_EQ(Loaded.Export(), TEXT("(Str=\"s\",New=0)"));
}

TEST_P(FTaggedProperties, NumbersConvertToTheirNewType)
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	UScriptStruct* const Before = MakeTestStruct(Package, TEXT("Before"),
		{Describe(EPropertyGenKind::Int, TEXT("A")), Describe(EPropertyGenKind::Float, TEXT("B")),
			Describe(EPropertyGenKind::Bool, TEXT("C")), Describe(EPropertyGenKind::Name, TEXT("D"))});
	UScriptStruct* const After = MakeTestStruct(Package, TEXT("After"),
		{Describe(EPropertyGenKind::Int64, TEXT("A")), Describe(EPropertyGenKind::Double, TEXT("B")),
			Describe(EPropertyGenKind::Int, TEXT("C")), Describe(EPropertyGenKind::Str, TEXT("D"))});
	FTestValue Saved(Describe(EPropertyGenKind::Struct, TEXT("Value"), Before));
	ASSERT_TRUE(Saved.Import(TEXT("(A=7,B=0.5,C=True,D=\"n\")")));
	FTestValue Loaded(Describe(EPropertyGenKind::Struct, TEXT("Value"), After));
	ASSERT_TRUE(LoadValue(Loaded, SaveValue(Saved, GetParam()), GetParam()));
	EXPECT_EQ(Loaded.Export(), TEXT("(A=7,B=0.500000,C=1,D=\"n\")"));
}

INSTANTIATE_TEST_SUITE_P(TagForms, FTaggedProperties, testing::Values(OldTagVersion, GPackageFileUEVersion),
	[](const testing::TestParamInfo<FPackageFileVersion>& Info)
	{ return std::string(Info.param == OldTagVersion ? "OldTag" : "CompleteTypeName"); });

TEST(PropertyTypeName, DescribesNestedTypes)
{
	const TUniquePtr<FProperty> Property(ConstructPropertyFromDescription(FFieldVariant(),
		DescribeMap(Describe(EPropertyGenKind::Name), Describe(EPropertyGenKind::Struct, TEXT("Value"), GetItemStruct()))));
	const FPropertyTypeName TypeName(Property.Get());
	EXPECT_EQ(TypeName.ToString(), TEXT("MapProperty(NameProperty,StructProperty(Item(/Script/PropertyTests)))"));
	EXPECT_EQ(TypeName.GetParameter(1).GetParameterName(0), FName(TEXT("Item")));
}

TEST(RuntimeLayout, MembersFollowEachOtherAligned)
{
	UScriptStruct* const Struct = MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("Layout"),
		{Describe(EPropertyGenKind::Bool, TEXT("A")), Describe(EPropertyGenKind::Double, TEXT("B")),
			Describe(EPropertyGenKind::Bool, TEXT("C")), Describe(EPropertyGenKind::Int16, TEXT("D"))});
	EXPECT_EQ(Struct->FindPropertyByName(TEXT("A"))->GetOffset_ForInternal(), 0);
	EXPECT_EQ(Struct->FindPropertyByName(TEXT("B"))->GetOffset_ForInternal(), 8);
	EXPECT_EQ(Struct->FindPropertyByName(TEXT("C"))->GetOffset_ForInternal(), 16);
	EXPECT_EQ(Struct->FindPropertyByName(TEXT("D"))->GetOffset_ForInternal(), 18);
	EXPECT_EQ(Struct->GetStructureSize(), 24);
}
}
