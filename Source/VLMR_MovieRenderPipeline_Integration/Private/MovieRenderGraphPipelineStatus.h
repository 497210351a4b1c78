// The live status of a running Movie Render Graph pipeline, as mrg_pipeline_status and mrq_render_progress report it.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UMovieGraphPipeline;

namespace VLMR
{
	// The current shot's work: where it stands in its warm-up, output frames and temporal sub-samples.
	struct FGraphWorkMetrics
	{
		FString SegmentName;
		int32 OutputFrameIndex = 0;
		int32 TotalOutputFrames = 0;
		int32 SubSampleIndex = 0;
		int32 TotalSubSamples = 0;
		int32 WarmUpFrameIndex = 0;
		int32 TotalWarmUpFrames = 0;
	};

	struct FGraphCameraStatus
	{
		float FocusDistance = 0.f;
		float FocalLength = 0.f;
		float Aperture = 0.f;
		TOptional<FString> ComponentPath;
	};

	struct FGraphShotStatus
	{
		FString OuterName;
		FString InnerName;
		bool bEnabled = false;
	};

	// Everything a graph pipeline reports, read from the engine before any Lua value is made.
	struct FGraphPipelineStatus
	{
		FString State;
		float Completion = 0.f;
		FString JobName;
		FString Author;
		FString InitializationTime;
		bool bShutdownRequested = false;
		int32 Version = 0;
		int32 CurrentFrame = 0;
		int32 TotalFrames = 0;
		int32 CurrentSegment = 0;
		int32 TotalSegments = 0;
		FString SegmentState;
		FString SegmentOuterName;
		FString SegmentInnerName;
		FGraphWorkMetrics WorkMetrics;
		TOptional<double> EstimatedRemainingSeconds;
		FString RootTimecode;
		int32 RootFrame = 0;
		FString ShotTimecode;
		int32 ShotFrame = 0;
		FGraphCameraStatus Camera;
		TOptional<FGraphShotStatus> Shot;
		TOptional<FString> JobPath;
		FString Sequence;
		int32 ShotIndex = 0;
		int32 ActiveShots = 0;
	};

	FGraphPipelineStatus ReadGraphPipelineStatus(const UMovieGraphPipeline& Pipeline);

	// The active status table: active = true, pipeline_type = "graph" and every key read from the pipeline.
	sol::table MakeGraphPipelineStatusTable(sol::state_view Lua, const FGraphPipelineStatus& Status);

	// mrg_pipeline_status: the active status of a running graph pipeline, or an inactive status saying what is missing.
	sol::table GetPipelineStatus(sol::state_view Lua, FLuaSessionData& Session);

	// mrg_request_shutdown: asks the running pipeline (graph or legacy) to finish the work in flight and stop.
	sol::object RequestPipelineShutdown(sol::state_view Lua, FLuaSessionData& Session, const sol::object& Options);
}
