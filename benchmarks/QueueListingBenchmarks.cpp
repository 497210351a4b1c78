// mrq_get_queue per queued job, against a pure-Lua function that builds the same table from strings Lua already has.
#include "BenchmarkEditor.h"
#include "BenchmarkFamilies.h"
#include "CostFamilies.h"
#include "LuaLoop.h"

namespace VLMRBench
{
	static const char* const GetQueueLoop = R"(
		return function(n)
			for _ = 1, n do
				mrq_get_queue()
			end
		end)";

	// The floor copies the first job's values once, then builds every row with a table constructor. Before it is
	// measured, its result is compared with mrq_get_queue's (the scenarios' check.eq), so that both build the same keys
	// and values.
	static const char* const LuaQueueLoop = R"(
		local count = ...
		local listed = mrq_get_queue()
		local first = listed.jobs[1]
		local sequence, map, author, job_name, comment, user_data = first.sequence, first.map, first.author, first.job_name, first.comment, first.user_data
		local is_enabled, is_consumed, is_graph_config = first.is_enabled, first.is_consumed, first.is_graph_config
		local setting_names, setting_flags = {}, {}
		for i, row in ipairs(first.settings or {}) do
			setting_names[i], setting_flags[i] = row.name, row.is_enabled
		end
		local has_settings = first.settings ~= nil

		local function build_settings()
			local rows = {}
			for i = 1, #setting_names do
				rows[i] = { name = setting_names[i], is_enabled = setting_flags[i] }
			end
			return rows
		end

		local function build_queue()
			local jobs = {}
			for i = 1, count do
				jobs[i] = { index = i, sequence = sequence, map = map, author = author, job_name = job_name, comment = comment,
					is_enabled = is_enabled, is_consumed = is_consumed, user_data = user_data, is_graph_config = is_graph_config,
					settings = has_settings and build_settings() or nil }
			end
			return { jobs = jobs, count = count, is_rendering = false }
		end

		assert(check.eq(build_queue(), listed, "the Lua floor builds what mrq_get_queue returns"), "the Lua floor differs from mrq_get_queue")

		return function(n)
			for _ = 1, n do
				build_queue()
			end
		end)";

	static void RegisterQueueListing(const FCostFamily& Family, const char* Source)
	{
		RegisterCost(Family, [Source](benchmark::State& State, int64_t Calls) {
			const int64_t JobCount = State.range(0);
			GetEditor().FillQueue(static_cast<int32>(JobCount));
			MeasureLuaLoop(State, Source, JobCount, Calls);
		})->Arg(10)->Arg(100)->Arg(1000)->Complexity();
	}

	void RegisterQueueListingBenchmarks()
	{
		constexpr int64_t ListingCalls = 10;
		RegisterQueueListing({ "BM_QueueListing", "mrq_get_queue() (N jobs)", ListingCalls, "job", "BM_QueueListingLuaFloor", 2.0 }, GetQueueLoop);
		RegisterQueueListing({ "BM_QueueListingLuaFloor", "floor: same table built in Lua", ListingCalls, "job" }, LuaQueueLoop);
	}
}
