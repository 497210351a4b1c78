// The groups of benchmarks, registered by main in the order the table lists them.
#pragma once

namespace VLMRBench
{
	// A job handle's method against a bare sol2 closure and a bare C function, and building a handle.
	void RegisterHandleBenchmarks();

	// mrq_get_queue against a pure-Lua function that builds the same table.
	void RegisterQueueListingBenchmarks();

	// Evaluation, node property writes and file-name resolution on graphs of growing size.
	void RegisterGraphBenchmarks();

	// Calls made once per iteration from C++, as the queue and the class registry grow.
	void RegisterClassLookupBenchmarks();
}
