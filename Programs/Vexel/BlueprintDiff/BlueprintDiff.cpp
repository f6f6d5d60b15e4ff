#include "BlueprintDiff.h"

#include "ItemMatch.h"

namespace
{
TArray<FValueDifference> CompareValues(const TArray<FValueSnapshot>& Before, const TArray<FValueSnapshot>& After)
{
	TArray<FValueDifference> Differences;
	TMap<FString, const FString*> BeforeValues;
	for (const FValueSnapshot& Value : Before)
	{
		BeforeValues.Add(Value.Name, &Value.Value);
	}
	for (const FValueSnapshot& Value : After)
	{
		const FString* BeforeValue = nullptr;
		BeforeValues.RemoveAndCopyValue(Value.Name, BeforeValue);
		const bool bSame = BeforeValue ? BeforeValue->Equals(Value.Value) : Value.bOfType;
		if (!bSame)
		{
			Differences.Add({Value.Name, BeforeValue ? *BeforeValue : FString(), Value.Value});
		}
	}
	for (const FValueSnapshot& Value : Before)
	{
		if (BeforeValues.Contains(Value.Name) && !Value.bOfType)
		{
			Differences.Add({Value.Name, Value.Value, FString()});
		}
	}
	return Differences;
}

TArray<FMemberDifference> CompareMembers(const TArray<FMemberSnapshot>& Before, const TArray<FMemberSnapshot>& After)
{
	const FItemMatch Matched = ItemMatch::Match(
		Before, After, [](const FMemberSnapshot& Member)
		{ return Member.Kind + TEXT(" ") + Member.Name; },
		false);
	TArray<FMemberDifference> Differences;
	for (int32 Index = 0; Index < After.Num(); ++Index)
	{
		const FMemberSnapshot& Now = After[Index];
		if (Matched.BeforeOf[Index] == INDEX_NONE)
		{
			Differences.Add({EDifference::Added, Now.Kind, Now.Name, FString(), CompareValues({}, Now.Values)});
			continue;
		}
		const FMemberSnapshot& Then = Before[Matched.BeforeOf[Index]];
		FMemberDifference Difference{EDifference::Changed, Now.Kind, Now.Name, FString(), CompareValues(Then.Values, Now.Values)};
		Difference.OldName = Then.Name.Equals(Now.Name) ? FString() : Then.Name;
		if (!Difference.OldName.IsEmpty() || !Difference.Values.IsEmpty())
		{
			Differences.Add(MoveTemp(Difference));
		}
	}
	for (int32 Index = 0; Index < Before.Num(); ++Index)
	{
		if (Matched.AfterOf[Index] == INDEX_NONE)
		{
			const FMemberSnapshot& Then = Before[Index];
			Differences.Add({EDifference::Removed, Then.Kind, Then.Name, FString(), CompareValues(Then.Values, {})});
		}
	}
	return Differences;
}

const TCHAR* GetEnabledWord(const FNodeSnapshot& Node)
{
	return Node.bEnabled ? TEXT("enabled") : TEXT("disabled");
}

void ComparePin(const FPinSnapshot& Before, const FPinSnapshot& After, TArray<FAspectDifference>& Differences)
{
	if (!Before.Label.Equals(After.Label))
	{
		Differences.Add({ENodeAspect::Pin, After.Label, After.bInput, Before.Label, After.Label});
	}
	if (!Before.DeclaredType.Equals(After.DeclaredType))
	{
		Differences.Add({ENodeAspect::PinType, After.Label, After.bInput, Before.DeclaredType, After.DeclaredType});
	}
	if (Before.bOrphaned != After.bOrphaned)
	{
		const auto GetWord = [](const FPinSnapshot& Pin)
		{ return Pin.bOrphaned ? TEXT("orphaned") : TEXT("defined"); };
		Differences.Add({ENodeAspect::Orphan, After.Label, After.bInput, GetWord(Before), GetWord(After)});
	}
	// The value under a wire is no one's.
	const bool bShowsValue = After.bInput && Before.Links.IsEmpty() && After.Links.IsEmpty();
	if (bShowsValue && !Before.Value.Equals(After.Value))
	{
		Differences.Add({ENodeAspect::PinValue, After.Label, true, Before.Value, After.Value});
	}
}

/** A pin that a reader sees: the others come and go with what the node is. */
bool IsSeen(const FPinSnapshot& Pin)
{
	return !Pin.bHidden || !Pin.Links.IsEmpty();
}

void ComparePins(const FNodeSnapshot& Before, const FNodeSnapshot& After, const FItemMatch& Pins, TArray<FAspectDifference>& Differences)
{
	for (int32 Index = 0; Index < After.Pins.Num(); ++Index)
	{
		const FPinSnapshot& Now = After.Pins[Index];
		if (Pins.BeforeOf[Index] != INDEX_NONE)
		{
			ComparePin(Before.Pins[Pins.BeforeOf[Index]], Now, Differences);
		}
		else if (IsSeen(Now))
		{
			Differences.Add({ENodeAspect::Pin, Now.Label, Now.bInput, FString(), Now.Label});
		}
	}
	for (int32 Index = 0; Index < Before.Pins.Num(); ++Index)
	{
		const FPinSnapshot& Then = Before.Pins[Index];
		if (Pins.AfterOf[Index] == INDEX_NONE && IsSeen(Then))
		{
			Differences.Add({ENodeAspect::Pin, Then.Label, Then.bInput, Then.Label, FString()});
		}
	}
}

TArray<FAspectDifference> CompareNode(const FNodeSnapshot& Before, const FNodeSnapshot& After, const FItemMatch& Pins)
{
	TArray<FAspectDifference> Differences;
	if (!Before.Title.Equals(After.Title))
	{
		Differences.Add({ENodeAspect::Title, FString(), false, Before.Title, After.Title});
	}
	if (!Before.Comment.Equals(After.Comment))
	{
		Differences.Add({ENodeAspect::Comment, FString(), false, Before.Comment, After.Comment});
	}
	if (Before.bEnabled != After.bEnabled)
	{
		Differences.Add({ENodeAspect::Enabled, FString(), false, GetEnabledWord(Before), GetEnabledWord(After)});
	}
	for (FValueDifference& Value : CompareValues(Before.Values, After.Values))
	{
		Differences.Add({ENodeAspect::Declaration, MoveTemp(Value.Name), false, MoveTemp(Value.Before), MoveTemp(Value.After)});
	}
	ComparePins(Before, After, Pins, Differences);
	return Differences;
}

/** Compares two states of one graph; a side that has no such graph is an empty one. */
class FGraphComparer
{
public:
	FGraphComparer(const FGraphSnapshot& InBefore, const FGraphSnapshot& InAfter, FGraphDifference& InDifference)
		: Before(InBefore)
		, After(InAfter)
		, Nodes(MatchNodes(Before, After))
		, Difference(InDifference)
	{
	}

