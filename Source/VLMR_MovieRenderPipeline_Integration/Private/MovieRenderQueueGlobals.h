// The bodies of the queue binding's mrq_* globals, each called with the session its closure captured and the
// arguments as read from the Lua stack.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

namespace VLMR
{
	// Jobs of the editor queue.
	sol::object AddJob(sol::state_view Lua, FLuaSessionData& Session, const FString& SequencePath);
	sol::object AllocateJob(sol::state_view Lua, FLuaSessionData& Session, const FString& SequencePath);
	sol::object DuplicateJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index);
	sol::object SetJobIndex(sol::state_view Lua, FLuaSessionData& Session, int64 From, int64 To);
	sol::object DeleteJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index);
	sol::object DeleteAllJobs(sol::state_view Lua, FLuaSessionData& Session);
	sol::object GetQueue(sol::state_view Lua, FLuaSessionData& Session);
	sol::object GetJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index);

	// Rendering.
	sol::object RenderQueue(sol::state_view Lua, FLuaSessionData& Session);
	sol::object RenderJob(sol::state_view Lua, FLuaSessionData& Session, const sol::object& JobHandle);
	bool IsRendering();
	sol::object RenderProgress(sol::state_view Lua, FLuaSessionData& Session);
	sol::object CancelRender(sol::state_view Lua, FLuaSessionData& Session, bool bCancelAll);

	// Presets and setting classes.
	sol::table ListSettings(sol::state_view Lua, FLuaSessionData& Session, const FString& Filter);
	sol::object OpenConfig(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath);
	sol::object OpenGraph(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath);

	// Saved queues.
	sol::object SaveQueue(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath);
	sol::object LoadQueue(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath);
}
