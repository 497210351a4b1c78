// The global object array: every live object has an index, internal flags and a serial number; plus the object hash.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UObject;
class UClass;

/** One slot of the object array. */
struct COREUOBJECT_API FUObjectItem
{
	UObject* Object = nullptr;
	int32 Flags = 0;
	int32 ClusterRootIndex = 0;
	/** New for every object placed in the slot, so a weak pointer never resolves to a later occupant. */
	int32 SerialNumber = 0;
	/** Strong references held by TStrongObjectPtr; an object with references is a garbage collection root. */
	int32 RefCount = 0;

	UObject* GetObject() const { return Object; }
	int32 GetSerialNumber() const { return SerialNumber; }

	EInternalObjectFlags GetFlags() const { return EInternalObjectFlags(Flags); }
	void SetFlags(EInternalObjectFlags FlagsToSet) { Flags |= int32(FlagsToSet); }
	void ClearFlags(EInternalObjectFlags FlagsToClear) { Flags &= ~int32(FlagsToClear); }
	bool HasAnyFlags(EInternalObjectFlags InFlags) const { return (Flags & int32(InFlags)) != 0; }
	bool HasAllFlags(EInternalObjectFlags InFlags) const { return (Flags & int32(InFlags)) == int32(InFlags); }

	bool IsUnreachable() const { return HasAnyFlags(EInternalObjectFlags::Unreachable); }
	void SetUnreachable() { SetFlags(EInternalObjectFlags::Unreachable); }
	void ClearUnreachable() { ClearFlags(EInternalObjectFlags::Unreachable); }
	bool IsGarbage() const { return HasAnyFlags(EInternalObjectFlags::Garbage); }
	void SetGarbage() { SetFlags(EInternalObjectFlags::Garbage); }
	void ClearGarbage() { ClearFlags(EInternalObjectFlags::Garbage); }
	bool IsRootSet() const { return HasAnyFlags(EInternalObjectFlags::RootSet); }
	void SetRootSet() { SetFlags(EInternalObjectFlags::RootSet); }
	void ClearRootSet() { ClearFlags(EInternalObjectFlags::RootSet); }

	int32 GetRefCount() const { return RefCount; }
	void AddRef();
	void ReleaseRef();
};

/**
 * The array of all objects. Freed slots are reused (last freed first, as the engine's free list); items never move,
 * so pointers to them stay valid for the life of the process.
 */
class COREUOBJECT_API FUObjectArray
{
public:
	/** Gives the object a slot and a new serial number; its InternalIndex is set. */
	void AllocateUObjectIndex(UObject* Object, EInternalObjectFlags InitialFlags = EInternalObjectFlags::None, int32 AlreadyAllocatedIndex = -1, int32 SerialNumber = 0);
	/** Releases the object's slot; the slot's serial number becomes invalid. Does nothing if the object does not own a slot. */
	void FreeUObjectIndex(UObject* Object);

	int32 ObjectToIndex(const UObject* Object) const;
	/** The item at the index, or null when the index was never used. */
	FUObjectItem* IndexToObject(int32 Index) const;
	FUObjectItem* IndexToObject(int32 Index, bool bEvenIfGarbage) const;
	FUObjectItem* IndexToObjectUnsafeForGC(int32 Index) const { return IndexToObject(Index); }
	FUObjectItem* ObjectToObjectItem(const UObject* Object) const;
	int32 GetSerialNumber(int32 Index) const;
	/** The engine assigns serial numbers lazily; every slot has one here already. */
	int32 AllocateSerialNumber(int32 Index) const { return GetSerialNumber(Index); }

	/** Number of slots in use or free: one past the highest index ever used. */
	int32 GetObjectArrayNum() const;
	int32 GetObjectArrayNumMinusAvailable() const;
	int32 GetObjectArrayCapacity() const;

	/** True when the object owns its slot. */
	bool IsValid(const UObject* Object) const;
	/** True for an item whose object is reachable (and not garbage unless bEvenIfGarbage). */
	bool IsValid(const FUObjectItem* ObjectItem, bool bEvenIfGarbage) const;
	bool IsValidIndex(const UObject* Object) const;
};

extern COREUOBJECT_API FUObjectArray GUObjectArray;

namespace UE::CoreUObject::StandIn
{
	/** Enters the object in the hash by (outer, name), in the outer's inner list and in its class's list (creation order). */
	COREUOBJECT_API void HashObject(UObject* Object);
	/** Removes the object from the hash and the lists; does nothing when it is not hashed. */
	COREUOBJECT_API void UnhashObject(UObject* Object);
	/** Moves an object whose class pointer changed (bootstrapping) to the list of its new class. */
	COREUOBJECT_API void RehashObjectClass(UObject* Object);
	COREUOBJECT_API bool IsObjectHashed(const UObject* Object);

	/**
	 * The object named Name directly inside Outer (Outer null: a package), in O(1). With a class, only an object of
	 * that class (bExactClass) or of a class derived from it. Objects being destroyed are not found.
	 */
	COREUOBJECT_API UObject* FindObjectFast(UObject* Outer, FName Name, UClass* Class = nullptr, bool bExactClass = false);

	/** Calls the visitor for each object directly inside Outer, in creation order; stops when it returns false. */
	COREUOBJECT_API void ForEachDirectInner(const UObject* Outer, TFunctionRef<bool(UObject*)> Visitor);
	/** Calls the visitor for each object whose class is exactly Class, in creation order; stops when it returns false. */
	COREUOBJECT_API void ForEachObjectOfExactClass(const UClass* Class, TFunctionRef<bool(UObject*)> Visitor);
	/** Calls the visitor for every hashed object, in creation order; stops when it returns false. */
	COREUOBJECT_API void ForEachHashedObject(TFunctionRef<bool(UObject*)> Visitor);
	/** Classes that have at least one live object of exactly that class. */
	COREUOBJECT_API void GetClassesWithObjects(TArray<const UClass*>& OutClasses);
	/** A number that orders objects by creation (by hashing, for objects re-hashed after a rename). */
	COREUOBJECT_API uint64 GetObjectCreationOrder(const UObject* Object);
}
