// UBlueprintFunctionLibrary: the base of classes that only hold static functions exposed to scripts.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

UCLASS(Abstract, MinimalAPI)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	STANDIN_CLASS_BODY(UBlueprintFunctionLibrary, UObject, ENGINE_API)

public:
	UBlueprintFunctionLibrary();
};
