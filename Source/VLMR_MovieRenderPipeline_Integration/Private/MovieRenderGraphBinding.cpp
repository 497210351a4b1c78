// The "MovieRenderGraph" binding: the mrg_* globals and the graph-side handle methods.
#include "VLMRBindings.h"
#include "Graph/MovieGraphConfig.h"
#include "LuaSessionData.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderGraphEvaluation.h"
#include "MovieRenderGraphGlobals.h"
#include "MovieRenderGraphNodeEditing.h"
#include "MovieRenderGraphPipelineStatus.h"
#include "VLMRScriptArguments.h"

void BindMovieRenderGraphGlobals(sol::state& Lua, FLuaSessionData& Session)
{
	using namespace VLMR;
	FLuaSessionData* S = &Session;
	Lua.set_function("mrg_support", [](sol::this_state L) { return GetSupport(L); });
	Lua.set_function("mrg_named_resolutions", [S](sol::this_state L) { return GetNamedResolutions(L, *S); });
	Lua.set_function("mrg_named_resolution", [S](sol::this_state L, sol::object ProfileOrSize) { return GetNamedResolution(L, *S, ProfileOrSize); });
	Lua.set_function("mrg_resolve_format", [S](sol::this_state L, const FScriptText& Format, sol::object Options) { return ResolveFormat(L, *S, Format.Value, Options); });
	Lua.set_function("mrg_resolve_version", [S](sol::this_state L, sol::object Options) { return ResolveVersion(L, *S, Options); });
	Lua.set_function("mrg_pipeline_status", [S](sol::this_state L) { return GetPipelineStatus(L, *S); });
	Lua.set_function("mrg_request_shutdown", [S](sol::this_state L, sol::object Options) { return RequestPipelineShutdown(L, *S, Options); });
}

namespace VLMRMovieRenderGraph
{
	void ExtendGraphHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session)
	{
		VLMR::AddGraphEvaluationMethods(Handle, Graph, &Session);
		VLMR::AddNodeEditingMethods(Handle, Graph, &Session);
	}

	void ExtendJobHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMoviePipelineExecutorJob> Job, FLuaSessionData& Session)
	{
		VLMR::AddJobEvaluationMethods(Handle, Job, &Session);
	}
}
