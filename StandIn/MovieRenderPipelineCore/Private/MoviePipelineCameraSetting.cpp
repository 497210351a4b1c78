#include "MoviePipelineCameraSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineCameraSetting::UMoviePipelineCameraSetting()
	: ShutterTiming(EMoviePipelineShutterTiming::FrameCenter)
	, bOverrideCameraOverscan(false)
	, OverscanPercentage(0.0f)
	, bRenderAllCameras(false)
{
}

#if WITH_EDITOR
FText UMoviePipelineCameraSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "CameraSettingDisplayName", "Camera");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineCameraSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(ShutterTiming, EditableFlags);
	VLMR_PROPERTY(bOverrideCameraOverscan, EditableFlags);
	VLMR_PROPERTY(OverscanPercentage, EditableFlags);
	VLMR_PROPERTY(bRenderAllCameras, EditableFlags);
}
