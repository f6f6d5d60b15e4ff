#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "EditorFixture.h"
#include "UObject/NoExportTypes.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
class FBlueprintTest : public FEditorTest
{
protected:
	static UBlueprint* MakeBlueprint(const TCHAR* Name, UClass* Parent = AActor::StaticClass())
	{
		UPackage* const Package = CreatePackage(*(FString(TEXT("/Game/")) + Name));
		return FKismetEditorUtilities::CreateBlueprint(Parent, Package, FName(Name), BPTYPE_Normal);
	}

	static FEdGraphPinType MakeType(FName Category, FName SubCategory = NAME_None)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		Type.PinSubCategory = SubCategory;
		return Type;
	}
};

TEST_F(FBlueprintTest, ANewBlueprintHasItsClassesDefaultsAndGraphs)
{
	const UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_New"));
	ASSERT_NE(Blueprint->GeneratedClass.Get(), nullptr);
	EXPECT_EQ(Blueprint->GeneratedClass->GetPathName(), TEXT("/Game/BP_New.BP_New_C"));
	EXPECT_EQ(Blueprint->SkeletonGeneratedClass->GetName(), TEXT("SKEL_BP_New_C"));
	EXPECT_TRUE(Blueprint->GeneratedClass->IsChildOf(AActor::StaticClass()));
	EXPECT_EQ(Blueprint->GeneratedClass->GetDefaultObject()->GetName(), TEXT("Default__BP_New_C"));
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	ASSERT_NE(FBlueprintEditorUtils::FindEventGraph(Blueprint), nullptr);
	EXPECT_NE(FBlueprintEditorUtils::FindUserConstructionScript(Blueprint), nullptr);
	EXPECT_EQ(FBlueprintEditorUtils::GetGraphType(FBlueprintEditorUtils::FindEventGraph(Blueprint)), GT_Ubergraph);
}

TEST_F(FBlueprintTest, AVariableBecomesAPropertyAndKeepsItsValueThroughRenameAndRetype)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Variables"));
	ASSERT_TRUE(
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Health")), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("42")));
	EXPECT_FALSE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("health")), MakeType(UEdGraphSchema_K2::PC_Int)));
	EXPECT_FALSE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("bHidden")), MakeType(UEdGraphSchema_K2::PC_Boolean)));
	EXPECT_NE(FindFProperty<FIntProperty>(Blueprint->SkeletonGeneratedClass.Get(), TEXT("Health")), nullptr);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	UClass* const Class = Blueprint->GeneratedClass;
	const FIntProperty* const Health = FindFProperty<FIntProperty>(Class, TEXT("Health"));
	ASSERT_NE(Health, nullptr);
	EXPECT_EQ(Health->GetPropertyValue_InContainer(Class->GetDefaultObject()), 42);
	Health->SetPropertyValue_InContainer(Class->GetDefaultObject(), 7);

	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, FName(TEXT("Health")), FName(TEXT("Life")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->GeneratedClass.Get(), Class);
	EXPECT_EQ(FindFProperty<FProperty>(Class, TEXT("Health")), nullptr);
	const FIntProperty* const Life = FindFProperty<FIntProperty>(Class, TEXT("Life"));
	ASSERT_NE(Life, nullptr);
	EXPECT_EQ(Life->GetPropertyValue_InContainer(Class->GetDefaultObject()), 7);

	FBlueprintEditorUtils::ChangeMemberVariableType(Blueprint, FName(TEXT("Life")), MakeType(UEdGraphSchema_K2::PC_Int64));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FInt64Property* const Wide = FindFProperty<FInt64Property>(Class, TEXT("Life"));
	ASSERT_NE(Wide, nullptr);
	EXPECT_EQ(Wide->GetPropertyValue_InContainer(Class->GetDefaultObject()), 7);
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(Wide->GetPropertyValue_InContainer(Class->GetDefaultObject()), 7);
}

TEST_F(FBlueprintTest, ContainersGetTheirInnerTypes)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Containers"));
	FEdGraphPinType Names = MakeType(UEdGraphSchema_K2::PC_Name);
	Names.ContainerType = EPinContainerType::Array;
	FEdGraphPinType Places = MakeType(UEdGraphSchema_K2::PC_String);
	Places.ContainerType = EPinContainerType::Map;
	Places.PinValueType.TerminalCategory = UEdGraphSchema_K2::PC_Struct;
	Places.PinValueType.TerminalSubCategoryObject = TBaseStructure<FVector>::Get();
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Names")), Names, TEXT("(\"a\",\"b\")"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(TEXT("Places")), Places);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FArrayProperty* const Array = FindFProperty<FArrayProperty>(Blueprint->GeneratedClass.Get(), TEXT("Names"));
	ASSERT_NE(Array, nullptr);
	EXPECT_NE(CastField<FNameProperty>(Array->Inner), nullptr);
	EXPECT_EQ(FScriptArrayHelper(Array, Array->ContainerPtrToValuePtr<void>(Blueprint->GeneratedClass->GetDefaultObject())).Num(), 2);
	const FMapProperty* const Map = FindFProperty<FMapProperty>(Blueprint->GeneratedClass.Get(), TEXT("Places"));
	ASSERT_NE(Map, nullptr);
	EXPECT_NE(CastField<FStrProperty>(Map->KeyProp), nullptr);
	EXPECT_EQ(CastFieldChecked<FStructProperty>(Map->ValueProp)->Struct, TBaseStructure<FVector>::Get());
}

