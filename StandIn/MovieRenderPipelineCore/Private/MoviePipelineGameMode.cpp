#include "MoviePipelineGameMode.h"

#include "UObject/UnrealType.h"

AMoviePipelineGameMode::AMoviePipelineGameMode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(AMoviePipelineGameMode, CLASS_None, "MovieRenderPipelineCore")
{
}
