// Value types shared by the Movie Render Pipeline: pipeline and shot states, shutter timing, console variable
// overrides, sidecar cameras and the runtime range of a shot.
#pragma once

#include "CoreMinimal.h"
#include "Math/Range.h"
#include "Misc/FrameNumber.h"
#include "Misc/Guid.h"
#include "UObject/ObjectMacros.h"

UENUM(BlueprintType)
enum class EMovieRenderPipelineState : uint8
{
	Uninitialized = 0,
	ProducingFrames = 1,
	Finalize = 2,
	Export = 3,
	Finished = 4,
};
VLMR_DECLARE_ENUM(EMovieRenderPipelineState, MOVIERENDERPIPELINECORE_API)

// Stand-in choice: CoolingDown (seen in 5.7) is offered from 5.5 on, as the temporal denoisers it serves shipped by then.
UENUM(BlueprintType)
enum class EMovieRenderShotState : uint8
{
	Uninitialized = 0,
	WarmingUp = 1,
	MotionBlur = 2,
	Rendering = 3,
	CoolingDown = 4,
	Finished = 5,
};
VLMR_DECLARE_ENUM(EMovieRenderShotState, MOVIERENDERPIPELINECORE_API)

UENUM(BlueprintType)
enum class EMoviePipelineShutterTiming : uint8
{
	FrameOpen,
	FrameCenter,
	FrameClose,
};
VLMR_DECLARE_ENUM(EMoviePipelineShutterTiming, MOVIERENDERPIPELINECORE_API)

// One console variable override: applied with its value while a job renders, when enabled.
USTRUCT(BlueprintType)
struct MOVIERENDERPIPELINECORE_API FMoviePipelineConsoleVariableEntry
{
	VLMR_STRUCT_BODY(FMoviePipelineConsoleVariableEntry, MOVIERENDERPIPELINECORE_API)

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
	VLMR_STRUCT_BODY(FMoviePipelinePassIdentifier, MOVIERENDERPIPELINECORE_API)

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
	VLMR_STRUCT_BODY(FMoviePipelineSidecarCamera, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	FGuid BindingId;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Render Pipeline")
	FString Name;
};

// What a render needs to know about one shot at run time; rebuilt from the sequence, never saved.
// Stand-in choice: only the ranges the stand-in's shot list produces; the engine keeps many more render-time fields.
struct MOVIERENDERPIPELINECORE_API FMoviePipelineCameraCutInfo
{
	// The shot's range in the root sequence's tick resolution, clipped to the playback range.
	TRange<FFrameNumber> TotalOutputRangeRoot = TRange<FFrameNumber>::Empty();
	// The part of the camera cut before TotalOutputRangeRoot, usable for warm-up frames.
	TRange<FFrameNumber> WarmupRangeRoot = TRange<FFrameNumber>::Empty();
};
