#include "GraphEditor/GraphPainter.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Logging/TokenizedMessage.h"

#include <cmath>

namespace
{
constexpr FColor GridColor(0x34, 0x34, 0x34);
constexpr FColor GridMainColor(0x18, 0x18, 0x18);
constexpr FColor BodyColor(0x12, 0x14, 0x15, 0xEC);
constexpr FColor OutlineColor(0x06, 0x06, 0x06);
constexpr FColor LabelColor(0xDE, 0xDE, 0xDE);
constexpr FColor SubtitleColor(0xC9, 0xB4, 0x86);
constexpr FColor ValueColor(0x05, 0x05, 0x05, 0xB4);
constexpr FColor ValueOutlineColor(0x70, 0x70, 0x70);
constexpr FColor ErrorColor(0xC8, 0x1E, 0x1E);
constexpr FColor WarningColor(0xC8, 0x96, 0x1E);
constexpr double GridStep = 16.0;
constexpr int32 GridMainEvery = 8;
/** Lines closer than this, in pixels, are no grid any more. */
constexpr double MinGridPixels = 6.0;
constexpr double MinTextPixels = 4.0;

FColor WithAlpha(const FColor& Color, uint8 Alpha)
{
	return FColor(Color.R, Color.G, Color.B, Alpha);
}

FColor Darken(const FColor& Color, double Part)
{
	return FColor(uint8(Color.R * Part), uint8(Color.G * Part), uint8(Color.B * Part), Color.A);
}

/** White on dark, black on bright. */
FColor GetTextColorOn(const FColor& Color)
{
	return Color.R * 0.3 + Color.G * 0.59 + Color.B * 0.11 > 165.0 ? FColor(0x10, 0x10, 0x10) : FColor::White;
}

/** The box that a wire and its handles stay in. */
FBox2D GetWireBox(const FVector2D& From, const FVector2D& To, double Reach)
{
	FBox2D Box(From, From);
	Box += To;
	return Box.ExpandBy(Reach);
}
}

bool FGraphPainter::IsLegible(double TextSize) const
{
	return TextSize * Canvas.GetScale() >= MinTextPixels;
}

void FGraphPainter::Draw(const FBox2D& Visible)
{
	DrawGrid(Visible);
	const TArray<FNodeLayout>& Nodes = Layout.GetNodes();
	int32 Index = 0;
	for (; Index < Nodes.Num() && Nodes[Index].Form == ENodeForm::Comment; ++Index)
	{
		if (Nodes[Index].Box.Intersect(Visible))
		{
			DrawComment(Nodes[Index]);
		}
	}
	DrawWires(Visible);
	for (; Index < Nodes.Num(); ++Index)
	{
		if (Nodes[Index].Box.ExpandBy(40.0).Intersect(Visible))
		{
			DrawNode(Nodes[Index]);
		}
	}
}

void FGraphPainter::DrawGrid(const FBox2D& Visible)
{
	const double Pixel = 1.0 / Canvas.GetScale();
	for (const bool bMain : {false, true})
	{
		const double Step = bMain ? GridStep * GridMainEvery : GridStep;
		if (Step * Canvas.GetScale() < MinGridPixels)
		{
			continue;
		}
		const FColor& Color = bMain ? GridMainColor : GridColor;
		for (double X = std::ceil(Visible.Min.X / Step) * Step; X <= Visible.Max.X; X += Step)
		{
			Canvas.DrawLine(FVector2D(X, Visible.Min.Y), FVector2D(X, Visible.Max.Y), Color, Pixel);
		}
		for (double Y = std::ceil(Visible.Min.Y / Step) * Step; Y <= Visible.Max.Y; Y += Step)
		{
			Canvas.DrawLine(FVector2D(Visible.Min.X, Y), FVector2D(Visible.Max.X, Y), Color, Pixel);
		}
	}
}

