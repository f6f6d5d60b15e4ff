#include "EditorFixture.h"
#include "PackageSamples.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectHash.h"

#include <algorithm>
#include <map>

namespace
{
std::string ToText(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

template <typename Type>
std::string ToText(const Type& Value)
{
	return ToText(Value.ToString());
}

/** A Blueprint's content as lines that do not depend on the order in which it is stored. */
class FDescription
{
public:
	explicit FDescription(UPackage* Package)
	{
		std::vector<UBlueprint*> Blueprints;
		ForEachObjectWithPackage(Package, [&Blueprints](UObject* Object)
			{
				if (UBlueprint* const Blueprint = Cast<UBlueprint>(Object))
				{
					Blueprints.push_back(Blueprint);
				}
				return true; });
		for (UBlueprint* const Blueprint : Blueprints)
		{
			AddBlueprint(*Blueprint);
		}
		std::sort(Lines.begin(), Lines.end());
	}

	std::vector<std::string> Lines;
	int32 NumGraphs = 0;
	int32 NumNodes = 0;
	int32 NumPins = 0;
	int32 NumLinks = 0;
	int32 NumVariables = 0;
	int32 NumComponents = 0;

private:
	void AddBlueprint(UBlueprint& Blueprint)
	{
		TArray<UEdGraph*> Graphs;
		Blueprint.GetAllGraphs(Graphs);
		for (const UEdGraph* const Graph : Graphs)
		{
			++NumGraphs;
			Lines.push_back("graph " + ToText(Graph->GetName()));
			for (const UEdGraphNode* const Node : Graph->Nodes)
			{
				AddNode(*Graph, *Node);
			}
		}
		for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
		{
			++NumVariables;
			Lines.push_back("variable " + ToText(Variable.VarName) + " " + ToText(Variable.VarType.PinCategory) + " = " +
				ToText(Variable.DefaultValue));
		}
		if (Blueprint.SimpleConstructionScript)
		{
			for (const USCS_Node* const Component : Blueprint.SimpleConstructionScript->GetAllNodes())
			{
				++NumComponents;
				Lines.push_back("component " + ToText(Component->GetVariableName()));
			}
		}
	}

	void AddNode(const UEdGraph& Graph, const UEdGraphNode& Node)
	{
		++NumNodes;
		const std::string Name = "node " + ToText(Graph.GetName()) + " " + ToText(Node.GetClass()->GetName()) + " " + ToText(Node.NodeGuid);
		Lines.push_back(Name + " at " + std::to_string(Node.NodePosX) + "," + std::to_string(Node.NodePosY));
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			++NumPins;
			const std::string PinName = Name + "." + ToText(Pin->PinName);
			Lines.push_back(PinName + " " + ToText(Pin->PinType.PinCategory) + (Pin->Direction == EGPD_Input ? " in" : " out"));
			if (!Pin->DefaultValue.IsEmpty())
			{
				Lines.push_back(PinName + " = " + ToText(Pin->DefaultValue));
			}
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				++NumLinks;
				Lines.push_back(PinName + " to " + ToText(Linked->GetOwningNode()->NodeGuid) + "." + ToText(Linked->PinName));
			}
		}
	}
};

std::vector<std::string> FindDifferences(const std::vector<std::string>& A, const std::vector<std::string>& B)
{
	std::vector<std::string> Differences;
	std::set_symmetric_difference(A.begin(), A.end(), B.begin(), B.end(), std::back_inserter(Differences));
	return Differences;
}

class FBlueprintVersionTest : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		if (PackageSamples::List().empty())
		{
			GTEST_SKIP() << "the folder of sample packages is missing";
		}
		Written = GetProjectDir() / TEXT("Saved/Written.uasset");
	}

	FString Written;
};

UEdGraphNode* FindNode(UPackage* Package, const FGuid& Guid = FGuid())
{
	UEdGraphNode* Found = nullptr;
	ForEachObjectWithPackage(Package, [&Found, &Guid](UObject* Object)
		{
			UEdGraphNode* const Node = Cast<UEdGraphNode>(Object);
			const bool bIsWanted = Node && Node->GetTypedOuter<UBlueprint>() && (!Guid.IsValid() || Node->NodeGuid == Guid);
			Found = bIsWanted ? Node : Found;
			return !Found; });
	return Found;
}

TEST_F(FBlueprintVersionTest, TheSameBlueprintsOfEveryEngineVersionHaveTheSameGraphs)
{
	std::map<std::string, std::map<std::string, std::vector<std::string>>> ByBlueprint;
	for (const std::string& Sample : PackageSamples::List())
	{
		const std::string Version = PackageSamples::GetGroup(Sample);
		if (Version.rfind("UE", 0) != 0)
		{
			continue;
		}
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, PackageSamples::GetPackageName(Sample));
		ASSERT_TRUE(Loaded.GetLinker()) << Sample;
		const FDescription Description(Loaded.GetPackage());
		EXPECT_GE(Description.NumGraphs, 1) << Sample;
		ByBlueprint[Sample.substr(Version.size() + 1)][Version] = Description.Lines;
	}
	// Engine 5.0 gave PrintString another parameter.
	const std::string PrintString = "node EventGraph K2Node_CallFunction 2511F9384D4CDEADD3D57E8558AED13B";
	const std::vector<std::string> KeyOfPrintString = {PrintString + ".Key = None", PrintString + ".Key name in"};
	EXPECT_EQ(ByBlueprint.size(), 9u);
	for (const auto& [Blueprint, Versions] : ByBlueprint)
	{
		EXPECT_EQ(Versions.size(), 6u) << Blueprint;
		for (const auto& [Version, Lines] : Versions)
		{
			const bool bLacksKey = Blueprint == "SimpleRefs/SimpleRefsRoot.uasset" && Version < "UE50";
			EXPECT_EQ(FindDifferences(Lines, Versions.at("UE56")), bLacksKey ? KeyOfPrintString : std::vector<std::string>())
				<< Blueprint << " of " << Version;
		}
	}
}

