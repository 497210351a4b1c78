// UMovieGraphWarmUpSettingNode: how many frames the engine runs, without writing them, before each shot.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "Misc/EngineVersionComparison.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphWarmUpSettingNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphWarmUpSettingNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphWarmUpSettingNode();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_NumWarmUpFrames : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bEmulateMotionBlur : 1 = 0;

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_LayerWarmUpFrames : 1 = 0;
#endif

	// Stand-in choice: no warm-up by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings", meta = (EditCondition = "bOverride_NumWarmUpFrames", UIMin = 0, ClampMin = 0))
	int32 NumWarmUpFrames = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings", meta = (EditCondition = "bOverride_bEmulateMotionBlur"))
	bool bEmulateMotionBlur = false;

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings", meta = (EditCondition = "bOverride_LayerWarmUpFrames", UIMin = 0, ClampMin = 0))
	int32 LayerWarmUpFrames = 0;
#endif
};

#undef UE_API
