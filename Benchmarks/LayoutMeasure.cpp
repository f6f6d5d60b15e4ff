#include "LayoutMeasure.h"

#include "EdGraph/EdGraphNode.h"
#include "GraphFormatter/FormatterGraph.h"
#include "GraphFormatter/Obstacles.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <unistd.h>

namespace
{
/** Graphviz counts in inches. */
constexpr double UnitsPerInch = 72.0;
constexpr double LevelTolerance = 0.5;
/** Half the gaps that the plug-in lays out with. */
constexpr double GapBetweenColumns = 100.0;
constexpr double GapBetweenNodes = 50.0;

struct FSegment
{
	FVector2D A;
	FVector2D B;
};

double Cross(const FVector2D& O, const FVector2D& P, const FVector2D& Q)
{
	return (P.X - O.X) * (Q.Y - O.Y) - (P.Y - O.Y) * (Q.X - O.X);
}

bool DoCross(const FSegment& S, const FSegment& T)
{
	if (std::max(S.A.X, S.B.X) <= std::min(T.A.X, T.B.X) || std::max(T.A.X, T.B.X) <= std::min(S.A.X, S.B.X) ||
		std::max(S.A.Y, S.B.Y) < std::min(T.A.Y, T.B.Y) || std::max(T.A.Y, T.B.Y) < std::min(S.A.Y, S.B.Y))
	{
		return false;
	}
	return Cross(S.A, S.B, T.A) * Cross(S.A, S.B, T.B) < 0 && Cross(T.A, T.B, S.A) * Cross(T.A, T.B, S.B) < 0;
}

template <typename ElementType, typename FunctionType>
int64 CountPairs(const std::vector<ElementType>& Elements, FunctionType AreCounted)
{
	int64 NumPairs = 0;
	for (size_t A = 0; A < Elements.size(); ++A)
	{
		for (size_t B = A + 1; B < Elements.size(); ++B)
		{
			NumPairs += AreCounted(Elements[A], Elements[B]);
		}
	}
	return NumPairs;
}

/** A cell for each pin at its height, so that wires end there. */
std::string MakeColumn(const char* Side, const std::set<double>& PinYs, double Height)
{
	std::ostringstream Rows;
	double Top = 0.0;
	for (auto Pin = PinYs.begin(); Pin != PinYs.end(); ++Pin)
	{
		constexpr double HalfPin = 2.0;
		if (*Pin - HalfPin > Top)
		{
			Rows << "<TR><TD FIXEDSIZE=\"TRUE\" WIDTH=\"4\" HEIGHT=\"" << int(*Pin - HalfPin - Top) << "\"></TD></TR>";
		}
		Rows << "<TR><TD FIXEDSIZE=\"TRUE\" WIDTH=\"4\" HEIGHT=\"" << int(2 * HalfPin) << "\" PORT=\"" << Side << int(*Pin) << "\"></TD></TR>";
		Top = *Pin + HalfPin;
	}
	Rows << "<TR><TD FIXEDSIZE=\"TRUE\" WIDTH=\"4\" HEIGHT=\"" << std::max(1, int(Height - Top)) << "\"></TD></TR>";
	return "<TABLE BORDER=\"0\" CELLBORDER=\"0\" CELLSPACING=\"0\" CELLPADDING=\"0\">" + Rows.str() + "</TABLE>";
}
}

FLayoutSubject::FLayoutSubject(const TArray<UEdGraphNode*>& InNodes)
{
	const FFormatterGraph Graph(InNodes);
	for (const FFormatterNode& Node : Graph.Nodes)
	{
		Nodes.Add(Node.Node);
		Sizes.push_back(Node.Size);
	}
	for (const FFormatterWire& Wire : Graph.Wires)
	{
		Wires.push_back({Wire.From, Wire.To, Wire.FromY, Wire.ToY, Wire.bExec});
	}
	for (const FFormatterTie& Tie : Graph.Ties)
	{
		const int32 Other = Graph.FindIndex(*Tie.OtherNode);
		if (Tie.bIsEvent && Other != INDEX_NONE)
		{
			Wires.push_back({Tie.Node, Other, Tie.EventY, Tie.CallerY, false});
		}
	}
}

std::vector<FVector2D> FLayoutSubject::GetPlaces() const
{
	std::vector<FVector2D> Places;
	for (const UEdGraphNode* const Node : Nodes)
	{
		Places.emplace_back(Node->NodePosX, Node->NodePosY);
	}
	return Places;
}

