#include "MoviePipelineViewFamilySetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineViewFamilySetting::UMoviePipelineViewFamilySetting() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineViewFamilySetting, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
