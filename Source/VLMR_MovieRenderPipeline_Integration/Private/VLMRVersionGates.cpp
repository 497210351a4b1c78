#include "VLMRVersionGates.h"

#include "Runtime/Launch/Resources/Version.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	// Listed in the enum's order; each availability comes from the same comparison the gated code is compiled with.
	static const FVersionGate VersionGates[] = {
		{ EGatedFeature::ResolutionQueries, TEXT("resolution queries"), TEXT("5.6"), !UE_VERSION_OLDER_THAN(5, 6, 0) },
		{ EGatedFeature::NodesForBranch, TEXT("UMovieGraphConfig::GetNodesForBranch"), TEXT("5.6"), !UE_VERSION_OLDER_THAN(5, 6, 0) },
		{ EGatedFeature::NodesForTag, TEXT("UMovieGraphConfig::GetNodesForTag"), TEXT("5.6"), !UE_VERSION_OLDER_THAN(5, 6, 0) },
		{ EGatedFeature::RenderQueueInstance, TEXT("UMoviePipelineQueueSubsystem::RenderQueueInstanceWithExecutor"), TEXT("5.6"), !UE_VERSION_OLDER_THAN(5, 6, 0) },
		{ EGatedFeature::InsertBefore, TEXT("UMovieGraphConfig::InsertBefore"), TEXT("5.8"), !UE_VERSION_OLDER_THAN(5, 8, 0) },
		{ EGatedFeature::InsertAfter, TEXT("UMovieGraphConfig::InsertAfter"), TEXT("5.8"), !UE_VERSION_OLDER_THAN(5, 8, 0) },
		{ EGatedFeature::OutputDirectoryReason, TEXT("UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob"), TEXT("5.8"), !UE_VERSION_OLDER_THAN(5, 8, 0) },
	};

	TConstArrayView<FVersionGate> GetVersionGates()
	{
		return TConstArrayView<FVersionGate>(VersionGates, UE_ARRAY_COUNT(VersionGates));
	}

	const FVersionGate& GetVersionGate(EGatedFeature Feature)
	{
		return VersionGates[static_cast<int32>(Feature)];
	}

	sol::table RefuseGatedFeature(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, EGatedFeature Feature)
	{
		const FVersionGate& Gate = GetVersionGate(Feature);
		return Unsupported(Lua, Session, Label, Gate.FeatureName, Gate.MinVersion);
	}

	const FGraphCapabilities& GetGraphCapabilities()
	{
		static const FGraphCapabilities Capabilities = []
		{
			FGraphCapabilities Result;
			Result.bResolutionQueries = GetVersionGate(EGatedFeature::ResolutionQueries).bAvailable;
			Result.bNodeSearch = GetVersionGate(EGatedFeature::NodesForBranch).bAvailable && GetVersionGate(EGatedFeature::NodesForTag).bAvailable;
			// The output settings' playback range became two bounds, and the aspect-ratio adaptation appeared, in 5.6.
			Result.bPlaybackRangeBound = !UE_VERSION_OLDER_THAN(5, 6, 0);
			Result.bAdaptResolution = !UE_VERSION_OLDER_THAN(5, 6, 0);
			// Every supported engine hands back the merged format arguments and file metadata.
			Result.bFormatArguments = true;
			Result.bEvaluatedVariables = !UE_VERSION_OLDER_THAN(5, 7, 0);
			Result.bInsertNodes = GetVersionGate(EGatedFeature::InsertBefore).bAvailable && GetVersionGate(EGatedFeature::InsertAfter).bAvailable;
			Result.bOutputDirectoryReason = GetVersionGate(EGatedFeature::OutputDirectoryReason).bAvailable;
			// Int8, Int16 and UInt16 variables came with 5.8.
			Result.bSmallIntVariables = !UE_VERSION_OLDER_THAN(5, 8, 0);
			return Result;
		}();
		return Capabilities;
	}

	FString GetEngineVersionString()
	{
		return FString::Printf(TEXT("%d.%d.%d"), ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION, ENGINE_PATCH_VERSION);
	}
}
