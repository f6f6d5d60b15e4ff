#include "Rendering/HeadlessCanvas.h"

#include "Framework/Application/SlateApplication.h"

#include <gtest/gtest.h>

namespace
{
constexpr FColor Ground(0x20, 0x20, 0x20);
constexpr FColor Red(0xF0, 0x10, 0x10);

/** How many pixels of a rectangle are of a colour. */
int32 Count(const FHeadlessCanvas& Canvas, const FColor& Color, const FIntPoint& Min, const FIntPoint& Max)
{
	const TArray<FColor> Pixels = Canvas.ReadPixels();
	int32 Num = 0;
	for (int32 Y = Min.Y; Y < Max.Y; ++Y)
	{
		for (int32 X = Min.X; X < Max.X; ++X)
		{
			Num += Pixels[Y * Canvas.GetSize().X + X] == Color ? 1 : 0;
		}
	}
	return Num;
}

int32 CountAll(const FHeadlessCanvas& Canvas, const FColor& Color)
{
	return Count(Canvas, Color, FIntPoint(0, 0), Canvas.GetSize());
}

class SRedSquare final : public SWidget
{
public:
	explicit SRedSquare(int32 InSide)
		: Side(InSide)
	{
	}
	virtual FIntPoint GetHeadlessSize() const override { return FIntPoint(Side, Side); }
	virtual void DrawHeadless(FHeadlessCanvas& Canvas) const override
	{
		Canvas.FillBox(FBox2D(FVector2D(0, 0), FVector2D(Side, Side)), Red);
	}

private:
	int32 Side;
};
}

TEST(HeadlessCanvas, ShapesStandWhereTheViewPutsThem)
{
	FHeadlessCanvas Canvas(FIntPoint(100, 80), Ground);
	Canvas.FillBox(FBox2D(FVector2D(10, 20), FVector2D(30, 50)), Red);
	EXPECT_EQ(Count(Canvas, Red, FIntPoint(10, 20), FIntPoint(30, 50)), 20 * 30);
	EXPECT_EQ(CountAll(Canvas, Red), 20 * 30);

	FHeadlessCanvas Scaled(FIntPoint(100, 80), Ground);
	Scaled.SetView(FVector2D(1000, 1000), 0.5, FVector2D(10, 10));
	Scaled.FillBox(FBox2D(FVector2D(1000, 1000), FVector2D(1020, 1040)), Red);
	EXPECT_EQ(Count(Scaled, Red, FIntPoint(10, 10), FIntPoint(20, 30)), 10 * 20);
	EXPECT_EQ(CountAll(Scaled, Red), 10 * 20);
	EXPECT_EQ(Scaled.GetScale(), 0.5);
}

TEST(HeadlessCanvas, AClipHoldsUntilTheViewIsSetAnew)
{
	FHeadlessCanvas Canvas(FIntPoint(50, 50), Ground);
	Canvas.Clip(FBox2D(FVector2D(0, 0), FVector2D(10, 10)));
	Canvas.FillBox(FBox2D(FVector2D(0, 0), FVector2D(50, 50)), Red);
	EXPECT_EQ(CountAll(Canvas, Red), 100);
	Canvas.SetView(FVector2D::ZeroVector, 1.0);
	Canvas.FillBox(FBox2D(FVector2D(0, 0), FVector2D(50, 50)), Red);
	EXPECT_EQ(CountAll(Canvas, Red), 2500);
}

