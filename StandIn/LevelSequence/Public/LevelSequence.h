// The sequence asset that the Sequencer edits and that Movie Render Queue jobs render.
#pragma once

#include "CoreMinimal.h"
#include "MovieSceneSequence.h"
#include "UObject/ObjectPtr.h"

UCLASS(BlueprintType)
class LEVELSEQUENCE_API ULevelSequence : public UMovieSceneSequence
{
	STANDIN_CLASS_BODY(ULevelSequence, UMovieSceneSequence, LEVELSEQUENCE_API)

public:
	// Gives a new sequence its movie scene, with the editor's defaults for new level sequences.
	void Initialize();

	virtual UMovieScene* GetMovieScene() const override { return MovieScene; }

	TObjectPtr<UMovieScene> MovieScene;
};
