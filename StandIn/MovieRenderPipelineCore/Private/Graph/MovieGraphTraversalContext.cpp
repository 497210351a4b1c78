#include "Graph/MovieGraphTraversalContext.h"

#include "Graph/MovieGraphConfig.h"
#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FMovieGraphRenderDataIdentifier, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(RootBranchName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(LayerName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(RendererName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(SubResourceName, CPF_BlueprintVisible);
	STANDIN_PROPERTY(CameraName, CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphTimeStepData, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(OutputFrameNumber, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(ShotOutputFrameNumber, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(RenderedFrameNumber, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(FrameDeltaTime, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(WorldTimeDilation, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(FrameRate, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(bIsFirstTemporalSampleForFrame, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(bIsLastTemporalSampleForFrame, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(bDiscardOutput, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(EvaluatedConfig, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(RootTimeCode, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(RootFrameNumber, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(ShotTimeCode, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(ShotFrameNumber, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphTraversalContext, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(ShotIndex, CPF_BlueprintVisible);
	STANDIN_PROPERTY(ShotCount, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Job, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Shot, CPF_BlueprintVisible);
	STANDIN_PROPERTY(RootGraph, CPF_BlueprintVisible);
	STANDIN_PROPERTY(RenderDataIdentifier, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Time, CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphBranch, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(BranchName, CPF_BlueprintVisible);
}
