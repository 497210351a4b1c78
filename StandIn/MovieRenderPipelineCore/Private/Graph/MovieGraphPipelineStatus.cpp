// UMovieGraphBlueprintLibrary's getters of a running graph render's status.
#include "CineCameraComponent.h"
#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphPipeline.h"
#include "HAL/PlatformProcess.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInScriptMessage.h"

namespace UE::MovieGraph::Private
{
	static UMoviePipelineExecutorShot* GetCurrentShot(const UMovieGraphPipeline* InPipeline)
	{
		if (!InPipeline)
		{
			return nullptr;
		}
		const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& Shots = InPipeline->GetActiveShotList();
		const int32 ShotIndex = InPipeline->GetCurrentShotIndex();
		return Shots.IsValidIndex(ShotIndex) ? Shots[ShotIndex].Get() : nullptr;
	}

	static const FMovieGraphTimeStepData* GetTimeStep(const UMovieGraphPipeline* InPipeline)
	{
		return InPipeline ? &InPipeline->GetCurrentTimeStepData() : nullptr;
	}
}

FText UMovieGraphBlueprintLibrary::GetJobName(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const UMoviePipelineExecutorJob* Job = InMovieGraphPipeline ? InMovieGraphPipeline->GetCurrentJob() : nullptr;
	return Job ? FText::FromString(Job->JobName) : FText();
}

FText UMovieGraphBlueprintLibrary::GetJobAuthor(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const UMoviePipelineExecutorJob* Job = InMovieGraphPipeline ? InMovieGraphPipeline->GetCurrentJob() : nullptr;
	if (!Job)
	{
		return FText();
	}
	return FText::FromString(Job->Author.Len() > 0 ? Job->Author : FString(FPlatformProcess::UserName(false)));
}

float UMovieGraphBlueprintLibrary::GetCompletionPercentage(const UMovieGraphPipeline* InPipeline)
{
	int32 CurrentIndex = 0;
	int32 TotalCount = 0;
	GetOverallOutputFrames(InPipeline, CurrentIndex, TotalCount);
	return TotalCount > 0 ? FMath::Clamp(float(CurrentIndex) / float(TotalCount), 0.0f, 1.0f) : 0.0f;
}

void UMovieGraphBlueprintLibrary::GetOverallOutputFrames(const UMovieGraphPipeline* InMovieGraphPipeline, int32& OutCurrentIndex, int32& OutTotalCount)
{
	OutCurrentIndex = 0;
	OutTotalCount = 0;
	if (!InMovieGraphPipeline)
	{
		return;
	}
	OutCurrentIndex = InMovieGraphPipeline->GetCurrentTimeStepData().OutputFrameNumber;
	for (const UMoviePipelineExecutorShot* Shot : InMovieGraphPipeline->GetActiveShotList())
	{
		OutTotalCount += Shot ? Shot->ShotInfo.WorkMetrics.TotalOutputFrameCount : 0;
	}
}

FDateTime UMovieGraphBlueprintLibrary::GetJobInitializationTime(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	return InMovieGraphPipeline ? InMovieGraphPipeline->GetInitializationTime() : FDateTime();
}

bool UMovieGraphBlueprintLibrary::GetEstimatedTimeRemaining(const UMovieGraphPipeline* InMovieGraphPipeline, FTimespan& OutEstimate)
{
	OutEstimate = FTimespan(0);
	const float Completion = GetCompletionPercentage(InMovieGraphPipeline);
	if (Completion <= 0.0f)
	{
		return false;
	}
	const double ElapsedSeconds = (FDateTime::UtcNow() - InMovieGraphPipeline->GetInitializationTime()).GetTotalSeconds();
	OutEstimate = FTimespan::FromSeconds(ElapsedSeconds / Completion - ElapsedSeconds);
	return true;
}

EMovieRenderPipelineState UMovieGraphBlueprintLibrary::GetPipelineState(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	return InMovieGraphPipeline ? InMovieGraphPipeline->GetPipelineState() : EMovieRenderPipelineState::Uninitialized;
}

EMovieRenderShotState UMovieGraphBlueprintLibrary::GetCurrentSegmentState(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const UMoviePipelineExecutorShot* Shot = UE::MovieGraph::Private::GetCurrentShot(InMovieGraphPipeline);
	return Shot ? Shot->ShotInfo.State : EMovieRenderShotState::Uninitialized;
}

