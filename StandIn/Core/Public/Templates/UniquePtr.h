// TUniquePtr / MakeUnique.
#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

template <typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TDefaultDelete(const TDefaultDelete<U>&) {}
	void operator()(T* Ptr) const { delete Ptr; }
};

template <typename T>
struct TDefaultDelete<T[]>
{
	void operator()(T* Ptr) const { delete[] Ptr; }
};

template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template <typename OtherT, typename OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = T;

	TUniquePtr() = default;
	TUniquePtr(TYPE_OF_NULLPTR) {}
	explicit TUniquePtr(T* InPtr) : Ptr(InPtr) {}
	TUniquePtr(T* InPtr, const Deleter& InDeleter) : Deleter(InDeleter), Ptr(InPtr) {}

	TUniquePtr(TUniquePtr&& Other) : Deleter(MoveTemp(Other.GetDeleter())), Ptr(Other.Ptr) { Other.Ptr = nullptr; }

	template <typename OtherT, typename OtherDeleter, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other) : Deleter(MoveTemp(Other.GetDeleter())), Ptr(Other.Ptr)
	{
		Other.Ptr = nullptr;
	}

	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}

	template <typename OtherT, typename OtherDeleter, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TUniquePtr& operator=(TUniquePtr<OtherT, OtherDeleter>&& Other)
	{
		Reset(Other.Release());
		return *this;
	}

	TUniquePtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	~TUniquePtr() { Reset(); }

	FORCEINLINE bool IsValid() const { return Ptr != nullptr; }
	FORCEINLINE explicit operator bool() const { return Ptr != nullptr; }
	FORCEINLINE bool operator!() const { return Ptr == nullptr; }
	FORCEINLINE T* operator->() const { return Ptr; }
	FORCEINLINE T& operator*() const { return *Ptr; }
	FORCEINLINE T* Get() const { return Ptr; }

	T* Release()
	{
		T* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}

	void Reset(T* InPtr = nullptr)
	{
		if (Ptr != InPtr)
		{
			T* OldPtr = Ptr;
			Ptr = InPtr;
			if (OldPtr)
			{
				GetDeleter()(OldPtr);
			}
		}
	}

	Deleter& GetDeleter() { return static_cast<Deleter&>(*this); }
	const Deleter& GetDeleter() const { return static_cast<const Deleter&>(*this); }

	friend bool operator==(const TUniquePtr& Lhs, const TUniquePtr& Rhs) { return Lhs.Ptr == Rhs.Ptr; }
	friend bool operator==(const TUniquePtr& Lhs, TYPE_OF_NULLPTR) { return Lhs.Ptr == nullptr; }

private:
	T* Ptr = nullptr;
};

template <typename T, typename Deleter>
class TUniquePtr<T[], Deleter> : private Deleter
{
public:
	TUniquePtr() = default;
	explicit TUniquePtr(T* InPtr) : Ptr(InPtr) {}
	TUniquePtr(TUniquePtr&& Other) : Ptr(Other.Ptr) { Other.Ptr = nullptr; }
	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Ptr);
			Other.Ptr = nullptr;
		}
		return *this;
	}

	~TUniquePtr() { Reset(); }

	FORCEINLINE bool IsValid() const { return Ptr != nullptr; }
	FORCEINLINE explicit operator bool() const { return Ptr != nullptr; }
	FORCEINLINE T& operator[](SIZE_T Index) const { return Ptr[Index]; }
	FORCEINLINE T* Get() const { return Ptr; }

	T* Release()
	{
		T* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}

	void Reset(T* InPtr = nullptr)
	{
		if (Ptr != InPtr)
		{
			T* OldPtr = Ptr;
			Ptr = InPtr;
			if (OldPtr)
			{
				static_cast<Deleter&>(*this)(OldPtr);
			}
		}
	}

private:
	T* Ptr = nullptr;
};

template <typename T, typename... ArgTypes>
FORCEINLINE std::enable_if_t<!std::is_array_v<T>, TUniquePtr<T>> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}

template <typename T>
FORCEINLINE std::enable_if_t<std::is_unbounded_array_v<T>, TUniquePtr<T>> MakeUnique(SIZE_T Size)
{
	using ElementType = std::remove_extent_t<T>;
	return TUniquePtr<T>(new ElementType[Size]());
}
