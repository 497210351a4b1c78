// Google Benchmark's console output, followed at the end of the run by one table of per-call costs: each call against
// its floor measured in the same run, and each family's fitted complexity.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace VLMRBench
{
	struct FCostFamily;
	struct FTableRow;

	class FCostTableReporter : public benchmark::ConsoleReporter
	{
	public:
		using benchmark::ConsoleReporter::ConsoleReporter;

		void ReportRuns(const std::vector<Run>& Reports) override;
		void Finalize() override;

		// Whether a benchmark stopped with an error (a failed Lua call, a floor that builds something else).
		bool HadErrors() const { return bHadErrors; }

	private:
		// One measured argument of a family, in seconds of CPU time per call: the median of its repetitions.
		struct FMeasuredCall
		{
			std::vector<double> RepetitionSeconds;
			double MedianSeconds = -1.0;
			std::string Error;

			double GetSecondsPerCall() const;
		};

		struct FFamilyResults
		{
			std::map<int64_t, FMeasuredCall> Calls;
			std::string Complexity;
			double CoefficientPerCall = 0.0;
			double Rms = -1.0;
		};

		void Collect(const Run& Report);
		void PrintFamily(const FCostFamily& Family, const FFamilyResults& Results) const;
		// The floor, ratio and target columns of a call compared with its floor at the same argument; left empty without one.
		void FillFloorColumns(const FCostFamily& Family, int64_t Argument, double SecondsPerCall, FTableRow& OutRow) const;
		const FMeasuredCall* FindFloorCall(const std::string& Floor, int64_t Argument) const;

		std::map<std::string, FFamilyResults> Families;
		bool bHadErrors = false;
	};
}