	void Compare()
	{
		Pins.SetNum(After.Nodes.Num());
		for (int32 Index = 0; Index < After.Nodes.Num(); ++Index)
		{
			CompareNodeAt(Index);
		}
		for (int32 Index = 0; Index < Before.Nodes.Num(); ++Index)
		{
			if (Nodes.AfterOf[Index] == INDEX_NONE && !Before.Nodes[Index].bGhost)
			{
				Difference.Nodes.Add({.Kind = EDifference::Removed, .Before = Index});
			}
		}
		FindWires(
			After, EDifference::Added, [this](const FPinLink& Link)
			{ return ToBefore(Link); },
			Before);
		FindWires(
			Before, EDifference::Removed, [this](const FPinLink& Link)
			{ return ToAfter(Link); },
			After);
		Difference.Members = CompareMembers(Before.Members, After.Members);
	}

private:
	void CompareNodeAt(int32 Index)
	{
		const FNodeSnapshot& Now = After.Nodes[Index];
		const int32 BeforeIndex = Nodes.BeforeOf[Index];
		if (BeforeIndex == INDEX_NONE)
		{
			// One that the editor offers is no part of the graph yet.
			if (!Now.bGhost)
			{
				Difference.Nodes.Add({.Kind = EDifference::Added, .After = Index});
			}
			return;
		}
		const FNodeSnapshot& Then = Before.Nodes[BeforeIndex];
		Pins[Index] = MatchPins(Then, Now);
		if (Then.bGhost && !Now.bGhost)
		{
			Difference.Nodes.Add({.Kind = EDifference::Added, .Before = BeforeIndex, .After = Index});
			return;
		}
		TArray<FAspectDifference> Aspects = CompareNode(Then, Now, Pins[Index]);
		if (!Aspects.IsEmpty())
		{
			Difference.Nodes.Add({.Before = BeforeIndex, .After = Index, .Aspects = MoveTemp(Aspects)});
		}
	}

