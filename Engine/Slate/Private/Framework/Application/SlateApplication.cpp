#include "Framework/Application/SlateApplication.h"

#include "Rendering/HeadlessCanvas.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

TSharedRef<FSlateApplication> FSlateApplication::Create()
{
	CurrentApplication = MakeShared<FSlateApplication>();
	return CurrentApplication.ToSharedRef();
}

void FSlateApplication::Shutdown()
{
	CurrentApplication.Reset();
}

FSlateApplication& FSlateApplication::Get()
{
	checkf(IsInitialized(), TEXT("FSlateApplication::Get() before the application was made"));
	return *CurrentApplication;
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	Windows.Add(InSlateWindow);
	return InSlateWindow;
}

bool FSlateApplication::TakeScreenshot(const TSharedRef<SWidget>& Widget, TArray<FColor>& OutColorData, FIntVector& OutSize)
{
	const FIntPoint Size = Widget->GetHeadlessSize();
	if (Size.X <= 0 || Size.Y <= 0)
	{
		return false;
	}
	FHeadlessCanvas Canvas(Size, FColor::Black);
	Widget->DrawHeadless(Canvas);
	OutColorData = Canvas.ReadPixels();
	OutSize = FIntVector(Canvas.GetSize().X, Canvas.GetSize().Y, 0);
	return true;
}