void FGraphPainter::DrawWires(const FBox2D& Visible)
{
	const double LeastWidth = 0.8 / Canvas.GetScale();
	for (const FNodeLayout& Node : Layout.GetNodes())
	{
		for (const FPinLayout& From : Node.Pins)
		{
			if (From.Pin->Direction != EGPD_Output)
			{
				continue;
			}
			const bool bExec = From.Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Exec;
			for (const UEdGraphPin* const Linked : From.Pin->LinkedTo)
			{
				const FPinLayout* const To = Layout.FindPin(Linked);
				if (!To)
				{
					continue;
				}
				const FVector2D Between = To->Center - From.Center;
				// A wire that leads back swings out, as far as it has to go.
				const double Reach = Between.X > 0.0 ? FMath::Max(Between.X * 0.5, FMath::Min(FMath::Abs(Between.Y) * 0.4, 120.0))
													 : FMath::Min(-Between.X * 0.5 + FMath::Abs(Between.Y) * 0.3 + 60.0, 320.0);
				if (GetWireBox(From.Center, To->Center, Reach).Intersect(Visible))
				{
					const FVector2D Handle(Reach, 0.0);
					Canvas.DrawCurve(From.Center, From.Center + Handle, To->Center - Handle, To->Center, From.Color,
						FMath::Max(bExec ? 3.0 : 2.0, LeastWidth));
				}
			}
		}
	}
}

void FGraphPainter::DrawComment(const FNodeLayout& Node)
{
	const FBox2D Header(Node.Box.Min, FVector2D(Node.Box.Max.X, Node.Box.Min.Y + Node.HeaderHeight));
	Canvas.FillBox(Node.Box, WithAlpha(Node.TitleColor, 0x30), GraphSizes::Corner);
	Canvas.FillGradient(Header, WithAlpha(Node.TitleColor, 0x90), WithAlpha(Node.TitleColor, 0x90), GraphSizes::Corner, 0.0);
	Canvas.DrawBox(Node.Box, WithAlpha(Node.TitleColor, 0xA0), FMath::Max(1.0, 0.7 / Canvas.GetScale()), GraphSizes::Corner);
	if (!Node.Title.IsEmpty() && IsLegible(GraphSizes::CommentText))
	{
		Canvas.DrawText(Node.Title[0], Header.Min + FVector2D(10.0, 4.0), {.Size = GraphSizes::CommentText, .bBold = true},
			Header.GetSize().X - 20.0);
	}
}

void FGraphPainter::DrawNode(const FNodeLayout& Node)
{
	if (Node.Form == ENodeForm::Knot)
	{
		const FColor Color = Node.Pins.IsEmpty() ? LabelColor : Node.Pins[0].Color;
		Canvas.FillCircle(Node.Box.GetCenter(), GraphSizes::Pin + 1.0, Color);
		return;
	}
	const double Radius = Node.Form == ENodeForm::Full ? GraphSizes::Corner : GraphSizes::RoundCorner;
	Canvas.FillBox(Node.Box, BodyColor, Radius);
	DrawTitle(Node);
	Canvas.DrawBox(Node.Box, OutlineColor, 1.0, Radius);
	for (const FPinLayout& Pin : Node.Pins)
	{
		DrawPin(Node, Pin);
	}
	DrawMarks(Node);
}

void FGraphPainter::DrawTitle(const FNodeLayout& Node)
{
	if (Node.Form == ENodeForm::Variable)
	{
		// The colour of the value shines through, strongest at the pin.
		Canvas.FillGradient(Node.Box, WithAlpha(Node.TitleColor, 0x18), WithAlpha(Node.TitleColor, 0x70), GraphSizes::RoundCorner, GraphSizes::RoundCorner);
		return;
	}
	if (Node.Form == ENodeForm::Compact)
	{
		if (!Node.Title.IsEmpty() && IsLegible(GraphSizes::CompactText))
		{
			const FCanvasTextStyle Style = {.Size = GraphSizes::CompactText, .bBold = true, .Color = WithAlpha(LabelColor, 0xB0)};
			const FVector2D Size = FHeadlessCanvas::MeasureText(Node.Title[0], Style);
			Canvas.DrawText(Node.Title[0], FVector2D(Node.TitleCenter, Node.Box.GetCenter().Y) - Size * 0.5, Style);
		}
		return;
	}
	const FBox2D Header(Node.Box.Min, FVector2D(Node.Box.Max.X, Node.Box.Min.Y + Node.HeaderHeight));
	Canvas.FillGradient(Header, Node.TitleColor, Darken(Node.TitleColor, 0.35), GraphSizes::Corner, 0.0);
	double Top = Header.Min.Y + 4.0;
	for (int32 Index = 0; Index < Node.Title.Num(); ++Index)
	{
		const double Size = Index == 0 ? GraphSizes::TitleText : GraphSizes::SubtitleText;
		const FColor Color = Index == 0 ? GetTextColorOn(Darken(Node.TitleColor, 0.8)) : SubtitleColor;
		if (IsLegible(Size))
		{
			Canvas.DrawText(Node.Title[Index], FVector2D(Header.Min.X + 12.0, Top), {.Size = Size, .bBold = Index == 0, .bItalic = Index > 0, .Color = Color});
		}
		Top += Index == 0 ? 18.0 : 15.0;
	}
}

