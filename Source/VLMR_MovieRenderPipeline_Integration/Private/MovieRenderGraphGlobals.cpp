// The mrg_* globals: the capability probe, named resolutions, and file-name format and version resolution.
#include "MovieRenderGraphGlobals.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphFilenameResolveParams.h"
#include "Graph/MovieGraphNamedResolution.h"
#include "Graph/MovieGraphProjectSettings.h"
#include "LuaSessionData.h"
#include "Misc/DateTime.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderGraphEvaluation.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRLuaStackTable.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptOptions.h"
#include "VLMRScriptResults.h"
#include "VLMRVersionGates.h"

namespace VLMR
{
	static const TCHAR* const DefaultProfileName = TEXT("1080p (FHD)");
	static const TCHAR* const CustomProfileName = TEXT("Custom");
	static const TCHAR* const VersionNeedsGraph = TEXT("opts.graph (or a graph-mode opts.job) is required so the Output Setting node can be evaluated");

	sol::table GetSupport(sol::state_view Lua)
	{
		const FGraphCapabilities& Capabilities = GetGraphCapabilities();
		sol::table Features = Lua.create_table(0, 9);
		Features["resolution_queries"] = Capabilities.bResolutionQueries;
		Features["node_search"] = Capabilities.bNodeSearch;
		Features["playback_range_bound"] = Capabilities.bPlaybackRangeBound;
		Features["format_arguments"] = Capabilities.bFormatArguments;
		Features["evaluated_variables"] = Capabilities.bEvaluatedVariables;
		Features["insert_nodes"] = Capabilities.bInsertNodes;
		Features["output_directory_reason"] = Capabilities.bOutputDirectoryReason;
		Features["adapt_resolution"] = Capabilities.bAdaptResolution;
		Features["small_int_variables"] = Capabilities.bSmallIntVariables;
		return Lua.create_table_with("ok", true, "available", true, "plugin_enabled", true,
			"engine_version", ToUtf8(GetEngineVersionString()), "reason", "", "features", Features);
	}

	sol::table GetNamedResolutions(sol::state_view Lua, FLuaSessionData& Session)
	{
		const UMovieGraphProjectSettings* Settings = GetDefault<UMovieGraphProjectSettings>();
		if (!Settings)
		{
			return Fail(Lua, Session, TEXT("mrg_named_resolutions"), TEXT("UMovieGraphProjectSettings not available"));
		}
		TArray<FNamedResolutionRow> Rows;
		for (const FMovieGraphNamedResolution& Resolution : Settings->DefaultNamedResolutions)
		{
			Rows.Add(ReadNamedResolution(Resolution));
		}
		sol::table Items = Lua.create_table(Rows.Num(), 0);
		for (const FNamedResolutionRow& Row : Rows)
		{
			Items.add(MakeNamedResolutionTable(Lua, Row));
		}
		return Lua.create_table_with("items", Items, "count", Rows.Num(), "default_profile", ToUtf8(DefaultProfileName),
			"custom_profile", ToUtf8(CustomProfileName));
	}

	static sol::table GetNamedResolutionByProfile(sol::state_view Lua, FLuaSessionData& Session, const FString& Profile)
	{
		if (FitsEngineName(Profile) && UMovieGraphBlueprintLibrary::IsNamedResolutionValid(FName(*Profile)))
		{
			FNamedResolutionRow Row = ReadNamedResolution(UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(FName(*Profile)));
			Row.bValid = true;
			return MakeNamedResolutionTable(Lua, Row);
		}
		LogLine(Session, ELineKind::Warn, TEXT("mrg_named_resolution"), FString::Printf(TEXT("unknown profile '%s'"), *Profile));
		return Lua.create_table_with("profile", ToUtf8(Profile), "valid", false, "width", 0, "height", 0,
			"error", ToUtf8(FString::Printf(TEXT("unknown resolution profile '%s' (see mrg_named_resolutions)"), *Profile)));
	}

	static TOptional<int32> ToInt32(const TOptional<int64>& Value)
	{
		const bool bFits = Value.IsSet() && Value.GetValue() >= MIN_int32 && Value.GetValue() <= MAX_int32;
		return bFits ? TOptional<int32>(static_cast<int32>(Value.GetValue())) : TOptional<int32>();
	}

