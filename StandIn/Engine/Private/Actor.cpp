#include "GameFramework/Actor.h"
#include "UObject/UnrealType.h"

AActor::AActor() = default;

STANDIN_IMPLEMENT_CLASS(AActor, CLASS_None, "Engine")
{
}
