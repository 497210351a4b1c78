// The handle tables scripts receive, read from real handles: vlmr builds one of each kind in a throwaway session.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	struct FHandleField
	{
		FString Name;
		// The Lua type of its value: "string", "number", ...
		FString LuaType;
	};

	struct FHandleType
	{
		// "job", "config", "setting", "graph", "node_info": the name the documentation records use for the table.
		FString Kind;
		// Both sorted by name.
		TArray<FHandleField> Fields;
		TArray<FString> Methods;
	};

	// Builds handles in a new Lua session of the running editor: a job of the sample sequence Cinematics/Intro, a new
	// preset asset, the job's Output setting and, when the bindings open graph assets, a new graph asset with the
	// node_info of a node added to it. A kind whose handle cannot be built is left out. It adds a job and assets to the
	// open project: for a throwaway copy only.
	TArray<FHandleType> DiscoverHandleTypes();
}
