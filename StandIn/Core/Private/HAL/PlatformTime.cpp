#include "HAL/PlatformTime.h"

#include <time.h>

namespace
{
	uint64 MonotonicNanoseconds()
	{
		timespec Now;
		clock_gettime(CLOCK_MONOTONIC, &Now);
		return (uint64)Now.tv_sec * 1000000000ull + (uint64)Now.tv_nsec;
	}
}

double FPlatformTime::Seconds()
{
	return (double)MonotonicNanoseconds() * 1e-9;
}

uint64 FPlatformTime::Cycles64()
{
	return MonotonicNanoseconds();
}
