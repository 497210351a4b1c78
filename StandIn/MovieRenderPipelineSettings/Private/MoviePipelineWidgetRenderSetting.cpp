#include "MoviePipelineWidgetRenderSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineWidgetRenderer::UMoviePipelineWidgetRenderer()
	: bCompositeOntoFinalImage(true)
{
}

#if WITH_EDITOR
FText UMoviePipelineWidgetRenderer::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "WidgetRendererSettingDisplayName", "UI Renderer");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineWidgetRenderer, CLASS_None, "MovieRenderPipelineSettings")
{
	VLMR_PROPERTY(bCompositeOntoFinalImage, CPF_Edit | CPF_BlueprintVisible);
}
