#include "CostTableReporter.h"

#include "CostFamilies.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace VLMRBench
{
	static const FCostFamily* FindFamily(const std::string& Name)
	{
		for (const FCostFamily& Family : GetCostFamilies())
		{
			if (Family.Name == Name)
			{
				return &Family;
			}
		}
		return nullptr;
	}

	static std::string DescribeComplexity(benchmark::BigO Complexity)
	{
		switch (Complexity)
		{
		case benchmark::o1: return "O(1)";
		case benchmark::oN: return "O(N)";
		case benchmark::oNSquared: return "O(N^2)";
		case benchmark::oNCubed: return "O(N^3)";
		case benchmark::oLogN: return "O(lgN)";
		case benchmark::oNLogN: return "O(NlgN)";
		default: return "f(N)";
		}
	}

	static std::string FormatSeconds(double Seconds)
	{
		char Text[32];
		if (Seconds < 1e-6)
		{
			std::snprintf(Text, sizeof(Text), "%.1f ns", Seconds * 1e9);
		}
		else if (Seconds < 1e-3)
		{
			std::snprintf(Text, sizeof(Text), "%.2f us", Seconds * 1e6);
		}
		else
		{
			std::snprintf(Text, sizeof(Text), "%.2f ms", Seconds * 1e3);
		}
		return Text;
	}

	static std::string ReadLoadAverage()
	{
		std::ifstream File("/proc/loadavg");
		std::string Line;
		std::getline(File, Line);
		return Line.empty() ? std::string("unknown") : Line;
	}

	void FCostTableReporter::ReportRuns(const std::vector<Run>& Reports)
	{
		benchmark::ConsoleReporter::ReportRuns(Reports);
		for (const Run& Report : Reports)
		{
			Collect(Report);
		}
	}

	void FCostTableReporter::Collect(const Run& Report)
	{
		const FCostFamily* Family = FindFamily(Report.run_name.function_name);
		if (!Family)
		{
			return;
		}
		FFamilyResults& Results = Families[Family->Name];
		const double Calls = static_cast<double>(Family->CallsPerIteration);
		if (Report.report_big_o)
		{
			// The fit is made over seconds per iteration; the class is chosen on CPU time.
			Results.Complexity = DescribeComplexity(Report.complexity);
			Results.CoefficientPerCall = Report.cpu_accumulated_time / Calls;
		}
		else if (Report.report_rms)
		{
			// RMS is relative; the reporter stores it divided by the time unit's multiplier.
			Results.Rms = Report.cpu_accumulated_time * benchmark::GetTimeUnitMultiplier(Report.time_unit);
		}
		else
		{
			// Aggregates carry no complexity N; every benchmark here has one argument, the N of its name.
			FMeasuredCall& Call = Results.Calls[std::strtoll(Report.run_name.args.c_str(), nullptr, 10)];
			const double SecondsPerCall = Report.iterations > 0 ? Report.cpu_accumulated_time / static_cast<double>(Report.iterations) / Calls : 0.0;
			if (Report.error_occurred)
			{
				Call.Error = Report.error_message;
				bHadErrors = true;
			}
			else if (Report.run_type == Run::RT_Iteration)
			{
				Call.RepetitionSeconds.push_back(SecondsPerCall);
			}
			else if (Report.aggregate_name == "median")
			{
				Call.MedianSeconds = SecondsPerCall;
			}
		}
	}

	double FCostTableReporter::FMeasuredCall::GetSecondsPerCall() const
	{
		if (MedianSeconds >= 0.0 || RepetitionSeconds.empty())
		{
			return MedianSeconds;
		}
		std::vector<double> Sorted = RepetitionSeconds;
		std::sort(Sorted.begin(), Sorted.end());
		const size_t Middle = Sorted.size() / 2;
		return Sorted.size() % 2 == 1 ? Sorted[Middle] : (Sorted[Middle - 1] + Sorted[Middle]) / 2.0;
	}

	const FCostTableReporter::FMeasuredCall* FCostTableReporter::FindFloorCall(const std::string& Floor, int64_t Argument) const
	{
		const auto FloorResults = Families.find(Floor);
		if (FloorResults == Families.end() || FloorResults->second.Calls.empty())
		{
			return nullptr;
		}
		const std::map<int64_t, FMeasuredCall>& Calls = FloorResults->second.Calls;
		const auto Same = Calls.find(Argument);
		// A floor measured once (no argument) stands for every argument.
		return Same != Calls.end() ? &Same->second : Calls.size() == 1 ? &Calls.begin()->second : nullptr;
	}

	// One line of the table, every column as text.
	struct FTableRow
	{
		std::string Call;
		std::string Argument;
		std::string PerCall;
		std::string PerUnit;
		std::string Floor;
		std::string Ratio;
		std::string Target;
		std::string Fit;
		std::string Rms;
	};

	static std::string FormatTableRow(const FTableRow& Row)
	{
		char Line[400];
		std::snprintf(Line, sizeof(Line), "%-44s %6s %11s %15s  %-30s %7s %-13s %-20s %5s", Row.Call.c_str(), Row.Argument.c_str(),
			Row.PerCall.c_str(), Row.PerUnit.c_str(), Row.Floor.c_str(), Row.Ratio.c_str(), Row.Target.c_str(), Row.Fit.c_str(), Row.Rms.c_str());
		return Line;
	}

	static std::string FormatFixed(const char* Format, double Value)
	{
		char Text[32];
		std::snprintf(Text, sizeof(Text), Format, Value);
		return Text;
	}

	void FCostTableReporter::FillFloorColumns(const FCostFamily& Family, int64_t Argument, double SecondsPerCall, FTableRow& OutRow) const
	{
		const FCostFamily* FloorFamily = Family.Floor.empty() ? nullptr : FindFamily(Family.Floor);
		const FMeasuredCall* FloorCall = FloorFamily ? FindFloorCall(Family.Floor, Argument) : nullptr;
		if (!FloorCall || !FloorCall->Error.empty() || FloorCall->GetSecondsPerCall() <= 0.0)
		{
			return;
		}
		const double Ratio = SecondsPerCall / FloorCall->GetSecondsPerCall();
		OutRow.Floor = FloorFamily->Call;
		OutRow.Ratio = FormatFixed("%.2fx", Ratio);
		if (Family.TargetRatio > 0.0)
		{
			OutRow.Target = FormatFixed("<=%.1fx", Family.TargetRatio) + (Ratio <= Family.TargetRatio ? " met" : " MISSED");
		}
	}

	void FCostTableReporter::PrintFamily(const FCostFamily& Family, const FFamilyResults& Results) const
	{
		std::ostream& Out = GetOutputStream();
		bool bFirstRow = true;
		for (const auto& [Argument, Call] : Results.Calls)
		{
			FTableRow Row;
			Row.Argument = std::to_string(Argument);
			if (bFirstRow)
			{
				Row.Call = Family.Call;
				Row.Fit = Results.Complexity.empty() ? std::string() : Results.Complexity + " " + FormatSeconds(Results.CoefficientPerCall);
				Row.Rms = Results.Rms >= 0.0 ? FormatFixed("%.0f%%", Results.Rms * 100.0) : std::string();
			}
			bFirstRow = false;
			if (!Call.Error.empty())
			{
				Out << FormatTableRow(Row) << "error: " << Call.Error << "\n";
				continue;
			}
			const double SecondsPerCall = Call.GetSecondsPerCall();
			Row.PerCall = FormatSeconds(SecondsPerCall);
			if (!Family.Unit.empty() && Argument > 0)
			{
				Row.PerUnit = FormatSeconds(SecondsPerCall / static_cast<double>(Argument)) + "/" + Family.Unit;
			}
			FillFloorColumns(Family, Argument, SecondsPerCall, Row);
			Out << FormatTableRow(Row) << "\n";
		}
	}

	void FCostTableReporter::Finalize()
	{
		benchmark::ConsoleReporter::Finalize();
		std::ostream& Out = GetOutputStream();
		Out << "\nPer-call costs: CPU time per call (median of the repetitions), from batches of calls made in one Lua loop\n"
			<< "(the C++ rows: one call per iteration from C++); a ratio compares with the floor at the same N\n";
		const std::string Header = FormatTableRow({ "call", "N", "per call", "per unit", "floor", "ratio", "target", "fit (per call)", "RMS" });
		Out << Header << "\n" << std::string(Header.size(), '-') << "\n";
		for (const FCostFamily& Family : GetCostFamilies())
		{
			const auto Results = Families.find(Family.Name);
			if (Results != Families.end())
			{
				PrintFamily(Family, Results->second);
			}
		}
		Out << "load average at the end of the run: " << ReadLoadAverage() << "\n";
	}
}
