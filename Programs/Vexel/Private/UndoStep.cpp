#include "UndoStep.h"

#include "Editor.h"
#include "Editor/Transactor.h"

TOptional<FString> TakeUndoStep(bool bBack, FString& OutWhat)
{
	const bool bCan = GEditor->Trans && (bBack ? GEditor->Trans->CanUndo() : GEditor->Trans->CanRedo());
	if (!bCan)
	{
		return FString(bBack ? TEXT("there is nothing to undo") : TEXT("there is nothing to redo"));
	}
	OutWhat = (bBack ? GEditor->Trans->GetUndoContext() : GEditor->Trans->GetRedoContext()).Title.ToString();
	if (!(bBack ? GEditor->UndoTransaction() : GEditor->RedoTransaction()))
	{
		return FString::Printf(TEXT("'%s' cannot be %s"), *OutWhat, bBack ? TEXT("undone") : TEXT("redone"));
	}
	return NullOpt;
}
