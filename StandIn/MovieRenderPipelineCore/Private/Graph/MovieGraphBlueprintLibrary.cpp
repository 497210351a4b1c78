#include "Graph/MovieGraphBlueprintLibrary.h"

#include "CineCameraComponent.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPipeline.h"
#include "Graph/MovieGraphProjectSettings.h"
#include "Graph/Nodes/MovieGraphCameraNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInScriptMessage.h"
#include "UObject/UnrealType.h"

namespace UE::MovieGraph::Private
{
	static const UMovieGraphProjectSettings* GetProjectSettings()
	{
		return GetDefault<UMovieGraphProjectSettings>();
	}

	// Stand-in choice: the wording of the script error for a missing evaluated graph.
	static bool EnsureEvaluatedGraph(const UMovieGraphEvaluatedConfig* InEvaluatedGraph, const TCHAR* InFunctionName)
	{
		if (!InEvaluatedGraph)
		{
			UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(
				FString::Printf(TEXT("%s: Cannot get a resolution from an invalid evaluated graph."), InFunctionName), ELogVerbosity::Error);
			return false;
		}
		return true;
	}

	// The Globals output settings of the evaluated graph, or the class defaults when it has none.
	static const UMovieGraphGlobalOutputSettingNode* GetGlobalOutputSettings(const UMovieGraphEvaluatedConfig& InEvaluatedGraph)
	{
		return InEvaluatedGraph.GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName);
	}

	// The project's resolution of the profile when the project has it, otherwise the stored one.
	static FIntPoint GetProfileResolution(const FMovieGraphNamedResolution& InResolution)
	{
		const FMovieGraphNamedResolution* ProjectResolution = GetProjectSettings()->FindNamedResolutionForOption(InResolution.ProfileName);
		return ProjectResolution ? ProjectResolution->Resolution : InResolution.Resolution;
	}

	// The overscan of the Globals camera settings when a node in the graph overrides it, else InDefaultOverscan.
	static float GetOverscan(const UMovieGraphEvaluatedConfig& InEvaluatedGraph, const float InDefaultOverscan)
	{
		const UMovieGraphCameraSettingNode* CameraSettings = InEvaluatedGraph.GetSettingForBranch<UMovieGraphCameraSettingNode>(UMovieGraphNode::GlobalsPinName, false);
		if (CameraSettings && CameraSettings->bOverride_OverscanPercentage)
		{
			return FMath::Clamp(CameraSettings->OverscanPercentage / 100.0f, 0.0f, 1.0f);
		}
		return InDefaultOverscan;
	}

	// Each axis grown by the overscan fraction (clamped to 0-1) and rounded up.
	static FIntPoint ScaleResolutionByOverscan(const float InOverscan, const FIntPoint& InResolution)
	{
		const float Overscan = FMath::Clamp(InOverscan, 0.0f, 1.0f);
		if (Overscan <= 0.0f)
		{
			return InResolution;
		}
		return FIntPoint(FMath::CeilToInt((1.0f + Overscan) * InResolution.X), FMath::CeilToInt((1.0f + Overscan) * InResolution.Y));
	}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	// The resolution with one axis recomputed so that it has the camera's aspect ratio (0: the resolution's own).
	static FIntPoint AdaptToCameraAspectRatio(const FIntPoint& InResolution, EMovieGraphAspectRatioAdaptBehavior InBehavior, const float InCameraAspectRatio)
	{
		if (InBehavior == EMovieGraphAspectRatioAdaptBehavior::Disabled)
		{
			return InResolution;
		}
		const float TargetAspectRatio = float(InResolution.X) / float(InResolution.Y);
		const float CameraAspectRatio = FMath::IsNearlyZero(InCameraAspectRatio) ? TargetAspectRatio : InCameraAspectRatio;
		if (InBehavior == EMovieGraphAspectRatioAdaptBehavior::Automatic)
		{
			InBehavior = CameraAspectRatio > TargetAspectRatio ? EMovieGraphAspectRatioAdaptBehavior::ScaleToWidth : EMovieGraphAspectRatioAdaptBehavior::ScaleToHeight;
		}
		if (InBehavior == EMovieGraphAspectRatioAdaptBehavior::ScaleToWidth)
		{
			return FIntPoint(InResolution.X, FMath::RoundToInt(InResolution.X / CameraAspectRatio));
		}
		return FIntPoint(FMath::RoundToInt(InResolution.Y * CameraAspectRatio), InResolution.Y);
	}
