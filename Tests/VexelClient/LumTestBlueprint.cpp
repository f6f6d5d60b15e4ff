#include "LumTestBlueprint.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

void FLumTest::SetUp()
{
	FEditorTest::SetUp();
	if (HasFatalFailure())
	{
		return;
	}
	static int32 NumBlueprints = 0;
	const FString Name = FString::Printf(TEXT("BP_Lum%d"), NumBlueprints++);
	UPackage* const Package = CreatePackage(*(TEXT("/Game/") + Name));
	Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, FName(*Name), BPTYPE_Normal);
	ASSERT_NE(nullptr, Blueprint);
	EventGraph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
	ASSERT_NE(nullptr, EventGraph);
}

void FLumTest::TearDown()
{
	LetGoOfBlueprint();
	FEditorTest::TearDown();
}

void FLumTest::LetGoOfBlueprint()
{
	if (Blueprint)
	{
		Forget(*Blueprint);
		Blueprint = nullptr;
	}
}

void FLumTest::Forget(UObject& Asset)
{
	IAssetRegistry::GetChecked().AssetDeleted(&Asset);
	Asset.ClearFlags(RF_Public | RF_Standalone);
}

UEdGraphNode& FLumTest::AddBareNode(const TCHAR* ClassName, const TCHAR* Property, const TCHAR* Text)
{
	UClass* const Class = FindFirstObject<UClass>(ClassName, EFindFirstObjectOptions::NativeFirst);
	checkf(Class, TEXT("No node class %s"), ClassName);
	UEdGraphNode* const Node = EventGraph->CreateNode(Class);
	Node->CreateNewGuid();
	if (Property)
	{
		const FProperty* const Found = Class->FindPropertyByName(FName(Property));
		checkf(Found && Found->ImportText_InContainer(Text, Node, Node, PPF_None), TEXT("%s of %s cannot be %s"), Property, ClassName, Text);
	}
	return *Node;
}
