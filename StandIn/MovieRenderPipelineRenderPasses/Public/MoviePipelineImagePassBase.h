// UMoviePipelineImagePassBase: the base of render passes that draw the world through the camera into images.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"
#include "MovieRenderPipelineDataTypes.h"

UCLASS(MinimalAPI, BlueprintType, Abstract)
class MOVIERENDERPIPELINERENDERPASSES_API UMoviePipelineImagePassBase : public UMoviePipelineRenderPass
{
	STANDIN_CLASS_BODY(UMoviePipelineImagePassBase, UMoviePipelineRenderPass, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UMoviePipelineImagePassBase();

protected:
	// The name the images of this pass carry ({render_pass} in file names).
	FMoviePipelinePassIdentifier PassIdentifier;
};
