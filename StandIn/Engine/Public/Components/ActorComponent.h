// UActorComponent: the base of the parts an actor is made of.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

// Stand-in choice: only the class itself; nothing in the stand-in attaches components to actors.
class ENGINE_API UActorComponent : public UObject
{
	STANDIN_CLASS_BODY(UActorComponent, UObject, ENGINE_API)

public:
	UActorComponent();
};
