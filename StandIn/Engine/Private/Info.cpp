#include "GameFramework/Info.h"
#include "UObject/UnrealType.h"

AInfo::AInfo() = default;

STANDIN_IMPLEMENT_CLASS(AInfo, CLASS_Abstract, "Engine")
{
}
