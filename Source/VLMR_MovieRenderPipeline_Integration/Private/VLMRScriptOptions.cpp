#include "VLMRScriptOptions.h"

#include "VLMRScriptArguments.h"

#include <cmath>

namespace VLMR
{
	namespace
	{
		// Runs protected: reads field 2 of value 1, which may call a metamethod.
		int ReadField(lua_State* L)
		{
			lua_gettable(L, 1);
			return 1;
		}

		TOptional<FString> ReadPlainString(lua_State* L, int32 Index)
		{
			FString Text;
			FString Problem;
			const bool bPlain = lua_type(L, Index) == LUA_TSTRING && ReadTextAt(L, Index, Text, Problem);
			return bPlain ? TOptional<FString>(Text) : TOptional<FString>();
		}
	}

	TOptional<int64> ReadIntegralNumber(lua_State* L, int32 Index)
	{
		if (lua_type(L, Index) != LUA_TNUMBER)
		{
			return {};
		}
		if (lua_isinteger(L, Index))
		{
			return static_cast<int64>(lua_tointeger(L, Index));
		}
		const double Value = lua_tonumber(L, Index);
		// 2^63 is the first double past the int64 range; NaN fails both comparisons.
		const bool bInRange = Value >= -9223372036854775808.0 && Value < 9223372036854775808.0;
		if (!bInRange || std::trunc(Value) != Value)
		{
			return {};
		}
		return static_cast<int64>(Value);
	}

	FScriptOptions::FScriptOptions(const sol::object& InOptions)
		: Options(InOptions)
		, bTableLike(InOptions.get_type() == sol::type::table || InOptions.get_type() == sol::type::userdata)
	{
	}

	int32 FScriptOptions::PushField(const char* Key) const
	{
		lua_State* L = Options.lua_state();
		lua_pushcfunction(L, &ReadField);
		Options.push(L);
		lua_pushstring(L, Key);
		if (lua_pcall(L, 2, 1, 0) != LUA_OK)
		{
			lua_pop(L, 1);
			lua_pushnil(L);
		}
		return lua_type(L, -1);
	}

	TOptional<int64> FScriptOptions::GetInteger(const char* Key) const
	{
		if (!bTableLike)
		{
			return {};
		}
		lua_State* L = Options.lua_state();
		PushField(Key);
		const TOptional<int64> Value = ReadIntegralNumber(L, -1);
		lua_pop(L, 1);
		return Value;
	}

	TOptional<double> FScriptOptions::GetNumber(const char* Key) const
	{
		if (!bTableLike)
		{
			return {};
		}
		lua_State* L = Options.lua_state();
		TOptional<double> Value;
		if (PushField(Key) == LUA_TNUMBER)
		{
			Value = static_cast<double>(lua_tonumber(L, -1));
		}
		lua_pop(L, 1);
		return Value;
	}

	TOptional<bool> FScriptOptions::GetBool(const char* Key) const
	{
		if (!bTableLike)
		{
			return {};
		}
		lua_State* L = Options.lua_state();
		TOptional<bool> Value;
		if (PushField(Key) == LUA_TBOOLEAN)
		{
			Value = lua_toboolean(L, -1) != 0;
		}
		lua_pop(L, 1);
		return Value;
	}

	bool FScriptOptions::IsTruthy(const char* Key) const
	{
		if (!bTableLike)
		{
			return false;
		}
		lua_State* L = Options.lua_state();
		PushField(Key);
		const bool bTruthy = lua_toboolean(L, -1) != 0;
		lua_pop(L, 1);
		return bTruthy;
	}

	TOptional<FString> FScriptOptions::GetString(const char* Key) const
	{
		if (!bTableLike)
		{
			return {};
		}
		lua_State* L = Options.lua_state();
		PushField(Key);
		const TOptional<FString> Value = ReadPlainString(L, -1);
		lua_pop(L, 1);
		return Value;
	}

	TMap<FString, FString> FScriptOptions::GetStringPairs(const char* Key) const
	{
		if (!bTableLike)
		{
			return {};
		}
		lua_State* L = Options.lua_state();
		TMap<FString, FString> Pairs;
		if (PushField(Key) == LUA_TTABLE)
		{
			const int32 TableIndex = lua_gettop(L);
			lua_pushnil(L);
			while (lua_next(L, TableIndex) != 0)
			{
				// Keys are read without conversion, so that lua_next keeps its place.
				const TOptional<FString> Name = ReadPlainString(L, -2);
				const TOptional<FString> Value = ReadPlainString(L, -1);
				if (Name.IsSet() && Value.IsSet())
				{
					Pairs.Add(Name.GetValue(), Value.GetValue());
				}
				lua_pop(L, 1);
			}
		}
		lua_pop(L, 1);
		return Pairs;
	}
}
