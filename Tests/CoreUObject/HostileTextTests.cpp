#include "TaggedValues.h"

#include <gtest/gtest.h>

namespace
{
/** A struct that holds an array of itself, which text and bytes can nest as deeply as they like. */
UScriptStruct* GetNestedStruct()
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	if (UScriptStruct* const Existing = FindObject<UScriptStruct>(Package, TEXT("Nest")))
	{
		return Existing;
	}
	UScriptStruct* const Struct = NewObject<UScriptStruct>(Package, TEXT("Nest"), RF_Public | RF_Standalone);
	const FPropertyDescription Inner = Describe(EPropertyGenKind::Struct, TEXT("Inside"), Struct);
	Struct->ChildProperties = ConstructPropertyFromDescription(Struct, DescribeContainer(EPropertyGenKind::Array, Inner, TEXT("Inside")));
	Struct->StaticLink(true);
	return Struct;
}

/** A struct whose value in tagged form is the end of its members alone. */
UScriptStruct* GetEmptyStruct()
{
	UPackage* const Package = MakeTestPackage(TEXT("/Script/PropertyTests"));
	UScriptStruct* const Existing = FindObject<UScriptStruct>(Package, TEXT("Empty"));
	return Existing ? Existing : MakeTestStruct(Package, TEXT("Empty"), {});
}

FString Repeat(const TCHAR* Text, int32 Count)
{
	FString Result;
	Result.Reserve(FCString::Strlen(Text) * Count);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Result += Text;
	}
	return Result;
}

FString NestText(int32 Depth)
{
	return Repeat(TEXT("(Inside=("), Depth) + TEXT("()") + Repeat(TEXT("))"), Depth);
}

FPropertyDescription DescribeNest()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), GetNestedStruct());
}

FPropertyDescription DescribeEveryKind()
{
	return Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEveryKindStruct());
}
}

TEST(HostileText, EveryCutOffLengthIsRefused)
{
	const FString Whole(EveryKindText);
	for (int32 Length = 0; Length < Whole.Len(); ++Length)
	{
		FTestValue Value(DescribeEveryKind());
		EXPECT_FALSE(Value.Import(*Whole.Left(Length))) << Length;
		EXPECT_FALSE(Value.Errors.Text.IsEmpty()) << Length;
	}
}

TEST(HostileText, AnyCharacterAnywhereIsReadOrRefused)
{
	const FString Whole(EveryKindText);
	for (const TCHAR Replacement : {TEXT('('), TEXT(')'), TEXT('"'), TEXT('\\'), TEXT(','), TEXT('\''), TEXT('='), TEXT('\n'), TEXT('-'),
			 static_cast<TCHAR>(0xD800)})
	{
		for (int32 Position = 0; Position < Whole.Len(); ++Position)
		{
			FString Changed = Whole;
			Changed[Position] = Replacement;
			FTestValue Value(DescribeEveryKind());
			const bool bRead = Value.Import(*Changed);
			EXPECT_TRUE(bRead || !Value.Errors.Text.IsEmpty() || Changed.Contains(TEXT("))"))) << Position;
			// What was read must have a text that reads back to the same value.
			if (bRead)
			{
				FTestValue Again(DescribeEveryKind());
				ASSERT_TRUE(Again.Import(*Value.Export())) << TCHAR_TO_UTF8(*Value.Export()) << TCHAR_TO_UTF8(*Again.Errors.Text);
				EXPECT_TRUE(Again.Property->Identical(Again.Memory, Value.Memory)) << TCHAR_TO_UTF8(*Changed) << "\n"
																				   << TCHAR_TO_UTF8(*Again.Export());
			}
		}
	}
}

TEST(HostileText, ModestNestingSurvives)
{
	const UScriptStruct* const Struct = GetNestedStruct();
	const FArrayProperty* const List = CastField<FArrayProperty>(Struct->PropertyLink);
	ASSERT_NE(List, nullptr);
	EXPECT_EQ(List->Inner->GetSize(), Struct->GetStructureSize());
	FTestValue Value(DescribeNest());
	const FString Text = NestText(20);
	ASSERT_TRUE(Value.Import(*Text)) << TCHAR_TO_UTF8(*Value.Errors.Text);
	const FString Written = Value.Export();
	FTestValue Again(DescribeNest());
	ASSERT_TRUE(Again.Import(*Written));
	EXPECT_TRUE(Again.Property->Identical(Again.Memory, Value.Memory));
	EXPECT_EQ(Written, Text);
}

TEST(HostileText, NestingWithoutEndIsRefusedWithoutExhaustingTheStack)
{
	FTestValue Value(DescribeNest());
	EXPECT_FALSE(Value.Import(*NestText(200000)));
	EXPECT_FALSE(Value.Errors.Text.IsEmpty());
}

TEST(HostileText, NestingOfUnknownMembersIsSteppedOver)
{
	FTestValue Value(Describe(EPropertyGenKind::Struct, TEXT("Value"), GetItemStruct()));
	const FString Text = TEXT("(Gone=") + Repeat(TEXT("("), 200000) + Repeat(TEXT(")"), 200000) + TEXT(",Count=4)");
	ASSERT_TRUE(Value.Import(*Text));
	EXPECT_TRUE(Value.Export().Contains(TEXT("Count=4")));
}

