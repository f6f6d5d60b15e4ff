#include "Editor.h"
#include "BlueprintText.h"
#include "BlueprintToolFixture.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

#include <gmock/gmock.h>

namespace
{
/** Blueprints that the engine's own editor saved, each in a folder mounted for the test. */
struct FSample
{
	const char* Folder;
	const char* Name;
	/** Operations that find something to edit. */
	int32 NumEdits;
};

class FObjectEditSampleTest : public FBlueprintToolTest, public testing::WithParamInterface<FSample>
{
protected:
	virtual void SetUp() override
	{
		FBlueprintToolTest::SetUp();
		Folder = FPaths::ConvertRelativePathToFull(FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages")) /
			FString(UTF8_TO_TCHAR(GetParam().Folder));
		if (!FPaths::DirectoryExists(Folder))
		{
			GTEST_SKIP() << "the sample packages are not here";
		}
		Root = TEXT("/EditedSample/");
		FPackageName::RegisterMountPoint(Root, Folder);
	}
	virtual void TearDown() override
	{
		GEditor->ResetTransaction(INVTEXT("Test"));
		if (!Root.IsEmpty())
		{
			LeaveNoAsset();
			FPackageName::UnRegisterMountPoint(Root, Folder);
		}
		FBlueprintToolTest::TearDown();
		CollectGarbage(RF_Standalone);
	}

	/** Of the sample, and of what it has loaded. */
	void LeaveNoAsset() const
	{
		TArray<UObject*> Assets;
		for (TObjectIterator<UObject> It; It; ++It)
		{
			if (It->IsAsset() && It->GetOutermost()->GetName().StartsWith(Root))
			{
				It->GetOutermost()->SetDirtyFlag(false);
				Assets.Add(*It);
			}
		}
		for (UObject* const Asset : Assets)
		{
			Forget(*Asset);
		}
	}

	FString Read()
	{
		const FAnswer Answer = Call(TEXT("read_blueprint"), ("{'blueprint': '" + Path + "'}").c_str());
		FString Text;
		FJsonSerializer::Serialize(Answer.GetValue(), TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
		return Text + TEXT("\n") + FBlueprintText::Take(*Sample);
	}

	void Edit(const std::string& Target, const std::string& Operations)
	{
		const std::string Input = "{'blueprint': '" + Path + "', 'requests': [{'target': " + Target + ", 'operations': [" + Operations + "]}]}";
		const FAnswer Answer = Call(TEXT("object_edit"), Input.c_str());
		ASSERT_TRUE(Answer.HasValue());
		EXPECT_THAT(TextsOf(*Answer.GetValue(), TEXT("errors")), testing::IsEmpty());
	}

	void EditVariables()
	{
		TArray<FName> Names;
		for (const FBPVariableDescription& Variable : Sample->NewVariables)
		{
			Names.Add(Variable.VarName);
		}
		for (const FName& Name : Names)
		{
			const std::string Id = ToStd(Name.ToString());
			Edit("{'target_type': 'blueprint'}",
				"{'operation': 'edit_variable', 'scope': 'member', 'name': '" + Id + "', 'value': {'prop_id': '" + Id +
					"_2', 'type_id': 'string', 'category': 'Edited', 'private': true}},"
					"{'operation': 'remove_variable', 'scope': 'member', 'name': '" +
					Id + "_2'}");
		}
		Edit("{'target_type': 'blueprint'}",
			"{'operation': 'add_variable', 'scope': 'member', 'name': 'Fresh', 'value': {'type_id': 'array|struct.Vector'}}");
	}

	void EditFunctions()
	{
		TArray<FName> Names;
		for (const UEdGraph* const Graph : Sample->FunctionGraphs)
		{
			if (Graph->bAllowRenaming && Graph->bAllowDeletion)
			{
				Names.Add(Graph->GetFName());
			}
		}
		for (const FName& Name : Names)
		{
			const std::string Id = ToStd(Name.ToString());
			Edit("{'target_type': 'graph', 'graph': '" + Id + "'}",
				"{'operation': 'add_variable', 'scope': 'in', 'name': 'FreshIn', 'value': {'type_id': 'int'}},"
				"{'operation': 'add_variable', 'scope': 'out', 'name': 'FreshOut', 'value': {'type_id': 'int'}},"
				"{'operation': 'add_variable', 'scope': 'local', 'name': 'FreshLocal', 'value': {'type_id': 'int'}},"
				"{'operation': 'update', 'prop_path': 'name', 'value': '" +
					Id + "_2'}");
		}
	}

	FString Folder;
	FString Root;
	std::string Path;
	UBlueprint* Sample = nullptr;
};

TEST_P(FObjectEditSampleTest, IsAfterUndoAsItWasToTheByte)
{
	const FString Name(UTF8_TO_TCHAR(GetParam().Name));
	Path = ToStd(Root + Name + TEXT(".") + Name);
	ASSERT_TRUE(Conversation->GetMapping()->ResolveBlueprint(TVexelBlueprintId(UTF8_TO_TCHAR(Path.c_str())), Sample)) << Log.ToText();
	const FString Before = Read();
	EditVariables();
	EditFunctions();
	EXPECT_EQ(GetParam().NumEdits, NumUndos());
	EXPECT_NE(ToStd(Before), ToStd(Read()));
	while (GEditor->UndoTransaction())
	{
	}
	EXPECT_EQ("", ToStd(DescribeDifference(Before, Read())));
}

INSTANTIATE_TEST_SUITE_P(Packages, FObjectEditSampleTest,
	testing::Values(FSample{"AirSim/HUDAssets", "BP_LevelLoadButton", 13}, FSample{"AirSim/Blueprints", "BP_CameraDirector", 1},
		FSample{"CesiumUnreal", "WBP_TimeOfDay", 1}, FSample{"UE56/IndirectCycle", "IndirectCycleA", 3}, FSample{"UE56/SimpleRefs", "SimpleRefsRoot", 5},
		FSample{"UE427/SimpleRefs", "SimpleRefsRoot", 5}));
}
