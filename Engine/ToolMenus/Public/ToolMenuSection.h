#pragma once

#include "Containers/Array.h"
#include "ToolMenuEntry.h"

/** A group of entries below a heading. */
struct TOOLMENUS_API FToolMenuSection
{
	/** An entry of that name takes the place of an earlier one. It belongs to the owner of the moment. */
	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction);

	FToolMenuEntry* FindEntry(const FName InName);

	FName Name;
	TAttribute<FText> Label;
	TArray<FToolMenuEntry> Blocks;
};
