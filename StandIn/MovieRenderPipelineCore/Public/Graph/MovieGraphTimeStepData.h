// FMovieGraphTimeStepData: where a render stands in time for one engine tick.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameNumber.h"
#include "Misc/FrameRate.h"
#include "Misc/Timecode.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

class UMovieGraphEvaluatedConfig;

// Stand-in choice: the fields a render's status and file names read; the engine's sampling fields are left out.
USTRUCT(BlueprintType)
struct FMovieGraphTimeStepData
{
	STANDIN_STRUCT_BODY(FMovieGraphTimeStepData, MOVIERENDERPIPELINECORE_API)

public:
	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	int32 OutputFrameNumber = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	int32 ShotOutputFrameNumber = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	int32 RenderedFrameNumber = 0;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	float FrameDeltaTime = 0.f;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	float WorldTimeDilation = 1.f;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	FFrameRate FrameRate;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	bool bIsFirstTemporalSampleForFrame = false;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	bool bIsLastTemporalSampleForFrame = false;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	bool bDiscardOutput = false;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	TObjectPtr<UMovieGraphEvaluatedConfig> EvaluatedConfig;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	FTimecode RootTimeCode;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	FFrameNumber RootFrameNumber;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	FTimecode ShotTimeCode;

	UPROPERTY(BlueprintReadOnly, Category = "Movie Graph")
	FFrameNumber ShotFrameNumber;
};
