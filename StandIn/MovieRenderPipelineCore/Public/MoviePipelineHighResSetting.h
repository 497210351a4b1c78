// UMoviePipelineHighResSetting: renders each frame as tiles to exceed the largest render target size.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINECORE_API UMoviePipelineHighResSetting : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineHighResSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineHighResSetting();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
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
