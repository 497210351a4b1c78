// One Lua session of the host: a Lua state with the standard libraries, its session data, and every registered binding.
// The stand-in host's own session runner, for vlmr and the tests; extensions never make sessions (StandIn/StandInOnly.txt).
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"
#include "LuaSessionData.h"

class VELMIREAI_API FVelmireLuaSession
{
public:
	// Creates the state, opens the standard libraries, installs help() and then every registered binding.
	FVelmireLuaSession();
	// As above, with the session's log output connected before any installer runs.
	explicit FVelmireLuaSession(FLuaSessionData::FLogSink LogSink);
	~FVelmireLuaSession();

	FVelmireLuaSession(const FVelmireLuaSession&) = delete;
	FVelmireLuaSession& operator=(const FVelmireLuaSession&) = delete;

	sol::state& GetState() { return Lua; }
	FLuaSessionData& GetSessionData() { return SessionData; }

	// Runs a chunk in protected mode; false with the Lua error message when it raised an error.
	bool RunString(const FString& Code, const FString& ChunkName, FString& OutError);
	bool RunFile(const FString& Path, FString& OutError);

private:
	void Initialize();
	bool CallLoadedChunk(int32 LoadStatus, FString& OutError);

	FLuaSessionData SessionData;
	sol::state Lua;
};
