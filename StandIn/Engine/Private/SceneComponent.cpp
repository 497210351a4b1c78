#include "Components/SceneComponent.h"

#include "UObject/UnrealType.h"

USceneComponent::USceneComponent() = default;

STANDIN_IMPLEMENT_CLASS(USceneComponent, CLASS_None, "Engine")
{
}
