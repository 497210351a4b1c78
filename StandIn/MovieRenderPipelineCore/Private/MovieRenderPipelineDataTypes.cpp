#include "MovieRenderPipelineDataTypes.h"

#include "Containers/Map.h"
#include "MoviePipelineStandInFileNaming.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EMovieRenderPipelineState, "MovieRenderPipelineCore", Uninitialized, ProducingFrames, Finalize, Export, Finished)
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
STANDIN_IMPLEMENT_ENUM(EMovieRenderShotState, "MovieRenderPipelineCore", Uninitialized, WarmingUp, MotionBlur, Rendering, CoolingDown, Finished)
#else
STANDIN_IMPLEMENT_ENUM(EMovieRenderShotState, "MovieRenderPipelineCore", Uninitialized, WarmingUp, MotionBlur, Rendering, Finished)
#endif
STANDIN_IMPLEMENT_ENUM(EMoviePipelineShutterTiming, "MovieRenderPipelineCore", FrameOpen, FrameCenter, FrameClose)

STANDIN_IMPLEMENT_STRUCT(FMoviePipelineConsoleVariableEntry, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Name, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(Value, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(bIsEnabled, CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}

STANDIN_IMPLEMENT_STRUCT(FMoviePipelinePassIdentifier, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Name, CPF_BlueprintVisible);
	STANDIN_PROPERTY(CameraName, CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_STRUCT(FMoviePipelineSegmentWorkMetrics, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags ReadOnlyFlags = CPF_BlueprintVisible | CPF_BlueprintReadOnly;
	STANDIN_PROPERTY(SegmentName, ReadOnlyFlags);
	STANDIN_PROPERTY(OutputFrameIndex, ReadOnlyFlags);
	STANDIN_PROPERTY(TotalOutputFrameCount, ReadOnlyFlags);
	STANDIN_PROPERTY(OutputSubSampleIndex, ReadOnlyFlags);
	STANDIN_PROPERTY(TotalSubSampleCount, ReadOnlyFlags);
	STANDIN_PROPERTY(EngineWarmUpFrameIndex, ReadOnlyFlags);
	STANDIN_PROPERTY(TotalEngineWarmUpFrameCount, ReadOnlyFlags);
}

STANDIN_IMPLEMENT_STRUCT(FMoviePipelineSidecarCamera, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(BindingId, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(Name, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}

FString UE::MoviePipeline::GetPaddingFormatString(int32 InZeroPadCount, const int32 InFrameNumber)
{
	return UE::MoviePipeline::StandIn::PadFrameNumber(InFrameNumber, InZeroPadCount);
}

void FMoviePipelineFrameOutputState::GetFilenameFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs, const int32 InZeroPadCount, const int32 InFrameNumberOffset, const bool bForceRelFrameNumbers) const
{
	// Stand-in choice: frame numbers are offset in 64 bits, so that no offset can overflow them.
	auto PadOffsetFrame = [InZeroPadCount, InFrameNumberOffset](int32 InFrame)
	{
		return UE::MoviePipeline::StandIn::PadFrameNumber(int64(InFrame) + InFrameNumberOffset, InZeroPadCount);
	};
	const FString FrameNumber = PadOffsetFrame(bForceRelFrameNumbers ? OutputFrameNumber : SourceFrameNumber);
	const FString FrameNumberShot = PadOffsetFrame(bForceRelFrameNumbers ? ShotOutputFrameNumber : CurrentShotSourceFrameNumber);
	const FString FrameNumberRel = PadOffsetFrame(OutputFrameNumber);
	const FString FrameNumberShotRel = PadOffsetFrame(ShotOutputFrameNumber);

	InOutFormatArgs.FilenameArguments.Add(TEXT("frame_number"), FrameNumber);
	InOutFormatArgs.FilenameArguments.Add(TEXT("frame_number_shot"), FrameNumberShot);
	InOutFormatArgs.FilenameArguments.Add(TEXT("frame_number_rel"), FrameNumberRel);
	InOutFormatArgs.FilenameArguments.Add(TEXT("frame_number_shot_rel"), FrameNumberShotRel);
	InOutFormatArgs.FilenameArguments.Add(TEXT("camera_name"), CameraName);
	InOutFormatArgs.FilenameArguments.Add(TEXT("shot_name"), ShotName);

	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/sequenceFrameNumber"), FrameNumber);
	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/shotFrameNumber"), FrameNumberShot);
	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/sequenceFrameNumberRelative"), FrameNumberRel);
	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/shotFrameNumberRelative"), FrameNumberShotRel);
	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/cameraName"), CameraName);
	InOutFormatArgs.FileMetadata.Add(TEXT("unreal/shotName"), ShotName);
}
