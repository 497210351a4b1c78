#pragma once

#include <type_traits>

template <typename T>
struct TIsEnum
{
	enum { Value = std::is_enum_v<T> };
};
