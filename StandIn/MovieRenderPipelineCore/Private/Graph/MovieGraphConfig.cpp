#include "Graph/MovieGraphConfig.h"

#include "UObject/UnrealType.h"

UMovieGraphConfig::UMovieGraphConfig() = default;

STANDIN_IMPLEMENT_CLASS(UMovieGraphConfig, CLASS_None, "MovieRenderPipelineCore")
{
}
