#include "Editor/Transactor.h"
#include "ObjectStateSnapshot.h"
#include "UObject/GCObject.h"

// One object recorded by a transaction, with the state it had when first saved.
class FTransaction::FObjectRecord
{
public:
	explicit FObjectRecord(UObject* InObject)
		: Object(InObject)
		, SavedState(*InObject)
	{
	}

	UObject* GetObject() const { return Object; }

	// Swaps the object's live state with the saved one, unless the object no longer exists.
	void Exchange()
	{
		if (Object)
		{
			SavedState.ExchangeWith(*Object);
		}
	}

	void AddReferencedObjects(FReferenceCollector& Collector)
	{
		Collector.AddReferencedObject(Object);
		SavedState.VisitObjectReferences([&Collector](UObject*& Reference)
		{
			Collector.AddReferencedObject(Reference);
		});
	}

private:
	UObject* Object;
	FObjectStateSnapshot SavedState;
};

FTransaction::FTransaction(const TCHAR* InContext, const FText& InTitle, bool bInFlip)
	: Id(FGuid::NewGuid())
	, Title(InTitle)
	, Context(InContext ? InContext : TEXT(""))
	, bFlip(bInFlip)
	, Inc(-1)
{
}

FTransaction::~FTransaction() = default;

bool FTransaction::SaveObject(UObject* Object)
{
	if (!Object)
	{
		return false;
	}
	if (!ContainsObject(Object))
	{
		Records.Add(new FObjectRecord(Object));
	}
	return true;
}

void FTransaction::SetPrimaryObject(UObject* InObject)
{
	if (!PrimaryObject)
	{
		PrimaryObject = InObject;
	}
}

void FTransaction::Apply()
{
	const int32 First = Inc > 0 ? 0 : Records.Num() - 1;
	const int32 Last = Inc > 0 ? Records.Num() : -1;
	for (int32 Index = First; Index != Last; Index += Inc)
	{
		Records[Index].Exchange();
	}
	// Read back from the records, which garbage collection clears if an object goes away in the meantime.
	for (int32 Index = First; Index != Last; Index += Inc)
	{
		if (UObject* Object = Records[Index].GetObject())
		{
			Object->PostEditUndo();
		}
	}
	if (bFlip)
	{
		Inc = -Inc;
	}
}

void FTransaction::Finalize()
{
}

void FTransaction::BeginOperation()
{
	OperationId = FGuid::NewGuid();
}

void FTransaction::EndOperation()
{
	OperationId.Invalidate();
}

FTransactionContext FTransaction::GetContext() const
{
	return FTransactionContext(Id, OperationId, Title, *Context, PrimaryObject);
}

bool FTransaction::IsTransient() const
{
	return Records.Num() == 0;
}

bool FTransaction::ContainsObject(const UObject* Object) const
{
	for (const FObjectRecord& Record : Records)
	{
		if (Object && Record.GetObject() == Object)
		{
			return true;
		}
	}
	return false;
}

int32 FTransaction::GetRecordCount() const
{
	return Records.Num();
}

void FTransaction::GetTransactionObjects(TArray<UObject*>& OutObjects) const
{
	OutObjects.Reset();
	for (const FObjectRecord& Record : Records)
	{
		if (UObject* Object = Record.GetObject())
		{
			OutObjects.AddUnique(Object);
		}
	}
}

void FTransaction::RemoveRecords(int32 Count)
{
	const int32 NumToRemove = FMath::Clamp(Count, 0, Records.Num());
	Records.RemoveAt(Records.Num() - NumToRemove, NumToRemove);
}

void FTransaction::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(PrimaryObject);
	for (FObjectRecord& Record : Records)
	{
		Record.AddReferencedObjects(Collector);
	}
}
