#include "Components/SceneComponent.h"
#include "Editor.h"
#include "Editor/TransBuffer.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/Property/LumUnrealBaseProperty.h"
#include "Lum/Property/LumUnrealVirtualProperty.h"
#include "Lum/Value/LumObjectOwner.h"
#include "LumTestBlueprint.h"
#include "LumValueFixture.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class FLumEditTest : public FLumValueTest
{
protected:
	virtual void SetUp() override
	{
		FLumValueTest::SetUp();
		Watch = NewObject<ULumWatch>(GetTransientPackage(), NAME_None, RF_Transactional);
		Root = Watch;
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	/** What the object was told since the last call. */
	std::vector<std::string> TakeTold(ULumWatch& Object)
	{
		std::vector<std::string> Told;
		for (const FString& Line : Object.Told)
		{
			Told.push_back(Utf8(Line));
		}
		Object.Told.Reset();
		return Told;
	}
	std::vector<std::string> TakeTold() { return TakeTold(*Watch); }

	static int32 NumUndos() { return GEditor->Trans->GetQueueLength(); }

	ULumWatch* Watch = nullptr;
};

TEST_F(FLumEditTest, ObjectIsToldOnceOfEachChangeWithTheWayToIt)
{
	EXPECT_EQ("ok", Import(TEXT("Number"), R"("2")"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre Number", "Post Number of Number"));
	EXPECT_EQ("ok", Import(TEXT("Struct.Inner.Depth"), R"("3")"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre Struct", "Post Depth of Struct"));
	EXPECT_EQ("ok", Import(TEXT("Struct"), R"({"Inner":{"Depth":"4","Label":"x"},"Weight":"2"})"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre Struct", "Post Struct of Struct"));
	EXPECT_EQ("ok", Import(TEXT("List"), R"({"0":{"Depth":"4"},"1":{"Depth":"5"}})"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre List", "Post List of List"));
	EXPECT_EQ("ok", Import(TEXT("List.1.Depth"), R"("6")"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre List", "Post Depth of List"));
}

TEST_F(FLumEditTest, RefusedValueIsNoChange)
{
	EXPECT_NE("ok", Import(TEXT("Number"), R"("many")"));
	EXPECT_NE("ok", Import(TEXT("Struct"), R"({"Inner":{"Depth":"deep"}})"));
	EXPECT_NE("ok", Import(TEXT("List"), R"({"0":{"Depth":"deep"}})"));
	EXPECT_EQ("ok", Import(TEXT("Struct"), "{}"));
	EXPECT_THAT(TakeTold(), IsEmpty());
	EXPECT_NE("ok", Import(TEXT("Struct"), R"({"Weight":"3","Inner":{"Depth":"deep"}})"));
	EXPECT_THAT(TakeTold(), ElementsAre("Pre Struct", "Post Struct of Struct"));
	EXPECT_EQ(3.0f, Watch->Struct.Weight);
}

TEST_F(FLumEditTest, OwnerOfAPartHearsOfItsChanges)
{
	Watch->Part = NewObject<ULumPart>(Watch, TEXT("Part"));
	EXPECT_EQ("ok", Import(TEXT("Part.Strength"), R"("8")"));
	EXPECT_EQ(8, Watch->Part->Strength);
	EXPECT_THAT(TakeTold(), ElementsAre("Pre Part", "Post Strength of Part"));
}

TEST_F(FLumEditTest, ObjectMayRefuse)
{
	const std::string Name = Utf8(Watch->GetName());
	EXPECT_EQ("Property 'Locked' of '" + Name + "' cannot be edited: the object does not allow it", Import(TEXT("Locked"), R"("2")"));
	EXPECT_EQ("Property 'DefaultsOnly' of '" + Name + "' cannot be edited: it is set on defaults, not on instances",
		Import(TEXT("DefaultsOnly"), R"("2")"));
	EXPECT_EQ("ok", Import(TEXT("InstanceOnly"), R"("2")"));
	EXPECT_EQ("ok", Import(TEXT("FixedSize"), R"({"1":"5"})"));
	EXPECT_EQ("The number of elements of 'FixedSize' is fixed, while importing array element at index 2",
		Import(TEXT("FixedSize"), R"({"2":"5"})"));
	EXPECT_EQ("The number of elements of 'FixedSize' is fixed", Say(Collection(TEXT("FixedSize")).RemoveAt(0)));
	EXPECT_EQ((TArray<int32>{1, 5}), Watch->FixedSize);
	EXPECT_EQ(1, Watch->Locked);
}

TEST_F(FLumEditTest, UndoRestoresExactlyAndIsOneEntry)
{
	Root = Thing;
	Thing->Numbers = {1, 2};
	Thing->Names = {TEXT("A"), TEXT("B")};
	Thing->Counts = {{TEXT("A"), 1}};
	Thing->Part = NewObject<ULumPart>(Thing, TEXT("Part"), RF_Transactional);
	const std::string Before = Snapshot(*Thing) + Snapshot(*Thing->Part);
	{
		const FScopedTransaction Transaction(INVTEXT("Edit"));
		EXPECT_EQ("ok", Import(TEXT("String"), R"("new")"));
		EXPECT_EQ("ok", Import(TEXT("Text"), R"x("INVTEXT(\"new\")")x"));
		EXPECT_EQ("ok", Import(TEXT("Numbers"), R"({"0":"9","5":"9"})"));
		EXPECT_EQ("ok", Import(TEXT("Names.0"), R"("C")"));
		EXPECT_EQ("ok", Say(Collection(TEXT("Names")).RemoveAt(1)));
		EXPECT_EQ("ok", Import(TEXT("Counts"), R"({"0":{"key":"Z"},"1":{"key":"Y","value":"4"}})"));
		EXPECT_EQ("ok", Import(TEXT("Struct.Inner"), R"({"Depth":"9"})"));
		EXPECT_EQ("ok", Import(TEXT("Object"), R"("ref|/Script/LumTestTypes.LumPart")"));
		EXPECT_EQ("ok", Import(TEXT("Part.Strength"), R"("77")"));
	}
	const std::string After = Snapshot(*Thing) + Snapshot(*Thing->Part);
	EXPECT_NE(Before, After);
	EXPECT_EQ(1, NumUndos());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Before, Snapshot(*Thing) + Snapshot(*Thing->Part));
	EXPECT_TRUE(Thing->Names.Contains(TEXT("A")));
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(After, Snapshot(*Thing) + Snapshot(*Thing->Part));
	EXPECT_TRUE(Thing->Names.Contains(TEXT("C")));
	EXPECT_EQ(4, Thing->Counts[TEXT("Y")]);
}

TEST_F(FLumEditTest, PropertyOfAnotherClassIsRefused)
{
	const FProperty* const Strength = ULumPart::StaticClass()->FindPropertyByName(TEXT("Strength"));
	const TVexelExpected<TSharedPtr<ILumProperty>> Member = FLumUnrealPropertyFactory::CreateMember(MakeShared<FLumObjectOwner>(*Watch), *Strength);
	ASSERT_TRUE(Member.HasError());
	EXPECT_EQ("Property 'Strength' does not belong to object of type 'LumWatch'", Utf8(Member.GetError().GetMessage()));
}

TEST_F(FLumEditTest, ValueOfAnObjectThatIsGoneIsRefused)
{
	const TSharedRef<ILumProperty> Number = Resolve(TEXT("Number")).GetValue();
	Watch->List.SetNum(2);
	const TSharedRef<ILumProperty> Element = Resolve(TEXT("List.1.Depth")).GetValue();
	const TSharedRef<ILumCompound> Struct = Compound(TEXT("Struct"));
	Watch->List.SetNum(1);
	EXPECT_EQ("Property is not valid!", Say(Element->JsonImportValue(Context, Parse(R"("1")").ToSharedRef())));
	Watch->MarkAsGarbage();
	CollectGarbage(RF_Standalone);
	EXPECT_EQ("Property is not valid!", Say(Number->JsonImportValue(Context, Parse(R"("1")").ToSharedRef())));
	EXPECT_EQ("Struct data is not valid, while iterating properties, while finding property 'Weight'",
		Say(Struct->JsonImportObject(Context, Parse(R"({"Weight":"1"})")->AsObject().ToSharedRef())));
}

/** Keeps the texts that it is to write back. */
class FKeptProperty : public FLumUnrealVirtualProperty
{
public:
	FKeptProperty(const FValue& InValue, std::vector<std::string>& InTexts)
		: FLumUnrealVirtualProperty(InValue)
		, Texts(InTexts)
	{
	}

	virtual TVexelExpected<void> OnImport() override
	{
		Texts.push_back(TCHAR_TO_UTF8(*ExportText()));
		return {};
	}

private:
	std::vector<std::string>& Texts;
};

TEST_F(FLumEditTest, VirtualValueIsWrittenBackWithWhatWasTaken)
{
	const FProperty* const List = ULumWatch::StaticClass()->FindPropertyByName(TEXT("List"));
	std::vector<std::string> Texts;
	const TSharedRef<ILumProperty> Virtual =
		FLumUnrealVirtualProperty::Create<FKeptProperty>(*List, TEXT("((Depth=1,Label=\"a\"))"), Texts).GetValue();
	const auto ImportInto = [&](const char* Json)
	{
		return Say(Virtual->JsonImportValue(Context, Parse(Json).ToSharedRef()));
	};
	EXPECT_EQ("ok", ImportInto(R"({"0":{"Depth":"5"},"1":{"Label":"b"}})"));
	EXPECT_THAT(Texts, ElementsAre(R"x(((Depth=5,Label="a"),(Label="b")))x"));
	const TSharedPtr<ILumCompound> Elements = Virtual->AsCompoundProperty()->GetCompound().GetValue();
	EXPECT_EQ("ok", Say(Elements->AsCollectionCompound()->RemoveAt(0)));
	EXPECT_EQ("ok", Say(Virtual->OnImport()));
	EXPECT_EQ(R"x(((Label="b")))x", Texts.back());
	EXPECT_NE("ok", ImportInto(R"({"0":{"Depth":"x"}})"));
	EXPECT_EQ(R"x(((Label="b")))x", Texts.back());
}

TEST_F(FLumEditTest, VirtualValueIsMadeFromATextThatIsOlderThanItsStruct)
{
	const FProperty* const List = ULumWatch::StaticClass()->FindPropertyByName(TEXT("List"));
	std::vector<std::string> Texts;
	const TVexelExpected<TSharedRef<ILumProperty>> Virtual =
		FLumUnrealVirtualProperty::Create<FKeptProperty>(*List, TEXT("((Depth=7,Gone=(X=1,Y=2)))"), Texts);
	ASSERT_TRUE(Virtual.HasValue()) << Utf8(Virtual.GetError().GetMessage());
	EXPECT_EQ("ok", Say(Virtual.GetValue()->JsonImportValue(Context, Parse(R"({"1":{"Depth":"8"}})").ToSharedRef())));
	EXPECT_THAT(Texts, ElementsAre("((Depth=7),(Depth=8))"));
}

/** Edits of a Blueprint's defaults, with a child Blueprint and an actor. */
class FLumDefaultsTest : public FLumTest
{
protected:
	virtual void SetUp() override
	{
		FLumTest::SetUp();
		const FEdGraphPinType Number(TEXT("int"), NAME_None, nullptr, EPinContainerType::None, false, FEdGraphTerminalType());
		FEdGraphPinType Numbers = Number;
		Numbers.ContainerType = EPinContainerType::Array;
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), Number, TEXT("100")));
		ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Stops"), Numbers, TEXT("(1,2)")));
		Arm = Blueprint->SimpleConstructionScript->CreateNode(USceneComponent::StaticClass(), TEXT("Arm"));
		Blueprint->SimpleConstructionScript->AddNode(Arm);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);

		const FString ChildName = Blueprint->GetName() + TEXT("Child");
		Child = FKismetEditorUtilities::CreateBlueprint(
			Blueprint->GeneratedClass, CreatePackage(*(TEXT("/Game/") + ChildName)), FName(*ChildName), BPTYPE_Normal);
		ASSERT_NE(nullptr, Child);
		FKismetEditorUtilities::CompileBlueprint(Child);
		Actor = NewObject<AActor>(GetTransientPackage(), Blueprint->GeneratedClass, NAME_None, RF_Transactional);
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	virtual void TearDown() override
	{
		if (Child)
		{
			Child->ClearFlags(RF_Public | RF_Standalone);
		}
		GEditor->ResetTransaction(INVTEXT("Test"));
		FLumTest::TearDown();
	}

	std::string Import(const TCHAR* Path, const TCHAR* Text)
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Property = FLumHelper::CompoundPathResolve(ILumCompound::Create(*Blueprint), Path);
		if (Property.HasError())
		{
			return ToStd(Property.GetError().GetMessage());
		}
		const TVexelExpected<void> Result = Property.GetValue()->JsonImportValue(Context, MakeShared<FJsonValueString>(Text));
		return Result.HasError() ? ToStd(Result.GetError().GetMessage()) : "ok";
	}

	static std::string Read(const UObject& Object, const TCHAR* Name)
	{
		const FProperty* const Property = Object.GetClass()->FindPropertyByName(Name);
		FString Text;
		Property->ExportText_InContainer(0, Text, &Object, nullptr, nullptr, PPF_None);
		return ToStd(Text);
	}
	std::string OfBlueprint(const TCHAR* Name) { return Read(*Blueprint->GeneratedClass->GetDefaultObject(), Name); }
	std::string OfChild(const TCHAR* Name) { return Read(*Child->GeneratedClass->GetDefaultObject(), Name); }

	FLumContext Context{MakeShared<FVexelBlueprintMapping>()};
	UBlueprint* Child = nullptr;
	USCS_Node* Arm = nullptr;
	AActor* Actor = nullptr;
};

TEST_F(FLumDefaultsTest, DefaultReachesWhatStillHadTheOldOne)
{
	Blueprint->Status = BS_UpToDate;
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("50")));
	EXPECT_EQ("50", OfBlueprint(TEXT("Health")));
	EXPECT_EQ("50", OfChild(TEXT("Health")));
	EXPECT_EQ("50", Read(*Actor, TEXT("Health")));
	EXPECT_EQ(BS_Dirty, Blueprint->Status);

	CastField<FIntProperty>(Actor->GetClass()->FindPropertyByName(TEXT("Health")))->SetPropertyValue_InContainer(Actor, 7);
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("60")));
	EXPECT_EQ("60", OfChild(TEXT("Health")));
	EXPECT_EQ("7", Read(*Actor, TEXT("Health")));
}

TEST_F(FLumDefaultsTest, DefaultReachesNoObjectOfAClassAsItWasBeforeACompile)
{
	FKismetEditorUtilities::CompileBlueprint(Child);
	TArray<UObject*> Instances;
	Blueprint->GeneratedClass->GetDefaultObject()->GetArchetypeInstances(Instances);
	const TArray<UObject*> Former = Instances.FilterByPredicate([](const UObject* Instance)
		{ return Instance->GetClass()->HasAnyClassFlags(CLASS_NewerVersionExists); });
	ASSERT_FALSE(Former.IsEmpty()) << "they are there until they are collected";
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("7")));
	EXPECT_EQ("7", OfChild(TEXT("Health")));
	for (const UObject* const Object : Former)
	{
		EXPECT_EQ("100", Read(*Object, TEXT("Health"))) << "its memory may be of another layout";
	}
}

TEST_F(FLumDefaultsTest, ElementReachesTheSameElementAndContainersTheSameContainer)
{
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Stops.1"), TEXT("20")));
	EXPECT_EQ("(1,20)", OfChild(TEXT("Stops")));
	const FProperty* const Stops = Actor->GetClass()->FindPropertyByName(TEXT("Stops"));
	ASSERT_NE(nullptr, Stops->ImportText_InContainer(TEXT("(5,20)"), Actor, Actor, PPF_None));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Stops.1"), TEXT("30")));
	EXPECT_EQ("(5,30)", Read(*Actor, TEXT("Stops")));
	EXPECT_EQ("(1,30)", OfChild(TEXT("Stops")));

	const TSharedRef<ILumProperty> Property =
		FLumHelper::CompoundPathResolve(ILumCompound::Create(*Blueprint), TEXT("$ClassDefaultObject.Stops")).GetValue();
	const TSharedPtr<ILumCompound> Elements = Property->AsCompoundProperty()->GetCompound().GetValue();
	EXPECT_TRUE(Elements->AsCollectionCompound()->InsertAt(Context, 0, MakeShared<FJsonValueString>(TEXT("0"))).HasValue());
	EXPECT_EQ("(0,1,30)", OfChild(TEXT("Stops")));
	EXPECT_EQ("(5,30)", Read(*Actor, TEXT("Stops")));
}

TEST_F(FLumDefaultsTest, OnlyWhatTookAPartOfADefaultHasSomethingToSave)
{
	UPackage* const Package = Child->GetPackage();
	Package->SetDirtyFlag(false);
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("50")));
	EXPECT_EQ("50", OfChild(TEXT("Health")));
	EXPECT_FALSE(Package->IsDirty());
	EXPECT_TRUE(Blueprint->GetPackage()->IsDirty());

	UObject* const Defaults = Child->GeneratedClass->GetDefaultObject();
	const FProperty* const Stops = Defaults->GetClass()->FindPropertyByName(TEXT("Stops"));
	ASSERT_NE(nullptr, Stops->ImportText_InContainer(TEXT("(5,2)"), Defaults, Defaults, PPF_None));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Stops.1"), TEXT("20")));
	EXPECT_EQ("(5,20)", OfChild(TEXT("Stops")));
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("60")));
	EXPECT_TRUE(Package->IsDirty()) << "what was to be saved still is";
}

