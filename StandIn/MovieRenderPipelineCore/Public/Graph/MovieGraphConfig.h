// UMovieGraphConfig: a Movie Render Graph asset, the graph-based alternative to a primary configuration.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: only a savable, loadable asset a job can name as its graph preset; the graph work adds nodes and members.
UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphConfig : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphConfig, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphConfig();
};

#undef UE_API
