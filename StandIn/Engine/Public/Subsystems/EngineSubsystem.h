// UEngineSubsystem: subsystems that live as long as the engine, reached with GEngine->GetEngineSubsystem<T>().
#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"

class ENGINE_API UEngineSubsystem : public UDynamicSubsystem
{
	STANDIN_CLASS_BODY(UEngineSubsystem, UDynamicSubsystem, ENGINE_API)

public:
	UEngineSubsystem();
};
