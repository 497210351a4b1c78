// UMovieGraphRenderPassNode: the base of nodes that produce rendered images for a layer.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphRenderPassNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphRenderPassNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphRenderPassNode();

	// Names the renderer in file names ({renderer_name}, {renderer_sub_name}).
	virtual FString GetRendererName() const { return TEXT("UnnamedRenderPass"); }
	virtual FString GetRendererSubName() const { return TEXT("beauty"); }
};

#undef UE_API
