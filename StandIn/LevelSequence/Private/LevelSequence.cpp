#include "LevelSequence.h"

#include "MovieScene.h"
#include "UObject/UnrealType.h"

void ULevelSequence::Initialize()
{
	MovieScene = NewObject<UMovieScene>(this, NAME_None, RF_Transactional);
	// The engine's project defaults for new level sequences: 24000 ticks per second shown at 30 fps.
	MovieScene->SetTickResolutionDirectly(FFrameRate(24000, 1));
	MovieScene->SetDisplayRate(FFrameRate(30, 1));
	// As the editor's sequence tools default: playback starts at 0 and lasts 5 seconds.
	const FFrameNumber Duration = (5.0 * MovieScene->GetTickResolution()).FloorToFrame();
	MovieScene->SetPlaybackRange(FFrameNumber(0), Duration.Value, false);
}

STANDIN_IMPLEMENT_CLASS(ULevelSequence, CLASS_None, "LevelSequence")
{
	STANDIN_PROPERTY(MovieScene, CPF_None);
}
