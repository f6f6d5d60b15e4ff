#include "BlueprintToolFixture.h"
#include "Dom/JsonObject.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/InheritableComponentHandler.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/LumAddress.h"
#include "LumTestComponent.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "VexelJson.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/** A Blueprint with a component Light of 800, its child, and the child of that. */
class FLumInheritedComponentTest : public FBlueprintToolTest
{
protected:
	virtual void SetUp() override
	{
		FBlueprintToolTest::SetUp();
		Node = Blueprint->SimpleConstructionScript->CreateNode(ULumLight::StaticClass(), TEXT("Light"));
		Blueprint->SimpleConstructionScript->AddNode(Node);
		OfParent()->Intensity = 800.0;
		OfParent()->Names = {TEXT("a"), TEXT("b"), TEXT("c")};
		OfParent()->Counts = {{TEXT("x"), 1}, {TEXT("y"), 2}};
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		Child = MakeChild(*Blueprint);
		Grandchild = MakeChild(*Child);
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	virtual void TearDown() override
	{
		GEditor->ResetTransaction(INVTEXT("Test"));
		for (UBlueprint* const Made : {Grandchild, Child})
		{
			if (Made)
			{
				Forget(*Made);
			}
		}
		FBlueprintToolTest::TearDown();
	}

	static UBlueprint* MakeChild(const UBlueprint& Parent)
	{
		const FString Name = Parent.GetName() + TEXT("Child");
		return FKismetEditorUtilities::CreateBlueprint(
			Parent.GeneratedClass, CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
	}

	static FLumAddress Find(UBlueprint& In, const std::string& Path)
	{
		return FLumAddress::Find(In, FString(TEXT("$ClassDefaultObject.")) + UTF8_TO_TCHAR(Path.c_str())).GetValue();
	}
	/** Empty, or the text of the error. */
	static std::string Set(UBlueprint& In, const std::string& Path, const std::string& Value)
	{
		TSharedRef<FJsonValue> Json = MakeShared<FJsonValueString>(FString(UTF8_TO_TCHAR(Value.c_str())));
		TSharedPtr<FJsonObject> Object;
		if (Value[0] == '{' && FVexelJsonConversions::StringToJson(UTF8_TO_TCHAR(Value.c_str()), Object))
		{
			Json = MakeShared<FJsonValueObject>(Object);
		}
		const TVexelExpected<void> Result = Find(In, Path).Write(Json);
		return Result.HasError() ? ToStd(Result.GetError().ToString()) : "";
	}
	static std::string ExportOf(UBlueprint& In, const std::string& Path)
	{
		FString Text;
		const TVexelExpected<TSharedRef<FJsonObject>> Object = Find(In, Path).Describe();
		return Object.HasValue() && FVexelJsonConversions::JsonToString(Object.GetValue(), Text) ? ToStd(Text) : "no export";
	}

	ULumLight* OfParent() const { return CastChecked<ULumLight>(Node->ComponentTemplate.Get()); }
	/** What actors of the Blueprint have. */
	ULumLight* LightOf(const UBlueprint* Of) const
	{
		return CastChecked<ULumLight>(Node->GetActualComponentTemplate(Cast<UBlueprintGeneratedClass>(Of->GeneratedClass.Get())));
	}
	double Of(const UBlueprint* Which) const { return LightOf(Which)->Intensity; }
	static bool Overrides(const UBlueprint* Which)
	{
		return Which->InheritableComponentHandler && !Which->InheritableComponentHandler->IsEmpty();
	}

	USCS_Node* Node = nullptr;
	UBlueprint* Child = nullptr;
	UBlueprint* Grandchild = nullptr;
};

TEST_F(FLumInheritedComponentTest, IsShownWithWhatHoldsInTheChildWhoeverSetIt)
{
	OfParent()->Names.Empty();
	OfParent()->Counts.Empty();
	const std::string Part = R"({"id":"Part","declared_in":"object.LumLight","type":"object.LumPart","value":{"type":"object.LumPart"},)"
							 R"("category":"","instanced":true,"edit":true})";
	const auto Expected = [this, &Part](const char* Intensity)
	{
		return R"({"id":"Light","declared_in":"object.)" + ToStd(Blueprint->GetName()) +
			R"(","type":"object.LumLight","value":{"type":"object.LumLight","properties":[{"id":"Intensity",)"
			R"("declared_in":"object.LumLight","type":"real","value":")" +
			Intensity + R"(","category":"","edit":true},)" + Part + R"(]},"category":"","instanced":true,"access":"read_write"})";
	};
	for (UBlueprint* const Each : {Blueprint, Child, Grandchild})
	{
		EXPECT_EQ(Expected("800.000000"), ExportOf(*Each, "Light")) << ToStd(Each->GetName());
	}
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "500"));
	EXPECT_EQ(Expected("800.000000"), ExportOf(*Blueprint, "Light"));
	EXPECT_EQ(Expected("500.000000"), ExportOf(*Child, "Light"));
	EXPECT_EQ(Expected("500.000000"), ExportOf(*Grandchild, "Light"));
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "5000"));
	EXPECT_THAT(ExportOf(*Grandchild, "Light"), HasSubstr(R"("value":{"type":"object.LumLight","properties":[{"id":"Part")"))
		<< "the intensity is the class's own";
}

