// mrg_request_shutdown: the graceful stop of a running render, for graph and legacy pipelines alike.
#include "LuaSessionData.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderGraphPipelineStatus.h"
#include "MovieRenderQueueAccess.h"
#include "VLMRScriptOptions.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	static const TCHAR* const ShutdownLabel = TEXT("mrg_request_shutdown");

	// Why nothing can be asked to stop, or null when the render has a pipeline.
	static const TCHAR* FindShutdownRefusal(const FActiveRender& Render)
	{
		if (!Render.Subsystem)
		{
			return TEXT("Movie Pipeline subsystem not available");
		}
		if (!Render.Executor || !Render.Executor->IsRendering())
		{
			return TEXT("no render is in progress");
		}
		if (!Render.Pipeline)
		{
			return TEXT("executor has no active pipeline yet (PIE still starting); retry or use mrq_cancel_render");
		}
		return nullptr;
	}

	sol::object RequestPipelineShutdown(sol::state_view Lua, FLuaSessionData& Session, const sol::object& Options)
	{
		// Read before any engine call: reading a field may run script code.
		const bool bIsError = FScriptOptions(Options).IsTruthy("error");
		const FActiveRender Render = FindActiveRender();
		if (const TCHAR* Refusal = FindShutdownRefusal(Render))
		{
			return Fail(Lua, Session, ShutdownLabel, Refusal);
		}
		if (Render.Pipeline->IsShutdownRequested())
		{
			LogLine(Session, ELineKind::Ok, ShutdownLabel, TEXT("already requested"));
			return sol::make_object(Lua, true);
		}
		Render.Pipeline->RequestShutdown(bIsError);
		LogLine(Session, ELineKind::Ok, ShutdownLabel, FString::Printf(TEXT("requested (error=%s, pipeline=%s)"), BoolText(bIsError), *Render.Pipeline->GetName()));
		return sol::make_object(Lua, true);
	}
}