	FPinLink ToBefore(const FPinLink& Link) const
	{
		const int32 Node = Nodes.BeforeOf[Link.Node];
		const int32 Pin = Node == INDEX_NONE ? INDEX_NONE : Pins[Link.Node].BeforeOf[Link.Pin];
		return Pin == INDEX_NONE ? FPinLink() : FPinLink{Node, Pin};
	}

	FPinLink ToAfter(const FPinLink& Link) const
	{
		const int32 Node = Nodes.AfterOf[Link.Node];
		const int32 Pin = Node == INDEX_NONE ? INDEX_NONE : Pins[Node].AfterOf[Link.Pin];
		return Pin == INDEX_NONE ? FPinLink() : FPinLink{Node, Pin};
	}

	/** Whether a graph has a wire; one end of it may have thousands, the other then has few. */
	static bool HasWire(const FGraphSnapshot& Graph, const FPinLink& From, const FPinLink& To)
	{
		const TArray<FPinLink>& FromLinks = Graph.GetPin(From).Links;
		const TArray<FPinLink>& ToLinks = Graph.GetPin(To).Links;
		return FromLinks.Num() <= ToLinks.Num() ? FromLinks.Contains(To) : ToLinks.Contains(From);
	}

	/** The wires of a graph that the other one does not have. */
	template <class TranslateType>
	void FindWires(const FGraphSnapshot& Graph, EDifference Kind, const TranslateType& Translate, const FGraphSnapshot& Other)
	{
		for (int32 NodeIndex = 0; NodeIndex < Graph.Nodes.Num(); ++NodeIndex)
		{
			const TArray<FPinSnapshot>& NodePins = Graph.Nodes[NodeIndex].Pins;
			for (int32 PinIndex = 0; PinIndex < NodePins.Num(); ++PinIndex)
			{
				if (NodePins[PinIndex].bInput || NodePins[PinIndex].Links.IsEmpty())
				{
					continue;
				}
				const FPinLink From{NodeIndex, PinIndex};
				const FPinLink OtherFrom = Translate(From);
				for (const FPinLink& To : NodePins[PinIndex].Links)
				{
					const FPinLink OtherTo = Translate(To);
					if (!OtherFrom.IsSet() || !OtherTo.IsSet() || !HasWire(Other, OtherFrom, OtherTo))
					{
						Difference.Wires.Add({Kind, From, To});
					}
				}
			}
		}
	}

