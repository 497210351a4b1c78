#include "MoviePipelineGameOverrideSetting.h"

#include "MoviePipelineGameMode.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_ENUM(EMoviePipelineTextureStreamingMethod, "MovieRenderPipelineCore", None, Disabled, FullyLoad)

UMoviePipelineGameOverrideSetting::UMoviePipelineGameOverrideSetting()
	: GameModeOverride(nullptr)
	, SoftGameModeOverride(AMoviePipelineGameMode::StaticClass())
	, bCinematicQualitySettings(true)
	, TextureStreaming(EMoviePipelineTextureStreamingMethod::Disabled)
	, bUseLODZero(true)
	, bDisableHLODs(true)
	, bUseHighQualityShadows(true)
	, ShadowDistanceScale(10)
	, ShadowRadiusThreshold(0.001f)
	, bOverrideViewDistanceScale(true)
	, ViewDistanceScale(50)
	, bFlushGrassStreaming(true)
	, bOverrideGrassCullDistanceScale(true)
	, GrassCullDistanceScale(50.0f)
	, bOverrideGrassDensityScale(false)
	, GrassDensityScale(1.0f)
	, bFlushStreamingManagers(true)
	, bOverrideVirtualTextureFeedbackFactor(true)
	, VirtualTextureFeedbackFactor(1)
	, bDisableGPUTimeout(true)
{
}

#if WITH_EDITOR
FText UMoviePipelineGameOverrideSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "GameOverrideSettingDisplayName", "Game Overrides");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineGameOverrideSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	FProperty* DeprecatedGameMode = VLMR_PROPERTY(GameModeOverride, CPF_BlueprintVisible);
	DeprecatedGameMode->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
	DeprecatedGameMode->SetMetaData(TEXT("DeprecationMessage"), TEXT("Please use the SoftGameModeOverride property instead."));
	VLMR_PROPERTY(SoftGameModeOverride, EditableFlags)->SetMetaData(TEXT("DisplayName"), TEXT("Game Mode Override"));
	VLMR_PROPERTY(bCinematicQualitySettings, EditableFlags);
	VLMR_PROPERTY(TextureStreaming, EditableFlags);
	VLMR_PROPERTY(bUseLODZero, EditableFlags);
	VLMR_PROPERTY(bDisableHLODs, EditableFlags);
	VLMR_PROPERTY(bUseHighQualityShadows, EditableFlags);
	VLMR_PROPERTY(ShadowDistanceScale, EditableFlags);
	VLMR_PROPERTY(ShadowRadiusThreshold, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0.001"));
	VLMR_PROPERTY(bOverrideViewDistanceScale, EditableFlags);
	VLMR_PROPERTY(ViewDistanceScale, EditableFlags);
	VLMR_PROPERTY(bFlushGrassStreaming, EditableFlags);
	VLMR_PROPERTY(bOverrideGrassCullDistanceScale, EditableFlags);
	VLMR_PROPERTY(GrassCullDistanceScale, EditableFlags);
	VLMR_PROPERTY(bOverrideGrassDensityScale, EditableFlags);
	VLMR_PROPERTY(GrassDensityScale, EditableFlags);
	VLMR_PROPERTY(bFlushStreamingManagers, EditableFlags);
	VLMR_PROPERTY(bOverrideVirtualTextureFeedbackFactor, EditableFlags);
	VLMR_PROPERTY(VirtualTextureFeedbackFactor, EditableFlags);
}