#endif
}

FFrameRate UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(UMovieGraphGlobalOutputSettingNode* InNode, const FFrameRate& InDefaultRate)
{
	return InNode && InNode->bOverride_OutputFrameRate ? InNode->OutputFrameRate : InDefaultRate;
}

#if UE_VERSION_OLDER_THAN(5, 6, 0)
FIntPoint UMovieGraphBlueprintLibrary::GetEffectiveOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan)
{
	using namespace UE::MovieGraph::Private;
	if (!EnsureEvaluatedGraph(InEvaluatedGraph, TEXT("GetEffectiveOutputResolution")))
	{
		return FIntPoint(0, 0);
	}
	const FIntPoint Resolution = GetProfileResolution(GetGlobalOutputSettings(*InEvaluatedGraph)->OutputResolution);
	return ScaleResolutionByOverscan(GetOverscan(*InEvaluatedGraph, DefaultOverscan), Resolution);
}
#else
FIntPoint UMovieGraphBlueprintLibrary::GetEffectiveOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan)
{
	return GetOverscannedResolution(InEvaluatedGraph, DefaultOverscan);
}

FIntPoint UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float CameraAspectRatio)
{
	using namespace UE::MovieGraph::Private;
	if (!EnsureEvaluatedGraph(InEvaluatedGraph, TEXT("GetDesiredOutputResolution")))
	{
		return FIntPoint(0, 0);
	}
	const UMovieGraphGlobalOutputSettingNode* OutputSettings = GetGlobalOutputSettings(*InEvaluatedGraph);
	return AdaptToCameraAspectRatio(GetProfileResolution(OutputSettings->OutputResolution), OutputSettings->AdaptResolution, CameraAspectRatio);
}

FIntPoint UMovieGraphBlueprintLibrary::GetOverscannedResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan, float CameraAspectRatio)
{
	using namespace UE::MovieGraph::Private;
	const FIntPoint DesiredResolution = GetDesiredOutputResolution(InEvaluatedGraph, CameraAspectRatio);
	return InEvaluatedGraph ? ScaleResolutionByOverscan(GetOverscan(*InEvaluatedGraph, DefaultOverscan), DesiredResolution) : DesiredResolution;
}

FIntPoint UMovieGraphBlueprintLibrary::GetBackbufferResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan, float CameraAspectRatio)
{
	return GetOverscannedResolution(InEvaluatedGraph, DefaultOverscan, CameraAspectRatio);
}

FIntRect UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan, float CameraAspectRatio)
{
	const FIntPoint DesiredResolution = GetDesiredOutputResolution(InEvaluatedGraph, CameraAspectRatio);
	const FIntPoint OverscannedResolution = GetOverscannedResolution(InEvaluatedGraph, DefaultOverscan, CameraAspectRatio);
	const FIntPoint CropMin((OverscannedResolution.X - DesiredResolution.X) / 2, (OverscannedResolution.Y - DesiredResolution.Y) / 2);
	return FIntRect(CropMin, CropMin + DesiredResolution);
}
#endif

FMovieGraphNamedResolution UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(const FName& InResolutionProfileName)
{
	if (const FMovieGraphNamedResolution* Resolution = UE::MovieGraph::Private::GetProjectSettings()->FindNamedResolutionForOption(InResolutionProfileName))
	{
		return *Resolution;
	}
	// Stand-in choice: the wording of the script error for an unknown profile.
	UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(
		FString::Printf(TEXT("NamedResolutionFromProfile: No resolution profile named '%s' in the project settings."), *InResolutionProfileName.ToString()), ELogVerbosity::Error);
	return FMovieGraphNamedResolution();
}

bool UMovieGraphBlueprintLibrary::IsNamedResolutionValid(const FName& InResolutionProfileName)
{
	return UE::MovieGraph::Private::GetProjectSettings()->FindNamedResolutionForOption(InResolutionProfileName) != nullptr;
}

