// The `shots` option of editor.create_level_sequence: checked first (Lua errors only), then read into C++ values.
#pragma once

#include "CoreMinimal.h"
#include "LevelSequenceAssets.h"
#include "VelmireLuaIncludes.h"

namespace UE::Vlmr
{
	// Raises a Lua error unless opts.shots is absent or an array of {name = string, camera = string?, start = integer,
	// ["end"] = integer?} tables with frames within +-1000000 and each end after its start. Makes no C++ object.
	void CheckShotOptions(lua_State* L, int OptionsIndex);

	// The shots of an options table that CheckShotOptions accepted.
	TArray<FLevelSequenceShotOptions> ReadShotOptions(lua_State* L, int OptionsIndex);
}
