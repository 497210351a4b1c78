// UMovieGraphAudioOutputNode: writes the render's audio as .wav once every render is done.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphAudioOutputNode : public UMovieGraphFileOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphAudioOutputNode, UMovieGraphFileOutputNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphAudioOutputNode();
};

#undef UE_API
