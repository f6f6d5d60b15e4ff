#include "EditorWindow/EditorWindow.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "GraphEditor/GraphPainter.h"
#include "LevelEditor/LevelPainter.h"
#include "Rendering/HeadlessCanvas.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/WeakObjectPtr.h"

namespace
{
constexpr int32 MinWidth = 640;
constexpr int32 MinHeight = 400;
constexpr int32 MaxWidth = 2048;
constexpr int32 MaxHeight = 1600;
constexpr double BarHeight = 34.0;
/** Between the graph and the window's sides. */
constexpr double Margin = 48.0;
/** Around a node that is looked at. */
constexpr double NodeRoom = 420.0;
constexpr double BarText = 13.0;
constexpr FColor CanvasColor(0x26, 0x26, 0x26);
constexpr FColor BarColor(0x15, 0x15, 0x15);
constexpr FColor BarTextColor(0xE0, 0xE0, 0xE0);
constexpr FColor MarkColor(0xFF, 0xFF, 0xFF, 0x12);

/** The graph that a Blueprint opens with. */
const UEdGraph* GetFirstGraph(const UBlueprint& Blueprint)
{
	for (const TArray<TObjectPtr<UEdGraph>>* const Graphs : {&Blueprint.UbergraphPages, &Blueprint.FunctionGraphs, &Blueprint.MacroGraphs})
	{
		if (!Graphs->IsEmpty())
		{
			return (*Graphs)[0];
		}
	}
	return nullptr;
}

/** What the window shows, found out anew each time: it may have been changed or deleted. */
struct FShown
{
	const UObject* Asset = nullptr;
	const UEdGraph* Graph = nullptr;
	const UEdGraphNode* Node = nullptr;
	const UWorld* World = nullptr;

	FString GetTitle() const
	{
		if (Graph)
		{
			return FString::Printf(TEXT("%s - %s"), *Asset->GetName(), *Graph->GetName());
		}
		const UObject* const Object = Asset ? Asset : World;
		return Object ? Object->GetName() : FString();
	}
};

/** A graph put into the window. */
struct FGraphView
{
	FGraphView(const UEdGraph& Graph, const UEdGraphNode* Node)
		: Layout(Graph)
	{
		const FNodeLayout* const Near = Node ? Layout.FindNode(Node) : nullptr;
		FBox2D Wanted = Near ? Near->Box.ExpandBy(NodeRoom) : Layout.GetBounds();
		if (!Wanted.bIsValid)
		{
			Wanted = FBox2D(FVector2D(0.0, 0.0), FVector2D(0.0, 0.0));
		}
		const FVector2D Frame(2.0 * Margin, 2.0 * Margin + BarHeight);
		const FVector2D Room(MaxWidth - Frame.X, MaxHeight - Frame.Y);
		const FVector2D Extent = Wanted.GetSize();
		Scale = FMath::Min(1.0, FMath::Min(Room.X / FMath::Max(Extent.X, 1.0), Room.Y / FMath::Max(Extent.Y, 1.0)));
		Size.X = FMath::Clamp(int32(Extent.X * Scale + Frame.X), MinWidth, MaxWidth);
		Size.Y = FMath::Clamp(int32(Extent.Y * Scale + Frame.Y), MinHeight, MaxHeight);
		const FVector2D Half = FVector2D(Size.X, Size.Y - BarHeight) * 0.5 / Scale;
		Visible = FBox2D(Wanted.GetCenter() - Half, Wanted.GetCenter() + Half);
	}

	FGraphLayout Layout;
	double Scale = 1.0;
	FIntPoint Size;
	/** In graph units. */
	FBox2D Visible;
};

UAssetEditorSubsystem* GetAssetEditors()
{
	return GEditor ? GEditor->GetEditorSubsystem<UAssetEditorSubsystem>() : nullptr;
}

const UObject* GetLastOpened()
{
	const TArray<UObject*> Opened = GetAssetEditors()->GetAllEditedAssets();
	return Opened.IsEmpty() ? nullptr : Opened.Last();
}

/** A level's Blueprint is open with the level. */
bool IsOpen(const UObject* Asset)
{
	return Asset && (Asset->GetTypedOuter<UWorld>() || GetAssetEditors()->GetAllEditedAssets().Contains(Asset));
}

class SEditorView final : public SWidget
{
public:
	void Show(const UObject* Object) { Focused = Object; }

