#include "GraphFixture.h"
#include "SampleNodes.h"

#include "Containers/StringConv.h"
#include "K2Node.h"

#include <iostream>

class FSampleNodesTest : public FGraphTest
{
protected:
	static void ExpectEqual(const FNodeComparison& Comparison)
	{
		std::cout << Comparison.MakeTable();
		for (const std::string& Difference : Comparison.Differences)
		{
			ADD_FAILURE() << Difference;
		}
	}

	/** Packages that engine 4 wrote. */
	static bool IsOfEngine4(const std::filesystem::path& Path)
	{
		const std::string Text = Path.string();
		return Text.find("UE4") != std::string::npos || Text.find("AirSim") != std::string::npos ||
			Text.find("WBP_TimeOfDay") != std::string::npos;
	}

	/** What reconstruction must not change of a pin. */
	static std::string DescribeKept(const UEdGraphPin& Pin)
	{
		FString Links;
		for (const UEdGraphPin* const Linked : Pin.LinkedTo)
		{
			Links += TEXT(" ") + Linked->GetOwningNode()->GetName() + TEXT(".") + Linked->PinName.ToString();
		}
		return TCHAR_TO_UTF8(*FString::Printf(TEXT("%s %s %s/%s/%s container %d hidden %d orphaned %d = '%s' %s links%s"),
			*Pin.PinId.ToString(), *Pin.PinName.ToString(), *Pin.PinType.PinCategory.ToString(), *Pin.PinType.PinSubCategory.ToString(),
			*GetPathNameSafe(Pin.PinType.PinSubCategoryObject.Get()), static_cast<int32>(Pin.PinType.ContainerType),
			static_cast<int32>(Pin.bHidden && Pin.PinName != TEXT("WorldContextObject")), static_cast<int32>(Pin.bOrphanedPin),
			Pin.bHidden ? TEXT("") : *Pin.GetDefaultAsString(), *Pin.PinType.PinSubCategoryMemberReference.MemberName.ToString(), *Links));
	}

	static std::vector<std::string> DescribeKept(const UK2Node& Node)
	{
		std::vector<std::string> Pins;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			Pins.push_back(DescribeKept(*Pin));
		}
		std::sort(Pins.begin(), Pins.end());
		return Pins;
	}

	/** How many nodes it was. */
	static int32 ExpectReconstructionKeeps(const TArray<UK2Node*>& Nodes)
	{
		for (UK2Node* const Node : Nodes)
		{
			const std::vector<std::string> Before = DescribeKept(*Node);
			Node->ReconstructNode();
			EXPECT_EQ(DescribeKept(*Node), Before) << TCHAR_TO_UTF8(*Node->GetClass()->GetName());
		}
		return Nodes.Num();
	}
};

TEST_F(FSampleNodesTest, FreshNodesHaveThePinsOfThoseInTexts)
{
	FNodeComparison Comparison;
	for (const std::filesystem::path& Path : SampleNodes::FindTexts())
	{
		for (UK2Node* const Node : SampleNodes::ImportText(Graph, Path))
		{
			Comparison.Compare(*Node, false);
		}
	}
	if (Comparison.GetNumCompared() == 0)
	{
		GTEST_SKIP() << "the folder of sample texts is missing";
	}
	ExpectEqual(Comparison);
}

TEST_F(FSampleNodesTest, FreshNodesHaveThePinsOfThoseInPackages)
{
	FNodeComparison Comparison;
	for (const std::filesystem::path& Path : SampleNodes::FindPackages())
	{
		const FLoadedSample Loaded(Path, GetProjectDir());
		for (UK2Node* const Node : Loaded.Nodes)
		{
			Comparison.Compare(*Node, IsOfEngine4(Path));
		}
	}
	if (Comparison.GetNumCompared() == 0)
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
	ExpectEqual(Comparison);
}

TEST_F(FSampleNodesTest, ReconstructingNodesOfTextsChangesNothing)
{
	int32 NumNodes = 0;
	for (const std::filesystem::path& Path : SampleNodes::FindTexts())
	{
		SCOPED_TRACE(Path.filename().string());
		NumNodes += ExpectReconstructionKeeps(SampleNodes::ImportText(Graph, Path));
	}
	if (NumNodes == 0)
	{
		GTEST_SKIP() << "the folder of sample texts is missing";
	}
}

TEST_F(FSampleNodesTest, ReconstructingNodesOfPackagesChangesNothing)
{
	int32 NumNodes = 0;
	for (const std::filesystem::path& Path : SampleNodes::FindPackages())
	{
		SCOPED_TRACE(Path.string());
		// Nodes of engine 4 have to change: numbers became wider, functions got parameters.
		if (!IsOfEngine4(Path))
		{
			const FLoadedSample Loaded(Path, GetProjectDir());
			NumNodes += ExpectReconstructionKeeps(Loaded.Nodes);
		}
	}
	if (NumNodes == 0)
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
}
