// The module's two Lua bindings: their installers, documentation tables, handle builders and graph-side extenders.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireExtensionRegistrar.h"

class FLuaSessionData;
class UMovieGraphConfig;
class UMoviePipelineExecutorJob;

namespace VLMR
{
	// The id under which the module registers itself and both bindings, and unregisters at shut-down.
	extern const TCHAR* const ExtensionId;

	extern const TCHAR* const QueueBindingName;
	extern const TCHAR* const GraphBindingName;

	// Documentation records, built once at static initialisation; each registration gets a copy.
	const TArray<FLuaFunctionDoc>& GetMovieRenderQueueDocs();
	const TArray<FLuaFunctionDoc>& GetMovieRenderGraphDocs();
}

// Installs the queue binding's globals into a session's Lua state; every closure captures the session by address.
void BindMovieRenderQueue(sol::state& Lua, FLuaSessionData& Session);

// Installs the graph binding's globals into a session's Lua state.
void BindMovieRenderGraphGlobals(sol::state& Lua, FLuaSessionData& Session);

namespace VLMRMovieRenderGraph
{
	// Adds the graph-side methods to a graph handle that the queue binding has built.
	void ExtendGraphHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session);

	// Adds the graph-side methods to a job handle that the queue binding has built.
	void ExtendJobHandle(sol::state_view& Lua, sol::table& Handle, TWeakObjectPtr<UMoviePipelineExecutorJob> Job, FLuaSessionData& Session);
}
