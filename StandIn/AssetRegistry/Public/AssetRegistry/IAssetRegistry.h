// IAssetRegistry: the index of the project's assets, those on disk and those created in memory.
#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "Delegates/Delegate.h"

class UObject;
class UPackage;

// Stand-in choice: a plain interface; in the engine it is the native side of the UAssetRegistry UInterface.
class ASSETREGISTRY_API IAssetRegistry
{
public:
	virtual ~IAssetRegistry() = default;

	// The registry; null before the AssetRegistry module starts (the stand-in creates it on first use).
	static IAssetRegistry* Get();
	static IAssetRegistry& GetChecked();

	virtual bool HasAssets(const FName PackagePath, const bool bRecursive = false) const = 0;
	virtual bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false, bool bSkipARFilteredAssets = true) const = 0;
	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const = 0;
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets = true) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	// An invalid FAssetData when nothing is known at that path.
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false, bool bSkipARFilteredAssets = true) const = 0;

	// Reads the packages saved under the given long package paths ("/Game/Dir") or package names.
	virtual void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan = false, bool bIgnoreDenyListScanFilters = false) = 0;
	// Scans "/Game"; the stand-in always searches synchronously, then broadcasts OnFilesLoaded.
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;
	virtual bool IsLoadingAssets() const = 0;
	virtual void WaitForCompletion() = 0;

	virtual void AssetCreated(UObject* NewAsset) = 0;
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;
	virtual void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) = 0;
	virtual void PackageDeleted(UPackage* DeletedPackage) = 0;

	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetAddedEvent, const FAssetData&);
	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetRemovedEvent, const FAssetData&);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FAssetRenamedEvent, const FAssetData&, const FString&);
	DECLARE_MULTICAST_DELEGATE_OneParam(FInMemoryAssetCreatedEvent, UObject*);
	DECLARE_MULTICAST_DELEGATE_OneParam(FInMemoryAssetDeletedEvent, UObject*);
	DECLARE_MULTICAST_DELEGATE(FFilesLoadedEvent);

	virtual FAssetAddedEvent& OnAssetAdded() = 0;
	virtual FAssetRemovedEvent& OnAssetRemoved() = 0;
	virtual FAssetRenamedEvent& OnAssetRenamed() = 0;
	virtual FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() = 0;
	virtual FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() = 0;
	virtual FFilesLoadedEvent& OnFilesLoaded() = 0;
};
