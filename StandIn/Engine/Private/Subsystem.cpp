#include "Subsystems/Subsystem.h"
#include "UObject/UnrealType.h"

USubsystem::USubsystem() = default;

STANDIN_IMPLEMENT_CLASS(USubsystem, CLASS_Abstract, "Engine")
{
}

UDynamicSubsystem::UDynamicSubsystem() = default;

STANDIN_IMPLEMENT_CLASS(UDynamicSubsystem, CLASS_Abstract, "Engine")
{
}
