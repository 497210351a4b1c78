// Rendering the editor queue or one of its jobs with the project's default local executor, progress and cancel.
#include "MovieRenderQueueBinding.h"

#include "Graph/MovieGraphPipeline.h"
#include "LuaSessionData.h"
#include "MoviePipeline.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineLinearExecutor.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderPipelineSettings.h"
#include "UObject/UnrealType.h"
#include "VLMRScriptSupport.h"

namespace VLMR
{
	// The project's default local executor class, when it is set, loads and is an executor.
	static UClass* ResolveDefaultLocalExecutorClass()
	{
		const UMovieRenderPipelineProjectSettings* Settings = UMovieRenderPipelineProjectSettings::StaticClass()->GetDefaultObject<UMovieRenderPipelineProjectSettings>();
		if (!Settings || Settings->DefaultLocalExecutor.IsNull())
		{
			return nullptr;
		}
		UClass* Class = StaticLoadClass(UMoviePipelineExecutorBase::StaticClass(), nullptr, *Settings->DefaultLocalExecutor.ToString());
		return Class && Class->IsChildOf(UMoviePipelineExecutorBase::StaticClass()) ? Class : nullptr;
	}

	UMoviePipelineBase* FindActivePipeline(UMoviePipelineExecutorBase* Executor)
	{
		UMoviePipelineLinearExecutorBase* LinearExecutor = Cast<UMoviePipelineLinearExecutorBase>(Executor);
		if (!LinearExecutor)
		{
			return nullptr;
		}
		// The engine keeps the active pipeline in a protected property.
		const FObjectProperty* Property = CastField<FObjectProperty>(LinearExecutor->GetClass()->FindPropertyByName(TEXT("ActiveMoviePipeline")));
		if (!Property)
		{
			return nullptr;
		}
		return Cast<UMoviePipelineBase>(Property->GetObjectPropertyValue_InContainer(LinearExecutor));
	}

	// The subsystem when it exists and nothing renders, and the queue when it has jobs; else the call's failure line.
	static UMoviePipelineQueue* GetQueueToRender(FLuaSessionData& Session, const TCHAR* Label, UMoviePipelineQueueSubsystem*& OutSubsystem)
	{
		OutSubsystem = GetIdleSubsystem(Session, Label);
		if (!OutSubsystem)
		{
			return nullptr;
		}
		UMoviePipelineQueue* Queue = OutSubsystem->GetQueue();
		if (!Queue || Queue->GetJobs().Num() == 0)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("queue is empty, nothing to render"));
			return nullptr;
		}
		return Queue;
	}

	static UClass* ResolveExecutorClassOrReport(FLuaSessionData& Session, const TCHAR* Label)
	{
		UClass* ExecutorClass = ResolveDefaultLocalExecutorClass();
		if (!ExecutorClass)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("Movie Render Pipeline default local executor is not configured"));
		}
		return ExecutorClass;
	}

	sol::object RenderQueue(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_render_queue");
		UMoviePipelineQueueSubsystem* Subsystem = nullptr;
		UMoviePipelineQueue* Queue = GetQueueToRender(Session, Label, Subsystem);
		UClass* ExecutorClass = Queue ? ResolveExecutorClassOrReport(Session, Label) : nullptr;
		if (!ExecutorClass)
		{
			return Nil(Lua);
		}
		Subsystem->RenderQueueWithExecutor(ExecutorClass);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("started with %s (%d jobs)"), *ExecutorClass->GetName(), Queue->GetJobs().Num()));
		return sol::make_object(Lua, true);
	}

	sol::object RenderJob(sol::state_view Lua, FLuaSessionData& Session, const sol::object& JobHandle)
	{
		const TCHAR* Label = TEXT("mrq_render_job");
		UMoviePipelineQueueSubsystem* Subsystem = nullptr;
		UMoviePipelineQueue* Queue = GetQueueToRender(Session, Label, Subsystem);
		if (!Queue)
		{
			return Nil(Lua);
		}
		UMoviePipelineExecutorJob* Job = FindJobByIdentity(Queue, JobHandle);
		if (!Job)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("supplied job handle is not in the current editor queue"));
			return Nil(Lua);
		}
		UClass* ExecutorClass = ResolveExecutorClassOrReport(Session, Label);
		if (!ExecutorClass)
		{
			return Nil(Lua);
		}
#if ENGINE_MAJOR_VERSION > 5 || (ENGINE_MAJOR_VERSION == 5 && ENGINE_MINOR_VERSION >= 6)
		// The copy renders alone, and what the executor marks lands on the copy, not on the editor queue's job.
		UMoviePipelineQueue* TransientQueue = NewObject<UMoviePipelineQueue>(Subsystem);
		TransientQueue->SetFlags(RF_Transient);
		UMoviePipelineExecutorJob* Copy = TransientQueue->DuplicateJob(Job);
		if (!Copy || TransientQueue->GetJobs().Num() != 1)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to duplicate supplied job into a transient queue"));
			return Nil(Lua);
		}
		if (!Subsystem->RenderQueueInstanceWithExecutor(TransientQueue, ExecutorClass))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to start render executor"));
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("render started with %s for job %s"), *ExecutorClass->GetName(), *Job->JobName));
		return sol::make_object(Lua, true);
