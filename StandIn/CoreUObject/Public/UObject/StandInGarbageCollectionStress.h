// Garbage collection stress mode: a full collection at every engine entry point that may collect in real Unreal.
#pragma once

#include "CoreMinimal.h"

namespace UE::CoreUObject::StandIn
{
	/** Whether the environment variable VLMR_GC_STRESS is "1" (read once per process). */
	COREUOBJECT_API bool IsGarbageCollectionStressEnabled();

	/**
	 * Runs a full collection when stress mode is on. Call it first thing in engine functions that may collect in real
	 * Unreal (object and package loads, package saves, editor ticks, undo/redo). Nested calls (an entry point reached
	 * from inside another one, such as a load during a load) do not collect, so half-built work is never collected.
	 */
	COREUOBJECT_API void CollectGarbageForStress();

	/** Marks a stretch of work during which stress collections are postponed (a load in progress, for example). */
	class COREUOBJECT_API FGarbageCollectionStressGuard
	{
	public:
		FGarbageCollectionStressGuard();
		~FGarbageCollectionStressGuard();
		FGarbageCollectionStressGuard(const FGarbageCollectionStressGuard&) = delete;
		FGarbageCollectionStressGuard& operator=(const FGarbageCollectionStressGuard&) = delete;
	};
}
