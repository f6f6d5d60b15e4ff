#pragma once

#include "Framework/Commands/UIAction.h"
#include "Internationalization/Text.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuOwner.h"

/** What the user works on where the menu was opened. */
struct FToolMenuContext
{
};

/** The one way, of several, in which an entry says what it does. */
struct FToolUIActionChoice
{
	FToolUIActionChoice() = default;
	FToolUIActionChoice(const FUIAction& InAction)
		: Action(InAction)
	{
	}
	FToolUIActionChoice(const FExecuteAction& InExecuteAction)
		: Action(FUIAction(InExecuteAction))
	{
	}

	/** Null without one. */
	const FUIAction* GetUIAction() const { return Action.IsSet() ? &Action.GetValue() : nullptr; }

private:
	TOptional<FUIAction> Action;
};

/** A line of a menu. */
struct TOOLMENUS_API FToolMenuEntry
{
	/** Does what the entry is for; false when it cannot be done. */
	bool TryExecuteToolUIAction(const FToolMenuContext& InContext);

	FName Name;
	FToolMenuOwner Owner;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	FToolUIActionChoice Action;
};
