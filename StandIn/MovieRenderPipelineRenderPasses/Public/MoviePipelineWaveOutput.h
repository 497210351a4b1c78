// UMoviePipelineWaveOutput: writes the audio of a render as .wav files.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineOutputBase.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINERENDERPASSES_API UMoviePipelineWaveOutput : public UMoviePipelineOutputBase
{
	STANDIN_CLASS_BODY(UMoviePipelineWaveOutput, UMoviePipelineOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UMoviePipelineWaveOutput();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
#endif

	// Overrides the output setting's file name format for the audio files; empty uses the output setting's.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Output File")
	FString FileNameFormatOverride;
};
