// UMoviePipelineVideoOutputBase: the base of outputs that write frames into video files.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineOutputBase.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineVideoOutputBase : public UMoviePipelineOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineVideoOutputBase, UMoviePipelineOutputBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineVideoOutputBase();
};

#undef UE_API
