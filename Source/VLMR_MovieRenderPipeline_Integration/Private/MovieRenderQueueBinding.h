// Shared pieces of the queue binding: reaching the editor queue, job identity, setting classes and the handle builders.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UClass;
class UMovieGraphConfig;
class UMoviePipelineBase;
class UMoviePipelineExecutorBase;
class UMoviePipelineExecutorJob;
class UMoviePipelinePrimaryConfig;
class UMoviePipelineQueue;
class UMoviePipelineQueueSubsystem;
class UMoviePipelineSetting;
class UWorld;
struct FSoftObjectPath;

namespace VLMR
{
	// The editor's queue subsystem, or null when the editor or the subsystem is absent.
	UMoviePipelineQueueSubsystem* GetQueueSubsystem();

	// The queue subsystem when it exists and nothing is rendering; else null after the call's failure line.
	UMoviePipelineQueueSubsystem* GetIdleSubsystem(FLuaSessionData& Session, const TCHAR* Label);

	// The subsystem has an active executor and that executor is rendering.
	bool IsRenderInProgress(const UMoviePipelineQueueSubsystem* Subsystem);

	// The first editor world of the editor's world contexts, else the first world of any engine context.
	UWorld* FindCurrentEditorWorld();

	// A soft path as an asset path string, "" when unset.
	FString ToAssetPathString(const FSoftObjectPath& Path);

	// The job's address printed with "%p": the identity a job handle carries.
	FString MakeJobIdentity(const UMoviePipelineExecutorJob* Job);

	// The queue's job whose identity matches the value's "__vlmr_mrq_job_identity" field, or null.
	UMoviePipelineExecutorJob* FindJobByIdentity(const UMoviePipelineQueue* Queue, const sol::object& Value);

	// Every class in memory, in the engine's enumeration order.
	TArray<UObject*> EnumerateClasses();

	// A script's class name to a concrete setting class: the "U" prefix rule, an exact pass, then a substring pass.
	UClass* ResolveSettingClass(const FString& Name);

	// A 1-based script index into the job array, checked against the job count.
	bool IsValidJobIndex(int32 Index, int32 JobCount);

	// The Lua nil of a result.
	sol::object Nil(sol::state_view Lua);

	// The pipeline an executor is running: read by reflection from a linear executor's "ActiveMoviePipeline".
	UMoviePipelineBase* FindActivePipeline(UMoviePipelineExecutorBase* Executor);

	// Rendering globals.
	sol::object RenderQueue(sol::state_view Lua, FLuaSessionData& Session);
	sol::object RenderJob(sol::state_view Lua, FLuaSessionData& Session, const sol::object& JobHandle);
	bool IsRendering();
	sol::object RenderProgress(sol::state_view Lua, FLuaSessionData& Session);
	sol::object CancelRender(sol::state_view Lua, FLuaSessionData& Session, bool bCancelAll);
}

sol::table BuildJobHandle(sol::state_view& Lua, UMoviePipelineExecutorJob* Job, FLuaSessionData& Session);
sol::table BuildConfigHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelinePrimaryConfig> Config, FLuaSessionData& Session);
sol::table BuildGraphHandle(sol::state_view& Lua, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session);
sol::table BuildSettingHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelineSetting> Setting, FLuaSessionData& Session);
