#include "MoviePipelineStandInShotRanges.h"

#include "LevelSequence.h"
#include "MovieScene.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"

namespace UE::MoviePipeline::StandIn
{
	// The frame at the output rate that holds InTickTime, or the one after when bRoundUp and InTickTime falls inside it.
	static int64 ToOutputFrame(FFrameNumber InTickTime, FFrameRate InTickResolution, FFrameRate InOutputRate, bool bRoundUp)
	{
		const FFrameTime OutputTime = FFrameRate::TransformTime(FFrameTime(InTickTime), InTickResolution, InOutputRate);
		return int64(OutputTime.GetFrame().Value) + (bRoundUp && OutputTime.GetSubFrame() > 0.f ? 1 : 0);
	}

	ULevelSequence* LoadSequenceAndUpdateShotList(const TWeakObjectPtr<UMoviePipelineExecutorJob>& InJob)
	{
		const FSoftObjectPath SequencePath = InJob.IsValid() ? InJob->Sequence : FSoftObjectPath();
		ULevelSequence* Sequence = Cast<ULevelSequence>(SequencePath.TryLoad());
		if (!Sequence || !Sequence->GetMovieScene())
		{
			UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to load Sequence Asset from specified path, aborting movie render! Attempted to load Path: %s"), *SequencePath.ToString());
			return nullptr;
		}
		// Loading may have collected garbage, and with it a job that left its queue.
		if (!InJob.IsValid())
		{
			return nullptr;
		}
		bool bShotsChanged = false;
		UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(Sequence, InJob.Get(), bShotsChanged);
		return Sequence;
	}

	// Stand-in choice: the custom playback range, handle frames and the output frame step of the output setting are not applied.
	TArray<FShotOutputRange> GatherShotOutputRanges(const UMoviePipelineExecutorJob& InJob, const UMovieScene& InMovieScene, FFrameRate InOutputRate, int32& OutTotalFrames)
	{
		const FFrameRate TickResolution = InMovieScene.GetTickResolution();
		TArray<FShotOutputRange> Ranges;
		OutTotalFrames = 0;
		for (UMoviePipelineExecutorShot* Shot : InJob.ShotInfo)
		{
			const TRange<FFrameNumber> Range = Shot ? Shot->ShotInfo.TotalOutputRangeRoot : TRange<FFrameNumber>::Empty();
			if (!Shot || !Shot->ShouldRender() || Range.IsEmpty() || !Range.HasLowerBound() || !Range.HasUpperBound())
			{
				continue;
			}
			const int64 StartFrame = ToOutputFrame(Range.GetLowerBoundValue(), TickResolution, InOutputRate, false);
			const int64 EndFrame = ToOutputFrame(Range.GetUpperBoundValue(), TickResolution, InOutputRate, true);
			// Stand-in choice: a render counts its output frames in 32 bits, as the engine numbers them; frames past that are not rendered.
			const int64 NumFrames = FMath::Min(EndFrame - StartFrame, int64(MAX_int32 - OutTotalFrames));
			if (NumFrames <= 0)
			{
				continue;
			}
			Shot->SetStatusProgress(0.0f);
			Ranges.Add({ Shot, int32(StartFrame), int32(NumFrames) });
			OutTotalFrames += int32(NumFrames);
		}
		return Ranges;
	}
}
