#include "Editor/TransBuffer.h"
#include "TransactingState.h"
#include "Internationalization/Internationalization.h"
#include "UObject/GCObject.h"
#include "UObject/StandInGarbageCollectionStress.h"
#include "UObject/UnrealType.h"

UTransBuffer::UTransBuffer() = default;

STANDIN_IMPLEMENT_CLASS(UTransBuffer, CLASS_Transient, "UnrealEd")
{
}

void UTransBuffer::Initialize(SIZE_T InMaxMemory)
{
	MaxMemory = InMaxMemory;
	Reset(NSLOCTEXT("UnrealEd", "Startup", "Startup"));
}

void UTransBuffer::Reset(const FText& Reason)
{
	// The engine treats a reset inside a transaction or an undo as fatal; the stand-in refuses it.
	if (!ensureMsgf(ActiveCount == 0 && !UE::UnrealEd::Private::IsTransactingFlag(), TEXT("UTransBuffer::Reset called while a transaction is active")))
	{
		return;
	}
	UndoBuffer.Empty();
	RemovedTransactions.Empty();
	UndoCount = 0;
	PreviousUndoCount = INDEX_NONE;
	ResetReason = Reason;
	ActiveRecordCounts.Empty();
	UndoBufferChangedDelegate.Broadcast();
}

int32 UTransBuffer::Begin(const TCHAR* SessionContext, const FText& Description)
{
	ActiveRecordCounts.Add(ActiveCount > 0 ? UndoBuffer.Last()->GetRecordCount() : 0);
	const int32 Result = ActiveCount;
	if (ActiveCount++ == 0)
	{
		// The redo side is set aside, not yet dropped: an empty or cancelled transaction gives it back.
		PreviousUndoCount = UndoCount;
		for (int32 Index = UndoBuffer.Num() - UndoCount; Index < UndoBuffer.Num(); ++Index)
		{
			RemovedTransactions.Add(UndoBuffer[Index]);
		}
		UndoBuffer.RemoveAt(UndoBuffer.Num() - UndoCount, UndoCount);
		UndoCount = 0;

		UndoBuffer.Add(MakeShared<FTransaction>(SessionContext, Description, true));
		FTransaction& Transaction = UndoBuffer.Last().Get();
		Transaction.BeginOperation();
		GUndo = &Transaction;
		UndoBufferChangedDelegate.Broadcast();
	}
	return Result;
}

int32 UTransBuffer::End()
{
	const int32 Result = ActiveCount;
	if (ActiveCount < 1)
	{
		return Result;
	}
	if (--ActiveCount == 0)
	{
		FTransaction& Transaction = UndoBuffer.Last().Get();
		Transaction.Finalize();
		Transaction.EndOperation();
		GUndo = nullptr;
		if (Transaction.IsTransient())
		{
			UndoBuffer.Pop();
			RestoreRemovedRedoTransactions();
		}
		else
		{
			ForgetRemovedRedoTransactions();
		}
		UndoBufferChangedDelegate.Broadcast();
	}
	ActiveRecordCounts.Pop();
	return Result;
}

void UTransBuffer::Cancel(int32 StartIndex)
{
	if (ActiveCount <= 0 || StartIndex < 0 || StartIndex >= ActiveCount)
	{
		return;
	}
	FTransaction& Transaction = UndoBuffer.Last().Get();
	if (StartIndex == 0)
	{
		Transaction.EndOperation();
		GUndo = nullptr;
		UndoBuffer.Pop();
		RestoreRemovedRedoTransactions();
		ActiveCount = 0;
		ActiveRecordCounts.Empty();
		UndoBufferChangedDelegate.Broadcast();
	}
	else
	{
		const int32 RecordsToKeep = ActiveRecordCounts[StartIndex];
		Transaction.RemoveRecords(Transaction.GetRecordCount() - RecordsToKeep);
		ActiveCount = StartIndex;
		ActiveRecordCounts.SetNum(StartIndex);
	}
}

void UTransBuffer::RestoreRemovedRedoTransactions()
{
	UndoBuffer.Append(RemovedTransactions);
	UndoCount = PreviousUndoCount > 0 ? PreviousUndoCount : 0;
	ForgetRemovedRedoTransactions();
}

void UTransBuffer::ForgetRemovedRedoTransactions()
{
	RemovedTransactions.Empty();
	PreviousUndoCount = INDEX_NONE;
}

const FTransaction* UTransBuffer::GetTransaction(int32 QueueIndex) const
{
	return UndoBuffer.IsValidIndex(QueueIndex) ? &UndoBuffer[QueueIndex].Get() : nullptr;
}

FTransactionContext UTransBuffer::GetUndoContext(bool bCheckWhetherUndoPossible)
{
	FTransactionContext Context;
	FText Title;
	if (bCheckWhetherUndoPossible && !CanUndo(&Title))
	{
		Context.Title = Title;
		return Context;
	}
	const int32 QueueIndex = UndoBuffer.Num() - (UndoCount + 1);
	return UndoBuffer.IsValidIndex(QueueIndex) ? UndoBuffer[QueueIndex]->GetContext() : Context;
}

