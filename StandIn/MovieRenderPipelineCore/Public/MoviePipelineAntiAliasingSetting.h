// UMoviePipelineAntiAliasingSetting: spatial and temporal sample counts, the anti-aliasing method and warm-up frames.
#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "MoviePipelineSetting.h"
#include "SceneUtils.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineAntiAliasingSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineAntiAliasingSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineAntiAliasingSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 1, ClampMin = 1), Category = "Render Settings")
	int32 SpatialSampleCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 1, ClampMin = 1), Category = "Render Settings")
	int32 TemporalSampleCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (InlineEditConditionToggle), Category = "Render Settings")
	bool bOverrideAntiAliasing;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (EditCondition = bOverrideAntiAliasing), Category = "Render Settings")
	TEnumAsByte<EAntiAliasingMethod> AntiAliasingMethod;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 0, ClampMin = 0), Category = "Render Settings")
	int32 RenderWarmUpCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Settings")
	bool bUseCameraCutForWarmUp;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 0, ClampMin = 0), Category = "Render Settings")
	int32 EngineWarmUpCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Settings")
	bool bRenderWarmUpFrames;
};

#undef UE_API
