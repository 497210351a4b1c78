// UMovieGraphSubgraphNode: places another graph inside this one; its pins are that graph's inputs and outputs.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphSubgraphNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphSubgraphNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphSubgraphNode();

	// One input pin per input of the subgraph, named after it.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;

	// One output pin per output of the subgraph, named after it.
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	// Points the node at the graph and rebuilds its pins from that graph's members.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetSubGraphAsset(const TSoftObjectPtr<UMovieGraphConfig>& InSubgraphAsset);

	// The subgraph, loaded if it is not yet; null when none is set.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API UMovieGraphConfig* GetSubgraphAsset() const;

private:
	UPROPERTY(EditAnywhere, Category = "Subgraph")
	TSoftObjectPtr<UMovieGraphConfig> SubgraphAsset;
};

#undef UE_API
