#include "Graph/Nodes/MovieGraphExecuteScriptNode.h"

#include "UObject/UnrealType.h"

UMovieGraphExecuteScriptNode::UMovieGraphExecuteScriptNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphExecuteScriptNode, CLASS_None, "MovieRenderPipelineCore")
{
}
