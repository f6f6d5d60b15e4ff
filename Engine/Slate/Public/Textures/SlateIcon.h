#pragma once

#include "UObject/NameTypes.h"

/** A picture of a control, by the names of a style set and a style in it. None when it is made without names. */
struct FSlateIcon
{
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
		: StyleSetName(InStyleSetName)
		, StyleName(InStyleName)
	{
	}

	bool IsSet() const { return !StyleName.IsNone(); }
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }

private:
	FName StyleSetName;
	FName StyleName;
};
