#include "MovieSceneSequence.h"

#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_CLASS(UMovieSceneSequence, CLASS_Abstract, "LevelSequence")
{
}
