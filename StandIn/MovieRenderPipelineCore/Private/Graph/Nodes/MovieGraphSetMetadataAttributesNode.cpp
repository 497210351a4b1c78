#include "Graph/Nodes/MovieGraphSetMetadataAttributesNode.h"

#include "UObject/UnrealType.h"

UMovieGraphSetMetadataAttributesNode::UMovieGraphSetMetadataAttributesNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSetMetadataAttributesNode, CLASS_None, "MovieRenderPipelineCore")
{
}
