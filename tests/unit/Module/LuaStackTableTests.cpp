// Result tables built on the Lua stack: nested rows land where they belong, the stack is left as found, and engine
// text reaches Lua as the same UTF-8 whatever its length or characters.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "VLMRLuaStackTable.h"
#include "VLMRScriptArguments.h"

namespace
{
	class LuaStackTableTest : public ::testing::Test
	{
	protected:
		LuaStackTableTest() { Lua.open_libraries(sol::lib::base); }

		sol::state Lua;

		std::string Pushed(const FString& Text)
		{
			VLMR::PushText(Lua.lua_state(), Text);
			return sol::stack::pop<std::string>(Lua.lua_state());
		}
	};
}

TEST_F(LuaStackTableTest, NestedRowsLandUnderTheirKeysAndIndexesAndTheStackIsLeftAsFound)
{
	lua_State* L = Lua.lua_state();
	lua_pushliteral(L, "below");
	const int Top = lua_gettop(L);
	sol::table Result;
	{
		VLMR::FLuaStackTable Outer(L, 0, 2);
		VLMR::FLuaStackTable Rows(L, 2, 0);
		for (int64 Index = 1; Index <= 2; ++Index)
		{
			VLMR::FLuaStackTable Row(L, 0, 3);
			Row.SetInteger("index", Index);
			Row.SetText("name", FString::Printf(TEXT("Row%lld"), Index));
			Row.SetBool("is_first", Index == 1);
			Rows.SetTable(Index, Row);
		}
		Outer.SetTable("rows", Rows);
		Outer.SetInteger("count", 2);
		Result = Outer.Release();
	}
	EXPECT_EQ(lua_gettop(L), Top);
	EXPECT_STREQ(lua_tostring(L, -1), "below");

	Lua["result"] = Result;
	EXPECT_TRUE(Lua.safe_script(R"(
		assert(result.count == 2 and #result.rows == 2)
		assert(result.rows[1].index == 1 and result.rows[1].name == "Row1" and result.rows[1].is_first == true)
		assert(result.rows[2].index == 2 and result.rows[2].name == "Row2" and result.rows[2].is_first == false)
	)", sol::script_pass_on_error).valid());
}

TEST_F(LuaStackTableTest, WritesIntoAnExistingTableAndUnfinishedTablesArePopped)
{
	lua_State* L = Lua.lua_state();
	const int Top = lua_gettop(L);
	sol::table Existing = Lua.create_table_with("kept", 1);
	{
		VLMR::FLuaStackTable Table(Existing);
		Table.SetText("added", TEXT("yes"));
		VLMR::FLuaStackTable Abandoned(L, 0, 1);
		Abandoned.SetBool("unused", true);
	}
	EXPECT_EQ(lua_gettop(L), Top);
	EXPECT_EQ(Existing.get<int>("kept"), 1);
	EXPECT_EQ(Existing.get<std::string>("added"), "yes");
}

TEST_F(LuaStackTableTest, TextIsPushedAsItsUtf8)
{
	EXPECT_EQ(Pushed(FString()), "");
	EXPECT_EQ(Pushed(TEXT("/Game/Seq/Shot010.Shot010")), "/Game/Seq/Shot010.Shot010");
	EXPECT_EQ(Pushed(TEXT("Caf\u00e9 \u65e5\u672c")), "Caf\xc3\xa9 \xe6\x97\xa5\xe6\x9c\xac");

	const FString LongAscii = FString::ChrN(300, TEXT('a'));
	EXPECT_EQ(Pushed(LongAscii), std::string(300, 'a'));
	const FString LongWithAccent = FString::ChrN(299, TEXT('b')) + TEXT("\u00e9");
	EXPECT_EQ(Pushed(LongWithAccent), std::string(299, 'b') + "\xc3\xa9");
	EXPECT_EQ(Pushed(FString::ChrN(256, TEXT('c'))), std::string(256, 'c'));
}

TEST_F(LuaStackTableTest, TextKeysAreSetAsUtf8)
{
	VLMR::FLuaStackTable Table(Lua.lua_state(), 0, 2);
	Table.SetText(TEXT("frame_number"), TEXT("0007"));
	Table.SetText(TEXT("caf\u00e9"), TEXT("\u00e9t\u00e9"));
	const sol::table Map = Table.Release();
	EXPECT_EQ(Map.get<std::string>("frame_number"), "0007");
	EXPECT_EQ(Map.get<std::string>("caf\xc3\xa9"), "\xc3\xa9t\xc3\xa9");
}
