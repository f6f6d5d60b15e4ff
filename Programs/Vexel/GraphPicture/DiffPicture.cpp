#include "DiffPicture.h"

#include "DiffLines.h"
#include "GraphFlow.h"
#include "InputChanges.h"
#include "NodeText.h"

namespace
{
constexpr int32 SignWidth = 2;
/** A sign, and the least room that a flow gives to a text. */
constexpr int32 MinWidth = 36;

FNodeStyles GetNodeStyles(EDifference Difference)
{
	FNodeStyles Styles = FNodeStyles::All(DiffText::GetStyle(Difference));
	Styles.Title.bBold = true;
	return Styles;
}

void DrawValue(const TCHAR* What, const FValueDifference& Value, FDiffLines& Lines)
{
	FStyledLine Text(What, TextStyle::Faint);
	DiffText::AddValue(Text, Value.Name, Value.Before, Value.After);
	Lines.AddChange(EDifference::Changed, Text);
}

void DrawMember(const FMemberDifference& Member, FDiffLines& Lines)
{
	FStyledLine Text(Member.What + TEXT(" "), Member.Kind == EDifference::Changed ? TextStyle::Faint : DiffText::GetStyle(Member.Kind));
	if (!Member.OldName.IsEmpty())
	{
		Text.Add(Member.OldName, TextStyle::Bad).Add(TEXT(" → "), TextStyle::Faint);
	}
	Text.Add(Member.Name, DiffText::GetNameStyle(Member.Kind, !Member.OldName.IsEmpty()));
	for (const FValueDifference& Value : Member.Values)
	{
		if (Member.Kind == EDifference::Changed)
		{
			DiffText::AddValue(Text, Value.Name, Value.Before, Value.After);
		}
		else
		{
			const FString& Shown = Member.Kind == EDifference::Added ? Value.After : Value.Before;
			Text.Add(TEXT("  ") + Value.Name + TEXT(": ") + Shown, DiffText::GetStyle(Member.Kind));
		}
	}
	Lines.AddChange(Member.Kind, Text);
}

/** One graph that differs. */
class FGraphDiffPainter
{
public:
	FGraphDiffPainter(const FGraphDifference& InDifference, FDiffLines& InLines)
		: Difference(InDifference)
		, Lines(InLines)
		, Merged(Difference.After ? *Difference.After : GetNothing(), Difference.Before ? Difference.Before : &GetNothing(), &Difference)
		, Flow(Merged, Lines.GetWidth() - SignWidth)
		, InputChanges(FindInputChanges(Merged, Difference))
	{
		for (const FNodeDifference& Node : Difference.Nodes)
		{
			if (Node.Kind == EDifference::Changed && !Node.bFollows)
			{
				Changed.Add(Node.After, &Node);
			}
		}
		for (int32 Node = 0; Node < Merged.Num(); ++Node)
		{
			if (Merged.IsInUse(Node))
			{
				++NumByTitle.FindOrAdd(Merged.Get(Node).Title, 0);
			}
		}
	}

	void Draw()
	{
		DrawHeading();
		for (const FMemberDifference& Member : Difference.Members)
		{
			DrawMember(Member, Lines);
		}
		DrawFlow();
		DrawLooseNodes();
		DrawReroutes(EDifference::Added);
		DrawReroutes(EDifference::Removed);
		if (!bDrewNode)
		{
			DrawWires();
		}
		if (const int32 NumFollowing = Difference.CountFollowing())
		{
			Lines.AddContext(FStyledLine(FString::Printf(TEXT("%d %s the new name"), NumFollowing,
											 NumFollowing == 1 ? TEXT("node goes by") : TEXT("nodes go by")),
				TextStyle::Faint));
		}
	}

private:
	static const FGraphSnapshot& GetNothing()
	{
		static const FGraphSnapshot Nothing;
		return Nothing;
	}

