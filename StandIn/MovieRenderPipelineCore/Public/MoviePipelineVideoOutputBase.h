// UMoviePipelineVideoOutputBase: the base of outputs that write frames into video files.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineOutputBase.h"

UCLASS(MinimalAPI, Blueprintable, Abstract)
class MOVIERENDERPIPELINECORE_API UMoviePipelineVideoOutputBase : public UMoviePipelineOutputBase
{
	STANDIN_CLASS_BODY(UMoviePipelineVideoOutputBase, UMoviePipelineOutputBase, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineVideoOutputBase();
};
