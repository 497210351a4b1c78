#include "MovieSceneStandInShot.h"

#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FMovieSceneStandInShot, "LevelSequence")
{
	STANDIN_PROPERTY(ShotDisplayName, CPF_None);
	STANDIN_PROPERTY(CameraName, CPF_None);
	STANDIN_PROPERTY(SectionRange, CPF_None);
}