	/** "~ BP_Door · EventGraph  +2 -1 nodes  +3 wires". */
	void DrawHeading()
	{
		const FGraphSnapshot& Graph = Difference.GetShown();
		FStyledLine Text(Graph.BlueprintName + TEXT(" · "), TextStyle::Strong);
		if (Difference.IsRenamed())
		{
			Text.Add(Difference.Before->Name, TextStyle::Bad).Add(TEXT(" → "), TextStyle::Faint);
		}
		Text.Add(Graph.Name, DiffText::GetNameStyle(Difference.Kind, Difference.IsRenamed()));
		if (Graph.Kind != TEXT("event graph"))
		{
			Text.Add(TEXT("  ") + Graph.Kind, TextStyle::Faint);
		}
		AddCounts(Text, TEXT("nodes"), [this](EDifference Kind)
			{ return Difference.CountNodes(Kind); });
		AddCounts(Text, TEXT("wires"), [this](EDifference Kind)
			{ return Difference.CountWires(Kind); });
		Lines.AddChange(Difference.Kind, Text);
	}

	template <class CountType>
	static void AddCounts(FStyledLine& Text, const TCHAR* What, const CountType& CountKind)
	{
		int32 Total = 0;
		for (const EDifference Kind : {EDifference::Added, EDifference::Removed, EDifference::Changed})
		{
			const int32 Num = CountKind(Kind);
			if (Num > 0)
			{
				Text.Add(Total == 0 ? TEXT("  ") : TEXT(" "));
				Text.Add(FString::Printf(TEXT("%s%d"), DiffText::GetSign(Kind), Num), DiffText::GetStyle(Kind));
				Total += Num;
			}
		}
		if (Total > 0)
		{
			Text.Add(FString(TEXT(" ")) + (Total == 1 ? FString(What).LeftChop(1) : FString(What)), TextStyle::Faint);
		}
	}

	bool IsChanged(int32 Node) const { return Changed.Contains(Node) || InputChanges.Contains(Node); }

	bool IsMarked(const FFlowLine& Line) const
	{
		const bool bNode = Line.Kind == EFlowLine::Root || Line.Kind == EFlowLine::Node;
		return Line.Difference != EDifference::Changed || (bNode && Line.Node != INDEX_NONE && IsChanged(Line.Node));
	}

	static bool BeginsSection(const FFlowLine& Line) { return Line.Kind == EFlowLine::Root || Line.Kind == EFlowLine::Unreached; }

	/** The lines of what changed, one before and one behind them, and those that say on which way they stand. */
	TArray<bool> FindShownLines() const
	{
		const TArray<FFlowLine>& All = Flow.GetLines();
		TArray<bool> Shown;
		Shown.Init(false, All.Num());
		for (int32 Index = 0; Index < All.Num(); ++Index)
		{
			if (!IsMarked(All[Index]))
			{
				continue;
			}
			Shown[Index] = true;
			if (!BeginsSection(All[Index]) && All[Index].Kind != EFlowLine::Way)
			{
				Shown[Index - 1] = true;
			}
			if (Index + 1 < All.Num() && !BeginsSection(All[Index + 1]) && All[Index + 1].Kind != EFlowLine::Way)
			{
				Shown[Index + 1] = true;
			}
		}
		// What a line stands below comes before it.
		for (int32 Index = All.Num() - 1; Index >= 0; --Index)
		{
			if (Shown[Index] && All[Index].Parent != INDEX_NONE)
			{
				Shown[All[Index].Parent] = true;
			}
		}
		return Shown;
	}

	void DrawFlow()
	{
		const TArray<FFlowLine>& All = Flow.GetLines();
		const TArray<bool> Shown = FindShownLines();
		bool bGap = false;
		for (int32 Index = 0; Index < All.Num(); ++Index)
		{
			if (!Shown[Index])
			{
				bGap = true;
				continue;
			}
			if (bGap && !BeginsSection(All[Index]))
			{
				Lines.AddContext(FStyledLine(TEXT("…"), TextStyle::Faint));
			}
			bGap = false;
			const bool bMarked = IsMarked(All[Index]);
			bDrewNode |= bMarked;
			if (Lines.IsFull())
			{
				if (bMarked)
				{
					Lines.Count();
				}
			}
			else
			{
				DrawLine(All[Index], bMarked);
			}
		}
	}

