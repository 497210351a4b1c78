#include "Kismet/BlueprintFunctionLibrary.h"

#include "UObject/UnrealType.h"

UBlueprintFunctionLibrary::UBlueprintFunctionLibrary() = default;

STANDIN_IMPLEMENT_CLASS(UBlueprintFunctionLibrary, CLASS_Abstract, "Engine")
{
}
