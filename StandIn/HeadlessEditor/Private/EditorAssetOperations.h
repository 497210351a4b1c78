// What a person does to assets in the editor's content browser: save, delete, and drop a package from memory.
#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

namespace UE::Vlmr
{
	// The long package name of an asset path: "/Game/A/B" and "/Game/A/B.B" both name the package "/Game/A/B"; any
	// other object path ("/Game/A/B.C") is returned unchanged, which no package name check accepts.
	FString ToPackageName(const FString& AssetPath);

	// Drops a new asset that could not be completed, with its package, so that its path is free again.
	void DiscardNewAsset(UObject* Asset);

	// Whether a new asset can be created at the package name: a valid long package name with nothing there yet.
	bool CheckNewAssetPackageName(const FString& PackageName, FString& OutError);

	// A new asset at a new package path, made as the editor's asset factories make it (public, standalone,
	// transactional), not yet announced or saved; null with the reason when the path is invalid or taken.
	UObject* NewAsset(const FString& AssetPath, const UClass* AssetClass, FString& OutError);

	template <typename TAsset>
	TAsset* NewAsset(const FString& AssetPath, FString& OutError)
	{
		return static_cast<TAsset*>(NewAsset(AssetPath, TAsset::StaticClass(), OutError));
	}

	// Announces a new asset to the asset registry and saves it; false, with the asset discarded, when it cannot be saved.
	bool CompleteNewAsset(UObject* Asset, FString& OutError);

	// Saves the asset's package to its file under the project's Content folder (".umap" for a world).
	bool SaveAssetPackage(UObject* Asset, FString& OutError);

	// Marks the asset garbage, deletes its package file, tells the asset registry and collects garbage. False when
	// there was neither an asset in memory nor a package file.
	bool DeleteAsset(const FString& AssetPath);

	// Drops every object of the package from memory so that the next load reads the file; false when it was not loaded.
	bool UnloadPackage(const FString& AssetPath);
}
