#pragma once

#include "BlueprintDiff.h"
#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UBlueprint;
class UObject;
class UTransBuffer;
struct FTransactionContext;

/**
 * While it lives, takes a snapshot of each Blueprint just before it first changes, by whatever means: an edit, what follows from an
 * edit in other Blueprints, a compile, an undo. What nothing touches costs nothing. Game thread, with a running editor.
 */
class FBlueprintWatch
{
public:
	FBlueprintWatch();
	~FBlueprintWatch();
	UE_NONCOPYABLE(FBlueprintWatch)

	/** What changed since the last call, a difference for each Blueprint that did. */
	TArray<FBlueprintDiff> TakeDiffs();
	/** Forgets what changed so far. */
	void Forget() { Remembered.Reset(); }

private:
	struct FRemembered
	{
		TWeakObjectPtr<UBlueprint> Blueprint;
		TSharedRef<const FBlueprintSnapshot> Before;
	};

	void OnModified(UObject* Object);
	void OnBeforeUndo(const FTransactionContext& Context);
	void Remember(UObject& Object);

	TArray<FRemembered> Remembered;
	TWeakObjectPtr<UTransBuffer> UndoBuffer;
	FDelegateHandle ModifiedHandle;
	FDelegateHandle UndoHandle;
	/** Telling of a Blueprint may itself touch it. */
	bool bTaking = false;
};
