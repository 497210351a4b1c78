// UMovieGraphRerouteNode: passes a connection through unchanged, to lay out a graph's wires.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "Misc/EngineVersionComparison.h"

// Stand-in choice: present from 5.6 on (absent from 5.5); a structural node, not a setting node.
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphRerouteNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphRerouteNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphRerouteNode();

	// One wildcard pin on each side; it takes the type of what it is connected to.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;
};

#undef UE_API
#endif
