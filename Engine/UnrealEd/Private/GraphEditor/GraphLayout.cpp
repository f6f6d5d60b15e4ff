#include "GraphEditor/GraphLayout.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "EdGraphSchema_K2.h"

namespace
{
constexpr int32 MaxTitleLines = 4;
constexpr int32 MaxLabelLength = 80;
constexpr int32 MaxValueLength = 28;
/** A node may stand anywhere that a file says; a picture has nothing from further away than this. */
constexpr double MaxPlace = 1e7;
constexpr double MaxCommentSide = 1e5;
constexpr double MinCommentSide = 40.0;
constexpr double MeasuredSize = 64.0;
constexpr double CheckBoxSide = 14.0;
constexpr double MinValueWidth = 24.0;
constexpr double ValuePadding = 5.0;

FString CutLine(const FString& Text, int32 MaxLength)
{
	return Text.Len() > MaxLength ? Text.Left(MaxLength - 1) + TEXT("\u2026") : Text;
}

bool IsDrawn(const UEdGraphPin& Pin)
{
	const bool bFolded = Pin.bAdvancedView && Pin.GetOwningNode()->AdvancedPinDisplay == ENodeAdvancedPins::Hidden;
	return !Pin.bHidden && (!bFolded || Pin.HasAnyConnections());
}

bool IsReference(FName Category)
{
	for (const FName& Each :
		{UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_SoftObject, UEdGraphSchema_K2::PC_SoftClass})
	{
		if (Category == Each)
		{
			return true;
		}
	}
	return false;
}

/** "Actor" of a reference to "/Script/Engine.Actor"; "True" and "1.5" as they are. */
FString GetShownValue(const UEdGraphPin& Pin)
{
	if (Pin.Direction != EGPD_Input || Pin.HasAnyConnections() || Pin.bOrphanedPin)
	{
		return FString();
	}
	if (Pin.PinName == UEdGraphSchema_K2::PN_Self)
	{
		return TEXT("self");
	}
	const UEdGraphSchema* const Schema = Pin.GetSchema();
	if (Pin.bDefaultValueIsIgnored || !Schema || Schema->ShouldHidePinDefaultValue(const_cast<UEdGraphPin*>(&Pin)))
	{
		return FString();
	}
	if (Pin.DefaultObject)
	{
		return Pin.DefaultObject->GetName();
	}
	FString Value = Pin.GetDefaultAsString();
	if (Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Real && Value.IsNumeric())
	{
		return FString::SanitizeFloat(FCString::Atod(*Value));
	}
	if (IsReference(Pin.PinType.PinCategory))
	{
		int32 Place = INDEX_NONE;
		Value = Value.FindLastChar(TEXT('.'), Place) ? Value.Mid(Place + 1) : Value;
	}
	return CutLine(Value.Replace(TEXT("\n"), TEXT(" ")), MaxValueLength);
}

double GetRowWidth(const FPinLayout& Pin)
{
	const double Label = Pin.Label.IsEmpty() ? 0.0 : Pin.LabelWidth + GraphSizes::Padding;
	const double Value = Pin.ValueWidth > 0.0 ? Pin.ValueWidth + GraphSizes::Padding : 0.0;
	return GraphSizes::PinInset + GraphSizes::Pin + GraphSizes::Padding + Label + Value;
}
}

FGraphLayout::FGraphLayout(const UEdGraph& Graph)
{
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node)
		{
			Nodes.Add(LayOut(*Node));
			Bounds += Nodes.Last().Box;
		}
	}
	// A comment within another one is drawn over it.
	Nodes.StableSort([](const FNodeLayout& A, const FNodeLayout& B)
		{ return A.Form == ENodeForm::Comment && (B.Form != ENodeForm::Comment || A.Box.GetArea() > B.Box.GetArea()); });
	for (int32 Index = 0; Index < Nodes.Num(); ++Index)
	{
		for (int32 Pin = 0; Pin < Nodes[Index].Pins.Num(); ++Pin)
		{
			Places.Add(Nodes[Index].Pins[Pin].Pin, {Index, Pin});
		}
	}
}

const FPinLayout* FGraphLayout::FindPin(const UEdGraphPin* Pin) const
{
	const TPair<int32, int32>* const Place = Places.Find(Pin);
	return Place ? &Nodes[Place->Key].Pins[Place->Value] : nullptr;
}

const FNodeLayout* FGraphLayout::FindNode(const UEdGraphNode* Node) const
{
	return Nodes.FindByPredicate([Node](const FNodeLayout& Layout)
		{ return Layout.Node == Node; });
}

double FGraphLayout::Measure(const FString& Text, double Size, bool bBold)
{
	TMap<FString, double>& Widths = bBold ? BoldWidths : PlainWidths;
	const double* const Known = Widths.Find(Text);
	const double Width =
		Known ? *Known : Widths.Add(Text, FHeadlessCanvas::MeasureText(Text, {.Size = MeasuredSize, .bBold = bBold}).X / MeasuredSize);
	return Width * Size;
}

FPinLayout FGraphLayout::MakePin(const UEdGraphPin& Pin)
{
	FPinLayout Layout;
	Layout.Pin = &Pin;
	Layout.Color = NodeLook::GetPinColor(Pin.PinType);
	Layout.Label = NodeLook::ShowsPinName(Pin) ? CutLine(Pin.GetDisplayName().ToString(), MaxLabelLength) : FString();
	Layout.LabelWidth = Layout.Label.IsEmpty() ? 0.0 : Measure(Layout.Label, GraphSizes::PinText);
	Layout.Value = GetShownValue(Pin);
	if (!Layout.Value.IsEmpty())
	{
		const bool bBoolean = Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Boolean;
		Layout.ValueWidth = bBoolean ? CheckBoxSide : FMath::Max(MinValueWidth, Measure(Layout.Value, GraphSizes::PinText) + 2.0 * ValuePadding);
	}
	return Layout;
}

