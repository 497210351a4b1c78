#include "MoviePipelineEditorBlueprintLibrary.h"

#include "Editor.h"
#include "Engine/World.h"
#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "LevelSequence.h"
#include "MovieScene.h"
#include "Misc/DateTime.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInFileNaming.h"
#include "MovieRenderPipelineDataTypes.h"
#include "MovieRenderPipelineSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "MoviePipelineEditorBlueprintLibrary"

namespace UE::MoviePipeline
{
	// Shot and camera names stay unresolved in an output directory, so that the path is cut before them.
	static const TCHAR* const UnresolvableToken = TEXT("{dontresolvethis}");

	// The values of the tokens an output directory may use before any shot or frame is known.
	static TMap<FString, FString> GatherDirectoryArguments(const UMoviePipelineExecutorJob& InJob, const UMoviePipelineOutputSetting& InOutput)
	{
		using namespace UE::MoviePipeline::StandIn;
		const ULevelSequence* Sequence = Cast<ULevelSequence>(InJob.Sequence.ResolveObject());
		const FFrameRate FrameRate = InJob.GetConfiguration()->GetEffectiveFrameRate(Sequence);
		FMoviePipelineFormatArgs FormatArgs;
		AddJobFormatArguments(FormatArgs.FilenameArguments, InJob, FrameRate, FDateTime::Now(), InOutput.VersionNumber);
		InOutput.GetFormatArguments(FormatArgs);
		TMap<FString, FString>& Arguments = FormatArgs.FilenameArguments;
		if (InOutput.bAutoVersion)
		{
			// Stand-in choice: without a render in progress the current version is the highest one found (0 for none).
			const int32 HighestVersion = FindHighestExistingVersion(InOutput.OutputDirectory.Path, Arguments);
			Arguments.Add(TEXT("version"), FormatVersion(FMath::Max(HighestVersion, 0)));
		}

		const FString FrameNumber = PadFrameNumber(InOutput.FrameNumberOffset, InOutput.ZeroPadFrameNumbers);
		for (const TCHAR* FrameToken : { TEXT("frame_number"), TEXT("frame_number_shot"), TEXT("frame_number_rel"), TEXT("frame_number_shot_rel") })
		{
			Arguments.Add(FrameToken, FrameNumber);
		}
		Arguments.Add(TEXT("shot_name"), UnresolvableToken);
		Arguments.Add(TEXT("camera_name"), UnresolvableToken);
		Arguments.Add(TEXT("file_dup"), FString());
		return MoveTemp(Arguments);
	}

	// The tokens of one render's data stay unresolved in a graph's output directory, so that the path is cut before them.
	static const TCHAR* const GraphRenderDataTokens[] = { TEXT("shot_name"), TEXT("camera_name"), TEXT("layer_name"), TEXT("renderer_name"), TEXT("renderer_sub_name"), TEXT("branch_name") };

	// Stand-in choice: the sequence's display rate is the frame rate a graph without an override renders at.
	static FFrameRate GetSequenceFrameRate(const UMoviePipelineExecutorJob& InJob)
	{
		const ULevelSequence* Sequence = Cast<ULevelSequence>(InJob.Sequence.ResolveObject());
		return Sequence && Sequence->GetMovieScene() ? Sequence->GetMovieScene()->GetDisplayRate() : FFrameRate(24, 1);
	}

	// Stand-in choice: as for configurations, the version of an auto-versioned output directory is the highest one
	// found on disk among the outputs of every branch (0 for none).
	static int32 GetCurrentGraphVersion(const FMovieGraphFilenameResolveParams& InParams)
	{
		int32 Version = 0;
		for (const FName& BranchName : InParams.EvaluatedConfig->GetBranchNames())
		{
			FMovieGraphFilenameResolveParams BranchParams = InParams;
			BranchParams.RenderDataIdentifier.RootBranchName = BranchName;
			Version = FMath::Max(Version, UMovieGraphBlueprintLibrary::ResolveVersionNumber(BranchParams, false));
		}
		return Version;
	}

