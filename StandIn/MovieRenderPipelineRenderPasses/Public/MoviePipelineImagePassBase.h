// UMoviePipelineImagePassBase: the base of render passes that draw the world through the camera into images.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"
#include "MovieRenderPipelineDataTypes.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI, BlueprintType, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImagePassBase : public UMoviePipelineRenderPass
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImagePassBase, UMoviePipelineRenderPass, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImagePassBase();

protected:
	// The name the images of this pass carry ({render_pass} in file names).
	FMoviePipelinePassIdentifier PassIdentifier;
};

#undef UE_API
