// The argument types of script-facing functions: read whole from the Lua stack before a body runs, so that a value
// the engine cannot take is a Lua argument error, never a silently different value.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "VelmireLuaIncludes.h"

namespace VLMR
{
	// A Lua string as engine text. A string holding a NUL is refused: the engine would see only the part before it.
	struct FScriptText
	{
		FString Value;
	};

	// A required argument of type T whose refusal, like every refusal here, names the function it was meant for.
	template<class T>
	struct TScriptValue
	{
		T Value{};
	};

	using FScriptBool = TScriptValue<bool>;

	// An argument that may be left out or passed as nil; any other value must be of type T.
	template<class T>
	struct TOptionalArgument
	{
		TOptional<T> Value;

		T Get(const T& Default) const
		{
			return Value.IsSet() ? Value.GetValue() : Default;
		}
	};

	// Lua strings are UTF-8; engine strings are TCHAR.
	FString ToFString(const char* Utf8, int32 Length);
	FString ToFString(const std::string& Utf8);
	std::string ToUtf8(const FString& Text);

	// Why a Lua string cannot become engine text, or null when it can.
	const char* FindTextArgumentProblem(lua_State* L, int32 Index);

	// The Lua string at Index as engine text; false with the reason when it holds what engine text cannot.
	bool ReadTextAt(lua_State* L, int32 Index, FString& OutText, FString& OutProblem);

	// As ReadTextAt, for a string value held by the script.
	bool ReadTextValue(const sol::object& Value, FString& OutText, FString& OutProblem);

	// sol2 drops the function's name from an argument error that gives no reason, so every refusal gives one.
	template<class THandler>
	struct TReasonedHandler
	{
		THandler& Handler;

		int operator()(lua_State* L, int Index, sol::type Expected, sol::type Actual, sol::string_view Reason) const
		{
			return Handler(L, Index, Expected, Actual, Reason.empty() ? sol::string_view("wrong type") : Reason);
		}
	};

	template<class T, class THandler>
	bool CheckArgument(lua_State* L, int Index, THandler& Handler, sol::stack::record& Tracking)
	{
		return sol::stack::check<T>(L, Index, TReasonedHandler<THandler>{ Handler }, Tracking);
	}

	template<class THandler>
	bool sol_lua_check(sol::types<FScriptText>, lua_State* L, int Index, THandler&& Handler, sol::stack::record& Tracking)
	{
		Tracking.use(1);
		const sol::type Actual = sol::type_of(L, Index);
		if (Actual != sol::type::string)
		{
			Handler(L, Index, sol::type::string, Actual, "not a string");
			return false;
		}
		if (const char* Problem = FindTextArgumentProblem(L, Index))
		{
			Handler(L, Index, sol::type::string, Actual, Problem);
			return false;
		}
		return true;
	}

	FScriptText sol_lua_get(sol::types<FScriptText>, lua_State* L, int Index, sol::stack::record& Tracking);

	template<class T, class THandler>
	bool sol_lua_check(sol::types<TScriptValue<T>>, lua_State* L, int Index, THandler&& Handler, sol::stack::record& Tracking)
	{
		return CheckArgument<T>(L, Index, Handler, Tracking);
	}

	template<class T>
	TScriptValue<T> sol_lua_get(sol::types<TScriptValue<T>>, lua_State* L, int Index, sol::stack::record& Tracking)
	{
		return TScriptValue<T>{ sol::stack::get<T>(L, Index, Tracking) };
	}

	template<class T, class THandler>
	bool sol_lua_check(sol::types<TOptionalArgument<T>>, lua_State* L, int Index, THandler&& Handler, sol::stack::record& Tracking)
	{
		if (lua_isnoneornil(L, Index))
		{
			Tracking.use(1);
			return true;
		}
		return CheckArgument<T>(L, Index, Handler, Tracking);
	}

	template<class T>
	TOptionalArgument<T> sol_lua_get(sol::types<TOptionalArgument<T>>, lua_State* L, int Index, sol::stack::record& Tracking)
	{
		TOptionalArgument<T> Argument;
		if (lua_isnoneornil(L, Index))
		{
			Tracking.use(1);
			return Argument;
		}
		Argument.Value = sol::stack::get<T>(L, Index, Tracking);
		return Argument;
	}
}
