#include "Dom/JsonObject.h"
#include "Editor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/LumAddress.h"
#include "LumTestBlueprint.h"
#include "LumTestTypes.h"
#include "UObject/Package.h"
#include "VexelJson.h"

namespace
{
/** A Blueprint whose native parent makes a part of its own. */
class FLumDefaultSubobjectTest : public FLumTest
{
protected:
	virtual void SetUp() override
	{
		FLumTest::SetUp();
		const FString Name = Blueprint->GetName() + TEXT("Whole");
		Whole = FKismetEditorUtilities::CreateBlueprint(
			ULumWhole::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		ASSERT_NE(nullptr, Whole);
		FKismetEditorUtilities::CompileBlueprint(Whole);
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	virtual void TearDown() override
	{
		if (Whole)
		{
			Forget(*Whole);
		}
		FLumTest::TearDown();
	}

	std::string Export() const
	{
		const TVexelExpected<TSharedRef<FJsonObject>> Object =
			FLumAddress::Find(*Whole, TEXT("$ClassDefaultObject.OwnPart")).GetValue().Describe();
		FString Text;
		return Object.HasValue() && FVexelJsonConversions::JsonToString(Object.GetValue(), Text) ? ToStd(Text) : "no export";
	}
	std::string ExportDefaults() const
	{
		FString Text;
		const TSharedRef<FJsonValue> Value = FLumAddress::Find(*Whole, TEXT("$ClassDefaultObject")).GetValue().Read().GetValue();
		return FVexelJsonConversions::JsonToString(Value->AsObject().ToSharedRef(), Text) ? ToStd(Text) : "no export";
	}
	int32 GetStrength() const { return Whole->GeneratedClass->GetDefaultObject<ULumWhole>()->OwnPart->Strength; }

	UBlueprint* Whole = nullptr;
};

TEST_F(FLumDefaultSubobjectTest, IsShownWithWhatDiffersFromTheParents)
{
	ULumPart* const Own = Whole->GeneratedClass->GetDefaultObject<ULumWhole>()->OwnPart;
	ASSERT_NE(GetDefault<ULumWhole>()->OwnPart, Own);
	EXPECT_EQ(R"({"id":"OwnPart","declared_in":"object.LumWhole","type":"object.LumPart","value":{"type":"object.LumPart"},)"
			  R"("category":"","instanced":true,"edit":true})",
		Export());
	Own->Strength = 8;
	EXPECT_NE(std::string::npos, ExportDefaults().find(R"("id":"OwnPart")")) << ExportDefaults();
	EXPECT_NE(std::string::npos, ExportDefaults().find(R"("id":"Strength","declared_in":"object.LumPart","type":"int32","value":"8")"))
		<< ExportDefaults();
}

TEST_F(FLumDefaultSubobjectTest, IsSetForTheBlueprintAloneAndUndone)
{
	const FLumAddress Strength = FLumAddress::Find(*Whole, TEXT("$ClassDefaultObject.OwnPart.Strength")).GetValue();
	ASSERT_TRUE(Strength.Write(MakeShared<FJsonValueString>(TEXT("8"))).HasValue());
	EXPECT_EQ(8, GetStrength());
	EXPECT_EQ(3, GetDefault<ULumWhole>()->OwnPart->Strength);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(3, GetStrength());
	EXPECT_TRUE(GEditor->RedoTransaction());
	FKismetEditorUtilities::CompileBlueprint(Whole);
	EXPECT_EQ(8, GetStrength());
}

TEST_F(FLumDefaultSubobjectTest, IsNotReplaced)
{
	const FLumAddress Part = FLumAddress::Find(*Whole, TEXT("$ClassDefaultObject.OwnPart")).GetValue();
	EXPECT_TRUE(Part.Write(MakeShared<FJsonValueString>(TEXT("ref|None"))).HasError());
	EXPECT_NE(nullptr, Whole->GeneratedClass->GetDefaultObject<ULumWhole>()->OwnPart);
}
}
