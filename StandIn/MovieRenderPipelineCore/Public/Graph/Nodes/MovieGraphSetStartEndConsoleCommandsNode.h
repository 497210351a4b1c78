// UMovieGraphSetStartEndConsoleCommandsNode: console commands run when a render starts and ends.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: the commands object (UMovieGraphStartEndConsoleCommands) is not modelled.

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphSetStartEndConsoleCommandsNode : public UMovieGraphSettingNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphSetStartEndConsoleCommandsNode, UMovieGraphSettingNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphSetStartEndConsoleCommandsNode();
};

#undef UE_API
