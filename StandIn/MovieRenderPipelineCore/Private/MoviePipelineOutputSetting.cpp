#include "MoviePipelineOutputSetting.h"

#include "Sound/SoundSubmix.h"
#include "UObject/UnrealType.h"

namespace UE::MoviePipeline
{
	static const TCHAR* const DefaultOutputDirectory = TEXT("{project_dir}/Saved/MovieRenders/");
}

UMoviePipelineOutputSetting::UMoviePipelineOutputSetting()
	: FileNameFormat(TEXT("{sequence_name}.{frame_number}"))
	, OutputResolution(FIntPoint(1920, 1080))
	, bUseCustomFrameRate(false)
	, OutputFrameRate(FFrameRate(24, 1))
	, DEBUG_OutputFrameStepOffset(0)
	, bOverrideExistingOutput(true)
	, HandleFrameCount(0)
	, OutputFrameStep(1)
	, bUseCustomPlaybackRange(false)
	, CustomStartFrame(0)
	, CustomEndFrame(0)
	, VersionNumber(1)
	, bAutoVersion(true)
	, ZeroPadFrameNumbers(4)
	, FrameNumberOffset(0)
	, bFlushDiskWritesPerShot(false)
{
	OutputDirectory.Path = UE::MoviePipeline::DefaultOutputDirectory;
}

#if WITH_EDITOR
FText UMoviePipelineOutputSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "OutputSettingDisplayName", "Output");
}
#endif

void UMoviePipelineOutputSetting::PostLoad()
{
	Super::PostLoad();
	if (OutputDirectory.Path.IsEmpty())
	{
		OutputDirectory.Path = UE::MoviePipeline::DefaultOutputDirectory;
	}
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineOutputSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(OutputDirectory, EditableFlags);
	VLMR_PROPERTY(FileNameFormat, EditableFlags);
	VLMR_PROPERTY(OutputResolution, EditableFlags);
	VLMR_PROPERTY(bUseCustomFrameRate, EditableFlags);
	VLMR_PROPERTY(OutputFrameRate, EditableFlags);
	VLMR_PROPERTY(bOverrideExistingOutput, EditableFlags);
	VLMR_PROPERTY(HandleFrameCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	VLMR_PROPERTY(OutputFrameStep, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(bUseCustomPlaybackRange, EditableFlags);
	VLMR_PROPERTY(CustomStartFrame, EditableFlags);
	VLMR_PROPERTY(CustomEndFrame, EditableFlags);
	VLMR_PROPERTY(VersionNumber, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(bAutoVersion, EditableFlags);
	VLMR_PROPERTY(AdditionalSubmixOutputs, EditableFlags);
	VLMR_PROPERTY(ZeroPadFrameNumbers, EditableFlags | CPF_AdvancedDisplay)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	VLMR_PROPERTY(FrameNumberOffset, EditableFlags | CPF_AdvancedDisplay);
	VLMR_PROPERTY(bFlushDiskWritesPerShot, CPF_BlueprintVisible);
}
