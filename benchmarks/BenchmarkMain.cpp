// The benchmark program: Google Benchmark's console output, then the table of per-call costs against their floors.
#include "BenchmarkFamilies.h"
#include "CostTableReporter.h"

#include <unistd.h>

int main(int ArgumentCount, char** Arguments)
{
	using namespace VLMRBench;
	RegisterHandleBenchmarks();
	RegisterQueueListingBenchmarks();
	RegisterGraphBenchmarks();
	RegisterClassLookupBenchmarks();
	benchmark::Initialize(&ArgumentCount, Arguments);
	if (benchmark::ReportUnrecognizedArguments(ArgumentCount, Arguments))
	{
		return 1;
	}
	const int Options = benchmark::ConsoleReporter::OO_Tabular | (isatty(STDOUT_FILENO) ? benchmark::ConsoleReporter::OO_Color : 0);
	FCostTableReporter Reporter(static_cast<benchmark::ConsoleReporter::OutputOptions>(Options));
	benchmark::RunSpecifiedBenchmarks(&Reporter);
	benchmark::Shutdown();
	return Reporter.HadErrors() ? 1 : 0;
}
