// The help() global of every session: the registered bindings and their documentation records, written to the log.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
struct FLuaFunctionDoc;

namespace UE::VelmireAI::Private
{
	void InstallHelp(lua_State* L, FLuaSessionData& Session);

	// "mrq_add_job(sequence_path) — Add a render job ... -> job handle or nil"
	FString FormatFunctionDoc(const FLuaFunctionDoc& Doc);
}
