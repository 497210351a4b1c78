// Measuring a call from Lua: many calls in one loop of one chunk, so that entering Lua from C++ is paid once per batch.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>

namespace VLMRBench
{
	// Source is a chunk that receives Argument as "...", prepares everything the call needs, and returns
	// function(n) that makes the call n times. Each iteration runs one batch of CallsPerIteration calls; what the calls
	// leave behind (log lines, undo history, with bCollectGarbage unreferenced objects) is forgotten between batches with
	// the timer paused.
	void MeasureLuaLoop(benchmark::State& State, const char* Source, int64_t Argument, int64_t CallsPerIteration, bool bCollectGarbage = false);
}
