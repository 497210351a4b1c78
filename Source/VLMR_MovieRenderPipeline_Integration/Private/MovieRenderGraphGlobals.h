// The mrg_* globals, installed by BindMovieRenderGraphGlobals.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

namespace VLMR
{
	// What this editor's Movie Render Graph offers, fixed when the module is built.
	sol::table GetSupport(sol::state_view Lua);

	sol::table GetNamedResolutions(sol::state_view Lua, FLuaSessionData& Session);
	sol::table GetNamedResolution(sol::state_view Lua, FLuaSessionData& Session, const sol::object& ProfileOrSize);
	sol::table ResolveFormat(sol::state_view Lua, FLuaSessionData& Session, const FString& Format, const sol::object& Options);
	sol::table ResolveVersion(sol::state_view Lua, FLuaSessionData& Session, const sol::object& Options);
}
