// FPlatformTime: monotonic clocks.
#pragma once

#include "CoreTypes.h"

struct FPlatformTime
{
	/** Seconds from a fixed point in the past (monotonic). */
	CORE_API static double Seconds();
	/** Nanoseconds from a fixed point in the past (monotonic). */
	CORE_API static uint64 Cycles64();
	static uint32 Cycles() { return (uint32)Cycles64(); }
	static double GetSecondsPerCycle() { return 1e-9; }
	static double GetSecondsPerCycle64() { return 1e-9; }
	static double ToMilliseconds64(uint64 Cycles) { return (double)Cycles * 1e-6; }
	static double ToSeconds64(uint64 Cycles) { return (double)Cycles * 1e-9; }
	static float ToMilliseconds(uint32 Cycles) { return (float)((double)Cycles * 1e-6); }
	static float ToSeconds(uint32 Cycles) { return (float)((double)Cycles * 1e-9); }
};
