// The "MovieRenderQueue" binding's installer: one closure over the session for each mrq_* global.
#include "LuaSessionData.h"
#include "MovieRenderQueueGlobals.h"
#include "VLMRBindings.h"
#include "VLMRScriptArguments.h"

void BindMovieRenderQueue(sol::state& Lua, FLuaSessionData& Session)
{
	using namespace VLMR;
	FLuaSessionData* S = &Session;
	Lua.set_function("mrq_add_job", [S](sol::this_state L, const FScriptText& Path) { return AddJob(L, *S, Path.Value); });
	Lua.set_function("mrq_allocate_job", [S](sol::this_state L, const FScriptText& Path) { return AllocateJob(L, *S, Path.Value); });
	Lua.set_function("mrq_duplicate_job", [S](sol::this_state L, int64 Index) { return DuplicateJob(L, *S, Index); });
	Lua.set_function("mrq_set_job_index", [S](sol::this_state L, int64 From, int64 To) { return SetJobIndex(L, *S, From, To); });
	Lua.set_function("mrq_render_job", [S](sol::this_state L, sol::object Job) { return RenderJob(L, *S, Job); });
	Lua.set_function("mrq_render_queue", [S](sol::this_state L) { return RenderQueue(L, *S); });
	Lua.set_function("mrq_is_rendering", []() { return IsRendering(); });
	Lua.set_function("mrq_render_progress", [S](sol::this_state L) { return RenderProgress(L, *S); });
	Lua.set_function("mrq_cancel_render", [S](sol::this_state L, const TOptionalArgument<bool>& bCancelAll) { return CancelRender(L, *S, bCancelAll.Get(true)); });
	Lua.set_function("mrq_delete_job", [S](sol::this_state L, int64 Index) { return DeleteJob(L, *S, Index); });
	Lua.set_function("mrq_delete_all_jobs", [S](sol::this_state L) { return DeleteAllJobs(L, *S); });
	Lua.set_function("mrq_list_settings", [S](sol::this_state L, const TOptionalArgument<FScriptText>& Filter) { return ListSettings(L, *S, Filter.Get({}).Value); });
	Lua.set_function("mrq_get_queue", [S](sol::this_state L) { return GetQueue(L, *S); });
	Lua.set_function("mrq_get_job", [S](sol::this_state L, int64 Index) { return GetJob(L, *S, Index); });
	Lua.set_function("mrq_open_config", [S](sol::this_state L, const FScriptText& Path) { return OpenConfig(L, *S, Path.Value); });
	Lua.set_function("mrq_open_graph", [S](sol::this_state L, const FScriptText& Path) { return OpenGraph(L, *S, Path.Value); });
	Lua.set_function("mrq_save_queue", [S](sol::this_state L, const FScriptText& Path) { return SaveQueue(L, *S, Path.Value); });
	Lua.set_function("mrq_load_queue", [S](sol::this_state L, const FScriptText& Path) { return LoadQueue(L, *S, Path.Value); });
}
