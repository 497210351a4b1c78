// What the queue and graph bindings' calls cost as the queue and the class registry grow, one call per iteration
// made from C++.
#include "BenchmarkEditor.h"
#include "BenchmarkFamilies.h"
#include "CostFamilies.h"
#include "UObject/UnrealType.h"

namespace VLMRBench
{
	// Classes that are not settings, so that a setting lookup has more classes to walk.
	static void RegisterClassesUpTo(int32 Count)
	{
		static TArray<FString> Names;
		while (Names.Num() < Count)
		{
			FString& Name = Names.Add_GetRef(FString::Printf(TEXT("UBenchFillerClass%d"), Names.Num()));
			UE::CoreUObject::StandIn::FNativeClassParams Params;
			Params.Name = *Name;
			Params.ModuleName = TEXT("VLMRBenchmarks");
			Params.SuperClass = &UObject::StaticClass;
			Params.Size = sizeof(UObject);
			Params.Alignment = alignof(UObject);
			Params.Construct = &UObject::StandInConstruct;
			UClass* Class = nullptr;
			UE::CoreUObject::StandIn::ConstructNativeClass(Class, Params);
		}
	}

	// Calls the function once per iteration; the log it leaves is forgotten with the timer paused.
	template<class... TArguments>
	static void MeasureCall(benchmark::State& State, const sol::protected_function& Function, const TArguments&... Arguments)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		for (auto _ : State)
		{
			const sol::protected_function_result Result = Function(Arguments...);
			benchmark::DoNotOptimize(Result.valid());
			State.PauseTiming();
			Editor.ForgetCallTraces(false);
			State.ResumeTiming();
		}
		State.SetComplexityN(State.range(0));
	}

	static void MeasureGetQueue(benchmark::State& State, int64_t)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		Editor.FillQueue(static_cast<int32>(State.range(0)));
		MeasureCall(State, Editor.GetLua()["mrq_get_queue"]);
	}

	static void MeasureGetJobHandle(benchmark::State& State, int64_t)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		Editor.FillQueue(static_cast<int32>(State.range(0)));
		MeasureCall(State, Editor.GetLua()["mrq_get_job"], 1);
	}

	static void MeasureFindOrAddSetting(benchmark::State& State, int64_t)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		RegisterClassesUpTo(static_cast<int32>(State.range(0)));
		Editor.FillQueue(1);
		sol::state& Lua = Editor.GetLua();
		Lua.script("bench_job = mrq_get_job(1)");
		const sol::object Job = Lua["bench_job"];
		// The substring pass is the longest walk: no class is named exactly "ConsoleVariable".
		MeasureCall(State, Lua["bench_job"]["find_or_add_setting"], Job, "ConsoleVariable");
	}

	static void MeasureGraphAddNode(benchmark::State& State, int64_t)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		RegisterClassesUpTo(static_cast<int32>(State.range(0)));
		sol::state& Lua = Editor.GetLua();
		Lua.script("bench_graph = mrq_open_graph('Graphs/ExampleGraph')");
		sol::protected_function AddNode = Lua["bench_graph"]["add_node"];
		sol::protected_function RemoveNode = Lua["bench_graph"]["remove_node"];
		const sol::object Graph = Lua["bench_graph"];
		for (auto _ : State)
		{
			// The substring pass: no node class is named exactly "GlobalOutputSetting".
			sol::protected_function_result Result = AddNode(Graph, "GlobalOutputSetting");
			State.PauseTiming();
			const sol::table Node = Result;
			RemoveNode(Graph, Node.get<std::string>("id"));
			Editor.ForgetCallTraces(false);
			State.ResumeTiming();
		}
		State.SetComplexityN(State.range(0));
	}

	void RegisterClassLookupBenchmarks()
	{
		RegisterCost({ "BM_GetQueue", "mrq_get_queue() from C++ (N jobs)", 1, "job" }, &MeasureGetQueue)
			->RangeMultiplier(2)->Range(1250, 10000)->Complexity();
		RegisterCost({ "BM_GetJobHandle", "mrq_get_job(1) from C++ (N jobs)" }, &MeasureGetJobHandle)
			->RangeMultiplier(4)->Range(16, 1024)->Complexity();
		RegisterCost({ "BM_FindOrAddSetting", "job:find_or_add_setting (N classes)", 1, "class" }, &MeasureFindOrAddSetting)
			->RangeMultiplier(2)->Range(3750, 30000)->Complexity();
		RegisterCost({ "BM_GraphAddNode", "graph:add_node (N classes)", 1, "class" }, &MeasureGraphAddNode)
			->RangeMultiplier(2)->Range(3750, 30000)->Complexity();
	}
}
