#include "MovieRenderGraphEvaluation.h"

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphTraversalContext.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "LuaSessionData.h"
#include "Math/IntRect.h"
#include "MoviePipelineEditorBlueprintLibrary.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderGraphNodes.h"
#include "MovieRenderGraphReflectedCalls.h"
#include "MovieRenderQueueAccess.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "VLMRClassLookup.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptOptions.h"
#include "VLMRScriptResults.h"
#include "VLMRVersionGates.h"

namespace VLMR
{
	using FWeakGraph = TWeakObjectPtr<UMovieGraphConfig>;
	using FWeakJob = TWeakObjectPtr<UMoviePipelineExecutorJob>;

	bool ParseEvaluationOptions(const FScriptOptions& Options, FEvaluationOptions& OutOptions, FString& OutError)
	{
		// Every field is read before the queue is looked at: a read may run script code.
		OutOptions.JobIndex = Options.GetInteger("job");
		OutOptions.ShotIndex = static_cast<int32>(FMath::Clamp<int64>(Options.GetInteger("shot_index").Get(0), 0, MAX_int32));
		OutOptions.Overscan = static_cast<float>(Options.GetNumber("overscan").Get(0.0));
		OutOptions.AspectRatio = static_cast<float>(Options.GetNumber("aspect_ratio").Get(0.0));
		if (OutOptions.JobIndex.IsSet() && !FindQueueJobByIndex(OutOptions.JobIndex.GetValue(), OutOptions.Job, OutError))
		{
			return false;
		}
		// Written so that NaN fails too.
		if (!(OutOptions.Overscan >= 0.f && OutOptions.Overscan <= 1.f))
		{
			OutError = TEXT("overscan must be between 0 and 1");
			return false;
		}
		if (!(OutOptions.AspectRatio >= 0.f))
		{
			OutError = TEXT("aspect_ratio must be >= 0");
			return false;
		}
		return true;
	}

	bool FindQueueJobByIndex(int64 Index, TStrongObjectPtr<UMoviePipelineExecutorJob>& OutJob, FString& OutError)
	{
		UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		const TStrongObjectPtr<UMoviePipelineQueue> Queue(Subsystem ? Subsystem->GetQueue() : nullptr);
		if (!Queue)
		{
			OutError = TEXT("Movie Pipeline queue subsystem not available");
			return false;
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		const bool bInRange = Index >= 1 && Index <= Jobs.Num() && Jobs[Index - 1];
		if (!bInRange)
		{
			OutError = DescribeJobIndexOutOfRange(TEXT("job "), Index, Jobs.Num());
			return false;
		}
		OutJob.Reset(Jobs[Index - 1]);
		return true;
	}

	static bool MakeTransientJob(UMovieGraphConfig& Graph, FEvaluationContext& OutContext)
	{
		OutContext.TransientQueue.Reset(NewObject<UMoviePipelineQueue>(GetTransientPackage()));
		OutContext.Job.Reset(OutContext.TransientQueue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass()));
		if (!OutContext.Job)
		{
			return false;
		}
		OutContext.Job->SetGraphPreset(&Graph, true);
		return true;
	}

	bool FlattenGraph(UMovieGraphConfig& Graph, UMoviePipelineExecutorJob* QueueJob, int32 ShotIndex, FEvaluationContext& OutContext, FString& OutError)
	{
		OutContext.Graph.Reset(&Graph);
		OutContext.Job.Reset(QueueJob);
		if (!QueueJob && !MakeTransientJob(Graph, OutContext))
		{
			OutError = TEXT("could not allocate a transient job for evaluation");
			return false;
		}
		FMovieGraphTraversalContext Traversal;
		Traversal.ShotIndex = FMath::Max(ShotIndex, 0);
		Traversal.Job = OutContext.Job.Get();
		Traversal.RootGraph = &Graph;
		FString EngineError;
		OutContext.Flattened.Reset(Graph.CreateFlattenedGraph(Traversal, EngineError));
		if (!OutContext.Flattened)
		{
			OutError = EngineError.IsEmpty() ? FString(TEXT("CreateFlattenedGraph returned nullptr")) : EngineError;
			return false;
		}
		return true;
	}

