// UMovieGraphPipeline: the pipeline that renders a job configured with a Movie Render Graph. It renders a copy of the
// job, shot after shot: engine warm-up frames, an optional motion blur frame, then every output frame over its temporal
// sub-samples (one per engine tick), handing each finished frame to the graph's file outputs.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphRenderDataIdentifier.h"
#include "Graph/MovieGraphTimeStepData.h"
#include "Graph/MovieGraphTraversalContext.h"
#include "Misc/DateTime.h"
#include "Misc/FrameRate.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineStandInShotRanges.h"
#include "Tickable.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UCineCameraComponent;
class UMovieGraphConfig;
class UMovieGraphEvaluatedConfig;
class UMovieGraphFileOutputNode;
class UMoviePipelineExecutorJob;
class UMoviePipelineExecutorShot;

namespace UE::MovieGraph
{
	struct FMovieGraphOutputMergerFrame;
}

// How a graph pipeline is set up.
// Stand-in choice: the engine's fields are not established and the stand-in's pipeline has no options, so it has none.
USTRUCT(BlueprintType)
struct FMovieGraphInitConfig
{
	STANDIN_STRUCT_BODY(FMovieGraphInitConfig, MOVIERENDERPIPELINECORE_API)
};

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphPipeline : public UMoviePipelineBase, public FTickableGameObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphPipeline, UMoviePipelineBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphPipeline();

	// Prepares the render of a copy of the job: its graph, shot list and frame ranges. Rendering starts at the next tick.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Graph")
	UE_API void Initialize(UMoviePipelineExecutorJob* InJob, const FMovieGraphInitConfig& InInitConfig);

	// The copy of the job this pipeline renders; its graph is a copy in the transient package that scripts may change.
	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	UMoviePipelineExecutorJob* GetCurrentJob() const { return CurrentJobDuplicate; }

	// The shots of the job copy that render (enabled ones with output frames), in render order.
	const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& GetActiveShotList() const { return ActiveShotList; }

	// The shot being rendered; the last one once every shot is done.
	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	int32 GetCurrentShotIndex() const { return FMath::Min(CurrentShotIndex, FMath::Max(ActiveShotList.Num() - 1, 0)); }

	// When the render was initialized, in UTC.
	UFUNCTION(BlueprintPure, Category = "Movie Render Graph")
	FDateTime GetInitializationTime() const { return InitializationTime; }

	// Where the render stands in time at the current engine tick, with the graph evaluated for it.
	// Stand-in choice: offered as the time-step data itself; the engine hands out its time-step object.
	const FMovieGraphTimeStepData& GetCurrentTimeStepData() const { return TimeStepData; }

	// FTickableGameObject: each tick takes one warm-up frame, the motion blur frame or one temporal sub-sample.
	UE_API virtual void Tick(float DeltaTime) override;
	UE_API virtual bool IsTickable() const override;
	virtual bool IsTickableInEditor() const override { return true; }

protected:
	UE_API virtual void ShutdownImpl(bool bIsError) override;
	virtual UMoviePipelineExecutorJob* GetWorkFinishedJob() const override { return SourceJob.Get(); }

private:
	friend class UMovieGraphBlueprintLibrary;

	bool InitializeRender(UMoviePipelineExecutorJob& InJob);
	bool DuplicateJobAndGraph(UMoviePipelineExecutorJob& InJob);
	bool GatherActiveShots();
	bool IsRenderSourceValid() const;
	bool IsFrameInFlight() const { return CurrentSubSample > 0; }

	void TickProducingFrames();
	void TickShot(UMoviePipelineExecutorShot& InShot);
	bool BeginShot(UMoviePipelineExecutorShot& InShot);
	void AdvanceShotState(UMoviePipelineExecutorShot& InShot) const;
	void TickWarmUp(UMoviePipelineExecutorShot& InShot);
	bool TickRendering(UMoviePipelineExecutorShot& InShot);
	void OutputFrame(UMoviePipelineExecutorShot& InShot);
	void FinishShot(UMoviePipelineExecutorShot& InShot);
	void PrepareShotCamera(const UMoviePipelineExecutorShot& InShot);
	int32 ResolveShotVersion(UMoviePipelineExecutorShot& InShot) const;

	bool EvaluateGraph(UMoviePipelineExecutorShot& InShot);
	FMovieGraphTraversalContext MakeTraversalContext(UMoviePipelineExecutorShot* InShot) const;
	void UpdateTimeStep(bool bInDiscardOutput);
	TArray<FMovieGraphRenderDataIdentifier> GatherRenderData(const FString& InCameraName) const;
	void SendFrameToFileOutputs(UE::MovieGraph::FMovieGraphOutputMergerFrame& InFrame);

	void UpdateJobProgress();
	void FailRender();
	void FlushFileOutputs();

	// The job the executor handed in, and its graph asset; held weakly so that deleting either fails the render cleanly.
	TWeakObjectPtr<UMoviePipelineExecutorJob> SourceJob;
	TWeakObjectPtr<UMovieGraphConfig> SourceGraph;

	UPROPERTY(Transient)
	TObjectPtr<UMoviePipelineExecutorJob> CurrentJobDuplicate;

	UPROPERTY(Transient)
	TObjectPtr<UMovieGraphConfig> GraphDuplicate;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UMoviePipelineExecutorShot>> ActiveShotList;

	UPROPERTY(Transient)
	FMovieGraphTimeStepData TimeStepData;

	// The camera of the current shot.
	UPROPERTY(Transient)
	TObjectPtr<UCineCameraComponent> CurrentCineCamera;

	// The file output class default objects frames were sent to; they are flushed when the render finalizes.
	// Stand-in choice: an array; the engine keeps a set.
	UPROPERTY(Transient)
	TArray<TObjectPtr<UMovieGraphFileOutputNode>> OutputNodesDataSentTo;

	TArray<UE::MoviePipeline::StandIn::FShotOutputRange> ShotRanges;
	int32 CurrentShotIndex;
	// The output frame of the current shot being rendered, and its temporal sub-samples taken so far.
	int32 CurrentFrameInShot;
	int32 CurrentSubSample;
	int32 CurrentTemporalSampleCount;
	int32 WarmUpFramesTaken;
	bool bEmulateMotionBlur;
	bool bMotionBlurFrameTaken;
	int32 OutputFrameCount;
	int32 TotalOutputFrames;
	FFrameRate EffectiveFrameRate;
	FDateTime InitializationTime;
};

#undef UE_API
