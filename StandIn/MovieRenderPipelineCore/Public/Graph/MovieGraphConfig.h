// UMovieGraphConfig: a Movie Render Graph asset, the graph-based alternative to a primary configuration.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// Stand-in choice: only a savable, loadable asset a job can name as its graph preset; the graph work adds nodes and members.
UCLASS(MinimalAPI, BlueprintType)
class MOVIERENDERPIPELINECORE_API UMovieGraphConfig : public UObject
{
	STANDIN_CLASS_BODY(UMovieGraphConfig, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UMovieGraphConfig();
};
