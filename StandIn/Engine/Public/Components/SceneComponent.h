// USceneComponent: a component with a place in the world.
#pragma once

#include "CoreMinimal.h"
#include "Components/ActorComponent.h"

// Stand-in choice: no transform; the stand-in renders no scene.
class ENGINE_API USceneComponent : public UActorComponent
{
	STANDIN_CLASS_BODY(USceneComponent, UActorComponent, ENGINE_API)

public:
	USceneComponent();
};