	// Values read from the engine before any Lua value is made.
	struct FPointRow
	{
		int32 Width = 0;
		int32 Height = 0;
	};

	struct FRangeBoundRow
	{
		FString Type;
		int32 Value = 0;
		bool bOverridden = false;
	};

	struct FOutputSettingsRow
	{
		bool bFound = false;
		bool bIsCdo = false;
		FString Directory;
		bool bDirectoryOverridden = false;
		FString GraphOutputDirectory;
		FNamedResolutionRow Resolution;
		bool bResolutionOverridden = false;
		TOptional<FString> AdaptResolution;
		FFrameRate FrameRate;
		bool bFrameRateOverridden = false;
		bool bOverwriteExisting = false;
		int32 ZeroPad = 0;
		int32 FrameOffset = 0;
		int32 HandleFrames = 0;
		bool bFlushDiskWrites = false;
		bool bAutoVersion = false;
		int32 VersionNumber = 0;
		bool bVersionOverridden = false;
		FRangeBoundRow RangeStart;
		FRangeBoundRow RangeEnd;
		FString TimecodeStart;
		bool bDropFrameTimecode = false;
		bool bResolutionQueries = false;
		FPointRow Desired;
		FPointRow Overscanned;
		FPointRow Backbuffer;
		FIntRect CropRect;
	};

	FNamedResolutionRow ReadNamedResolution(const FMovieGraphNamedResolution& Resolution)
	{
		FNamedResolutionRow Row;
		Row.Profile = Resolution.ProfileName.ToString();
		Row.Width = Resolution.Resolution.X;
		Row.Height = Resolution.Resolution.Y;
		Row.Description = Resolution.Description;
		Row.bValid = !Resolution.ProfileName.IsNone() && Row.Width >= 1 && Row.Height >= 1;
		return Row;
	}

	static FPointRow ToPointRow(const FIntPoint& Point)
	{
		return { Point.X, Point.Y };
	}

	static void ReadPlaybackRange(const UMovieGraphGlobalOutputSettingNode& Node, FOutputSettingsRow& OutRow)
	{
#if UE_VERSION_OLDER_THAN(5, 6, 0)
		OutRow.RangeStart = { TEXT("Custom"), Node.CustomPlaybackRangeStartFrame, static_cast<bool>(Node.bOverride_CustomPlaybackRangeStartFrame) };
		OutRow.RangeEnd = { TEXT("Custom"), Node.CustomPlaybackRangeEndFrame, static_cast<bool>(Node.bOverride_CustomPlaybackRangeEndFrame) };
#else
		OutRow.RangeStart = { EnumValueName(Node.CustomPlaybackRangeStart.Type), Node.CustomPlaybackRangeStart.Value, static_cast<bool>(Node.bOverride_CustomPlaybackRangeStart) };
		OutRow.RangeEnd = { EnumValueName(Node.CustomPlaybackRangeEnd.Type), Node.CustomPlaybackRangeEnd.Value, static_cast<bool>(Node.bOverride_CustomPlaybackRangeEnd) };
#endif
	}

	static void ReadResolutionQueries(UMovieGraphEvaluatedConfig* Flattened, float Overscan, float AspectRatio, FOutputSettingsRow& OutRow)
	{
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
		OutRow.bResolutionQueries = true;
		OutRow.Desired = ToPointRow(UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(Flattened, AspectRatio));
		OutRow.Overscanned = ToPointRow(UMovieGraphBlueprintLibrary::GetOverscannedResolution(Flattened, Overscan, AspectRatio));
		OutRow.Backbuffer = ToPointRow(UMovieGraphBlueprintLibrary::GetBackbufferResolution(Flattened, Overscan, AspectRatio));
		OutRow.CropRect = UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(Flattened, Overscan, AspectRatio);
#endif
	}

