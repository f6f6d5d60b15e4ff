#include "PropertyTestTypes.h"

#include "Internationalization/Text.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

FPropertyDescription Flagged(const TCHAR* Name, uint64 Flags)
{
	FPropertyDescription Description = Describe(EPropertyGenKind::Int, Name);
	Description.PropertyFlags = static_cast<EPropertyFlags>(Flags);
	return Description;
}

/** EWay::Up = 0, EWay::Down = 1, which a person reads as "Downhill", and the maximum that every enum gets. */
UEnum* MakeWayEnum()
{
	UEnum* const Enum = NewObject<UEnum>(MakeTestPackage(TEXT("/Script/PortFlagTests")), TEXT("EWay"), RF_Public | RF_Standalone);
	Enum->SetEnums({{TEXT("EWay::Up"), 0}, {TEXT("EWay::Down"), 1}}, UEnum::ECppForm::EnumClass);
	Enum->SetMetaData(TEXT("DisplayName"), TEXT("Downhill"), 1);
	return Enum;
}
}

TEST(PortFlags, TellWhichMembersAreWritten)
{
	UScriptStruct* const Struct = MakeTestStruct(MakeTestPackage(TEXT("/Script/PortFlagTests")), TEXT("Flagged"),
		{Flagged(TEXT("Plain"), CPF_Edit), Flagged(TEXT("Hidden"), CPF_None), Flagged(TEXT("Passing"), CPF_Edit | CPF_Transient),
			Flagged(TEXT("Own"), CPF_Edit | CPF_DuplicateTransient), Flagged(TEXT("Quiet"), CPF_Edit | CPF_TextExportTransient),
			Flagged(TEXT("Play"), CPF_Edit | CPF_NonPIEDuplicateTransient), Flagged(TEXT("Old"), CPF_Edit | CPF_Deprecated)});
	const FTestValue Value(Describe(EPropertyGenKind::Struct, TEXT("Value"), Struct));
	struct FCase
	{
		int32 PortFlags;
		const char* Text;
	};
	for (const FCase& Case : {
			 FCase{PPF_None, "(Plain=0,Hidden=0,Own=0,Quiet=0)"},
			 FCase{PPF_Copy, "(Plain=0,Hidden=0)"},
			 FCase{PPF_Copy | PPF_IncludeTransient, "(Plain=0,Hidden=0,Passing=0,Own=0,Quiet=0)"},
			 FCase{PPF_IncludeTransient, "(Plain=0,Hidden=0,Passing=0,Own=0,Quiet=0)"},
			 FCase{PPF_DuplicateForPIE, "(Plain=0,Hidden=0,Own=0,Quiet=0,Play=0)"},
			 FCase{PPF_UseDeprecatedProperties, "(Plain=0,Hidden=0,Own=0,Quiet=0,Old=0)"},
			 FCase{PPF_ParsingDefaultProperties, "(Plain=0,Hidden=0,Passing=0,Own=0,Quiet=0,Old=0)"},
			 FCase{PPF_PropertyWindow, "(Plain=0,Own=0,Quiet=0)"},
			 FCase{PPF_SubobjectsOnly, "()"}})
	{
		EXPECT_EQ(ToStd(Value.Export(Case.PortFlags)), Case.Text) << std::hex << Case.PortFlags;
	}
}

TEST(PortFlags, AnEnumsMaximumHasANameInCopiesOnly)
{
	UEnum* const Enum = MakeWayEnum();
	for (const EPropertyGenKind Kind : {EPropertyGenKind::Enum, EPropertyGenKind::Byte})
	{
		FTestValue Value(Describe(Kind, TEXT("Value"), Enum));
		ASSERT_TRUE(Value.Import(TEXT("Down")));
		EXPECT_EQ(ToStd(Value.Export()), "Down");
		EXPECT_EQ(ToStd(Value.Export(PPF_PropertyWindow)), "Downhill");
		EXPECT_EQ(ToStd(Value.Export(PPF_ConsoleVariable)), "1");
		ASSERT_TRUE(Value.Import(TEXT("EWay_MAX")));
		EXPECT_EQ(ToStd(Value.Export()), "(INVALID)");
		EXPECT_EQ(ToStd(Value.Export(PPF_Copy)), "EWay_MAX");
		ASSERT_TRUE(Value.Import(TEXT("77")));
		EXPECT_EQ(ToStd(Value.Export(PPF_Copy)), "(INVALID)");
		EXPECT_FALSE(Value.Import(TEXT("(INVALID)")));
	}
}

