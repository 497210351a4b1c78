// How the stand-in names output files and folders: the {token} values a job gives, formatting a path with them, and
// the version number found from earlier renders. The legacy pipeline, the editor library and the graph pipeline all
// name their outputs through these functions.
// Stand-in internal: public to the stand-in's modules only; the engine keeps these steps inside its pipelines and
// blueprint libraries, so module code must not call them.
#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "Misc/FrameRate.h"
#include "Templates/Function.h"

class UMoviePipelineExecutorJob;

namespace UE::MoviePipeline::StandIn
{
	// Adds the tokens every render gives its output names: frame_rate, date, time, year, month and day (of
	// InInitializationTime) and version.
	MOVIERENDERPIPELINECORE_API void AddRenderFormatArguments(TMap<FString, FString>& InOutArguments, const FFrameRate& InFrameRate,
		const FDateTime& InInitializationTime, int32 InVersion);

	// Adds the render's tokens and those of the job: level_name, sequence_name, job_name and job_author (the user name
	// when the job has no author).
	MOVIERENDERPIPELINECORE_API void AddJobFormatArguments(TMap<FString, FString>& InOutArguments, const UMoviePipelineExecutorJob& InJob,
		const FFrameRate& InFrameRate, const FDateTime& InInitializationTime, int32 InVersion);

	// "v" and the version with at least three digits: v001.
	MOVIERENDERPIPELINECORE_API FString FormatVersion(int32 InVersion);

	// The frame number with at least InZeroPadCount digits; a minus sign does not count as one. The count is clamped to
	// the engine's ClampMin of 1 and, as a wider number could never be part of a writable path, to the platform's
	// maximum path length.
	MOVIERENDERPIPELINECORE_API FString PadFrameNumber(int64 InFrameNumber, int32 InZeroPadCount);

	// InFormatString with its {tokens} replaced by InArguments as FString::Format replaces them; unknown tokens stay.
	MOVIERENDERPIPELINECORE_API FString FormatArguments(const FString& InFormatString, const TMap<FString, FString>& InArguments);

	// InPath made absolute (a relative path is taken from the project directory), with '/' separators and no doubled ones.
	MOVIERENDERPIPELINECORE_API FString MakeOutputPathAbsolute(const FString& InPath);

	// Whether InPath fits in the platform's maximum path length, so that a file can be written there.
	MOVIERENDERPIPELINECORE_API bool FitsMaxPathLength(const FString& InPath);

	// The path InResolvePath makes of InOutArguments; while a file that must not be overwritten is in the way, file_dup
	// is set to "_(2)", "_(3)", ... and the path made again. file_dup is left holding the value of the returned path.
	MOVIERENDERPIPELINECORE_API FString ResolveWritablePath(TMap<FString, FString>& InOutArguments, bool bOverwriteExisting,
		TFunctionRef<FString(const TMap<FString, FString>&)> InResolvePath);

	// The highest version earlier renders left for the output InFormatString names, once its other tokens are resolved
	// with InArguments: among the files and folders in the folder that holds the first {version} token, the number of
	// the first "v" followed by three digits in each name. INDEX_NONE when the path has no {version} token or no entry
	// there carries a version.
	MOVIERENDERPIPELINECORE_API int32 FindHighestExistingVersion(const FString& InFormatString, const TMap<FString, FString>& InArguments);
}
