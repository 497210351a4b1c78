#include "MoviePipelineLinearExecutor.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphPipeline.h"
#include "MoviePipeline.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "MoviePipelineLinearExecutorBase"

UMoviePipelineLinearExecutorBase::UMoviePipelineLinearExecutorBase()
	: CurrentPipelineIndex(0)
	, JobsStarted(0)
	, bIsRendering(false)
	, bIsCanceling(false)
{
}

void UMoviePipelineLinearExecutorBase::Execute_Implementation(UMoviePipelineQueue* InPipelineQueue)
{
	if (!InPipelineQueue)
	{
		OnExecutorErroredImpl(nullptr, true, LOCTEXT("MissingQueue", "Executor asked to execute a null queue, not supported!"));
		OnExecutorFinishedImpl();
		return;
	}
	if (InPipelineQueue->GetJobs().Num() == 0)
	{
		OnExecutorErroredImpl(nullptr, true, LOCTEXT("EmptyQueue", "Executor asked to execute empty list of jobs. This was probably not intended!"));
		OnExecutorFinishedImpl();
		return;
	}
	Queue = InPipelineQueue;
	bIsCanceling = false;
	JobsStarted = 0;
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("MoviePipelineLinearExecutorBase starting %d jobs."), InPipelineQueue->GetJobs().Num());
	StartPipelineByIndex(0);
}

void UMoviePipelineLinearExecutorBase::StartPipelineByIndex(int32 InPipelineIndex)
{
	for (CurrentPipelineIndex = InPipelineIndex; Queue && CurrentPipelineIndex < Queue->GetJobs().Num(); ++CurrentPipelineIndex)
	{
		UMoviePipelineExecutorJob* Job = Queue->GetJobs()[CurrentPipelineIndex];
		if (!Job)
		{
			UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Job %d of the queue is null, skipping."), CurrentPipelineIndex);
			continue;
		}
		if (!Job->IsEnabled())
		{
			UE_LOG(LogMovieRenderPipeline, Log, TEXT("Skipping job %d (%s): it is disabled."), CurrentPipelineIndex, *Job->JobName);
			continue;
		}
		if (Job->IsConsumed())
		{
			UE_LOG(LogMovieRenderPipeline, Log, TEXT("Skipping job %d (%s): it has already been consumed."), CurrentPipelineIndex, *Job->JobName);
			continue;
		}
		if (!Job->GetConfiguration())
		{
			OnExecutorErroredImpl(nullptr, true, LOCTEXT("MissingConfig", "Found null config in list of configs to render with!"));
			OnExecutorFinishedImpl();
			return;
		}
		++JobsStarted;
		Start(Job);
		return;
	}
	OnExecutorFinishedImpl();
}

void UMoviePipelineLinearExecutorBase::OnIndividualPipelineFinished(UMoviePipelineBase* FinishedPipeline)
{
	const bool bWasLastJob = !Queue || CurrentPipelineIndex >= Queue->GetJobs().Num() - 1;
	if (bWasLastJob || bIsCanceling)
	{
		OnExecutorFinishedImpl();
		return;
	}
	StartPipelineByIndex(CurrentPipelineIndex + 1);
}

void UMoviePipelineLinearExecutorBase::OnExecutorFinishedImpl()
{
	if (!bIsCanceling && !bAnyJobHadFatalError)
	{
		SetStatusProgress(1.0f);
	}
	bIsRendering = false;
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("MoviePipelineLinearExecutorBase finished %d jobs."), JobsStarted);
	Super::OnExecutorFinishedImpl();
}

void UMoviePipelineLinearExecutorBase::CancelCurrentJob_Implementation()
{
	if (!bIsRendering)
	{
		return;
	}
	OnExecutorErroredImpl(Cast<UMoviePipeline>(ActiveMoviePipeline.Get()), true, LOCTEXT("CancelCurrentJob", "Executor canceling current job."));
	if (ActiveMoviePipeline)
	{
		ActiveMoviePipeline->RequestShutdown(true);
	}
}

void UMoviePipelineLinearExecutorBase::CancelAllJobs_Implementation()
{
	if (!bIsRendering)
	{
		return;
	}
	bIsCanceling = true;
	OnExecutorErroredImpl(Cast<UMoviePipeline>(ActiveMoviePipeline.Get()), true, LOCTEXT("CancelAllJobs", "Executor asked to cancel all jobs."));
	if (ActiveMoviePipeline)
	{
		ActiveMoviePipeline->RequestShutdown(true);
	}
}

float UMoviePipelineLinearExecutorBase::GetCompletionPercentageFromActivePipeline() const
{
	if (const UMoviePipeline* LegacyPipeline = Cast<UMoviePipeline>(ActiveMoviePipeline.Get()))
	{
		return UMoviePipelineBlueprintLibrary::GetCompletionPercentage(LegacyPipeline);
	}
	if (const UMovieGraphPipeline* GraphPipeline = Cast<UMovieGraphPipeline>(ActiveMoviePipeline.Get()))
	{
		return UMovieGraphBlueprintLibrary::GetCompletionPercentage(GraphPipeline);
	}
	return 0.0f;
}

#undef LOCTEXT_NAMESPACE

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineLinearExecutorBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Queue, CPF_Transient);
	STANDIN_PROPERTY(ActiveMoviePipeline, CPF_Transient);
}