TEST_F(FLumDefaultsTest, UndoTakesTheDefaultBackEverywhere)
{
	{
		const FScopedTransaction Transaction(INVTEXT("Edit"));
		EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("50")));
		EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm.RelativeLocation.X"), TEXT("9")));
	}
	EXPECT_EQ(1, GEditor->Trans->GetQueueLength());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ("100", OfBlueprint(TEXT("Health")));
	EXPECT_EQ("100", OfChild(TEXT("Health")));
	EXPECT_EQ("100", Read(*Actor, TEXT("Health")));
	EXPECT_EQ(0.0, CastChecked<USceneComponent>(Arm->ComponentTemplate)->GetRelativeLocation().X);
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ("50", OfChild(TEXT("Health")));
}

TEST_F(FLumDefaultsTest, DefaultOutlivesACompile)
{
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Health"), TEXT("50")));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Stops.0"), TEXT("11")));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.InitialLifeSpan"), TEXT("3.5")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ("50", OfBlueprint(TEXT("Health")));
	EXPECT_EQ("(11,2)", OfBlueprint(TEXT("Stops")));
	EXPECT_EQ("3.500000", OfBlueprint(TEXT("InitialLifeSpan")));
}

TEST_F(FLumDefaultsTest, TemplateOfAComponentReachesTheComponentsMadeFromIt)
{
	USceneComponent* const Template = CastChecked<USceneComponent>(Arm->ComponentTemplate);
	USceneComponent* const Component = CastChecked<USceneComponent>(Arm->ExecuteNodeOnActor(Actor, nullptr));
	ASSERT_EQ(Template, Component->GetArchetype());
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm.RelativeLocation"), TEXT("(X=1,Y=2,Z=3)")));
	EXPECT_EQ(FVector(1, 2, 3), Template->GetRelativeLocation());
	EXPECT_EQ(FVector(1, 2, 3), Component->GetRelativeLocation());
	Component->SetRelativeLocation(FVector(1, 7, 3));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm.RelativeLocation"), TEXT("(X=10,Y=20,Z=3)")));
	EXPECT_EQ(FVector(1, 7, 3), Component->GetRelativeLocation());
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm.RelativeLocation.Z"), TEXT("30")));
	EXPECT_EQ(FVector(1, 7, 30), Component->GetRelativeLocation());
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm.bHiddenInGame"), TEXT("True")));
	EXPECT_TRUE(Component->bHiddenInGame);
	EXPECT_EQ("'Arm' is a component of the blueprint", Import(TEXT("$ClassDefaultObject.Arm"), TEXT("ref|None")));
	EXPECT_EQ("ok", Import(TEXT("$ClassDefaultObject.Arm"), *FLumHelper::MakeReferenceString(Template)));
	const std::string Attached = Import(TEXT("$ClassDefaultObject.Arm.AttachParent"), *FLumHelper::MakeReferenceString(Template));
	EXPECT_EQ(0u, Attached.find("Property 'AttachParent' not found in compound")) << Attached;
	EXPECT_EQ(nullptr, Template->GetAttachParent());
}
}
