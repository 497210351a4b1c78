// FMovieGraphTraversalContext: what a graph is evaluated for: the job, the shot and the moment of the render.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphRenderDataIdentifier.h"
#include "Graph/MovieGraphTimeStepData.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

class UMovieGraphConfig;
class UMoviePipelineExecutorJob;
class UMoviePipelineExecutorShot;

USTRUCT(BlueprintType)
struct FMovieGraphTraversalContext
{
	STANDIN_STRUCT_BODY(FMovieGraphTraversalContext, MOVIERENDERPIPELINECORE_API)

public:
	// Index into the pipeline's active shot list.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 ShotIndex = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 ShotCount = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMoviePipelineExecutorJob> Job;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMoviePipelineExecutorShot> Shot;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMovieGraphConfig> RootGraph;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FMovieGraphRenderDataIdentifier RenderDataIdentifier;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FMovieGraphTimeStepData Time;
};

USTRUCT(BlueprintType)
struct FMovieGraphBranch
{
	STANDIN_STRUCT_BODY(FMovieGraphBranch, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FName BranchName;
};
