#include "ObjectTestSupport.h"

using FEnums = FObjectTest;

namespace
{
UEnum* MakeEnum(UPackage* Package, const TCHAR* Name, const TArray<TPair<FName, int64>>& Names, UEnum::ECppForm Form,
	EEnumFlags Flags = EEnumFlags::None)
{
	UEnum* const Enum = NewObject<UEnum>(Package, Name);
	EXPECT_TRUE(Enum->SetEnums(Names, Form, Flags));
	return Enum;
}
}

TEST_F(FEnums, EnumeratorsAreFoundByShortAndFullNamesOfTheirFormOnly)
{
	const UEnum* const Scoped =
		MakeEnum(Package, TEXT("EDay"), {{TEXT("EDay::Monday"), -1}, {TEXT("EDay::Friday"), 4}}, UEnum::ECppForm::EnumClass);
	EXPECT_EQ(Scoped->GetIndexByNameString(TEXT("Friday")), 1);
	EXPECT_EQ(Scoped->GetIndexByNameString(TEXT("EDay::friday")), 1);
	EXPECT_EQ(Scoped->GetIndexByNameString(TEXT("EOther::Friday")), INDEX_NONE);
	EXPECT_EQ(Scoped->GetIndexByNameString(TEXT("")), INDEX_NONE);
	EXPECT_EQ(Scoped->GetIndexByNameString(TEXT("friday"), EGetByNameFlags::CaseSensitive), INDEX_NONE);
	EXPECT_EQ(Scoped->GetNameStringByValue(-1), TEXT("Monday"));
	EXPECT_EQ(Scoped->GetNameByIndex(2), FName(TEXT("EDay::EDay_MAX")));
	EXPECT_EQ(Scoped->GetMaxEnumValue(), 5);
	const UEnum* const Regular = MakeEnum(Package, TEXT("EOld"), {{TEXT("OLD_A"), 0}, {TEXT("OLD_B"), 7}}, UEnum::ECppForm::Regular);
	EXPECT_EQ(Regular->GetNameStringByValue(7), TEXT("OLD_B"));
	EXPECT_EQ(Regular->GetIndexByNameString(TEXT("EOld::OLD_B")), 1);
	EXPECT_EQ(Regular->GetNameByIndex(2), FName(TEXT("OLD_MAX")));
	EXPECT_EQ(Regular->GetIndexByName(TEXT("B")), INDEX_NONE);
}

TEST_F(FEnums, FlagsOfABitfieldAreNamedAndChecked)
{
	const UEnum* const Flags =
		MakeEnum(Package, TEXT("EBits"), {{TEXT("EBits::None"), 0}, {TEXT("EBits::A"), 1}, {TEXT("EBits::B"), 2}, {TEXT("EBits::C"), 8}},
			UEnum::ECppForm::EnumClass, EEnumFlags::Flags);
	EXPECT_EQ(Flags->GetValueOrBitfieldAsString(10), TEXT("B | C"));
	EXPECT_EQ(Flags->GetValueOrBitfieldAsString(0), TEXT("None"));
	EXPECT_TRUE(Flags->IsValidEnumValueOrBitfield(11));
	EXPECT_FALSE(Flags->IsValidEnumValueOrBitfield(0x40));
	EXPECT_FALSE(Flags->IsValidEnumValue(11));
}

TEST_F(FEnums, AnEnumWhoseLastValueLeavesNoRoomForAMaximumSaysSo)
{
	UEnum* const Enum = NewObject<UEnum>(Package, TEXT("EFull"));
	EXPECT_FALSE(Enum->SetEnums({{TEXT("EFull::A"), MAX_int64}}, UEnum::ECppForm::EnumClass));
	EXPECT_EQ(Enum->NumEnums(), 1);
}
