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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineCameraSetting, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(ShutterTiming, EditableFlags);
	STANDIN_PROPERTY(bOverrideCameraOverscan, EditableFlags);
	STANDIN_PROPERTY(OverscanPercentage, EditableFlags);
	STANDIN_PROPERTY(bRenderAllCameras, EditableFlags);
}
