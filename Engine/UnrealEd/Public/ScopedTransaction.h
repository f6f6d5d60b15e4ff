#pragma once

#include "CoreMinimal.h"

class UObject;

/**
 * A transaction for the length of a scope. Within another one it joins that. Does nothing while an undo is going on or without
 * an editor.
 */
class UNREALED_API FScopedTransaction
{
public:
	explicit FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	/** TransactionContext names the part of the editor that makes it; PrimaryObject is what it is about, or null. */
	FScopedTransaction(
		const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact = true);
	~FScopedTransaction();
	FScopedTransaction(const FScopedTransaction&) = delete;
	FScopedTransaction& operator=(const FScopedTransaction&) = delete;

	/** Remembers nothing more and leaves no entry. What was changed stays changed. */
	void Cancel();
	bool IsOutstanding() const { return Index >= 0; }

private:
	int32 Index = INDEX_NONE;
};
