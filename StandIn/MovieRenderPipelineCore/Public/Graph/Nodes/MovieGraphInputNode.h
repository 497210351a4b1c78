// UMovieGraphInputNode: the graph's Input node; it has one output pin per graph input, named after it.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphInputNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphInputNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphInputNode();

	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	// Stand-in choice: a graph has exactly one Input node, made with the graph.
	virtual bool CanBeAddedByUser() const override { return false; }
};

#undef UE_API