FLayoutMeasure FLayoutSubject::Measure(const std::vector<FVector2D>& Places) const
{
	FLayoutMeasure Result;
	std::vector<FBox2D> Boxes;
	for (size_t Index = 0; Index < Places.size(); ++Index)
	{
		Boxes.emplace_back(Places[Index], Places[Index] + Sizes[Index]);
	}
	Result.NumOverlaps = CountPairs(Boxes, [](const FBox2D& A, const FBox2D& B)
		{ return A.Min.X < B.Max.X && B.Min.X < A.Max.X && A.Min.Y < B.Max.Y && B.Min.Y < A.Max.Y; });
	std::vector<FSegment> Segments;
	for (const FWire& Wire : Wires)
	{
		const FSegment Segment{FVector2D(Boxes[Wire.From].Max.X, Places[Wire.From].Y + Wire.FromY),
			FVector2D(Places[Wire.To].X, Places[Wire.To].Y + Wire.ToY)};
		Segments.push_back(Segment);
		Result.Length += (Segment.B - Segment.A).Size();
		Result.NumExec += Wire.bExec;
		Result.NumLevel += Wire.bExec && std::abs(Segment.B.Y - Segment.A.Y) < LevelTolerance;
		bool bCovered = false;
		for (int32 Node = 0; Node < int32(Boxes.size()) && !bCovered; ++Node)
		{
			bCovered = Node != Wire.From && Node != Wire.To && FSegment2D{Segment.A, Segment.B}.Passes(Boxes[Node]);
		}
		Result.NumCovered += bCovered;
	}
	Result.NumCrossings = CountPairs(Segments, DoCross);
	return Result;
}

std::string FLayoutSubject::ToDot() const
{
	std::vector<std::set<double>> Inputs(Sizes.size());
	std::vector<std::set<double>> Outputs(Sizes.size());
	for (const FWire& Wire : Wires)
	{
		Outputs[Wire.From].insert(Wire.FromY);
		Inputs[Wire.To].insert(Wire.ToY);
	}
	std::ostringstream Text;
	Text << "digraph G {\nrankdir=LR; splines=line; ranksep=" << GapBetweenColumns / UnitsPerInch
		 << "; nodesep=" << GapBetweenNodes / UnitsPerInch
		 << ";\nnode [shape=plain];\n";
	for (size_t Node = 0; Node < Sizes.size(); ++Node)
	{
		const double Height = Sizes[Node].Y;
		Text << "n" << Node << " [label=<<TABLE BORDER=\"0\" CELLBORDER=\"0\" CELLSPACING=\"0\" CELLPADDING=\"0\"><TR><TD>"
			 << MakeColumn("i", Inputs[Node], Height) << "</TD><TD FIXEDSIZE=\"TRUE\" WIDTH=\"" << int(Sizes[Node].X - 8) << "\" HEIGHT=\""
			 << int(Height) << "\"></TD><TD>" << MakeColumn("o", Outputs[Node], Height) << "</TD></TR></TABLE>>];\n";
	}
	for (const FWire& Wire : Wires)
	{
		Text << "n" << Wire.From << ":o" << int(Wire.FromY) << ":e -> n" << Wire.To << ":i" << int(Wire.ToY) << ":w;\n";
	}
	Text << "}\n";
	return Text.str();
}

std::vector<FVector2D> FLayoutSubject::LayOutByDot(double& OutSeconds) const
{
	const std::filesystem::path File = std::filesystem::temp_directory_path() / ("vexel-layout-" + std::to_string(getpid()) + ".dot");
	std::ofstream(File) << ToDot();
	const auto Start = std::chrono::steady_clock::now();
	FILE* const Dot = popen(("dot -Tplain " + File.string() + " 2> /dev/null").c_str(), "r");
	std::string Output;
	char Buffer[1 << 16];
	for (size_t Read = fread(Buffer, 1, sizeof(Buffer), Dot); Read > 0; Read = fread(Buffer, 1, sizeof(Buffer), Dot))
	{
		Output.append(Buffer, Read);
	}
	const bool bDone = pclose(Dot) == 0;
	OutSeconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	std::filesystem::remove(File);
	std::vector<FVector2D> Places(Sizes.size());
	size_t NumPlaced = 0;
	std::istringstream Lines(Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		// "node n12 x y width height ...", its middle in inches with y going up.
		std::istringstream Words(Line);
		std::string Kind;
		std::string Name;
		double X = 0.0;
		double Y = 0.0;
		if (Words >> Kind >> Name >> X >> Y && Kind == "node")
		{
			const size_t Node = std::stoul(Name.substr(1));
			Places[Node] = FVector2D(X * UnitsPerInch, -Y * UnitsPerInch) - Sizes[Node] / 2;
			++NumPlaced;
		}
	}
	return bDone && NumPlaced == Sizes.size() ? Places : std::vector<FVector2D>();
}
