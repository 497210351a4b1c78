#include "MovieSceneStandInShot.h"

#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_STRUCT(FMovieSceneStandInShot, "LevelSequence")
{
	VLMR_PROPERTY(ShotDisplayName, CPF_None);
	VLMR_PROPERTY(CameraName, CPF_None);
	VLMR_PROPERTY(SectionRange, CPF_None);
}
