#include "MoviePipelineWaveOutput.h"

#include "UObject/UnrealType.h"

UMoviePipelineWaveOutput::UMoviePipelineWaveOutput() = default;

// Stand-in choice: the engine's display text of the wave output was not established.
#if WITH_EDITOR
FText UMoviePipelineWaveOutput::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "WaveOutputSettingDisplayName", ".wav Audio");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineWaveOutput, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	STANDIN_PROPERTY(FileNameFormatOverride, CPF_Edit | CPF_BlueprintVisible);
}
