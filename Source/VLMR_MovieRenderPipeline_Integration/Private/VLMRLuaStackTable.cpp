#include "VLMRLuaStackTable.h"

#include "Containers/StringConv.h"

namespace VLMR
{
	// The table, and a key and a value being set into it.
	static constexpr int32 StackSlotsPerTable = 3;

	FLuaStackTable::FLuaStackTable(lua_State* InL, int32 ArrayCount, int32 FieldCount)
		: L(InL)
	{
		luaL_checkstack(L, StackSlotsPerTable, "result table");
		lua_createtable(L, ArrayCount, FieldCount);
		StackIndex = lua_gettop(L);
	}

	FLuaStackTable::FLuaStackTable(const sol::table& Existing)
		: L(Existing.lua_state())
	{
		luaL_checkstack(L, StackSlotsPerTable, "result table");
		Existing.push(L);
		StackIndex = lua_gettop(L);
	}

	FLuaStackTable::~FLuaStackTable()
	{
		if (bOnStack)
		{
			lua_remove(L, StackIndex);
		}
	}

	void FLuaStackTable::SetText(const char* Key, const FString& Text)
	{
		PushText(L, Text);
		lua_setfield(L, StackIndex, Key);
	}

	void FLuaStackTable::SetText(const FString& Key, const FString& Text)
	{
		PushText(L, Key);
		PushText(L, Text);
		lua_rawset(L, StackIndex);
	}

	void FLuaStackTable::SetBool(const char* Key, bool bValue)
	{
		lua_pushboolean(L, bValue);
		lua_setfield(L, StackIndex, Key);
	}

	void FLuaStackTable::SetInteger(const char* Key, int64 Value)
	{
		lua_pushinteger(L, static_cast<lua_Integer>(Value));
		lua_setfield(L, StackIndex, Key);
	}

	void FLuaStackTable::TakeFromTop(FLuaStackTable& Nested) const
	{
		check(Nested.bOnStack && Nested.StackIndex == lua_gettop(L) && Nested.StackIndex > StackIndex);
		Nested.bOnStack = false;
	}

	void FLuaStackTable::SetTable(const char* Key, FLuaStackTable& Nested)
	{
		TakeFromTop(Nested);
		lua_setfield(L, StackIndex, Key);
	}

	void FLuaStackTable::SetTable(int64 Index, FLuaStackTable& Nested)
	{
		TakeFromTop(Nested);
		lua_rawseti(L, StackIndex, static_cast<lua_Integer>(Index));
	}

	sol::table FLuaStackTable::Release()
	{
		check(bOnStack && StackIndex == lua_gettop(L));
		bOnStack = false;
		return sol::stack::pop<sol::table>(L);
	}

	// Short ASCII text (most paths and names) is its own UTF-8: copied through a stack buffer, it needs no conversion.
	static bool PushShortAsciiText(lua_State* L, const FString& Text)
	{
		ANSICHAR Buffer[256];
		const int32 Length = Text.Len();
		if (Length > static_cast<int32>(UE_ARRAY_COUNT(Buffer)))
		{
			return false;
		}
		const TCHAR* Characters = *Text;
		for (int32 Index = 0; Index < Length; ++Index)
		{
			if (Characters[Index] >= 0x80)
			{
				return false;
			}
			Buffer[Index] = static_cast<ANSICHAR>(Characters[Index]);
		}
		lua_pushlstring(L, Buffer, Length);
		return true;
	}

	void PushText(lua_State* L, const FString& Text)
	{
		if (!PushShortAsciiText(L, Text))
		{
			const FTCHARToUTF8 Converted(*Text, Text.Len());
			lua_pushlstring(L, reinterpret_cast<const char*>(Converted.Get()), Converted.Length());
		}
	}
}
