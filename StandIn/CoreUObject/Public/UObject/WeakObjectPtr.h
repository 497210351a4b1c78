// FWeakObjectPtr: a reference to an object that does not keep it alive and never resolves to a later object.
#pragma once

#include "CoreMinimal.h"

class UObject;
template<typename T> class TObjectPtr;

struct COREUOBJECT_API FWeakObjectPtr
{
public:
	FWeakObjectPtr() = default;
	FWeakObjectPtr(TYPE_OF_NULLPTR) {}
	FWeakObjectPtr(const UObject* Object) { (*this) = Object; }
	template<typename T>
	FWeakObjectPtr(const TObjectPtr<T>& Object) { (*this) = static_cast<const UObject*>(Object.Get()); }
	FWeakObjectPtr(const FWeakObjectPtr& Other) = default;
	FWeakObjectPtr& operator=(const FWeakObjectPtr& Other) = default;

	void operator=(const UObject* Object);
	template<typename T>
	void operator=(const TObjectPtr<T>& Object) { (*this) = static_cast<const UObject*>(Object.Get()); }

	/** Equal when both refer to the same object, or when neither refers to a live object. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return (ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber) || (!IsValid() && !Other.IsValid());
	}
	bool operator!=(const FWeakObjectPtr& Other) const { return !(*this == Other); }

	/** The object, or null when it is gone (or marked as garbage, unless bEvenIfGarbage). */
	UObject* Get(bool bEvenIfGarbage) const;
	UObject* Get() const { return Get(false); }
	UObject* GetEvenIfUnreachable() const;

	bool IsValid(bool bEvenIfGarbage, bool bThreadsafeTest = false) const;
	bool IsValid() const { return IsValid(false); }
	/** True when this used to refer to an object that is gone (or marked as garbage when bIncludingGarbage). */
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const;
	bool IsExplicitlyNull() const { return ObjectIndex == 0 && ObjectSerialNumber == 0; }
	void Reset() { ObjectIndex = 0; ObjectSerialNumber = 0; }

	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}

	uint32 GetTypeHash() const { return uint32(ObjectIndex ^ ObjectSerialNumber); }
	friend uint32 GetTypeHash(const FWeakObjectPtr& WeakObjectPtr) { return WeakObjectPtr.GetTypeHash(); }

private:
	int32 ObjectIndex = 0;
	int32 ObjectSerialNumber = 0;
};

#include "UObject/WeakObjectPtrTemplates.h"
