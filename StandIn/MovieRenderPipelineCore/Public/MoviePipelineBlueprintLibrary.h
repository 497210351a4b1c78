// UMoviePipelineBlueprintLibrary: Movie Render Pipeline helpers exposed to scripts.
#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "MovieRenderPipelineDataTypes.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class ULevelSequence;
class UMoviePipeline;
class UMoviePipelineExecutorJob;

UCLASS(MinimalAPI, meta = (ScriptName = "MoviePipelineLibrary"))
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineBlueprintLibrary : public UBlueprintFunctionLibrary
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineBlueprintLibrary, UBlueprintFunctionLibrary, MOVIERENDERPIPELINECORE_API)

public:
	// Rebuilds the job's shot list from the sequence's shots: one shot per shot section (or, for a sequence without
	// shots, one for its whole playback range). Shots whose names match an existing shot reuse it, keeping its state.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static void UpdateJobShotListFromSequence(ULevelSequence* InSequence, UMoviePipelineExecutorJob* InJob, bool& bShotsChanged);

	// How much of the pipeline's job is rendered, 0 to 1 (1 once the pipeline finished); 0 for a null pipeline.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API static float GetCompletionPercentage(const UMoviePipeline* InPipeline);

	// The pipeline's state; Uninitialized for a null pipeline.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API static EMovieRenderPipelineState GetPipelineState(const UMoviePipeline* InPipeline);

	// The output frame being produced (0-based) and how many the job has in all.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API static void GetOverallOutputFrames(const UMoviePipeline* InMoviePipeline, int32& OutCurrentIndex, int32& OutTotalCount);
};

#undef UE_API
