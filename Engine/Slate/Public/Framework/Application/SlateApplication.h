#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Widgets/SWindow.h"

/**
 * The editor's windows. They are on no screen: a window is drawn when somebody takes a screenshot of it. Whoever wants the application
 * asks IsInitialized() first. Game thread.
 */
class SLATE_API FSlateApplication
{
public:
	static TSharedRef<FSlateApplication> Create();
	static void Shutdown();
	static bool IsInitialized() { return CurrentApplication.IsValid(); }
	static FSlateApplication& Get();

	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);
	/** The window that was added last; null without one. */
	TSharedPtr<SWindow> GetActiveTopLevelWindow() const { return Windows.IsEmpty() ? nullptr : TSharedPtr<SWindow>(Windows.Last()); }
	/** What the widget looks like now, row by row from the top; OutSize has its width and height. False for one that has no size. */
	bool TakeScreenshot(const TSharedRef<SWidget>& Widget, TArray<FColor>& OutColorData, FIntVector& OutSize);

private:
	static TSharedPtr<FSlateApplication> CurrentApplication;

	TArray<TSharedRef<SWindow>> Windows;
};
