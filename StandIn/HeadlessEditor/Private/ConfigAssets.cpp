#include "ConfigAssets.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "EditorAssetOperations.h"
#include "Misc/PackageName.h"
#include "MoviePipelinePrimaryConfig.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace UE::Vlmr
{
	UMoviePipelinePrimaryConfig* CreatePrimaryConfigAsset(const FString& AssetPath, FString& OutError)
	{
		const FString PackageName = ToPackageName(AssetPath);
		if (!CheckNewAssetPackageName(PackageName, OutError))
		{
			return nullptr;
		}
		UPackage* Package = CreatePackage(*PackageName);
		const FName AssetName(*FPackageName::GetLongPackageAssetName(PackageName));
		UMoviePipelinePrimaryConfig* Config = NewObject<UMoviePipelinePrimaryConfig>(Package, AssetName, RF_Public | RF_Standalone | RF_Transactional);
		FAssetRegistryModule::AssetCreated(Config);
		if (!SaveAssetPackage(Config, OutError))
		{
			return nullptr;
		}
		return Config;
	}
}