	static FOutputSettingsRow ReadOutputSettings(const FEvaluationContext& Context, float Overscan, float AspectRatio)
	{
		FOutputSettingsRow Row;
		const TArray<UMovieGraphSettingNode*> Settings = Context.Flattened->GetSettingsForBranch(
			UMovieGraphGlobalOutputSettingNode::StaticClass(), UMovieGraphNode::GlobalsPinName, true, false);
		const TStrongObjectPtr<UMovieGraphGlobalOutputSettingNode> Node(Settings.Num() > 0 ? Cast<UMovieGraphGlobalOutputSettingNode>(Settings[0]) : nullptr);
		if (!Node)
		{
			return Row;
		}
		Row.bFound = true;
		Row.bIsCdo = Node->HasAnyFlags(RF_ClassDefaultObject);
		Row.Directory = Node->OutputDirectory.Path;
		Row.bDirectoryOverridden = Node->bOverride_OutputDirectory;
		if (Context.Graph)
		{
			Context.Graph->GetOutputDirectory(Row.GraphOutputDirectory);
		}
		Row.Resolution = ReadNamedResolution(Node->OutputResolution);
		Row.bResolutionOverridden = Node->bOverride_OutputResolution;
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
		Row.AdaptResolution = EnumValueName(Node->AdaptResolution);
#endif
		Row.FrameRate = UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(Node.Get(), FFrameRate(24, 1));
		Row.bFrameRateOverridden = Node->bOverride_OutputFrameRate;
		Row.bOverwriteExisting = Node->bOverwriteExistingOutput;
		Row.ZeroPad = Node->ZeroPadFrameNumbers;
		Row.FrameOffset = Node->FrameNumberOffset;
		Row.HandleFrames = Node->HandleFrameCount;
		Row.bFlushDiskWrites = Node->bFlushDiskWritesPerShot;
		Row.bAutoVersion = Node->VersioningSettings.bAutoVersioning;
		Row.VersionNumber = Node->VersioningSettings.VersionNumber;
		Row.bVersionOverridden = Node->bOverride_VersioningSettings;
		ReadPlaybackRange(*Node, Row);
		Row.TimecodeStart = Node->CustomTimecodeStart.ToString();
		Row.bDropFrameTimecode = Node->bDropFrameTimecode;
		ReadResolutionQueries(Context.Flattened.Get(), Overscan, AspectRatio, Row);
		return Row;
	}

	sol::table MakeNamedResolutionTable(sol::state_view Lua, const FNamedResolutionRow& Row)
	{
		return Lua.create_table_with("profile", ToUtf8(Row.Profile), "width", Row.Width, "height", Row.Height,
			"description", ToUtf8(Row.Description), "valid", Row.bValid);
	}

	static sol::table MakePointTable(sol::state_view Lua, const FPointRow& Row)
	{
		return Lua.create_table_with("width", Row.Width, "height", Row.Height);
	}

	static sol::table MakeRangeBoundTable(sol::state_view Lua, const FRangeBoundRow& Row)
	{
		return Lua.create_table_with("type", ToUtf8(Row.Type), "value", Row.Value, "overridden", Row.bOverridden);
	}

	static sol::table MakeCropTable(sol::state_view Lua, const FIntRect& Rect)
	{
		return Lua.create_table_with("min_x", Rect.Min.X, "min_y", Rect.Min.Y, "max_x", Rect.Max.X, "max_y", Rect.Max.Y,
			"width", Rect.Max.X - Rect.Min.X, "height", Rect.Max.Y - Rect.Min.Y);
	}

	static sol::table MakeMissingOutputSettingsTable(sol::state_view Lua)
	{
		return Lua.create_table_with("ok", false, "error", "no Globals output setting node in the evaluated graph");
	}