TEST(HostileText, AnEndlessListOfElementsThatStandForNothingEnds)
{
	FTestValue Value(DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Int)));
	EXPECT_TRUE(Value.Import(TEXT("(,,,5,)"))) << TCHAR_TO_UTF8(*Value.Errors.Text);
	EXPECT_EQ(Value.Export(), TEXT("(0,0,0,5)"));
	EXPECT_FALSE(Value.Import(TEXT("(,,,")));
}

TEST(HostileText, AnIndexInTextIsNoSizeToTrust)
{
	UScriptStruct* const Struct = MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("Indexed"),
		{DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Int), TEXT("List"))});
	FTestValue Value(Describe(EPropertyGenKind::Struct, TEXT("Value"), Struct));
	for (const TCHAR* const Index : {TEXT("2147483647"), TEXT("4294967296"), TEXT("99999999999999999999"), TEXT("-1"), TEXT("1")})
	{
		const FString Text = FString::Printf(TEXT("(List[%s]=1)"), Index);
		Value.Import(*Text);
		FScriptArrayHelper Helper(CastFieldChecked<FArrayProperty>(Struct->FindPropertyByName(TEXT("List"))), Value.Memory);
		EXPECT_LE(Helper.Num(), 1) << TCHAR_TO_UTF8(Index);
		Helper.EmptyValues();
	}
	ASSERT_TRUE(Value.Import(TEXT("(List[0]=4,List[1]=5)")));
	EXPECT_EQ(Value.Export(), TEXT("(List=(4,5))"));
}

TEST(HostileText, NamesBeyondTheLimitAreRefusedInNamesKeysAndPaths)
{
	const FString Long = Repeat(TEXT("n"), 5000);
	FTestValue Name(Describe(EPropertyGenKind::Name));
	EXPECT_FALSE(Name.Import(*Long));
	FTestValue Keys(DescribeMap(Describe(EPropertyGenKind::Name), Describe(EPropertyGenKind::Int)));
	EXPECT_FALSE(Keys.Import(*(TEXT("((\"") + Long + TEXT("\", 1))"))));
	FTestValue Object(Describe(EPropertyGenKind::Object, TEXT("Value"), UObject::StaticClass()));
	Object.Import(*(TEXT("\"/Game/") + Long + TEXT(".") + Long + TEXT("\"")));
	FTestValue Soft(Describe(EPropertyGenKind::SoftObject, TEXT("Value"), UObject::StaticClass()));
	Soft.Import(*(TEXT("\"/Game/") + Long + TEXT(".") + Long + TEXT("\"")));
	FTestValue Enum(Describe(EPropertyGenKind::Enum, TEXT("Value"), GetDoorEnum()));
	EXPECT_FALSE(Enum.Import(*Long));
	FTestValue Struct(Describe(EPropertyGenKind::Struct, TEXT("Value"), GetItemStruct()));
	EXPECT_TRUE(Struct.Import(*(TEXT("(") + Long + TEXT("=1,Count=2)"))));
	EXPECT_TRUE(Struct.Export().Contains(TEXT("Count=2")));
}

TEST(HostileBytes, NestingWithoutEndIsAnErrorOfTheArchive)
{
	FTestValue None(Describe(EPropertyGenKind::Struct, TEXT("Value"), GetEmptyStruct()));
	const TArray<uint8> End = SaveValue(None, GPackageFileUEVersion);
	FTestValue Zero(DescribeNest());
	const TArray<uint8> Innermost = SaveValue(Zero, GPackageFileUEVersion);
	FTestValue One(DescribeNest());
	ASSERT_TRUE(One.Import(*NestText(1)));
	const TArray<uint8> Level = SaveValue(One, GPackageFileUEVersion);
	// A level is the tag of its array with the count, what it holds, and the name that ends it. No value can be that deep.
	const int32 Prefix = Innermost.Num() - End.Num();
	ASSERT_GT(Prefix, 0);
	ASSERT_EQ(Level.Num(), Prefix + Innermost.Num() + End.Num());
	TArray<uint8> Bytes;
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Bytes.Append(Level.GetData(), Prefix);
	}
	Bytes.Append(Innermost);
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Bytes.Append(End);
	}
	FTestValue Loaded(DescribeNest());
	EXPECT_FALSE(LoadValue(Loaded, Bytes, GPackageFileUEVersion));
}

TEST(HostileBytes, ChangedBytesOfEveryKindEndInAValueOrAnError)
{
	FTestValue Saved(DescribeEveryKind());
	ASSERT_TRUE(Saved.Import(EveryKindText));
	for (const FPackageFileVersion& Version : {OldTagVersion, GPackageFileUEVersion})
	{
		const TArray<uint8> Bytes = SaveValue(Saved, Version);
		for (const uint8 Replacement : {uint8(0), uint8(1), uint8(0x7f), uint8(0x80), uint8(0xff)})
		{
			for (int32 Position = 0; Position < Bytes.Num(); ++Position)
			{
				TArray<uint8> Changed = Bytes;
				Changed[Position] = Replacement;
				FTestValue Loaded(DescribeEveryKind());
				LoadValue(Loaded, Changed, Version);
				// Whatever came out is a value: it has a text, a copy, and equals itself.
				EXPECT_FALSE(Loaded.Export().IsEmpty());
				FTestValue Copy(DescribeEveryKind());
				Copy.Property->CopyCompleteValue(Copy.Memory, Loaded.Memory);
				EXPECT_EQ(Copy.Export(), Loaded.Export());
			}
		}
	}
}
