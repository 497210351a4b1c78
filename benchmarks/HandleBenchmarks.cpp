// What a job handle costs: one of its methods against the cheapest callables Lua can have, and building a handle.
#include "BenchmarkEditor.h"
#include "BenchmarkFamilies.h"
#include "CostFamilies.h"
#include "LuaLoop.h"

namespace VLMRBench
{
	// Every method target is called the same way: as a method of a table held in a local, with no further argument.
	static const char* const MethodLoop = R"(
		local target = bench_method_target
		return function(n)
			for _ = 1, n do
				target:is_consumed()
			end
		end)";

	static const char* const GetJobLoop = R"(
		return function(n)
			for _ = 1, n do
				mrq_get_job(1)
			end
		end)";

	static int BareIsConsumed(lua_State* L)
	{
		lua_pushboolean(L, 0);
		return 1;
	}

	// A table whose is_consumed is a sol2 closure with the handle method's parameters, returning a captured bool.
	static void SetSolClosureTarget(sol::state& Lua)
	{
		static const bool bConsumed = false;
		sol::table Target = Lua.create_table();
		Target.set_function("is_consumed", [Value = &bConsumed](sol::this_state, sol::object) { return *Value; });
		Lua["bench_method_target"] = Target;
	}

	static void SetCFunctionTarget(sol::state& Lua)
	{
		lua_State* L = Lua.lua_state();
		lua_newtable(L);
		lua_pushcfunction(L, &BareIsConsumed);
		lua_setfield(L, -2, "is_consumed");
		lua_setglobal(L, "bench_method_target");
	}

	static void SetJobHandleTarget(sol::state& Lua)
	{
		Lua.script("bench_method_target = mrq_get_job(1)");
	}

	static void RegisterMethodTarget(const FCostFamily& Family, void (*SetTarget)(sol::state&), bool bHasQueueSizes)
	{
		benchmark::internal::Benchmark* Benchmark = RegisterCost(Family, [SetTarget](benchmark::State& State, int64_t Calls) {
			const int64_t JobCount = State.range(0);
			const FBenchmarkEditor& Editor = GetEditor();
			Editor.FillQueue(static_cast<int32>(JobCount));
			SetTarget(Editor.GetLua());
			MeasureLuaLoop(State, MethodLoop, JobCount, Calls);
		});
		if (bHasQueueSizes)
		{
			Benchmark->Arg(10)->Arg(100)->Arg(1000)->Complexity();
		}
		else
		{
			Benchmark->Arg(1);
		}
	}

	void RegisterHandleBenchmarks()
	{
		constexpr int64_t MethodCalls = 2000;
		RegisterMethodTarget({ "BM_JobIsConsumed", "job:is_consumed() (N jobs queued)", MethodCalls, "", "BM_SolClosureFloor", 1.3 },
			&SetJobHandleTarget, true);
		RegisterMethodTarget({ "BM_SolClosureFloor", "floor: bare sol2 closure", MethodCalls }, &SetSolClosureTarget, false);
		RegisterMethodTarget({ "BM_CFunctionFloor", "floor: bare lua_CFunction", MethodCalls }, &SetCFunctionTarget, false);

		RegisterCost({ "BM_BuildJobHandle", "mrq_get_job(1) (N jobs queued)", 20, "" }, [](benchmark::State& State, int64_t Calls) {
			const int64_t JobCount = State.range(0);
			GetEditor().FillQueue(static_cast<int32>(JobCount));
			MeasureLuaLoop(State, GetJobLoop, JobCount, Calls);
		})->Arg(10)->Arg(100)->Arg(1000)->Complexity();
	}
}
