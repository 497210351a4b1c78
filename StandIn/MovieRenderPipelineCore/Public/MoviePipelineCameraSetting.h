// UMoviePipelineCameraSetting: shutter timing, overscan and which cameras a render uses.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderPipelineDataTypes.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineCameraSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineCameraSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineCameraSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera Settings")
	EMoviePipelineShutterTiming ShutterTiming;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (InlineEditConditionToggle), Category = "Camera Settings")
	bool bOverrideCameraOverscan;

	// Extra rendered area around the frame, 0 to 1.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 0, ClampMin = 0, UIMax = 1, ClampMax = 1, EditCondition = bOverrideCameraOverscan), Category = "Camera Settings")
	float OverscanPercentage;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera Settings")
	bool bRenderAllCameras;
};

#undef UE_API
