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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineWidgetRenderer, CLASS_None, "MovieRenderPipelineSettings")
{
	STANDIN_PROPERTY(bCompositeOntoFinalImage, CPF_Edit | CPF_BlueprintVisible);
}
