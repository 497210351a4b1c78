// The graph handle: a Movie Render Graph asset opened by a script.
#include "Graph/MovieGraphConfig.h"
#include "MovieRenderQueueHandles.h"
#include "VLMRBindings.h"
#include "VLMRScriptArguments.h"

sol::table BuildGraphHandle(sol::state_view& Lua, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session)
{
	const UMovieGraphConfig* Resolved = Graph.Get();
	sol::table Handle = VLMR::CreateHandleTable(Lua, "path", Resolved ? TOptional<FString>(Resolved->GetPathName()) : TOptional<FString>());
	VLMRMovieRenderGraph::ExtendGraphHandle(Lua, Handle, Graph, Session);
	return Handle;
}
