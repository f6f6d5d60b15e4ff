#include "LevelEditor/LevelViewport.h"

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditor/LevelPainter.h"
#include "Rendering/HeadlessCanvas.h"

FLevelViewport& FLevelViewport::Get()
{
	static FLevelViewport Viewport;
	return Viewport;
}

void FLevelViewport::Draw(bool bShouldPresent)
{
	Pixels.Reset();
	Size = FIntPoint(0, 0);
	const UWorld* const World = GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
	if (!World)
	{
		return;
	}
	const FLevelPainter Painter(*World);
	FHeadlessCanvas Canvas(Painter.GetSize(), FColor::Black);
	Painter.Draw(Canvas);
	Pixels = Canvas.ReadPixels();
	Size = Canvas.GetSize();
}

bool FLevelViewport::ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags InFlags, FIntRect InRect)
{
	const bool bAll = InRect == FIntRect(0, 0, 0, 0);
	const FIntRect Rect = bAll ? FIntRect(FIntPoint(0, 0), Size) : InRect;
	if (Pixels.IsEmpty() || Rect.Min.X < 0 || Rect.Min.Y < 0 || Rect.Max.X > Size.X || Rect.Max.Y > Size.Y || Rect.Min.X >= Rect.Max.X)
	{
		return false;
	}
	OutImageData.Reset();
	for (int32 Y = Rect.Min.Y; Y < Rect.Max.Y; ++Y)
	{
		OutImageData.Append(Pixels.GetData() + Y * Size.X + Rect.Min.X, Rect.Max.X - Rect.Min.X);
	}
	return true;
}
