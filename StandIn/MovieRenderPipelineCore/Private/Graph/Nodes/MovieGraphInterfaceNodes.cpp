#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphMemberPins.h"
#include "Graph/Nodes/MovieGraphInputNode.h"
#include "Graph/Nodes/MovieGraphOutputNode.h"
#include "UObject/UnrealType.h"

UMovieGraphInputNode::UMovieGraphInputNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphInputNode::GetOutputPinProperties() const
{
	const UMovieGraphConfig* Graph = GetGraph();
	return Graph ? UE::MovieGraph::Private::MakeMemberPinProperties(Graph->GetInputs()) : TArray<FMovieGraphPinProperties>();
}

UMovieGraphOutputNode::UMovieGraphOutputNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphOutputNode::GetInputPinProperties() const
{
	const UMovieGraphConfig* Graph = GetGraph();
	return Graph ? UE::MovieGraph::Private::MakeMemberPinProperties(Graph->GetOutputs()) : TArray<FMovieGraphPinProperties>();
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphInputNode, CLASS_None, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphOutputNode, CLASS_None, "MovieRenderPipelineCore")
{
}
