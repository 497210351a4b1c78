// Node properties and variable values edited under undo, node removal, and node insertion where the engine has it.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UMovieGraphConfig;

namespace VLMR
{
	// get_node_property, set_node_property, get_variable, set_variable, remove_node, insert_before and insert_after.
	void AddNodeEditingMethods(sol::table& Handle, const TWeakObjectPtr<UMovieGraphConfig>& Graph, FLuaSessionData* Session);
}
