// What the queue and graph bindings' calls cost as the queue and the class registry grow.
#include <benchmark/benchmark.h>

#include "CoreMinimal.h"
#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "VelmireLuaSession.h"

namespace
{
	// The editor, the module and one Lua session, shared by every benchmark of the run.
	struct FBenchmarkEditor
	{
		FBenchmarkEditor()
		{
			FPaths::SetProjectDir(TEXT(VLMR_SAMPLE_PROJECT_DIR) TEXT("/"));
			UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/Maps/Main"));
			FModuleManager::Get().LoadModule(TEXT("VLMR_MovieRenderPipeline_Integration"));
			Session = MakeUnique<FVelmireLuaSession>();
			UPackage* Package = CreatePackage(TEXT("/Game/Bench/Sequence"));
			Sequence = NewObject<ULevelSequence>(Package, TEXT("Sequence"), RF_Public | RF_Standalone);
		}

		UMoviePipelineQueue* GetQueue() const
		{
			return GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>()->GetQueue();
		}

		void FillQueue(int32 JobCount) const
		{
			UMoviePipelineQueue* Queue = GetQueue();
			Queue->DeleteAllJobs();
			for (int32 Index = 0; Index < JobCount; ++Index)
			{
				UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
				Job->Sequence = FSoftObjectPath(Sequence);
				Job->JobName = TEXT("Bench");
			}
		}

		sol::protected_function Global(const char* Name) const
		{
			return Session->GetState()[Name];
		}

		TUniquePtr<FVelmireLuaSession> Session;
		ULevelSequence* Sequence = nullptr;
	};

	FBenchmarkEditor& GetEditor()
	{
		static FBenchmarkEditor Editor;
		return Editor;
	}

	// Classes that are not settings, so that a setting lookup has more classes to walk.
	void RegisterClassesUpTo(int32 Count)
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

	void ClearSessionLog()
	{
		GetEditor().Session->GetSessionData().ClearLog();
	}
}

static void BM_GetQueue(benchmark::State& State)
{
	FBenchmarkEditor& Editor = GetEditor();
	Editor.FillQueue(static_cast<int32>(State.range(0)));
	sol::protected_function GetQueue = Editor.Global("mrq_get_queue");
	for (auto _ : State)
	{
		sol::protected_function_result Result = GetQueue();
		benchmark::DoNotOptimize(Result.valid());
		State.PauseTiming();
		ClearSessionLog();
		State.ResumeTiming();
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(BM_GetQueue)->RangeMultiplier(2)->Range(1250, 10000)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

static void BM_GetJobHandle(benchmark::State& State)
{
	FBenchmarkEditor& Editor = GetEditor();
	Editor.FillQueue(static_cast<int32>(State.range(0)));
	sol::protected_function GetJob = Editor.Global("mrq_get_job");
	for (auto _ : State)
	{
		sol::protected_function_result Result = GetJob(1);
		benchmark::DoNotOptimize(Result.valid());
		State.PauseTiming();
		ClearSessionLog();
		State.ResumeTiming();
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(BM_GetJobHandle)->RangeMultiplier(4)->Range(16, 1024)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

static void BM_FindOrAddSetting(benchmark::State& State)
{
	FBenchmarkEditor& Editor = GetEditor();
	RegisterClassesUpTo(static_cast<int32>(State.range(0)));
	Editor.FillQueue(1);
	sol::state& Lua = Editor.Session->GetState();
	Lua.script("bench_job = mrq_get_job(1)");
	sol::protected_function FindOrAdd = Lua["bench_job"]["find_or_add_setting"];
	const sol::object Job = Lua["bench_job"];
	for (auto _ : State)
	{
		// The substring pass is the longest walk: no class is named exactly "ConsoleVariable".
		sol::protected_function_result Result = FindOrAdd(Job, "ConsoleVariable");
		benchmark::DoNotOptimize(Result.valid());
		State.PauseTiming();
		ClearSessionLog();
		State.ResumeTiming();
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(BM_FindOrAddSetting)->RangeMultiplier(2)->Range(3750, 30000)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

static void BM_GraphAddNode(benchmark::State& State)
{
	FBenchmarkEditor& Editor = GetEditor();
	RegisterClassesUpTo(static_cast<int32>(State.range(0)));
	sol::state& Lua = Editor.Session->GetState();
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
		ClearSessionLog();
		State.ResumeTiming();
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK(BM_GraphAddNode)->RangeMultiplier(2)->Range(3750, 30000)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
