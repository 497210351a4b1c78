#include "MovieScene.h"

#include "UObject/UnrealType.h"

void UMovieScene::SetPlaybackRange(FFrameNumber Start, int32 Duration, bool bAlwaysMarkDirty)
{
	SetPlaybackRange(TRange<FFrameNumber>(Start, Start + Duration), bAlwaysMarkDirty);
}

void UMovieScene::SetPlaybackRange(const TRange<FFrameNumber>& NewRange, bool bAlwaysMarkDirty)
{
	if (PlaybackRange.Value == NewRange)
	{
		return;
	}
	if (bAlwaysMarkDirty)
	{
		Modify();
	}
	PlaybackRange.Value = NewRange;
}

void UMovieScene::SetTickResolutionDirectly(FFrameRate InTickResolution)
{
	TickResolution = InTickResolution;
}

void UMovieScene::SetDisplayRate(FFrameRate InDisplayRate)
{
	DisplayRate = InDisplayRate;
}

void UMovieScene::AddStandInShot(const FMovieSceneStandInShot& InShot)
{
	Modify();
	StandInShots.Add(InShot);
}

STANDIN_IMPLEMENT_CLASS(UMovieScene, CLASS_None, "LevelSequence")
{
	STANDIN_PROPERTY(PlaybackRange, CPF_None);
	STANDIN_PROPERTY(TickResolution, CPF_None);
	STANDIN_PROPERTY(DisplayRate, CPF_None);
	STANDIN_PROPERTY(StandInShots, CPF_None);
}
