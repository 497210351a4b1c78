#include "Graph/Nodes/MovieGraphRenderPassNode.h"

#include "UObject/UnrealType.h"

UMovieGraphRenderPassNode::UMovieGraphRenderPassNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphRenderPassNode, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
