// UMovieGraphPipeline: the pipeline that renders a job configured with a Movie Render Graph.
#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "MoviePipelineBase.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMoviePipelineExecutorJob;
class UMoviePipelineExecutorShot;

// Stand-in choice: declared with its job-facing queries only; rendering a graph is not offered yet.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphPipeline : public UMoviePipelineBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphPipeline, UMoviePipelineBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphPipeline();

	// The copy of the job this pipeline renders.
	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	UMoviePipelineExecutorJob* GetCurrentJob() const { return CurrentJobDuplicate; }

	// The shots of the job that render (enabled ones).
	const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& GetActiveShotList() const { return ActiveShotList; }

	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	int32 GetCurrentShotIndex() const { return CurrentShotIndex; }

	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	FDateTime GetInitializationTime() const { return InitializationTime; }

protected:
	UE_API virtual void ShutdownImpl(bool bIsError) override;

private:
	UPROPERTY(Transient)
	TObjectPtr<UMoviePipelineExecutorJob> CurrentJobDuplicate;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UMoviePipelineExecutorShot>> ActiveShotList;

	int32 CurrentShotIndex;
	FDateTime InitializationTime;
};

#undef UE_API
