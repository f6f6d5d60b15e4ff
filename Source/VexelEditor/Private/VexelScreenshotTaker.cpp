#include "VexelScreenshotTaker.h"

#include "Editor.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "IImageWrapperModule.h"
#include "ImageUtils.h"
#include "Modules/ModuleManager.h"
#include "UnrealClient.h"
#include "VexelEditorUtil.h"
#include "VexelTask.h"

namespace
{
/** A picture on its way to the file. */
struct FTakenPicture
{
	FString Title;
	FVexelImage Image;
	TSharedPtr<IImageWrapper> Wrapper;
};

FVexelError MakeError(const TCHAR* Reason)
{
	return FVexelError(VEXEL_HERE, TEXT("Screenshot failed"), Reason);
}

FTakenPicture MakePicture(const FString& Title, const FVexelImage& Image)
{
	IImageWrapperModule& Module = FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
	return {Title, Image, Module.CreateImageWrapper(EImageFormat::PNG)};
}

FString GetWindowTitle()
{
	const TSharedPtr<SWindow> Window =
		FSlateApplication::IsInitialized() ? FSlateApplication::Get().GetActiveTopLevelWindow() : TSharedPtr<SWindow>();
	return Window ? Window->GetTitle().ToString() : FString();
}

TVexelExpected<FTakenPicture> TakeViewport()
{
	FViewport* const Viewport = GEditor ? GEditor->GetActiveViewport() : nullptr;
	const UWorld* const World = GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
	if (!Viewport || !World)
	{
		return MakeError(TEXT("The editor shows no level"));
	}
	FVexelImage Image;
	Viewport->Draw();
	Image.Width = Viewport->GetSizeXY().X;
	Image.Height = Viewport->GetSizeXY().Y;
	if (!Viewport->ReadPixels(Image.Pixels) || Image.Pixels.IsEmpty() || Image.Pixels.Num() != Image.Width * Image.Height)
	{
		return MakeError(TEXT("The view of the level could not be captured"));
	}
	return MakePicture(World->GetPathName(), Image);
}

void Shrink(FVexelImage& Image)
{
	const int32 Longer = FMath::Max(Image.Width, Image.Height);
	if (Longer <= FVexelScreenshotTaker::MaxSide)
	{
		return;
	}
	const double Part = double(FVexelScreenshotTaker::MaxSide) / Longer;
	const int32 Width = FMath::Max(int32(Image.Width * Part), 1);
	const int32 Height = FMath::Max(int32(Image.Height * Part), 1);
	TArray<FColor> Pixels;
	FImageUtils::ImageResize(Image.Width, Image.Height, Image.Pixels, Width, Height, Pixels, false);
	Image = {Width, Height, MoveTemp(Pixels)};
}

TVexelExpected<FVexelScreenshot> Compress(FTakenPicture Picture)
{
	FVexelImage& Image = Picture.Image;
	Shrink(Image);
	for (FColor& Pixel : Image.Pixels)
	{
		// A viewport's alpha says nothing of how its picture looks.
		Pixel.A = 255;
	}
	const int64 NumBytes = int64(Image.Pixels.Num()) * sizeof(FColor);
	if (!Picture.Wrapper || !Picture.Wrapper->SetRaw(Image.Pixels.GetData(), NumBytes, Image.Width, Image.Height, ERGBFormat::BGRA, 8))
	{
		return MakeError(TEXT("The picture could not be compressed"));
	}
	const TArray64<uint8> Png = Picture.Wrapper->GetCompressed();
	if (Png.IsEmpty())
	{
		return MakeError(TEXT("The picture could not be compressed"));
	}
	return FVexelScreenshot{Picture.Title, Image.Width, Image.Height, TArray<uint8>(Png.GetData(), int32(Png.Num()))};
}

TVexelTaskResult<FTakenPicture> TakePicture(EVexelScreenshotMode Mode)
{
	if (Mode == EVexelScreenshotMode::Viewport)
	{
		return VexelTask(EVexelTaskThread::GameThread, &TakeViewport);
	}
	return FVexelEditorUtil::TakeEditorScreenshot().ThenOn(EVexelTaskThread::GameThread, [](const FVexelImage& Image)
		{ return MakePicture(GetWindowTitle(), Image); });
}
}

TVexelTaskResult<FVexelScreenshot> FVexelScreenshotTaker::Take(EVexelScreenshotMode Mode)
{
	return TakePicture(Mode).ThenOn(EVexelTaskThread::BackgroundThread, &Compress);
}
