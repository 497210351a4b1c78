#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Logging/LogMacros.h"
#include "VLMRBindings.h"

DEFINE_LOG_CATEGORY_STATIC(LogVLMRAutomationTests, Log, All);

namespace VLMR::MovieRenderGraphTests
{
	// Every script runs in a protected call, so a panic means the state itself failed: report it the engine's way.
	static int HandleLuaPanic(lua_State* L)
	{
		const char* Message = lua_tostring(L, -1);
		UE_LOG(LogVLMRAutomationTests, Fatal, TEXT("Unprotected error in an automation test's Lua state: %s"),
			Message ? UTF8_TO_TCHAR(Message) : TEXT("(error object is not a string)"));
		return 0;
	}

	static void OpenStandardLibraries(lua_State* L)
	{
		static const luaL_Reg Libraries[] = {
			{ LUA_GNAME, luaopen_base },
			{ LUA_LOADLIBNAME, luaopen_package },
			{ LUA_COLIBNAME, luaopen_coroutine },
			{ LUA_STRLIBNAME, luaopen_string },
			{ LUA_TABLIBNAME, luaopen_table },
			{ LUA_MATHLIBNAME, luaopen_math },
			{ LUA_DBLIBNAME, luaopen_debug },
			{ LUA_UTF8LIBNAME, luaopen_utf8 },
		};
		for (const luaL_Reg& Library : Libraries)
		{
			luaL_requiref(L, Library.name, Library.func, 1);
			lua_pop(L, 1);
		}
	}

	// The error object on top of the stack as text (through __tostring when it has one), popped.
	static FString PopErrorMessage(lua_State* L)
	{
		const char* Message = luaL_tolstring(L, -1, nullptr);
		const FString Text = Message ? FString(UTF8_TO_TCHAR(Message)) : FString();
		lua_pop(L, 2);
		return Text;
	}

	FScriptEnvironment::FScriptEnvironment()
		: Lua(&HandleLuaPanic)
	{
		OpenStandardLibraries(Lua.lua_state());
		BindMovieRenderQueue(Lua, Session);
		BindMovieRenderGraphGlobals(Lua, Session);
	}

	void FScriptEnvironment::SetGlobal(const char* Name, const FString& Value)
	{
		const FTCHARToUTF8 Text(*Value);
		lua_pushlstring(Lua.lua_state(), reinterpret_cast<const char*>(Text.Get()), Text.Length());
		lua_setglobal(Lua.lua_state(), Name);
	}

	bool FScriptEnvironment::Run(FAutomationTestBase& Test, const TCHAR* Label, const char* Script)
	{
		lua_State* L = Lua.lua_state();
		const FTCHARToUTF8 ChunkName(*(FString(TEXT("=")) + Label));
		int Status = luaL_loadbufferx(L, Script, FCStringAnsi::Strlen(Script), reinterpret_cast<const char*>(ChunkName.Get()), "t");
		if (Status == LUA_OK)
		{
			Status = lua_pcall(L, 0, 0, 0);
		}
		if (Status != LUA_OK)
		{
			Test.AddError(FString::Printf(TEXT("%s: %s"), Label, *PopErrorMessage(L)));
			return false;
		}
		return true;
	}
}

#endif
