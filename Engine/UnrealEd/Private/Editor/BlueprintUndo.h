#pragma once

#include "CoreMinimal.h"
#include "EditorUndoClient.h"

class UBlueprint;
class UUserDefinedEnum;

/** Has the classes of Blueprints follow an undo or redo of what declares them, and their editors hear of it. */
class FBlueprintUndo final : public FEditorUndoClient
{
public:
	virtual bool MatchesContext(const FTransactionContext& InContext,
		const TArray<TPair<UObject*, FTransactionObjectEvent>>& TransactionObjectContexts) const override;
	virtual void PostUndo(bool bSuccess) override { Refresh(); }
	virtual void PostRedo(bool bSuccess) override { Refresh(); }

private:
	void Refresh();

	/** Blueprints that the last undo touched, and whether their members may have changed. */
	mutable TMap<UBlueprint*, bool> Touched;
	mutable TArray<UUserDefinedEnum*> Enums;
};
