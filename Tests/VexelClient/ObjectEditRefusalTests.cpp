#include "Components/SceneComponent.h"
#include "Dom/JsonValue.h"
#include "EdGraphSchema_K2.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Lum/LumAddress.h"
#include "ObjectEditFixture.h"
#include "VexelJson.h"

namespace
{
struct FRefusedValue
{
	const char* Name;
	const char* Address;
	const char* Value;
	/** What the Blueprint accepts there, so that the refusal is the value's own fault. */
	const char* GoodValue;
};

/** A bad value for each kind of target on the Blueprint of the fixture. */
const FRefusedValue RefusedValues[] = {
	{"MemberVariable", "member@Health", "many", "7"},
	{"DefaultOfAVariable", "$ClassDefaultObject.Health", "many", "7"},
	{"InheritedProperty", "$ClassDefaultObject.InitialLifeSpan", "long", "7"},
	{"FieldOfAComponent", "$ClassDefaultObject.Arm.RelativeLocation.X", "far", "7"},
	{"StructOfAComponent", "$ClassDefaultObject.Arm.RelativeLocation", "(X=far)", "(X=7)"},
	{"Component", "$ClassDefaultObject.Arm", "ref|None", nullptr},
	{"Container", "$ClassDefaultObject.Stops", "(7)", nullptr},
	{"Element", "$ClassDefaultObject.Stops.0", "far", "7"},
	{"NameOfAGraph", "Heal/.name", "", "Cure"},
	{"NameOfAnEvent", "EventGraph/Hurt_0.name", "a.b", "Harm"},
	{"LocalVariable", "Heal/.local@Left", "some", "7"},
	{"InputOfAFunction", "Heal/.in@Amount", "some", "7"},
	{"OutputOfAFunction", "Heal/.out@Total", "some", "7"},
	{"InputOfAMacro", "Twice/.in@Number", "some", "7"},
	{"InputOfADispatcher", "OnHurt/.in@Damage", "some", "7"},
	{"InputOfAnEvent", "EventGraph/Hurt_0.out@Damage", "some", "7"},
	{"Pin", "EventGraph/SetHealth_0.Health", "some", "7"},
	{"ExecutionPin", "EventGraph/SetHealth_0.execute", "some", nullptr},
	{"TargetPin", "EventGraph/SetHealth_0.self", "some", "self"},
	{"OutputPin", "EventGraph/SetHealth_0.Output_Get", "7", nullptr},
};

class FRefusedValueTest : public FObjectEditTest, public testing::WithParamInterface<FRefusedValue>
{
protected:
	virtual void SetUp() override
	{
		FObjectEditTest::SetUp();
		USimpleConstructionScript& Script = *Blueprint->SimpleConstructionScript;
		Script.AddNode(Script.CreateNode(USceneComponent::StaticClass(), TEXT("Arm")));
		const FEdGraphPinType Numbers(UEdGraphSchema_K2::PC_Int, NAME_None, nullptr, EPinContainerType::Array, false, FEdGraphTerminalType());
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Stops"), Numbers, TEXT("(1,2)")));
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		Blueprint->GetPackage()->SetDirtyFlag(false);
		NumUndosBefore = NumUndos();
		Before = Export();
	}

	FString Export() const
	{
		FString Text;
		const TSharedRef<FJsonObject> Object = FLumAddress::Find(*Blueprint, FString()).GetValue().Describe().GetValue();
		EXPECT_TRUE(FVexelJsonConversions::JsonToString(Object, Text));
		return Text;
	}

	FLumAddress Find() const { return FLumAddress::Find(*Blueprint, UTF8_TO_TCHAR(GetParam().Address)).GetValue(); }

	/** "ok", or why not. */
	static std::string Write(const FLumAddress& Address, const char* Value)
	{
		const TVexelExpected<void> Result = Address.Write(MakeShared<FJsonValueString>(UTF8_TO_TCHAR(Value)));
		return Result.HasError() ? ToStd(Result.GetError().ToChainString()) : "ok";
	}

	void ExpectNothingChanged()
	{
		EXPECT_EQ(ToStd(Before), ToStd(Export()));
		EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
		EXPECT_EQ(BS_UpToDate, Blueprint->Status);
		EXPECT_EQ(NumUndosBefore, NumUndos());
	}

	int32 NumUndosBefore = 0;
	FString Before;
};

TEST_P(FRefusedValueTest, ChangesNothing)
{
	EXPECT_NE("ok", Write(Find(), GetParam().Value));
	ExpectNothingChanged();
}

TEST_P(FRefusedValueTest, IsTheValuesFaultSinceAnotherOneIsTakenAndReadBack)
{
	if (GetParam().GoodValue)
	{
		const FLumAddress Address = Find();
		EXPECT_EQ("ok", Write(Address, GetParam().GoodValue));
		const TSharedRef<FJsonValue> Read = Address.Read().GetValue();
		EXPECT_TRUE(Read->Type == EJson::Object || Read->AsString().StartsWith(UTF8_TO_TCHAR(GetParam().GoodValue))) << ToStd(Read->AsString());
	}
}

INSTANTIATE_TEST_SUITE_P(Targets, FRefusedValueTest, testing::ValuesIn(RefusedValues),
	[](const testing::TestParamInfo<FRefusedValue>& Info)
	{ return std::string(Info.param.Name); });
}
