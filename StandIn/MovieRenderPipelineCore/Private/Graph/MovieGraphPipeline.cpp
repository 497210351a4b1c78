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

VLMR_IMPLEMENT_CLASS(UMovieGraphPipeline, CLASS_None, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(CurrentJobDuplicate, CPF_Transient);
	VLMR_PROPERTY(ActiveShotList, CPF_Transient);
	VLMR_FUNCTION(GetCurrentJob);
	VLMR_FUNCTION(GetCurrentShotIndex);
	VLMR_FUNCTION(GetInitializationTime);
}
