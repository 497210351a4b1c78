// Global pointer to the editor engine, typed as the class the editor runs with.
#pragma once

#include "CoreMinimal.h"

class UUnrealEdEngine;

extern UNREALED_API UUnrealEdEngine* GUnrealEd;
