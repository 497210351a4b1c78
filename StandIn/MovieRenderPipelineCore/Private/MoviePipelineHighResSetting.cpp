#include "MoviePipelineHighResSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineHighResSetting::UMoviePipelineHighResSetting()
	: TileCount(1)
	, TextureSharpnessBias(0.0f)
	, OverlapRatio(0.0f)
	, bOverrideSubSurfaceScattering(false)
	, BurleySampleCount(64)
	, bAllocateHistoryPerTile(true)
{
}

#if WITH_EDITOR
FText UMoviePipelineHighResSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "HighResSettingDisplayName", "High Resolution");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineHighResSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(TileCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(TextureSharpnessBias, EditableFlags);
	STANDIN_PROPERTY(OverlapRatio, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_PROPERTY(bOverrideSubSurfaceScattering, EditableFlags);
	STANDIN_PROPERTY(BurleySampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_PROPERTY(bAllocateHistoryPerTile, EditableFlags);
}
