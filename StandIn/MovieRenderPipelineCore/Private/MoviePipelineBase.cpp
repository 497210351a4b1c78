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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(RequestShutdown, TEXT("bIsError"));
	STANDIN_FUNCTION(Shutdown, TEXT("bIsError"));
	STANDIN_FUNCTION(IsShutdownRequested);
	STANDIN_FUNCTION(GetPipelineState);
}
