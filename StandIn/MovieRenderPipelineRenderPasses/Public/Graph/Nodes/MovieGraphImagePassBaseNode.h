// UMovieGraphImagePassBaseNode: the base of render passes that render the 3D scene like a viewport.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphRenderPassNode.h"
#include "SceneUtils.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphImagePassBaseNode : public UMovieGraphRenderPassNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphImagePassBaseNode, UMovieGraphRenderPassNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphImagePassBaseNode();

	virtual int32 GetNumSpatialSamples() const { return 1; }
	virtual EAntiAliasingMethod GetAntiAliasingMethod() const { return EAntiAliasingMethod::AAM_None; }
};

#undef UE_API
