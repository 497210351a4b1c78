// Rendering the editor queue or one of its jobs with the project's default local executor, progress and cancel.
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
#include "MovieRenderGraphPipelineStatus.h"
#include "MovieRenderQueueAccess.h"
#include "MovieRenderQueueGlobals.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"
#include "VLMRVersionGates.h"

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

	// What a render needs: an idle subsystem and a queue with jobs, each held for the call; else the call's failure line.
	struct FRenderTarget
	{
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem;
		TStrongObjectPtr<UMoviePipelineQueue> Queue;
	};

	static bool GetQueueToRender(FLuaSessionData& Session, const TCHAR* Label, FRenderTarget& OutTarget)
	{
		OutTarget.Subsystem = GetIdleSubsystem(Session, Label);
		if (!OutTarget.Subsystem)
		{
			return false;
		}
		OutTarget.Queue.Reset(OutTarget.Subsystem->GetQueue());
		if (!OutTarget.Queue || OutTarget.Queue->GetJobs().Num() == 0)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("queue is empty, nothing to render"));
			return false;
		}
		return true;
	}

	static TStrongObjectPtr<UClass> ResolveExecutorClassOrReport(FLuaSessionData& Session, const TCHAR* Label)
	{
		TStrongObjectPtr<UClass> ExecutorClass(ResolveDefaultLocalExecutorClass());
		if (!ExecutorClass)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("Movie Render Pipeline default local executor is not configured"));
		}
		return ExecutorClass;
	}

	sol::object RenderQueue(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_render_queue");
		FRenderTarget Target;
		if (!GetQueueToRender(Session, Label, Target))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UClass> ExecutorClass = ResolveExecutorClassOrReport(Session, Label);
		if (!ExecutorClass)
		{
			return Nil(Lua);
		}
		Target.Subsystem->RenderQueueWithExecutor(ExecutorClass.Get());
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("started with %s (%d jobs)"), *ExecutorClass->GetName(), Target.Queue->GetJobs().Num()));
		return sol::make_object(Lua, true);
	}

	sol::object RenderJob(sol::state_view Lua, FLuaSessionData& Session, const sol::object& JobHandle)
	{
		const TCHAR* Label = TEXT("mrq_render_job");
		// Read before any check: reading a userdata's field may run script code.
		const TOptional<FString> Identity = ReadJobIdentity(JobHandle);
		FRenderTarget Target;
		if (!GetQueueToRender(Session, Label, Target))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineExecutorJob> Job(Identity.IsSet() ? FindJobByIdentity(*Target.Queue, Identity.GetValue()) : nullptr);
		if (!Job)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("supplied job handle is not in the current editor queue"));
			return Nil(Lua);
		}
		const TStrongObjectPtr<UClass> ExecutorClass = ResolveExecutorClassOrReport(Session, Label);
		if (!ExecutorClass)
		{
			return Nil(Lua);
		}
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
		// The copy renders alone, and what the executor marks lands on the copy, not on the editor queue's job.
		const TStrongObjectPtr<UMoviePipelineQueue> TransientQueue(NewObject<UMoviePipelineQueue>(Target.Subsystem.Get()));
		TransientQueue->SetFlags(RF_Transient);
		UMoviePipelineExecutorJob* Copy = TransientQueue->DuplicateJob(Job.Get());
		if (!Copy || TransientQueue->GetJobs().Num() != 1)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to duplicate supplied job into a transient queue"));
			return Nil(Lua);
		}
		if (!Target.Subsystem->RenderQueueInstanceWithExecutor(TransientQueue.Get(), ExecutorClass.Get()))
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

	// The progress of one shot, one job and the executor, read before any Lua value is made.
	struct FShotProgress
	{
		int32 Position = 0;
		FString Name;
		float Progress = 0.f;
		FString StatusMessage;
		bool bIsCurrent = false;
	};

	enum class EPipelineKind : uint8
	{
		None,
		Legacy,
		Graph,
	};

	struct FJobProgress
	{
		int32 Index = 0;
		float Progress = 0.f;
		FString StatusMessage;
		FString Sequence;
		EPipelineKind PipelineKind = EPipelineKind::None;
		int32 CurrentShotIndex = 0;
		int32 TotalShots = 0;
		float PipelineProgress = 0.f;
		TArray<FShotProgress> Shots;
	};

	static FString ShotDisplayName(const UMoviePipelineExecutorShot& Shot)
	{
		return Shot.OuterName.IsEmpty() ? Shot.InnerName : Shot.OuterName + TEXT(".") + Shot.InnerName;
	}

	static TArray<FShotProgress> ReadShotProgress(const UMoviePipeline& Pipeline)
	{
		TArray<FShotProgress> Shots;
		const auto& ActiveShots = Pipeline.GetActiveShotList();
		for (int32 Position = 0; Position < ActiveShots.Num(); ++Position)
		{
			if (const UMoviePipelineExecutorShot* Shot = ActiveShots[Position])
			{
				Shots.Add({ Position, ShotDisplayName(*Shot), Shot->GetStatusProgress(), Shot->GetStatusMessage(), Position == Pipeline.GetCurrentShotIndex() });
			}
		}
		return Shots;
	}

	// Pipeline details of one job: a legacy pipeline only for the very job object it renders, a graph pipeline for every job.
	static void ReadPipelineDetails(FJobProgress& Row, const UMoviePipelineExecutorJob& Job, const UMoviePipelineBase* Pipeline)
	{
		if (const UMoviePipeline* Legacy = Cast<UMoviePipeline>(Pipeline))
		{
			if (Legacy->GetCurrentJob() == &Job)
			{
				Row.PipelineKind = EPipelineKind::Legacy;
				Row.CurrentShotIndex = Legacy->GetCurrentShotIndex() + 1;
				Row.TotalShots = Legacy->GetActiveShotList().Num();
				Row.PipelineProgress = UMoviePipelineBlueprintLibrary::GetCompletionPercentage(Legacy);
				Row.Shots = ReadShotProgress(*Legacy);
			}
		}
		else if (Pipeline)
		{
			Row.PipelineKind = EPipelineKind::Graph;
		}
	}

	static FJobProgress ReadJobProgress(const UMoviePipelineExecutorJob& Job, int32 Index, const UMoviePipelineBase* Pipeline)
	{
		FJobProgress Row;
		Row.Index = Index;
		Row.Progress = Job.GetStatusProgress();
		Row.StatusMessage = Job.GetStatusMessage();
		Row.Sequence = ToAssetPathString(Job.Sequence);
		ReadPipelineDetails(Row, Job, Pipeline);
		return Row;
	}

	static sol::table MakeShotTables(sol::state_view Lua, const TArray<FShotProgress>& Shots)
	{
		sol::table Table = Lua.create_table();
		for (const FShotProgress& Shot : Shots)
		{
			sol::table Row = Lua.create_table();
			Row["name"] = ToUtf8(Shot.Name);
			Row["progress"] = Shot.Progress;
			Row["status_message"] = ToUtf8(Shot.StatusMessage);
			Row["is_current"] = Shot.bIsCurrent;
			Table[Shot.Position + 1] = Row;
		}
		return Table;
	}

	// A graph row carries the one status table of the graph pipeline, when it has one.
	static sol::table MakeJobProgressTable(sol::state_view Lua, const FJobProgress& Job, const sol::object& GraphStatus)
	{
		sol::table Row = Lua.create_table();
		Row["index"] = Job.Index;
		Row["progress"] = Job.Progress;
		Row["status_message"] = ToUtf8(Job.StatusMessage);
		Row["sequence"] = ToUtf8(Job.Sequence);
		Row["shots"] = MakeShotTables(Lua, Job.Shots);
		if (Job.PipelineKind == EPipelineKind::Legacy)
		{
			Row["pipeline_type"] = "legacy";
			Row["current_shot_index"] = Job.CurrentShotIndex;
			Row["total_shots"] = Job.TotalShots;
			Row["pipeline_progress"] = Job.PipelineProgress;
		}
		else if (Job.PipelineKind == EPipelineKind::Graph)
		{
			Row["pipeline_type"] = "graph";
			if (GraphStatus.valid())
			{
				Row["graph"] = GraphStatus;
			}
		}
		return Row;
	}

	sol::object RenderProgress(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_render_progress");
		const TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem = GetSubsystemOrReport(Session, Label, EQueueWording::Reading);
		if (!Subsystem)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(Subsystem->GetActiveExecutor());
		const TStrongObjectPtr<UMoviePipelineBase> Pipeline(FindActivePipeline(Executor.Get()));
		const bool bRendering = IsRenderInProgress(Subsystem.Get());
		const float Progress = Executor ? Executor->GetStatusProgress() : 0.f;
		const FString StatusMessage = Executor ? Executor->GetStatusMessage() : FString();

		TArray<FJobProgress> Jobs;
		if (const UMoviePipelineQueue* Queue = Subsystem->GetQueue())
		{
			Jobs = ReadJobRows(*Queue, [&Pipeline](const UMoviePipelineExecutorJob& Job, int32 Index) { return ReadJobProgress(Job, Index, Pipeline.Get()); });
		}

		TOptional<FGraphPipelineStatus> GraphStatus;
		if (const UMovieGraphPipeline* GraphPipeline = Cast<UMovieGraphPipeline>(Pipeline.Get()))
		{
			GraphStatus = ReadGraphPipelineStatus(*GraphPipeline);
		}

		const sol::object GraphTable = GraphStatus.IsSet() ? sol::object(MakeGraphPipelineStatusTable(Lua, GraphStatus.GetValue())) : sol::object();
		sol::table Result = Lua.create_table();
		Result["is_rendering"] = bRendering;
		Result["progress"] = Progress;
		Result["status_message"] = ToUtf8(StatusMessage);
		Result["jobs"] = MakeIndexedTable(Lua, Jobs, [&GraphTable](sol::state_view L, const FJobProgress& Job) { return MakeJobProgressTable(L, Job, GraphTable); });
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("is_rendering=%s progress=%.1f%%"), BoolText(bRendering), Progress * 100.0));
		return Result;
	}

	sol::object CancelRender(sol::state_view Lua, FLuaSessionData& Session, bool bCancelAll)
	{
		const TCHAR* Label = TEXT("mrq_cancel_render");
		const TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem = GetSubsystemOrReport(Session, Label, EQueueWording::Reading);
		if (!Subsystem)
		{
			return Nil(Lua);
		}
		if (!IsRenderInProgress(Subsystem.Get()))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no render is in progress"));
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(Subsystem->GetActiveExecutor());
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
