#include "CostFamilies.h"

namespace VLMRBench
{
	// Long enough for a stable mean on a shared machine, short enough that the whole run stays within minutes.
	static constexpr double MinimumSecondsPerRun = 0.2;
	// The table shows the median, which a burst of load from other processes moves less than the mean.
	static constexpr int RepetitionsPerRun = 3;

	static std::vector<FCostFamily>& GetMutableFamilies()
	{
		static std::vector<FCostFamily> Families;
		return Families;
	}

	benchmark::internal::Benchmark* RegisterCost(const FCostFamily& Family, FCostBody Body)
	{
		GetMutableFamilies().push_back(Family);
		const int64_t Calls = Family.CallsPerIteration;
		return benchmark::RegisterBenchmark(Family.Name.c_str(), [Body, Calls](benchmark::State& State) { Body(State, Calls); })
			->MinTime(MinimumSecondsPerRun)
			->Repetitions(RepetitionsPerRun)
			->ReportAggregatesOnly(true);
	}

	const std::vector<FCostFamily>& GetCostFamilies()
	{
		return GetMutableFamilies();
	}
}
