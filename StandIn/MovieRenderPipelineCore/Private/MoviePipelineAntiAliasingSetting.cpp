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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineAntiAliasingSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(SpatialSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(TemporalSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(bOverrideAntiAliasing, EditableFlags);
	STANDIN_PROPERTY(AntiAliasingMethod, EditableFlags);
	STANDIN_PROPERTY(RenderWarmUpCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_PROPERTY(bUseCameraCutForWarmUp, EditableFlags);
	STANDIN_PROPERTY(EngineWarmUpCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_PROPERTY(bRenderWarmUpFrames, EditableFlags);
}
