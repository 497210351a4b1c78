// Garbage collection: mark from the roots, destroy what was not reached.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

// CollectGarbage, TryCollectGarbage and IsGarbageCollecting are declared in UObject/UObjectGlobals.h, as in the engine.
// A collection destroys every object that cannot be reached from a root: the root set, objects with any of the keep
// flags (the editor passes RF_Standalone), strong object pointers, FGCObjects and objects still being constructed.
// References to objects marked as garbage are set to null while tracing. Unreachable objects get BeginDestroy,
// FinishDestroy, their destructor, and their memory and slot freed.
// Stand-in choice: the purge is always complete, whatever bPerformFullPurge says.

/** Stand-in: number of collections run so far in this process. */
COREUOBJECT_API int32 GetNumGarbageCollections();
