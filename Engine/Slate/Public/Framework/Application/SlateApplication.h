#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Widgets/SWindow.h"

/** The editor's windows. This host has none and never makes an application, so whoever wants one asks IsInitialized() first. */
class SLATE_API FSlateApplication
{
public:
	static bool IsInitialized() { return false; }
	static FSlateApplication& Get();

	TSharedPtr<SWindow> GetActiveTopLevelWindow() const { return nullptr; }
	/** What the widget looks like now, row by row from the top; OutSize has its width and height. */
	bool TakeScreenshot(const TSharedRef<SWidget>& Widget, TArray<FColor>& OutColorData, FIntVector& OutSize) { return false; }
};
