// UEditorSubsystem: subsystems that live as long as the editor, reached with GEditor->GetEditorSubsystem<T>().
#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"

class UNREALED_API UEditorSubsystem : public UDynamicSubsystem
{
	STANDIN_CLASS_BODY(UEditorSubsystem, UDynamicSubsystem, UNREALED_API)

public:
	UEditorSubsystem();
};
