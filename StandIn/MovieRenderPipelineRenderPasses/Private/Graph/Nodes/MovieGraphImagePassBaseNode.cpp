#include "Graph/Nodes/MovieGraphImagePassBaseNode.h"

#include "UObject/UnrealType.h"

UMovieGraphImagePassBaseNode::UMovieGraphImagePassBaseNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImagePassBaseNode, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}
