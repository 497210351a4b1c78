// UMovieGraphRenderLayerNode: names the render layer a branch produces.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "Misc/EngineVersionComparison.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphRenderLayerNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphRenderLayerNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphRenderLayerNode();

	// Stand-in choice: a render layer is named on a layer branch, never on Globals.
	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::RenderLayer; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	FString GetRenderLayerName() const { return LayerName; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_LayerName : 1 = 0;

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_LayerWarmUpFrames : 1 = 0;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings", meta = (EditCondition = "bOverride_LayerName"))
	FString LayerName = TEXT("beauty");

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	// Stand-in choice: no warm-up frames per layer unless asked for.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings", meta = (EditCondition = "bOverride_LayerWarmUpFrames", UIMin = 0, ClampMin = 0))
	int32 LayerWarmUpFrames = 0;
#endif
};

#undef UE_API
