#include "VexelEditorUtil.h"

#include "Framework/Application/SlateApplication.h"
#include "VexelTask.h"
#include "Widgets/SWindow.h"

namespace
{
FVexelError MakeScreenshotError(const TCHAR* Reason)
{
	return FVexelError(VEXEL_HERE, TEXT("Screenshot failed"), Reason);
}

TVexelExpected<FVexelImage> TakeScreenshotNow()
{
	const TSharedPtr<SWindow> Window =
		FSlateApplication::IsInitialized() ? FSlateApplication::Get().GetActiveTopLevelWindow() : TSharedPtr<SWindow>();
	if (!Window)
	{
		return MakeScreenshotError(TEXT("The editor has no window"));
	}
	FVexelImage Image;
	FIntVector Size;
	if (!FSlateApplication::Get().TakeScreenshot(Window.ToSharedRef(), Image.Pixels, Size) || Image.Pixels.Num() != Size.X * Size.Y)
	{
		return MakeScreenshotError(TEXT("The editor's window could not be captured"));
	}
	Image.Width = Size.X;
	Image.Height = Size.Y;
	return Image;
}
}

TVexelTaskResult<FVexelImage> FVexelEditorUtil::TakeEditorScreenshot()
{
	return VexelTask(EVexelTaskThread::GameThread, &TakeScreenshotNow);
}
