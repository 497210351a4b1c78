#include "LevelSequenceAssets.h"

#include "EditorAssetOperations.h"
#include "LevelSequence.h"
#include "MovieScene.h"

namespace UE::Vlmr
{
	namespace
	{
		FFrameNumber DisplayFrameToTick(const UMovieScene& MovieScene, int32 DisplayFrame)
		{
			return FFrameRate::TransformTime(FFrameTime(DisplayFrame), MovieScene.GetDisplayRate(), MovieScene.GetTickResolution()).FloorToFrame();
		}

		void AddShots(UMovieScene* MovieScene, const TArray<FLevelSequenceShotOptions>& Shots)
		{
			for (const FLevelSequenceShotOptions& ShotOptions : Shots)
			{
				FMovieSceneStandInShot Shot;
				Shot.ShotDisplayName = ShotOptions.Name;
				Shot.CameraName = ShotOptions.Camera;
				const FFrameNumber End = ShotOptions.EndFrame.IsSet()
					? DisplayFrameToTick(*MovieScene, ShotOptions.EndFrame.GetValue())
					: MovieScene->GetPlaybackRange().GetUpperBoundValue();
				Shot.SectionRange.Value = TRange<FFrameNumber>(DisplayFrameToTick(*MovieScene, ShotOptions.StartFrame), End);
				MovieScene->AddStandInShot(Shot);
			}
		}

		bool ApplyOptions(UMovieScene* MovieScene, const FLevelSequenceAssetOptions& Options, FString& OutError)
		{
			if (Options.DisplayRate.IsSet())
			{
				MovieScene->SetDisplayRate(Options.DisplayRate.GetValue());
			}
			if (Options.StartFrame.IsSet() || Options.EndFrame.IsSet())
			{
				const TRange<FFrameNumber> Current = MovieScene->GetPlaybackRange();
				const FFrameNumber Start = Options.StartFrame.IsSet() ? DisplayFrameToTick(*MovieScene, Options.StartFrame.GetValue()) : Current.GetLowerBoundValue();
				const FFrameNumber End = Options.EndFrame.IsSet() ? DisplayFrameToTick(*MovieScene, Options.EndFrame.GetValue()) : Current.GetUpperBoundValue();
				if (End < Start)
				{
					OutError = TEXT("the playback range ends before it starts");
					return false;
				}
				MovieScene->SetPlaybackRange(TRange<FFrameNumber>(Start, End));
			}
			AddShots(MovieScene, Options.Shots);
			return true;
		}
	}

	ULevelSequence* CreateLevelSequenceAsset(const FString& AssetPath, const FLevelSequenceAssetOptions& Options, FString& OutError)
	{
		ULevelSequence* Sequence = NewAsset<ULevelSequence>(AssetPath, OutError);
		if (!Sequence)
		{
			return nullptr;
		}
		Sequence->Initialize();
		if (!ApplyOptions(Sequence->GetMovieScene(), Options, OutError))
		{
			DiscardNewAsset(Sequence);
			return nullptr;
		}
		return CompleteNewAsset(Sequence, OutError) ? Sequence : nullptr;
	}
}
