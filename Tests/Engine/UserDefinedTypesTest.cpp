#include "EngineTestGraph.h"

#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "UObject/EnumProperty.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

namespace
{
using UECodeGen_Private::EPropertyGenKind;

class FUserDefinedTypesTest : public FEngineTest
{
protected:
	static UUserDefinedEnum* MakeEnum()
	{
		UUserDefinedEnum* const Enum = NewObject<UUserDefinedEnum>(CreatePackage(TEXT("/Game/E_Weather")), TEXT("E_Weather"), RF_Public);
		Enum->SetEnums({{TEXT("E_Weather::NewEnumerator0"), 0}, {TEXT("E_Weather::NewEnumerator3"), 1}}, UEnum::ECppForm::Namespaced);
		Enum->DisplayNameMap.Add(TEXT("NewEnumerator0"), FText::FromString(TEXT("Dry, mostly")));
		Enum->DisplayNameMap.Add(TEXT("NewEnumerator3"), FText::FromString(TEXT("Wet")));
		return Enum;
	}

	static UUserDefinedStruct* MakeStruct(UUserDefinedEnum* Enum)
	{
		UUserDefinedStruct* const Struct = NewObject<UUserDefinedStruct>(CreatePackage(TEXT("/Game/S_Day")), TEXT("S_Day"), RF_Public);
		FPropertyDescription Weather;
		Weather.Name = TEXT("Weather_2_0123456789ABCDEF0123456789ABCDEF");
		Weather.Kind = EPropertyGenKind::Byte;
		Weather.Type = Enum;
		FPropertyDescription Rain;
		Rain.Name = TEXT("Rain (mm)_5_FEDCBA9876543210FEDCBA9876543210");
		Rain.Kind = EPropertyGenKind::Double;
		for (const FPropertyDescription& Member : {Weather, Rain})
		{
			Struct->AddCppProperty(ConstructPropertyFromDescription(Struct, Member));
		}
		Struct->StaticLink(true);
		return Struct;
	}
};

TEST_F(FUserDefinedTypesTest, ValuesAreWrittenByMemberIdsAndReadByWhatTheUserTypedToo)
{
	const TStrongObjectPtr<UUserDefinedEnum> Enum(MakeEnum());
	const TStrongObjectPtr<UUserDefinedStruct> Struct(MakeStruct(Enum.Get()));
	TArray<uint8> Memory;
	Memory.SetNumZeroed(Struct->GetStructureSize());
	Struct->InitializeStruct(Memory.GetData());
	ASSERT_NE(
		Struct->ImportText(TEXT("(Weather=NewEnumerator3,Rain (mm)=2.5)"), Memory.GetData(), nullptr, PPF_None, nullptr, TEXT("S_Day")),
		nullptr);
	FString Text;
	Struct->ExportText(Text, Memory.GetData(), nullptr, nullptr, PPF_None, nullptr);
	EXPECT_EQ(Text,
		TEXT("(Weather_2_0123456789ABCDEF0123456789ABCDEF=NewEnumerator3,Rain (mm)_5_FEDCBA9876543210FEDCBA9876543210=2.500000)"));
	FString Friendly;
	Struct->ExportText(Friendly, Memory.GetData(), nullptr, nullptr, PPF_ExternalEditor, nullptr);
	EXPECT_EQ(Friendly, TEXT("(Weather=NewEnumerator3,Rain (mm)=2.500000)"));
	TArray<uint8> Again;
	Again.SetNumZeroed(Struct->GetStructureSize());
	ASSERT_NE(Struct->ImportText(*Text, Again.GetData(), nullptr, PPF_None, nullptr, TEXT("S_Day")), nullptr);
	EXPECT_TRUE(Struct->CompareScriptStruct(Memory.GetData(), Again.GetData(), PPF_None));
}

TEST_F(FUserDefinedTypesTest, EnumeratorsShowTheUsersTextAndGetFreshNames)
{
	const TStrongObjectPtr<UUserDefinedEnum> Enum(MakeEnum());
	EXPECT_EQ(Enum->GetDisplayNameTextByIndex(0).ToString(), TEXT("Dry, mostly"));
	EXPECT_EQ(Enum->GetDisplayNameTextByValue(1).ToString(), TEXT("Wet"));
	EXPECT_EQ(Enum->GetNameStringByIndex(1), TEXT("NewEnumerator3"));
	EXPECT_EQ(Enum->GetIndexByNameString(TEXT("Wet")), INDEX_NONE);
	EXPECT_EQ(Enum->GenerateNewEnumeratorName(), TEXT("NewEnumerator1"));
	EXPECT_EQ(Enum->GenerateNewEnumeratorName(), TEXT("NewEnumerator2"));
	EXPECT_EQ(Enum->GenerateNewEnumeratorName(), TEXT("NewEnumerator4"));
}
}
