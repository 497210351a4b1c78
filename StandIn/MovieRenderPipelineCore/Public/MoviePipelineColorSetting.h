// UMoviePipelineColorSetting: color management of the rendered frames.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

// Stand-in choice: the OpenColorIO display configuration is left out (the stand-in has no OpenColorIO plugin).
UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINECORE_API UMoviePipelineColorSetting : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineColorSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineColorSetting();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }

	// Leaves out the filmic tone curve, so that linear data can be written to EXR files.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = "Misc")
	bool bDisableToneCurve;
};
