#include "SequenceShotOptions.h"

namespace UE::Vlmr
{
	namespace
	{
		constexpr lua_Integer MaxFrameMagnitude = 1000000;

		// Pushes opts.shots and returns its length; 0 (and nil pushed) when absent.
		lua_Integer PushShots(lua_State* L, int OptionsIndex)
		{
			if (lua_isnoneornil(L, OptionsIndex))
			{
				lua_pushnil(L);
				return 0;
			}
			lua_getfield(L, OptionsIndex, "shots");
			return lua_istable(L, -1) ? lua_Integer(lua_rawlen(L, -1)) : 0;
		}

		void CheckStringField(lua_State* L, lua_Integer ShotIndex, const char* Field, bool bRequired)
		{
			lua_getfield(L, -1, Field);
			const int Type = lua_type(L, -1);
			if (Type != LUA_TSTRING && (bRequired || Type != LUA_TNIL))
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots[%d].%s must be a string", int(ShotIndex), Field);
			}
			lua_pop(L, 1);
		}

		// Returns whether the field is present; its value, when present, is left in OutValue.
		bool CheckFrameField(lua_State* L, lua_Integer ShotIndex, const char* Field, bool bRequired, lua_Integer& OutValue)
		{
			lua_getfield(L, -1, Field);
			const bool bPresent = !lua_isnil(L, -1);
			if ((bPresent || bRequired) && !lua_isinteger(L, -1))
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots[%d].%s must be an integer", int(ShotIndex), Field);
			}
			OutValue = bPresent ? lua_tointeger(L, -1) : 0;
			if (OutValue < -MaxFrameMagnitude || OutValue > MaxFrameMagnitude)
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots[%d].%s must lie within +-1000000", int(ShotIndex), Field);
			}
			lua_pop(L, 1);
			return bPresent;
		}

		void CheckShot(lua_State* L, lua_Integer ShotIndex)
		{
			if (!lua_istable(L, -1))
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots[%d] must be a table", int(ShotIndex));
			}
			CheckStringField(L, ShotIndex, "name", true);
			CheckStringField(L, ShotIndex, "camera", false);
			lua_Integer Start = 0;
			lua_Integer End = 0;
			CheckFrameField(L, ShotIndex, "start", true, Start);
			if (CheckFrameField(L, ShotIndex, "end", false, End) && End <= Start)
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots[%d] must end after it starts", int(ShotIndex));
			}
		}

		FString ReadStringField(lua_State* L, const char* Field)
		{
			lua_getfield(L, -1, Field);
			const char* Utf8 = lua_isstring(L, -1) ? lua_tostring(L, -1) : "";
			FString Value(UTF8_TO_TCHAR(Utf8));
			lua_pop(L, 1);
			return Value;
		}

		TOptional<int32> ReadFrameField(lua_State* L, const char* Field)
		{
			lua_getfield(L, -1, Field);
			TOptional<int32> Value;
			if (lua_isinteger(L, -1))
			{
				Value = int32(lua_tointeger(L, -1));
			}
			lua_pop(L, 1);
			return Value;
		}
	}

	void CheckShotOptions(lua_State* L, int OptionsIndex)
	{
		if (!lua_isnoneornil(L, OptionsIndex))
		{
			lua_getfield(L, OptionsIndex, "shots");
			const bool bValid = lua_isnil(L, -1) || lua_istable(L, -1);
			lua_pop(L, 1);
			if (!bValid)
			{
				luaL_error(L, "editor.create_level_sequence: opts.shots must be an array of shots");
			}
		}
		const lua_Integer ShotCount = PushShots(L, OptionsIndex);
		for (lua_Integer ShotIndex = 1; ShotIndex <= ShotCount; ++ShotIndex)
		{
			lua_rawgeti(L, -1, ShotIndex);
			CheckShot(L, ShotIndex);
			lua_pop(L, 1);
		}
		lua_pop(L, 1);
	}

	TArray<FLevelSequenceShotOptions> ReadShotOptions(lua_State* L, int OptionsIndex)
	{
		TArray<FLevelSequenceShotOptions> Shots;
		const lua_Integer ShotCount = PushShots(L, OptionsIndex);
		for (lua_Integer ShotIndex = 1; ShotIndex <= ShotCount; ++ShotIndex)
		{
			lua_rawgeti(L, -1, ShotIndex);
			FLevelSequenceShotOptions& Shot = Shots.AddDefaulted_GetRef();
			Shot.Name = ReadStringField(L, "name");
			Shot.Camera = ReadStringField(L, "camera");
			Shot.StartFrame = ReadFrameField(L, "start").Get(0);
			Shot.EndFrame = ReadFrameField(L, "end");
			lua_pop(L, 1);
		}
		lua_pop(L, 1);
		return Shots;
	}
}
