// UMoviePipelineBlueprintLibrary: Movie Render Pipeline helpers exposed to scripts.
#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"

class ULevelSequence;
class UMoviePipelineExecutorJob;

UCLASS(MinimalAPI, meta = (ScriptName = "MoviePipelineLibrary"))
class MOVIERENDERPIPELINECORE_API UMoviePipelineBlueprintLibrary : public UBlueprintFunctionLibrary
{
	VLMR_CLASS_BODY(UMoviePipelineBlueprintLibrary, UBlueprintFunctionLibrary, MOVIERENDERPIPELINECORE_API)

public:
	// Rebuilds the job's shot list from the sequence's shots: one shot per shot section (or, for a sequence without
	// shots, one for its whole playback range). Shots whose names match an existing shot reuse it, keeping its state.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	static void UpdateJobShotListFromSequence(ULevelSequence* InSequence, UMoviePipelineExecutorJob* InJob, bool& bShotsChanged);
};
