// UTransactor, the interface of the editor's undo system, and FTransaction, one undoable entry.
#pragma once

#include "CoreMinimal.h"
#include "Containers/IndirectArray.h"
#include "Misc/Guid.h"
#include "Misc/ITransaction.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class FReferenceCollector;

// A transaction's identity and title as the undo system reports it.
// Stand-in choice: declared here until Misc/ITransaction.h (where the engine declares it) offers it.
struct FTransactionContext
{
	FTransactionContext() = default;
	FTransactionContext(const FGuid& InTransactionId, const FGuid& InOperationId, const FText& InSessionTitle, const TCHAR* InContext, UObject* InPrimaryObject)
		: TransactionId(InTransactionId)
		, OperationId(InOperationId)
		, Title(InSessionTitle)
		, Context(InContext ? InContext : TEXT(""))
		, PrimaryObject(InPrimaryObject)
	{
	}

	bool IsValid() const { return TransactionId.IsValid() && OperationId.IsValid(); }

	FGuid TransactionId;
	FGuid OperationId;
	FText Title;
	FString Context;
	UObject* PrimaryObject = nullptr;
};

// The objects changed by one transaction, each with its reflected state from before the change. Applying the
// transaction swaps the saved and the live states, so applying it again redoes what the first application undid.
class UNREALED_API FTransaction : public ITransaction
{
public:
	FTransaction(const TCHAR* InContext = nullptr, const FText& InTitle = FText(), bool bInFlip = false);
	virtual ~FTransaction();

	FTransaction(const FTransaction&) = delete;
	FTransaction& operator=(const FTransaction&) = delete;

	// Records Object's state unless this transaction already holds it: the first save of an object wins.
	bool SaveObject(UObject* Object) override;
	// Keeps the first primary object given.
	virtual void SetPrimaryObject(UObject* InObject);
	// Restores every recorded object (in reverse order when undoing) and calls PostEditUndo on each.
	virtual void Apply();
	virtual void Finalize();
	virtual void BeginOperation();
	virtual void EndOperation();
	virtual FTransactionContext GetContext() const;
	// Stand-in choice: a transaction is transient (dropped when it ends) when it recorded no object.
	virtual bool IsTransient() const;
	virtual bool ContainsObject(const UObject* Object) const;

	FText GetTitle() const { return Title; }
	const FGuid& GetId() const { return Id; }
	const FGuid& GetOperationId() const { return OperationId; }
	UObject* GetPrimaryObject() const { return PrimaryObject; }
	int32 GetRecordCount() const;
	void GetTransactionObjects(TArray<UObject*>& OutObjects) const;
	// Drops the Count most recent records without restoring them.
	void RemoveRecords(int32 Count = 1);
	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	class FObjectRecord;

	TIndirectArray<FObjectRecord> Records;
	FGuid Id;
	FGuid OperationId;
	FText Title;
	FString Context;
	UObject* PrimaryObject = nullptr;
	// Whether Apply reverses its direction after each call (undo then redo).
	bool bFlip;
	// +1 applies records in recording order (redo), -1 in reverse order (undo).
	int32 Inc;
};

// The editor's undo system; UTransBuffer is the implementation GEditor->Trans holds.
class UNREALED_API UTransactor : public UObject
{
	STANDIN_CLASS_BODY(UTransactor, UObject, UNREALED_API)

public:
	UTransactor();

	// Forgets every transaction; Reason is shown as the reason nothing can be undone.
	virtual void Reset(const FText& Reason) PURE_VIRTUAL(UTransactor::Reset, );
	// Begins a transaction, or joins the active one; returns the number of transactions active before the call.
	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) PURE_VIRTUAL(UTransactor::Begin, return 0;);
	// Ends the innermost active transaction; returns the number active before the call.
	virtual int32 End() PURE_VIRTUAL(UTransactor::End, return 0;);
	// Cancels the transaction begun at StartIndex (0: the outermost one, whose entry is dropped); nothing is rolled back.
	virtual void Cancel(int32 StartIndex = 0) PURE_VIRTUAL(UTransactor::Cancel, );
	virtual int32 GetQueueLength() const PURE_VIRTUAL(UTransactor::GetQueueLength, return 0;);
	// How many of the queued transactions are undone (waiting for a redo).
	virtual int32 GetUndoCount() const PURE_VIRTUAL(UTransactor::GetUndoCount, return 0;);
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const PURE_VIRTUAL(UTransactor::GetTransaction, return nullptr;);
	virtual FTransactionContext GetUndoContext(bool bCheckWhetherUndoPossible = true) PURE_VIRTUAL(UTransactor::GetUndoContext, return FTransactionContext(););
	virtual FTransactionContext GetRedoContext() PURE_VIRTUAL(UTransactor::GetRedoContext, return FTransactionContext(););
	virtual bool CanUndo(FText* Text = nullptr) PURE_VIRTUAL(UTransactor::CanUndo, return false;);
	virtual bool CanRedo(FText* Text = nullptr) PURE_VIRTUAL(UTransactor::CanRedo, return false;);
	virtual bool Undo(bool bCanRedo = true) PURE_VIRTUAL(UTransactor::Undo, return false;);
	virtual bool Redo() PURE_VIRTUAL(UTransactor::Redo, return false;);
	virtual void SetPrimaryUndoObject(UObject* Object) PURE_VIRTUAL(UTransactor::SetPrimaryUndoObject, );
	virtual bool IsObjectInTransactionBuffer(const UObject* Object) const PURE_VIRTUAL(UTransactor::IsObjectInTransactionBuffer, return false;);
	virtual bool IsObjectTransacting(const UObject* Object) const PURE_VIRTUAL(UTransactor::IsObjectTransacting, return false;);
	// Whether a transaction is open.
	virtual bool IsActive() PURE_VIRTUAL(UTransactor::IsActive, return false;);
};
