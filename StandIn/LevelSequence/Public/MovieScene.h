// A sequence's timeline: its playback range and the two frame rates it is measured in.
// Stand-in choice: kept in the LevelSequence module; the engine has it in the MovieScene module.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameRate.h"
#include "MovieSceneFrameRange.h"
#include "MovieSceneStandInShot.h"
#include "UObject/Object.h"

UCLASS()
class LEVELSEQUENCE_API UMovieScene : public UObject
{
	STANDIN_CLASS_BODY(UMovieScene, UObject, LEVELSEQUENCE_API)

public:
	// In tick-resolution frames, lower bound inclusive and upper bound exclusive.
	TRange<FFrameNumber> GetPlaybackRange() const { return PlaybackRange.Value; }
	void SetPlaybackRange(FFrameNumber Start, int32 Duration, bool bAlwaysMarkDirty = true);
	void SetPlaybackRange(const TRange<FFrameNumber>& NewRange, bool bAlwaysMarkDirty = true);

	// The rate at which keys and ranges are stored.
	FFrameRate GetTickResolution() const { return TickResolution; }
	void SetTickResolutionDirectly(FFrameRate InTickResolution);

	// The rate shown to users, and the rate at which frames are rendered.
	FFrameRate GetDisplayRate() const { return DisplayRate; }
	void SetDisplayRate(FFrameRate InDisplayRate);

	// The shots of the timeline, in the order they were added.
	const TArray<FMovieSceneStandInShot>& GetStandInShots() const { return StandInShots; }
	void AddStandInShot(const FMovieSceneStandInShot& InShot);

private:
	FMovieSceneFrameRange PlaybackRange;
	FFrameRate TickResolution = FFrameRate(24000, 1);
	FFrameRate DisplayRate = FFrameRate(30, 1);
	TArray<FMovieSceneStandInShot> StandInShots;
};
