#include "MoviePipelineGameMode.h"

#include "UObject/UnrealType.h"

AMoviePipelineGameMode::AMoviePipelineGameMode() = default;

VLMR_IMPLEMENT_CLASS(AMoviePipelineGameMode, CLASS_None, "MovieRenderPipelineCore")
{
}
