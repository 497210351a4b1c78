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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineDebugSettings, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(bWriteAllSamples, EditableFlags);
	STANDIN_PROPERTY(bCaptureFramesWithRenderDoc, EditableFlags);
	STANDIN_PROPERTY(CaptureFrame, EditableFlags);
	STANDIN_PROPERTY(bCaptureUnrealInsightsTrace, EditableFlags);
}
