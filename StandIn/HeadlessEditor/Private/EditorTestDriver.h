// The global table `editor` of vlmr's Lua session: scripts drive the editor with it the way a person would.
// It belongs to vlmr, never to an extension.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

namespace UE::Vlmr
{
	void InstallEditorTestDriver(lua_State* L, FLuaSessionData& Session);

	// The editor's frame time: ticks advance by 1/24 s.
	constexpr float EditorTickSeconds = 1.0f / 24.0f;
}
