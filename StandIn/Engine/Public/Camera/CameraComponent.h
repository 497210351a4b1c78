// UCameraComponent: a point of view a level can be seen from.
#pragma once

#include "CoreMinimal.h"
#include "Components/SceneComponent.h"

// Stand-in choice: no view settings; cameras are read only through their cinematic subclass.
class ENGINE_API UCameraComponent : public USceneComponent
{
	STANDIN_CLASS_BODY(UCameraComponent, USceneComponent, ENGINE_API)

public:
	UCameraComponent();
};
