// The asset registry: assets in memory are found live, assets on disk are remembered from scans of saved packages.
#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Templates/Function.h"

class FAssetRegistryImpl final : public IAssetRegistry
{
public:
	bool HasAssets(const FName PackagePath, const bool bRecursive = false) const override;
	bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false, bool bSkipARFilteredAssets = true) const override;
	bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const override;
	bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const override;
	bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets = true) const override;
	bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const override;
	FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false, bool bSkipARFilteredAssets = true) const override;

	void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan = false, bool bIgnoreDenyListScanFilters = false) override;
	void SearchAllAssets(bool bSynchronousSearch) override;
	bool IsLoadingAssets() const override { return false; }
	void WaitForCompletion() override {}

	void AssetCreated(UObject* NewAsset) override;
	void AssetDeleted(UObject* DeletedAsset) override;
	void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) override;
	void PackageDeleted(UPackage* DeletedPackage) override;

	FAssetAddedEvent& OnAssetAdded() override { return AssetAddedEvent; }
	FAssetRemovedEvent& OnAssetRemoved() override { return AssetRemovedEvent; }
	FAssetRenamedEvent& OnAssetRenamed() override { return AssetRenamedEvent; }
	FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() override { return InMemoryAssetCreatedEvent; }
	FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() override { return InMemoryAssetDeletedEvent; }
	FFilesLoadedEvent& OnFilesLoaded() override { return FilesLoadedEvent; }

private:
	// Visits the matching assets: those in memory (unless the filter asks for disk only), then those from disk whose
	// package is not in memory, since a loaded package is what its assets are now.
	void EnumerateAssets(const FARFilter& Filter, TFunctionRef<void(const FAssetData&)> Visitor) const;
	// Reads one saved package; broadcasts OnAssetAdded for assets not known before and OnAssetRemoved for vanished ones.
	void ScanPackage(const FString& PackageName, bool bForceRescan);
	// Stand-in choice: a scan also forgets the assets of packages under Path whose files are gone.
	void ForgetPackagesMissingUnderPath(const FString& Path, const TArray<FString>& FoundPackageNames);
	void RemoveDiskAssetsOfPackage(FName PackageName);

	// Assets read from saved packages, by object path.
	TMap<FString, FAssetData> DiskAssets;
	TSet<FName> ScannedPackages;

	FAssetAddedEvent AssetAddedEvent;
	FAssetRemovedEvent AssetRemovedEvent;
	FAssetRenamedEvent AssetRenamedEvent;
	FInMemoryAssetCreatedEvent InMemoryAssetCreatedEvent;
	FInMemoryAssetDeletedEvent InMemoryAssetDeletedEvent;
	FFilesLoadedEvent FilesLoadedEvent;
};
