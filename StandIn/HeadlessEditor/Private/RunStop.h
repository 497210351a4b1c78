// How a vlmr run ends early: a script's os.exit, or SIGINT or SIGTERM. Either way the running script unwinds as after
// a Lua error, the editor shuts down and the temporary project copy is removed before the process ends, so that the
// process exits the ordinary way (static destructors and the leak check included) rather than from inside a script.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "VelmireLuaIncludes.h"

namespace UE::Vlmr
{
	// Handles SIGINT and SIGTERM by asking the run to stop; a second such signal ends the process at once.
	void InstallStopSignalHandlers();

	// Whether os.exit or a signal asked the run to stop.
	bool IsStopRequested();

	// The exit code a script's os.exit asked for; unset when none called it.
	TOptional<int32> GetRequestedExitCode();

	// Ends the process by the signal that stopped the run, once everything is cleaned up; returns when none did.
	void RaiseStopSignal();

	// While it lives, the session's os.exit([code]) stops the run with that code instead of ending the process, and a
	// stop request makes the session's Lua code raise an error at its next instruction, again after any pcall that
	// catches it, until the script has unwound.
	class FScriptStopScope
	{
	public:
		explicit FScriptStopScope(lua_State* L);
		~FScriptStopScope();

		FScriptStopScope(const FScriptStopScope&) = delete;
		FScriptStopScope& operator=(const FScriptStopScope&) = delete;
	};
}
