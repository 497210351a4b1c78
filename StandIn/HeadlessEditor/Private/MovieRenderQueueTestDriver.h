// The Movie Render Queue part of the `editor` table: preset assets, a render in progress, the default executor.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

namespace UE::Vlmr
{
	// Pushes what the functions below keep between calls, a userdata that the `editor` table's functions hold as their
	// second upvalue; it lets go of what it keeps when the session's Lua state closes.
	void PushMovieRenderQueueDriverState(lua_State* L);

	// editor.create_config(path): a new, saved primary configuration asset; returns its object path.
	int LuaCreateConfig(lua_State* L);

	// editor.create_graph(path): a new, saved Movie Render Graph asset; returns its object path.
	int LuaCreateGraph(lua_State* L);

	// editor.set_rendering(bool): starts (true) or finishes (false) a render of the editor queue by an executor that
	// renders nothing, so that the queue subsystem reports a render in progress in between.
	int LuaSetRendering(lua_State* L);

	// editor.set_queue_subsystem_available(bool): false deactivates the Movie Pipeline queue subsystem as the engine
	// does when its plugin is deactivated (GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() then returns
	// null, and the subsystem with its queue and jobs is collected); true activates it again and gives its new queue
	// the jobs the queue had, as copies. Refused while a render is in progress.
	int LuaSetQueueSubsystemAvailable(lua_State* L);

	// editor.set_default_local_executor(class_path): the executor class the project settings name for local renders.
	int LuaSetDefaultLocalExecutor(lua_State* L);

	// editor.list_files(dir): the files below the directory (relative ones are under the project directory), as
	// sorted paths relative to it with "/" separators; an empty table when the directory does not exist.
	int LuaListFiles(lua_State* L);
}
