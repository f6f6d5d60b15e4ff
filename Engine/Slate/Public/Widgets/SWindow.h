#pragma once

#include "Internationalization/Text.h"

/** Something that is drawn. */
class SWidget
{
public:
	virtual ~SWidget() = default;
};

/** A window of the desktop. */
class SWindow : public SWidget
{
public:
	FText GetTitle() const { return Title; }
	void SetTitle(const FText& InTitle) { Title = InTitle; }

private:
	FText Title;
};
