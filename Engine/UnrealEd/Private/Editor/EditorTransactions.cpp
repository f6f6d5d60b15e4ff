#include "BlueprintUndo.h"
#include "Editor/EditorEngine.h"
#include "Editor/TransBuffer.h"
#include "EditorUndoClient.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** What the entries of the undo buffer may hold together. */
constexpr SIZE_T MaxUndoMemory = 256u * 1024u * 1024u;
}

void UEditorEngine::InitializeTransactions()
{
	UTransBuffer* const Buffer = NewObject<UTransBuffer>(this);
	Buffer->Initialize(MaxUndoMemory);
	Buffer->OnUndo().AddUObject(this, &UEditorEngine::HandleTransactorUndo);
	Buffer->OnRedo().AddUObject(this, &UEditorEngine::HandleTransactorRedo);
	Trans = Buffer;
	BlueprintUndo = MakeShared<FBlueprintUndo>();
	RegisterForUndo(BlueprintUndo.Get());
}

void UEditorEngine::ShutdownTransactions()
{
	if (Trans)
	{
		Trans->Reset(NSLOCTEXT("UnrealEd", "ExitEditor", "Exit Editor"));
		Trans = nullptr;
	}
	UndoClients.Empty();
	BlueprintUndo.Reset();
}

bool UEditorEngine::CanTransact() { return Trans && !GIsTransacting; }

int32 UEditorEngine::BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject)
{
	if (!CanTransact())
	{
		return INDEX_NONE;
	}
	const int32 Index = Trans->Begin(TransactionContext, Description);
	Trans->SetPrimaryUndoObject(PrimaryObject);
	return Index;
}

int32 UEditorEngine::BeginTransaction(const FText& Description) { return BeginTransaction(TEXT(""), Description, nullptr); }

int32 UEditorEngine::EndTransaction() { return Trans ? Trans->End() : INDEX_NONE; }

void UEditorEngine::CancelTransaction(int32 Index)
{
	if (Trans)
	{
		Trans->Cancel(Index);
	}
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	if (Trans)
	{
		Trans->Reset(Reason);
	}
}

bool UEditorEngine::UndoTransaction(bool bCanRedo) { return Trans && Trans->Undo(bCanRedo); }

bool UEditorEngine::RedoTransaction() { return Trans && Trans->Redo(); }

bool UEditorEngine::IsTransactionActive() const { return Trans && Trans->IsActive(); }

FText UEditorEngine::GetTransactionName() const
{
	const bool bIsActive = IsTransactionActive();
	return bIsActive ? Trans->GetUndoContext(false).Title : FText::GetEmpty();
}

bool UEditorEngine::IsObjectInTransactionBuffer(const UObject* Object) const { return Trans && Trans->IsObjectInTransactionBuffer(Object); }

void UEditorEngine::RegisterForUndo(FEditorUndoClient* UndoClient)
{
	if (UndoClient)
	{
		UndoClients.AddUnique(UndoClient);
	}
}

void UEditorEngine::UnregisterForUndo(FEditorUndoClient* UndoClient) { UndoClients.Remove(UndoClient); }

void UEditorEngine::TellUndoClients(
	const FTransactionContext& Context, bool bSucceeded, int32 QueueIndex, void (FEditorUndoClient::*Tell)(bool))
{
	const FTransaction* const Transaction = bSucceeded ? Trans->GetTransaction(QueueIndex) : nullptr;
	if (!Transaction)
	{
		return;
	}
	// A client may come or go while another one is told.
	const TArray<FEditorUndoClient*> Clients = UndoClients;
	for (FEditorUndoClient* const Client : Clients)
	{
		if (UndoClients.Contains(Client) && Client->MatchesContext(Context, Transaction->GetAppliedChanges()))
		{
			(Client->*Tell)(bSucceeded);
		}
	}
}

void UEditorEngine::HandleTransactorUndo(const FTransactionContext& TransactionContext, bool Succeeded)
{
	TellUndoClients(TransactionContext, Succeeded, Trans->GetQueueLength() - Trans->GetUndoCount(), &FEditorUndoClient::PostUndo);
}

void UEditorEngine::HandleTransactorRedo(const FTransactionContext& TransactionContext, bool Succeeded)
{
	TellUndoClients(TransactionContext, Succeeded, Trans->GetQueueLength() - Trans->GetUndoCount() - 1, &FEditorUndoClient::PostRedo);
}

FSelfRegisteringEditorUndoClient::FSelfRegisteringEditorUndoClient()
{
	if (GEditor)
	{
		GEditor->RegisterForUndo(this);
	}
}

FSelfRegisteringEditorUndoClient::~FSelfRegisteringEditorUndoClient()
{
	if (GEditor)
	{
		GEditor->UnregisterForUndo(this);
	}
}