	static sol::table GetNamedResolutionBySize(sol::state_view Lua, FLuaSessionData& Session, const FScriptOptions& Size)
	{
		const TCHAR* Label = TEXT("mrg_named_resolution");
		const TOptional<int32> Width = ToInt32(Size.GetInteger("width"));
		const TOptional<int32> Height = ToInt32(Size.GetInteger("height"));
		if (!Width.IsSet() || !Height.IsSet())
		{
			return Fail(Lua, Session, Label, TEXT("size table needs width and height"));
		}
		if (Width.GetValue() < 1 || Height.GetValue() < 1)
		{
			return Fail(Lua, Session, Label, TEXT("width and height must be > 0"));
		}
		return MakeNamedResolutionTable(Lua, ReadNamedResolution(UMovieGraphBlueprintLibrary::NamedResolutionFromSize(Width.GetValue(), Height.GetValue())));
	}

	sol::table GetNamedResolution(sol::state_view Lua, FLuaSessionData& Session, const sol::object& ProfileOrSize)
	{
		FString Profile;
		FString Problem;
		if (ProfileOrSize.get_type() == sol::type::string && ReadTextValue(ProfileOrSize, Profile, Problem))
		{
			return GetNamedResolutionByProfile(Lua, Session, Profile);
		}
		const FScriptOptions Size(ProfileOrSize);
		if (Size.IsTableLike())
		{
			return GetNamedResolutionBySize(Lua, Session, Size);
		}
		return Fail(Lua, Session, TEXT("mrg_named_resolution"), TEXT("argument must be a profile name string or {width=,height=}"));
	}

	// What a resolution asks for, read from the script's table before any engine call.
	struct FResolveRequest
	{
		TOptional<FString> GraphPath;
		TOptional<int64> JobIndex;
		int32 ShotIndex = 0;
		FMovieGraphFilenameResolveParams Params;
		bool bAsPath = true;
		bool bNext = false;
	};

	// Frame numbers and the version are the engine's int32; a number outside that range counts as absent.
	static void ReadInt32Option(const FScriptOptions& Options, const char* Key, int32& OutValue)
	{
		if (const TOptional<int32> Value = ToInt32(Options.GetInteger(Key)))
		{
			OutValue = Value.GetValue();
		}
	}

	static FResolveRequest ReadResolveRequest(const FScriptOptions& Options)
	{
		FResolveRequest Request;
		Request.GraphPath = Options.GetString("graph");
		Request.JobIndex = Options.GetInteger("job");
		Request.ShotIndex = static_cast<int32>(FMath::Clamp<int64>(Options.GetInteger("shot_index").Get(0), 0, MAX_int32));
		FMovieGraphFilenameResolveParams& Params = Request.Params;
		ReadInt32Option(Options, "root_frame", Params.RootFrameNumber);
		ReadInt32Option(Options, "shot_frame", Params.ShotFrameNumber);
		ReadInt32Option(Options, "root_frame_rel", Params.RootFrameNumberRel);
		ReadInt32Option(Options, "shot_frame_rel", Params.ShotFrameNumberRel);
		ReadInt32Option(Options, "version", Params.Version);
		ReadInt32Option(Options, "frame_offset", Params.FrameNumberOffset);
		ReadInt32Option(Options, "zero_pad", Params.ZeroPadFrameNumberCount);
		// A padding wider than any file name would only have the engine build a huge string.
		Params.ZeroPadFrameNumberCount = FMath::Clamp(Params.ZeroPadFrameNumberCount, 0, 32);
		Params.bEnsureAbsolutePath = Options.GetBool("ensure_absolute").Get(Params.bEnsureAbsolutePath);
		Params.FileNameOverride = Options.GetString("file_name_override").Get(FString());
		Params.FileNameFormatOverrides = Options.GetStringPairs("format_overrides");
		Request.bAsPath = Options.GetBool("as_path").Get(true);
		Request.bNext = Options.GetBool("next").Get(false);
		return Request;
	}

