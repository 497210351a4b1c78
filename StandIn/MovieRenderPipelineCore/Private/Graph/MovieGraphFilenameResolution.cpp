// UMovieGraphBlueprintLibrary's resolution of file name tokens and of output versions.
#include "Graph/MovieGraphBlueprintLibrary.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/Nodes/MovieGraphCommandLineEncoderNode.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Misc/Paths.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInFileNaming.h"
#include "MoviePipelineStandInScriptMessage.h"
#include "UObject/UObjectHash.h"

namespace UE::MovieGraph::Private
{
	using namespace UE::MoviePipeline::StandIn;

	static const TCHAR* const NoShotName = TEXT("NoShot");

	static const UMovieGraphGlobalOutputSettingNode* FindGlobalOutputSettings(const FMovieGraphFilenameResolveParams& InParams)
	{
		return InParams.EvaluatedConfig ? InParams.EvaluatedConfig->GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName, true, true) : nullptr;
	}

	static void AddFrameNumberArguments(TMap<FString, FString>& InOutArguments, const FMovieGraphFilenameResolveParams& InParams)
	{
		auto Pad = [&InParams](const int32 InFrameNumber)
		{
			return PadFrameNumber(int64(InFrameNumber) + InParams.FrameNumberOffset, InParams.ZeroPadFrameNumberCount);
		};
		const bool bRelative = InParams.bForceRelativeFrameNumbers;
		InOutArguments.Add(TEXT("frame_number"), Pad(bRelative ? InParams.RootFrameNumberRel : InParams.RootFrameNumber));
		InOutArguments.Add(TEXT("frame_number_shot"), Pad(bRelative ? InParams.ShotFrameNumberRel : InParams.ShotFrameNumber));
		InOutArguments.Add(TEXT("frame_number_rel"), Pad(InParams.RootFrameNumberRel));
		InOutArguments.Add(TEXT("frame_number_shot_rel"), Pad(InParams.ShotFrameNumberRel));
	}

	static void AddRenderDataArguments(TMap<FString, FString>& InOutArguments, const FMovieGraphFilenameResolveParams& InParams)
	{
		const FMovieGraphRenderDataIdentifier& Identifier = InParams.RenderDataIdentifier;
		const bool bHasShotName = InParams.Shot && !InParams.Shot->OuterName.IsEmpty();
		InOutArguments.Add(TEXT("shot_name"), bHasShotName ? InParams.Shot->OuterName : FString(NoShotName));
		InOutArguments.Add(TEXT("camera_name"), Identifier.CameraName);
		InOutArguments.Add(TEXT("renderer_name"), Identifier.RendererName);
		InOutArguments.Add(TEXT("renderer_sub_name"), Identifier.SubResourceName);
		InOutArguments.Add(TEXT("layer_name"), Identifier.LayerName);
		InOutArguments.Add(TEXT("branch_name"), Identifier.RootBranchName.ToString());
	}

	// The job's tokens, or (Stand-in choice) empty job tokens without a job.
	static void AddJobArguments(TMap<FString, FString>& InOutArguments, const FMovieGraphFilenameResolveParams& InParams)
	{
		const FFrameRate FrameRate = UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(
			const_cast<UMovieGraphGlobalOutputSettingNode*>(FindGlobalOutputSettings(InParams)), InParams.DefaultFrameRate);
		const FDateTime Time = InParams.InitializationTime + InParams.InitializationTimeOffset;
		if (InParams.Job)
		{
			AddJobFormatArguments(InOutArguments, *InParams.Job, FrameRate, Time, InParams.Version);
			return;
		}
		for (const TCHAR* JobToken : { TEXT("level_name"), TEXT("sequence_name"), TEXT("job_name"), TEXT("job_author") })
		{
			InOutArguments.Add(JobToken, FString());
		}
		AddRenderFormatArguments(InOutArguments, FrameRate, Time, InParams.Version);
	}

	// The node whose tokens the class gives: the flattened one of the branch, or the class defaults.
	// Stand-in choice: nodes restricted to the Globals branch are taken from it, whatever branch is resolved.
	static const UMovieGraphSettingNode* FindFormatArgumentSource(const FMovieGraphFilenameResolveParams& InParams, UClass* InClass)
	{
		const UMovieGraphSettingNode* DefaultNode = InClass->GetDefaultObject<UMovieGraphSettingNode>();
		const bool bGlobalsOnly = DefaultNode->GetBranchRestriction() == EMovieGraphBranchRestriction::Globals;
		const FName BranchName = bGlobalsOnly || InParams.RenderDataIdentifier.RootBranchName.IsNone() ? UMovieGraphNode::GlobalsPinName : InParams.RenderDataIdentifier.RootBranchName;
		if (!InParams.EvaluatedConfig || !InParams.EvaluatedConfig->BranchConfigMapping.Contains(BranchName))
		{
			return DefaultNode;
		}
		return InParams.EvaluatedConfig->GetSettingForBranch(InClass, BranchName, true, true);
	}

	static void AddSettingNodeArguments(FMovieGraphResolveArgs& InOutArguments, const FMovieGraphFilenameResolveParams& InParams)
	{
		TArray<UClass*> SettingClasses;
		GetDerivedClasses(UMovieGraphSettingNode::StaticClass(), SettingClasses);
		for (UClass* SettingClass : SettingClasses)
		{
			if (SettingClass->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated))
			{
				continue;
			}
			if (const UMovieGraphSettingNode* Node = FindFormatArgumentSource(InParams, SettingClass))
			{
				Node->GetFormatResolveArgs(InOutArguments, InParams.RenderDataIdentifier);
			}
		}
	}

	// Every token value in order of precedence, the overrides last so that they win.
	static void GatherArguments(FMovieGraphResolveArgs& InOutArguments, const FMovieGraphFilenameResolveParams& InParams)
	{
		TMap<FString, FString>& Arguments = InOutArguments.FilenameArguments;
		AddFrameNumberArguments(Arguments, InParams);
		AddRenderDataArguments(Arguments, InParams);
		AddJobArguments(Arguments, InParams);
		AddSettingNodeArguments(InOutArguments, InParams);
		InOutArguments.FileMetadata.Append(InParams.FileMetadata);
		Arguments.Add(TEXT("file_dup"), FString());
		Arguments.Add(TEXT("version"), FormatVersion(InParams.Version));
		Arguments.Append(InParams.FileNameFormatOverrides);
	}

	// Stand-in choice: there is no naming-token subsystem, so only the graph's own "mrg:" namespace is understood.
	static FString StripGraphTokenNamespace(const FString& InFormatString)
	{
		return InFormatString.Replace(TEXT("{mrg:"), TEXT("{"), ESearchCase::IgnoreCase);
	}

	// '/' separators, no doubled ones except a leading network "//", no "..", no trailing '.'.
	static FString CleanPath(const FString& InPath, const bool bEnsureAbsolutePath)
	{
		FString Path = InPath;
		FPaths::NormalizeFilename(Path);
		const bool bNetworkPath = Path.StartsWith(TEXT("//"));
		Path = bEnsureAbsolutePath && !bNetworkPath ? MakeOutputPathAbsolute(Path) : Path;
		FPaths::RemoveDuplicateSlashes(Path);
		if (bNetworkPath)
		{
			Path.InsertAt(0, TEXT("/"));
		}
		while (Path.Contains(TEXT("..")))
		{
			Path.ReplaceInline(TEXT(".."), TEXT("."));
		}
		Path.RemoveFromEnd(TEXT("."));
		return Path;
	}

	// The GOS output directory joined with each File Output and Command Line Encoder node's name of the branch.
	// Stand-in choice: a file name override replaces each output's file name format, under the output directory.
	static TArray<FString> GatherOutputFormatStrings(const UMovieGraphEvaluatedConfig& InEvaluatedConfig, const FString& InOutputDirectory, const FName& InBranchName,
		const FString& InFileNameOverride)
	{
		auto PathFor = [&InOutputDirectory, &InFileNameOverride](const FString& InFileNameFormat)
		{
			return InOutputDirectory / (InFileNameOverride.IsEmpty() ? InFileNameFormat : InFileNameOverride);
		};
		TArray<FString> FormatStrings;
		if (!InEvaluatedConfig.BranchConfigMapping.Contains(InBranchName))
		{
			return FormatStrings;
		}
		for (const UMovieGraphFileOutputNode* Node : InEvaluatedConfig.GetSettingsForBranch<UMovieGraphFileOutputNode>(InBranchName, false))
		{
			FormatStrings.Add(PathFor(Node->FileNameFormat));
		}
		for (const UMovieGraphCommandLineEncoderNode* Node : InEvaluatedConfig.GetSettingsForBranch<UMovieGraphCommandLineEncoderNode>(InBranchName, false))
		{
			FormatStrings.Add(PathFor(Node->FileNameFormat));
		}
		return FormatStrings;
	}
}

