// The private Lua state in which an automation test runs its embedded script against the module's real bindings.
#pragma once

#include "CoreMinimal.h"
#include "LuaSessionData.h"
#include "Misc/AutomationTest.h"
#include "VelmireLuaIncludes.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VLMR::MovieRenderGraphTests
{
	// A new Lua state (panic handler, the standard libraries without io and os) with a session of its own and both of
	// the module's bindings installed. The state is closed before the session it refers to is destroyed.
	class FScriptEnvironment
	{
	public:
		FScriptEnvironment();

		FScriptEnvironment(const FScriptEnvironment&) = delete;
		FScriptEnvironment& operator=(const FScriptEnvironment&) = delete;

		// Sets a test input as a Lua string global.
		void SetGlobal(const char* Name, const FString& Value);

		// Loads the script as the chunk named Label and calls it protected; a load or run error becomes the test's error
		// "<label>: <message>". True when the script ran to its end.
		bool Run(FAutomationTestBase& Test, const TCHAR* Label, const char* Script);

	private:
		FLuaSessionData Session;
		sol::state Lua;
	};
}

#endif
