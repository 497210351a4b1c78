// Graph calls on chains of N setting nodes wired into the Globals branch between the Input and Output nodes, so that
// evaluation walks every node. The last node of a chain is a Global Output Setting node, the one edited.
#include "BenchmarkEditor.h"
#include "BenchmarkFamilies.h"
#include "CostFamilies.h"
#include "LuaLoop.h"

#include <string>

namespace VLMRBench
{
	// bench_chain(count) builds a chain through the graph handle once and returns {graph, path, last}.
	static const std::string ChainBuilder = R"(
		bench_chains = bench_chains or {}
		local function bench_chain(count)
			if bench_chains[count] then
				return bench_chains[count]
			end
			local path = "/Game/Bench/Chain" .. count
			assert(bench_create_graph(path), "could not create " .. path)
			local graph = assert(mrq_open_graph(path))
			local classes = { "GlobalOutputSetting", "WarmUpSetting", "SamplingMethod", "GlobalGameOverrides" }
			local previous = "input"
			for i = count, 1, -1 do
				local node = assert(graph:add_node(classes[(i - 1) % #classes + 1]))
				assert(graph:connect(previous, "Globals", node.id, "Globals"), "could not connect node " .. i)
				previous = node.id
			end
			assert(graph:connect(previous, "Globals", "output", "Globals"), "could not connect the output")
			bench_chains[count] = { graph = graph, path = path, last = previous }
			return bench_chains[count]
		end
		local chain = bench_chain(...)
	)";

	static const char* const EvaluateLoop = R"(
		local graph, options = chain.graph, { job = 1 }
		assert(graph:evaluate(options).ok)
		return function(n)
			for _ = 1, n do
				graph:evaluate(options)
			end
		end)";

	// Writes the values in turn; with two different ones every call is a change and opens a transaction.
	static std::string MakePropertyLoop(const char* Values)
	{
		return std::string("local values = ") + Values + R"(
			local graph, id = chain.graph, chain.last
			assert(graph:set_node_property(id, "ZeroPadFrameNumbers", values[1]) == true)
			return function(n)
				for i = 1, n do
					graph:set_node_property(id, "ZeroPadFrameNumbers", values[i % 2 + 1])
				end
			end)";
	}

	static std::string MakeFormatLoop(const char* Options)
	{
		return std::string("local options = ") + Options + R"(
			assert(mrg_resolve_format("{sequence_name}.{frame_number}", options).ok)
			return function(n)
				for _ = 1, n do
					mrg_resolve_format("{sequence_name}.{frame_number}", options)
				end
			end)";
	}

	// A call on chains of 10, 100 and 1,000 nodes, with one job queued.
	static void RegisterChainCall(const FCostFamily& Family, const std::string& Loop, bool bCollectGarbage)
	{
		const std::string Source = ChainBuilder + Loop;
		RegisterCost(Family, [Source, bCollectGarbage](benchmark::State& State, int64_t Calls) {
			GetEditor().FillQueue(1);
			MeasureLuaLoop(State, Source.c_str(), State.range(0), Calls, bCollectGarbage);
		})->Arg(10)->Arg(100)->Arg(1000)->Complexity();
	}

	void RegisterGraphBenchmarks()
	{
		// Each evaluation leaves a flattened copy of the graph behind for the next collection.
		RegisterChainCall({ "BM_GraphEvaluate", "graph:evaluate({job=1}) (N nodes)", 2, "node" }, EvaluateLoop, true);
		RegisterChainCall({ "BM_SetNodePropertyChanged", "graph:set_node_property changed (N nodes)", 20, "node" }, MakePropertyLoop("{ 4, 6 }"), false);
		RegisterChainCall({ "BM_SetNodePropertyUnchanged", "graph:set_node_property same (N nodes)", 50, "node" }, MakePropertyLoop("{ 4, 4 }"), false);
		RegisterChainCall({ "BM_ResolveFormatGraph", "mrg_resolve_format({graph}) (N nodes)", 2, "node" },
			MakeFormatLoop("{ graph = chain.path, job = 1, root_frame = 7, zero_pad = 4, as_path = false }"), true);

		const std::string JobFormatLoop = MakeFormatLoop("{ job = 1, root_frame = 7, zero_pad = 4, as_path = false }");
		RegisterCost({ "BM_ResolveFormatJob", "mrg_resolve_format({job=1}) (N jobs)", 50, "" }, [JobFormatLoop](benchmark::State& State, int64_t Calls) {
			const int64_t JobCount = State.range(0);
			GetEditor().FillQueue(static_cast<int32>(JobCount));
			MeasureLuaLoop(State, JobFormatLoop.c_str(), JobCount, Calls);
		})->Arg(10)->Arg(100)->Arg(1000)->Complexity();
	}
}