FMovieGraphNamedResolution UMovieGraphBlueprintLibrary::NamedResolutionFromSize(const int32 InResX, const int32 InResY)
{
	return FMovieGraphNamedResolution(FMovieGraphNamedResolution::CustomEntryName, FIntPoint(InResX, InResY), FString());
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphBlueprintLibrary, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(GetEffectiveFrameRate, TEXT("InNode"), TEXT("InDefaultRate"));
	STANDIN_FUNCTION(GetEffectiveOutputResolution, TEXT("InEvaluatedGraph"), TEXT("DefaultOverscan"));
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	STANDIN_FUNCTION(GetDesiredOutputResolution, TEXT("InEvaluatedGraph"), TEXT("CameraAspectRatio"));
	STANDIN_FUNCTION(GetOverscannedResolution, TEXT("InEvaluatedGraph"), TEXT("DefaultOverscan"), TEXT("CameraAspectRatio"));
	STANDIN_FUNCTION(GetBackbufferResolution, TEXT("InEvaluatedGraph"), TEXT("DefaultOverscan"), TEXT("CameraAspectRatio"));
	STANDIN_FUNCTION(GetOverscanCropRectangle, TEXT("InEvaluatedGraph"), TEXT("DefaultOverscan"), TEXT("CameraAspectRatio"));
#endif
	STANDIN_FUNCTION(NamedResolutionFromProfile, TEXT("InResolutionProfileName"));
	STANDIN_FUNCTION(IsNamedResolutionValid, TEXT("InResolutionProfileName"));
	STANDIN_FUNCTION(NamedResolutionFromSize, TEXT("InResX"), TEXT("InResY"));
	STANDIN_FUNCTION(ResolveFilenameFormatArguments, TEXT("InFormatString"), TEXT("InParams"), TEXT("OutMergedFormatArgs"));
	STANDIN_FUNCTION(ResolveFormatArguments, TEXT("InFormatString"), TEXT("InParams"), TEXT("OutMergedFormatArgs"));
	STANDIN_FUNCTION(ResolveVersionNumber, TEXT("InParams"), TEXT("bGetNextVersion"));
	STANDIN_FUNCTION(GetJobName, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetJobAuthor, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCompletionPercentage, TEXT("InPipeline"));
	STANDIN_FUNCTION(GetOverallOutputFrames, TEXT("InMovieGraphPipeline"), TEXT("OutCurrentIndex"), TEXT("OutTotalCount"));
	STANDIN_FUNCTION(GetJobInitializationTime, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetEstimatedTimeRemaining, TEXT("InMovieGraphPipeline"), TEXT("OutEstimate"));
	STANDIN_FUNCTION(GetPipelineState, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCurrentSegmentState, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCurrentSegmentName, TEXT("InMovieGraphPipeline"), TEXT("OutOuterName"), TEXT("OutInnerName"));
	STANDIN_FUNCTION(GetOverallSegmentCounts, TEXT("InMovieGraphPipeline"), TEXT("OutCurrentIndex"), TEXT("OutTotalCount"));
	STANDIN_FUNCTION(GetCurrentSegmentWorkMetrics, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetRootTimecode, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetRootFrameNumber, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCurrentShotTimecode, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCurrentShotFrameNumber, TEXT("InMovieGraphPipeline"));
	STANDIN_FUNCTION(GetCurrentFocusDistance, TEXT("InMovieGraphPipeline"), TEXT("InCameraIndex"));
	STANDIN_FUNCTION(GetCurrentFocalLength, TEXT("InMovieGraphPipeline"), TEXT("InCameraIndex"));
	STANDIN_FUNCTION(GetCurrentAperture, TEXT("InMovieGraphPipeline"), TEXT("InCameraIndex"));
	STANDIN_FUNCTION(GetCurrentCineCamera, TEXT("InMovieGraphPipeline"), TEXT("InCameraIndex"));
	STANDIN_FUNCTION(GetCurrentExecutorShot, TEXT("InMoviePipeline"));
	STANDIN_FUNCTION(GetCurrentVersionNumber, TEXT("InMovieGraphPipeline"));
}
