#include "MoviePipelineOutputSetting.h"

#include "Misc/Paths.h"
#include "MovieRenderPipelineDataTypes.h"
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

void UMoviePipelineOutputSetting::GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const
{
	TMap<FString, FString>& Arguments = InOutFormatArgs.FilenameArguments;
	Arguments.Add(TEXT("project_dir"), FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()));
	Arguments.Add(TEXT("output_resolution"), FString::Printf(TEXT("%d_%d"), OutputResolution.X, OutputResolution.Y));
	Arguments.Add(TEXT("output_width"), FString::FromInt(OutputResolution.X));
	Arguments.Add(TEXT("output_height"), FString::FromInt(OutputResolution.Y));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineOutputSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(OutputDirectory, EditableFlags);
	STANDIN_PROPERTY(FileNameFormat, EditableFlags);
	STANDIN_PROPERTY(OutputResolution, EditableFlags);
	STANDIN_PROPERTY(bUseCustomFrameRate, EditableFlags);
	STANDIN_PROPERTY(OutputFrameRate, EditableFlags);
	STANDIN_PROPERTY(bOverrideExistingOutput, EditableFlags);
	STANDIN_PROPERTY(HandleFrameCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_PROPERTY(OutputFrameStep, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(bUseCustomPlaybackRange, EditableFlags);
	STANDIN_PROPERTY(CustomStartFrame, EditableFlags);
	STANDIN_PROPERTY(CustomEndFrame, EditableFlags);
	STANDIN_PROPERTY(VersionNumber, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(bAutoVersion, EditableFlags);
	STANDIN_PROPERTY(AdditionalSubmixOutputs, EditableFlags);
	STANDIN_PROPERTY(ZeroPadFrameNumbers, EditableFlags | CPF_AdvancedDisplay)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_PROPERTY(FrameNumberOffset, EditableFlags | CPF_AdvancedDisplay);
	STANDIN_PROPERTY(bFlushDiskWritesPerShot, CPF_BlueprintVisible);
}