	static FMovieGraphFilenameResolveParams MakeDirectoryResolveParams(UMoviePipelineExecutorJob& InJob, UMovieGraphEvaluatedConfig& InEvaluatedConfig,
		const UMovieGraphGlobalOutputSettingNode& InOutputSettings)
	{
		FMovieGraphFilenameResolveParams Params;
		Params.Job = &InJob;
		Params.EvaluatedConfig = &InEvaluatedConfig;
		Params.InitializationTime = FDateTime::Now();
		Params.ZeroPadFrameNumberCount = InOutputSettings.ZeroPadFrameNumbers;
		Params.FrameNumberOffset = InOutputSettings.FrameNumberOffset;
		Params.DefaultFrameRate = GetSequenceFrameRate(InJob);
		Params.Version = GetCurrentGraphVersion(Params);
		for (const TCHAR* Token : GraphRenderDataTokens)
		{
			Params.FileNameFormatOverrides.Add(Token, UnresolvableToken);
		}
		return Params;
	}

	// Cuts the path after the last folder separator before its first unresolved token.
	static void TrimAtFirstUnresolvedToken(FString& InOutPath)
	{
		int32 TokenIndex = INDEX_NONE;
		if (!InOutPath.FindChar(TEXT('{'), TokenIndex))
		{
			return;
		}
		const int32 LastSlashIndex = InOutPath.Find(TEXT("/"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, TokenIndex);
		if (LastSlashIndex != INDEX_NONE)
		{
			InOutPath.LeftInline(LastSlashIndex + 1);
		}
	}

	static UWorld* GetCurrentEditorWorld()
	{
		return GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
	}
}

UMoviePipelineExecutorJob* UMoviePipelineEditorBlueprintLibrary::CreateJobFromSequence(UMoviePipelineQueue* InPipelineQueue, const ULevelSequence* InSequence)
{
	if (!InPipelineQueue || !InSequence)
	{
		return nullptr;
	}
	const UMovieRenderPipelineProjectSettings* ProjectSettings = UMovieRenderPipelineProjectSettings::StaticClass()->GetDefaultObject<UMovieRenderPipelineProjectSettings>();
	UClass* JobClass = ProjectSettings->DefaultExecutorJob.TryLoadClass<UMoviePipelineExecutorJob>();
	UMoviePipelineExecutorJob* NewJob = InPipelineQueue->AllocateNewJob(JobClass ? JobClass : UMoviePipelineExecutorJob::StaticClass());
	if (!NewJob)
	{
		return nullptr;
	}
	NewJob->Map = FSoftObjectPath(UE::MoviePipeline::GetCurrentEditorWorld());
	NewJob->SetSequence(FSoftObjectPath(InSequence));
	NewJob->JobName = NewJob->Sequence.GetAssetName();
	return NewJob;
}

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
void UMoviePipelineEditorBlueprintLibrary::EnsureJobHasDefaultSettings(UMoviePipelineExecutorJob* NewJob, bool bForce)
#else
void UMoviePipelineEditorBlueprintLibrary::EnsureJobHasDefaultSettings(UMoviePipelineExecutorJob* NewJob)
#endif
{
	if (!NewJob || !NewJob->GetConfiguration())
	{
		return;
	}
	const UMovieRenderPipelineProjectSettings* ProjectSettings = UMovieRenderPipelineProjectSettings::StaticClass()->GetDefaultObject<UMovieRenderPipelineProjectSettings>();
	for (const FSoftClassPath& SettingClassPath : ProjectSettings->DefaultClasses)
	{
		UClass* SettingClass = SettingClassPath.TryLoadClass<UMoviePipelineSetting>();
		if (!SettingClass || SettingClass->HasAnyClassFlags(CLASS_Abstract))
		{
			continue;
		}
		if (!NewJob->GetConfiguration()->FindSettingByClass(SettingClass, true))
		{
			NewJob->GetConfiguration()->FindOrAddSettingByClass(SettingClass);
		}
	}
}

bool UMoviePipelineEditorBlueprintLibrary::GetDisplayOutputPathFromJob(UMoviePipelineExecutorJob* InJob, FString& OutOutputPath)
{
	if (!ensureMsgf(InJob, TEXT("%hs: Could not get format string because provided UMoviePipelineExecutorJob was invalid."), __FUNCTION__))
	{
		return false;
	}
	const UMoviePipelineOutputSetting* OutputSetting = InJob->GetConfiguration() ? InJob->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>() : nullptr;
	if (!OutputSetting)
	{
		return false;
	}
	OutOutputPath = OutputSetting->OutputDirectory.Path;
	return true;
}

namespace UE::MoviePipeline
{
	// The directory the pipeline would write to with the job's configuration, as far as it is known before the render.
	static FString ResolveConfigOutputDirectory(UMoviePipelineExecutorJob& InJob, FText& OutError)
	{
		const UMoviePipelineOutputSetting* OutputSetting = InJob.GetConfiguration() ? InJob.GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>() : nullptr;
		if (!OutputSetting)
		{
			// Stand-in choice: the reason given when the job has no resolvable configuration.
			OutError = LOCTEXT("ResolveOutputDir_NoConfiguration", "The job's configuration does not name an output directory.");
			return FString();
		}
		FString ResolvedPath = StandIn::MakeOutputPathAbsolute(StandIn::FormatArguments(OutputSetting->OutputDirectory.Path, GatherDirectoryArguments(InJob, *OutputSetting)));
		TrimAtFirstUnresolvedToken(ResolvedPath);
		return ResolvedPath;
	}

