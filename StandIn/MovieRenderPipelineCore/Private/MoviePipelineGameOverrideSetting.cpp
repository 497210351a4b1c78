#include "MoviePipelineGameOverrideSetting.h"

#include "MoviePipelineGameMode.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EMoviePipelineTextureStreamingMethod, "MovieRenderPipelineCore", None, Disabled, FullyLoad)

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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineGameOverrideSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	FProperty* DeprecatedGameMode = STANDIN_PROPERTY(GameModeOverride, CPF_BlueprintVisible);
	DeprecatedGameMode->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
	DeprecatedGameMode->SetMetaData(TEXT("DeprecationMessage"), TEXT("Please use the SoftGameModeOverride property instead."));
	STANDIN_PROPERTY(SoftGameModeOverride, EditableFlags)->SetMetaData(TEXT("DisplayName"), TEXT("Game Mode Override"));
	STANDIN_PROPERTY(bCinematicQualitySettings, EditableFlags);
	STANDIN_PROPERTY(TextureStreaming, EditableFlags);
	STANDIN_PROPERTY(bUseLODZero, EditableFlags);
	STANDIN_PROPERTY(bDisableHLODs, EditableFlags);
	STANDIN_PROPERTY(bUseHighQualityShadows, EditableFlags);
	STANDIN_PROPERTY(ShadowDistanceScale, EditableFlags);
	STANDIN_PROPERTY(ShadowRadiusThreshold, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0.001"));
	STANDIN_PROPERTY(bOverrideViewDistanceScale, EditableFlags);
	STANDIN_PROPERTY(ViewDistanceScale, EditableFlags);
	STANDIN_PROPERTY(bFlushGrassStreaming, EditableFlags);
	STANDIN_PROPERTY(bOverrideGrassCullDistanceScale, EditableFlags);
	STANDIN_PROPERTY(GrassCullDistanceScale, EditableFlags);
	STANDIN_PROPERTY(bOverrideGrassDensityScale, EditableFlags);
	STANDIN_PROPERTY(GrassDensityScale, EditableFlags);
	STANDIN_PROPERTY(bFlushStreamingManagers, EditableFlags);
	STANDIN_PROPERTY(bOverrideVirtualTextureFeedbackFactor, EditableFlags);
	STANDIN_PROPERTY(VirtualTextureFeedbackFactor, EditableFlags);
}
