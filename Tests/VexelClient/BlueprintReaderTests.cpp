#include "Blueprint/VexelBlueprintReader.h"
#include "EdGraphSchema_K2.h"
#include "EdGraphUtilities.h"
#include "Editor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "K2Node_Composite.h"
#include "LumTestBlueprint.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;

class FBlueprintReaderTest : public FLumTest
{
protected:
	UEdGraph* AddFunction(const TCHAR* Name)
	{
		UEdGraph* const Graph =
			FBlueprintEditorUtils::CreateNewGraph(Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
		return Graph;
	}

	static FEdGraphPinType MakeType(FName Category)
	{
		FEdGraphPinType Type;
		Type.PinCategory = Category;
		return Type;
	}

	static std::string ErrorOf(const FVexelBlueprintReader& Reader)
	{
		const auto Variables = Reader.GetBlueprintVariableData();
		return Variables.HasError() ? ToStd(Variables.GetError().GetMessage()) : "no error";
	}

	static size_t Count(const std::string& Text, const std::string& Part)
	{
		size_t Found = 0;
		for (size_t At = Text.find(Part); At != std::string::npos; At = Text.find(Part, At + 1))
		{
			++Found;
		}
		return Found;
	}

	FVexelBlueprintReader Reader;
};

/** A line for each variable. */
std::vector<std::string> Describe(const TArray<FVexelVariableData>& Variables)
{
	std::vector<std::string> Lines;
	for (const FVexelVariableData& Variable : Variables)
	{
		Lines.push_back(ToStd(FString::Join(
			TArray<FString>{Variable.Scope, Variable.Function, Variable.Name, Variable.Type.ToString(), Variable.Value}, TEXT(" "))));
	}
	return Lines;
}

TEST_F(FBlueprintReaderTest, EachGraphBeginsWithALineOfItsOwnAndItsTextPastesBack)
{
	AddFunction(TEXT("Open"));
	Reader.TryLoadBlueprint(Blueprint);
	const std::string Code = ToStd(Reader.GetBlueprintCode());
	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	EXPECT_EQ(static_cast<size_t>(Graphs.Num()), Count(Code, "SOURCE_GRAPH="));
	EXPECT_THAT(Code, HasSubstr("SOURCE_GRAPH=Open,GRAPH_TYPE=0\nBegin Object Class=/Script/BlueprintGraph.K2Node_FunctionEntry"));
	const size_t Events = Code.find("SOURCE_GRAPH=EventGraph,GRAPH_TYPE=1\n");
	ASSERT_NE(std::string::npos, Events);

	UEdGraph* const Copy = AddFunction(TEXT("Copy"));
	const FNodeTextImportResult Pasted =
		FEdGraphUtilities::ImportNodesFromTextWithResult(EventGraph, FString(UTF8_TO_TCHAR(Code.substr(Events).c_str())));
	EXPECT_EQ(3, Pasted.Nodes.Num()) << "the three events that an Actor Blueprint begins with";
	EXPECT_NE(nullptr, Copy);
}

TEST_F(FBlueprintReaderTest, WhatHasNoGraphsHasNoCode)
{
	for (UEdGraph* const Graph : TArray<UEdGraph*>{EventGraph, FBlueprintEditorUtils::FindUserConstructionScript(Blueprint)})
	{
		Blueprint->UbergraphPages.Remove(Graph);
		Blueprint->FunctionGraphs.Remove(Graph);
	}
	EXPECT_TRUE(Reader.TryLoadBlueprint(Blueprint));
	EXPECT_EQ("", ToStd(Reader.GetBlueprintCode()));
	EXPECT_FALSE(Log.Contains("Invalid Blueprint"));
}

TEST_F(FBlueprintReaderTest, AGraphInsideAnotherSaysSo)
{
	const UK2Node_Composite& Composite = Place<UK2Node_Composite>();
	ASSERT_NE(nullptr, Composite.BoundGraph);
	const FVexelSerializedGraph Inner(Composite.BoundGraph);
	const FVexelSerializedGraph Outer(EventGraph);
	EXPECT_TRUE(Inner.IsSubGraph());
	EXPECT_FALSE(Outer.IsSubGraph());
	EXPECT_EQ(GT_Ubergraph, Outer.GetType());
	EXPECT_EQ("EventGraph", ToStd(Outer.GetName()));
	EXPECT_EQ(EventGraph->Nodes.Num(), Outer.GetNodes().Num());
	EXPECT_TRUE(Reader.TryLoadBlueprint(Blueprint));
	EXPECT_THAT(ToStd(Reader.GetBlueprintCode()), HasSubstr("SOURCE_GRAPH=" + ToStd(Inner.GetName()) + ","));
}

TEST_F(FBlueprintReaderTest, VariablesAreListedWithTheirScopesTypesAndValues)
{
	UEdGraph* const Heal = AddFunction(TEXT("Heal"));
	FEdGraphPinType Names = MakeType(UEdGraphSchema_K2::PC_Name);
	Names.ContainerType = EPinContainerType::Array;
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("75")));
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Friends"), Names));
	ASSERT_TRUE(FBlueprintEditorUtils::AddLocalVariable(
		Blueprint, Heal, TEXT("Amount"), MakeType(UEdGraphSchema_K2::PC_String), TEXT("much")));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FProperty* const Health = Blueprint->GeneratedClass->FindPropertyByName(TEXT("Health"));
	*Health->ContainerPtrToValuePtr<int32>(Blueprint->GeneratedClass->GetDefaultObject()) = 80;
	ASSERT_TRUE(Reader.TryLoadBlueprint(Blueprint));
	const auto Variables = Reader.GetBlueprintVariableData();
	ASSERT_TRUE(Variables.HasValue());
	EXPECT_THAT(Describe(Variables.GetValue()),
		ElementsAre("Global  Health int 80", "Global  Friends array|name ", "Local Heal Amount string much"));
}

