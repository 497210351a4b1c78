#include "Graph/Nodes/MovieGraphApplyCVarPresetNode.h"

#include "UObject/UnrealType.h"

UMovieGraphApplyCVarPresetNode::UMovieGraphApplyCVarPresetNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphApplyCVarPresetNode, CLASS_None, "MovieRenderPipelineCore")
{
}
