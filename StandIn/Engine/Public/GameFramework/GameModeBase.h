// AGameModeBase: the game mode class a render may override; the stand-in keeps only its identity.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Info.h"

class ENGINE_API AGameModeBase : public AInfo
{
	STANDIN_CLASS_BODY(AGameModeBase, AInfo, ENGINE_API)

public:
	AGameModeBase();
};
