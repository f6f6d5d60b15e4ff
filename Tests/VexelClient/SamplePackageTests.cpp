#include "Blueprint/VexelBlueprintMapping.h"
#include "Dom/JsonObject.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

#include <string>

namespace
{
FString GetSamplesDir()
{
	return FPaths::ConvertRelativePathToFull(FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages"));
}

/** Blueprints that the engine's own editor saved, each in a folder mounted for the test. */
struct FSample
{
	const char* Folder;
	const char* Name;
	bool bHasNodes = true;
};

class FSampleBlueprintTest : public FEditorTest, public testing::WithParamInterface<FSample>
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		Folder = GetSamplesDir() / FString(UTF8_TO_TCHAR(GetParam().Folder));
		if (!FPaths::DirectoryExists(Folder))
		{
			GTEST_SKIP() << "the sample packages are not here";
		}
		Root = FString::Printf(TEXT("/Sample%s/"), *FString(UTF8_TO_TCHAR(GetParam().Folder)).Replace(TEXT("/"), TEXT("")));
		FPackageName::RegisterMountPoint(Root, Folder);
	}
	virtual void TearDown() override
	{
		if (!Root.IsEmpty())
		{
			FPackageName::UnRegisterMountPoint(Root, Folder);
		}
		FEditorTest::TearDown();
	}

	FString Folder;
	FString Root;
};

/** How many nodes the export has; fails where one lacks a key that all have. */
int32 CheckNodes(const FJsonObject& Blueprint)
{
	int32 NumNodes = 0;
	for (const TSharedPtr<FJsonValue>& Graph : Blueprint.GetArrayField(TEXT("graphs")))
	{
		const TArray<TSharedPtr<FJsonValue>>* Nodes = nullptr;
		if (!Graph->AsObject()->TryGetArrayField(TEXT("nodes"), Nodes))
		{
			continue;
		}
		for (const TSharedPtr<FJsonValue>& Node : *Nodes)
		{
			++NumNodes;
			for (const TCHAR* const Key : {TEXT("type"), TEXT("id"), TEXT("node_type"), TEXT("guid")})
			{
				EXPECT_TRUE(Node->AsObject()->HasField(Key)) << TCHAR_TO_UTF8(Key);
			}
		}
	}
	return NumNodes;
}

/** Adds the keys of the value and of everything in it. */
void CollectKeys(const TSharedPtr<FJsonValue>& Value, TSet<FString>& OutKeys)
{
	if (Value->Type == EJson::Array)
	{
		for (const TSharedPtr<FJsonValue>& Element : Value->AsArray())
		{
			CollectKeys(Element, OutKeys);
		}
	}
	else if (Value->Type == EJson::Object)
	{
		for (const auto& [Key, Member] : Value->AsObject()->Values)
		{
			OutKeys.Add(FString(Key));
			CollectKeys(Member, OutKeys);
		}
	}
}

TEST_P(FSampleBlueprintTest, IsReadAsValidJson)
{
	const FString Name(UTF8_TO_TCHAR(GetParam().Name));
	const TSharedRef<FVexelBlueprintMapping> Mapping = MakeShared<FVexelBlueprintMapping>();
	UBlueprint* Blueprint = nullptr;
	ASSERT_TRUE(Mapping->ResolveBlueprint(TVexelBlueprintId(Root + Name + TEXT(".") + Name), Blueprint)) << Log.ToText();
	const FLumContext Context(Mapping);
	const TVexelExpected<TSharedRef<FJsonObject>> Export = FLumBlueprintCompound(*Blueprint).JsonExportObject(Context);
	ASSERT_TRUE(Export.HasValue()) << TCHAR_TO_UTF8(*Export.GetError().ToString());
	FString Text;
	FJsonSerializer::Serialize(Export.GetValue(), TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	TSharedPtr<FJsonObject> Read;
	ASSERT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Read) && Read.IsValid());
	TSet<FString> Keys;
	CollectKeys(MakeShared<FJsonValueObject>(Read), Keys);
	FString Description;
	ASSERT_TRUE(FFileHelper::LoadFileToString(Description, TEXT(VEXEL_SOURCE_DIR "/Docs/BlueprintJson.md")));
	for (const FString& Key : Keys)
	{
		EXPECT_TRUE(Description.Contains(TEXT("`") + Key + TEXT("`"))) << TCHAR_TO_UTF8(*Key) << " is not described";
	}
	EXPECT_EQ(GetParam().bHasNodes, CheckNodes(*Read) > 0);
	if (Name == TEXT("SimpleRefsRoot"))
	{
		// One Blueprint, saved by six versions of the editor.
		for (const char* const NodeType : {"\"event.custom\"", "\"flow.if\"", "\"call.get_class_defaults"})
		{
			EXPECT_NE(std::string::npos, std::string(TCHAR_TO_UTF8(*Text)).find(NodeType)) << NodeType;
		}
	}
}

INSTANTIATE_TEST_SUITE_P(Packages, FSampleBlueprintTest,
	testing::Values(FSample{"AirSim/Blueprints", "BP_CameraDirector"}, FSample{"AirSim/Blueprints", "BP_PIPCamera"},
		FSample{"AirSim/Blueprints/Lights", "SpotLightBP"}, FSample{"UE56/DirectCycle", "DirectCycleA", false},
		FSample{"UE56/SimpleRefs", "SimpleRefsRoot"}, FSample{"UE54/SimpleRefs", "SimpleRefsRoot"},
		FSample{"UE52/SimpleRefs", "SimpleRefsRoot"}, FSample{"UE50/SimpleRefs", "SimpleRefsRoot"},
		FSample{"UE427/SimpleRefs", "SimpleRefsRoot"}, FSample{"UE420/SimpleRefs", "SimpleRefsRoot"}));
}