	// The graph and job of the request, flattened when there is a graph; false with the failure's message.
	static bool PrepareResolve(FResolveRequest& Request, FEvaluationContext& OutContext, FString& OutError)
	{
		TStrongObjectPtr<UMovieGraphConfig> Graph;
		if (Request.GraphPath.IsSet())
		{
			const FString Path = PrefixGameRoot(Request.GraphPath.GetValue());
			Graph.Reset(FitsEngineName(Path) ? LoadTypedAsset<UMovieGraphConfig>(Path) : nullptr);
			if (!Graph)
			{
				OutError = FString::Printf(TEXT("graph asset not found: %s"), *Path);
				return false;
			}
		}
		TStrongObjectPtr<UMoviePipelineExecutorJob> Job;
		if (Request.JobIndex.IsSet() && !FindQueueJobByIndex(Request.JobIndex.GetValue(), Job, OutError))
		{
			return false;
		}
		if (!Graph && Job && Job->IsUsingGraphConfiguration())
		{
			Graph.Reset(Job->GetGraphPreset());
		}
		FMovieGraphFilenameResolveParams& Params = Request.Params;
		Params.InitializationTime = FDateTime::UtcNow();
		Params.Job = Job.Get();
		OutContext.Job = Job;
		if (Graph)
		{
			if (!FlattenGraph(*Graph, Job.Get(), Request.ShotIndex, OutContext, OutError))
			{
				return false;
			}
			Params.Job = OutContext.Job.Get();
			Params.EvaluatedConfig = OutContext.Flattened.Get();
			if (Params.RenderDataIdentifier.RootBranchName.IsNone())
			{
				Params.RenderDataIdentifier.RootBranchName = UMovieGraphNode::GlobalsPinName;
			}
		}
		return true;
	}

	static TOptional<sol::table> PrepareResolveOrFail(sol::state_view Lua, FLuaSessionData& Session, const TCHAR* Label, FResolveRequest& Request,
		FEvaluationContext& OutContext)
	{
		FString Error;
		if (!PrepareResolve(Request, OutContext, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		return {};
	}

	static sol::table MakeStringMap(sol::state_view Lua, const TMap<FString, FString>& Pairs)
	{
		FLuaStackTable Table(Lua.lua_state(), 0, Pairs.Num());
		for (const TPair<FString, FString>& Pair : Pairs)
		{
			Table.SetText(Pair.Key, Pair.Value);
		}
		return Table.Release();
	}

	sol::table ResolveFormat(sol::state_view Lua, FLuaSessionData& Session, const FString& Format, const sol::object& Options)
	{
		const TCHAR* Label = TEXT("mrg_resolve_format");
		FResolveRequest Request = ReadResolveRequest(FScriptOptions(Options));
		FEvaluationContext Context;
		if (TOptional<sol::table> Failure = PrepareResolveOrFail(Lua, Session, Label, Request, Context))
		{
			return Failure.GetValue();
		}
		FMovieGraphResolveArgs Arguments;
		const FString Resolved = Request.bAsPath
			? UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(Format, Request.Params, Arguments)
			: UMovieGraphBlueprintLibrary::ResolveFormatArguments(Format, Request.Params, Arguments);
		const bool bEvaluated = Context.Flattened.IsValid();
		LogLine(Session, ELineKind::Ok, Label, Resolved);
		return Lua.create_table_with("ok", true, "resolved", ToUtf8(Resolved), "arguments", MakeStringMap(Lua, Arguments.FilenameArguments),
			"metadata", MakeStringMap(Lua, Arguments.FileMetadata), "evaluated", bEvaluated);
	}

	sol::table ResolveVersion(sol::state_view Lua, FLuaSessionData& Session, const sol::object& Options)
	{
		const TCHAR* Label = TEXT("mrg_resolve_version");
		FResolveRequest Request = ReadResolveRequest(FScriptOptions(Options));
		FEvaluationContext Context;
		if (TOptional<sol::table> Failure = PrepareResolveOrFail(Lua, Session, Label, Request, Context))
		{
			return Failure.GetValue();
		}
		if (!Context.Flattened)
		{
			LogLine(Session, ELineKind::Fail, Label, VersionNeedsGraph);
			return Lua.create_table_with("ok", false, "version", -1, "next", Request.bNext, "evaluated", false, "error", ToUtf8(VersionNeedsGraph));
		}
		const int32 Version = UMovieGraphBlueprintLibrary::ResolveVersionNumber(Request.Params, Request.bNext);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%d"), Version));
		sol::table Table = Lua.create_table_with("ok", Version >= 0, "version", Version, "next", Request.bNext, "evaluated", true);
		if (Version < 0)
		{
			Table["error"] = "version could not be resolved from the output directory";
		}
		return Table;
	}
}
