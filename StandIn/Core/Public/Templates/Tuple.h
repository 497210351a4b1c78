// TTuple / TPair / MakeTuple.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <tuple>
#include <type_traits>

/** A fixed list of values of possibly different types; Get<Index>() reads one. */
template <typename... Types>
struct TTuple
{
	TTuple() = default;

	template <typename... ArgTypes>
		requires(sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) > 0)
	explicit TTuple(ArgTypes&&... Args) : Values(Forward<ArgTypes>(Args)...)
	{
	}

	template <uint32 Index>
	auto& Get() { return std::get<Index>(Values); }

	template <uint32 Index>
	const auto& Get() const { return std::get<Index>(Values); }

	static constexpr uint32 Num() { return sizeof...(Types); }

	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return std::apply([&](const auto&... TupleValues) -> decltype(auto) { return Func(Forward<ArgTypes>(Args)..., TupleValues...); }, Values);
	}

	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const
	{
		return std::apply([&](const auto&... TupleValues) -> decltype(auto) { return Func(TupleValues..., Forward<ArgTypes>(Args)...); }, Values);
	}

	bool operator==(const TTuple& Other) const { return Values == Other.Values; }
	bool operator!=(const TTuple& Other) const { return Values != Other.Values; }
	bool operator<(const TTuple& Other) const { return Values < Other.Values; }

private:
	std::tuple<Types...> Values;
};

/** The two-element tuple is the engine's TPair: members Key and Value, in that order. */
template <typename KeyType, typename ValueType>
struct TTuple<KeyType, ValueType>
{
	KeyType Key;
	ValueType Value;

	TTuple() = default;

	template <typename KeyArgType, typename ValueArgType>
	TTuple(KeyArgType&& InKey, ValueArgType&& InValue) : Key(Forward<KeyArgType>(InKey)), Value(Forward<ValueArgType>(InValue))
	{
	}

	template <uint32 Index>
	auto& Get()
	{
		static_assert(Index < 2, "Tuple index out of range");
		if constexpr (Index == 0) { return Key; } else { return Value; }
	}

	template <uint32 Index>
	const auto& Get() const
	{
		static_assert(Index < 2, "Tuple index out of range");
		if constexpr (Index == 0) { return Key; } else { return Value; }
	}

	static constexpr uint32 Num() { return 2; }

	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Func(Forward<ArgTypes>(Args)..., Key, Value);
	}

	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Func(Key, Value, Forward<ArgTypes>(Args)...);
	}

	bool operator==(const TTuple& Other) const { return Key == Other.Key && Value == Other.Value; }
	bool operator!=(const TTuple& Other) const { return !(*this == Other); }
	bool operator<(const TTuple& Other) const { return Key < Other.Key || (!(Other.Key < Key) && Value < Other.Value); }
};

template <typename KeyType, typename ValueType>
FORCEINLINE uint32 GetTypeHash(const TTuple<KeyType, ValueType>& Pair)
{
	return HashCombine(GetTypeHash(Pair.Key), GetTypeHash(Pair.Value));
}

template <typename... Types>
FORCEINLINE TTuple<std::decay_t<Types>...> MakeTuple(Types&&... Args)
{
	return TTuple<std::decay_t<Types>...>(Forward<Types>(Args)...);
}

template <typename... Types>
FORCEINLINE TTuple<Types&...> Tie(Types&... Args)
{
	return TTuple<Types&...>(Args...);
}

template <typename TupleType>
struct TTupleArity;

template <typename... Types>
struct TTupleArity<TTuple<Types...>>
{
	static constexpr uint32 Value = sizeof...(Types);
};

/** Structured bindings: auto [A, B] = Tuple; */
template <uint32 Index, typename... Types>
FORCEINLINE decltype(auto) get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <uint32 Index, typename... Types>
FORCEINLINE decltype(auto) get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <uint32 Index, typename... Types>
FORCEINLINE decltype(auto) get(TTuple<Types...>&& Tuple)
{
	return MoveTemp(Tuple.template Get<Index>());
}

template <typename... Types>
struct std::tuple_size<TTuple<Types...>> : std::integral_constant<std::size_t, sizeof...(Types)>
{
};

template <std::size_t Index, typename... Types>
struct std::tuple_element<Index, TTuple<Types...>>
{
	using type = std::tuple_element_t<Index, std::tuple<Types...>>;
};
