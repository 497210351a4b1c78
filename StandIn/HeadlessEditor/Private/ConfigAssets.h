// New Movie Render Queue presets and Movie Render Graph assets, made and saved the way the editor's factories make them.
#pragma once

#include "CoreMinimal.h"

class UMovieGraphConfig;
class UMoviePipelinePrimaryConfig;

namespace UE::Vlmr
{
	// Each creates the asset at a new package path under /Game/ and saves it; null with the reason when that is not possible.
	UMoviePipelinePrimaryConfig* CreatePrimaryConfigAsset(const FString& AssetPath, FString& OutError);
	UMovieGraphConfig* CreateGraphConfigAsset(const FString& AssetPath, FString& OutError);
}