	void DrawLine(const FFlowLine& Line, bool bMarked)
	{
		if (bMarked)
		{
			Lines.AddChange(Line.Difference, WriteLine(Line), Line.Rail, Line.NextRail);
		}
		else
		{
			FShownNodes Ignored;
			Lines.AddContext(WritePlainLine(Line, FNodeStyles::All(TextStyle::Faint), Ignored), Line.Rail, Line.NextRail);
		}
	}

	FString WriteNumber(int32 Node) const
	{
		const int32 Number = Flow.GetNumber(Node);
		return Number > 0 ? FString::Printf(TEXT("#%d "), Number) : FString();
	}

	/** A line of something that changed; notes the pure nodes that its text shows. */
	FStyledLine WriteLine(const FFlowLine& Line)
	{
		const bool bNode = Line.Kind == EFlowLine::Root || Line.Kind == EFlowLine::Node;
		if (bNode && Line.Difference == EDifference::Changed)
		{
			FStyledLine Text(WriteNumber(Line.Node), TextStyle::Accent);
			Text.Append(WriteChangedNode(Line.Node));
			return Line.Label.IsEmpty() ? Text : Text.Add(TEXT("  ▸ ") + Line.Label, TextStyle::Faint);
		}
		return WritePlainLine(Line, GetNodeStyles(Line.Difference), Line.Difference == EDifference::Removed ? ShownBefore : ShownAfter);
	}

	FStyledLine WritePlainLine(const FFlowLine& Line, const FNodeStyles& Styles, FShownNodes& NowShown) const
	{
		FStyledLine Text;
		switch (Line.Kind)
		{
			case EFlowLine::Unreached:
				return Text.Add(TEXT("Never runs: nothing leads here"), Styles.Label);
			case EFlowLine::Way:
				return Text.Add(Line.Label, Styles.Label);
			case EFlowLine::Pointer:
				Text.Add(TEXT("↪ ") + WriteNumber(Line.Node), Styles.Label);
				return Text.Append(WritePointedNode(Line.Node, FNodeStyles::All(Styles.Label)));
			default:
				break;
		}
		if (Line.Node == INDEX_NONE)
		{
			return Text.Add(TEXT("…"), Styles.Label);
		}
		const FNodeSnapshot& Node = Merged.Get(Line.Node);
		Text.Add(WriteNumber(Line.Node), Styles.Number);
		Text.Append(WriteNode(Merged.GetGraph(Line.Node), Node, Styles, NowShown));
		if (Line.Kind == EFlowLine::Root)
		{
			Text.Add(WriteRootOutputs(Node), Styles.Label);
		}
		return Line.Label.IsEmpty() ? Text : Text.Add(TEXT("  ▸ ") + Line.Label, Styles.Label);
	}

	/** A node by its title, and by its inputs where others have the same title. */
	FStyledLine WritePointedNode(int32 Index, const FNodeStyles& Styles) const
	{
		const FString& Title = Merged.Get(Index).Title;
		FShownNodes Ignored;
		return NumByTitle.FindRef(Title) > 1 ? WriteNode(Merged.GetGraph(Index), Merged.Get(Index), Styles, Ignored)
											 : FStyledLine(Title, Styles.Title);
	}

	/** A node that stays, with what it was and what it is. */
	FStyledLine WriteChangedNode(int32 Index)
	{
		const FNodeSnapshot& Now = Merged.Get(Index);
		const FNodeDifference* const* const Own = Changed.Find(Index);
		const TArray<FInputChange>* const Inputs = InputChanges.Find(Index);
		const FAspectDifference* const Title = Own ? (*Own)->Aspects.FindByPredicate([](const FAspectDifference& Aspect)
														 { return Aspect.Aspect == ENodeAspect::Title; })
												   : nullptr;
		FStyledLine Text;
		if (Title)
		{
			Text.Add(Title->Before, TextStyle::Bad).Add(TEXT(" → "), TextStyle::Faint).Add(Title->After, TextStyle::Good);
		}
		else
		{
			Text.Add(Now.Title, TextStyle::Strong);
		}
		static const TArray<FInputChange> NoInputs;
		static const TArray<FAspectDifference> NoAspects;
		for (const FInputChange& Change : Inputs ? *Inputs : NoInputs)
		{
			DiffText::AddValue(Text, Change.Label, Change.Before.Text, Change.After.Text);
			ShownBefore.Add(Change.Before);
			ShownAfter.Add(Change.After);
		}
		for (const FAspectDifference& Aspect : Own ? (*Own)->Aspects : NoAspects)
		{
			const auto IsOfAspect = [&](const FInputChange& Change)
			{ return Change.Label.Equals(Aspect.Name); };
			if (Aspect.Aspect != ENodeAspect::PinValue || !Inputs || !Inputs->ContainsByPredicate(IsOfAspect))
			{
				AddAspect(Text, Aspect);
			}
		}
		return Text;
	}

