// UMovieGraphBranchNode: continues along its True or its False branch, as its Condition says.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphBranchNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphBranchNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphBranchNode();

	// Stand-in choice: "True" and "False" branch inputs and a bool "Condition" data input.
	UE_API virtual TArray<FMovieGraphPinProperties> GetInputPinProperties() const override;

	// One unlabelled branch output.
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;
};

#undef UE_API
