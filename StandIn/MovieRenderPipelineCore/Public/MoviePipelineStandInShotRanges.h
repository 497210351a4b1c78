// The shots a render goes through and their output frames, shared by the legacy and the graph pipeline.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameRate.h"
#include "UObject/WeakObjectPtrTemplates.h"

class ULevelSequence;
class UMoviePipelineExecutorJob;
class UMoviePipelineExecutorShot;
class UMovieScene;

namespace UE::MoviePipeline::StandIn
{
	// One shot to render: its frames at the output frame rate, [StartFrame, StartFrame + NumFrames).
	struct FShotOutputRange
	{
		TWeakObjectPtr<UMoviePipelineExecutorShot> Shot;
		int32 StartFrame = 0;
		int32 NumFrames = 0;
	};

	// The job's sequence with the job's shot list updated from it; null (the error logged) when the sequence cannot be
	// loaded or the job was collected while it loaded.
	MOVIERENDERPIPELINECORE_API ULevelSequence* LoadSequenceAndUpdateShotList(const TWeakObjectPtr<UMoviePipelineExecutorJob>& InJob);

	// The enabled shots of the job that have output frames at InOutputRate, in render order, each with its progress
	// reset; OutTotalFrames is the sum of their frames.
	MOVIERENDERPIPELINECORE_API TArray<FShotOutputRange> GatherShotOutputRanges(const UMoviePipelineExecutorJob& InJob, const UMovieScene& InMovieScene, FFrameRate InOutputRate, int32& OutTotalFrames);
}