	static sol::table MakeOutputSettingsTable(sol::state_view Lua, const FOutputSettingsRow& Row)
	{
		if (!Row.bFound)
		{
			return MakeMissingOutputSettingsTable(Lua);
		}
		sol::table Table = Lua.create_table(0, 24);
		Table["is_cdo"] = Row.bIsCdo;
		Table["directory"] = ToUtf8(Row.Directory);
		Table["directory_overridden"] = Row.bDirectoryOverridden;
		Table["graph_output_directory"] = ToUtf8(Row.GraphOutputDirectory);
		Table["resolution"] = MakeNamedResolutionTable(Lua, Row.Resolution);
		Table["resolution_overridden"] = Row.bResolutionOverridden;
		if (Row.AdaptResolution.IsSet())
		{
			Table["adapt_resolution"] = ToUtf8(Row.AdaptResolution.GetValue());
		}
		Table["frame_rate"] = Lua.create_table_with("numerator", Row.FrameRate.Numerator, "denominator", Row.FrameRate.Denominator,
			"overridden", Row.bFrameRateOverridden, "default_used", !Row.bFrameRateOverridden);
		Table["overwrite_existing"] = Row.bOverwriteExisting;
		Table["zero_pad"] = Row.ZeroPad;
		Table["frame_offset"] = Row.FrameOffset;
		Table["handle_frames"] = Row.HandleFrames;
		Table["flush_disk_writes_per_shot"] = Row.bFlushDiskWrites;
		Table["versioning"] = Lua.create_table_with("auto", Row.bAutoVersion, "number", Row.VersionNumber, "overridden", Row.bVersionOverridden);
		// A 5.5 engine keeps the range as two frame numbers; later ones as two bounds.
		Table["custom_range"] = Lua.create_table_with("start", MakeRangeBoundTable(Lua, Row.RangeStart), "finish", MakeRangeBoundTable(Lua, Row.RangeEnd),
			"shape", UE_VERSION_OLDER_THAN(5, 6, 0) ? "frames" : "bound");
		Table["timecode_start"] = ToUtf8(Row.TimecodeStart);
		Table["drop_frame_timecode"] = Row.bDropFrameTimecode;
		if (Row.bResolutionQueries)
		{
			Table["desired"] = MakePointTable(Lua, Row.Desired);
			Table["overscanned"] = MakePointTable(Lua, Row.Overscanned);
			Table["backbuffer"] = MakePointTable(Lua, Row.Backbuffer);
			Table["crop_rect"] = MakeCropTable(Lua, Row.CropRect);
		}
		Table["resolution_queries"] = Row.bResolutionQueries;
		return Table;
	}

	struct FFileOutputRow
	{
		FString Branch;
		FString ClassName;
		TOptional<FString> FileNameFormat;
	};

	struct FEvaluationRow
	{
		TArray<FString> Branches;
		FOutputSettingsRow Output;
		TArray<FFileOutputRow> FileOutputs;
		TArray<TPair<FString, FString>> Variables;
		bool bVariablesEvaluated = false;
		TArray<FString> EvaluatedGraphs;
		FString JobPath;
		bool bJobIsTransient = false;
	};

	static TOptional<FString> ReadFileNameFormat(const UMovieGraphNode& Node)
	{
		const FStrProperty* Property = CastField<FStrProperty>(Node.GetClass()->FindPropertyByName(FName(TEXT("FileNameFormat"))));
		return Property ? TOptional<FString>(Property->GetPropertyValue_InContainer(&Node)) : TOptional<FString>();
	}

	static TArray<FFileOutputRow> ReadFileOutputs(const UMovieGraphEvaluatedConfig& Flattened, const TArray<FName>& Branches)
	{
		TArray<FFileOutputRow> Rows;
		for (const FName& Branch : Branches)
		{
			for (const UMovieGraphSettingNode* Node : Flattened.GetSettingsForBranch(UMovieGraphFileOutputNode::StaticClass(), Branch, false, false))
			{
				if (Node)
				{
					Rows.Add({ Branch.ToString(), Node->GetClass()->GetName(), ReadFileNameFormat(*Node) });
				}
			}
		}
		return Rows;
	}