TEST_F(FBlueprintReaderTest, AVariableThatNoCompileHasSeenIsAnError)
{
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Late"), MakeType(UEdGraphSchema_K2::PC_Int)));
	Reader.TryLoadBlueprint(Blueprint);
	EXPECT_EQ("Property not found", ErrorOf(Reader));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ("no error", ErrorOf(Reader));
	Blueprint->GeneratedClass = nullptr;
	EXPECT_EQ("Generated class not found", ErrorOf(Reader));
}

TEST_F(FBlueprintReaderTest, WithoutABlueprintThereIsNothingToRead)
{
	EXPECT_FALSE(Reader.TryLoadBlueprint(nullptr));
	EXPECT_EQ("", ToStd(Reader.GetBlueprintCode()));
	EXPECT_TRUE(Log.Contains("GetBlueprintCode: Invalid Blueprint"));
	EXPECT_EQ("Invalid Blueprint", ErrorOf(Reader));
	EXPECT_TRUE(Log.Contains("GetBlueprintVariables: Invalid Blueprint"));
	for (const TCHAR* const Path : {TEXT(""), TEXT("/Game/Nowhere.Nowhere"), TEXT("../../x"), TEXT("/Game/A.B:C.D"), TEXT("no path")})
	{
		Log.Clear();
		EXPECT_FALSE(Reader.TryLoadBlueprint(FString(Path)));
		EXPECT_TRUE(Log.Contains("Invalid asset data for blueprint at path: " + ToStd(Path))) << Log.ToText();
	}
	EXPECT_FALSE(Reader.TryLoadBlueprint(TEXT("/Game/") + FString::ChrN(100'000, TEXT('x'))));
}

TEST_F(FBlueprintReaderTest, ACollectedBlueprintIsGone)
{
	const FString Path = Blueprint->GetPathName();
	ASSERT_TRUE(Reader.TryLoadBlueprint(Path)) << Log.ToText();
	const FVexelBlueprintReader Copy = Reader;
	Blueprint->MarkAsGarbage();
	LetGoOfBlueprint();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ("", ToStd(Reader.GetBlueprintCode()));
	EXPECT_EQ("Invalid Blueprint", ErrorOf(Copy));
}

TEST_F(FBlueprintReaderTest, ABlueprintOfTheRealEditorIsRead)
{
	const FString Folder =
		FPaths::ConvertRelativePathToFull(FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages/AirSim/Blueprints"));
	if (!FPaths::DirectoryExists(Folder))
	{
		GTEST_SKIP() << "the sample packages are not here";
	}
	FPackageName::RegisterMountPoint(TEXT("/ReaderSample/"), Folder);
	UBlueprint* Sample = nullptr;
	ASSERT_TRUE(Mapping.ResolveBlueprint(TVexelBlueprintId(TEXT("/ReaderSample/BP_PIPCamera.BP_PIPCamera")), Sample));
	ASSERT_TRUE(Reader.TryLoadBlueprint(Sample));
	const std::string Code = ToStd(Reader.GetBlueprintCode());
	TArray<UEdGraph*> Graphs;
	Sample->GetAllGraphs(Graphs);
	EXPECT_EQ(static_cast<size_t>(Graphs.Num()), Count(Code, "SOURCE_GRAPH="));
	EXPECT_THAT(Code, HasSubstr("Begin Object Class=/Script/BlueprintGraph.K2Node_"));
	const auto Variables = Reader.GetBlueprintVariableData();
	ASSERT_TRUE(Variables.HasValue()) << ErrorOf(Reader);
	EXPECT_EQ(Sample->NewVariables.Num(), Variables.GetValue().Num());
	FPackageName::UnRegisterMountPoint(TEXT("/ReaderSample/"), Folder);
}

TEST_F(FBlueprintReaderTest, OpenedBlueprintsAreThoseWithEditors)
{
	UAssetEditorSubsystem* const Editors = GEditor->GetEditorSubsystem<UAssetEditorSubsystem>();
	Editors->CloseAllAssetEditors();
	EXPECT_TRUE(FVexelBlueprintRequestHelper::GetOpenedBlueprints().IsEmpty());
	Editors->OpenEditorForAsset(Blueprint);
	EXPECT_TRUE(FVexelBlueprintRequestHelper::GetOpenedBlueprints() == TArray<UBlueprint*>{Blueprint});
	Editors->CloseAllEditorsForAsset(Blueprint);
	EXPECT_TRUE(FVexelBlueprintRequestHelper::GetOpenedBlueprints().IsEmpty());
}

TEST_F(FBlueprintReaderTest, ARequestKeepsItsBlueprintAsLongAsAnyCopyOfItLives)
{
	const FString Path = Blueprint->GetPathName();
	TOptional<FVexelBlueprintRequestHelper> First;
	First.Emplace(*Blueprint, MakeShared<FVexelBlueprintMapping>());
	TOptional<FVexelBlueprintRequestHelper> Second = First;
	EXPECT_EQ(&First->GetMapping(), &Second->GetMapping());
	LetGoOfBlueprint();
	First.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(ToStd(Path), ToStd(Second->GetBlueprint().GetPathName()));
	EXPECT_EQ(EventGraph, Second->FindGraph(TEXT("EVENTGRAPH")));
	Second.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(nullptr, FindObject<UBlueprint>(nullptr, *Path));
}
}