FString UMovieGraphBlueprintLibrary::ResolveFormatArguments(const FString& InFormatString, const FMovieGraphFilenameResolveParams& InParams, FMovieGraphResolveArgs& OutMergedFormatArgs)
{
	using namespace UE::MovieGraph::Private;
	GatherArguments(OutMergedFormatArgs, InParams);
	if (InFormatString.IsEmpty())
	{
		return FString();
	}
	return FormatArguments(StripGraphTokenNamespace(InFormatString), OutMergedFormatArgs.FilenameArguments);
}

FString UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(const FString& InFormatString, const FMovieGraphFilenameResolveParams& InParams, FMovieGraphResolveArgs& OutMergedFormatArgs)
{
	using namespace UE::MovieGraph::Private;
	ResolveFormatArguments(FString(), InParams, OutMergedFormatArgs);
	if (InFormatString.IsEmpty())
	{
		return FString();
	}
	const FString FormatString = StripGraphTokenNamespace(InFormatString);
	const FString* Extension = OutMergedFormatArgs.FilenameArguments.Find(TEXT("ext"));
	const FString ExtensionSuffix = Extension ? TEXT(".") + *Extension : FString();
	auto ResolvePath = [&FormatString, &ExtensionSuffix, &InParams](const TMap<FString, FString>& InArguments)
	{
		return CleanPath(FormatArguments(FormatString, InArguments), InParams.bEnsureAbsolutePath) + ExtensionSuffix;
	};
	const UMovieGraphGlobalOutputSettingNode* OutputSettings = FindGlobalOutputSettings(InParams);
	const bool bOverwriteExisting = !OutputSettings || OutputSettings->bOverwriteExistingOutput;
	return ResolveWritablePath(OutMergedFormatArgs.FilenameArguments, bOverwriteExisting, ResolvePath);
}

