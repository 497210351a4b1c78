// UMovieJobVariableAssignmentContainer: a job's (or shot's) values for the variables of one graph.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphConfig;

// Stand-in choice: only the graph the assignments belong to; the values of the variables come with the graph work.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieJobVariableAssignmentContainer : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieJobVariableAssignmentContainer, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieJobVariableAssignmentContainer();

	void SetGraphConfig(const TSoftObjectPtr<UMovieGraphConfig>& InGraphConfig) { GraphConfig = InGraphConfig; }
	TSoftObjectPtr<UMovieGraphConfig> GetGraphConfig() const { return GraphConfig; }

private:
	UPROPERTY()
	TSoftObjectPtr<UMovieGraphConfig> GraphConfig;
};

#undef UE_API
