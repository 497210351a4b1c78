#include "GameFramework/Actor.h"
#include "UObject/UnrealType.h"

AActor::AActor() = default;

VLMR_IMPLEMENT_CLASS(AActor, CLASS_None, "Engine")
{
}