void UMovieGraphBlueprintLibrary::GetCurrentSegmentName(const UMovieGraphPipeline* InMovieGraphPipeline, FText& OutOuterName, FText& OutInnerName)
{
	const UMoviePipelineExecutorShot* Shot = UE::MovieGraph::Private::GetCurrentShot(InMovieGraphPipeline);
	OutOuterName = Shot ? FText::FromString(Shot->OuterName) : FText();
	OutInnerName = Shot ? FText::FromString(Shot->InnerName) : FText();
}

// Stand-in choice: zeros for a null pipeline, which the engine does not check for.
void UMovieGraphBlueprintLibrary::GetOverallSegmentCounts(const UMovieGraphPipeline* InMovieGraphPipeline, int32& OutCurrentIndex, int32& OutTotalCount)
{
	OutCurrentIndex = InMovieGraphPipeline ? InMovieGraphPipeline->GetCurrentShotIndex() : 0;
	OutTotalCount = InMovieGraphPipeline ? InMovieGraphPipeline->GetActiveShotList().Num() : 0;
}

FMoviePipelineSegmentWorkMetrics UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const UMoviePipelineExecutorShot* Shot = UE::MovieGraph::Private::GetCurrentShot(InMovieGraphPipeline);
	return Shot ? Shot->ShotInfo.WorkMetrics : FMoviePipelineSegmentWorkMetrics();
}

FTimecode UMovieGraphBlueprintLibrary::GetRootTimecode(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const FMovieGraphTimeStepData* TimeStep = UE::MovieGraph::Private::GetTimeStep(InMovieGraphPipeline);
	return TimeStep ? TimeStep->RootTimeCode : FTimecode();
}

FFrameNumber UMovieGraphBlueprintLibrary::GetRootFrameNumber(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const FMovieGraphTimeStepData* TimeStep = UE::MovieGraph::Private::GetTimeStep(InMovieGraphPipeline);
	return TimeStep ? TimeStep->RootFrameNumber : FFrameNumber(-1);
}

FTimecode UMovieGraphBlueprintLibrary::GetCurrentShotTimecode(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const FMovieGraphTimeStepData* TimeStep = UE::MovieGraph::Private::GetTimeStep(InMovieGraphPipeline);
	return TimeStep ? TimeStep->ShotTimeCode : FTimecode();
}

FFrameNumber UMovieGraphBlueprintLibrary::GetCurrentShotFrameNumber(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	const FMovieGraphTimeStepData* TimeStep = UE::MovieGraph::Private::GetTimeStep(InMovieGraphPipeline);
	return TimeStep ? TimeStep->ShotFrameNumber : FFrameNumber(-1);
}

float UMovieGraphBlueprintLibrary::GetCurrentFocusDistance(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex)
{
	const UCineCameraComponent* Camera = GetCurrentCineCamera(InMovieGraphPipeline, InCameraIndex);
	return Camera ? Camera->CurrentFocusDistance : -1.0f;
}

float UMovieGraphBlueprintLibrary::GetCurrentFocalLength(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex)
{
	const UCineCameraComponent* Camera = GetCurrentCineCamera(InMovieGraphPipeline, InCameraIndex);
	return Camera ? Camera->CurrentFocalLength : -1.0f;
}

float UMovieGraphBlueprintLibrary::GetCurrentAperture(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex)
{
	const UCineCameraComponent* Camera = GetCurrentCineCamera(InMovieGraphPipeline, InCameraIndex);
	return Camera ? Camera->CurrentAperture : 0.0f;
}

// Stand-in choice: a shot renders its one camera, so index 0 names the same camera as -1 and higher indices none.
UCineCameraComponent* UMovieGraphBlueprintLibrary::GetCurrentCineCamera(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex)
{
	const bool bKnownIndex = InCameraIndex == -1 || InCameraIndex == 0;
	return InMovieGraphPipeline && bKnownIndex ? InMovieGraphPipeline->CurrentCineCamera.Get() : nullptr;
}

UMoviePipelineExecutorShot* UMovieGraphBlueprintLibrary::GetCurrentExecutorShot(const UMovieGraphPipeline* InMoviePipeline)
{
	return UE::MovieGraph::Private::GetCurrentShot(InMoviePipeline);
}

int32 UMovieGraphBlueprintLibrary::GetCurrentVersionNumber(const UMovieGraphPipeline* InMovieGraphPipeline)
{
	if (const UMoviePipelineExecutorShot* Shot = UE::MovieGraph::Private::GetCurrentShot(InMovieGraphPipeline))
	{
		return Shot->ShotInfo.VersionNumber;
	}
	// Stand-in choice: the wording of the script error without a pipeline or shot.
	UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(TEXT("GetCurrentVersionNumber: There is no pipeline or current shot to get a version from."), ELogVerbosity::Error);
	return 0;
}
