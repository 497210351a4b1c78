// The registered Lua bindings' documentation records, written out for people (Markdown) and for editors (LuaLS).
#pragma once

#include "CoreMinimal.h"

struct FVelmireLuaBinding;

namespace UE::Vlmr
{
	struct FHandleType;

	TArray<FString> MakeMarkdownDocs(const TArray<FVelmireLuaBinding>& Bindings);

	// A `---@meta` file: the global functions of every binding, help(), and one class per handle kind with the fields and
	// methods of the real handles found (DiscoverHandleTypes) and the methods the records document.
	TArray<FString> MakeLuaLSDefinitions(const TArray<FVelmireLuaBinding>& Bindings, const TArray<FHandleType>& DiscoveredHandles);
}
