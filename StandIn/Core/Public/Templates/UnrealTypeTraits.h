// Type traits the engine's containers and templates use.
#pragma once

#include "HAL/Platform.h"

#include <type_traits>

template <typename T> struct TIsPointer { enum { Value = std::is_pointer_v<T> }; };
template <typename T> struct TIsArithmetic { enum { Value = std::is_arithmetic_v<T> }; };
template <typename T> struct TIsIntegral { enum { Value = std::is_integral_v<T> }; };
template <typename T> struct TIsFloatingPoint { enum { Value = std::is_floating_point_v<T> }; };
template <typename T> struct TIsPODType { enum { Value = std::is_trivial_v<T> && std::is_standard_layout_v<T> }; };
template <typename T> struct TIsTriviallyDestructible { enum { Value = std::is_trivially_destructible_v<T> }; };
template <typename T> struct TIsTriviallyCopyConstructible { enum { Value = std::is_trivially_copy_constructible_v<T> }; };
template <typename T> struct TIsTriviallyCopyAssignable { enum { Value = std::is_trivially_copy_assignable_v<T> }; };
template <typename T> struct TIsZeroConstructType { enum { Value = std::is_enum_v<T> || std::is_arithmetic_v<T> || std::is_pointer_v<T> }; };
template <typename A, typename B> struct TIsSame { enum { Value = std::is_same_v<A, B> }; };
template <typename From, typename To> struct TPointerIsConvertibleFromTo { enum { Value = std::is_convertible_v<From*, To*> }; };
template <typename Derived, typename Base> struct TIsDerivedFrom { enum { Value = std::is_base_of_v<Base, Derived> }; };
template <bool Predicate, typename Result = void> struct TEnableIf { typedef Result Type; };
template <typename Result> struct TEnableIf<false, Result> {};
template <bool bPredicate, typename TrueClass, typename FalseClass> struct TChooseClass { typedef std::conditional_t<bPredicate, TrueClass, FalseClass> Result; };
template <typename T> struct TRemoveReference { typedef std::remove_reference_t<T> Type; };
template <typename T> struct TRemovePointer { typedef std::remove_pointer_t<T> Type; };
template <typename T> struct TDecay { typedef std::decay_t<T> Type; };
template <typename T> struct TRemoveCV { typedef std::remove_cv_t<T> Type; };
template <typename T> using TRemoveReference_T = std::remove_reference_t<T>;

/** Whether values of T may be moved in memory with memcpy; every engine container relies on it. */
template <typename T> struct TIsBitwiseConstructible { enum { Value = std::is_trivially_copy_constructible_v<T> }; };

template <typename T> struct TCallTraits
{
	typedef std::conditional_t<std::is_arithmetic_v<T> || std::is_pointer_v<T> || std::is_enum_v<T>, const T, const T&> ParamType;
	typedef const T& ConstReference;
	typedef T& Reference;
	typedef const T* ConstPointerType;
	typedef ParamType ConstPointerType2;
};

template <typename T> struct TTypeTraits
{
	typedef typename TCallTraits<T>::ParamType ConstInitType;
	typedef typename TCallTraits<T>::ConstPointerType ConstPointerType;
};
