#include "MoviePipelineRenderPass.h"

#include "UObject/UnrealType.h"

UMoviePipelineRenderPass::UMoviePipelineRenderPass() = default;

#if WITH_EDITOR
FText UMoviePipelineRenderPass::GetCategoryText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "RenderingCategoryName_Text", "Rendering");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineRenderPass, CLASS_Abstract, "MovieRenderPipelineCore")
{
}
