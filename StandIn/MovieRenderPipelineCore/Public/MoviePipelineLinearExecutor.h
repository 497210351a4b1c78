// UMoviePipelineLinearExecutorBase: an executor that renders the jobs of a queue one after the other, in queue order.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineExecutor.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMoviePipelineBase;
class UMoviePipelineExecutorJob;

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineLinearExecutorBase : public UMoviePipelineExecutorBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineLinearExecutorBase, UMoviePipelineExecutorBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineLinearExecutorBase();

protected:
	UE_API virtual void Execute_Implementation(UMoviePipelineQueue* InPipelineQueue) override;
	virtual bool IsRendering_Implementation() const override { return bIsRendering; }
	// Stand-in choice: the active pipeline is asked to shut down (RequestShutdown), so a cancel takes effect at its next tick.
	UE_API virtual void CancelCurrentJob_Implementation() override;
	UE_API virtual void CancelAllJobs_Implementation() override;
	UE_API virtual void OnExecutorFinishedImpl() override;

	// Starts rendering the job; the subclass calls OnIndividualPipelineFinished once the job is done.
	virtual void Start(const UMoviePipelineExecutorJob* InJob) {}

	// Moves on to the next job, or finishes when that was the last one or the executor is canceling.
	UE_API virtual void OnIndividualPipelineFinished(UMoviePipelineBase* FinishedPipeline);

	// The active pipeline's completion (0 to 1), or 0 without one.
	UE_API float GetCompletionPercentageFromActivePipeline() const;

private:
	// Starts the first job from InPipelineIndex on that is enabled and not consumed; finishes when none is left.
	void StartPipelineByIndex(int32 InPipelineIndex);

protected:
	UPROPERTY(Transient)
	TObjectPtr<UMoviePipelineQueue> Queue;

	UPROPERTY(Transient)
	TObjectPtr<UMoviePipelineBase> ActiveMoviePipeline;

	int32 CurrentPipelineIndex;
	int32 JobsStarted;
	bool bIsRendering;
	bool bIsCanceling;
};

#undef UE_API
