// Value types shared by the Movie Render Pipeline: pipeline and shot states, shutter timing, console variable
// overrides, sidecar cameras and the runtime range of a shot.
#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Math/Range.h"
#include "Misc/FrameNumber.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/Guid.h"
#include "UObject/ObjectMacros.h"

class UMoviePipelineBase;
class UMoviePipelineExecutorJob;

UENUM(BlueprintType)
enum class EMovieRenderPipelineState : uint8
{
	Uninitialized = 0,
	ProducingFrames = 1,
	Finalize = 2,
	Export = 3,
	Finished = 4,
};
STANDIN_DECLARE_ENUM(EMovieRenderPipelineState, MOVIERENDERPIPELINECORE_API)

// Stand-in choice: CoolingDown only from 5.7, where it is seen; 5.3 has none, and 5.5/5.6 are taken to be like 5.3.
UENUM(BlueprintType)
enum class EMovieRenderShotState : uint8
{
	Uninitialized = 0,
	WarmingUp = 1,
	MotionBlur = 2,
	Rendering = 3,
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	CoolingDown = 4,
	Finished = 5,
#else
	Finished = 4,
#endif
};
STANDIN_DECLARE_ENUM(EMovieRenderShotState, MOVIERENDERPIPELINECORE_API)

UENUM(BlueprintType)
enum class EMoviePipelineShutterTiming : uint8
{
	FrameOpen,
	FrameCenter,
	FrameClose,
};
STANDIN_DECLARE_ENUM(EMoviePipelineShutterTiming, MOVIERENDERPIPELINECORE_API)

// One console variable override: applied with its value while a job renders, when enabled.
USTRUCT(BlueprintType)
struct MOVIERENDERPIPELINECORE_API FMoviePipelineConsoleVariableEntry
{
	STANDIN_STRUCT_BODY(FMoviePipelineConsoleVariableEntry, MOVIERENDERPIPELINECORE_API)

public:
	FMoviePipelineConsoleVariableEntry() = default;
	FMoviePipelineConsoleVariableEntry(const FString& InName, const float InValue, const bool bInIsEnabled = true)
		: Name(InName)
		, Value(InValue)
		, bIsEnabled(bInIsEnabled)
	{
	}

	bool operator==(const FMoviePipelineConsoleVariableEntry& Other) const
	{
		return Name.Equals(Other.Name, ESearchCase::CaseSensitive) && Value == Other.Value && bIsEnabled == Other.bIsEnabled;
	}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings")
	FString Name;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Settings")
	float Value = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Settings")
	bool bIsEnabled = true;
};

// Names the images of one render pass (and camera) among a frame's outputs.
USTRUCT(BlueprintType)
struct MOVIERENDERPIPELINECORE_API FMoviePipelinePassIdentifier
{
	STANDIN_STRUCT_BODY(FMoviePipelinePassIdentifier, MOVIERENDERPIPELINECORE_API)

public:
	FMoviePipelinePassIdentifier() = default;
	explicit FMoviePipelinePassIdentifier(const FString& InPassName)
		: Name(InPassName)
	{
	}

	bool operator==(const FMoviePipelinePassIdentifier& Other) const
	{
		return Name.Equals(Other.Name) && CameraName.Equals(Other.CameraName);
	}

	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString Name;

	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString CameraName;
};

// A camera rendered together with the camera cut's own camera.
USTRUCT(BlueprintType)
struct MOVIERENDERPIPELINECORE_API FMoviePipelineSidecarCamera
{
	STANDIN_STRUCT_BODY(FMoviePipelineSidecarCamera, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	FGuid BindingId;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	FString Name;
};

// How far a graph render is through one shot ("segment"): its output frames, their temporal sub-samples and the
// engine warm-up frames before them.
USTRUCT(BlueprintType)
struct MOVIERENDERPIPELINECORE_API FMoviePipelineSegmentWorkMetrics
{
	STANDIN_STRUCT_BODY(FMoviePipelineSegmentWorkMetrics, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	FString SegmentName;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 OutputFrameIndex = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 TotalOutputFrameCount = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 OutputSubSampleIndex = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 TotalSubSampleCount = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 EngineWarmUpFrameIndex = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	int32 TotalEngineWarmUpFrameCount = 0;
};

// What a render needs to know about one shot at run time; rebuilt from the sequence, never saved.
// Stand-in choice: only the ranges the stand-in's shot list produces; the engine keeps many more render-time fields.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineCameraCutInfo
{
	// The shot's range in the root sequence's tick resolution, clipped to the playback range.
	TRange<FFrameNumber> TotalOutputRangeRoot = TRange<FFrameNumber>::Empty();
	// The part of the camera cut before TotalOutputRangeRoot, usable for warm-up frames.
	TRange<FFrameNumber> WarmupRangeRoot = TRange<FFrameNumber>::Empty();
	// Where the shot is in its render.
	EMovieRenderShotState State = EMovieRenderShotState::Uninitialized;
	// How far a graph render is through the shot.
	FMoviePipelineSegmentWorkMetrics WorkMetrics;
	// The output version a graph render resolved for the shot.
	int32 VersionNumber = 0;
};

// The file name tokens ({name} -> value) and file metadata gathered to write one output file.
// Stand-in choice: a plain struct with the engine's member names; the engine's is a reflected USTRUCT.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineFormatArgs
{
	TMap<FString, FString> FilenameArguments;
	TMap<FString, FString> FileMetadata;
	UMoviePipelineExecutorJob* InJob = nullptr;
};

// Which output frame a rendered frame is: its numbers in the whole render and in its shot.
// Stand-in choice: the members that name output files; the engine's also carries sampling and timing data.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineFrameOutputState
{
	// Counts output frames from 0 over the whole render.
	int32 OutputFrameNumber = 0;
	int32 ShotIndex = 0;
	// The root sequence's frame, at the output frame rate.
	int32 SourceFrameNumber = 0;
	// The frame within the shot's own timeline, which starts at 0.
	int32 CurrentShotSourceFrameNumber = 0;
	// Counts output frames from 0 within the shot.
	int32 ShotOutputFrameNumber = 0;
	FString CameraName;
	FString ShotName;

	// Adds frame_number, frame_number_shot, frame_number_rel, frame_number_shot_rel, camera_name and shot_name.
	void GetFilenameFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs, const int32 InZeroPadCount, const int32 InFrameNumberOffset, const bool bForceRelFrameNumbers) const;
};

// One output frame with every render pass it is made of, as the outputs receive it.
// Stand-in choice: no pixel data; outputs write a small fixed image for every frame.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineMergerOutputFrame
{
	FMoviePipelineFrameOutputState FrameOutputState;
	TArray<FMoviePipelinePassIdentifier> ExpectedRenderPasses;
};

// What a pipeline reports when its work (a whole job, or one shot) is finished.
// Stand-in choice: a plain struct without the per-shot file lists of the engine's reflected one.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineOutputData
{
	UMoviePipelineBase* Pipeline = nullptr;
	UMoviePipelineExecutorJob* Job = nullptr;
	bool bSuccess = false;
};

namespace UE::MoviePipeline
{
	// The frame number padded to InZeroPadCount digits; the minus sign of a negative number does not count as one.
	MOVIERENDERPIPELINECORE_API FString GetPaddingFormatString(int32 InZeroPadCount, const int32 InFrameNumber);
}
