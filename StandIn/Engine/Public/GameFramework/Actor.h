// AActor: Stand-in choice: a plain object class standing in for the actor, with no components, level or transform.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class ENGINE_API AActor : public UObject
{
	STANDIN_CLASS_BODY(AActor, UObject, ENGINE_API)

public:
	AActor();
};