	// Each user variable's serialised default, replaced by the evaluated value where the flattened graph offers it.
	static void ReadVariables(const FEvaluationContext& Context, FEvaluationRow& OutRow)
	{
		UMovieGraphEvaluatedConfig* Flattened = Context.Flattened.Get();
		OutRow.bVariablesEvaluated = HasReflectedFunction(Flattened, FName(TEXT("GetVariableStringValueByName")));
		for (UMovieGraphVariable* Variable : Context.Graph->GetVariables(false))
		{
			if (!Variable)
			{
				continue;
			}
			const FString Name = Variable->GetMemberName();
			FString Value = Variable->GetValueSerializedString();
			if (OutRow.bVariablesEvaluated)
			{
				bool bFound = false;
				FString Evaluated;
				FString Error;
				if (CallGetVariableStringValueByName(Flattened, Name, Value, bFound, Evaluated, Error) && bFound)
				{
					Value = Evaluated;
				}
			}
			OutRow.Variables.Emplace(Name, Value);
		}
	}

	static FEvaluationRow ReadEvaluation(const FEvaluationContext& Context, float Overscan, float AspectRatio)
	{
		FEvaluationRow Row;
		const TArray<FName> Branches = Context.Flattened->GetBranchNames();
		for (const FName& Branch : Branches)
		{
			Row.Branches.Add(Branch.ToString());
		}
		Row.Output = ReadOutputSettings(Context, Overscan, AspectRatio);
		Row.FileOutputs = ReadFileOutputs(*Context.Flattened, Branches);
		ReadVariables(Context, Row);
		FString Error;
		if (HasReflectedFunction(Context.Flattened.Get(), FName(TEXT("GetEvaluatedGraphs"))))
		{
			CallGetEvaluatedGraphs(Context.Flattened.Get(), Row.EvaluatedGraphs, Error);
		}
		Row.JobPath = Context.Job ? Context.Job->GetPathName() : FString();
		Row.bJobIsTransient = Context.IsJobTransient();
		return Row;
	}

	static sol::table MakeStringArray(sol::state_view Lua, const TArray<FString>& Strings)
	{
		sol::table Table = Lua.create_table(Strings.Num(), 0);
		for (const FString& Text : Strings)
		{
			Table.add(ToUtf8(Text));
		}
		return Table;
	}

	static sol::table MakeEvaluationTable(sol::state_view Lua, const FEvaluationRow& Row)
	{
		sol::table FileOutputs = Lua.create_table(Row.FileOutputs.Num(), 0);
		for (const FFileOutputRow& FileOutput : Row.FileOutputs)
		{
			sol::table Entry = Lua.create_table_with("branch", ToUtf8(FileOutput.Branch), "class", ToUtf8(FileOutput.ClassName));
			if (FileOutput.FileNameFormat.IsSet())
			{
				Entry["file_name_format"] = ToUtf8(FileOutput.FileNameFormat.GetValue());
			}
			FileOutputs.add(Entry);
		}
		sol::table Variables = Lua.create_table(0, Row.Variables.Num());
		for (const TPair<FString, FString>& Variable : Row.Variables)
		{
			Variables[ToUtf8(Variable.Key)] = ToUtf8(Variable.Value);
		}
		sol::table Table = Lua.create_table(0, 10);
		Table["ok"] = true;
		Table["branches"] = MakeStringArray(Lua, Row.Branches);
		Table["branch_count"] = Row.Branches.Num();
		Table["output"] = MakeOutputSettingsTable(Lua, Row.Output);
		Table["file_outputs"] = FileOutputs;
		Table["variables"] = Variables;
		Table["variables_source"] = Row.bVariablesEvaluated ? "evaluated" : "graph_defaults";
		Table["evaluated_graphs"] = MakeStringArray(Lua, Row.EvaluatedGraphs);
		Table["job"] = ToUtf8(Row.JobPath);
		Table["job_is_transient"] = Row.bJobIsTransient;
		return Table;
	}

