#include "MoviePipelineBase.h"

#include "MovieRenderPipelineCoreModule.h"
#include "UObject/UnrealType.h"

UMoviePipelineBase::UMoviePipelineBase()
	: PipelineState(EMovieRenderPipelineState::Uninitialized)
	, bFatalError(false)
	, bShutdownRequested(false)
	, bShutdownErrorRequested(false)
{
}

void UMoviePipelineBase::RequestShutdownImpl(bool bIsError)
{
	bShutdownErrorRequested |= bIsError;
	bShutdownRequested = true;
}

void UMoviePipelineBase::TransitionToState(EMovieRenderPipelineState InNewState)
{
	if (PipelineState == InNewState || PipelineState == EMovieRenderPipelineState::Finished)
	{
		return;
	}
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("Transitioning from state %d to %d."), int32(PipelineState), int32(InNewState));
	PipelineState = InNewState;
	if (InNewState == EMovieRenderPipelineState::Finished)
	{
		FMoviePipelineOutputData OutputData;
		OutputData.Pipeline = this;
		OutputData.Job = GetWorkFinishedJob();
		OutputData.bSuccess = !bFatalError;
		OnMoviePipelineWorkFinished().Broadcast(OutputData);
	}
}

bool UMoviePipelineBase::IsRunning() const
{
	const bool bRunning = PipelineState != EMovieRenderPipelineState::Uninitialized && PipelineState != EMovieRenderPipelineState::Finished;
	return bRunning && !HasAnyFlags(RF_ClassDefaultObject);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(RequestShutdown, TEXT("bIsError"));
	STANDIN_FUNCTION(Shutdown, TEXT("bIsError"));
	STANDIN_FUNCTION(IsShutdownRequested);
	STANDIN_FUNCTION(GetPipelineState);
}
