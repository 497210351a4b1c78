#include "Graph/Nodes/MovieGraphAudioOutputNode.h"

#include "UObject/UnrealType.h"

UMovieGraphAudioOutputNode::UMovieGraphAudioOutputNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphAudioOutputNode, CLASS_None, "MovieRenderPipelineCore")
{
}
