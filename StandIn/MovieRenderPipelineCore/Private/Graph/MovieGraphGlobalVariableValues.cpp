#include "Graph/MovieGraphConfig.h"

#include "MoviePipelineQueue.h"

void UMovieGraphGlobalVariable_ShotName::UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline)
{
	if (InTraversalContext && InTraversalContext->Shot)
	{
		SetValueString(InTraversalContext->Shot->OuterName);
	}
}

void UMovieGraphGlobalVariable_SequenceName::UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline)
{
	if (InTraversalContext && InTraversalContext->Job)
	{
		SetValueString(InTraversalContext->Job->Sequence.GetAssetName());
	}
}

void UMovieGraphGlobalVariable_FrameNumber::UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline)
{
	if (InTraversalContext)
	{
		SetValueInt32(InTraversalContext->Time.ShotFrameNumber.Value);
	}
}

void UMovieGraphGlobalVariable_CameraName::UpdateValue(const FMovieGraphTraversalContext* InTraversalContext, const UMovieGraphPipeline* InPipeline)
{
	if (InTraversalContext && InTraversalContext->Shot)
	{
		SetValueString(InTraversalContext->Shot->InnerName);
	}
}
