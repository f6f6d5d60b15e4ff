#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Engine/Engine.h"
#include "Subsystems/SubsystemCollection.h"
#include "TimerManager.h"

#include "EditorEngine.generated.h"

class FBlueprintUndo;
class FEditorUndoClient;
class FViewport;
class UTransactor;
class UWorld;
struct FTransactionContext;

/** The editor: its world, its subsystems and its undo buffer. */
UCLASS(config = Engine, transient)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	/** Makes the editor's world and the subsystems. Called once, by the host's start. */
	void InitializeEditor();
	/** Takes the subsystems down, then the world. */
	void ShutdownEditor();

	/** The first call opens the project's startup map, if it has one. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	template <typename TSubsystemClass>
	TSubsystemClass* GetEditorSubsystem() const
	{
		return static_cast<TSubsystemClass*>(EditorSubsystemCollection.GetSubsystemInternal(TSubsystemClass::StaticClass()));
	}
	UEditorSubsystem* GetEditorSubsystemBase(TSubclassOf<UEditorSubsystem> SubsystemClass) const
	{
		return static_cast<UEditorSubsystem*>(EditorSubsystemCollection.GetSubsystemInternal(SubsystemClass.Get()));
	}

	/** The undo buffer; null before InitializeEditor and after ShutdownEditor. */
	UPROPERTY()
	TObjectPtr<UTransactor> Trans = nullptr;

	/** Whether a transaction may begin: not while an undo is going on. */
	bool CanTransact();
	/**
	 * Pair it with EndTransaction. The answer, for CancelTransaction, is INDEX_NONE when no transaction may begin. FScopedTransaction
	 * does both.
	 */
	int32 BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject);
	int32 BeginTransaction(const FText& Description);
	int32 EndTransaction();
	void CancelTransaction(int32 Index);
	void ResetTransaction(const FText& Reason);
	/** False when there is nothing to undo, or a transaction is open. bCanRedo of false forgets what was undone. */
	bool UndoTransaction(bool bCanRedo = true);
	bool RedoTransaction();
	bool IsTransactionActive() const;
	/** Title of the open transaction; empty without one. */
	FText GetTransactionName() const;
	bool IsObjectInTransactionBuffer(const UObject* Object) const;
	/** The client is told of each undo and redo until it is unregistered. */
	void RegisterForUndo(FEditorUndoClient* UndoClient);
	void UnregisterForUndo(FEditorUndoClient* UndoClient);

	/** The level editor's view; in this host there is always one. */
	FViewport* GetActiveViewport();

	TSharedRef<FTimerManager> GetTimerManager() { return TimerManager; }
	virtual void Tick(float DeltaSeconds, bool bIdleMode) override;

private:
	FSubsystemCollection<UEditorSubsystem> EditorSubsystemCollection;
	TSharedRef<FTimerManager> TimerManager = MakeShared<FTimerManager>();
	FWorldContext* EditorContext = nullptr;
	/** Opening a map loads every class that its actors have, so it waits until somebody asks for the world. */
	bool bOpenedStartupMap = false;

	TArray<FEditorUndoClient*> UndoClients;
	TSharedPtr<FBlueprintUndo> BlueprintUndo;

	void OpenStartupMap();
	void InitializeTransactions();
	void ShutdownTransactions();
	void HandleTransactorUndo(const FTransactionContext& TransactionContext, bool Succeeded);
	void HandleTransactorRedo(const FTransactionContext& TransactionContext, bool Succeeded);
	void TellUndoClients(const FTransactionContext& Context, bool bSucceeded, int32 QueueIndex, void (FEditorUndoClient::*Tell)(bool));
};

/** The editor, from the host's start to its end; null in a program that did not start one. */
extern UNREALED_API UEditorEngine* GEditor;
