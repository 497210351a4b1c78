#include "ScopedTransaction.h"
#include "TransactingState.h"
#include "Editor.h"

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
{
	Construct(TEXT(""), SessionName, nullptr, bShouldActuallyTransact);
}

FScopedTransaction::FScopedTransaction(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	Construct(TransactionContext, SessionName, PrimaryObject, bShouldActuallyTransact);
}

void FScopedTransaction::Construct(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	Index = -1;
	if (bShouldActuallyTransact && GEditor && GEditor->CanTransact() && ensure(!UE::UnrealEd::Private::IsTransactingFlag()))
	{
		Index = GEditor->BeginTransaction(TransactionContext, SessionName, PrimaryObject);
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (GEditor && GEditor->Trans && IsOutstanding())
	{
		GEditor->EndTransaction();
	}
}

void FScopedTransaction::Cancel()
{
	if (GEditor && GEditor->Trans && IsOutstanding())
	{
		GEditor->CancelTransaction(Index);
		Index = -1;
	}
}

bool FScopedTransaction::IsOutstanding() const
{
	return Index >= 0;
}
