#include "Graph/Nodes/MovieGraphVideoOutputNode.h"

#include "UObject/UnrealType.h"

UMovieGraphVideoOutputNode::UMovieGraphVideoOutputNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphVideoOutputNode, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
