#include "Graph/MovieGraphConfig.h"

#include "UObject/UnrealType.h"

UMovieGraphConfig::UMovieGraphConfig() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphConfig, CLASS_None, "MovieRenderPipelineCore")
{
}
