// UMovieGraphGlobalGameOverridesNode: engine settings a render changes for its whole duration (game mode, scalability,
// streaming and compilation flushes); it sits on the Globals branch.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/GameModeBase.h"
#include "Graph/MovieGraphNode.h"
#include "Misc/EngineVersionComparison.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// The engine scalability level a render runs at.
UENUM(BlueprintType)
enum class EMovieGraphScalabilityQualityLevel : uint8
{
	Low,
	Medium,
	High,
	Epic,
	Cinematic
};
STANDIN_DECLARE_ENUM(EMovieGraphScalabilityQualityLevel, MOVIERENDERPIPELINECORE_API)

// Stand-in choice: the defaults follow the legacy game-override setting (cinematic quality, every flush on, streaming
// and LODs off); the engine's constructor values were not established.

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphGlobalGameOverridesNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphGlobalGameOverridesNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphGlobalGameOverridesNode();

	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::Globals; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_GameModeOverride : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_SoftGameModeOverride : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_ScalabilityQualityLevel : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDisableTextureStreaming : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDisableLODs : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDisableHLODs : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushLevelStreaming : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushAssetCompiler : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushShaderCompiler : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushGrassStreaming : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bFlushStreamingManagers : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_VirtualTextureFeedbackFactor : 1 = 0;

#if UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bRebuildLumenSceneBetweenRenderLayers : 1 = 0;
#endif

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bRebuildLumenSceneBetweenRenderLayers : 1 = 0;
#endif

	// Replaced by SoftGameModeOverride, which does not load the class with the graph.
	UPROPERTY(BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_GameModeOverride", DeprecatedProperty, DeprecationMessage = "Please use the SoftGameModeOverride property instead."))
	TSubclassOf<AGameModeBase> GameModeOverride;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_SoftGameModeOverride"))
	TSoftClassPtr<AGameModeBase> SoftGameModeOverride;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_ScalabilityQualityLevel"))
	EMovieGraphScalabilityQualityLevel ScalabilityQualityLevel = EMovieGraphScalabilityQualityLevel::Cinematic;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bDisableTextureStreaming"))
	bool bDisableTextureStreaming = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bDisableLODs"))
	bool bDisableLODs = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bDisableHLODs"))
	bool bDisableHLODs = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bFlushLevelStreaming"))
	bool bFlushLevelStreaming = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bFlushAssetCompiler"))
	bool bFlushAssetCompiler = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bFlushShaderCompiler"))
	bool bFlushShaderCompiler = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bFlushGrassStreaming"))
	bool bFlushGrassStreaming = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bFlushStreamingManagers"))
	bool bFlushStreamingManagers = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_VirtualTextureFeedbackFactor", UIMin = 1, ClampMin = 1))
	int32 VirtualTextureFeedbackFactor = 4;

#if UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bRebuildLumenSceneBetweenRenderLayers"))
	bool bRebuildLumenSceneBetweenRenderLayers = false;
#endif

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game", meta = (EditCondition = "bOverride_bRebuildLumenSceneBetweenRenderLayers", DeprecatedProperty))
	bool bRebuildLumenSceneBetweenRenderLayers = false;
#endif
};

#undef UE_API
