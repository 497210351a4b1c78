#include "PersistenceTestTypes.h"

#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FPersistenceTestStruct, "PersistenceTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
	STANDIN_PROPERTY(Reference, CPF_Edit);
}

STANDIN_IMPLEMENT_CLASS(UPersistenceTestObject, CLASS_None, "PersistenceTests")
{
	STANDIN_PROPERTY(Number, CPF_Edit);
	STANDIN_PROPERTY(Text, CPF_Edit);
	STANDIN_PROPERTY(Ratio, CPF_Edit);
	STANDIN_PROPERTY(bFlag, CPF_Edit);
	STANDIN_PROPERTY(Numbers, CPF_Edit);
	STANDIN_PROPERTY(Reference, CPF_Edit);
	STANDIN_PROPERTY(ReferenceArray, CPF_Edit);
	STANDIN_PROPERTY(ReferenceMap, CPF_Edit);
	STANDIN_PROPERTY(Struct, CPF_Edit);
	STANDIN_PROPERTY(WeakReference, CPF_Edit);
	STANDIN_PROPERTY(SoftPath, CPF_Edit);
	STANDIN_PROPERTY(SoftReference, CPF_Edit);
	STANDIN_PROPERTY(TransientNumber, CPF_Transient);
}

STANDIN_IMPLEMENT_CLASS(UPersistenceTestOwner, CLASS_None, "PersistenceTests")
{
	STANDIN_PROPERTY(Inner, CPF_Edit | CPF_InstancedReference);
}

UPersistenceTestOwner::UPersistenceTestOwner()
{
	Inner = CreateDefaultSubobject<UPersistenceTestObject>(TEXT("Inner"));
}

STANDIN_IMPLEMENT_CLASS(UPersistenceTestTracked, CLASS_None, "PersistenceTests")
{
}

int32 UPersistenceTestTracked::NumBeginDestroy = 0;
int32 UPersistenceTestTracked::NumFinishDestroy = 0;
int32 UPersistenceTestTracked::NumDestructed = 0;
TFunction<void(UObject*)> UPersistenceTestTracked::OnBeginDestroy;

UPersistenceTestTracked::~UPersistenceTestTracked()
{
	++NumDestructed;
}

void UPersistenceTestTracked::BeginDestroy()
{
	++NumBeginDestroy;
	if (OnBeginDestroy)
	{
		OnBeginDestroy(this);
	}
	Super::BeginDestroy();
}

void UPersistenceTestTracked::FinishDestroy()
{
	++NumFinishDestroy;
	Super::FinishDestroy();
}

void UPersistenceTestTracked::PostLoad()
{
	Super::PostLoad();
	++PostLoadCount;
}

void UPersistenceTestTracked::ResetCounters()
{
	NumBeginDestroy = 0;
	NumFinishDestroy = 0;
	NumDestructed = 0;
}

STANDIN_IMPLEMENT_CLASS(UPersistenceTestNativeHolder, CLASS_None, "PersistenceTests")
{
}

void UPersistenceTestNativeHolder::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UPersistenceTestNativeHolder*>(InThis)->Held);
}
