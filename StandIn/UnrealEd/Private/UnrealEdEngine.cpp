#include "Editor/UnrealEdEngine.h"
#include "UnrealEdGlobals.h"
#include "UObject/UnrealType.h"

UUnrealEdEngine* GUnrealEd = nullptr;

UUnrealEdEngine::UUnrealEdEngine() = default;

STANDIN_IMPLEMENT_CLASS(UUnrealEdEngine, CLASS_Transient, "UnrealEd")
{
}
