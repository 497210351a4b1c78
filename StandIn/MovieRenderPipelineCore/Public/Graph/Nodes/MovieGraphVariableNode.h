// UMovieGraphVariableNode: reads one of the graph's variables; its single output pin carries the variable's value.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphVariable;

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphVariableNode : public UMovieGraphNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphVariableNode, UMovieGraphNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphVariableNode();

	// One output pin named after the variable, of its type.
	UE_API virtual TArray<FMovieGraphPinProperties> GetOutputPinProperties() const override;

	UE_API UMovieGraphVariable* GetVariable() const;

	// Points the node at the variable and renames its pin after it.
	UE_API void SetVariable(UMovieGraphVariable* InVariable);

private:
	UPROPERTY()
	TObjectPtr<UMovieGraphVariable> GraphVariable;
};

#undef UE_API
