// The benchmark families of the run, each with what the cost table shows besides its times.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace VLMRBench
{
	struct FCostFamily
	{
		// The benchmark's name, and the call it measures as the table names it.
		std::string Name;
		std::string Call;
		// Calls made per benchmark iteration: a batch amortizes entering Lua from C++.
		int64_t CallsPerIteration = 1;
		// When set, a column also shows the cost per unit of the benchmark's argument ("job": per queued job).
		std::string Unit;
		// The family this one is compared with at the same argument, and the ratio it should stay within (0: none).
		std::string Floor;
		double TargetRatio = 0.0;
	};

	using FCostBody = std::function<void(benchmark::State& State, int64_t CallsPerIteration)>;

	// Registers the benchmark (a short minimum time) and remembers the family for the table.
	benchmark::internal::Benchmark* RegisterCost(const FCostFamily& Family, FCostBody Body);

	// The registered families, in registration order.
	const std::vector<FCostFamily>& GetCostFamilies();
}
