#include "GameFramework/GameModeBase.h"
#include "UObject/UnrealType.h"

AGameModeBase::AGameModeBase() = default;

VLMR_IMPLEMENT_CLASS(AGameModeBase, CLASS_None, "Engine")
{
}
