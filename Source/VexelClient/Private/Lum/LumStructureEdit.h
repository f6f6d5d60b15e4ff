#pragma once

#include "CoreMinimal.h"
#include "ScopedTransaction.h"
#include "UObject/WeakObjectPtr.h"

class UBlueprint;
class UClass;

namespace LumSkeleton
{
/** The Blueprint's skeleton class, which is made where the Blueprint was loaded without one. Null where it cannot be made. */
UClass* Get(UBlueprint& Blueprint);
}

/**
 * Held over many edits of one Blueprint. Its skeleton class, which says what members there are and takes long to make, is then made again
 * only when an edit needs it, and at the end of the scope. One at a time. Game thread.
 */
class FLumEditBatch
{
public:
	explicit FLumEditBatch(UBlueprint& InBlueprint);
	/** Marks the Blueprint as structurally modified, whether anything was edited or not. */
	~FLumEditBatch();
	UE_NONCOPYABLE(FLumEditBatch)

	/** Has what earlier edits of the batch left out of date made again. Does nothing outside a batch. */
	static void BringUpToDate(UBlueprint& Blueprint);
	/** The same where the skeleton class may still have a member of that name that is gone. */
	static void BringUpToDateForName(UBlueprint& Blueprint, FName Name);

	/** Whether an error may still look for what would be right, which takes long: not when many of a batch are wrong. */
	static bool TakeSuggestion();

private:
	friend class FLumStructureEdit;

	static FLumEditBatch* Find(const UBlueprint& Blueprint);
	void Update();

	TWeakObjectPtr<UBlueprint> Blueprint;
	bool bOutOfDate = false;
	int32 NumSuggestions = 0;
	/** Names that were given up since the skeleton class was made. */
	TSet<FName> FreedNames;
};

/** When a Blueprint's skeleton class follows an edit. */
enum class ELumSkeleton : uint8
{
	/** Within the edit, so that nodes that follow the change are undone with it. */
	AtOnce,
	/** With others, where a batch is open: for an edit after which no node has to be made again. */
	Later
};

/**
 * One edit of a Blueprint's structure: an entry of undo, at whose end the Blueprint is marked as structurally modified. Make it when nothing
 * can fail any more: cancelling restores nothing.
 */
class FLumStructureEdit
{
public:
	FLumStructureEdit(const FText& Title, UBlueprint& InBlueprint, ELumSkeleton InSkeleton);
	~FLumStructureEdit();
	UE_NONCOPYABLE(FLumStructureEdit)

	/** The name is free from here on. */
	void FreeName(FName Name);
	/** Has the Blueprint marked now, so that what follows within the edit sees the members as they are. */
	void Mark();
	/** From here on the engine's functions mark the Blueprint themselves, as one does that needs the skeleton class in its midst. */
	void LetEngineMark();
	/** Nothing was done: no entry, and no mark. */
	void Cancel();

private:
	FScopedTransaction Transaction;
	UBlueprint& Blueprint;
	ELumSkeleton Skeleton;
	/** Whether the Blueprint was marked as being compiled before, which keeps the engine's functions from making the skeleton class. */
	bool bWasBeingCompiled;
	/** Whether the end has nothing to mark. */
	bool bIsMarked = false;
};
