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

VLMR_IMPLEMENT_CLASS(UMoviePipelineHighResSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(TileCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(TextureSharpnessBias, EditableFlags);
	VLMR_PROPERTY(OverlapRatio, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	VLMR_PROPERTY(bOverrideSubSurfaceScattering, EditableFlags);
	VLMR_PROPERTY(BurleySampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	VLMR_PROPERTY(bAllocateHistoryPerTile, EditableFlags);
}
