#include "MoviePipelineDebugSettings.h"

#include "UObject/UnrealType.h"

UMoviePipelineDebugSettings::UMoviePipelineDebugSettings()
	: bWriteAllSamples(false)
	, bCaptureFramesWithRenderDoc(false)
	, CaptureFrame(0)
	, bCaptureUnrealInsightsTrace(false)
{
}

#if WITH_EDITOR
FText UMoviePipelineDebugSettings::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "DebugSettingDisplayName", "Debug Options");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineDebugSettings, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(bWriteAllSamples, EditableFlags);
	VLMR_PROPERTY(bCaptureFramesWithRenderDoc, EditableFlags);
	VLMR_PROPERTY(CaptureFrame, EditableFlags);
	VLMR_PROPERTY(bCaptureUnrealInsightsTrace, EditableFlags);
}