TEST_F(FBlueprintTest, AChildFollowsItsParentsLayout)
{
	UBlueprint* const Parent = MakeBlueprint(TEXT("BP_Parent"));
	UBlueprint* const Child = MakeBlueprint(TEXT("BP_Child"), Parent->GeneratedClass.Get());
	FBlueprintEditorUtils::AddMemberVariable(Child, FName(TEXT("Own")), MakeType(UEdGraphSchema_K2::PC_String), TEXT("mine"));
	FKismetEditorUtilities::CompileBlueprint(Child);
	FBlueprintEditorUtils::AddMemberVariable(Parent, FName(TEXT("Inherited")), MakeType(UEdGraphSchema_K2::PC_String), TEXT("theirs"));
	FKismetEditorUtilities::CompileBlueprint(Parent);
	const UObject* const Defaults = Child->GeneratedClass->GetDefaultObject();
	const FStrProperty* const Inherited = FindFProperty<FStrProperty>(Child->GeneratedClass.Get(), TEXT("Inherited"));
	const FStrProperty* const Own = FindFProperty<FStrProperty>(Child->GeneratedClass.Get(), TEXT("Own"));
	ASSERT_NE(Inherited, nullptr);
	ASSERT_NE(Own, nullptr);
	EXPECT_EQ(Own->GetPropertyValue_InContainer(Defaults), TEXT("mine"));
	EXPECT_EQ(Inherited->GetPropertyValue_InContainer(Defaults), TEXT("theirs"));
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(Own->GetPropertyValue_InContainer(Child->GeneratedClass->GetDefaultObject()), TEXT("mine"));
}

TEST_F(FBlueprintTest, AFunctionGraphBecomesAFunctionAndItsNameIsTaken)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Functions"));
	UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
		Blueprint, FName(TEXT("Open")), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_NE(Blueprint->GeneratedClass->FindFunctionByName(FName(TEXT("Open"))), nullptr);
	EXPECT_FALSE(FBlueprintEditorUtils::IsGraphNameUnique(Blueprint, FName(TEXT("Open"))));
	EXPECT_EQ(FBlueprintEditorUtils::GenerateUniqueGraphName(Blueprint, TEXT("Open")), FName(TEXT("Open_0")));
	EXPECT_TRUE(FBlueprintEditorUtils::RenameGraph(Graph, TEXT("Close")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->GeneratedClass->FindFunctionByName(FName(TEXT("Open"))), nullptr);
	EXPECT_NE(Blueprint->GeneratedClass->FindFunctionByName(FName(TEXT("Close"))), nullptr);
	FBlueprintEditorUtils::RemoveGraph(Blueprint, Graph);
	EXPECT_TRUE(FBlueprintEditorUtils::IsGraphNameUnique(Blueprint, FName(TEXT("Close"))));
}

TEST_F(FBlueprintTest, ASavedBlueprintLoadsAgain)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Saved"));
	FBlueprintEditorUtils::AddMemberVariable(
		Blueprint, FName(TEXT("Health")), MakeType(UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double), TEXT("12.5"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const int32 NumNodes = FBlueprintEditorUtils::FindEventGraph(Blueprint)->Nodes.Num();
	EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint));
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
	Blueprint->ClearFlags(RF_Standalone);
	Blueprint->GetPackage()->Rename(TEXT("/Game/BP_Old"), nullptr, REN_DontCreateRedirectors);

	EXPECT_TRUE(UEditorAssetLibrary::DoesAssetExist(TEXT("/Game/BP_Saved")));
	UBlueprint* const Loaded = Cast<UBlueprint>(UEditorAssetLibrary::LoadAsset(TEXT("/Game/BP_Saved")));
	ASSERT_NE(Loaded, nullptr);
	ASSERT_NE(Loaded, Blueprint);
	EXPECT_EQ(FBlueprintEditorUtils::FindEventGraph(Loaded)->Nodes.Num(), NumNodes);
	const UClass* const Class = Loaded->GeneratedClass;
	const FDoubleProperty* const Health = FindFProperty<FDoubleProperty>(Class, TEXT("Health"));
	ASSERT_NE(Health, nullptr);
	EXPECT_EQ(Health->GetPropertyValue_InContainer(Class->GetDefaultObject()), 12.5);
	EXPECT_EQ(UBlueprint::GetBlueprintFromClass(Class), Loaded);
}
}
