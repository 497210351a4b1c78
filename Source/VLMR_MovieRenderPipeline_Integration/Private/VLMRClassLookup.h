// Class lookup by a script's class name, shared by setting and graph-node classes.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UClass;

namespace VLMR
{
	// The children of BaseClass (itself included) that carry none of ExcludedFlags, in the engine's enumeration order.
	// Answered from the module's cache of classes, which follows every class registered or removed.
	TArray<UClass*> CollectClassesDerivedFrom(const UClass* BaseClass, EClassFlags ExcludedFlags);

	// A script's class name to a child of BaseClass that carries none of ExcludedFlags: a missing "U" is added, then the
	// first class whose name equals the name with or without the "U" (case-insensitive), else the first whose name
	// contains the name without its first character.
	UClass* ResolveClassByScriptName(const FString& Name, const UClass* BaseClass, EClassFlags ExcludedFlags);
}