int32 UMovieGraphBlueprintLibrary::ResolveVersionNumber(FMovieGraphFilenameResolveParams InParams, const bool bGetNextVersion)
{
	using namespace UE::MovieGraph::Private;
	if (!InParams.EvaluatedConfig)
	{
		// Stand-in choice: the wording of the script error for a missing evaluated graph.
		ReportScriptExecutionMessage(TEXT("ResolveVersionNumber: Cannot resolve a version without an evaluated graph."), ELogVerbosity::Error);
		return INDEX_NONE;
	}
	const UMovieGraphGlobalOutputSettingNode* OutputSettings = FindGlobalOutputSettings(InParams);
	if (!OutputSettings->VersioningSettings.bAutoVersioning)
	{
		return OutputSettings->VersioningSettings.VersionNumber;
	}

	InParams.FileNameFormatOverrides.Add(TEXT("version"), TEXT("{version}"));
	FMovieGraphResolveArgs MergedArgs;
	ResolveFormatArguments(FString(), InParams, MergedArgs);
	int32 HighestVersion = INDEX_NONE;
	for (const FString& OutputPath : GatherOutputFormatStrings(*InParams.EvaluatedConfig, OutputSettings->OutputDirectory.Path,
		InParams.RenderDataIdentifier.RootBranchName, InParams.FileNameOverride))
	{
		HighestVersion = FMath::Max(HighestVersion, FindHighestExistingVersion(StripGraphTokenNamespace(OutputPath), MergedArgs.FilenameArguments));
	}
	return bGetNextVersion ? HighestVersion + 1 : HighestVersion;
}
