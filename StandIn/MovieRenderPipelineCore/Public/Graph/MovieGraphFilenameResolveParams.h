// FMovieGraphFilenameResolveParams: what a file name is resolved for (render data, frame numbers, job, shot, evaluated
// graph and overrides); FMovieGraphResolveArgs: the token values and file metadata that resolving gathered.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphRenderDataIdentifier.h"
#include "Misc/DateTime.h"
#include "Misc/FrameRate.h"
#include "Misc/Timespan.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

class UMovieGraphEvaluatedConfig;
class UMovieGraphPipeline;
class UMoviePipelineExecutorJob;
class UMoviePipelineExecutorShot;
struct FMovieGraphTraversalContext;

USTRUCT(BlueprintType)
struct FMovieGraphResolveArgs
{
	STANDIN_STRUCT_BODY(FMovieGraphResolveArgs, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TMap<FString, FString> FilenameArguments;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TMap<FString, FString> FileMetadata;
};

USTRUCT(BlueprintType)
struct FMovieGraphFilenameResolveParams
{
	STANDIN_STRUCT_BODY(FMovieGraphFilenameResolveParams, MOVIERENDERPIPELINECORE_API)

public:
	// The parameters a render resolves file names with for the render data at the context's time: frame numbers, job,
	// shot and shot version, the pipeline's initialization time, and zero padding and frame number offset from the Globals
	// output settings. InAdditionalFormatArgs become the format overrides.
	// Stand-in choice: offered in every version, without the engine's sample-state parameter.
	MOVIERENDERPIPELINECORE_API static FMovieGraphFilenameResolveParams MakeResolveParams(const FMovieGraphRenderDataIdentifier& InRenderDataIdentifier,
		const UMovieGraphPipeline* InPipeline, const TObjectPtr<UMovieGraphEvaluatedConfig>& InEvaluatedConfig, const FMovieGraphTraversalContext& InTraversalContext,
		const TMap<FString, FString>& InAdditionalFormatArgs = {});

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FMovieGraphRenderDataIdentifier RenderDataIdentifier;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 RootFrameNumber = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 ShotFrameNumber = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 RootFrameNumberRel = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 ShotFrameNumberRel = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TMap<FString, FString> FileMetadata;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 Version = 0;

	// {frame_number} and {frame_number_shot} take the relative numbers.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	bool bForceRelativeFrameNumbers = false;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FString FileNameOverride;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	bool bEnsureAbsolutePath = true;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FDateTime InitializationTime = FDateTime(0);

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FTimespan InitializationTimeOffset = FTimespan(0);

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 ZeroPadFrameNumberCount = 0;

	// Token values that win over every value resolving produces.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TMap<FString, FString> FileNameFormatOverrides;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMoviePipelineExecutorJob> Job;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMoviePipelineExecutorShot> Shot;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	TObjectPtr<UMovieGraphEvaluatedConfig> EvaluatedConfig;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	int32 FrameNumberOffset = 0;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Graph")
	FFrameRate DefaultFrameRate = FFrameRate(24, 1);
};
