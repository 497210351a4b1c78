// TWeakObjectPtr<T>, and the UObject bindings of delegates (CreateUObject, AddUObject, CreateWeakLambda ...).
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

class UObject;
template<typename T> class TObjectPtr;

template<class T = UObject, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr;

/** A weak reference to an object of T: null once the object is destroyed or marked as garbage. */
template<class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr : private TWeakObjectPtrBase
{
	template<class, class> friend struct TWeakObjectPtr;

public:
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(const TWeakObjectPtr&) = default;
	TWeakObjectPtr& operator=(const TWeakObjectPtr&) = default;
	TWeakObjectPtr(TYPE_OF_NULLPTR) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(U* Object) : TWeakObjectPtrBase(static_cast<const UObject*>(static_cast<T*>(Object))) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(const TObjectPtr<U>& Object) : TWeakObjectPtrBase(static_cast<const UObject*>(static_cast<T*>(Object.Get()))) {}

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(const TWeakObjectPtr<U, TWeakObjectPtrBase>& Other) : TWeakObjectPtrBase(static_cast<const TWeakObjectPtrBase&>(Other)) {}

	void Reset() { TWeakObjectPtrBase::Reset(); }

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr& operator=(U* Object)
	{
		TWeakObjectPtrBase::operator=(static_cast<const UObject*>(static_cast<T*>(Object)));
		return *this;
	}

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		TWeakObjectPtrBase::operator=(static_cast<const UObject*>(static_cast<T*>(Object.Get())));
		return *this;
	}

	template<class U> requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr& operator=(const TWeakObjectPtr<U, TWeakObjectPtrBase>& Other)
	{
		TWeakObjectPtrBase::operator=(static_cast<const TWeakObjectPtrBase&>(Other));
		return *this;
	}

	TWeakObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	T* Get(bool bEvenIfGarbage) const { return static_cast<T*>(TWeakObjectPtrBase::Get(bEvenIfGarbage)); }
	T* Get() const { return static_cast<T*>(TWeakObjectPtrBase::Get()); }
	T* GetEvenIfUnreachable() const { return static_cast<T*>(TWeakObjectPtrBase::GetEvenIfUnreachable()); }
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }

	bool IsValid(bool bEvenIfGarbage, bool bThreadsafeTest = false) const { return TWeakObjectPtrBase::IsValid(bEvenIfGarbage, bThreadsafeTest); }
	bool IsValid() const { return TWeakObjectPtrBase::IsValid(); }
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const { return TWeakObjectPtrBase::IsStale(bIncludingGarbage, bThreadsafeTest); }
	bool IsExplicitlyNull() const { return TWeakObjectPtrBase::IsExplicitlyNull(); }
	explicit operator bool() const { return TWeakObjectPtrBase::IsValid(); }

	bool HasSameIndexAndSerialNumber(const TWeakObjectPtr& Other) const
	{
		return TWeakObjectPtrBase::HasSameIndexAndSerialNumber(static_cast<const TWeakObjectPtrBase&>(Other));
	}

	friend uint32 GetTypeHash(const TWeakObjectPtr& WeakObjectPtr)
	{
		return GetTypeHash(static_cast<const TWeakObjectPtrBase&>(WeakObjectPtr));
	}

	template<class U>
	bool operator==(const TWeakObjectPtr<U, TWeakObjectPtrBase>& Other) const
	{
		return static_cast<const TWeakObjectPtrBase&>(*this) == static_cast<const TWeakObjectPtrBase&>(Other);
	}
	template<class U>
	bool operator!=(const TWeakObjectPtr<U, TWeakObjectPtrBase>& Other) const { return !(*this == Other); }

	template<class U> requires std::is_convertible_v<U*, const T*> || std::is_convertible_v<T*, const U*>
	bool operator==(const U* Other) const
	{
		return static_cast<const TWeakObjectPtrBase&>(*this) == TWeakObjectPtrBase(static_cast<const UObject*>(Other));
	}
	template<class U> requires std::is_convertible_v<U*, const T*> || std::is_convertible_v<T*, const U*>
	bool operator!=(const U* Other) const { return !(*this == Other); }

	bool operator==(TYPE_OF_NULLPTR) const { return !IsValid(); }
	bool operator!=(TYPE_OF_NULLPTR) const { return IsValid(); }
};

template<class T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Object)
{
	return TWeakObjectPtr<T>(Object);
}

/** Binding of a delegate to a UObject: the delegate stops being bound once the object is destroyed or marked as garbage. */
template<typename UserClass>
struct TDelegateUObjectBinding
{
	explicit TDelegateUObjectBinding(UserClass* InObject)
		: Object(const_cast<std::remove_const_t<UserClass>*>(InObject))
		, RawObject(static_cast<const UObject*>(InObject))
	{
	}

	bool IsAlive() const { return Object.IsValid(); }
	const void* GetObject() const { return RawObject; }
	UObject* GetUObject() const { return const_cast<UObject*>(static_cast<const UObject*>(Object.Get())); }
	UserClass* Get() const { return Object.Get(); }

private:
	TWeakObjectPtr<std::remove_const_t<UserClass>> Object;
	const UObject* RawObject;
};

/** Binding of a lambda to a UObject (CreateWeakLambda): same lifetime rule. */
template<typename UserClass>
struct TDelegateWeakObjectBinding : TDelegateUObjectBinding<UserClass>
{
	using TDelegateUObjectBinding<UserClass>::TDelegateUObjectBinding;
};
