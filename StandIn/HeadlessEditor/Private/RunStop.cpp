#include "RunStop.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace UE::Vlmr
{
	namespace
	{
		volatile std::sig_atomic_t StopSignal = 0;
		// The main thread of the session that a signal interrupts; null outside a session.
		std::atomic<lua_State*> InterruptibleState { nullptr };
		TOptional<int32> RequestedExitCode;

		// A coroutine inherits its creator's hook, so that a stop reaches coroutines too, within this many instructions.
		constexpr int StopCheckInstructionCount = 1000;

		int RaiseStopError(lua_State* L)
		{
			return StopSignal != 0
				? luaL_error(L, "vlmr: stopped by signal %d", int(StopSignal))
				: luaL_error(L, "vlmr: os.exit was called");
		}

		void StopHook(lua_State* L, lua_Debug* Debug)
		{
			if (IsStopRequested())
			{
				// From now on at every instruction of this thread, so that nothing runs after a pcall catches the error.
				lua_sethook(L, &StopHook, LUA_MASKCOUNT, 1);
				RaiseStopError(L);
			}
		}

		// Only async-signal-safe work: lua_sethook may be called from a signal handler.
		void HandleStopSignal(int Signal)
		{
			StopSignal = Signal;
			if (lua_State* L = InterruptibleState.load())
			{
				lua_sethook(L, &StopHook, LUA_MASKCOUNT, 1);
			}
		}

		lua_State* GetMainThread(lua_State* L)
		{
			lua_rawgeti(L, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
			lua_State* MainThread = lua_tothread(L, -1);
			lua_pop(L, 1);
			return MainThread;
		}

		// os.exit([code [, close]]) as the standard library reads its code; the state is closed with the session anyway.
		int LuaExit(lua_State* L)
		{
			const int32 Code = lua_isboolean(L, 1)
				? (lua_toboolean(L, 1) ? EXIT_SUCCESS : EXIT_FAILURE)
				: int32(luaL_optinteger(L, 1, EXIT_SUCCESS));
			RequestedExitCode = Code;
			lua_sethook(L, &StopHook, LUA_MASKCOUNT, 1);
			lua_sethook(GetMainThread(L), &StopHook, LUA_MASKCOUNT, 1);
			return RaiseStopError(L);
		}
	}

	void InstallStopSignalHandlers()
	{
		struct sigaction Action = {};
		Action.sa_handler = &HandleStopSignal;
		sigemptyset(&Action.sa_mask);
		// No SA_RESTART: a blocking read is interrupted, so that the script gets back to running Lua code.
		Action.sa_flags = SA_RESETHAND;
		sigaction(SIGINT, &Action, nullptr);
		sigaction(SIGTERM, &Action, nullptr);
	}

	bool IsStopRequested()
	{
		return StopSignal != 0 || RequestedExitCode.IsSet();
	}

	TOptional<int32> GetRequestedExitCode()
	{
		return RequestedExitCode;
	}

	void RaiseStopSignal()
	{
		if (StopSignal != 0)
		{
			std::signal(StopSignal, SIG_DFL);
			std::raise(StopSignal);
		}
	}

	FScriptStopScope::FScriptStopScope(lua_State* L)
	{
		lua_getglobal(L, "os");
		if (lua_istable(L, -1))
		{
			lua_pushcfunction(L, &LuaExit);
			lua_setfield(L, -2, "exit");
		}
		lua_pop(L, 1);
		lua_sethook(L, &StopHook, LUA_MASKCOUNT, IsStopRequested() ? 1 : StopCheckInstructionCount);
		InterruptibleState.store(L);
	}

	FScriptStopScope::~FScriptStopScope()
	{
		InterruptibleState.store(nullptr);
	}
}
