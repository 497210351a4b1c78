#include "MoviePipelineVideoOutputBase.h"

#include "UObject/UnrealType.h"

UMoviePipelineVideoOutputBase::UMoviePipelineVideoOutputBase() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineVideoOutputBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
