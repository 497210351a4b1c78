// AMoviePipelineGameMode: the game mode a render uses by default, which spawns no player pawn and no HUD.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/GameModeBase.h"

UCLASS(MinimalAPI)
class MOVIERENDERPIPELINECORE_API AMoviePipelineGameMode : public AGameModeBase
{
	STANDIN_CLASS_BODY(AMoviePipelineGameMode, AGameModeBase, MOVIERENDERPIPELINECORE_API)

public:
	AMoviePipelineGameMode();
};
