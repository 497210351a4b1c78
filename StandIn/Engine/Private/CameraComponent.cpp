#include "Camera/CameraComponent.h"

#include "UObject/UnrealType.h"

UCameraComponent::UCameraComponent() = default;

STANDIN_IMPLEMENT_CLASS(UCameraComponent, CLASS_None, "Engine")
{
}