TEST(HeadlessCanvas, TextIsAsWideAsItWasMeasured)
{
	const FCanvasTextStyle Style = {.Size = 20.0, .Color = FColor::White};
	const FVector2D Size = FHeadlessCanvas::MeasureText(TEXT("BP_Door"), Style);
	EXPECT_GT(Size.X, 60.0);
	EXPECT_LT(Size.X, 120.0);
	EXPECT_NEAR(FHeadlessCanvas::MeasureText(TEXT("BP_Door"), {.Size = 40.0}).X, Size.X * 2.0, 2.0);
	FHeadlessCanvas Canvas(FIntPoint(300, 40), Ground);
	Canvas.DrawText(TEXT("BP_Door"), FVector2D(20, 5), Style);
	const int32 Right = 20 + int32(Size.X) + 2;
	EXPECT_GT(Count(Canvas, FColor::White, FIntPoint(20, 0), FIntPoint(Right, 40)), 50);
	EXPECT_EQ(Count(Canvas, Ground, FIntPoint(Right, 0), FIntPoint(300, 40)), (300 - Right) * 40);

	FHeadlessCanvas Cut(FIntPoint(300, 40), Ground);
	Cut.DrawText(TEXT("BP_Door BP_Door BP_Door"), FVector2D(0, 5), Style, 60.0);
	EXPECT_EQ(Count(Cut, Ground, FIntPoint(64, 0), FIntPoint(300, 40)), (300 - 64) * 40);
}

TEST(HeadlessCanvas, TextsAndPlacesOfAllKindsDoNoHarm)
{
	FHeadlessCanvas Canvas(FIntPoint(60, 60), Ground);
	const TCHAR Broken[] = {0xD800, TEXT('a'), 0xDC00, 1, 0x202E, 0xFFFF, 0};
	const FString Texts[] = {FString(), FString(Broken), FString::ChrN(100'000, TEXT('w')), TEXT("a\nb\r\n\tc"), TEXT("<b>&amp;"),
		TEXT("\u30C9\u30A2 \u05D3\u05DC\u05EA")};
	for (const FString& Text : Texts)
	{
		EXPECT_GE(FHeadlessCanvas::MeasureText(Text, {}).X, 0.0);
		Canvas.DrawText(Text, FVector2D(5, 5), {}, 50.0);
	}
	const double Far = 1e300;
	Canvas.SetView(FVector2D(-Far, Far), 1e-6);
	Canvas.FillBox(FBox2D(FVector2D(-Far, -Far), FVector2D(Far, Far)), Red, 10.0);
	Canvas.DrawCurve(FVector2D(0, 0), FVector2D(Far, 0), FVector2D(0, Far), FVector2D(Far, Far), Red, 2.0);
	Canvas.FillShape({}, Red);
	Canvas.FillCircle(FVector2D(0, 0), 0.0, Red);
	EXPECT_EQ(Canvas.ReadPixels().Num(), 3600);
	EXPECT_EQ(FHeadlessCanvas(FIntPoint(0, -5), Ground).GetSize(), FIntPoint(1, 1));
	EXPECT_EQ(FHeadlessCanvas(FIntPoint(1'000'000, 2), Ground).GetSize(), FIntPoint(8192, 2));
}

TEST(SlateApplication, AScreenshotOfAWindowIsItsContent)
{
	EXPECT_FALSE(FSlateApplication::IsInitialized());
	FSlateApplication::Create();
	EXPECT_EQ(FSlateApplication::Get().GetActiveTopLevelWindow(), nullptr);
	const TSharedRef<SWindow> Window = MakeShared<SWindow>();
	FSlateApplication::Get().AddWindow(Window);
	Window->SetTitle(FText::FromString(TEXT("Red")));
	TArray<FColor> Pixels;
	FIntVector Size;
	EXPECT_FALSE(FSlateApplication::Get().TakeScreenshot(Window, Pixels, Size)) << "an empty window has no picture";
	Window->SetContent(MakeShared<SRedSquare>(7));
	ASSERT_TRUE(FSlateApplication::Get().TakeScreenshot(FSlateApplication::Get().GetActiveTopLevelWindow().ToSharedRef(), Pixels, Size));
	EXPECT_EQ(Size, FIntVector(7, 7, 0));
	ASSERT_EQ(Pixels.Num(), 49);
	EXPECT_EQ(Pixels[24], Red);
	EXPECT_EQ(Window->GetTitle().ToString(), TEXT("Red"));
	FSlateApplication::Shutdown();
	EXPECT_FALSE(FSlateApplication::IsInitialized());
}
