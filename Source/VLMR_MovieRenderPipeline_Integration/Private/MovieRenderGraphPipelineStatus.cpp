// mrg_pipeline_status and the graph status table that mrq_render_progress shares.
#include "MovieRenderGraphPipelineStatus.h"

#include "CineCameraComponent.h"
#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphPipeline.h"
#include "LuaSessionData.h"
#include "Misc/Timecode.h"
#include "Misc/Timespan.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderPipelineDataTypes.h"
#include "MovieRenderQueueAccess.h"
#include "Templates/Casts.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	// The engine's choice of camera: the one the current shot renders through.
	constexpr int32 CurrentCameraIndex = -1;

	static FGraphWorkMetrics ReadWorkMetrics(const UMovieGraphPipeline& Pipeline)
	{
		const FMoviePipelineSegmentWorkMetrics Metrics = UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(&Pipeline);
		return { Metrics.SegmentName, Metrics.OutputFrameIndex, Metrics.TotalOutputFrameCount, Metrics.OutputSubSampleIndex,
			Metrics.TotalSubSampleCount, Metrics.EngineWarmUpFrameIndex, Metrics.TotalEngineWarmUpFrameCount };
	}

	static FGraphCameraStatus ReadCamera(const UMovieGraphPipeline& Pipeline)
	{
		FGraphCameraStatus Camera;
		Camera.FocusDistance = UMovieGraphBlueprintLibrary::GetCurrentFocusDistance(&Pipeline, CurrentCameraIndex);
		Camera.FocalLength = UMovieGraphBlueprintLibrary::GetCurrentFocalLength(&Pipeline, CurrentCameraIndex);
		Camera.Aperture = UMovieGraphBlueprintLibrary::GetCurrentAperture(&Pipeline, CurrentCameraIndex);
		if (const UCineCameraComponent* Component = UMovieGraphBlueprintLibrary::GetCurrentCineCamera(&Pipeline, CurrentCameraIndex))
		{
			Camera.ComponentPath = Component->GetPathName();
		}
		return Camera;
	}

	static void ReadSegments(const UMovieGraphPipeline& Pipeline, FGraphPipelineStatus& OutStatus)
	{
		UMovieGraphBlueprintLibrary::GetOverallSegmentCounts(&Pipeline, OutStatus.CurrentSegment, OutStatus.TotalSegments);
		OutStatus.SegmentState = EnumValueName(UMovieGraphBlueprintLibrary::GetCurrentSegmentState(&Pipeline));
		FText OuterName;
		FText InnerName;
		UMovieGraphBlueprintLibrary::GetCurrentSegmentName(&Pipeline, OuterName, InnerName);
		OutStatus.SegmentOuterName = OuterName.ToString();
		OutStatus.SegmentInnerName = InnerName.ToString();
		OutStatus.WorkMetrics = ReadWorkMetrics(Pipeline);
	}

	static void ReadTime(const UMovieGraphPipeline& Pipeline, FGraphPipelineStatus& OutStatus)
	{
		FTimespan Remaining;
		if (UMovieGraphBlueprintLibrary::GetEstimatedTimeRemaining(&Pipeline, Remaining))
		{
			OutStatus.EstimatedRemainingSeconds = Remaining.GetTotalSeconds();
		}
		OutStatus.RootTimecode = UMovieGraphBlueprintLibrary::GetRootTimecode(&Pipeline).ToString();
		OutStatus.RootFrame = UMovieGraphBlueprintLibrary::GetRootFrameNumber(&Pipeline).Value;
		OutStatus.ShotTimecode = UMovieGraphBlueprintLibrary::GetCurrentShotTimecode(&Pipeline).ToString();
		OutStatus.ShotFrame = UMovieGraphBlueprintLibrary::GetCurrentShotFrameNumber(&Pipeline).Value;
	}

	// The current shot and job; the version too, which the engine reports with a script error when there is no shot.
	static void ReadShotAndJob(const UMovieGraphPipeline& Pipeline, FGraphPipelineStatus& OutStatus)
	{
		if (const UMoviePipelineExecutorShot* Shot = UMovieGraphBlueprintLibrary::GetCurrentExecutorShot(&Pipeline))
		{
			OutStatus.Shot = FGraphShotStatus{ Shot->OuterName, Shot->InnerName, Shot->bEnabled };
			OutStatus.Version = UMovieGraphBlueprintLibrary::GetCurrentVersionNumber(&Pipeline);
		}
		if (const UMoviePipelineExecutorJob* Job = Pipeline.GetCurrentJob())
		{
			OutStatus.JobPath = Job->GetPathName();
			OutStatus.Sequence = ToAssetPathString(Job->Sequence);
		}
		OutStatus.ShotIndex = Pipeline.GetCurrentShotIndex() + 1;
		OutStatus.ActiveShots = Pipeline.GetActiveShotList().Num();
	}

	FGraphPipelineStatus ReadGraphPipelineStatus(const UMovieGraphPipeline& Pipeline)
	{
		FGraphPipelineStatus Status;
		Status.State = EnumValueName(UMovieGraphBlueprintLibrary::GetPipelineState(&Pipeline));
		Status.Completion = UMovieGraphBlueprintLibrary::GetCompletionPercentage(&Pipeline);
		Status.JobName = UMovieGraphBlueprintLibrary::GetJobName(&Pipeline).ToString();
		Status.Author = UMovieGraphBlueprintLibrary::GetJobAuthor(&Pipeline).ToString();
		Status.InitializationTime = UMovieGraphBlueprintLibrary::GetJobInitializationTime(&Pipeline).ToIso8601();
		Status.bShutdownRequested = Pipeline.IsShutdownRequested();
		UMovieGraphBlueprintLibrary::GetOverallOutputFrames(&Pipeline, Status.CurrentFrame, Status.TotalFrames);
		ReadSegments(Pipeline, Status);
		ReadTime(Pipeline, Status);
		Status.Camera = ReadCamera(Pipeline);
		ReadShotAndJob(Pipeline, Status);
		return Status;
	}

	static sol::table MakeWorkMetricsTable(sol::state_view Lua, const FGraphWorkMetrics& Metrics)
	{
		sol::table Table = Lua.create_table(0, 7);
		Table["segment_name"] = ToUtf8(Metrics.SegmentName);
		Table["output_frame_index"] = Metrics.OutputFrameIndex;
		Table["total_output_frames"] = Metrics.TotalOutputFrames;
		Table["sub_sample_index"] = Metrics.SubSampleIndex;
		Table["total_sub_samples"] = Metrics.TotalSubSamples;
		Table["warm_up_frame_index"] = Metrics.WarmUpFrameIndex;
		Table["total_warm_up_frames"] = Metrics.TotalWarmUpFrames;
		return Table;
	}

	static sol::table MakeSegmentsTable(sol::state_view Lua, const FGraphPipelineStatus& Status)
	{
		return Lua.create_table_with("current", Status.CurrentSegment, "total", Status.TotalSegments, "state", ToUtf8(Status.SegmentState),
			"outer", ToUtf8(Status.SegmentOuterName), "inner", ToUtf8(Status.SegmentInnerName));
	}

	static sol::table MakeCameraTable(sol::state_view Lua, const FGraphCameraStatus& Camera)
	{
		sol::table Table = Lua.create_table_with("focus_distance", Camera.FocusDistance, "focal_length", Camera.FocalLength, "aperture", Camera.Aperture);
		if (Camera.ComponentPath.IsSet())
		{
			Table["component"] = ToUtf8(Camera.ComponentPath.GetValue());
		}
		return Table;
	}

	sol::table MakeGraphPipelineStatusTable(sol::state_view Lua, const FGraphPipelineStatus& Status)
	{
		sol::table Table = Lua.create_table(0, 24);
		Table["active"] = true;
		Table["pipeline_type"] = "graph";
		Table["state"] = ToUtf8(Status.State);
		Table["completion"] = Status.Completion;
		Table["job_name"] = ToUtf8(Status.JobName);
		Table["author"] = ToUtf8(Status.Author);
		Table["initialization_time"] = ToUtf8(Status.InitializationTime);
		Table["shutdown_requested"] = Status.bShutdownRequested;
		Table["version"] = Status.Version;
		Table["frames"] = Lua.create_table_with("current", Status.CurrentFrame, "total", Status.TotalFrames);
		Table["segments"] = MakeSegmentsTable(Lua, Status);
		Table["work_metrics"] = MakeWorkMetricsTable(Lua, Status.WorkMetrics);
		if (Status.EstimatedRemainingSeconds.IsSet())
		{
			Table["estimated_remaining_seconds"] = Status.EstimatedRemainingSeconds.GetValue();
		}
		Table["root_timecode"] = ToUtf8(Status.RootTimecode);
		Table["root_frame"] = Status.RootFrame;
		Table["shot_timecode"] = ToUtf8(Status.ShotTimecode);
		Table["shot_frame"] = Status.ShotFrame;
		Table["camera"] = MakeCameraTable(Lua, Status.Camera);
		if (Status.Shot.IsSet())
		{
			const FGraphShotStatus& Shot = Status.Shot.GetValue();
			Table["shot"] = Lua.create_table_with("outer_name", ToUtf8(Shot.OuterName), "inner_name", ToUtf8(Shot.InnerName), "enabled", Shot.bEnabled);
		}
		if (Status.JobPath.IsSet())
		{
			Table["job"] = ToUtf8(Status.JobPath.GetValue());
			Table["sequence"] = ToUtf8(Status.Sequence);
		}
		Table["shot_index"] = Status.ShotIndex;
		Table["active_shots"] = Status.ActiveShots;
		return Table;
	}

	// What is missing for a graph status, or nothing when the render has a graph pipeline.
	struct FInactiveReason
	{
		const TCHAR* Note = nullptr;
		bool bLegacy = false;
	};

	static FInactiveReason FindInactiveReason(const FActiveRender& Render)
	{
		if (!Render.Subsystem)
		{
			return { TEXT("Movie Pipeline subsystem not available") };
		}
		if (!Render.Executor)
		{
			return { TEXT("no active executor") };
		}
		if (!Render.Pipeline)
		{
			return { Render.Executor->IsRendering() ? TEXT("executor is rendering but has no active pipeline yet (PIE starting)") : TEXT("executor idle") };
		}
		if (!Cast<UMovieGraphPipeline>(Render.Pipeline.Get()))
		{
			return { TEXT("active pipeline is a legacy UMoviePipeline"), true };
		}
		return {};
	}

	static sol::table MakeInactiveStatus(sol::state_view Lua, FLuaSessionData& Session, const FActiveRender& Render, const FInactiveReason& Reason)
	{
		const TOptional<bool> bExecutorRendering = Render.Executor ? TOptional<bool>(Render.Executor->IsRendering()) : TOptional<bool>();
		sol::table Status = Lua.create_table_with("active", false, "ok", true, "note", ToUtf8(Reason.Note));
		if (Reason.bLegacy)
		{
			Status["pipeline_type"] = "legacy";
		}
		if (bExecutorRendering.IsSet())
		{
			Status["is_rendering"] = bExecutorRendering.GetValue();
		}
		LogLine(Session, ELineKind::Ok, TEXT("mrg_pipeline_status"), FString::Printf(TEXT("inactive (%s)"), Reason.Note));
		return Status;
	}

	sol::table GetPipelineStatus(sol::state_view Lua, FLuaSessionData& Session)
	{
		const FActiveRender Render = FindActiveRender();
		const FInactiveReason Reason = FindInactiveReason(Render);
		if (Reason.Note)
		{
			return MakeInactiveStatus(Lua, Session, Render, Reason);
		}
		const FGraphPipelineStatus Status = ReadGraphPipelineStatus(*CastChecked<UMovieGraphPipeline>(Render.Pipeline.Get()));
		sol::table Table = MakeGraphPipelineStatusTable(Lua, Status);
		Table["ok"] = true;
		Table["is_rendering"] = true;
		LogLine(Session, ELineKind::Ok, TEXT("mrg_pipeline_status"), Status.State);
		return Table;
	}
}
