// Iteration over live objects of a class.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"
#include "UObject/UObjectHash.h"
#include "UObject/WeakObjectPtr.h"

namespace UE::CoreUObject::StandIn
{
	/** A snapshot of the matching objects, taken when the iteration starts; objects destroyed meanwhile are skipped. */
	class COREUOBJECT_API FObjectIteratorSnapshot
	{
	public:
		FObjectIteratorSnapshot(const UClass* InClass, bool bIncludeDerivedClasses, EObjectFlags ExclusionFlags, EInternalObjectFlags InternalExclusionFlags);

		/** Moves to the next live object; false at the end. */
		bool Advance();
		UObject* GetCurrent() const { return Current; }

	private:
		TArray<FWeakObjectPtr> Objects;
		int32 Index = -1;
		UObject* Current = nullptr;
	};
}

/** Iterates over the objects of T and its subclasses in creation order, skipping class default objects unless asked. */
template<class T>
class TObjectIterator
{
public:
	enum EEndTagType
	{
		EndTag
	};

	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true, EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: Snapshot(T::StaticClass(), bIncludeDerivedClasses, AdditionalExclusionFlags, InInternalExclusionFlags)
	{
		Snapshot.Advance();
	}

	void operator++() { Snapshot.Advance(); }
	explicit operator bool() const { return Snapshot.GetCurrent() != nullptr; }
	bool operator!() const { return !(bool)*this; }
	T* operator*() const { return static_cast<T*>(Snapshot.GetCurrent()); }
	T* operator->() const { return static_cast<T*>(Snapshot.GetCurrent()); }

private:
	UE::CoreUObject::StandIn::FObjectIteratorSnapshot Snapshot;
};

/** Iterates over objects of a class given at run time. */
class FObjectIterator
{
public:
	explicit FObjectIterator(UClass* InClass = UObject::StaticClass(), bool bOnlyGCedObjects = false, EObjectFlags AdditionalExclusionFlags = RF_NoFlags, EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: Snapshot(InClass, true, AdditionalExclusionFlags, InInternalExclusionFlags)
	{
		Snapshot.Advance();
	}

	void operator++() { Snapshot.Advance(); }
	explicit operator bool() const { return Snapshot.GetCurrent() != nullptr; }
	bool operator!() const { return !(bool)*this; }
	UObject* operator*() const { return Snapshot.GetCurrent(); }
	UObject* operator->() const { return Snapshot.GetCurrent(); }

private:
	UE::CoreUObject::StandIn::FObjectIteratorSnapshot Snapshot;
};

/** Range-for over the objects of T: for (UMyClass* Object : TObjectRange<UMyClass>()). */
template<class T>
class TObjectRange
{
public:
	explicit TObjectRange(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true, EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: Iterator(AdditionalExclusionFlags, bIncludeDerivedClasses, InInternalExclusionFlags)
	{
	}

	class FRangedIterator
	{
	public:
		explicit FRangedIterator(TObjectIterator<T>* InIterator) : Iterator(InIterator) {}
		FRangedIterator& operator++() { ++*Iterator; return *this; }
		T* operator*() const { return **Iterator; }
		bool operator!=(const FRangedIterator&) const { return Iterator && (bool)*Iterator; }

	private:
		TObjectIterator<T>* Iterator;
	};

	FRangedIterator begin() { return FRangedIterator(&Iterator); }
	FRangedIterator end() { return FRangedIterator(nullptr); }

private:
	TObjectIterator<T> Iterator;
};
