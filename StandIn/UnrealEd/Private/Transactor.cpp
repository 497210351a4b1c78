#include "Editor/Transactor.h"
#include "UObject/UnrealType.h"

UTransactor::UTransactor() = default;

VLMR_IMPLEMENT_CLASS(UTransactor, CLASS_Abstract | CLASS_Transient, "UnrealEd")
{
}