	// The graph, the options and the flattening, in this order; a failure table for the first that fails.
	static TOptional<sol::table> EvaluateForHandle(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const TCHAR* Label,
		const sol::object& OptionTable, FEvaluationOptions& OutOptions, FEvaluationContext& OutContext)
	{
		const TStrongObjectPtr<UMovieGraphConfig> Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, TEXT("graph no longer valid"));
		}
		FString Error;
		if (!ParseEvaluationOptions(FScriptOptions(OptionTable), OutOptions, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		if (!FlattenGraph(*Graph, OutOptions.Job.Get(), OutOptions.ShotIndex, OutContext, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		return {};
	}

	static sol::table GraphEvaluate(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const sol::object& Options)
	{
		const TCHAR* Label = TEXT("graph:evaluate");
		FEvaluationOptions Parsed;
		FEvaluationContext Context;
		if (TOptional<sol::table> Failure = EvaluateForHandle(Lua, WeakGraph, Session, Label, Options, Parsed, Context))
		{
			return Failure.GetValue();
		}
		const FEvaluationRow Row = ReadEvaluation(Context, Parsed.Overscan, Parsed.AspectRatio);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%d branches"), Row.Branches.Num()));
		return MakeEvaluationTable(Lua, Row);
	}

	static sol::table GraphOutputSettings(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const sol::object& Options)
	{
		FEvaluationOptions Parsed;
		FEvaluationContext Context;
		if (TOptional<sol::table> Failure = EvaluateForHandle(Lua, WeakGraph, Session, TEXT("graph:output_settings"), Options, Parsed, Context))
		{
			return Failure.GetValue();
		}
		return MakeOutputSettingsTable(Lua, ReadOutputSettings(Context, Parsed.Overscan, Parsed.AspectRatio));
	}

	static sol::table GraphResolution(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const sol::object& Options)
	{
		const TCHAR* Label = TEXT("graph:resolution");
		if (!GetVersionGate(EGatedFeature::ResolutionQueries).bAvailable)
		{
			return RefuseGatedFeature(Lua, Session, Label, EGatedFeature::ResolutionQueries);
		}
		FEvaluationOptions Parsed;
		FEvaluationContext Context;
		if (TOptional<sol::table> Failure = EvaluateForHandle(Lua, WeakGraph, Session, Label, Options, Parsed, Context))
		{
			return Failure.GetValue();
		}
		sol::table Output = MakeOutputSettingsTable(Lua, ReadOutputSettings(Context, Parsed.Overscan, Parsed.AspectRatio));
		sol::table Table = Lua.create_table(0, 8);
		Table["ok"] = true;
		for (const char* Key : { "desired", "overscanned", "backbuffer", "crop_rect", "resolution" })
		{
			Table[Key] = Output.raw_get<sol::object>(Key);
		}
		Table["overscan"] = Parsed.Overscan;
		Table["aspect_ratio"] = Parsed.AspectRatio;
		return Table;
	}

	static sol::object GraphOutputDirectory(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session)
	{
		const TStrongObjectPtr<UMovieGraphConfig> Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, TEXT("graph:output_directory"), TEXT("graph no longer valid"));
		}
		FString Directory;
		Graph->GetOutputDirectory(Directory);
		return sol::make_object(Lua, ToUtf8(Directory));
	}

	static TArray<FString> ReadBranchNames(const UMovieGraphConfig& Graph)
	{
		TArray<FString> Names;
		for (const FName& Branch : Graph.GetBranchNames())
		{
			Names.Add(Branch.ToString());
		}
		return Names;
	}

	static sol::object GraphBranches(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session)
	{
		const TStrongObjectPtr<UMovieGraphConfig> Graph(WeakGraph.Get());
		if (!Graph)
		{
			return Fail(Lua, Session, TEXT("graph:branches"), TEXT("graph no longer valid"));
		}
		return MakeStringArray(Lua, ReadBranchNames(*Graph));
	}

	static sol::table MakeNodeInfoArray(sol::state_view Lua, const TArray<UMovieGraphNode*>& Nodes)
	{
		TArray<FNodeInfo> Infos;
		for (const UMovieGraphNode* Node : Nodes)
		{
			if (Node)
			{
				Infos.Add(ReadNodeInfo(*Node));
			}
		}
		sol::table Table = Lua.create_table(Infos.Num(), 0);
		for (const FNodeInfo& Info : Infos)
		{
			Table.add(MakeNodeInfoTable(Lua, Info));
		}
		return Table;
	}

	// A node class named by the script, the setting node base when none is named; false with the failure's message.
	static bool ResolveSearchClass(const TOptional<FString>& ClassName, TStrongObjectPtr<UClass>& OutClass, FString& OutError)
	{
		if (!ClassName.IsSet() || ClassName->IsEmpty())
		{
			OutClass.Reset(UMovieGraphSettingNode::StaticClass());
			return true;
		}
		OutClass.Reset(ResolveNodeClass(ClassName.GetValue()));
		if (!OutClass)
		{
			OutError = FString::Printf(TEXT("node class not found: %s"), *ClassName.GetValue());
		}
		return OutClass.IsValid();
	}

	// The graph, then the class of a node search; a failure table for the first that fails.
	static TOptional<sol::table> ResolveSearch(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const TCHAR* Label,
		const TOptional<FString>& ClassName, TStrongObjectPtr<UMovieGraphConfig>& OutGraph, TStrongObjectPtr<UClass>& OutClass)
	{
		OutGraph.Reset(WeakGraph.Get());
		if (!OutGraph)
		{
			return Fail(Lua, Session, Label, TEXT("graph no longer valid"));
		}
		FString Error;
		if (!ResolveSearchClass(ClassName, OutClass, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		return {};
	}

	static sol::table GraphNodesForBranch(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Branch,
		const TOptional<FString>& ClassName, bool bExact)
	{
		const TCHAR* Label = TEXT("graph:nodes_for_branch");
#if UE_VERSION_OLDER_THAN(5, 6, 0)
		return RefuseGatedFeature(Lua, Session, Label, EGatedFeature::NodesForBranch);
#else
		TStrongObjectPtr<UMovieGraphConfig> Graph;
		TStrongObjectPtr<UClass> Class;
		if (TOptional<sol::table> Failure = ResolveSearch(Lua, WeakGraph, Session, Label, ClassName, Graph, Class))
		{
			return Failure.GetValue();
		}
		if (!FitsEngineName(Branch) || !Graph->GetBranchNames().Contains(FName(*Branch)))
		{
			return Fail(Lua, Session, Label, FString::Printf(TEXT("branch not found: %s"), *Branch));
		}
		return MakeNodeInfoArray(Lua, Graph->GetNodesForBranch(Class.Get(), FName(*Branch), bExact));
#endif
	}

	static sol::table GraphNodesForTag(sol::state_view Lua, const FWeakGraph& WeakGraph, FLuaSessionData& Session, const FString& Tag,
		const TOptional<FString>& ClassName, const TOptional<FString>& Branch)
	{
		const TCHAR* Label = TEXT("graph:nodes_for_tag");
#if UE_VERSION_OLDER_THAN(5, 6, 0)
		return RefuseGatedFeature(Lua, Session, Label, EGatedFeature::NodesForTag);
#else
		TStrongObjectPtr<UMovieGraphConfig> Graph;
		TStrongObjectPtr<UClass> Class;
		if (TOptional<sol::table> Failure = ResolveSearch(Lua, WeakGraph, Session, Label, ClassName, Graph, Class))
		{
			return Failure.GetValue();
		}
		const FString BranchText = Branch.Get(FString());
		if (!FitsEngineName(BranchText))
		{
			return MakeNodeInfoArray(Lua, {});
		}
		const FName BranchName = BranchText.IsEmpty() ? NAME_None : FName(*BranchText);
		return MakeNodeInfoArray(Lua, Graph->GetNodesForTag(Tag, Class.Get(), BranchName, false));
#endif
	}

	static sol::table JobEvaluate(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, int32 ShotIndex)
	{
		const TCHAR* Label = TEXT("job:evaluate");
		const TStrongObjectPtr<UMoviePipelineExecutorJob> Job(WeakJob.Get());
		if (!Job)
		{
			return Fail(Lua, Session, Label, TEXT("job no longer valid"));
		}
		if (!Job->IsUsingGraphConfiguration())
		{
			return Fail(Lua, Session, Label, TEXT("job is not using a graph configuration (call job:set_graph first)"));
		}
		const TStrongObjectPtr<UMovieGraphConfig> Graph(Job->GetGraphPreset());
		if (!Graph)
		{
			return Fail(Lua, Session, Label, TEXT("job has no graph preset"));
		}
		FEvaluationContext Context;
		FString Error;
		if (!FlattenGraph(*Graph, Job.Get(), ShotIndex, Context, Error))
		{
			return Fail(Lua, Session, Label, Error);
		}
		const FEvaluationRow Row = ReadEvaluation(Context, 0.f, 0.f);
		LogLine(Session, ELineKind::Ok, Label);
		return MakeEvaluationTable(Lua, Row);
	}

	// The job's output directory as the editor resolves it; from 5.8 with the engine's reason for an empty one.
	static FString ResolveJobOutputDirectory(UMoviePipelineExecutorJob* Job, FString& OutReason)
	{
#if UE_VERSION_OLDER_THAN(5, 8, 0)
		OutReason = TEXT("ResolveOutputDirectoryFromJob returned an empty path (reason strings need UE 5.8)");
		return UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job);
#else
		FText Reason;
		const FString Path = UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob(Job, Reason);
		OutReason = Reason.ToString();
		return Path;
#endif
	}

	static sol::table JobOutputDirectory(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session)
	{
		const TStrongObjectPtr<UMoviePipelineExecutorJob> Job(WeakJob.Get());
		if (!Job)
		{
			return Fail(Lua, Session, TEXT("job:output_directory"), TEXT("job no longer valid"));
		}
		FString Reason;
		const FString Path = ResolveJobOutputDirectory(Job.Get(), Reason);
		sol::table Table = Lua.create_table_with("ok", !Path.IsEmpty(), "path", ToUtf8(Path));
		if (Path.IsEmpty())
		{
			Table["error"] = ToUtf8(Reason);
		}
		return Table;
	}

	static TOptional<FString> OptionalText(const TOptionalArgument<FScriptText>& Argument)
	{
		return Argument.Value.IsSet() ? TOptional<FString>(Argument.Value->Value) : TOptional<FString>();
	}

	void AddGraphEvaluationMethods(sol::table& Handle, const FWeakGraph& Graph, FLuaSessionData* S)
	{
		Handle.set_function("evaluate", [Graph, S](sol::this_state L, sol::object, sol::object Options) { return GraphEvaluate(L, Graph, *S, Options); });
		Handle.set_function("output_settings", [Graph, S](sol::this_state L, sol::object, sol::object Options) { return GraphOutputSettings(L, Graph, *S, Options); });
		Handle.set_function("resolution", [Graph, S](sol::this_state L, sol::object, sol::object Options) { return GraphResolution(L, Graph, *S, Options); });
		Handle.set_function("output_directory", [Graph, S](sol::this_state L, sol::object) { return GraphOutputDirectory(L, Graph, *S); });
		Handle.set_function("branches", [Graph, S](sol::this_state L, sol::object) { return GraphBranches(L, Graph, *S); });
		Handle.set_function("nodes_for_branch", [Graph, S](sol::this_state L, sol::object, const FScriptText& Branch,
			const TOptionalArgument<FScriptText>& ClassName, const TOptionalArgument<bool>& bExact) {
			return GraphNodesForBranch(L, Graph, *S, Branch.Value, OptionalText(ClassName), bExact.Get(false));
		});
		Handle.set_function("nodes_for_tag", [Graph, S](sol::this_state L, sol::object, const FScriptText& Tag,
			const TOptionalArgument<FScriptText>& ClassName, const TOptionalArgument<FScriptText>& Branch) {
			return GraphNodesForTag(L, Graph, *S, Tag.Value, OptionalText(ClassName), OptionalText(Branch));
		});
	}

	void AddJobEvaluationMethods(sol::table& Handle, const FWeakJob& Job, FLuaSessionData* S)
	{
		Handle.set_function("evaluate", [Job, S](sol::this_state L, sol::object, const TOptionalArgument<int64>& ShotIndex) {
			return JobEvaluate(L, Job, *S, static_cast<int32>(FMath::Clamp<int64>(ShotIndex.Get(0), 0, MAX_int32)));
		});
		Handle.set_function("output_directory", [Job, S](sol::this_state L, sol::object) { return JobOutputDirectory(L, Job, *S); });
	}
}
