#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"

/** A long piece of work on the game thread that says how far it is. This host has no dialog: progress goes to the log. */
class FScopedSlowTask
{
public:
	CORE_API explicit FScopedSlowTask(float InAmountOfWork, const FText& InDefaultMessage = FText(), bool bInEnabled = true);
	CORE_API ~FScopedSlowTask();
	FScopedSlowTask(const FScopedSlowTask&) = delete;
	FScopedSlowTask& operator=(const FScopedSlowTask&) = delete;

	/** From here on, a step that takes the task to a new tenth of its work is logged. */
	void MakeDialog(bool bShowCancelButton = false, bool bAllowInPIE = false) { bVisible = true; }
	void MakeDialogDelayed(float Threshold, bool bShowCancelButton = false, bool bAllowInPIE = false) { bVisible = true; }
	/** The work of the step before is done; the next has this much. */
	CORE_API void EnterProgressFrame(float ExpectedWorkThisFrame = 1.0f, const FText& Text = FText());
	/** Lets a dialog draw itself while the work waits for somebody else. */
	void TickProgress() {}
	/** Nobody can ask for it here. */
	bool ShouldCancel() const { return false; }
	float GetCompletedWork() const { return CompletedWork; }

	const float TotalAmountOfWork;

private:
	const FText DefaultMessage;
	const bool bEnabled;
	bool bVisible = false;
	float CompletedWork = 0.0f;
	float CurrentFrameScope = 0.0f;
	int32 LoggedTenths = -1;
};
