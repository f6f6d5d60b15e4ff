#include "BenchmarkEditor.h"
#include "Blueprint/VexelBlueprintMapping.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphNode_Comment.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "GeneratedGraph.h"
#include "GraphFormatter/GraphFormatter.h"
#include "LayoutMeasure.h"
#include "Misc/Base64.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "VexelTools.h"

#include <chrono>
#include <cstdio>
#include <functional>

// Says how good the formatter's layouts are beside where the nodes came in, and beside Graphviz.
// LayoutQuality [SAMPLES-DIRECTORY [LARGEST-NUMBER-OF-NODES [DIRECTORY-FOR-PICTURES]]]

namespace
{
TArray<void (*)()> EndOfMain;
}

void RunAtEndOfMain(void (*Function)())
{
	EndOfMain.Add(Function);
}

namespace
{
/** Where pictures go; empty for none. */
std::filesystem::path PictureDirectory;

struct FTotal
{
	FLayoutMeasure Before;
	FLayoutMeasure Ours;
	FLayoutMeasure Dot;
	double OurSeconds = 0.0;
	double DotSeconds = 0.0;
};

void Add(FLayoutMeasure& Sum, const FLayoutMeasure& Each)
{
	Sum.NumOverlaps += Each.NumOverlaps;
	Sum.NumCrossings += Each.NumCrossings;
	Sum.NumCovered += Each.NumCovered;
	Sum.Length += Each.Length;
	Sum.NumLevel += Each.NumLevel;
	Sum.NumExec += Each.NumExec;
}

/** What is told of layouts alone: how many wires of execution are level, and what the layout took. */
void PrintLayout(const FLayoutMeasure& Measure, double Seconds)
{
	std::printf(" %4lld/%-4lld %8.1f", static_cast<long long>(Measure.NumLevel), static_cast<long long>(Measure.NumExec), Seconds * 1e3);
}

void Print(const FLayoutMeasure& Measure)
{
	std::printf(" | %4lld %6lld %6lld %9.0f", static_cast<long long>(Measure.NumOverlaps), static_cast<long long>(Measure.NumCrossings),
		static_cast<long long>(Measure.NumCovered), Measure.Length);
}

/** Lays the graph's nodes out and prints a line; nothing for a graph without wires. */
void Compare(const std::string& Name, UEdGraph& Graph, FTotal& Total)
{
	TArray<UEdGraphNode*> Nodes;
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node && !Node->IsA<UEdGraphNode_Comment>())
		{
			Nodes.Add(Node);
		}
	}
	const FLayoutSubject Subject(Nodes);
	if (Subject.NumWires() == 0)
	{
		return;
	}
	const FLayoutMeasure Before = Subject.Measure(Subject.GetPlaces());
	double DotSeconds = 0.0;
	const std::vector<FVector2D> DotPlaces = Subject.LayOutByDot(DotSeconds);
	const FLayoutMeasure Dot = DotPlaces.empty() ? FLayoutMeasure() : Subject.Measure(DotPlaces);
	const auto Start = std::chrono::steady_clock::now();
	GraphFormatter::FormatSelectedNodes(Graph, Nodes, 200.0, 200.0);
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	const FLayoutMeasure Ours = Subject.Measure(Subject.GetPlaces());

	std::printf("%-34s %5d %5d", Name.c_str(), Subject.NumNodes(), Subject.NumWires());
	Print(Before);
	Print(Ours);
	PrintLayout(Ours, Seconds);
	Print(Dot);
	PrintLayout(Dot, DotSeconds);
	std::printf("\n");
	std::fflush(stdout);
	Add(Total.Before, Before);
	Add(Total.Ours, Ours);
	Add(Total.Dot, Dot);
	Total.OurSeconds += Seconds;
	Total.DotSeconds += DotSeconds;
}

/** A picture of the graph as the editor's window shows it. */
void SavePicture(const std::string& Name, const UBlueprint& Blueprint, const UEdGraph& Graph)
{
	const TSharedRef<FJsonObject> Input = MakeShared<FJsonObject>();
	Input->SetStringField(TEXT("mode"), TEXT("editor"));
	Input->SetStringField(TEXT("blueprint"), Blueprint.GetPathName());
	Input->SetStringField(TEXT("graph"), Graph.GetName());
	const TVexelTaskResult<TSharedRef<FJsonObject>> Call = FVexelToolSession().Call(TEXT("get_scene_screenshot"), Input);
	while (!Call.IsComplete())
	{
		FHeadlessEditor::WaitAndTick(0.01f);
	}
	if (Call.Value().HasError())
	{
		std::fprintf(stderr, "no picture of %s: %s\n", Name.c_str(), TCHAR_TO_UTF8(*Call.Value().GetError().ToShortString()));
		return;
	}
	TArray<uint8> Png;
	if (FBase64::Decode(Call.Value().GetValue()->GetStringField(TEXT("image")), Png))
	{
		std::ofstream(PictureDirectory / (Name + ".png"), std::ios::binary).write(reinterpret_cast<const char*>(Png.GetData()), Png.Num());
	}
}

