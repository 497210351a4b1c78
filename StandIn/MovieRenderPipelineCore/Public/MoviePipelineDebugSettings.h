// UMoviePipelineDebugSettings: debugging aids of a render (per-sample output, frame captures, traces).
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineDebugSettings : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineDebugSettings, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineDebugSettings();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
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

#undef UE_API
