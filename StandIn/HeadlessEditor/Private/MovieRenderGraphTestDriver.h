// The Movie Render Graph part of the `editor` table.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

namespace UE::Vlmr
{
	// editor.add_typed_variable(graph_path, name, value_type [, container_type]): adds a user variable of the value type
	// (an EMovieGraphValueType name, such as "Int32") and container type ("Array", ...) to a loaded or loadable graph, as
	// the graph editor's type picker does; returns the variable's final name. Scripts cannot choose a variable's type
	// through the module, so this is how every value type is reached.
	int LuaAddTypedVariable(lua_State* L);
}
