// Reflected classes and structs used by the object-array, garbage collection, package and soft path tests.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

struct FPersistenceTestStruct
{
	STANDIN_STRUCT_BODY(FPersistenceTestStruct, )

public:
	int32 Value = 0;
	TObjectPtr<UObject> Reference;
};

class UPersistenceTestObject : public UObject
{
	STANDIN_CLASS_BODY(UPersistenceTestObject, UObject, )

public:
	int32 Number = 0;
	FString Text;
	float Ratio = 0.0f;
	bool bFlag = false;
	TArray<int32> Numbers;
	TObjectPtr<UObject> Reference;
	TArray<TObjectPtr<UObject>> ReferenceArray;
	TMap<FString, TObjectPtr<UObject>> ReferenceMap;
	FPersistenceTestStruct Struct;
	TWeakObjectPtr<UObject> WeakReference;
	FSoftObjectPath SoftPath;
	TSoftObjectPtr<UObject> SoftReference;
	int32 TransientNumber = 0;
};

/** Creates a default subobject named "Inner" and points Reference at it. */
class UPersistenceTestOwner : public UPersistenceTestObject
{
	STANDIN_CLASS_BODY(UPersistenceTestOwner, UPersistenceTestObject, )

public:
	UPersistenceTestOwner();

	TObjectPtr<UPersistenceTestObject> Inner;
};

/** Counts its destruction steps, and its PostLoad calls. */
class UPersistenceTestTracked : public UObject
{
	STANDIN_CLASS_BODY(UPersistenceTestTracked, UObject, )

public:
	virtual ~UPersistenceTestTracked() override;
	virtual void BeginDestroy() override;
	virtual void FinishDestroy() override;
	virtual void PostLoad() override;

	int32 PostLoadCount = 0;

	static int32 NumBeginDestroy;
	static int32 NumFinishDestroy;
	static int32 NumDestructed;
	static TFunction<void(UObject*)> OnBeginDestroy;
	static void ResetCounters();
};

/** Keeps its Held object alive through the class's AddReferencedObjects, not through a reflected property. */
class UPersistenceTestNativeHolder : public UObject
{
	STANDIN_CLASS_BODY(UPersistenceTestNativeHolder, UObject, )

public:
	UObject* Held = nullptr;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};
