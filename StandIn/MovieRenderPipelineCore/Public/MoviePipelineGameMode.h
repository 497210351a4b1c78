// AMoviePipelineGameMode: the game mode a render uses by default, which spawns no player pawn and no HUD.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/GameModeBase.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) AMoviePipelineGameMode : public AGameModeBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(AMoviePipelineGameMode, AGameModeBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API AMoviePipelineGameMode();
};

#undef UE_API
