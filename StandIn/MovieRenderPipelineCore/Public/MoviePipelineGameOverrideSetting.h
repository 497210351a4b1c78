// UMoviePipelineGameOverrideSetting: the game mode and the quality overrides applied to the world while rendering.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/GameModeBase.h"
#include "MoviePipelineSetting.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UENUM(BlueprintType)
enum class EMoviePipelineTextureStreamingMethod : uint8
{
	// Leaves the texture streaming method and console variables as the user set them.
	None UMETA(DisplayName = "Don't Override"),
	// Disables texture streaming.
	Disabled UMETA(DisplayName = "Disable Streaming"),
	// Fully loads the used textures instead of streaming them in over several frames.
	FullyLoad UMETA(DisplayName = "Fully Load Used Textures"),
};
STANDIN_DECLARE_ENUM(EMoviePipelineTextureStreamingMethod, MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineGameOverrideSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineGameOverrideSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineGameOverrideSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }
	virtual bool IgnoreTransientFilters() const override { return true; }

	// Deprecated in 5.5 in favour of SoftGameModeOverride.
	// Stand-in choice: no UE_DEPRECATED attribute, as the stand-in Core cannot silence it in the constructor.
	UPROPERTY(BlueprintReadWrite, Category = "Game", meta = (DeprecatedProperty, DeprecationMessage = "Please use the SoftGameModeOverride property instead."))
	TSubclassOf<AGameModeBase> GameModeOverride;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, DisplayName = "Game Mode Override", Category = "Game")
	TSoftClassPtr<AGameModeBase> SoftGameModeOverride;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game")
	bool bCinematicQualitySettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	EMoviePipelineTextureStreamingMethod TextureStreaming;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	bool bUseLODZero;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	bool bDisableHLODs;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	bool bUseHighQualityShadows;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = bUseHighQualityShadows))
	int32 ShadowDistanceScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = bUseHighQualityShadows, UIMin = 0.001, ClampMin = 0.001))
	float ShadowRadiusThreshold;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (InlineEditConditionToggle))
	bool bOverrideViewDistanceScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = bOverrideViewDistanceScale))
	int32 ViewDistanceScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	bool bFlushGrassStreaming;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (InlineEditConditionToggle))
	bool bOverrideGrassCullDistanceScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = bOverrideGrassCullDistanceScale))
	float GrassCullDistanceScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (InlineEditConditionToggle))
	bool bOverrideGrassDensityScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = bOverrideGrassDensityScale))
	float GrassDensityScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	bool bFlushStreamingManagers;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (InlineEditConditionToggle))
	bool bOverrideVirtualTextureFeedbackFactor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (EditCondition = "bOverrideVirtualTextureFeedbackFactor"))
	int32 VirtualTextureFeedbackFactor;

	// Only applies to the D3D12 renderer; not reflected.
	bool bDisableGPUTimeout;
};

#undef UE_API
