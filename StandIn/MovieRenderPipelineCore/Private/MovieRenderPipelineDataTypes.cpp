#include "MovieRenderPipelineDataTypes.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_ENUM(EMovieRenderPipelineState, "MovieRenderPipelineCore", Uninitialized, ProducingFrames, Finalize, Export, Finished)
VLMR_IMPLEMENT_ENUM(EMovieRenderShotState, "MovieRenderPipelineCore", Uninitialized, WarmingUp, MotionBlur, Rendering, CoolingDown, Finished)
VLMR_IMPLEMENT_ENUM(EMoviePipelineShutterTiming, "MovieRenderPipelineCore", FrameOpen, FrameCenter, FrameClose)

VLMR_IMPLEMENT_STRUCT(FMoviePipelineConsoleVariableEntry, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(Name, CPF_Edit | CPF_BlueprintVisible);
	VLMR_PROPERTY(Value, CPF_Edit | CPF_BlueprintVisible);
	VLMR_PROPERTY(bIsEnabled, CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}

VLMR_IMPLEMENT_STRUCT(FMoviePipelinePassIdentifier, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(Name, CPF_BlueprintVisible);
	VLMR_PROPERTY(CameraName, CPF_BlueprintVisible);
}

VLMR_IMPLEMENT_STRUCT(FMoviePipelineSidecarCamera, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(BindingId, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	VLMR_PROPERTY(Name, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
}