TEST_F(FBlueprintVersionTest, AChangedNodeIsSavedForTheEngineThatItCameFromAndNothingElseChanges)
{
	int32 NumChanged = 0;
	for (const std::string& Sample : PackageSamples::List())
	{
		SCOPED_TRACE(Sample);
		const FString Name = PackageSamples::GetPackageName(Sample);
		std::vector<std::string> Expected;
		FGuid Changed;
		FPackageFileVersion Version;
		int32 NumExports = 0;
		{
			const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Sample, Name);
			UEdGraphNode* const Node = FindNode(Loaded.GetPackage());
			if (!Node)
			{
				continue;
			}
			const bool bHasOldPins = Loaded.GetLinker()->UEVer().FileVersionUE5 == 0 &&
				Loaded.GetLinker()->NameMap.Contains(FName(TEXT("DeprecatedPins")));
			Node->NodePosX += 16;
			Changed = Node->NodeGuid;
			Expected = FDescription(Loaded.GetPackage()).Lines;
			Version = Loaded.GetLinker()->UEVer();
			NumExports = Loaded.GetLinker()->ExportMap.Num();
			const bool bSaved = UPackage::SavePackage(Loaded.GetPackage(), nullptr, *Written, FSavePackageArgs());
			ASSERT_TRUE(bSaved || bHasOldPins);
			if (!bSaved)
			{
				continue;
			}
		}
		const PackageSamples::FLoaded Again(std::filesystem::path(TCHAR_TO_UTF8(*Written)), Name);
		ASSERT_TRUE(Again.GetLinker()) << TCHAR_TO_UTF8(*Again.GetError());
		for (const FString& Error : Again.GetLinker()->GetErrors())
		{
			ADD_FAILURE() << TCHAR_TO_UTF8(*Error);
		}
		EXPECT_EQ(Again.GetLinker()->UEVer(), Version);
		EXPECT_EQ(Again.GetLinker()->ExportMap.Num(), NumExports);
		EXPECT_EQ(FindDifferences(FDescription(Again.GetPackage()).Lines, Expected), std::vector<std::string>());
		EXPECT_TRUE(FindNode(Again.GetPackage(), Changed));
		++NumChanged;
	}
	EXPECT_GE(NumChanged, 10);
}

TEST_F(FBlueprintVersionTest, RealBlueprintsHaveTheirNodesPinsLinksVariablesAndComponents)
{
	struct FCounts
	{
		const char* Sample;
		int32 Graphs;
		int32 Nodes;
		int32 Pins;
		int32 Links;
		int32 Variables;
		int32 Components;
	};
	// Counted in the bytes: graphs, nodes, variables and components by the export tables and the lists in tags; pins by their
	// owner and id, which stand twice in a node; links by a pin's owner and id in the bytes of another node.
	for (const FCounts& Counts : std::initializer_list<FCounts>{
			 {"AirSim/Blueprints/BP_CameraDirector.uasset", 2, 1, 1, 0, 0, 1},
			 {"AirSim/Blueprints/BP_PIPCamera.uasset", 2, 1, 1, 0, 0, 11},
			 {"AirSim/Blueprints/Lights/SpotLightBP.uasset", 3, 10, 27, 14, 0, 2},
			 {"AirSim/HUDAssets/BP_LevelLoadButton.uasset", 3, 37, 116, 76, 2, 0},
			 {"CesiumUnreal/WBP_TimeOfDay.uasset", 1, 31, 104, 64, 0, 0},
			 {"UE420/SimpleRefs/SimpleRefsRoot.uasset", 1, 4, 17, 6, 2, 0},
			 {"UE56/SimpleRefs/SimpleRefsRoot.uasset", 1, 4, 18, 6, 2, 0}})
	{
		SCOPED_TRACE(Counts.Sample);
		const PackageSamples::FLoaded Loaded(PackageSamples::GetFolder() / Counts.Sample, PackageSamples::GetPackageName(Counts.Sample));
		ASSERT_TRUE(Loaded.GetLinker());
		const FDescription Description(Loaded.GetPackage());
		EXPECT_EQ(Description.NumGraphs, Counts.Graphs);
		EXPECT_EQ(Description.NumNodes, Counts.Nodes);
		EXPECT_EQ(Description.NumPins, Counts.Pins);
		EXPECT_EQ(Description.NumLinks, Counts.Links);
		EXPECT_EQ(Description.NumVariables, Counts.Variables);
		EXPECT_EQ(Description.NumComponents, Counts.Components);
	}
}
}