void FGraphPainter::DrawMarks(const FNodeLayout& Node)
{
	const UEdGraphNode& Shown = *Node.Node;
	if (!Shown.IsNodeEnabled())
	{
		Canvas.FillBox(Node.Box, FColor(0x20, 0x20, 0x20, 0xA0), GraphSizes::Corner);
	}
	const bool bError = Shown.bHasCompilerMessage && Shown.ErrorType <= EMessageSeverity::Error;
	const bool bWarning = Shown.bHasCompilerMessage && Shown.ErrorType == EMessageSeverity::Warning;
	if (bError || bWarning)
	{
		const FBox2D Bar(FVector2D(Node.Box.Min.X, Node.Box.Max.Y), FVector2D(Node.Box.Max.X, Node.Box.Max.Y + 18.0));
		Canvas.FillBox(Bar, bError ? ErrorColor : WarningColor, 3.0);
		Canvas.DrawBox(Node.Box, bError ? ErrorColor : WarningColor, 2.0, GraphSizes::Corner);
		if (IsLegible(GraphSizes::PinText))
		{
			Canvas.DrawText(bError ? TEXT("ERROR!") : TEXT("WARNING!"), Bar.Min + FVector2D(8.0, 2.0), {.Size = GraphSizes::PinText, .bBold = true});
		}
	}
	if (!Shown.NodeComment.IsEmpty() && (Shown.bCommentBubbleVisible || Shown.bCommentBubblePinned) && IsLegible(GraphSizes::PinText))
	{
		const FCanvasTextStyle Style = {.Size = GraphSizes::PinText, .Color = FColor(0x10, 0x10, 0x10)};
		const FVector2D Size = FHeadlessCanvas::MeasureText(Shown.NodeComment, Style);
		const FVector2D Corner(Node.Box.Min.X, Node.Box.Min.Y - Size.Y - 18.0);
		Canvas.FillBox(FBox2D(Corner, Corner + FVector2D(FMath::Min(Size.X, 400.0) + 16.0, Size.Y + 8.0)), FColor(0xE6, 0xE6, 0xE6, 0xE0), 4.0);
		Canvas.DrawText(Shown.NodeComment, Corner + FVector2D(8.0, 4.0), Style, 400.0);
	}
}

void FGraphPainter::DrawPin(const FNodeLayout& Node, const FPinLayout& Pin)
{
	DrawPinShape(Pin);
	if (!IsLegible(GraphSizes::PinText))
	{
		return;
	}
	const bool bOutput = Pin.Pin->Direction == EGPD_Output;
	const double Distance = GraphSizes::Pin + GraphSizes::Padding;
	const double Left = bOutput ? Pin.Center.X - Distance - Pin.LabelWidth : Pin.Center.X + Distance;
	if (!Pin.Label.IsEmpty())
	{
		const FColor Color = Pin.Pin->bOrphanedPin ? FColor(0xFF, 0x60, 0x60) : LabelColor;
		Canvas.DrawText(Pin.Label, FVector2D(Left, Pin.Center.Y - GraphSizes::PinText * 0.65), {.Size = GraphSizes::PinText, .Color = Color});
	}
	if (!Pin.Value.IsEmpty())
	{
		DrawValue(Pin, Left + (Pin.Label.IsEmpty() ? 0.0 : Pin.LabelWidth + GraphSizes::Padding));
	}
}

