#include "Subsystems/EngineSubsystem.h"
#include "UObject/UnrealType.h"

UEngineSubsystem::UEngineSubsystem() = default;

STANDIN_IMPLEMENT_CLASS(UEngineSubsystem, CLASS_Abstract, "Engine")
{
}