	static void AddAspect(FStyledLine& Text, const FAspectDifference& Aspect)
	{
		switch (Aspect.Aspect)
		{
			case ENodeAspect::Title:
				break;
			case ENodeAspect::Comment:
				DiffText::AddValue(Text, TEXT("#"), Aspect.Before, Aspect.After);
				break;
			case ENodeAspect::Enabled:
				Text.Add(TEXT("  ")).Add(Aspect.After, TextStyle::Accent);
				break;
			case ENodeAspect::Orphan:
				Text.Add(TEXT("  ") + Aspect.Name + TEXT(": "), TextStyle::Faint).Add(Aspect.After, TextStyle::Accent);
				break;
			case ENodeAspect::Pin:
				if (Aspect.Before.IsEmpty() || Aspect.After.IsEmpty())
				{
					const EDifference Kind = Aspect.Before.IsEmpty() ? EDifference::Added : EDifference::Removed;
					Text.Add(Kind == EDifference::Added ? TEXT("  +pin ") : TEXT("  -pin "), DiffText::GetStyle(Kind));
					Text.Add(Aspect.Name, DiffText::GetStyle(Kind));
					break;
				}
				DiffText::AddValue(Text, TEXT("pin"), Aspect.Before, Aspect.After);
				break;
			case ENodeAspect::Declaration:
			case ENodeAspect::PinValue:
			case ENodeAspect::PinType:
				DiffText::AddValue(Text, Aspect.Name, Aspect.Before, Aspect.After);
				break;
		}
	}

	/** Nodes that no line of the flow shows: values that nothing shown is computed from, and comments. */
	void DrawLooseNodes()
	{
		for (const FNodeDifference& Node : Difference.Nodes)
		{
			const int32 Index = Node.After == INDEX_NONE ? Merged.FromBefore(Node.Before) : Node.After;
			const FNodeSnapshot& Shown = Merged.Get(Index);
			if (Shown.Form == ENodeForm::Comment)
			{
				DrawCommentBox(Node, Shown);
			}
			else if (Shown.bPure && Shown.IsDrawn() && !Node.bFollows && !IsShownInExpression(Node))
			{
				DrawLooseNode(Node.Kind, Index);
			}
		}
		for (const auto& [Index, Inputs] : InputChanges)
		{
			if (Merged.Get(Index).bPure && !Changed.Contains(Index) && !ShownAfter.Contains(Index))
			{
				DrawLooseNode(EDifference::Changed, Index);
			}
		}
	}

	/** Whether an expression above says all that there is to say of the node. */
	bool IsShownInExpression(const FNodeDifference& Node) const
	{
		for (const FAspectDifference& Aspect : Node.Aspects)
		{
			if (Aspect.Aspect != ENodeAspect::PinValue && Aspect.Aspect != ENodeAspect::Title)
			{
				return false;
			}
		}
		if (Node.Kind == EDifference::Removed)
		{
			return ShownBefore.Named.Contains(Node.Before);
		}
		// The value of a conversion that stays is all that can change of it.
		return ShownAfter.Named.Contains(Node.After) || (Node.Kind == EDifference::Changed && ShownAfter.Unnamed.Contains(Node.After));
	}

