#include "MoviePipelineEditorBlueprintLibrary.h"

#include "Editor.h"
#include "Engine/World.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "LevelSequence.h"
#include "Misc/DateTime.h"
#include "Misc/Paths.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineSettings.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "MoviePipelineEditorBlueprintLibrary"

namespace UE::MoviePipeline
{
	// Shot and camera names stay unresolved in an output directory, so that the path is cut before them.
	static const TCHAR* const UnresolvableToken = TEXT("{dontresolvethis}");

	static FString GetJobAuthor(const UMoviePipelineExecutorJob& InJob)
	{
		return InJob.Author.Len() > 0 ? InJob.Author : FString(FPlatformProcess::UserName(false));
	}

	static FString PadFrameNumber(int32 InZeroPadCount, int32 InFrameNumber)
	{
		// The sign counts as a digit, so negative numbers get one more.
		return FString::Printf(TEXT("%0*d"), InFrameNumber < 0 ? InZeroPadCount + 1 : InZeroPadCount, InFrameNumber);
	}

	// The number of the first "v" followed by three digits in the name, or 0.
	static int32 ParseVersionToken(const FString& InName)
	{
		for (int32 Index = 0; Index + 3 < InName.Len(); ++Index)
		{
			if (InName[Index] == TEXT('v') && FChar::IsDigit(InName[Index + 1]) && FChar::IsDigit(InName[Index + 2]) && FChar::IsDigit(InName[Index + 3]))
			{
				return FCString::Atoi(*InName.Mid(Index + 1, 3));
			}
		}
		return 0;
	}

	// The highest version among the entries of the folder that holds the first {version} token.
	// Stand-in choice: without a render in progress the current version is the highest one found (0 for none).
	static int32 FindHighestVersionNextTo(const FString& InPath)
	{
		const int32 VersionIndex = InPath.Find(TEXT("{version}"));
		if (VersionIndex == INDEX_NONE)
		{
			return 0;
		}
		const int32 ParentEnd = InPath.Find(TEXT("/"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, VersionIndex);
		const FString ParentFolder = FPaths::ConvertRelativePathToFull(InPath.Left(ParentEnd + 1));
		TArray<FString> Entries;
		IFileManager::Get().FindFiles(Entries, *(ParentFolder / TEXT("*.*")), true, true);
		int32 HighestVersion = 0;
		for (const FString& Entry : Entries)
		{
			HighestVersion = FMath::Max(HighestVersion, ParseVersionToken(Entry));
		}
		return HighestVersion;
	}

	// The values of the tokens an output directory may use before any shot or frame is known.
	static TMap<FString, FString> GatherDirectoryArguments(const UMoviePipelineExecutorJob& InJob, const UMoviePipelineOutputSetting& InOutput, const FString& InFormat)
	{
		TMap<FString, FString> Arguments;
		Arguments.Add(TEXT("project_dir"), FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()));
		Arguments.Add(TEXT("output_resolution"), FString::Printf(TEXT("%d_%d"), InOutput.OutputResolution.X, InOutput.OutputResolution.Y));
		Arguments.Add(TEXT("output_width"), FString::FromInt(InOutput.OutputResolution.X));
		Arguments.Add(TEXT("output_height"), FString::FromInt(InOutput.OutputResolution.Y));
		Arguments.Add(TEXT("sequence_name"), InJob.Sequence.GetAssetName());
		Arguments.Add(TEXT("level_name"), InJob.Map.GetAssetName());
		Arguments.Add(TEXT("job_name"), InJob.JobName);
		Arguments.Add(TEXT("job_author"), GetJobAuthor(InJob));

		const ULevelSequence* Sequence = Cast<ULevelSequence>(InJob.Sequence.ResolveObject());
		Arguments.Add(TEXT("frame_rate"), FString::SanitizeFloat(InJob.GetConfiguration()->GetEffectiveFrameRate(Sequence).AsDecimal()));

		const FDateTime Now = FDateTime::Now();
		Arguments.Add(TEXT("date"), Now.ToString(TEXT("%Y.%m.%d")));
		Arguments.Add(TEXT("time"), Now.ToString(TEXT("%H.%M.%S")));
		Arguments.Add(TEXT("year"), Now.ToString(TEXT("%Y")));
		Arguments.Add(TEXT("month"), Now.ToString(TEXT("%m")));
		Arguments.Add(TEXT("day"), Now.ToString(TEXT("%d")));
		const int32 Version = InOutput.bAutoVersion ? FindHighestVersionNextTo(InFormat) : InOutput.VersionNumber;
		Arguments.Add(TEXT("version"), FString::Printf(TEXT("v%0*d"), 3, Version));

		const FString FrameNumber = PadFrameNumber(InOutput.ZeroPadFrameNumbers, InOutput.FrameNumberOffset);
		for (const TCHAR* FrameToken : { TEXT("frame_number"), TEXT("frame_number_shot"), TEXT("frame_number_rel"), TEXT("frame_number_shot_rel") })
		{
			Arguments.Add(FrameToken, FrameNumber);
		}
		Arguments.Add(TEXT("shot_name"), UnresolvableToken);
		Arguments.Add(TEXT("camera_name"), UnresolvableToken);
		Arguments.Add(TEXT("file_dup"), FString());
		return Arguments;
	}

	// Replaces every {name} with a known value; unknown tokens stay as they are.
	static FString FormatNamedArguments(const FString& InFormat, const TMap<FString, FString>& InArguments)
	{
		FString Result;
		int32 Index = 0;
		while (Index < InFormat.Len())
		{
			const int32 Close = InFormat[Index] == TEXT('{') ? InFormat.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index) : INDEX_NONE;
			const FString* Value = Close != INDEX_NONE ? InArguments.Find(InFormat.Mid(Index + 1, Close - Index - 1)) : nullptr;
			if (Value)
			{
				Result += *Value;
				Index = Close + 1;
			}
			else
			{
				Result.AppendChar(InFormat[Index]);
				++Index;
			}
		}
		return Result;
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
	FString FormatString = OutputSetting->OutputDirectory.Path;
	FPaths::NormalizeFilename(FormatString);

	FString ResolvedPath = FormatNamedArguments(FormatString, GatherDirectoryArguments(*InJob, *OutputSetting, FormatString));
	FPaths::NormalizeFilename(ResolvedPath);
	if (FPaths::IsRelative(ResolvedPath))
	{
		ResolvedPath = FPaths::ConvertRelativePathToFull(ResolvedPath);
	}
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

STANDIN_IMPLEMENT_CLASS(UMoviePipelineEditorBlueprintLibrary, CLASS_None, "MovieRenderPipelineEditor")
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
