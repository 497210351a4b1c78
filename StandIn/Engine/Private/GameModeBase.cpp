#include "GameFramework/GameModeBase.h"
#include "UObject/UnrealType.h"

AGameModeBase::AGameModeBase() = default;

STANDIN_IMPLEMENT_CLASS(AGameModeBase, CLASS_None, "Engine")
{
}
