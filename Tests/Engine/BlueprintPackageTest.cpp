#include "EngineTestGraph.h"

#include "Engine/Blueprint.h"
#include "Misc/PackageName.h"
#include "UObject/SavePackage.h"

#include <filesystem>

namespace
{
/** A content folder of its own, mounted as /EngineTest/. */
class FBlueprintPackageTest : public FEngineTest
{
protected:
	virtual void SetUp() override
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-engine-test-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		Content = FString(UTF8_TO_TCHAR(Directory.c_str())) + TEXT("/");
		FPackageName::RegisterMountPoint(TEXT("/EngineTest/"), Content);
	}

	virtual void TearDown() override
	{
		FEngineTest::TearDown();
		FPackageName::UnRegisterMountPoint(TEXT("/EngineTest/"), Content);
		std::error_code Ignored;
		std::filesystem::remove_all(Directory, Ignored);
	}

	std::filesystem::path Directory;
	FString Content;
};

TEST_F(FBlueprintPackageTest, GraphsPinsLinksAndVariablesSurviveSavingAndLoading)
{
	UPackage* const Package = CreatePackage(TEXT("/EngineTest/BP_Saved"));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Package, TEXT("BP_Saved"), RF_Public | RF_Standalone);
	UEdGraph* const Graph = MakeGraph(Blueprint, TEXT("EventGraph"));
	Blueprint->UbergraphPages.Add(Graph);
	UEdGraphNode* const First = MakeNode(*Graph, nullptr, TEXT("then"));
	UEdGraphNode* const Second = MakeNode(*Graph, TEXT("execute"), nullptr);
	First->NodePosX = 128;
	First->NodeComment = TEXT("first");
	First->Pins[0]->MakeLinkTo(Second->Pins[0]);
	UEdGraphPin* const Value = Second->CreatePin(EGPD_Input, FName(TEXT("object")), UBlueprint::StaticClass(), FName(TEXT("Value")));
	Value->DefaultValue = TEXT("42");
	Value->DefaultTextValue = NSLOCTEXT("N", "K", "text");
	Value->DefaultObject = UBlueprint::StaticClass();
	FBPVariableDescription Variable;
	Variable.VarName = FName(TEXT("Health"));
	Variable.VarGuid = FGuid::NewGuid();
	Variable.VarType.PinCategory = FName(TEXT("real"));
	Variable.VarType.PinSubCategory = FName(TEXT("double"));
	Variable.SetMetaData(FName(TEXT("ToolTip")), TEXT("How much is left"));
	Variable.DefaultValue = TEXT("100.0");
	Blueprint->NewVariables.Add(Variable);
	const FGuid ThenId = First->Pins[0]->PinId;
	const FGuid FirstGuid = First->NodeGuid;
	const FGuid GraphGuid = Graph->GraphGuid;
	ASSERT_TRUE(UPackage::SavePackage(Package, Blueprint, *(Content + TEXT("BP_Saved.uasset")), FSavePackageArgs()));

	Blueprint->ClearFlags(RF_Standalone);
	Package->Rename(TEXT("/EngineTest/BP_Old"), nullptr, REN_DontCreateRedirectors);
	UBlueprint* const Loaded = LoadObject<UBlueprint>(nullptr, TEXT("/EngineTest/BP_Saved.BP_Saved"));
	ASSERT_NE(Loaded, nullptr);
	ASSERT_NE(Loaded, Blueprint);
	ASSERT_EQ(Loaded->UbergraphPages.Num(), 1);
	const UEdGraph* const LoadedGraph = Loaded->UbergraphPages[0];
	EXPECT_EQ(LoadedGraph->GraphGuid, GraphGuid);
	ASSERT_EQ(LoadedGraph->Nodes.Num(), 2);
	const UEdGraphNode* const LoadedFirst = LoadedGraph->Nodes[0];
	const UEdGraphNode* const LoadedSecond = LoadedGraph->Nodes[1];
	EXPECT_EQ(LoadedFirst->NodePosX, 128);
	EXPECT_EQ(LoadedFirst->NodeComment, TEXT("first"));
	EXPECT_EQ(LoadedFirst->NodeGuid, FirstGuid);
	ASSERT_EQ(LoadedFirst->Pins.Num(), 1);
	ASSERT_EQ(LoadedSecond->Pins.Num(), 2);
	EXPECT_EQ(LoadedFirst->Pins[0]->PinId, ThenId);
	EXPECT_EQ(LoadedFirst->Pins[0]->LinkedTo, (TArray<UEdGraphPin*>{LoadedSecond->Pins[0]}));
	EXPECT_EQ(LoadedSecond->Pins[0]->LinkedTo, (TArray<UEdGraphPin*>{LoadedFirst->Pins[0]}));
	EXPECT_EQ(LoadedSecond->Pins[1]->DefaultValue, TEXT("42"));
	EXPECT_EQ(LoadedSecond->Pins[1]->DefaultTextValue.ToString(), TEXT("text"));
	EXPECT_EQ(LoadedSecond->Pins[1]->DefaultObject, UBlueprint::StaticClass());
	EXPECT_EQ(LoadedSecond->Pins[1]->PinType.PinSubCategoryObject.Get(), UBlueprint::StaticClass());
	ASSERT_EQ(Loaded->NewVariables.Num(), 1);
	EXPECT_TRUE(Loaded->NewVariables[0] == Variable);
	Loaded->ClearFlags(RF_Standalone);
}
}
