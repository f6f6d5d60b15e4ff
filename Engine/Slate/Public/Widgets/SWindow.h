#pragma once

#include "CoreMinimal.h"
#include "Math/IntPoint.h"
#include "Misc/Attribute.h"
#include "Templates/SharedPointer.h"

class FHeadlessCanvas;

/** Something that is drawn. */
class SLATE_API SWidget
{
public:
	virtual ~SWidget() = default;

	/** How many pixels the widget wants to be large, and the drawing of itself. Specific to the headless host. */
	virtual FIntPoint GetHeadlessSize() const { return FIntPoint(0, 0); }
	virtual void DrawHeadless(FHeadlessCanvas& Canvas) const {}
};

/** A window of the desktop; here, of a desktop that nobody sees. */
class SLATE_API SWindow : public SWidget
{
public:
	void SetTitle(const TAttribute<FText>& InTitle) { Title = InTitle; }
	FText GetTitle() const { return Title.Get(); }
	void SetContent(const TSharedRef<SWidget>& InContent) { Content = InContent; }
	/** Null for a window without content. */
	TSharedPtr<SWidget> GetContent() const { return Content; }

	virtual FIntPoint GetHeadlessSize() const override { return Content ? Content->GetHeadlessSize() : FIntPoint(0, 0); }
	virtual void DrawHeadless(FHeadlessCanvas& Canvas) const override
	{
		if (Content)
		{
			Content->DrawHeadless(Canvas);
		}
	}

private:
	TAttribute<FText> Title;
	TSharedPtr<SWidget> Content;
};
