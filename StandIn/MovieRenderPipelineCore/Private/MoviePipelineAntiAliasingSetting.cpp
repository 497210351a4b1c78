#include "MoviePipelineAntiAliasingSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineAntiAliasingSetting::UMoviePipelineAntiAliasingSetting()
	: SpatialSampleCount(1)
	, TemporalSampleCount(1)
	, bOverrideAntiAliasing(false)
	, AntiAliasingMethod(EAntiAliasingMethod::AAM_None)
	, RenderWarmUpCount(32)
	, bUseCameraCutForWarmUp(false)
	, EngineWarmUpCount(0)
	, bRenderWarmUpFrames(false)
{
}

#if WITH_EDITOR
FText UMoviePipelineAntiAliasingSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "AntiAliasingSettingDisplayName", "Anti-aliasing");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineAntiAliasingSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(SpatialSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(TemporalSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(bOverrideAntiAliasing, EditableFlags);
	VLMR_PROPERTY(AntiAliasingMethod, EditableFlags);
	VLMR_PROPERTY(RenderWarmUpCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	VLMR_PROPERTY(bUseCameraCutForWarmUp, EditableFlags);
	VLMR_PROPERTY(EngineWarmUpCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	VLMR_PROPERTY(bRenderWarmUpFrames, EditableFlags);
}
