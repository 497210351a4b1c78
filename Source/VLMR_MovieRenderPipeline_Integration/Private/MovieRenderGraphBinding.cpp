// The "MovieRenderGraph" binding: the mrg_* globals and the graph-side handle methods.
#include "VLMRBindings.h"
#include "Graph/MovieGraphConfig.h"
#include "LuaSessionData.h"
#include "MoviePipelineQueue.h"

void BindMovieRenderGraphGlobals(sol::state& Lua, FLuaSessionData& Session)
{
	// The graph globals are installed here as the capability probe, resolution and pipeline functions are built.
}

namespace VLMRMovieRenderGraph
{
	void ExtendGraphHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session)
	{
		// Evaluation and node-property methods join the graph handle as they are built.
	}

	void ExtendJobHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMoviePipelineExecutorJob> Job, FLuaSessionData& Session)
	{
		// The job's output directory and graph evaluation join the job handle as they are built.
	}
}
