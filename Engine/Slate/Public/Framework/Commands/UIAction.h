#pragma once

#include "Delegates/Delegate.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);

/** What a control does, and when it can. */
struct FUIAction
{
	FUIAction() = default;
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction = FCanExecuteAction())
		: ExecuteAction(MoveTemp(InitExecuteAction))
		, CanExecuteAction(MoveTemp(InitCanExecuteAction))
	{
	}

	/** An action without a condition can always be done. */
	bool CanExecute() const { return !CanExecuteAction.IsBound() || CanExecuteAction.Execute(); }

	/** False when the action cannot be done. */
	bool Execute() const { return CanExecute() && ExecuteAction.ExecuteIfBound(); }

	FExecuteAction ExecuteAction;
	FCanExecuteAction CanExecuteAction;
};