	FShown GetShown() const
	{
		const UObject* const Object = Focused.Get();
		FShown Shown;
		Shown.Node = Cast<UEdGraphNode>(Object);
		Shown.Graph = Shown.Node ? Shown.Node->GetGraph() : Cast<UEdGraph>(Object);
		Shown.Asset = Shown.Graph ? Shown.Graph->GetTypedOuter<UBlueprint>() : Object;
		if (!IsOpen(Shown.Asset))
		{
			Shown = FShown();
			Shown.Asset = GetLastOpened();
		}
		if (!Shown.Asset || Shown.Asset->IsA<UWorld>())
		{
			Shown.World = Shown.Asset ? Cast<UWorld>(Shown.Asset) : GEditor->GetEditorWorldContext().World();
		}
		else if (const UBlueprint* const Blueprint = Cast<UBlueprint>(Shown.Asset); Blueprint && !Shown.Graph)
		{
			Shown.Graph = GetFirstGraph(*Blueprint);
		}
		return Shown;
	}

	virtual FIntPoint GetHeadlessSize() const override
	{
		const FShown Shown = GetShown();
		if (Shown.Graph)
		{
			return FGraphView(*Shown.Graph, Shown.Node).Size;
		}
		return Shown.World ? FLevelPainter(*Shown.World).GetSize() : FIntPoint(MinWidth, MinHeight);
	}

	virtual void DrawHeadless(FHeadlessCanvas& Canvas) const override
	{
		const FShown Shown = GetShown();
		if (Shown.Graph)
		{
			DrawGraph(Shown, Canvas);
		}
		else if (Shown.World)
		{
			FLevelPainter(*Shown.World).Draw(Canvas);
		}
		else
		{
			DrawBar(Canvas, Shown, FString());
			Canvas.DrawText(Shown.Asset ? Shown.Asset->GetClass()->GetName() : FString(), FVector2D(Margin, Margin + BarHeight), {.Size = 16.0});
		}
	}

private:
	static void DrawGraph(const FShown& Shown, FHeadlessCanvas& Canvas)
	{
		const FGraphView View(*Shown.Graph, Shown.Node);
		Canvas.SetView(FVector2D::ZeroVector, 1.0);
		Canvas.FillBox(FBox2D(FVector2D::ZeroVector, FVector2D(View.Size.X, View.Size.Y)), CanvasColor);
		Canvas.DrawText(TEXT("BLUEPRINT"), FVector2D(View.Size.X - 300.0, View.Size.Y - 62.0), {.Size = 44.0, .bBold = true, .Color = MarkColor});
		Canvas.SetView(View.Visible.Min, View.Scale, FVector2D(0.0, BarHeight));
		FGraphPainter(View.Layout, Canvas).Draw(View.Visible);
		DrawBar(Canvas, Shown, FString::Printf(TEXT("%d nodes   Zoom %.0f %%"), View.Layout.GetNodes().Num(), View.Scale * 100.0));
	}

	/** The title at the left, and something of the view at the right. */
	static void DrawBar(FHeadlessCanvas& Canvas, const FShown& Shown, const FString& Right)
	{
		const double Width = Canvas.GetSize().X;
		const FCanvasTextStyle Plain = {.Size = BarText, .Color = BarTextColor};
		const double RightWidth = FHeadlessCanvas::MeasureText(Right, Plain).X;
		Canvas.SetView(FVector2D::ZeroVector, 1.0);
		Canvas.FillBox(FBox2D(FVector2D::ZeroVector, FVector2D(Width, BarHeight)), BarColor);
		Canvas.DrawText(Shown.GetTitle().Replace(TEXT(" - "), TEXT("  \u203A  ")), FVector2D(14.0, 8.0),
			{.Size = BarText, .bBold = true, .Color = BarTextColor}, Width - RightWidth - 60.0);
		Canvas.DrawText(Right, FVector2D(Width - RightWidth - 14.0, 8.0), Plain);
	}

	TWeakObjectPtr<const UObject> Focused;
};

TSharedPtr<SEditorView> View;
FDelegateHandle OpenedHandle;
}

void EditorWindow::Open()
{
	View = MakeShared<SEditorView>();
	const TSharedRef<SWindow> Window = MakeShared<SWindow>();
	Window->SetContent(View.ToSharedRef());
	Window->SetTitle(TAttribute<FText>::CreateLambda([Shown = View]
		{ return FText::FromString(Shown->GetShown().GetTitle()); }));
	FSlateApplication::Create()->AddWindow(Window);
	if (UAssetEditorSubsystem* const AssetEditors = GetAssetEditors())
	{
		OpenedHandle = AssetEditors->OnAssetEditorOpened().AddLambda([](UObject* Asset)
			{ Show(Asset); });
	}
}

void EditorWindow::Close()
{
	if (UAssetEditorSubsystem* const AssetEditors = GetAssetEditors())
	{
		AssetEditors->OnAssetEditorOpened().Remove(OpenedHandle);
	}
	FSlateApplication::Shutdown();
	View.Reset();
}

void EditorWindow::Show(const UObject* Object)
{
	if (View)
	{
		View->Show(Object);
	}
}
