// One shot of a sequence's timeline: a cinematic shot section with the camera its camera cut looks through.
#pragma once

#include "CoreMinimal.h"
#include "MovieSceneFrameRange.h"
#include "UObject/ObjectMacros.h"

// Stand-in choice: the shot track's sections and their camera cuts, flattened into the list Movie Render Queue reads.
USTRUCT()
struct LEVELSEQUENCE_API FMovieSceneStandInShot
{
	STANDIN_STRUCT_BODY(FMovieSceneStandInShot, LEVELSEQUENCE_API)

public:
	bool operator==(const FMovieSceneStandInShot& Other) const
	{
		return ShotDisplayName.Equals(Other.ShotDisplayName, ESearchCase::CaseSensitive)
			&& CameraName.Equals(Other.CameraName, ESearchCase::CaseSensitive)
			&& SectionRange == Other.SectionRange;
	}

	// The shot section's display name.
	FString ShotDisplayName;
	// The name of the camera binding its camera cut uses; empty when the shot has no camera cut.
	FString CameraName;
	// The section's range in tick-resolution frames, end exclusive.
	FMovieSceneFrameRange SectionRange;
};