void FGraphPainter::DrawValue(const FPinLayout& Pin, double Left)
{
	constexpr double HalfHeight = 8.5;
	const bool bBoolean = Pin.Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Boolean;
	const double Half = bBoolean ? Pin.ValueWidth * 0.5 : HalfHeight;
	const FBox2D Box(FVector2D(Left, Pin.Center.Y - Half), FVector2D(Left + Pin.ValueWidth, Pin.Center.Y + Half));
	Canvas.FillBox(Box, ValueColor, 3.0);
	Canvas.DrawBox(Box, ValueOutlineColor, 1.0, 3.0);
	if (!bBoolean)
	{
		Canvas.DrawText(Pin.Value, FVector2D(Left + 5.0, Pin.Center.Y - GraphSizes::PinText * 0.65), {.Size = GraphSizes::PinText, .Color = LabelColor});
	}
	else if (Pin.Value.Equals(TEXT("true"), ESearchCase::IgnoreCase))
	{
		Canvas.DrawLine(Box.Min + FVector2D(3.0, 7.0), Box.Min + FVector2D(6.0, 11.0), LabelColor, 2.0);
		Canvas.DrawLine(Box.Min + FVector2D(6.0, 11.0), Box.Min + FVector2D(11.0, 3.0), LabelColor, 2.0);
	}
}

void FGraphPainter::DrawPinShape(const FPinLayout& Pin)
{
	const FVector2D& Center = Pin.Center;
	const double Size = GraphSizes::Pin;
	const FEdGraphPinType& Type = Pin.Pin->PinType;
	const bool bLinked = Pin.Pin->HasAnyConnections();
	if (Type.PinCategory == UEdGraphSchema_K2::PC_Exec)
	{
		const FVector2D Arrow[] = {Center + FVector2D(-Size, -Size - 1.0), Center + FVector2D(0.5, -Size - 1.0), Center + FVector2D(Size + 1.5, 0.0),
			Center + FVector2D(0.5, Size + 1.0), Center + FVector2D(-Size, Size + 1.0)};
		if (bLinked)
		{
			Canvas.FillShape(Arrow, Pin.Color);
		}
		Canvas.DrawShape(Arrow, Pin.Color, 1.5);
		return;
	}
	if (Type.IsContainer() || Type.PinCategory == UEdGraphSchema_K2::PC_Delegate)
	{
		// Three by three for what has many values; a square for a delegate, a set has its middle row alone, a map its sides.
		const FBox2D Box(Center - FVector2D(Size, Size), Center + FVector2D(Size, Size));
		const bool bSquare = !Type.IsContainer();
		for (int32 Cell = 0; !bSquare && Cell < 9; ++Cell)
		{
			const FVector2D Corner = Box.Min + FVector2D(Cell % 3, Cell / 3) * (Size * 2.0 / 3.0);
			const bool bShown = Type.IsArray() || (Type.IsSet() ? Cell / 3 == 1 : Cell % 3 != 1);
			if (bShown)
			{
				const double Side = bLinked ? Size * 0.55 : Size * 0.4;
				Canvas.FillBox(FBox2D(Corner, Corner + FVector2D(Side, Side)), Pin.Color);
			}
		}
		if (bSquare && bLinked)
		{
			Canvas.FillBox(Box, Pin.Color, 1.5);
		}
		else if (bSquare)
		{
			Canvas.DrawBox(Box.ExpandBy(-0.75), Pin.Color, 1.5, 1.5);
		}
		return;
	}
	if (bLinked)
	{
		Canvas.FillCircle(Center, Size, Pin.Color);
	}
	else
	{
		Canvas.DrawCircle(Center, Size - 0.75, Pin.Color, 1.75);
	}
	// The small tip beside a value's pin shows where it goes.
	const FVector2D Tip[] = {Center + FVector2D(Size + 1.5, -2.5), Center + FVector2D(Size + 4.0, 0.0), Center + FVector2D(Size + 1.5, 2.5)};
	Canvas.FillShape(Tip, Pin.Color);
}
