#include "MoviePipelineBlueprintLibrary.h"

#include "Containers/Map.h"
#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "MoviePipeline.h"
#include "MovieRenderPipelineCoreModule.h"
#include "MovieScene.h"
#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

namespace UE::MoviePipeline
{
	// One range of the sequence that becomes a shot of the job.
	struct FShotEntry
	{
		FString InnerName;
		FString OuterName;
		TRange<FFrameNumber> Range;
	};

	// The name a shot without a shot section gets in place of one.
	static const TCHAR* const NoShotName = TEXT("no shot");

	// Shot sections in timeline order, clipped to the playback range; sections entirely outside it are left out.
	static TArray<FShotEntry> GatherShotSections(const UMovieScene& InMovieScene, const FString& InSequenceName)
	{
		TArray<FMovieSceneStandInShot> Sections = InMovieScene.GetStandInShots();
		Sections.StableSort([](const FMovieSceneStandInShot& A, const FMovieSceneStandInShot& B)
		{
			const TRangeBound<FFrameNumber> LowerA = A.SectionRange.Value.GetLowerBound();
			const TRangeBound<FFrameNumber> LowerB = B.SectionRange.Value.GetLowerBound();
			if (LowerA.IsOpen() || LowerB.IsOpen())
			{
				return LowerA.IsOpen() && !LowerB.IsOpen();
			}
			return LowerA.GetValue() < LowerB.GetValue();
		});

		TArray<FShotEntry> Entries;
		for (const FMovieSceneStandInShot& Section : Sections)
		{
			const TRange<FFrameNumber> Clipped = TRange<FFrameNumber>::Intersection(Section.SectionRange.Value, InMovieScene.GetPlaybackRange());
			if (Clipped.IsEmpty())
			{
				continue;
			}
			// Without a camera cut the inner name falls back to the name of the sequence, as the engine's does.
			Entries.Add({ Section.CameraName.IsEmpty() ? InSequenceName : Section.CameraName, Section.ShotDisplayName, Clipped });
		}
		return Entries;
	}

	// Repeated names get "(2)", "(3)", ... in order, and the first of them "(1)", so that every shot name is unique.
	static void DeduplicateNames(TArray<FString>& InOutNames)
	{
		TMap<FString, int32> UseCounts;
		for (FString& Name : InOutNames)
		{
			int32& Count = UseCounts.FindOrAdd(Name, 0);
			if (++Count > 1)
			{
				Name.Append(FString::Printf(TEXT("(%d)"), Count));
			}
		}
		for (const TPair<FString, int32>& UseCount : UseCounts)
		{
			if (UseCount.Value <= 1)
			{
				continue;
			}
			for (FString& Name : InOutNames)
			{
				if (Name.Equals(UseCount.Key))
				{
					Name.Append(TEXT("(1)"));
					break;
				}
			}
		}
	}

	static UMoviePipelineExecutorShot* FindShotByNames(const UMoviePipelineExecutorJob& InJob, const FShotEntry& InEntry)
	{
		for (UMoviePipelineExecutorShot* Shot : InJob.ShotInfo)
		{
			if (!Shot)
			{
				UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Null ShotInfo in job, ignoring..."));
				continue;
			}
			if (Shot->InnerName == InEntry.InnerName && Shot->OuterName == InEntry.OuterName)
			{
				return Shot;
			}
		}
		return nullptr;
	}
}

void UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(ULevelSequence* InSequence, UMoviePipelineExecutorJob* InJob, bool& bShotsChanged)
{
	using namespace UE::MoviePipeline;

	if (!ensureMsgf(InSequence && InJob && InSequence->GetMovieScene(), TEXT("Cannot generate shot list for null sequence/job.")))
	{
		return;
	}
	const UMovieScene& MovieScene = *InSequence->GetMovieScene();
	const FString SequenceName = FPaths::GetBaseFilename(MovieScene.GetPathName());

	TArray<FShotEntry> Entries = GatherShotSections(MovieScene, SequenceName);
	if (Entries.Num() == 0)
	{
		Entries.Add({ SequenceName, NoShotName, MovieScene.GetPlaybackRange() });
	}

	TArray<FString> OuterNames;
	for (const FShotEntry& Entry : Entries)
	{
		OuterNames.Add(Entry.OuterName);
	}
	DeduplicateNames(OuterNames);

	TArray<TObjectPtr<UMoviePipelineExecutorShot>> NewShots;
	for (int32 Index = 0; Index < Entries.Num(); ++Index)
	{
		FShotEntry& Entry = Entries[Index];
		Entry.OuterName = OuterNames[Index];

		UMoviePipelineExecutorShot* Shot = FindShotByNames(*InJob, Entry);
		if (!Shot)
		{
			Shot = NewObject<UMoviePipelineExecutorShot>(InJob);
			UE_LOG(LogMovieRenderPipeline, Log, TEXT("Generated new ShotInfo for Inner: %s Outer: %s (No existing shot found in the job)."), *Entry.InnerName, *Entry.OuterName);
		}
		else
		{
			UE_LOG(LogMovieRenderPipeline, Log, TEXT("Reusing existing ShotInfo for Inner: %s Outer: %s."), *Entry.InnerName, *Entry.OuterName);
		}
		NewShots.Add(Shot);

		Shot->ShotInfo = FMoviePipelineCameraCutInfo();
		Shot->ShotInfo.TotalOutputRangeRoot = Entry.Range;
		Shot->InnerName = Entry.InnerName;
		Shot->OuterName = Entry.OuterName;
	}

	if (InJob->ShotInfo != NewShots)
	{
		InJob->ShotInfo = NewShots;
		bShotsChanged = true;
	}
}

float UMoviePipelineBlueprintLibrary::GetCompletionPercentage(const UMoviePipeline* InPipeline)
{
	if (!InPipeline)
	{
		return 0.0f;
	}
	if (InPipeline->GetPipelineState() == EMovieRenderPipelineState::Finished)
	{
		return 1.0f;
	}
	if (InPipeline->TotalOutputFrames <= 0)
	{
		return 0.0f;
	}
	return FMath::Clamp(float(InPipeline->OutputFrameCount) / float(InPipeline->TotalOutputFrames), 0.0f, 1.0f);
}

EMovieRenderPipelineState UMoviePipelineBlueprintLibrary::GetPipelineState(const UMoviePipeline* InPipeline)
{
	return InPipeline ? InPipeline->GetPipelineState() : EMovieRenderPipelineState::Uninitialized;
}

void UMoviePipelineBlueprintLibrary::GetOverallOutputFrames(const UMoviePipeline* InMoviePipeline, int32& OutCurrentIndex, int32& OutTotalCount)
{
	OutCurrentIndex = InMoviePipeline ? InMoviePipeline->OutputFrameCount : 0;
	OutTotalCount = InMoviePipeline ? InMoviePipeline->TotalOutputFrames : 0;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineBlueprintLibrary, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(UpdateJobShotListFromSequence, TEXT("InSequence"), TEXT("InJob"), TEXT("bShotsChanged"));
	STANDIN_FUNCTION(GetCompletionPercentage, TEXT("InPipeline"));
	STANDIN_FUNCTION(GetPipelineState, TEXT("InPipeline"));
	STANDIN_FUNCTION(GetOverallOutputFrames, TEXT("InMoviePipeline"), TEXT("OutCurrentIndex"), TEXT("OutTotalCount"));
}
