// UMoviePipelineHighResSetting: renders each frame as tiles to exceed the largest render target size.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineHighResSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineHighResSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineHighResSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "1", ClampMin = "1", UIMax = "16"), Category = "Render Settings")
	int32 TileCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "-1", UIMax = "0"), Category = "Render Settings")
	float TextureSharpnessBias;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "0", ClampMin = "0", UIMax = "0.5", ClampMax = "1"), Category = "Render Settings")
	float OverlapRatio;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Settings")
	bool bOverrideSubSurfaceScattering;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "64", ClampMin = "0", UIMax = "1024", EditCondition = "bOverrideSubSurfaceScattering"), Category = "Render Settings")
	int32 BurleySampleCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Settings")
	bool bAllocateHistoryPerTile;
};

#undef UE_API
