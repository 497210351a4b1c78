// UMoviePipelineDebugSettings: debugging aids of a render (per-sample output, frame captures, traces).
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINECORE_API UMoviePipelineDebugSettings : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineDebugSettings, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineDebugSettings();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
	virtual bool CanBeDisabled() const override { return true; }
#endif
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Settings")
	bool bWriteAllSamples;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RenderDoc")
	bool bCaptureFramesWithRenderDoc;

	// In display rate frames.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RenderDoc")
	int32 CaptureFrame;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Profiling")
	bool bCaptureUnrealInsightsTrace;
};
