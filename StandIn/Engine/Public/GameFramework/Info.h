// AInfo: the base of actors that hold information rather than appear in the world.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"

class ENGINE_API AInfo : public AActor
{
	STANDIN_CLASS_BODY(AInfo, AActor, ENGINE_API)

public:
	AInfo();
};
