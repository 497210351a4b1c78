// FSoftObjectPtr, TSoftObjectPtr<T>, TSoftClassPtr<T>: references by path that remember the object once found.
#pragma once

#include "CoreMinimal.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

class UObject;
class UClass;
template<typename T> class TObjectPtr;

namespace UE::CoreUObject::StandIn
{
	/** The object if it is an instance of RequiredClass (or of a class derived from it), else null. */
	COREUOBJECT_API UObject* FilterObjectByClass(UObject* Object, const UClass* RequiredClass);
	/** The object if it is a class that is RequiredBase or derives from it, else null. */
	COREUOBJECT_API UClass* FilterClassByBase(UObject* Object, const UClass* RequiredBase);
}

/** A path plus a weak pointer to the object once it has been found in memory. */
struct COREUOBJECT_API FSoftObjectPtr
{
public:
	FSoftObjectPtr() = default;
	FSoftObjectPtr(TYPE_OF_NULLPTR) {}
	explicit FSoftObjectPtr(const FSoftObjectPath& ObjectPath) : ObjectID(ObjectPath) {}
	explicit FSoftObjectPtr(const UObject* Object) { (*this) = Object; }
	template<typename T>
	explicit FSoftObjectPtr(const TObjectPtr<T>& Object) { (*this) = static_cast<const UObject*>(Object.Get()); }

	FSoftObjectPtr& operator=(const UObject* Object);
	FSoftObjectPtr& operator=(const FSoftObjectPath& ObjectPath);
	FSoftObjectPtr& operator=(TYPE_OF_NULLPTR) { Reset(); return *this; }
	template<typename T>
	FSoftObjectPtr& operator=(const TObjectPtr<T>& Object) { return (*this) = static_cast<const UObject*>(Object.Get()); }

	void Reset() { WeakPtr.Reset(); ObjectID.Reset(); }
	void ResetWeakPtr() { WeakPtr.Reset(); }

	/** The object if it is in memory (and not marked as garbage); never loads. */
	UObject* Get() const;
	/** The object, loading its package when it is not in memory. */
	UObject* LoadSynchronous() const;

	const FSoftObjectPath& GetUniqueID() const { return ObjectID; }
	const FSoftObjectPath& ToSoftObjectPath() const { return ObjectID; }
	FString ToString() const { return ObjectID.ToString(); }
	FString GetLongPackageName() const { return ObjectID.GetLongPackageName(); }
	FName GetLongPackageFName() const { return ObjectID.GetLongPackageFName(); }
	FString GetAssetName() const { return ObjectID.GetAssetName(); }

	bool IsValid() const { return Get() != nullptr; }
	/** A path is set but the object is not in memory. */
	bool IsPending() const { return Get() == nullptr && !IsNull(); }
	bool IsNull() const { return !ObjectID.IsValid(); }
	bool IsStale() const { return WeakPtr.IsStale(); }

	bool operator==(const FSoftObjectPtr& Other) const { return ObjectID == Other.ObjectID; }
	bool operator!=(const FSoftObjectPtr& Other) const { return !(*this == Other); }

	friend uint32 GetTypeHash(const FSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.ObjectID); }

private:
	mutable FWeakObjectPtr WeakPtr;
	FSoftObjectPath ObjectID;
};

/** A soft reference to an asset of type T; T must be a UObject class. */
template<typename T = UObject>
struct TSoftObjectPtr
{
	template<class> friend struct TSoftObjectPtr;

public:
	using ElementType = T;

