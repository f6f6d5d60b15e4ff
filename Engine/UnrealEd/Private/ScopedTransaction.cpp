#include "ScopedTransaction.h"

#include "Editor/EditorEngine.h"

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
	: FScopedTransaction(TEXT(""), SessionName, nullptr, bShouldActuallyTransact)
{
}

FScopedTransaction::FScopedTransaction(
	const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	if (bShouldActuallyTransact && GEditor && GEditor->CanTransact())
	{
		Index = GEditor->BeginTransaction(TransactionContext, SessionName, PrimaryObject);
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (IsOutstanding() && GEditor)
	{
		GEditor->EndTransaction();
	}
}

void FScopedTransaction::Cancel()
{
	if (IsOutstanding())
	{
		GEditor->CancelTransaction(Index);
		Index = INDEX_NONE;
	}
}
