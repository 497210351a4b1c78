#include "Graph/MovieGraphConfig.h"

#include "UObject/UnrealType.h"

UMovieGraphConfig::UMovieGraphConfig() = default;

VLMR_IMPLEMENT_CLASS(UMovieGraphConfig, CLASS_None, "MovieRenderPipelineCore")
{
}
