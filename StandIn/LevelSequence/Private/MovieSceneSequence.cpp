#include "MovieSceneSequence.h"

#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_CLASS(UMovieSceneSequence, CLASS_Abstract, "LevelSequence")
{
}
