// The handle builders: each makes a fresh Lua table of data fields and method closures over a weak pointer.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UMovieGraphConfig;
class UMoviePipelineExecutorJob;
class UMoviePipelinePrimaryConfig;
class UMoviePipelineSetting;

sol::table BuildJobHandle(sol::state_view& Lua, UMoviePipelineExecutorJob* Job, FLuaSessionData& Session);
sol::table BuildConfigHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelinePrimaryConfig> Config, FLuaSessionData& Session);
sol::table BuildGraphHandle(sol::state_view& Lua, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session);
sol::table BuildSettingHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelineSetting> Setting, FLuaSessionData& Session);

namespace VLMR
{
	// A new handle table with its one data field, written only when the object still resolved at build time.
	sol::table CreateHandleTable(sol::state_view Lua, const char* FieldName, const TOptional<FString>& FieldValue);
}
