#include "MovieRenderPipelineCoreModule.h"

#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogMovieRenderPipeline);

IMPLEMENT_MODULE(FMovieRenderPipelineCoreModule, MovieRenderPipelineCore);
