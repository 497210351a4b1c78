// UMovieGraphBlueprintLibrary: Movie Render Graph helpers exposed to scripts: named resolutions, the resolution an
// evaluated graph renders at, and the resolution of file name tokens and output versions.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphFilenameResolveParams.h"
#include "Graph/MovieGraphNamedResolution.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/FrameNumber.h"
#include "Misc/FrameRate.h"
#include "Misc/Timecode.h"
#include "Misc/Timespan.h"
#include "MovieRenderPipelineDataTypes.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UCineCameraComponent;
class UMovieGraphEvaluatedConfig;
class UMovieGraphGlobalOutputSettingNode;
class UMovieGraphPipeline;
class UMoviePipelineExecutorShot;

UCLASS(MinimalAPI, meta = (ScriptName = "MovieGraphLibrary"))
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphBlueprintLibrary : public UBlueprintFunctionLibrary
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphBlueprintLibrary, UBlueprintFunctionLibrary, MOVIERENDERPIPELINECORE_API)

public:
	// The node's output frame rate when it overrides it, otherwise InDefaultRate.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FFrameRate GetEffectiveFrameRate(UMovieGraphGlobalOutputSettingNode* InNode, const FFrameRate& InDefaultRate);

#if UE_VERSION_OLDER_THAN(5, 6, 0)
	// The Globals output resolution grown by the overscan (the camera settings' override, else DefaultOverscan).
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FIntPoint GetEffectiveOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan = 0.0f);
#else
	// Deprecated in 5.6: the overscanned resolution.
	// Stand-in choice: no UE_DEPRECATED attribute, as registering the function for reflection would warn about it.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph", meta = (DeprecatedFunction))
	UE_API static FIntPoint GetEffectiveOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan = 0.0f);

	// The Globals output resolution (its project profile when it names one), adapted to the camera's aspect ratio when
	// the output settings ask for it; a CameraAspectRatio of 0 keeps the output's own aspect ratio.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FIntPoint GetDesiredOutputResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float CameraAspectRatio = 0.0f);

	// The desired resolution with each axis grown by the overscan and rounded up.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FIntPoint GetOverscannedResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan = 0.0f, float CameraAspectRatio = 0.0f);

	// The resolution rendered into; the overscanned resolution, as nothing is tiled.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FIntPoint GetBackbufferResolution(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan = 0.0f, float CameraAspectRatio = 0.0f);

	// The desired resolution centred in the overscanned one.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FIntRect GetOverscanCropRectangle(UMovieGraphEvaluatedConfig* InEvaluatedGraph, float DefaultOverscan = 0.0f, float CameraAspectRatio = 0.0f);
#endif

	// The project's named resolution of the profile; a script error and the default resolution when there is none.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FMovieGraphNamedResolution NamedResolutionFromProfile(const FName& InResolutionProfileName);

	// Whether the project has a named resolution of the profile.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static bool IsNamedResolutionValid(const FName& InResolutionProfileName);

	// A "Custom" resolution of the size.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FMovieGraphNamedResolution NamedResolutionFromSize(const int32 InResX, const int32 InResY);

	// The format string with its tokens resolved, made an absolute clean path with the {ext} extension and a free
	// {file_dup} when the file exists and must not be overwritten. The values used are added to OutMergedFormatArgs.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FString ResolveFilenameFormatArguments(const FString& InFormatString, const FMovieGraphFilenameResolveParams& InParams, FMovieGraphResolveArgs& OutMergedFormatArgs);

	// The format string with its tokens resolved, and nothing more. The values used are added to OutMergedFormatArgs.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static FString ResolveFormatArguments(const FString& InFormatString, const FMovieGraphFilenameResolveParams& InParams, FMovieGraphResolveArgs& OutMergedFormatArgs);

	// The fixed version of the Globals output settings, or from the outputs of the branch the highest version already on
	// disk (-1 for none), plus one when bGetNextVersion. -1 and a script error without an evaluated graph.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API static int32 ResolveVersionNumber(FMovieGraphFilenameResolveParams InParams, const bool bGetNextVersion = true);

	// The status of a running graph render, as the getters below report it. A null pipeline gives empty text, zeros, the
	// Uninitialized state, default timecodes and frame number -1; no current shot gives the shot's default values.

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FText GetJobName(const UMovieGraphPipeline* InMovieGraphPipeline);

	// The job's author, or the user running the editor when the job names none.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FText GetJobAuthor(const UMovieGraphPipeline* InMovieGraphPipeline);

	// The output frames written so far over all output frames of the render, 0 to 1.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static float GetCompletionPercentage(const UMovieGraphPipeline* InPipeline);

	// The output frames written so far, and the output frames of every shot of the render.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static void GetOverallOutputFrames(const UMovieGraphPipeline* InMovieGraphPipeline, int32& OutCurrentIndex, int32& OutTotalCount);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FDateTime GetJobInitializationTime(const UMovieGraphPipeline* InMovieGraphPipeline);

	// The time left at the pace so far; false (and no time) until a frame has been written.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static bool GetEstimatedTimeRemaining(const UMovieGraphPipeline* InMovieGraphPipeline, FTimespan& OutEstimate);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static EMovieRenderPipelineState GetPipelineState(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static EMovieRenderShotState GetCurrentSegmentState(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static void GetCurrentSegmentName(const UMovieGraphPipeline* InMovieGraphPipeline, FText& OutOuterName, FText& OutInnerName);

	// The current shot's index and the number of shots that render.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static void GetOverallSegmentCounts(const UMovieGraphPipeline* InMovieGraphPipeline, int32& OutCurrentIndex, int32& OutTotalCount);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FMoviePipelineSegmentWorkMetrics GetCurrentSegmentWorkMetrics(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FTimecode GetRootTimecode(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FFrameNumber GetRootFrameNumber(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FTimecode GetCurrentShotTimecode(const UMovieGraphPipeline* InMovieGraphPipeline);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static FFrameNumber GetCurrentShotFrameNumber(const UMovieGraphPipeline* InMovieGraphPipeline);

	// The camera getters take the current camera for index -1, else the shot's camera of that index: -1 for the focus
	// distance and focal length, 0 for the aperture and null when there is no such camera.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static float GetCurrentFocusDistance(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex = -1);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static float GetCurrentFocalLength(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex = -1);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static float GetCurrentAperture(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex = -1);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static UCineCameraComponent* GetCurrentCineCamera(const UMovieGraphPipeline* InMovieGraphPipeline, int32 InCameraIndex = -1);

	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static UMoviePipelineExecutorShot* GetCurrentExecutorShot(const UMovieGraphPipeline* InMoviePipeline);

	// The output version resolved for the current shot; 0 and a script error without a pipeline or shot.
	// Stand-in choice: offered in every version built.
	UFUNCTION(BlueprintPure, Category = "Movie Graph")
	UE_API static int32 GetCurrentVersionNumber(const UMovieGraphPipeline* InMovieGraphPipeline);
};

#undef UE_API
