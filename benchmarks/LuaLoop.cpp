#include "LuaLoop.h"

#include "BenchmarkEditor.h"

namespace VLMRBench
{
	static bool PrepareLoop(sol::state& Lua, const char* Source, int64_t Argument, sol::protected_function& OutLoop, std::string& OutError)
	{
		const sol::load_result Chunk = Lua.load(Source);
		if (!Chunk.valid())
		{
			OutError = sol::error(Chunk).what();
			return false;
		}
		const sol::protected_function Prepare = Chunk;
		const sol::protected_function_result Prepared = Prepare(Argument);
		if (!Prepared.valid())
		{
			OutError = sol::error(Prepared).what();
			return false;
		}
		if (Prepared.get_type() != sol::type::function)
		{
			OutError = "the chunk did not return the loop function";
			return false;
		}
		OutLoop = Prepared;
		return true;
	}

	void MeasureLuaLoop(benchmark::State& State, const char* Source, int64_t Argument, int64_t CallsPerIteration, bool bCollectGarbage)
	{
		const FBenchmarkEditor& Editor = GetEditor();
		sol::protected_function Loop;
		std::string Error;
		if (!PrepareLoop(Editor.GetLua(), Source, Argument, Loop, Error))
		{
			State.SkipWithError(Error.c_str());
			return;
		}
		Editor.ForgetCallTraces(bCollectGarbage);
		for (auto _ : State)
		{
			const sol::protected_function_result Result = Loop(CallsPerIteration);
			if (!Result.valid())
			{
				Error = sol::error(Result).what();
				State.SkipWithError(Error.c_str());
				break;
			}
			State.PauseTiming();
			Editor.ForgetCallTraces(bCollectGarbage);
			State.ResumeTiming();
		}
		State.SetComplexityN(Argument);
	}
}
