#pragma once

#include "HAL/Platform.h"

#include <initializer_list>

template <typename T>
struct TIsContiguousContainer
{
	enum { Value = false };
};

template <typename T> struct TIsContiguousContainer<T&> : TIsContiguousContainer<T> {};
template <typename T> struct TIsContiguousContainer<const T> : TIsContiguousContainer<T> {};
template <typename T, SIZE_T N> struct TIsContiguousContainer<T[N]> { enum { Value = true }; };
template <typename T> struct TIsContiguousContainer<std::initializer_list<T>> { enum { Value = true }; };
