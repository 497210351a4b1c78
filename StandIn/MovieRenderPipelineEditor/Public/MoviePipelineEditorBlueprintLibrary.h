// UMoviePipelineEditorBlueprintLibrary: editor helpers for queues and jobs exposed to scripts.
#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Misc/EngineVersionComparison.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINEEDITOR_API)

class ULevelSequence;
class UMoviePipelineExecutorJob;
class UMoviePipelineQueue;

UCLASS(MinimalAPI, meta = (ScriptName = "MoviePipelineEditorLibrary"))
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINEEDITOR_API) UMoviePipelineEditorBlueprintLibrary : public UBlueprintFunctionLibrary
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineEditorBlueprintLibrary, UBlueprintFunctionLibrary, MOVIERENDERPIPELINEEDITOR_API)

public:
	// A new job of the queue for the sequence, in the editor's current map, named after the sequence.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static UMoviePipelineExecutorJob* CreateJobFromSequence(UMoviePipelineQueue* InPipelineQueue, const ULevelSequence* InSequence);

	// Adds to the job's configuration the project's default setting classes it does not have yet.
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static void EnsureJobHasDefaultSettings(UMoviePipelineExecutorJob* NewJob, bool bForce = false);
#else
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static void EnsureJobHasDefaultSettings(UMoviePipelineExecutorJob* NewJob);
#endif

	// The unresolved output directory of the job's configuration; false without a job.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static bool GetDisplayOutputPathFromJob(UMoviePipelineExecutorJob* InJob, FString& OutOutputPath);

	// The job's output directory with every token resolved that needs no shot or frame; the path is cut before the
	// folder holding the first token it cannot resolve. Empty on failure.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static FString ResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob);

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	// As ResolveOutputDirectoryFromJob, with the reason of a failure.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API static FString TryResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob, FText& OutError);
#endif
};

#undef UE_API
