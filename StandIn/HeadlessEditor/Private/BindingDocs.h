// The registered Lua bindings' documentation records, written out for people (Markdown) and for editors (LuaLS).
#pragma once

#include "CoreMinimal.h"

struct FVelmireLuaBinding;

namespace UE::Vlmr
{
	TArray<FString> MakeMarkdownDocs(const TArray<FVelmireLuaBinding>& Bindings);

	// A `---@meta` file: the global functions of every binding, help(), and the handle classes with their methods.
	TArray<FString> MakeLuaLSDefinitions(const TArray<FVelmireLuaBinding>& Bindings);
}
