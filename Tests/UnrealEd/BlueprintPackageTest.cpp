#include "EditorFixture.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <filesystem>

namespace
{
class FBlueprintPackageTest : public FEditorTest
{
};

TEST_F(FBlueprintPackageTest, NodesOfEveryEngineVersionAreReadToTheirLastByteAndLinked)
{
	const std::filesystem::path Folder = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";
	std::error_code Missing;
	int32 NumNodes = 0;
	int32 NumLinks = 0;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder, Missing))
	{
		if (Entry.path().extension() != ".uasset" && Entry.path().extension() != ".umap")
		{
			continue;
		}
		SCOPED_TRACE(Entry.path().string());
		const FString Name = FString(
			UTF8_TO_TCHAR((Entry.path().parent_path().filename().string() + "_" + Entry.path().stem().string()).c_str()));
		UPackage* const Package = CreatePackage(
			*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(*(TEXT("/Temp/") + Name))).ToString());
		FString Error;
		const TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(FString(UTF8_TO_TCHAR(Entry.path().c_str())), Package, Error);
		ASSERT_TRUE(Linker) << TCHAR_TO_UTF8(*Error);
		Linker->LoadAllObjects();
		for (const FString& LoadError : Linker->GetErrors())
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*LoadError);
		}
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Package, Objects, true);
		for (UObject* const Object : Objects)
		{
			const UEdGraphNode* const Node = Cast<UEdGraphNode>(Object);
			if (!Node)
			{
				continue;
			}
			++NumNodes;
			EXPECT_EQ(Linker->FindUnreadTail(Node), nullptr) << TCHAR_TO_UTF8(*Node->GetPathName());
			for (UEdGraphPin* const Pin : Node->Pins)
			{
				EXPECT_EQ(Pin->GetOwningNode(), Node);
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					++NumLinks;
					EXPECT_TRUE(Linked->LinkedTo.Contains(Pin)) << TCHAR_TO_UTF8(*Node->GetPathName());
				}
			}
		}
	}
	if (NumNodes == 0)
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
	EXPECT_GT(NumLinks, 0);
}
}
