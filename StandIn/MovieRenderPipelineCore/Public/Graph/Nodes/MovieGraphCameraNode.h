// UMovieGraphCameraSettingNode: camera settings shared by every render of a branch.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphCameraSettingNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphCameraSettingNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphCameraSettingNode();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_OverscanPercentage : 1 = 0;

	// Percent (0-100) of extra pixels rendered around the frame.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera", meta = (EditCondition = "bOverride_OverscanPercentage", UIMin = 0, UIMax = 100, ClampMin = 0, ClampMax = 100))
	float OverscanPercentage = 0.0f;
};

#undef UE_API