TEST_F(FLumInheritedComponentTest, AnEditThroughTheChildIsOneEntryThatLeavesTheParentAlone)
{
	Blueprint->GetPackage()->SetDirtyFlag(false);
	Child->GetPackage()->SetDirtyFlag(false);
	Child->Status = BS_UpToDate;
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "500"));
	EXPECT_EQ(1, NumUndos());
	EXPECT_EQ(800.0, Of(Blueprint));
	EXPECT_EQ(500.0, Of(Child));
	EXPECT_EQ(500.0, Of(Grandchild));
	EXPECT_EQ(LightOf(Child), LightOf(Grandchild));
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
	EXPECT_TRUE(Child->GetPackage()->IsDirty());
	EXPECT_EQ(BS_Dirty, Child->Status);
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_EQ(500.0, Of(Grandchild));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(800.0, Of(Child));
	EXPECT_EQ(nullptr, Child->InheritableComponentHandler);
	EXPECT_EQ(OfParent(), LightOf(Grandchild));
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(500.0, Of(Child));
}

TEST_F(FLumInheritedComponentTest, ARefusedEditLeavesNoOverrideAndNoEntry)
{
	const struct
	{
		const char* Path;
		const char* Value;
		const char* Error;
	} Cases[] = {
		{"Light.Intensity", "bright", "Failed to import text to property 'Intensity'"},
		{"Light.OfInstances", "1", "it is set on instances, not on defaults"},
		{"Light", "ref|None", "'Light' is a component of the blueprint"},
		{"Light", "{\"Nope\": \"1\"}", "Property 'Nope' not found"},
		{"Light.Names.0", "b", "already has an equal element"},
		{"Light.Counts", "{\"7\": {\"key\": \"z\"}}", "Map index out of range"},
		{"Light.Part.Strength", "strong", "Failed to import text to property 'Strength'"},
		{"Light.Target", "ref|/Game/Nowhere.Nowhere", "Nowhere"},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_THAT(Set(*Child, Case.Path, Case.Value), HasSubstr(Case.Error));
		EXPECT_EQ(nullptr, Child->InheritableComponentHandler) << Case.Path;
		EXPECT_EQ(0, NumUndos()) << Case.Path;
	}
	const std::string OwnPart = "ref|" + ToStd(OfParent()->Part->GetPathName());
	EXPECT_EQ("", Set(*Child, "Light.Part", OwnPart)) << "what it is already";
	OfParent()->Part->Next = NewObject<ULumPart>(OfParent(), NAME_None, RF_Public);
	const std::string PartOfParent = "ref|" + ToStd(OfParent()->Part->Next->GetPathName());
	EXPECT_THAT(Set(*Child, "Light.Part", PartOfParent), HasSubstr("is a part of another object"));
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "800")) << "what it is already";
	EXPECT_EQ(nullptr, Child->InheritableComponentHandler);
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FLumInheritedComponentTest, AnEditOnTheParentReachesWhatChildrenDoNotOverride)
{
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "500"));
	EXPECT_EQ("", Set(*Grandchild, "Light.Steps", R"({"0": "1", "1": "2"})"));
	AActor* const Actor = NewObject<AActor>(GetTransientPackage(), Grandchild->GeneratedClass);
	ULumLight* const Placed = CastChecked<ULumLight>(Node->ExecuteNodeOnActor(Actor, nullptr));
	ASSERT_EQ(LightOf(Grandchild), Placed->GetArchetype());
	GEditor->ResetTransaction(INVTEXT("Test"));
	{
		const FScopedTransaction Transaction(INVTEXT("Edit"));
		EXPECT_EQ("", Set(*Blueprint, "Light.Intensity", "900"));
		EXPECT_EQ("", Set(*Blueprint, "Light.Radius", "250"));
		EXPECT_EQ("", Set(*Child, "Light.Intensity", "600"));
	}
	EXPECT_EQ(900.0, Of(Blueprint));
	for (const ULumLight* const Light : {LightOf(Child), LightOf(Grandchild), Placed})
	{
		EXPECT_EQ(600.0, Light->Intensity);
		EXPECT_EQ(250.0, Light->Radius);
	}
	EXPECT_EQ(TArray<int32>(), LightOf(Child)->Steps);
	EXPECT_EQ((TArray<int32>{1, 2}), Placed->Steps);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(800.0, Of(Blueprint));
	for (const ULumLight* const Light : {LightOf(Child), LightOf(Grandchild), Placed})
	{
		EXPECT_EQ(500.0, Light->Intensity);
		EXPECT_EQ(1000.0, Light->Radius);
	}
}

