// UMoviePipelineWaveOutput: writes the audio of a render as .wav files.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineOutputBase.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineWaveOutput : public UMoviePipelineOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineWaveOutput, UMoviePipelineOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineWaveOutput();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	// Overrides the output setting's file name format for the audio files; empty uses the output setting's.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Output File")
	FString FileNameFormatOverride;
};

#undef UE_API
