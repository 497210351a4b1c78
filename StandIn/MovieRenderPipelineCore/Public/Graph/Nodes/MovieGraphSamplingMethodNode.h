// UMovieGraphSamplingMethodNode: how many temporal samples a render takes per frame.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphSamplingMethodNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphSamplingMethodNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphSamplingMethodNode();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_TemporalSampleCount : 1 = 0;

	// Stand-in choice: one sample per frame by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sampling", meta = (EditCondition = "bOverride_TemporalSampleCount", UIMin = 1, ClampMin = 1))
	int32 TemporalSampleCount = 1;
};

#undef UE_API
