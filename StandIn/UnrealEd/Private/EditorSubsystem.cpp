#include "EditorSubsystem.h"
#include "UObject/UnrealType.h"

UEditorSubsystem::UEditorSubsystem() = default;

STANDIN_IMPLEMENT_CLASS(UEditorSubsystem, CLASS_Abstract, "UnrealEd")
{
}
