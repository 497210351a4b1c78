// New Movie Render Queue configuration presets, made and saved the way the editor's preset factory makes them.
#pragma once

#include "CoreMinimal.h"

class UMoviePipelinePrimaryConfig;

namespace UE::Vlmr
{
	// Creates a primary configuration asset at a new package path under /Game/ and saves it; null with the reason
	// when that is not possible.
	UMoviePipelinePrimaryConfig* CreatePrimaryConfigAsset(const FString& AssetPath, FString& OutError);
}
