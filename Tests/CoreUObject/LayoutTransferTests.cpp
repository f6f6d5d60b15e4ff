#include "ObjectTestSupport.h"
#include "PropertyTestTypes.h"

#include "UObject/LayoutTransfer.h"

#include <string>

namespace
{
FString GetText(const UObject* Object, const TCHAR* Name)
{
	FString Text;
	FindFProperty<FProperty>(Object->GetClass(), Name)->ExportTextItem_InContainer(Text, Object, nullptr, nullptr, PPF_None);
	return Text;
}

bool SetText(UObject* Object, const TCHAR* Name, const TCHAR* Text)
{
	return FindFProperty<FProperty>(Object->GetClass(), Name)->ImportText_InContainer(Text, Object, Object, PPF_None) != nullptr;
}

/** An object's class laid out anew: the values of one of the old class, by the members' names. */
class FLayoutTransfer : public FObjectTest
{
protected:
	static void TransferByName(UObject* From, UObject* To, TMap<UObject*, UObject*>& OutParts)
	{
		UE::CoreUObject::TransferValues(
			*From, *To, [From](const FProperty& Property)
			{ return From->GetClass()->FindPropertyByName(Property.GetFName()); },
			OutParts);
	}

	static UObject* TransferByName(UObject* From, UClass* NewClass)
	{
		UObject* const To = NewObject<UObject>(From->GetOuter(), NewClass);
		TMap<UObject*, UObject*> Parts;
		TransferByName(From, To, Parts);
		EXPECT_TRUE(Parts.IsEmpty());
		return To;
	}
};

struct FTypeChange
{
	const char* Name;
	FPropertyDescription Old;
	const TCHAR* OldText;
	FPropertyDescription New;
	/** What is left: the old value where the new type has a place for it, else a fresh one. */
	const TCHAR* NewText;
};

TArray<FTypeChange> GetTypeChanges()
{
	using EKind = EPropertyGenKind;
	const auto ArrayOf = [](EKind Kind)
	{ return DescribeContainer(EKind::Array, Describe(Kind)); };
	FPropertyDescription Three = Describe(EKind::Int);
	Three.ArrayDim = 3;
	return {
		{"the same type", Describe(EKind::Int), TEXT("7"), Describe(EKind::Int), TEXT("7")},
		{"a wider number", Describe(EKind::Int), TEXT("-7"), Describe(EKind::Int64), TEXT("-7")},
		{"a number with a fraction", Describe(EKind::Int), TEXT("7"), Describe(EKind::Double), TEXT("7.000000")},
		{"a fraction that is none", Describe(EKind::Double), TEXT("4.0"), Describe(EKind::Int), TEXT("4")},
		{"a fraction that is cut", Describe(EKind::Double), TEXT("-1.5"), Describe(EKind::Int), TEXT("-1")},
		{"a number that is too great", Describe(EKind::Double), TEXT("1e12"), Describe(EKind::Int), TEXT("0")},
		{"a number beyond all", Describe(EKind::Double), TEXT("1e300"), Describe(EKind::Int64), TEXT("0")},
		{"a Boolean as a number", Describe(EKind::Bool), TEXT("True"), Describe(EKind::Int), TEXT("1")},
		{"a Boolean as a fraction", Describe(EKind::Bool), TEXT("True"), Describe(EKind::Double), TEXT("1.000000")},
		{"a number as a Boolean", Describe(EKind::Double), TEXT("0.5"), Describe(EKind::Bool), TEXT("True")},
		{"a number as text", Describe(EKind::Int), TEXT("7"), Describe(EKind::Str), TEXT("7")},
		{"text that is a number", Describe(EKind::Str), TEXT("12"), Describe(EKind::Int), TEXT("12")},
		{"text that is no number", Describe(EKind::Str), TEXT("many"), Describe(EKind::Int), TEXT("0")},
		{"text that begins with a number", Describe(EKind::Str), TEXT("12 apples"), Describe(EKind::Int), TEXT("0")},
		{"a name as text", Describe(EKind::Name), TEXT("Root"), Describe(EKind::Str), TEXT("Root")},
		{"an array of wider elements", ArrayOf(EKind::Int), TEXT("(1,2)"), ArrayOf(EKind::Int64), TEXT("(1,2)")},
		{"an array of other elements", ArrayOf(EKind::Str), TEXT("(\"1\",\"x\")"), ArrayOf(EKind::Int), TEXT("")},
		{"an array that becomes one value", ArrayOf(EKind::Int), TEXT("(1,2)"), Describe(EKind::Int), TEXT("0")},
		{"an array that becomes a set", ArrayOf(EKind::Int), TEXT("(1,2)"), DescribeContainer(EKind::Set, Describe(EKind::Int)),
			TEXT("(1,2)")},
		{"more places", Describe(EKind::Int), TEXT("5"), Three, TEXT("5")},
		{"fewer places", Three, TEXT("5"), Describe(EKind::Int), TEXT("5")},
		{"a struct that becomes a number", Describe(EKind::Struct, TEXT("Value"), GetItemStruct()), TEXT("(Count=3)"), Describe(EKind::Int),
			TEXT("0")},
		{"an enum as its name", Describe(EKind::Enum, TEXT("Value"), GetDoorEnum()), TEXT("Locked"), Describe(EKind::Name), TEXT("Locked")},
		{"a reference", Describe(EKind::Object, TEXT("Value"), UObject::StaticClass()),
			TEXT("\"/Script/CoreUObject.Class'/Script/CoreUObject.Object'\""),
			Describe(EKind::SoftObject, TEXT("Value"), UObject::StaticClass()), TEXT("/Script/CoreUObject.Object")},
	};
}
}

