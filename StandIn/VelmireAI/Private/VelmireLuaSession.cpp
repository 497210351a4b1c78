#include "VelmireLuaSession.h"

#include "LuaHelp.h"
#include "VelmireAILog.h"
#include "VelmireExtensionRegistrar.h"

namespace
{
	// An error outside any protected call cannot be recovered from: report it and stop the editor the engine's way.
	int HandleLuaPanic(lua_State* L)
	{
		const char* Message = lua_tostring(L, -1);
		UE_LOG(LogVelmireAI, Fatal, TEXT("Unprotected error in a Lua session: %s"),
			Message ? UTF8_TO_TCHAR(Message) : TEXT("(error object is not a string)"));
		return 0;
	}

	// Message handler of the protected call: turns any error object into its text, as the standalone interpreter does.
	int ConvertErrorToText(lua_State* L)
	{
		if (lua_tostring(L, 1))
		{
			return 1;
		}
		if (luaL_callmeta(L, 1, "__tostring") && lua_type(L, -1) == LUA_TSTRING)
		{
			return 1;
		}
		lua_pushfstring(L, "(error object is a %s value)", luaL_typename(L, 1));
		return 1;
	}
}

FVelmireLuaSession::FVelmireLuaSession()
	: Lua(&HandleLuaPanic)
{
	Initialize();
}

FVelmireLuaSession::FVelmireLuaSession(FLuaSessionData::FLogSink LogSink)
	: Lua(&HandleLuaPanic)
{
	SessionData.SetLogSink(MoveTemp(LogSink));
	Initialize();
}

FVelmireLuaSession::~FVelmireLuaSession() = default;

void FVelmireLuaSession::Initialize()
{
	Lua.open_libraries(sol::lib::base, sol::lib::package, sol::lib::coroutine, sol::lib::string, sol::lib::table,
		sol::lib::math, sol::lib::debug, sol::lib::utf8, sol::lib::io, sol::lib::os);
	UE::VelmireAI::Private::InstallHelp(Lua.lua_state(), SessionData);
	FVelmireExtensionRegistrar::Get().InstallBindings(Lua, SessionData);
}

bool FVelmireLuaSession::RunString(const FString& Code, const FString& ChunkName, FString& OutError)
{
	const FTCHARToUTF8 CodeText(*Code);
	// Without a name Lua names the chunk after its text, as load() does.
	const FTCHARToUTF8 Name(ChunkName.IsEmpty() ? *Code : *(TEXT("=") + ChunkName));
	const int32 LoadStatus = luaL_loadbufferx(Lua.lua_state(), reinterpret_cast<const char*>(CodeText.Get()), CodeText.Length(),
		reinterpret_cast<const char*>(Name.Get()), "t");
	return CallLoadedChunk(LoadStatus, OutError);
}

bool FVelmireLuaSession::RunFile(const FString& Path, FString& OutError)
{
	const int32 LoadStatus = luaL_loadfilex(Lua.lua_state(), TCHAR_TO_UTF8(*Path), "t");
	return CallLoadedChunk(LoadStatus, OutError);
}

bool FVelmireLuaSession::CallLoadedChunk(int32 LoadStatus, FString& OutError)
{
	lua_State* L = Lua.lua_state();
	int32 Status = LoadStatus;
	if (Status == LUA_OK)
	{
		const int32 ChunkIndex = lua_gettop(L);
		lua_pushcfunction(L, &ConvertErrorToText);
		lua_insert(L, ChunkIndex);
		Status = lua_pcall(L, 0, 0, ChunkIndex);
		lua_remove(L, ChunkIndex);
	}
	if (Status != LUA_OK)
	{
		const char* Message = lua_tostring(L, -1);
		OutError = Message ? FString(UTF8_TO_TCHAR(Message)) : FString(TEXT("(error object is not a string)"));
		lua_pop(L, 1);
		return false;
	}
	return true;
}
