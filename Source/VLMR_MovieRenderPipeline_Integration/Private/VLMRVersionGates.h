// Engine facilities that exist only from a given engine version, decided when the module is built.
#pragma once

#include "CoreMinimal.h"
#include "Misc/EngineVersionComparison.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

namespace VLMR
{
	enum class EGatedFeature : uint8
	{
		ResolutionQueries,
		NodesForBranch,
		NodesForTag,
		RenderQueueInstance,
		InsertBefore,
		InsertAfter,
		OutputDirectoryReason,
	};

	struct FVersionGate
	{
		EGatedFeature Feature;
		const TCHAR* FeatureName;
		const TCHAR* MinVersion;
		bool bAvailable;
	};

	TConstArrayView<FVersionGate> GetVersionGates();
	const FVersionGate& GetVersionGate(EGatedFeature Feature);

	// The version refusal of a gated facility, through Unsupported.
	sol::table RefuseGatedFeature(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, EGatedFeature Feature);

	// What the Movie Render Graph offers scripts on the engine this module is built against.
	struct FGraphCapabilities
	{
		bool bResolutionQueries = false;
		bool bNodeSearch = false;
		bool bPlaybackRangeBound = false;
		bool bFormatArguments = false;
		bool bEvaluatedVariables = false;
		bool bInsertNodes = false;
		bool bOutputDirectoryReason = false;
		bool bAdaptResolution = false;
		bool bSmallIntVariables = false;
	};

	const FGraphCapabilities& GetGraphCapabilities();

	// "5.7.4": the engine version this module is built against.
	FString GetEngineVersionString();
}
