// UMovieGraphVideoOutputNode: the base of nodes that encode rendered frames into a video file.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphVideoOutputNode : public UMovieGraphFileOutputNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphVideoOutputNode, UMovieGraphFileOutputNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphVideoOutputNode();
};

#undef UE_API
