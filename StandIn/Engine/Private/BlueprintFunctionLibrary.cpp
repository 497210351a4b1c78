#include "Kismet/BlueprintFunctionLibrary.h"

#include "UObject/UnrealType.h"

UBlueprintFunctionLibrary::UBlueprintFunctionLibrary() = default;

VLMR_IMPLEMENT_CLASS(UBlueprintFunctionLibrary, CLASS_Abstract, "Engine")
{
}