TEST_F(FLumInheritedComponentTest, TheParentsValueEndsTheOverrideAndUndoBringsItBack)
{
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "500"));
	EXPECT_EQ("", Set(*Child, "Light.Radius", "1"));
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "800"));
	EXPECT_TRUE(Overrides(Child)) << "of the radius";
	EXPECT_EQ("", Set(*Child, "Light", R"({"Radius": "1000", "Part": {"Strength": "9"}})"));
	EXPECT_TRUE(Overrides(Child)) << "of the part";
	EXPECT_EQ("", Set(*Child, "Light.Part.Strength", "3"));
	EXPECT_FALSE(Overrides(Child));
	EXPECT_EQ(OfParent(), LightOf(Grandchild));
	FKismetEditorUtilities::CompileBlueprint(Child);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(9, LightOf(Child)->Part->Strength);
	EXPECT_EQ(3, OfParent()->Part->Strength);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(1.0, LightOf(Grandchild)->Radius);
	EXPECT_EQ(500.0, Of(Grandchild));
	EXPECT_EQ("", Set(*Child, "Light", R"({"Intensity": "800", "Radius": "1000"})"));
	EXPECT_FALSE(Overrides(Child));
	EXPECT_EQ("", Set(*Child, "Light.Intensity", "1"));
	EXPECT_EQ(1.0, Of(Child)) << "the name of the template is free";
}

TEST_F(FLumInheritedComponentTest, AnyPlaceInItIsWritten)
{
	EXPECT_EQ("", Set(*Grandchild, "Light.Part.Strength", "9"));
	ASSERT_TRUE(Overrides(Grandchild) && !Overrides(Child));
	EXPECT_EQ(3, OfParent()->Part->Strength);
	EXPECT_EQ(9, LightOf(Grandchild)->Part->Strength);
	EXPECT_EQ(LightOf(Grandchild), LightOf(Grandchild)->Part->GetOuter());
	EXPECT_EQ("", Set(*Child, "Light.Names.1", "d"));
	EXPECT_TRUE(LightOf(Child)->Names.Contains(TEXT("d")) && !LightOf(Child)->Names.Contains(TEXT("b")));
	EXPECT_TRUE(OfParent()->Names.Contains(TEXT("b")));
	EXPECT_TRUE(LightOf(Grandchild)->Names.Contains(TEXT("d"))) << "its override had the old names";
	EXPECT_EQ("", Set(*Child, "Light.Counts.1.value", "20"));
	EXPECT_EQ(20, LightOf(Child)->Counts.FindRef(TEXT("y")));
	EXPECT_EQ(2, OfParent()->Counts.FindRef(TEXT("y")));
	EXPECT_EQ("", Set(*Child, "Light.RelativeLocation.Y", "7"));
	EXPECT_EQ(FVector(0, 7, 0), LightOf(Child)->GetRelativeLocation());
	EXPECT_EQ("", Set(*Child, "Light.Target", "ref|" + ToStd(Child->GetPathName())));
	EXPECT_EQ(Child, LightOf(Child)->Target);
}

