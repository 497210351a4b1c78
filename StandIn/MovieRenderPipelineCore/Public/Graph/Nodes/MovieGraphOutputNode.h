// UMovieGraphOutputNode: the graph's Output node; it has one input pin per graph output, named after it.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphOutputNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphOutputNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphOutputNode();

	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;

	virtual bool CanBeDisabled() const override { return false; }

	// Stand-in choice: a graph has exactly one Output node, made with the graph.
	virtual bool CanBeAddedByUser() const override { return false; }
};

#undef UE_API
