#include "Graph/Nodes/MovieGraphCollectionNode.h"

#include "UObject/UnrealType.h"

UMovieGraphCollectionNode::UMovieGraphCollectionNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphCollectionNode, CLASS_None, "MovieRenderPipelineCore")
{
}