	TSoftObjectPtr() = default;
	TSoftObjectPtr(const TSoftObjectPtr&) = default;
	TSoftObjectPtr(TSoftObjectPtr&&) = default;
	TSoftObjectPtr& operator=(const TSoftObjectPtr&) = default;
	TSoftObjectPtr& operator=(TSoftObjectPtr&&) = default;
	TSoftObjectPtr(TYPE_OF_NULLPTR) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const TSoftObjectPtr<U>& Other) : SoftObjectPtr(Other.SoftObjectPtr) {}

	template<class U> requires std::is_convertible_v<const U*, const T*>
	TSoftObjectPtr(const U* Object) : SoftObjectPtr(static_cast<const UObject*>(static_cast<const T*>(Object))) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const TObjectPtr<U>& Object) : SoftObjectPtr(static_cast<const UObject*>(static_cast<const T*>(Object.Get()))) {}

	explicit TSoftObjectPtr(const FSoftObjectPath& ObjectPath) : SoftObjectPtr(ObjectPath) {}
	explicit TSoftObjectPtr(const FSoftObjectPtr& InSoftObjectPtr) : SoftObjectPtr(InSoftObjectPtr) {}

	void Reset() { SoftObjectPtr.Reset(); }
	void ResetWeakPtr() { SoftObjectPtr.ResetWeakPtr(); }

	TSoftObjectPtr& operator=(TYPE_OF_NULLPTR) { SoftObjectPtr = nullptr; return *this; }

	template<class U> requires std::is_convertible_v<const U*, const T*>
	TSoftObjectPtr& operator=(const U* Object)
	{
		SoftObjectPtr = static_cast<const UObject*>(static_cast<const T*>(Object));
		return *this;
	}

	template<class U> requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		SoftObjectPtr = static_cast<const UObject*>(static_cast<const T*>(Object.Get()));
		return *this;
	}

	template<class U> requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr& operator=(const TSoftObjectPtr<U>& Other)
	{
		SoftObjectPtr = Other.SoftObjectPtr;
		return *this;
	}

	TSoftObjectPtr& operator=(const FSoftObjectPath& ObjectPath)
	{
		SoftObjectPtr = ObjectPath;
		return *this;
	}

	/** The object if it is in memory and is a T; never loads. */
	T* Get() const { return static_cast<T*>(UE::CoreUObject::StandIn::FilterObjectByClass(SoftObjectPtr.Get(), T::StaticClass())); }
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }

	/** The object, loading it when it is not in memory; null when it cannot be loaded or is not a T. */
	T* LoadSynchronous() const
	{
		return static_cast<T*>(UE::CoreUObject::StandIn::FilterObjectByClass(SoftObjectPtr.LoadSynchronous(), T::StaticClass()));
	}

	bool IsValid() const { return Get() != nullptr; }
	explicit operator bool() const { return IsValid(); }
	bool IsPending() const { return SoftObjectPtr.IsPending(); }
	bool IsNull() const { return SoftObjectPtr.IsNull(); }
	bool IsStale() const { return SoftObjectPtr.IsStale(); }

	const FSoftObjectPath& GetUniqueID() const { return SoftObjectPtr.GetUniqueID(); }
	const FSoftObjectPath& ToSoftObjectPath() const { return SoftObjectPtr.ToSoftObjectPath(); }
	FString ToString() const { return SoftObjectPtr.ToString(); }
	FString GetLongPackageName() const { return SoftObjectPtr.GetLongPackageName(); }
	FName GetLongPackageFName() const { return SoftObjectPtr.GetLongPackageFName(); }
	FString GetAssetName() const { return SoftObjectPtr.GetAssetName(); }

	template<class U>
	bool operator==(const TSoftObjectPtr<U>& Other) const { return SoftObjectPtr == Other.SoftObjectPtr; }
	template<class U>
	bool operator!=(const TSoftObjectPtr<U>& Other) const { return !(*this == Other); }
	template<class U> requires std::is_convertible_v<U*, const T*>
	bool operator==(const U* Other) const { return SoftObjectPtr == FSoftObjectPtr(static_cast<const UObject*>(Other)); }
	template<class U> requires std::is_convertible_v<U*, const T*>
	bool operator!=(const U* Other) const { return !(*this == Other); }
	bool operator==(TYPE_OF_NULLPTR) const { return IsNull(); }
	bool operator!=(TYPE_OF_NULLPTR) const { return !IsNull(); }

	friend uint32 GetTypeHash(const TSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }

private:
	FSoftObjectPtr SoftObjectPtr;
};

static_assert(sizeof(TSoftObjectPtr<UObject>) == sizeof(FSoftObjectPtr), "TSoftObjectPtr has the layout of FSoftObjectPtr");