TEST_F(FLayoutTransfer, AValueStaysWhereItsNewTypeHasAPlaceForIt)
{
	MakeTestPackage(TEXT("/Script/PropertyTests"));
	int32 Number = 0;
	for (const FTypeChange& Change : GetTypeChanges())
	{
		++Number;
		// Members before it put it at another place.
		UClass* const OldClass =
			MakeTestClass(Package, *FString::Printf(TEXT("Old%d_C"), Number), {Change.Old, Describe(EPropertyGenKind::Str, TEXT("Gone"))});
		UClass* const NewClass = MakeTestClass(
			Package, *FString::Printf(TEXT("New%d_C"), Number), {Describe(EPropertyGenKind::Text, TEXT("Fresh")), Change.New});
		UObject* const From = NewObject<UObject>(Package, OldClass);
		ASSERT_TRUE(SetText(From, TEXT("Value"), Change.OldText)) << Change.Name;
		ASSERT_TRUE(SetText(From, TEXT("Gone"), TEXT("of no use")));
		const UObject* const To = TransferByName(From, NewClass);
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*GetText(To, TEXT("Value")))), TCHAR_TO_UTF8(Change.NewText)) << Change.Name;
		EXPECT_EQ(GetText(To, TEXT("Fresh")), TEXT(""));
	}
}

TEST_F(FLayoutTransfer, WhatEqualsTheOldDefaultFollowsTheNewDefault)
{
	const TArray<FPropertyDescription> Members = {
		Describe(EPropertyGenKind::Int, TEXT("Inherited")), Describe(EPropertyGenKind::Int, TEXT("Changed"))};
	UClass* const OldClass = MakeTestClass(Package, TEXT("OldDefaults_C"), Members);
	UClass* const NewClass = MakeTestClass(Package, TEXT("NewDefaults_C"), Members);
	for (const TCHAR* const Name : {TEXT("Inherited"), TEXT("Changed")})
	{
		ASSERT_TRUE(SetText(OldClass->GetDefaultObject(), Name, TEXT("1")));
		ASSERT_TRUE(SetText(NewClass->GetDefaultObject(), Name, TEXT("2")));
	}
	UObject* const From = NewObject<UObject>(Package, OldClass);
	ASSERT_TRUE(SetText(From, TEXT("Changed"), TEXT("9")));
	const UObject* const To = TransferByName(From, NewClass);
	EXPECT_EQ(GetText(To, TEXT("Inherited")), TEXT("2"));
	EXPECT_EQ(GetText(To, TEXT("Changed")), TEXT("9"));
}

TEST_F(FLayoutTransfer, ARenamedMemberKeepsItsValue)
{
	UClass* const OldClass = MakeTestClass(Package, TEXT("OldNames_C"), {Describe(EPropertyGenKind::Str, TEXT("Before"))});
	UClass* const NewClass = MakeTestClass(Package, TEXT("NewNames_C"), {Describe(EPropertyGenKind::Str, TEXT("After"))});
	UObject* const From = NewObject<UObject>(Package, OldClass);
	UObject* const To = NewObject<UObject>(Package, NewClass);
	ASSERT_TRUE(SetText(From, TEXT("Before"), TEXT("kept")));
	TMap<UObject*, UObject*> Parts;
	UE::CoreUObject::TransferValues(
		*From, *To, [OldClass](const FProperty& Property) -> const FProperty*
		{ return Property.GetFName() == TEXT("After") ? OldClass->FindPropertyByName(TEXT("Before")) : nullptr; },
		Parts);
	EXPECT_EQ(GetText(To, TEXT("After")), TEXT("kept"));
	EXPECT_EQ(GetText(From, TEXT("Before")), TEXT("kept"));
}

TEST_F(FLayoutTransfer, PartsTakeTheValuesOfTheirNamesakes)
{
	UReflectedThing* const From = MakeThing();
	UReflectedThing* const To = MakeThing();
	ASSERT_TRUE(From->Part && To->Part && From->Part != To->Part);
	From->Number = 11;
	From->Part->Strength = 99;
	UReflectedPart* const NewPart = To->Part;
	TMap<UObject*, UObject*> Parts;
	TransferByName(From, To, Parts);
	EXPECT_EQ(To->Number, 11);
	EXPECT_EQ(To->Part, NewPart) << "a part of its own, not that of the old object";
	EXPECT_EQ(NewPart->Strength, 99);
	EXPECT_EQ(Parts.FindRef(From->Part), NewPart);
}