TEST_F(FLumInheritedComponentTest, AnElementThatIsAddressedBehindARemovedOneIsTheSameInTheCopy)
{
	const auto Edit = [this](const TCHAR* Blueprint, const std::string& Operation)
	{
		return ItemErrorsOf(TEXT("object_edit"),
			"{'blueprint': '" + ToStd(Blueprint) + "', 'requests': [{'target': {'target_type': 'blueprint'}, 'operations': [" + Operation +
				"]}]}");
	};
	for (const char* const Container : {"Names", "Counts"})
	{
		EXPECT_THAT(Edit(*Blueprint->GetPathName(),
						std::string("{'operation': 'remove', 'prop_path': '$ClassDefaultObject.Light.") + Container + "', 'index': 0}"),
			IsEmpty());
	}
	EXPECT_THAT(Edit(*Child->GetPathName(), "{'operation': 'remove', 'prop_path': '$ClassDefaultObject.Light.Names', 'index': 1}"), IsEmpty());
	EXPECT_EQ("", Set(*Child, "Light.Counts.0.value", "20"));
	EXPECT_EQ(1, LightOf(Child)->Names.Num());
	EXPECT_TRUE(LightOf(Child)->Names.Contains(TEXT("b")));
	EXPECT_EQ(2, OfParent()->Names.Num());
	EXPECT_EQ(20, LightOf(Child)->Counts.FindRef(TEXT("y")));
	EXPECT_EQ(2, OfParent()->Counts.FindRef(TEXT("y")));
}

TEST_F(FLumInheritedComponentTest, AnAddressFromBeforeTheOverrideLeadsToIt)
{
	const FLumAddress Intensity = Find(*Child, "Light.Intensity");
	const FLumAddress Strength = Find(*Child, "Light.Part.Strength");
	EXPECT_EQ("", Set(*Child, "Light.Radius", "1"));
	EXPECT_TRUE(Intensity.Write(MakeShared<FJsonValueString>(TEXT("500"))).HasValue());
	EXPECT_TRUE(Strength.Write(MakeShared<FJsonValueString>(TEXT("9"))).HasValue());
	EXPECT_EQ(800.0, Of(Blueprint));
	EXPECT_EQ(3, OfParent()->Part->Strength);
	EXPECT_EQ(500.0, Of(Child));
	EXPECT_EQ(9, LightOf(Child)->Part->Strength);
	EXPECT_EQ("500.000000", ToStd(Intensity.Read().GetValue()->AsString()));
	EXPECT_TRUE(GEditor->UndoTransaction() && GEditor->UndoTransaction() && GEditor->UndoTransaction());
	EXPECT_EQ("800.000000", ToStd(Intensity.Read().GetValue()->AsString()));
}

TEST_F(FLumInheritedComponentTest, IsWrittenByTheToolAsOneEntry)
{
	const auto Edit = [this](const char* Value)
	{
		return "{'blueprint': '" + ToStd(Child->GetPathName()) +
			"', 'requests': [{'target': {'target_type': 'blueprint'}, 'operations': [{'operation': 'update', "
			"'prop_path': '$ClassDefaultObject.Light.Intensity', 'value': '" +
			Value + "'}]}]}";
	};
	EXPECT_THAT(ItemErrorsOf(TEXT("object_edit"), Edit("dim")), Not(IsEmpty()));
	EXPECT_EQ(0, NumUndos());
	EXPECT_EQ(nullptr, Child->InheritableComponentHandler);
	const FAnswer Answer = Call(TEXT("object_edit"), Edit("500"));
	ASSERT_TRUE(Answer.HasValue());
	FString Text;
	FVexelJsonConversions::JsonToString(Answer.GetValue(), Text);
	EXPECT_THAT(ToStd(Text), HasSubstr(R"("value":"500.000000")"));
	EXPECT_EQ(1, NumUndos());
	EXPECT_EQ(800.0, Of(Blueprint));
	EXPECT_EQ(500.0, Of(Grandchild));
}

TEST_F(FLumInheritedComponentTest, OfANameThatTheChildHasGivenAwayIsNotShown)
{
	// The parent's component came after the child's, and nobody has compiled the child with both.
	USCS_Node* const Own = Child->SimpleConstructionScript->CreateNode(ULumLight::StaticClass(), TEXT("Second"));
	Child->SimpleConstructionScript->AddNode(Own);
	FKismetEditorUtilities::CompileBlueprint(Child);
	Blueprint->SimpleConstructionScript->AddNode(
		Blueprint->SimpleConstructionScript->CreateNode(ULumLight::StaticClass(), TEXT("Second")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ("", Set(*Child, "Second.Intensity", "1"));
	EXPECT_EQ(1.0, CastChecked<ULumLight>(Own->ComponentTemplate.Get())->Intensity);
	EXPECT_EQ(nullptr, Child->InheritableComponentHandler);
}
}