	void DrawLooseNode(EDifference Kind, int32 Index)
	{
		bDrewNode = true;
		if (Lines.IsFull())
		{
			Lines.Count();
			return;
		}
		FShownNodes Ignored;
		Lines.AddChange(Kind,
			Kind == EDifference::Changed ? WriteChangedNode(Index)
										 : WriteNode(Merged.GetGraph(Index), Merged.Get(Index), GetNodeStyles(Kind), Ignored));
	}

	void DrawCommentBox(const FNodeDifference& Node, const FNodeSnapshot& Box)
	{
		bDrewNode = true;
		FStyledLine Text;
		if (Node.Kind == EDifference::Changed)
		{
			AddAspect(Text.Add(TEXT("Comment"), TextStyle::Strong), Node.Aspects[0]);
		}
		else
		{
			Text.Add(TEXT("# ") + Box.Comment, DiffText::GetStyle(Node.Kind));
		}
		Lines.AddChange(Node.Kind, Text);
	}

	void DrawReroutes(EDifference Kind)
	{
		int32 Num = 0;
		for (const FNodeDifference& Node : Difference.Nodes)
		{
			const FGraphSnapshot* const Graph = Kind == EDifference::Added ? Difference.After : Difference.Before;
			const int32 Index = Kind == EDifference::Added ? Node.After : Node.Before;
			Num += Node.Kind == Kind && Graph->Nodes[Index].Form == ENodeForm::Reroute ? 1 : 0;
		}
		if (Num > 0)
		{
			bDrewNode = true;
			const FString Text = FString::Printf(TEXT("%d reroute %s"), Num, Num == 1 ? TEXT("node") : TEXT("nodes"));
			Lines.AddChange(Kind, FStyledLine(Text, DiffText::GetStyle(Kind)));
		}
	}

	/** Wires of which no node tells: to pins that nobody sees. */
	void DrawWires()
	{
		for (const FWireDifference& Wire : Difference.Wires)
		{
			const FGraphSnapshot& Graph = Wire.Kind == EDifference::Added ? *Difference.After : *Difference.Before;
			const auto WriteEnd = [&](const FPinLink& End)
			{ return Graph.Nodes[End.Node].Title + TEXT(".") + Graph.GetPin(End).Label; };
			Lines.AddChange(Wire.Kind, FStyledLine(WriteEnd(Wire.From) + TEXT(" → ") + WriteEnd(Wire.To), DiffText::GetStyle(Wire.Kind)));
		}
	}

	const FGraphDifference& Difference;
	FDiffLines& Lines;
	const FMergedGraph Merged;
	const FGraphFlow Flow;
	const TMap<int32, TArray<FInputChange>> InputChanges;
	/** Nodes that stay and differ by themselves. */
	TMap<int32, const FNodeDifference*> Changed;
	TMap<FString, int32> NumByTitle;
	/** Pure nodes, by their indices before and after, that the lines so far show. */
	FShownNodes ShownBefore;
	FShownNodes ShownAfter;
	bool bDrewNode = false;
};
}

TArray<FStyledLine> DrawDiff(const FBlueprintDiff& Diff, int32 Width, int32 MaxLines)
{
	FDiffLines Lines(FMath::Max(Width, MinWidth), MaxLines);
	if (!Diff.Settings.IsEmpty() || !Diff.ClassDefaults.IsEmpty() || !Diff.Members.IsEmpty())
	{
		Lines.AddChange(Diff.GetKind(), FStyledLine(Diff.GetShown().Name, DiffText::GetNameStyle(Diff.GetKind())));
	}
	for (const FValueDifference& Value : Diff.Settings)
	{
		DrawValue(TEXT("Blueprint"), Value, Lines);
	}
	for (const FMemberDifference& Member : Diff.Members)
	{
		DrawMember(Member, Lines);
	}
	for (const FValueDifference& Value : Diff.ClassDefaults)
	{
		DrawValue(TEXT("class default"), Value, Lines);
	}
	for (const FGraphDifference& Graph : Diff.Graphs)
	{
		FGraphDiffPainter(Graph, Lines).Draw();
	}
	return Lines.Finish();
}