FTransactionContext UTransBuffer::GetRedoContext()
{
	FTransactionContext Context;
	FText Title;
	if (!CanRedo(&Title))
	{
		Context.Title = Title;
		return Context;
	}
	return UndoBuffer[UndoBuffer.Num() - UndoCount]->GetContext();
}

// Stand-in choice: the wording of the reasons undo or redo is unavailable.
bool UTransBuffer::CanUndo(FText* Text)
{
	if (ActiveCount > 0 || UE::UnrealEd::Private::IsTransactingFlag())
	{
		if (Text)
		{
			*Text = NSLOCTEXT("TransactionSystem", "CantUndoDuringTransaction", "(Can't undo while action is in progress)");
		}
		return false;
	}
	if (UndoBuffer.Num() == UndoCount)
	{
		if (Text)
		{
			*Text = ResetReason.IsEmpty()
				? NSLOCTEXT("TransactionSystem", "NothingToUndo", "(Nothing to undo)")
				: FText::Format(NSLOCTEXT("TransactionSystem", "CantUndoAfter", "(Can't undo after: {0})"), ResetReason);
		}
		return false;
	}
	return true;
}

bool UTransBuffer::CanRedo(FText* Text)
{
	if (ActiveCount > 0 || UE::UnrealEd::Private::IsTransactingFlag())
	{
		if (Text)
		{
			*Text = NSLOCTEXT("TransactionSystem", "CantRedoDuringTransaction", "(Can't redo while action is in progress)");
		}
		return false;
	}
	if (UndoCount == 0)
	{
		if (Text)
		{
			*Text = NSLOCTEXT("TransactionSystem", "NothingToRedo", "(Nothing to redo)");
		}
		return false;
	}
	return true;
}

bool UTransBuffer::Undo(bool bCanRedo)
{
	UE::CoreUObject::StandIn::CollectGarbageForStress();
	if (!CanUndo())
	{
		return false;
	}
	++UndoCount;
	const TSharedRef<FTransaction> Transaction = UndoBuffer[UndoBuffer.Num() - UndoCount];
	ApplyTransaction(Transaction.Get());
	UndoDelegate.Broadcast(Transaction->GetContext(), true);
	if (!bCanRedo)
	{
		UndoBuffer.RemoveAt(UndoBuffer.Num() - UndoCount, UndoCount);
		UndoCount = 0;
	}
	UndoBufferChangedDelegate.Broadcast();
	return true;
}

bool UTransBuffer::Redo()
{
	UE::CoreUObject::StandIn::CollectGarbageForStress();
	if (!CanRedo())
	{
		return false;
	}
	const TSharedRef<FTransaction> Transaction = UndoBuffer[UndoBuffer.Num() - UndoCount];
	--UndoCount;
	ApplyTransaction(Transaction.Get());
	RedoDelegate.Broadcast(Transaction->GetContext(), true);
	UndoBufferChangedDelegate.Broadcast();
	return true;
}

void UTransBuffer::ApplyTransaction(FTransaction& Transaction)
{
	TGuardValue<bool> TransactingGuard(UE::UnrealEd::Private::IsTransactingFlag(), true);
	TGuardValue<FTransaction*> CurrentTransactionGuard(CurrentTransaction, &Transaction);
	Transaction.BeginOperation();
	Transaction.Apply();
	Transaction.EndOperation();
}

void UTransBuffer::SetPrimaryUndoObject(UObject* Object)
{
	if (ActiveCount > 0 && Object && Object->HasAnyFlags(RF_Transactional))
	{
		UndoBuffer.Last()->SetPrimaryObject(Object);
	}
}

bool UTransBuffer::IsObjectInTransactionBuffer(const UObject* Object) const
{
	for (const TSharedRef<FTransaction>& Transaction : UndoBuffer)
	{
		if (Transaction->ContainsObject(Object))
		{
			return true;
		}
	}
	return false;
}

bool UTransBuffer::IsObjectTransacting(const UObject* Object) const
{
	return CurrentTransaction && CurrentTransaction->ContainsObject(Object);
}

void UTransBuffer::BeginDestroy()
{
	for (const TSharedRef<FTransaction>& Transaction : UndoBuffer)
	{
		if (GUndo == &Transaction.Get())
		{
			GUndo = nullptr;
		}
	}
	UndoBuffer.Empty();
	RemovedTransactions.Empty();
	ActiveCount = 0;
	ActiveRecordCounts.Empty();
	UndoCount = 0;
	Super::BeginDestroy();
}

void UTransBuffer::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UTransBuffer* This = static_cast<UTransBuffer*>(InThis);
	for (const TSharedRef<FTransaction>& Transaction : This->UndoBuffer)
	{
		Transaction->AddReferencedObjects(Collector);
	}
	for (const TSharedRef<FTransaction>& Transaction : This->RemovedTransactions)
	{
		Transaction->AddReferencedObjects(Collector);
	}
	Super::AddReferencedObjects(This, Collector);
}
