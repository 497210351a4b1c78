// UMovieGraphExecuteScriptNode: runs a script before and after the graph renders.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: the script class property (UMovieGraphScriptBase) is not modelled.

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphExecuteScriptNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphExecuteScriptNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphExecuteScriptNode();
};

#undef UE_API
