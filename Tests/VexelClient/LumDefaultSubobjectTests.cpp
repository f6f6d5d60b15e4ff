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

/** A Blueprint of a Character, whose components the engine's C++ makes, and a child of it. */
class FLumNativeComponentTest : public FLumTest
{
protected:
	virtual void SetUp() override
	{
		FLumTest::SetUp();
		Walker = Make(TEXT("Walker"), FindObject<UClass>(nullptr, TEXT("/Script/Engine.Character")));
		Runner = Make(TEXT("Runner"), Walker->GeneratedClass.Get());
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	virtual void TearDown() override
	{
		Forget(*Runner);
		Forget(*Walker);
		FLumTest::TearDown();
	}

	UBlueprint* Make(const TCHAR* Suffix, UClass* Parent) const
	{
		const FString Name = Blueprint->GetName() + Suffix;
		return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
	}

	static std::string Write(UBlueprint& Target, const TCHAR* Path, const TCHAR* Value)
	{
		const TVexelExpected<FLumAddress> Address = FLumAddress::Find(Target, Path);
		const TVexelExpected<void> Written =
			Address.HasError() ? TVexelExpected<void>(Address.GetError()) : Address.GetValue().Write(MakeShared<FJsonValueString>(Value));
		return Written.HasError() ? ToStd(Written.GetError().ToString()) : std::string();
	}
	static std::string Read(UBlueprint& Target, const TCHAR* Path)
	{
		const TVexelExpected<FLumAddress> Address = FLumAddress::Find(Target, Path);
		return Address.HasError() ? ToStd(Address.GetError().ToString()) : ToStd(Address.GetValue().Read().GetValue()->AsString());
	}
	/** The ids of what the default object's export shows, and in brackets those of what is shown of each. */
	static std::string ListShown(const UBlueprint& Target)
	{
		const TSharedRef<FJsonValue> Defaults =
			FLumAddress::Find(const_cast<UBlueprint&>(Target), TEXT("$ClassDefaultObject")).GetValue().Read().GetValue();
		return ListShown(*Defaults->AsObject());
	}

	UBlueprint* Walker = nullptr;
	UBlueprint* Runner = nullptr;

private:
	static std::string ListShown(const FJsonObject& Object)
	{
		std::string List;
		const TArray<TSharedPtr<FJsonValue>>* Properties = nullptr;
		Object.TryGetArrayField(TEXT("properties"), Properties);
		for (int32 Index = 0; Properties && Index < Properties->Num(); ++Index)
		{
			const FJsonObject& Property = *(*Properties)[Index]->AsObject();
			const TSharedPtr<FJsonObject>* Value = nullptr;
			const std::string Inside = Property.TryGetObjectField(TEXT("value"), Value) ? ListShown(**Value) : std::string();
			List += (List.empty() ? "" : " ") + ToStd(Property.GetStringField(TEXT("id"))) + (Inside.empty() ? "" : "(" + Inside + ")");
		}
		return List;
	}
};

TEST_F(FLumNativeComponentTest, AreShownOnceWithWhatTheBlueprintChanges)
{
	EXPECT_EQ("Mesh CharacterMovement CapsuleComponent", ListShown(*Walker));
	EXPECT_EQ("", Write(*Walker, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z"), TEXT("-88")));
	EXPECT_EQ("", Write(*Walker, TEXT("$ClassDefaultObject.CharacterMovement.MaxWalkSpeed"), TEXT("250")));
	EXPECT_EQ("Mesh(RelativeLocation(X Y Z)) CharacterMovement(MaxWalkSpeed) CapsuleComponent", ListShown(*Walker));
	EXPECT_EQ("Mesh CharacterMovement CapsuleComponent", ListShown(*Runner)) << "the parent's values are no change of the child's";
}

TEST_F(FLumNativeComponentTest, AreReachedByPathAndFollowTheParentUntilTheyAreSet)
{
	EXPECT_EQ("88.000000", Read(*Walker, TEXT("$ClassDefaultObject.CapsuleComponent.CapsuleHalfHeight")));
	EXPECT_EQ("88.000000", Read(*Walker, TEXT("$ClassDefaultObject.RootComponent.CapsuleHalfHeight")));
	EXPECT_EQ("", Write(*Walker, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z"), TEXT("-88")));
	EXPECT_EQ("-88.000000", Read(*Runner, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
	EXPECT_EQ("", Write(*Runner, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z"), TEXT("-70")));
	EXPECT_EQ("", Write(*Walker, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z"), TEXT("-90")));
	EXPECT_EQ("-90.000000", Read(*Walker, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
	EXPECT_EQ("-70.000000", Read(*Runner, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ("-88.000000", Read(*Walker, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
	EXPECT_EQ("-70.000000", Read(*Runner, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ("-88.000000", Read(*Runner, TEXT("$ClassDefaultObject.Mesh.RelativeLocation.Z")));
}

TEST_F(FLumNativeComponentTest, AreNotReplaced)
{
	EXPECT_NE("", Write(*Walker, TEXT("$ClassDefaultObject.Mesh"), TEXT("ref|None")));
	EXPECT_EQ("Mesh CharacterMovement CapsuleComponent", ListShown(*Walker));
}
}
