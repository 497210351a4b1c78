#include "Editor/Transactor.h"
#include "UObject/UnrealType.h"

UTransactor::UTransactor() = default;

STANDIN_IMPLEMENT_CLASS(UTransactor, CLASS_Abstract | CLASS_Transient, "UnrealEd")
{
}
