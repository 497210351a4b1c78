#include "EditorSubsystem.h"
#include "UObject/UnrealType.h"

UEditorSubsystem::UEditorSubsystem() = default;

VLMR_IMPLEMENT_CLASS(UEditorSubsystem, CLASS_Abstract, "UnrealEd")
{
}
