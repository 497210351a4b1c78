#include "MoviePipelineImagePassBase.h"

#include "UObject/UnrealType.h"

UMoviePipelineImagePassBase::UMoviePipelineImagePassBase() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImagePassBase, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}
