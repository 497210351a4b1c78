#include "Graph/Nodes/MovieGraphRerouteNode.h"

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
#include "UObject/UnrealType.h"

UMovieGraphRerouteNode::UMovieGraphRerouteNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphRerouteNode::GetInputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeWildcardProperties() };
}

TArray<FMovieGraphPinProperties> UMovieGraphRerouteNode::GetOutputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeWildcardProperties() };
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphRerouteNode, CLASS_None, "MovieRenderPipelineCore")
{
}
#endif
