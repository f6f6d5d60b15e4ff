#include "BlueprintWatch.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Editor/TransBuffer.h"
#include "Engine/Blueprint.h"
#include "UObject/CoreUObjectDelegates.h"

namespace
{
/** The Blueprint that an object is a part of: a node, a template, the default object of its class. */
UBlueprint* FindBlueprintOf(UObject& Object)
{
	if (Object.HasAnyFlags(RF_ClassDefaultObject))
	{
		return UBlueprint::GetBlueprintFromClass(Object.GetClass());
	}
	for (UObject* Outer = &Object; Outer; Outer = Outer->GetOuter())
	{
		if (UBlueprint* const Blueprint = Cast<UBlueprint>(Outer))
		{
			return Blueprint;
		}
		if (const UClass* const Class = Cast<UClass>(Outer))
		{
			return UBlueprint::GetBlueprintFromClass(Class);
		}
	}
	return nullptr;
}

bool IsLoading(const UBlueprint& Blueprint)
{
	return Blueprint.HasAnyFlags(RF_NeedLoad) || Blueprint.HasAnyFlags(RF_NeedPostLoad) || Blueprint.bIsRegeneratingOnLoad;
}
}

FBlueprintWatch::FBlueprintWatch()
	: UndoBuffer(GEditor ? Cast<UTransBuffer>(GEditor->Trans) : nullptr)
{
	ModifiedHandle = FCoreUObjectDelegates::OnObjectModified.AddRaw(this, &FBlueprintWatch::OnModified);
	if (UTransBuffer* const Buffer = UndoBuffer.Get())
	{
		UndoHandle = Buffer->OnBeforeRedoUndo().AddRaw(this, &FBlueprintWatch::OnBeforeUndo);
	}
}

FBlueprintWatch::~FBlueprintWatch()
{
	FCoreUObjectDelegates::OnObjectModified.Remove(ModifiedHandle);
	if (UTransBuffer* const Buffer = UndoBuffer.Get())
	{
		Buffer->OnBeforeRedoUndo().Remove(UndoHandle);
	}
}

TArray<FBlueprintDiff> FBlueprintWatch::TakeDiffs()
{
	TArray<FBlueprintDiff> Diffs;
	for (const FRemembered& Entry : Remembered)
	{
		if (const UBlueprint* const Blueprint = Entry.Blueprint.Get())
		{
			const TSharedRef<const FBlueprintSnapshot> After = MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Blueprint));
			FBlueprintDiff Diff = FBlueprintDiff::Compare(Entry.Before, After);
			if (!Diff.IsEmpty())
			{
				Diffs.Add(MoveTemp(Diff));
			}
		}
	}
	Forget();
	return Diffs;
}

void FBlueprintWatch::OnModified(UObject* Object)
{
	Remember(*Object);
}

void FBlueprintWatch::OnBeforeUndo(const FTransactionContext& Context)
{
	// The entry is the last of those that can be undone, or the first of those that can be redone.
	const UTransBuffer* const Buffer = UndoBuffer.Get();
	const int32 Position = Buffer->GetQueueLength() - Buffer->GetUndoCount();
	for (const int32 Index : {Position - 1, Position})
	{
		const FTransaction* const Transaction = Index >= 0 && Index < Buffer->GetQueueLength() ? Buffer->GetTransaction(Index) : nullptr;
		if (Transaction && Transaction->GetId() == Context.TransactionId)
		{
			TArray<UObject*> Objects;
			Transaction->GetTransactionObjects(Objects);
			for (UObject* const Object : Objects)
			{
				Remember(*Object);
			}
		}
	}
}

void FBlueprintWatch::Remember(UObject& Object)
{
	if (bTaking)
	{
		return;
	}
	UBlueprint* const Blueprint = FindBlueprintOf(Object);
	const bool bKnown = Remembered.ContainsByPredicate([&](const FRemembered& Entry)
		{ return Entry.Blueprint == Blueprint; });
	if (Blueprint && !bKnown && !IsLoading(*Blueprint))
	{
		bTaking = true;
		Remembered.Add({Blueprint, MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Blueprint))});
		bTaking = false;
	}
}
