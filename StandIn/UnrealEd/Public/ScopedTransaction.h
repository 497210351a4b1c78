// FScopedTransaction: an undo transaction open for the lifetime of a scope.
#pragma once

#include "CoreMinimal.h"

class UObject;

// Nested scopes join the outermost one: the editor gets one undo entry, titled by the outermost scope.
class UNREALED_API FScopedTransaction
{
public:
	UE_NODISCARD_CTOR FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	UE_NODISCARD_CTOR FScopedTransaction(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact = true);
	~FScopedTransaction();

	FScopedTransaction(const FScopedTransaction&) = delete;
	FScopedTransaction& operator=(const FScopedTransaction&) = delete;

	// Cancels the transaction: its entry is dropped and nothing it recorded is rolled back. Safe to call twice.
	void Cancel();
	// True until cancelled, when the transaction was begun.
	bool IsOutstanding() const;

private:
	void Construct(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact);

	// What BeginTransaction returned; -1 when nothing is outstanding.
	int32 Index;
};
