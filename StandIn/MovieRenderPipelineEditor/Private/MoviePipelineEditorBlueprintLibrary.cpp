#include "MoviePipelineEditorBlueprintLibrary.h"

#include "Editor.h"
#include "Engine/World.h"
#include "LevelSequence.h"
#include "Misc/DateTime.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInFileNaming.h"
#include "MovieRenderPipelineDataTypes.h"
#include "MovieRenderPipelineSettings.h"
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

FString UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob)
{
	using namespace UE::MoviePipeline;

	// Stand-in choice: a job rendering with a graph has no output directory until graphs can be evaluated.
	const UMoviePipelineOutputSetting* OutputSetting = InJob && InJob->GetConfiguration() && !InJob->IsUsingGraphConfiguration()
		? InJob->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>() : nullptr;
	if (!OutputSetting)
	{
		return FString();
	}
	// The directory the pipeline would write to, as far as it is known before the render.
	const FString FormatString = OutputSetting->OutputDirectory.Path;
	FString ResolvedPath = StandIn::MakeOutputPathAbsolute(StandIn::FormatArguments(FormatString, GatherDirectoryArguments(*InJob, *OutputSetting)));
	TrimAtFirstUnresolvedToken(ResolvedPath);
	return ResolvedPath;
}

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
FString UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob(UMoviePipelineExecutorJob* InJob, FText& OutError)
{
	OutError = FText::GetEmpty();
	if (!InJob)
	{
		OutError = LOCTEXT("ResolveOutputDir_NullJob", "No job was provided.");
		return FString();
	}
	const FString ResolvedPath = ResolveOutputDirectoryFromJob(InJob);
	if (ResolvedPath.IsEmpty())
	{
		// Stand-in choice: the reason given when the job has no resolvable configuration.
		OutError = LOCTEXT("ResolveOutputDir_NoConfiguration", "The job's configuration does not name an output directory.");
	}
	return ResolvedPath;
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
