#include "Components/ActorComponent.h"

#include "UObject/UnrealType.h"

UActorComponent::UActorComponent() = default;

STANDIN_IMPLEMENT_CLASS(UActorComponent, CLASS_Abstract, "Engine")
{
}