	// The Globals output directory of the job's graph flattened for the job, as far as it is known before the render.
	static FString ResolveGraphOutputDirectory(UMoviePipelineExecutorJob& InJob, FText& OutError)
	{
		UMovieGraphConfig* Graph = InJob.GetGraphPreset();
		if (!Graph)
		{
			// Stand-in choice: the reason given when the job's graph cannot be loaded.
			OutError = LOCTEXT("ResolveOutputDir_NoGraph", "The job's graph preset could not be loaded.");
			return FString();
		}
		FMovieGraphTraversalContext Context;
		Context.Job = &InJob;
		Context.RootGraph = Graph;
		FString FlattenError;
		const TStrongObjectPtr<UMovieGraphEvaluatedConfig> EvaluatedConfig(Graph->CreateFlattenedGraph(Context, FlattenError));
		if (!EvaluatedConfig)
		{
			OutError = FText::FromString(FlattenError);
			return FString();
		}
		const UMovieGraphGlobalOutputSettingNode* OutputSettings = EvaluatedConfig->GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName);
		const FMovieGraphFilenameResolveParams Params = MakeDirectoryResolveParams(InJob, *EvaluatedConfig, *OutputSettings);
		FMovieGraphResolveArgs MergedArgs;
		FString ResolvedPath = UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(OutputSettings->OutputDirectory.Path, Params, MergedArgs);
		TrimAtFirstUnresolvedToken(ResolvedPath);
		return ResolvedPath;
	}

	static FString ResolveJobOutputDirectory(UMoviePipelineExecutorJob* InJob, FText& OutError)
	{
		if (!InJob)
		{
			OutError = LOCTEXT("ResolveOutputDir_NullJob", "No job was provided.");
			return FString();
		}
		return InJob->IsUsingGraphConfiguration() ? ResolveGraphOutputDirectory(*InJob, OutError) : ResolveConfigOutputDirectory(*InJob, OutError);
	}
}

FString UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob)
{
	FText Error;
	return UE::MoviePipeline::ResolveJobOutputDirectory(InJob, Error);
}

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
FString UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob, FText& OutError)
{
	OutError = FText::GetEmpty();
	return UE::MoviePipeline::ResolveJobOutputDirectory(InJob, OutError);
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineEditorBlueprintLibrary, CLASS_None, "MovieRenderPipelineEditor")
{
	STANDIN_FUNCTION(CreateJobFromSequence, TEXT("InPipelineQueue"), TEXT("InSequence"));
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_FUNCTION(EnsureJobHasDefaultSettings, TEXT("NewJob"), TEXT("bForce"));
	STANDIN_FUNCTION(TryResolveOutputDirectoryFromJob, TEXT("InJob"), TEXT("OutError"));
#else
	STANDIN_FUNCTION(EnsureJobHasDefaultSettings, TEXT("NewJob"));
#endif
	STANDIN_FUNCTION(GetDisplayOutputPathFromJob, TEXT("InJob"), TEXT("OutOutputPath"));
	STANDIN_FUNCTION(ResolveOutputDirectoryFromJob, TEXT("InJob"));
}

#undef LOCTEXT_NAMESPACE
