#include "Graph/MovieGraphPipeline.h"

#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

UMovieGraphPipeline::UMovieGraphPipeline()
	: CurrentShotIndex(0)
{
}

void UMovieGraphPipeline::ShutdownImpl(bool bIsError)
{
	RequestShutdownImpl(bIsError);
	PipelineState = EMovieRenderPipelineState::Finished;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphPipeline, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(CurrentJobDuplicate, CPF_Transient);
	STANDIN_PROPERTY(ActiveShotList, CPF_Transient);
	STANDIN_FUNCTION(GetCurrentJob);
	STANDIN_FUNCTION(GetCurrentShotIndex);
	STANDIN_FUNCTION(GetInitializationTime);
}
