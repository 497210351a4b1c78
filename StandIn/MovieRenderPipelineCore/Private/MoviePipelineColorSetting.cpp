#include "MoviePipelineColorSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineColorSetting::UMoviePipelineColorSetting()
	: bDisableToneCurve(false)
{
}

#if WITH_EDITOR
FText UMoviePipelineColorSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ColorSetting", "Color Output");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineColorSetting, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(bDisableToneCurve, CPF_Edit | CPF_BlueprintVisible | CPF_AdvancedDisplay);
}
