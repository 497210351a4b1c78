// The Movie Render Pipeline runtime module and its log category.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

MOVIERENDERPIPELINECORE_API DECLARE_LOG_CATEGORY_EXTERN(LogMovieRenderPipeline, Log, All);

class FMovieRenderPipelineCoreModule : public IModuleInterface
{
};
