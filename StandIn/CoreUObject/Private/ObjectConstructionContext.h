// The identity an object receives before its C++ constructor body runs, kept on a stack while constructors nest.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

class FObjectInitializer;

struct FObjectConstructionContext
{
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	EInternalObjectFlags InternalFlags = EInternalObjectFlags::None;
	// The object array slot and serial number kept when an object is replaced in place (INDEX_NONE: a new slot).
	int32 ReusedIndex = INDEX_NONE;
	int32 ReusedSerialNumber = 0;
	// Strong references (TStrongObjectPtr) to the replaced object keep holding the new one.
	int32 ReusedRefCount = 0;
	// Class objects of the bootstrap are entered in the object array once their own class and outer are known.
	bool bRegisterInObjectArray = true;
	FObjectInitializer* Initializer = nullptr;
	bool bConsumed = false;
};

// Friend of UObject: sets the identity fields that only construction, renaming and bootstrapping may change.
class FStandInObjectConstruction
{
public:
	static void Push(FObjectConstructionContext& Context);
	static void Pop(FObjectConstructionContext& Context);
	// The context of the innermost object whose constructor is running, or null.
	static FObjectConstructionContext* Top();
	static FObjectConstructionContext* FindForObject(const UObject* Object);

	static void ApplyContext(UObject* Object, FObjectConstructionContext& Context);
	static void SetNameAndOuter(UObject* Object, FName NewName, UObject* NewOuter) { Object->NamePrivate = NewName; Object->OuterPrivate = NewOuter; }
	static void SetClass(UObject* Object, UClass* NewClass) { Object->ClassPrivate = NewClass; }
};
