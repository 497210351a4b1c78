// TValueOrError: either a value or an error, made from MakeValue(...) or MakeError(...).
#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

#include <tuple>
#include <utility>
#include <variant>

template<typename... ArgTypes>
struct TValueOrError_ValueProxy
{
	std::tuple<ArgTypes&&...> Args;
};

template<typename... ArgTypes>
struct TValueOrError_ErrorProxy
{
	std::tuple<ArgTypes&&...> Args;
};

// The arguments are forwarded to the constructor of the value or error type of the TValueOrError they become.
template<typename... ArgTypes>
[[nodiscard]] inline TValueOrError_ValueProxy<ArgTypes...> MakeValue(ArgTypes&&... Args)
{
	return TValueOrError_ValueProxy<ArgTypes...>{ std::forward_as_tuple(std::forward<ArgTypes>(Args)...) };
}

template<typename... ArgTypes>
[[nodiscard]] inline TValueOrError_ErrorProxy<ArgTypes...> MakeError(ArgTypes&&... Args)
{
	return TValueOrError_ErrorProxy<ArgTypes...>{ std::forward_as_tuple(std::forward<ArgTypes>(Args)...) };
}

template<typename ValueType, typename ErrorType>
class TValueOrError
{
	struct FValueTag {};
	using FValueSlot = std::conditional_t<std::is_void_v<ValueType>, FValueTag, ValueType>;

public:
	template<typename... ArgTypes>
	TValueOrError(TValueOrError_ValueProxy<ArgTypes...>&& Proxy)
		: Storage(std::in_place_index<0>, std::make_from_tuple<FValueSlot>(std::move(Proxy.Args)))
	{
	}

	template<typename... ArgTypes>
	TValueOrError(TValueOrError_ErrorProxy<ArgTypes...>&& Proxy)
		: Storage(std::in_place_index<1>, std::make_from_tuple<ErrorType>(std::move(Proxy.Args)))
	{
	}

	bool HasValue() const { return Storage.index() == 0; }
	bool HasError() const { return Storage.index() == 1; }

	template<typename T = ValueType> requires (!std::is_void_v<T>)
	T& GetValue()
	{
		checkf(HasValue(), TEXT("It is an error to call GetValue() on a TValueOrError that has no value."));
		return *std::get_if<0>(&Storage);
	}
	template<typename T = ValueType> requires (!std::is_void_v<T>)
	const T& GetValue() const
	{
		checkf(HasValue(), TEXT("It is an error to call GetValue() on a TValueOrError that has no value."));
		return *std::get_if<0>(&Storage);
	}
	template<typename T = ValueType> requires (!std::is_void_v<T>)
	T StealValue()
	{
		return std::move(GetValue());
	}
	template<typename T = ValueType> requires (!std::is_void_v<T>)
	T* TryGetValue() { return std::get_if<0>(&Storage); }
	template<typename T = ValueType> requires (!std::is_void_v<T>)
	const T* TryGetValue() const { return std::get_if<0>(&Storage); }

	ErrorType& GetError()
	{
		checkf(HasError(), TEXT("It is an error to call GetError() on a TValueOrError that has no error."));
		return *std::get_if<1>(&Storage);
	}
	const ErrorType& GetError() const
	{
		checkf(HasError(), TEXT("It is an error to call GetError() on a TValueOrError that has no error."));
		return *std::get_if<1>(&Storage);
	}
	ErrorType StealError() { return std::move(GetError()); }
	ErrorType* TryGetError() { return std::get_if<1>(&Storage); }
	const ErrorType* TryGetError() const { return std::get_if<1>(&Storage); }

private:
	std::variant<FValueSlot, ErrorType> Storage;
};
