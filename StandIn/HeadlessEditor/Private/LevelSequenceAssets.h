// New level sequence assets, made and saved the way the editor's "Level Sequence" asset factory makes them.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameRate.h"
#include "Misc/Optional.h"

class ULevelSequence;

namespace UE::Vlmr
{
	// A shot section of the new sequence, in display-rate frames.
	struct FLevelSequenceShotOptions
	{
		FString Name;
		// Empty for a shot without a camera cut.
		FString Camera;
		int32 StartFrame = 0;
		// End exclusive; unset lasts to the end of the playback range.
		TOptional<int32> EndFrame;
	};

	struct FLevelSequenceAssetOptions
	{
		TOptional<FFrameRate> DisplayRate;
		// Playback range in display-rate frames, end exclusive.
		TOptional<int32> StartFrame;
		TOptional<int32> EndFrame;
		TArray<FLevelSequenceShotOptions> Shots;
	};

	// Creates the asset at a new package path under /Game/ and saves it; null with the reason when that is not possible.
	ULevelSequence* CreateLevelSequenceAsset(const FString& AssetPath, const FLevelSequenceAssetOptions& Options, FString& OutError);
}
