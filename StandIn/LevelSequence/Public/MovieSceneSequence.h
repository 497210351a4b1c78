// The base of every sequence asset: it owns a movie scene.
// Stand-in choice: kept in the LevelSequence module; the engine has it in the MovieScene module.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

class UMovieScene;

UCLASS(Abstract)
class LEVELSEQUENCE_API UMovieSceneSequence : public UObject
{
	STANDIN_CLASS_BODY(UMovieSceneSequence, UObject, LEVELSEQUENCE_API)

public:
	virtual UMovieScene* GetMovieScene() const PURE_VIRTUAL(UMovieSceneSequence::GetMovieScene, return nullptr;);
};