TEST(PortFlags, APersonReadsValuesWithoutTheirNotation)
{
	FTestValue Number(Describe(EPropertyGenKind::Double));
	ASSERT_TRUE(Number.Import(TEXT("-2.5")));
	EXPECT_EQ(ToStd(Number.Export(PPF_PropertyWindow)), "-2.5");
	ASSERT_TRUE(Number.Import(TEXT("3")));
	EXPECT_EQ(ToStd(Number.Export(PPF_PropertyWindow)), "3.0");
	FTestValue Text(Describe(EPropertyGenKind::Text));
	ASSERT_TRUE(Text.Import(TEXT("NSLOCTEXT(\"n\", \"k\", \"say \\\"hi\\\"\")")));
	EXPECT_EQ(ToStd(Text.Export(PPF_PropertyWindow)), "say \"hi\"");
	EXPECT_EQ(ToStd(Text.Export(PPF_PropertyWindow | PPF_Delimited)), "\"say \\\"hi\\\"\"");
}

TEST(PortFlags, ReferencesAreAsLongAsTheirReaderNeedsThem)
{
	UPackage* const Package = MakeTestPackage(TEXT("/Game/PortFlagTests"));
	UClass* const Class = MakeTestClass(Package, TEXT("PortFlagHolder_C"), {});
	UObject* const Holder = NewObject<UObject>(Package, Class, TEXT("Holder"));
	UObject* const Sibling = NewObject<UObject>(Package, Class, TEXT("Sibling"));
	UObject* const Part = NewObject<UObject>(Holder, Class, TEXT("Part"));
	FObjectProperty Property{FFieldVariant(), TEXT("Value")};
	Property.PropertyClass = UObject::StaticClass();
	const auto Export = [&Property](UObject* Object, UObject* Parent, int32 PortFlags)
	{
		FString Text;
		Property.ExportTextItem_Direct(Text, &Object, nullptr, Parent, PortFlags, Parent);
		return ToStd(Text);
	};
	EXPECT_EQ(Export(Part, Holder, PPF_None), "\"/Game/PortFlagTests.PortFlagHolder_C'/Game/PortFlagTests.Holder:Part'\"");
	EXPECT_EQ(Export(Part, Holder, PPF_ExportsNotFullyQualified), "\"/Game/PortFlagTests.PortFlagHolder_C'Part'\"");
	EXPECT_EQ(Export(Sibling, Holder, PPF_ExportsNotFullyQualified), "\"/Game/PortFlagTests.PortFlagHolder_C'Sibling'\"");
	EXPECT_EQ(Export(Class->GetClass(), Holder, PPF_ExportsNotFullyQualified), "\"/Script/CoreUObject.Class'/Script/CoreUObject.Class'\"");
	EXPECT_EQ(Export(Part, Holder, PPF_SimpleObjectText), "Holder:Part");
	EXPECT_EQ(Export(nullptr, Holder, PPF_SimpleObjectText), "None");
}

TEST(PortFlags, PartsAreEqualByTheirValuesWhereThatIsAsked)
{
	UPackage* const Package = MakeTestPackage(TEXT("/Game/PortFlagTests"));
	UClass* const Class = MakeTestClass(Package, TEXT("PortFlagPart_C"), {Describe(EPropertyGenKind::Int, TEXT("Count"))});
	const FProperty* const Count = Class->FindPropertyByName(TEXT("Count"));
	UObject* Left = NewObject<UObject>(NewObject<UObject>(Package, Class), Class, TEXT("Part"));
	UObject* Right = NewObject<UObject>(NewObject<UObject>(Package, Class), Class, TEXT("Part"));
	FObjectProperty Property{FFieldVariant(), TEXT("Value")};
	Property.PropertyClass = UObject::StaticClass();
	EXPECT_FALSE(Property.Identical(&Left, &Right, PPF_DeepComparison)) << "what is only referred to is itself";
	Property.PropertyFlags |= CPF_InstancedReference;
	EXPECT_TRUE(Property.Identical(&Left, &Right, PPF_DeepComparison));
	EXPECT_FALSE(Property.Identical(&Left, &Right, PPF_None));
	ASSERT_TRUE(Count->ImportText_InContainer(TEXT("7"), Right, Right, PPF_None));
	EXPECT_FALSE(Property.Identical(&Left, &Right, PPF_DeepComparison));
}