FNodeLayout FGraphLayout::LayOut(const UEdGraphNode& Node)
{
	FNodeLayout Layout;
	Layout.Node = &Node;
	Layout.Form = NodeLook::GetForm(Node);
	Layout.TitleColor = Layout.Form == ENodeForm::Comment ? Node.GetNodeCommentColor().ToFColor(true) : NodeLook::GetTitleColor(Node);
	const FText Title =
		Layout.Form == ENodeForm::Compact ? Node.GetCompactNodeTitle() : Node.GetNodeTitle(ENodeTitleType::FullTitle);
	TArray<FString> Lines;
	Title.ToString().ParseIntoArrayLines(Lines);
	for (int32 Index = 0; Index < FMath::Min(Lines.Num(), MaxTitleLines); ++Index)
	{
		Layout.Title.Add(CutLine(Lines[Index], MaxLabelLength));
	}
	const FVector2D Corner(FMath::Clamp(double(Node.NodePosX), -MaxPlace, MaxPlace), FMath::Clamp(double(Node.NodePosY), -MaxPlace, MaxPlace));
	if (Layout.Form == ENodeForm::Comment)
	{
		const FVector2D Size(FMath::Clamp(double(Node.NodeWidth), MinCommentSide, MaxCommentSide),
			FMath::Clamp(double(Node.NodeHeight), MinCommentSide, MaxCommentSide));
		Layout.Box = FBox2D(Corner, Corner + Size);
		Layout.HeaderHeight = GraphSizes::CommentHeader;
		return Layout;
	}
	Layout.Box = FBox2D(Corner, Corner);
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin && IsDrawn(*Pin))
		{
			Layout.Pins.Add(MakePin(*Pin));
		}
	}
	if (Layout.Form == ENodeForm::Knot)
	{
		LayOutKnot(Layout);
	}
	else
	{
		LayOutPins(Layout);
	}
	return Layout;
}

void FGraphLayout::LayOutKnot(FNodeLayout& Layout)
{
	constexpr double Side = 16.0;
	Layout.Box.Max = Layout.Box.Min + FVector2D(Side, Side);
	for (FPinLayout& Pin : Layout.Pins)
	{
		Pin.Center = Layout.Box.GetCenter();
	}
}

void FGraphLayout::LayOutPins(FNodeLayout& Layout)
{
	double TitleWidth = 0.0;
	for (int32 Index = 0; Index < Layout.Title.Num(); ++Index)
	{
		const bool bCompact = Layout.Form == ENodeForm::Compact;
		const double Size = bCompact ? GraphSizes::CompactText : Index == 0 ? GraphSizes::TitleText
																			: GraphSizes::SubtitleText;
		TitleWidth = FMath::Max(TitleWidth, Measure(Layout.Title[Index], Size, bCompact || Index == 0));
	}
	const bool bHeader = Layout.Form == ENodeForm::Full;
	Layout.HeaderHeight = bHeader ? 26.0 + 15.0 * FMath::Max(Layout.Title.Num() - 1, 0) : 0.0;
	double Widths[2] = {0.0, 0.0};
	int32 Rows[2] = {0, 0};
	for (FPinLayout& Pin : Layout.Pins)
	{
		const bool bOutput = Pin.Pin->Direction == EGPD_Output;
		// An event's delegate stands in its header.
		const bool bInHeader = bHeader && bOutput && Pin.Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Delegate && Rows[1] == 0;
		const double Middle = bInHeader ? 13.0 : Layout.HeaderHeight + GraphSizes::Padding + GraphSizes::PinRow * (Rows[bOutput] + 0.5);
		Pin.Label = bInHeader ? FString() : Pin.Label;
		Pin.Center.Y = Layout.Box.Min.Y + Middle;
		Rows[bOutput] += bInHeader ? 0 : 1;
		TitleWidth += bInHeader ? GraphSizes::PinInset : 0.0;
		Widths[bOutput] = FMath::Max(Widths[bOutput], GetRowWidth(Pin));
	}
	const double Gap = Layout.Form == ENodeForm::Compact ? TitleWidth + GraphSizes::Padding : Widths[0] > 0.0 && Widths[1] > 0.0 ? 16.0
																																 : 0.0;
	const double Least = bHeader ? FMath::Max(TitleWidth + 28.0, 96.0) : 40.0;
	const double Width = FMath::Max(Widths[0] + Gap + Widths[1], Least);
	const double Height = Layout.HeaderHeight + 2.0 * GraphSizes::Padding + GraphSizes::PinRow * FMath::Max(Rows[0], Rows[1]);
	Layout.Box.Max = Layout.Box.Min + FVector2D(Width, Height);
	Layout.TitleCenter = Layout.Box.Min.X + Widths[0] + (Width - Widths[0] - Widths[1]) * 0.5;
	for (FPinLayout& Pin : Layout.Pins)
	{
		Pin.Center.X = Pin.Pin->Direction == EGPD_Output ? Layout.Box.Max.X - GraphSizes::PinInset : Layout.Box.Min.X + GraphSizes::PinInset;
	}
}
