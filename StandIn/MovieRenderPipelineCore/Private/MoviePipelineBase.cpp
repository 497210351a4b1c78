#include "MoviePipelineBase.h"

#include "UObject/UnrealType.h"

UMoviePipelineBase::UMoviePipelineBase()
	: PipelineState(EMovieRenderPipelineState::Uninitialized)
	, bShutdownRequested(false)
	, bShutdownErrorRequested(false)
{
}

void UMoviePipelineBase::RequestShutdownImpl(bool bIsError)
{
	bShutdownErrorRequested |= bIsError;
	bShutdownRequested = true;
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	VLMR_FUNCTION(RequestShutdown, TEXT("bIsError"));
	VLMR_FUNCTION(Shutdown, TEXT("bIsError"));
	VLMR_FUNCTION(IsShutdownRequested);
	VLMR_FUNCTION(GetPipelineState);
}