	const FGraphSnapshot& Before;
	const FGraphSnapshot& After;
	const FItemMatch Nodes;
	FGraphDifference& Difference;
	/** Of each later node that was there before. */
	TArray<FItemMatch> Pins;
};

FGraphDifference CompareGraph(const FGraphSnapshot* Before, const FGraphSnapshot* After)
{
	static const FGraphSnapshot Nothing;
	FGraphDifference Difference;
	Difference.Kind = !Before ? EDifference::Added : !After ? EDifference::Removed
															: EDifference::Changed;
	Difference.Before = Before;
	Difference.After = After;
	FGraphComparer(Before ? *Before : Nothing, After ? *After : Nothing, Difference).Compare();
	return Difference;
}

bool SaysNothing(const FGraphDifference& Graph)
{
	return Graph.Kind == EDifference::Changed && !Graph.IsRenamed() && Graph.Nodes.IsEmpty() && Graph.Wires.IsEmpty() &&
		Graph.Members.IsEmpty();
}

TArray<FGraphDifference> CompareGraphs(const TArray<FGraphSnapshot>& Before, const TArray<FGraphSnapshot>& After)
{
	const FItemMatch Matched = ItemMatch::Match(
		Before, After, [](const FGraphSnapshot& Graph)
		{ return Graph.Name; },
		true);
	TArray<FGraphDifference> Differences;
	for (int32 Index = 0; Index < After.Num(); ++Index)
	{
		const int32 BeforeIndex = Matched.BeforeOf[Index];
		Differences.Add(CompareGraph(BeforeIndex == INDEX_NONE ? nullptr : &Before[BeforeIndex], &After[Index]));
	}
	for (int32 Index = 0; Index < Before.Num(); ++Index)
	{
		if (Matched.AfterOf[Index] == INDEX_NONE)
		{
			Differences.Add(CompareGraph(&Before[Index], nullptr));
		}
	}
	Differences.RemoveAll(SaysNothing);
	return Differences;
}

/** Whether the node says nothing else than that what it uses has another name now. */
bool OnlyHasOtherNames(const FNodeDifference& Node, const FGraphSnapshot& Graph)
{
	if (Node.Kind != EDifference::Changed || Graph.Nodes[Node.After].bDeclares)
	{
		return false;
	}
	for (const FAspectDifference& Aspect : Node.Aspects)
	{
		const bool bOtherName = Aspect.Aspect == ENodeAspect::Title || Aspect.Aspect == ENodeAspect::Pin;
		if (!bOtherName || Aspect.Before.IsEmpty() || Aspect.After.IsEmpty())
		{
			return false;
		}
	}
	return true;
}

bool RenamesSomething(const FBlueprintDiff& Diff)
{
	const auto IsRenamed = [](const FMemberDifference& Member)
	{ return !Member.OldName.IsEmpty(); };
	const auto Declares = [](const FGraphDifference& Graph)
	{
		return Graph.Nodes.ContainsByPredicate([&](const FNodeDifference& Node)
			{ return Node.Kind == EDifference::Changed && Graph.After->Nodes[Node.After].bDeclares &&
				  Node.Aspects[0].Aspect == ENodeAspect::Title; });
	};
	return Diff.Members.ContainsByPredicate(IsRenamed) ||
		Diff.Graphs.ContainsByPredicate([&](const FGraphDifference& Graph)
			{ return Graph.IsRenamed() || Graph.Members.ContainsByPredicate(IsRenamed) || Declares(Graph); });
}
}

const TCHAR* ToWord(ENodeAspect Aspect)
{
	constexpr const TCHAR* Words[] = {TEXT("title"), TEXT("comment"), TEXT("enabled"), TEXT("declaration"), TEXT("pin_value"), TEXT("pin"),
		TEXT("pin_type"), TEXT("orphan")};
	return Words[int32(Aspect)];
}

int32 FGraphDifference::CountNodes(EDifference Wanted) const
{
	int32 Num = 0;
	for (const FNodeDifference& Node : Nodes)
	{
		Num += Node.Kind == Wanted && !Node.bFollows ? 1 : 0;
	}
	return Num;
}

int32 FGraphDifference::CountWires(EDifference Wanted) const
{
	int32 Num = 0;
	for (const FWireDifference& Wire : Wires)
	{
		Num += Wire.Kind == Wanted ? 1 : 0;
	}
	return Num;
}

int32 FGraphDifference::CountFollowing() const
{
	int32 Num = 0;
	for (const FNodeDifference& Node : Nodes)
	{
		Num += Node.bFollows ? 1 : 0;
	}
	return Num;
}

EDifference FBlueprintDiff::GetKind() const
{
	return After->Path.IsEmpty() ? EDifference::Removed : Before->Path.IsEmpty() ? EDifference::Added
																				 : EDifference::Changed;
}

FBlueprintDiff FBlueprintDiff::Compare(
	const TSharedRef<const FBlueprintSnapshot>& Before, const TSharedRef<const FBlueprintSnapshot>& After)
{
	FBlueprintDiff Diff{.Before = Before,
		.After = After,
		.Settings = CompareValues(Before->Settings, After->Settings),
		.ClassDefaults = CompareValues(Before->ClassDefaults, After->ClassDefaults),
		.Members = CompareMembers(Before->Members, After->Members),
		.Graphs = CompareGraphs(Before->Graphs, After->Graphs)};
	if (RenamesSomething(Diff))
	{
		for (FGraphDifference& Graph : Diff.Graphs)
		{
			for (FNodeDifference& Node : Graph.Nodes)
			{
				Node.bFollows = Graph.After && OnlyHasOtherNames(Node, *Graph.After);
			}
		}
	}
	return Diff;
}
