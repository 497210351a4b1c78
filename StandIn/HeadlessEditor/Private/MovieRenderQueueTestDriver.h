// The Movie Render Queue part of the `editor` table: preset assets, a render in progress, the default executor.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

namespace UE::Vlmr
{
	// editor.create_config(path): a new, saved primary configuration asset; returns its object path.
	int LuaCreateConfig(lua_State* L);

	// editor.set_rendering(bool): starts (true) or finishes (false) a render of the editor queue by an executor that
	// renders nothing, so that the queue subsystem reports a render in progress in between.
	int LuaSetRendering(lua_State* L);

	// editor.set_queue_subsystem_available(bool): false takes the Movie Pipeline queue subsystem out of the editor, so
	// that GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() returns null; true only confirms it is there.
	int LuaSetQueueSubsystemAvailable(lua_State* L);

	// editor.set_default_local_executor(class_path): the executor class the project settings name for local renders.
	int LuaSetDefaultLocalExecutor(lua_State* L);

	// editor.list_files(dir): the files below the directory (relative ones are under the project directory), as
	// sorted paths relative to it with "/" separators; an empty table when the directory does not exist.
	int LuaListFiles(lua_State* L);
}
