#include "MoviePipelinePIEExecutor.h"

#include "Graph/MovieGraphPipeline.h"
#include "MoviePipeline.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "MoviePipelinePIEExecutor"

UMoviePipelinePIEExecutor::UMoviePipelinePIEExecutor()
	: bPIEStartupPending(false)
	, bPendingJobCanceled(false)
	, bRenderOffscreen(false)
	, bAllowUsingUnsavedLevels(false)
{
}

bool UMoviePipelinePIEExecutor::IsTickable() const
{
	return bIsRendering && !HasAnyFlags(RF_ClassDefaultObject);
}

// Stand-in choice: starting play-in-editor takes exactly one editor tick and never fails.
void UMoviePipelinePIEExecutor::Start(const UMoviePipelineExecutorJob* InJob)
{
	bIsRendering = true;
	PendingJob = const_cast<UMoviePipelineExecutorJob*>(InJob);
	bPendingJobCanceled = false;
	bPIEStartupPending = true;
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("Starting Play In Editor session for job %d (%s)."), CurrentPipelineIndex, InJob ? *InJob->JobName : TEXT(""));
}

void UMoviePipelinePIEExecutor::Tick(float DeltaTime)
{
	if (bPIEStartupPending)
	{
		bPIEStartupPending = false;
		OnPIEStartupFinished();
	}
	UpdateQueueProgress();
}

void UMoviePipelinePIEExecutor::OnPIEStartupFinished()
{
	UMoviePipelineExecutorJob* Job = PendingJob.Get();
	PendingJob.Reset();
	if (bPendingJobCanceled)
	{
		AbandonPendingJob(FText());
		return;
	}
	if (!Job)
	{
		AbandonPendingJob(LOCTEXT("JobGone", "The job to render no longer exists."));
		return;
	}
	OnIndividualJobStarted().Broadcast(Job);

	UMoviePipelineBase* Pipeline = CreatePipelineForJob(*Job);
	ActiveMoviePipeline = Pipeline;
	Pipeline->OnMoviePipelineWorkFinished().AddUObject(this, &UMoviePipelinePIEExecutor::OnPipelineWorkFinished);
	Pipeline->OnMoviePipelineShotWorkFinished().AddUObject(this, &UMoviePipelinePIEExecutor::OnPipelineShotWorkFinished);
	if (UMovieGraphPipeline* GraphPipeline = Cast<UMovieGraphPipeline>(Pipeline))
	{
		GraphPipeline->Initialize(Job, FMovieGraphInitConfig());
	}
	else
	{
		CastChecked<UMoviePipeline>(Pipeline)->Initialize(Job);
	}
}

// A job configured with a graph renders with the graph pipeline; any other with the legacy pipeline, or the class set
// with SetMoviePipelineClass.
UMoviePipelineBase* UMoviePipelinePIEExecutor::CreatePipelineForJob(const UMoviePipelineExecutorJob& InJob)
{
	if (InJob.IsUsingGraphConfiguration())
	{
		return NewObject<UMovieGraphPipeline>(this);
	}
	UClass* PipelineClass = TargetPipelineClass && TargetPipelineClass->IsChildOf(UMoviePipeline::StaticClass()) ? TargetPipelineClass.Get() : UMoviePipeline::StaticClass();
	return NewObject<UMoviePipeline>(this, PipelineClass);
}

void UMoviePipelinePIEExecutor::AbandonPendingJob(const FText& InReason)
{
	if (!InReason.IsEmpty())
	{
		OnExecutorErroredImpl(nullptr, true, InReason);
	}
	OnIndividualPipelineFinished(nullptr);
}

void UMoviePipelinePIEExecutor::OnPipelineWorkFinished(FMoviePipelineOutputData InOutputData)
{
	UMoviePipelineBase* FinishedPipeline = ActiveMoviePipeline;
	if (!FinishedPipeline || InOutputData.Pipeline != FinishedPipeline)
	{
		return;
	}
	FinishedPipeline->OnMoviePipelineWorkFinished().RemoveAll(this);
	FinishedPipeline->OnMoviePipelineShotWorkFinished().RemoveAll(this);
	// Stand-in choice: only a job that rendered to the end is marked consumed; a failed or canceled one may render again.
	if (InOutputData.bSuccess && InOutputData.Job)
	{
		InOutputData.Job->SetConsumed(true);
	}
	if (!InOutputData.bSuccess && !FinishedPipeline->IsShutdownRequested())
	{
		OnExecutorErroredImpl(Cast<UMoviePipeline>(FinishedPipeline), true, LOCTEXT("JobFailed", "The job failed to render."));
	}
	OnIndividualJobWorkFinished().Broadcast(InOutputData);
	ActiveMoviePipeline = nullptr;
	OnIndividualPipelineFinished(FinishedPipeline);
}

void UMoviePipelinePIEExecutor::OnPipelineShotWorkFinished(FMoviePipelineOutputData InOutputData)
{
	OnIndividualShotWorkFinished().Broadcast(InOutputData);
}

void UMoviePipelinePIEExecutor::OnIndividualPipelineFinished(UMoviePipelineBase* FinishedPipeline)
{
	const int32 NumJobs = Queue ? Queue->GetJobs().Num() : 0;
	if (NumJobs > 0)
	{
		RaiseQueueProgress(float(FMath::Min(CurrentPipelineIndex + 1, NumJobs)) / float(NumJobs));
	}
	Super::OnIndividualPipelineFinished(FinishedPipeline);
}

void UMoviePipelinePIEExecutor::CancelCurrentJob_Implementation()
{
	Super::CancelCurrentJob_Implementation();
	bPendingJobCanceled = bPIEStartupPending;
}

void UMoviePipelinePIEExecutor::CancelAllJobs_Implementation()
{
	Super::CancelAllJobs_Implementation();
	bPendingJobCanceled = bPIEStartupPending;
}

// Stand-in choice: the queue's progress counts every job of the queue equally; it never moves backwards.
void UMoviePipelinePIEExecutor::UpdateQueueProgress()
{
	const int32 NumJobs = Queue ? Queue->GetJobs().Num() : 0;
	if (!bIsRendering || NumJobs == 0)
	{
		return;
	}
	RaiseQueueProgress((float(FMath::Min(CurrentPipelineIndex, NumJobs)) + GetCompletionPercentageFromActivePipeline()) / float(NumJobs));
	SetStatusMessage(FString::Printf(TEXT("Rendering job %d of %d"), FMath::Min(CurrentPipelineIndex + 1, NumJobs), NumJobs));
}

void UMoviePipelinePIEExecutor::RaiseQueueProgress(float InProgress)
{
	SetStatusProgress(FMath::Clamp(FMath::Max(GetStatusProgress(), InProgress), 0.0f, 1.0f));
}

#undef LOCTEXT_NAMESPACE

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelinePIEExecutor, CLASS_None, "MovieRenderPipelineEditor")
{
	STANDIN_FUNCTION(SetIsRenderingOffscreen, TEXT("bInRenderOffscreen"));
	STANDIN_FUNCTION(IsRenderingOffscreen);
	STANDIN_FUNCTION(SetAllowUsingUnsavedLevels, TEXT("bInAllowUsingUnsavedLevels"));
}