void PrintTotal(const char* Name, const FTotal& Total)
{
	std::printf("%-34s            ", Name);
	Print(Total.Before);
	Print(Total.Ours);
	PrintLayout(Total.Ours, Total.OurSeconds);
	Print(Total.Dot);
	PrintLayout(Total.Dot, Total.DotSeconds);
	std::printf("\n\n");
}

void CompareTexts(const std::filesystem::path& Folder, FTotal& Total)
{
	for (const auto& Entry : std::filesystem::directory_iterator(Folder))
	{
		FString Text;
		FGeneratedGraph Made;
		TSet<UEdGraphNode*> Pasted;
		if (FFileHelper::LoadFileToString(Text, *FString(UTF8_TO_TCHAR(Entry.path().c_str()))))
		{
			FEdGraphUtilities::ImportNodesFromText(Made.Graph, Text, Pasted);
			Compare(Entry.path().stem().string(), *Made.Graph, Total);
		}
	}
}

void ComparePackages(const std::filesystem::path& Folder, FTotal& Total)
{
	const FString Root = FString(UTF8_TO_TCHAR(("/" + Folder.filename().string() + "/").c_str()));
	const FString Directory(UTF8_TO_TCHAR(Folder.c_str()));
	FPackageName::RegisterMountPoint(Root, Directory);
	FVexelBlueprintMapping Mapping;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
	{
		if (Entry.path().extension() != ".uasset")
		{
			continue;
		}
		const std::string Relative = std::filesystem::relative(Entry.path(), Folder).replace_extension().string();
		const FString Path = Root + FString(UTF8_TO_TCHAR(Relative.c_str())) + TEXT(".") + FString(UTF8_TO_TCHAR(Entry.path().stem().c_str()));
		UBlueprint* Blueprint = nullptr;
		TArray<UEdGraph*> Graphs;
		if (Mapping.ResolveBlueprint(TVexelBlueprintId(Path), Blueprint))
		{
			Blueprint->GetAllGraphs(Graphs);
		}
		for (UEdGraph* const Graph : Graphs)
		{
			const std::string Name = Entry.path().stem().string() + "." + TCHAR_TO_UTF8(*Graph->GetName());
			Compare(Name, *Graph, Total);
			if (!PictureDirectory.empty())
			{
				SavePicture(Name, *Blueprint, *Graph);
			}
		}
	}
	FPackageName::UnRegisterMountPoint(Root, Directory);
}

void CompareGenerated(int32 NumNodes)
{
	constexpr int32 NumSeeds = 3;
	FTotal Total;
	for (const FGeneratedGraph::EShape Shape : FGeneratedGraph::Shapes)
	{
		for (int32 Seed = 1; Seed <= (NumNodes > 500 ? 1 : NumSeeds); ++Seed)
		{
			FGeneratedGraph Made;
			Made.Fill(Shape, NumNodes, Seed);
			const std::string Name = FGeneratedGraph::GetName(Shape) + (" " + std::to_string(NumNodes)) + " seed " + std::to_string(Seed);
			Compare(Name, *Made.Graph, Total);
		}
	}
	PrintTotal("all of this size", Total);
}

void CompareSamples(const std::filesystem::path& Samples)
{
	FTotal Total;
	CompareTexts(Samples / "t3d", Total);
	ComparePackages(Samples / "packages" / "UE56", Total);
	ComparePackages(Samples / "packages" / "AirSim", Total);
	PrintTotal("all samples", Total);
}
}

int main(int NumArguments, char** Arguments)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		std::fprintf(stderr, "the editor does not start\n");
		return 1;
	}
	PictureDirectory = NumArguments > 3 ? Arguments[3] : "";
	const int32 MostNodes = NumArguments > 2 ? std::atoi(Arguments[2]) : 500;
	std::printf("%-34s %5s %5s | %-28s | %-46s | %s\n", "", "", "", "as they came", "ours", "dot");
	std::printf("%-34s %5s %5s", "graph", "nodes", "wires");
	for (int32 Column = 0; Column < 3; ++Column)
	{
		std::printf(" | %4s %6s %6s %9s%s", "over", "cross", "behind", "length", Column == 0 ? "" : "  level exec      ms");
	}
	std::printf("\n");
	FTotal Lighthouse;
	ComparePackages(std::filesystem::path(VEXEL_SOURCE_DIR) / "Samples" / "Lighthouse" / "Content", Lighthouse);
	PrintTotal("the sample project", Lighthouse);
	if (NumArguments > 1 && std::filesystem::is_directory(Arguments[1]))
	{
		CompareSamples(Arguments[1]);
	}
	for (const int32 NumNodes : {20, 100, 500, 2000, 10000})
	{
		if (NumNodes <= MostNodes)
		{
			CompareGenerated(NumNodes);
		}
	}
	for (void (*const Function)() : EndOfMain)
	{
		Function();
	}
	return 0;
}
