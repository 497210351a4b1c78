#include "MoviePipelineStandInFileNaming.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"
#include "Misc/StringFormatArg.h"
#include "MoviePipelineQueue.h"

namespace UE::MoviePipeline::StandIn
{
	static const TCHAR* const VersionToken = TEXT("{version}");
	constexpr int32 VersionDigits = 3;

	// Stand-in choice: the search for a free "_(N)" name gives up here instead of looping forever.
	constexpr int32 MaxDuplicateIndex = 100000;

	static bool CanWriteToFile(const FString& InFilename, bool bOverwriteExisting)
	{
		return bOverwriteExisting || IFileManager::Get().FileSize(*InFilename) == -1;
	}

	// The number of the first "v" followed by three digits in InName (the engine's pattern v([0-9]{3})), or INDEX_NONE.
	static int32 ParseVersion(const FString& InName)
	{
		for (int32 Index = 0; Index + VersionDigits < InName.Len(); ++Index)
		{
			if (InName[Index] == TEXT('v') && FChar::IsDigit(InName[Index + 1]) && FChar::IsDigit(InName[Index + 2]) && FChar::IsDigit(InName[Index + 3]))
			{
				return FCString::Atoi(*InName.Mid(Index + 1, VersionDigits));
			}
		}
		return INDEX_NONE;
	}

	// The folder holding the path component that carries the first {version} token, or an empty string without one.
	static FString GetFolderOfVersionToken(const FString& InPath)
	{
		const int32 VersionIndex = InPath.Find(VersionToken);
		if (VersionIndex == INDEX_NONE)
		{
			return FString();
		}
		const int32 ParentEnd = InPath.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd, VersionIndex);
		return InPath.Left(ParentEnd + 1);
	}
}

void UE::MoviePipeline::StandIn::AddJobFormatArguments(TMap<FString, FString>& InOutArguments, const UMoviePipelineExecutorJob& InJob,
	const FFrameRate& InFrameRate, const FDateTime& InInitializationTime, int32 InVersion)
{
	InOutArguments.Add(TEXT("level_name"), InJob.Map.GetAssetName());
	InOutArguments.Add(TEXT("sequence_name"), InJob.Sequence.GetAssetName());
	InOutArguments.Add(TEXT("job_name"), InJob.JobName);
	InOutArguments.Add(TEXT("job_author"), InJob.Author.Len() > 0 ? InJob.Author : FString(FPlatformProcess::UserName(false)));
	AddRenderFormatArguments(InOutArguments, InFrameRate, InInitializationTime, InVersion);
}

void UE::MoviePipeline::StandIn::AddRenderFormatArguments(TMap<FString, FString>& InOutArguments, const FFrameRate& InFrameRate,
	const FDateTime& InInitializationTime, int32 InVersion)
{
	InOutArguments.Add(TEXT("frame_rate"), FString::SanitizeFloat(InFrameRate.AsDecimal()));
	InOutArguments.Add(TEXT("date"), InInitializationTime.ToString(TEXT("%Y.%m.%d")));
	InOutArguments.Add(TEXT("time"), InInitializationTime.ToString(TEXT("%H.%M.%S")));
	InOutArguments.Add(TEXT("year"), InInitializationTime.ToString(TEXT("%Y")));
	InOutArguments.Add(TEXT("month"), InInitializationTime.ToString(TEXT("%m")));
	InOutArguments.Add(TEXT("day"), InInitializationTime.ToString(TEXT("%d")));
	InOutArguments.Add(TEXT("version"), FormatVersion(InVersion));
}

FString UE::MoviePipeline::StandIn::FormatVersion(int32 InVersion)
{
	return FString::Printf(TEXT("v%0*d"), VersionDigits, InVersion);
}

FString UE::MoviePipeline::StandIn::PadFrameNumber(int64 InFrameNumber, int32 InZeroPadCount)
{
	const int32 DigitCount = FMath::Clamp(InZeroPadCount, 1, FPlatformMisc::GetMaxPathLength());
	return FString::Printf(TEXT("%0*lld"), DigitCount + (InFrameNumber < 0 ? 1 : 0), (long long)InFrameNumber);
}

FString UE::MoviePipeline::StandIn::FormatArguments(const FString& InFormatString, const TMap<FString, FString>& InArguments)
{
	FStringFormatNamedArguments NamedArguments;
	for (const TPair<FString, FString>& Argument : InArguments)
	{
		NamedArguments.Add(Argument.Key, Argument.Value);
	}
	return FString::Format(*InFormatString, NamedArguments);
}

// Stand-in choice: a path that is still relative once resolved is taken relative to the project directory.
FString UE::MoviePipeline::StandIn::MakeOutputPathAbsolute(const FString& InPath)
{
	FString Path = FPaths::IsRelative(InPath) ? FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), InPath) : InPath;
	FPaths::NormalizeFilename(Path);
	FPaths::RemoveDuplicateSlashes(Path);
	return Path;
}

bool UE::MoviePipeline::StandIn::FitsMaxPathLength(const FString& InPath)
{
	return InPath.Len() <= FPlatformMisc::GetMaxPathLength();
}

FString UE::MoviePipeline::StandIn::ResolveWritablePath(TMap<FString, FString>& InOutArguments, bool bOverwriteExisting,
	TFunctionRef<FString(const TMap<FString, FString>&)> InResolvePath)
{
	FString Path = InResolvePath(InOutArguments);
	for (int32 DuplicateIndex = 2; FitsMaxPathLength(Path) && !CanWriteToFile(Path, bOverwriteExisting) && DuplicateIndex <= MaxDuplicateIndex; ++DuplicateIndex)
	{
		InOutArguments.Add(TEXT("file_dup"), FString::Printf(TEXT("_(%d)"), DuplicateIndex));
		Path = InResolvePath(InOutArguments);
	}
	return Path;
}

int32 UE::MoviePipeline::StandIn::FindHighestExistingVersion(const FString& InFormatString, const TMap<FString, FString>& InArguments)
{
	TMap<FString, FString> Arguments = InArguments;
	Arguments.Add(TEXT("version"), VersionToken);
	const FString Folder = GetFolderOfVersionToken(MakeOutputPathAbsolute(FormatArguments(InFormatString, Arguments)));
	if (Folder.IsEmpty() || !FitsMaxPathLength(Folder))
	{
		return INDEX_NONE;
	}
	TArray<FString> Entries;
	IFileManager::Get().FindFiles(Entries, *(Folder / TEXT("*.*")), true, true);
	int32 HighestVersion = INDEX_NONE;
	for (const FString& Entry : Entries)
	{
		HighestVersion = FMath::Max(HighestVersion, ParseVersion(Entry));
	}
	return HighestVersion;
}
