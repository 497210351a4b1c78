#include "Graph/Nodes/MovieGraphSetStartEndConsoleCommandsNode.h"

#include "UObject/UnrealType.h"

UMovieGraphSetStartEndConsoleCommandsNode::UMovieGraphSetStartEndConsoleCommandsNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSetStartEndConsoleCommandsNode, CLASS_None, "MovieRenderPipelineCore")
{
}