#else
		return RefuseGatedFeature(Lua, Session, Label, EGatedFeature::RenderQueueInstance);
#endif
	}

	bool IsRendering()
	{
		return IsRenderInProgress(GetQueueSubsystem());
	}

	static FString ShotDisplayName(const UMoviePipelineExecutorShot* Shot)
	{
		return Shot->OuterName.IsEmpty() ? Shot->InnerName : Shot->OuterName + TEXT(".") + Shot->InnerName;
	}

	static sol::table MakeShotTables(sol::state_view Lua, const UMoviePipeline* Pipeline)
	{
		sol::table Shots = Lua.create_table();
		const auto& ActiveShots = Pipeline->GetActiveShotList();
		for (int32 Position = 0; Position < ActiveShots.Num(); ++Position)
		{
			const UMoviePipelineExecutorShot* Shot = ActiveShots[Position];
			if (!Shot)
			{
				continue;
			}
			sol::table Row = Lua.create_table();
			Row["name"] = ToUtf8(ShotDisplayName(Shot));
			Row["progress"] = Shot->GetStatusProgress();
			Row["status_message"] = ToUtf8(Shot->GetStatusMessage());
			Row["is_current"] = Position == Pipeline->GetCurrentShotIndex();
			Shots[Position + 1] = Row;
		}
		return Shots;
	}

	// Pipeline details of one job: a legacy pipeline only for the very job object it renders, a graph pipeline for every job.
	static void AddPipelineDetails(sol::state_view Lua, sol::table& Row, const UMoviePipelineExecutorJob* Job, UMoviePipelineBase* Pipeline)
	{
		if (const UMoviePipeline* Legacy = Cast<UMoviePipeline>(Pipeline))
		{
			if (Legacy->GetCurrentJob() == Job)
			{
				Row["pipeline_type"] = "legacy";
				Row["current_shot_index"] = Legacy->GetCurrentShotIndex() + 1;
				Row["total_shots"] = Legacy->GetActiveShotList().Num();
				Row["pipeline_progress"] = UMoviePipelineBlueprintLibrary::GetCompletionPercentage(Legacy);
				Row["shots"] = MakeShotTables(Lua, Legacy);
			}
		}
		else if (Pipeline)
		{
			Row["pipeline_type"] = "graph";
		}
	}

	static sol::table MakeJobProgress(sol::state_view Lua, const UMoviePipelineExecutorJob* Job, int32 Index, UMoviePipelineBase* Pipeline)
	{
		sol::table Row = Lua.create_table();
		Row["index"] = Index;
		Row["progress"] = Job->GetStatusProgress();
		Row["status_message"] = ToUtf8(Job->GetStatusMessage());
		Row["sequence"] = ToUtf8(ToAssetPathString(Job->Sequence));
		Row["shots"] = Lua.create_table();
		AddPipelineDetails(Lua, Row, Job, Pipeline);
		return Row;
	}

	sol::object RenderProgress(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_render_progress");
		UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		if (!Subsystem)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("Movie Pipeline subsystem not available"));
			return Nil(Lua);
		}
		UMoviePipelineExecutorBase* Executor = Subsystem->GetActiveExecutor();
		UMoviePipelineBase* Pipeline = FindActivePipeline(Executor);
		const bool bRendering = IsRenderInProgress(Subsystem);
		const float Progress = Executor ? Executor->GetStatusProgress() : 0.f;

		sol::table Jobs = Lua.create_table();
		if (const UMoviePipelineQueue* Queue = Subsystem->GetQueue())
		{
			const TArray<UMoviePipelineExecutorJob*> QueueJobs = Queue->GetJobs();
			for (int32 Position = 0; Position < QueueJobs.Num(); ++Position)
			{
				if (QueueJobs[Position])
				{
					Jobs[Position + 1] = MakeJobProgress(Lua, QueueJobs[Position], Position + 1, Pipeline);
				}
			}
		}

		sol::table Result = Lua.create_table();
		Result["is_rendering"] = bRendering;
		Result["progress"] = Progress;
		Result["status_message"] = ToUtf8(Executor ? Executor->GetStatusMessage() : FString());
		Result["jobs"] = Jobs;
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("is_rendering=%s progress=%.1f%%"), bRendering ? TEXT("true") : TEXT("false"), Progress * 100.0));
		return Result;
	}

	sol::object CancelRender(sol::state_view Lua, FLuaSessionData& Session, bool bCancelAll)
	{
		const TCHAR* Label = TEXT("mrq_cancel_render");
		UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		if (!Subsystem)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("Movie Pipeline subsystem not available"));
			return Nil(Lua);
		}
		if (!IsRenderInProgress(Subsystem))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no render is in progress"));
			return Nil(Lua);
		}
		UMoviePipelineExecutorBase* Executor = Subsystem->GetActiveExecutor();
		if (!Executor)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no active executor"));
			return Nil(Lua);
		}
		if (bCancelAll)
		{
			Executor->CancelAllJobs();
			LogLine(Session, ELineKind::Ok, Label, TEXT("cancelled all jobs"));
		}
		else
		{
			Executor->CancelCurrentJob();
			LogLine(Session, ELineKind::Ok, Label, TEXT("cancelled current job"));
		}
		return sol::make_object(Lua, true);
	}
}
