#include "MoviePipelineBurnInSetting.h"

#include "UObject/UnrealType.h"

FString UMoviePipelineBurnInSetting::DefaultBurnInWidgetAsset = TEXT("/MovieRenderPipeline/Blueprints/DefaultBurnIn.DefaultBurnIn_C");

UMoviePipelineBurnInSetting::UMoviePipelineBurnInSetting()
	: BurnInClass(DefaultBurnInWidgetAsset)
	, bCompositeOntoFinalImage(true)
{
}

#if WITH_EDITOR
FText UMoviePipelineBurnInSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "BurnInSettingDisplayName", "Burn In");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineBurnInSetting, CLASS_None, "MovieRenderPipelineSettings")
{
	STANDIN_PROPERTY(BurnInClass, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(bCompositeOntoFinalImage, CPF_Edit | CPF_BlueprintVisible);
}
