// A result table built on the Lua stack: pre-sized, written under literal keys, and referenced only once it is
// complete. Listings with a row per job build their rows this way: a registry reference per row and per field
// would cost more than the row itself.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

namespace VLMR
{
	class FLuaStackTable
	{
	public:
		// Pushes a new table sized for ArrayCount elements and FieldCount named fields.
		FLuaStackTable(lua_State* InL, int32 ArrayCount, int32 FieldCount);

		// Pushes the table the reference holds, to write more fields into it.
		explicit FLuaStackTable(const sol::table& Existing);

		// Pops the table unless it was released or moved into another table.
		~FLuaStackTable();

		FLuaStackTable(const FLuaStackTable&) = delete;
		FLuaStackTable& operator=(const FLuaStackTable&) = delete;

		lua_State* GetState() const { return L; }

		void SetText(const char* Key, const FString& Text);
		// Text under a key that is engine text too.
		void SetText(const FString& Key, const FString& Text);
		void SetBool(const char* Key, bool bValue);
		void SetInteger(const char* Key, int64 Value);

		// Moves a finished table, the one on top of the stack, into this one under Key or at a 1-based index.
		void SetTable(const char* Key, FLuaStackTable& Nested);
		void SetTable(int64 Index, FLuaStackTable& Nested);

		// Pops the table into a reference for the caller.
		sol::table Release();

	private:
		void TakeFromTop(FLuaStackTable& Nested) const;

		lua_State* L;
		int32 StackIndex;
		bool bOnStack = true;
	};

	// Pushes engine text as a Lua string, converted to UTF-8 without a std::string in between.
	void PushText(lua_State* L, const FString& Text);
}
