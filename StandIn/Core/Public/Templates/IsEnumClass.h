#pragma once

#include <type_traits>

template <typename T>
struct TIsEnumClass
{
	enum { Value = std::is_enum_v<T> && !std::is_convertible_v<T, int> };
};
