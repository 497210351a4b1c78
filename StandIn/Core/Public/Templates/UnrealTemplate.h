// MoveTemp, Forward, Swap and the other basic templates.
#pragma once

#include "HAL/Platform.h"
#include "Templates/UnrealTypeTraits.h"
#include "Templates/TypeCompatibleBytes.h"

#include <type_traits>
#include <utility>

template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Obj)
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on an rvalue");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp called on a const object");
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

template <typename T>
constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Obj)
{
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
T CopyTemp(const T& Val)
{
	return Val;
}

template <typename T>
constexpr const T& AsConst(T& Ref)
{
	return Ref;
}

template <typename T>
inline void Swap(T& A, T& B)
{
	T Temp(MoveTemp(A));
	A = MoveTemp(B);
	B = MoveTemp(Temp);
}

template <typename T>
inline void Exchange(T& A, T& B)
{
	Swap(A, B);
}

template <typename T, typename U = T>
inline T Exchange(T& Obj, U&& NewValue)
{
	T OldValue(MoveTemp(Obj));
	Obj = Forward<U>(NewValue);
	return OldValue;
}

template <typename T>
constexpr T Align(T Val, uint64 Alignment)
{
	return (T)(((uint64)Val + Alignment - 1) & ~(Alignment - 1));
}

template <typename T>
constexpr bool IsAligned(T Val, uint64 Alignment)
{
	return !((uint64)Val & (Alignment - 1));
}

/** Compares the pointees of pointers and the values themselves otherwise, as the engine's sort helpers do. */
template <typename T, typename PredicateType>
class TDereferenceWrapper
{
public:
	explicit TDereferenceWrapper(const PredicateType& InPredicate) : Predicate(InPredicate) {}
	bool operator()(const T& A, const T& B) const { return Predicate(A, B); }

private:
	const PredicateType& Predicate;
};

template <typename T, typename PredicateType>
class TDereferenceWrapper<T*, PredicateType>
{
public:
	explicit TDereferenceWrapper(const PredicateType& InPredicate) : Predicate(InPredicate) {}
	bool operator()(T* A, T* B) const { return Predicate(*A, *B); }

private:
	const PredicateType& Predicate;
};

template <typename T = void>
struct TLess
{
	bool operator()(const T& A, const T& B) const { return A < B; }
};

template <>
struct TLess<void>
{
	template <typename T, typename U>
	bool operator()(const T& A, const U& B) const { return A < B; }
};

template <typename T = void>
struct TGreater
{
	bool operator()(const T& A, const T& B) const { return B < A; }
};

template <>
struct TGreater<void>
{
	template <typename T, typename U>
	bool operator()(const T& A, const U& B) const { return B < A; }
};

/** Keeps a value and restores it when the scope ends. */
template <typename T>
class TGuardValue
{
public:
	TGuardValue(T& InReference, const T& InNewValue) : Reference(InReference), OldValue(InReference)
	{
		Reference = InNewValue;
	}
	~TGuardValue() { Reference = OldValue; }
	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

private:
	T& Reference;
	T OldValue;
};
