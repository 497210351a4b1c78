// UTransBuffer: the editor's undo and redo buffer.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Editor/Transactor.h"
#include "Templates/SharedPointer.h"

// The queue holds undoable transactions, oldest first, followed by the UndoCount undone ones that Redo re-applies.
class UNREALED_API UTransBuffer : public UTransactor
{
	STANDIN_CLASS_BODY(UTransBuffer, UTransactor, UNREALED_API)

public:
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnTransactorUndo, const FTransactionContext& /*TransactionContext*/, bool /*Succeeded*/);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnTransactorRedo, const FTransactionContext& /*TransactionContext*/, bool /*Succeeded*/);
	DECLARE_MULTICAST_DELEGATE(FOnTransactorUndoBufferChanged);

	UTransBuffer();

	void Initialize(SIZE_T InMaxMemory);

	void Reset(const FText& Reason) override;
	int32 Begin(const TCHAR* SessionContext, const FText& Description) override;
	int32 End() override;
	void Cancel(int32 StartIndex = 0) override;
	int32 GetQueueLength() const override { return UndoBuffer.Num(); }
	int32 GetUndoCount() const override { return UndoCount; }
	const FTransaction* GetTransaction(int32 QueueIndex) const override;
	FTransactionContext GetUndoContext(bool bCheckWhetherUndoPossible = true) override;
	FTransactionContext GetRedoContext() override;
	bool CanUndo(FText* Text = nullptr) override;
	bool CanRedo(FText* Text = nullptr) override;
	bool Undo(bool bCanRedo = true) override;
	bool Redo() override;
	void SetPrimaryUndoObject(UObject* Object) override;
	bool IsObjectInTransactionBuffer(const UObject* Object) const override;
	bool IsObjectTransacting(const UObject* Object) const override;
	bool IsActive() override { return ActiveCount > 0; }

	FOnTransactorUndo& OnUndo() { return UndoDelegate; }
	FOnTransactorRedo& OnRedo() { return RedoDelegate; }
	FOnTransactorUndoBufferChanged& OnUndoBufferChanged() { return UndoBufferChangedDelegate; }

	void BeginDestroy() override;
	// Keeps alive every object the transactions recorded or reference from their saved states.
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	SIZE_T MaxMemory = 0;
	TArray<TSharedRef<FTransaction>> UndoBuffer;
	int32 UndoCount = 0;
	FText ResetReason;
	// How many Begin calls the open transaction has seen without their End.
	int32 ActiveCount = 0;
	// The record count of the open transaction at each nested Begin, so a nested Cancel can drop only its own records.
	TArray<int32> ActiveRecordCounts;

private:
	void RestoreRemovedRedoTransactions();
	void ForgetRemovedRedoTransactions();
	// Undoes or redoes Transaction (one call of its flipping Apply) with the editor marked as transacting.
	void ApplyTransaction(FTransaction& Transaction);

	// The redo side set aside by Begin; put back if the new transaction is cancelled or records nothing.
	TArray<TSharedRef<FTransaction>> RemovedTransactions;
	int32 PreviousUndoCount = INDEX_NONE;
	// The transaction being undone or redone.
	FTransaction* CurrentTransaction = nullptr;

	FOnTransactorUndo UndoDelegate;
	FOnTransactorRedo RedoDelegate;
	FOnTransactorUndoBufferChanged UndoBufferChangedDelegate;
};