template<typename T>
TSoftObjectPtr<T> MakeSoftObjectPtr(T* Object)
{
	return TSoftObjectPtr<T>(Object);
}

/** A soft reference to a class that is T or derives from it. */
template<typename T = UObject>
class TSoftClassPtr
{
	template<class> friend class TSoftClassPtr;

public:
	using ElementType = T;

	TSoftClassPtr() = default;
	TSoftClassPtr(const TSoftClassPtr&) = default;
	TSoftClassPtr(TSoftClassPtr&&) = default;
	TSoftClassPtr& operator=(const TSoftClassPtr&) = default;
	TSoftClassPtr& operator=(TSoftClassPtr&&) = default;
	TSoftClassPtr(TYPE_OF_NULLPTR) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TSoftClassPtr(const TSoftClassPtr<U>& Other) : SoftObjectPtr(Other.SoftObjectPtr) {}

	TSoftClassPtr(const UClass* From) : SoftObjectPtr(reinterpret_cast<const UObject*>(From)) {}
	explicit TSoftClassPtr(const FSoftObjectPath& ObjectPath) : SoftObjectPtr(ObjectPath) {}

	void Reset() { SoftObjectPtr.Reset(); }
	void ResetWeakPtr() { SoftObjectPtr.ResetWeakPtr(); }

	TSoftClassPtr& operator=(TYPE_OF_NULLPTR) { SoftObjectPtr = nullptr; return *this; }
	TSoftClassPtr& operator=(const UClass* From)
	{
		SoftObjectPtr = reinterpret_cast<const UObject*>(From);
		return *this;
	}
	TSoftClassPtr& operator=(const FSoftObjectPath& ObjectPath)
	{
		SoftObjectPtr = ObjectPath;
		return *this;
	}

	/** The class if it is in memory and derives from T; never loads. */
	UClass* Get() const { return UE::CoreUObject::StandIn::FilterClassByBase(SoftObjectPtr.Get(), T::StaticClass()); }
	UClass& operator*() const { return *Get(); }
	UClass* operator->() const { return Get(); }

	/** The class, loading it when it is not in memory; null when it cannot be loaded or does not derive from T. */
	UClass* LoadSynchronous() const
	{
		return UE::CoreUObject::StandIn::FilterClassByBase(SoftObjectPtr.LoadSynchronous(), T::StaticClass());
	}

	bool IsValid() const { return Get() != nullptr; }
	explicit operator bool() const { return IsValid(); }
	bool IsPending() const { return SoftObjectPtr.IsPending(); }
	bool IsNull() const { return SoftObjectPtr.IsNull(); }
	bool IsStale() const { return SoftObjectPtr.IsStale(); }

	const FSoftObjectPath& GetUniqueID() const { return SoftObjectPtr.GetUniqueID(); }
	const FSoftObjectPath& ToSoftObjectPath() const { return SoftObjectPtr.ToSoftObjectPath(); }
	FString ToString() const { return SoftObjectPtr.ToString(); }
	FString GetLongPackageName() const { return SoftObjectPtr.GetLongPackageName(); }
	FName GetLongPackageFName() const { return SoftObjectPtr.GetLongPackageFName(); }
	FString GetAssetName() const { return SoftObjectPtr.GetAssetName(); }

	template<class U>
	bool operator==(const TSoftClassPtr<U>& Other) const { return SoftObjectPtr == Other.SoftObjectPtr; }
	template<class U>
	bool operator!=(const TSoftClassPtr<U>& Other) const { return !(*this == Other); }
	bool operator==(TYPE_OF_NULLPTR) const { return IsNull(); }
	bool operator!=(TYPE_OF_NULLPTR) const { return !IsNull(); }

	friend uint32 GetTypeHash(const TSoftClassPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }

private:
	FSoftObjectPtr SoftObjectPtr;
};

static_assert(sizeof(TSoftClassPtr<UObject>) == sizeof(FSoftObjectPtr), "TSoftClassPtr has the layout of FSoftObjectPtr");
