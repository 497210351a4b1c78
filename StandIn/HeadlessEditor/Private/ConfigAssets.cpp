#include "ConfigAssets.h"

#include "EditorAssetOperations.h"
#include "Graph/MovieGraphConfig.h"
#include "MoviePipelinePrimaryConfig.h"

namespace UE::Vlmr
{
	namespace
	{
		template <typename TAsset>
		TAsset* CreateSavedAsset(const FString& AssetPath, FString& OutError)
		{
			TAsset* Asset = NewAsset<TAsset>(AssetPath, OutError);
			return Asset && CompleteNewAsset(Asset, OutError) ? Asset : nullptr;
		}
	}

	UMoviePipelinePrimaryConfig* CreatePrimaryConfigAsset(const FString& AssetPath, FString& OutError)
	{
		return CreateSavedAsset<UMoviePipelinePrimaryConfig>(AssetPath, OutError);
	}

	UMovieGraphConfig* CreateGraphConfigAsset(const FString& AssetPath, FString& OutError)
	{
		return CreateSavedAsset<UMovieGraphConfig>(AssetPath, OutError);
	}
}
