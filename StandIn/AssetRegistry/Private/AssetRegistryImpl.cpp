#include "AssetRegistryImpl.h"
#include "AssetFilterMatching.h"
#include "InMemoryAssets.h"
#include "LongPackagePaths.h"
#include "PackageFileScanner.h"
#include "UObject/Object.h"
#include "UObject/Package.h"

bool FAssetRegistryImpl::HasAssets(const FName PackagePath, const bool bRecursive) const
{
	TArray<FAssetData> Assets;
	GetAssetsByPath(PackagePath, Assets, bRecursive);
	return Assets.Num() > 0;
}

bool FAssetRegistryImpl::GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets, bool bSkipARFilteredAssets) const
{
	FARFilter Filter;
	Filter.PackageNames.Add(PackageName);
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData, bSkipARFilteredAssets);
}

bool FAssetRegistryImpl::GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.PackagePaths.Add(PackagePath);
	Filter.bRecursivePaths = bRecursive;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData);
}

bool FAssetRegistryImpl::GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const
{
	FARFilter Filter;
	Filter.ClassPaths.Add(ClassPathName);
	Filter.bRecursiveClasses = bSearchSubClasses;
	return GetAssets(Filter, OutAssetData);
}

bool FAssetRegistryImpl::GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets) const
{
	EnumerateAssets(Filter, [&OutAssetData](const FAssetData& Asset)
	{
		OutAssetData.Add(Asset);
	});
	return true;
}

bool FAssetRegistryImpl::GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData);
}

FAssetData FAssetRegistryImpl::GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets, bool bSkipARFilteredAssets) const
{
	if (!bIncludeOnlyOnDiskAssets)
	{
		if (UObject* Asset = ObjectPath.ResolveObject(); IsValid(Asset))
		{
			return FAssetData(Asset);
		}
	}
	const FAssetData* DiskAsset = DiskAssets.Find(ObjectPath.ToString());
	return DiskAsset ? *DiskAsset : FAssetData();
}

void FAssetRegistryImpl::EnumerateAssets(const FARFilter& Filter, TFunctionRef<void(const FAssetData&)> Visitor) const
{
	if (!Filter.bIncludeOnlyOnDiskAssets)
	{
		UE::AssetRegistry::Private::ForEachInMemoryAsset([&Filter, &Visitor](UObject* Object)
		{
			const FAssetData Asset(Object);
			if (UE::AssetRegistry::Private::DoesAssetMatchFilter(Asset, Filter))
			{
				Visitor(Asset);
			}
		});
	}
	for (const TPair<FString, FAssetData>& Entry : DiskAssets)
	{
		const FAssetData& Asset = Entry.Value;
		const bool bReplacedByMemory = !Filter.bIncludeOnlyOnDiskAssets && UE::AssetRegistry::Private::IsPackageInMemory(Asset.PackageName);
		if (!bReplacedByMemory && UE::AssetRegistry::Private::DoesAssetMatchFilter(Asset, Filter))
		{
			Visitor(Asset);
		}
	}
}

void FAssetRegistryImpl::ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan, bool bIgnoreDenyListScanFilters)
{
	for (const FString& Path : InPaths)
	{
		const TArray<FString> PackageNames = UE::AssetRegistry::Private::FindPackagesUnderPath(Path);
		ForgetPackagesMissingUnderPath(Path, PackageNames);
		for (const FString& PackageName : PackageNames)
		{
			ScanPackage(PackageName, bForceRescan);
		}
	}
}

void FAssetRegistryImpl::SearchAllAssets(bool bSynchronousSearch)
{
	ScanPathsSynchronous({ TEXT("/Game") });
	FilesLoadedEvent.Broadcast();
}

void FAssetRegistryImpl::ScanPackage(const FString& PackageName, bool bForceRescan)
{
	const FName PackageFName(*PackageName);
	if (ScannedPackages.Contains(PackageFName) && !bForceRescan)
	{
		return;
	}
	ScannedPackages.Add(PackageFName);

	const TArray<FAssetData> FoundAssets = UE::AssetRegistry::Private::ReadPackageAssets(PackageName);
	TArray<FString> VanishedPaths;
	for (const TPair<FString, FAssetData>& Entry : DiskAssets)
	{
		if (Entry.Value.PackageName == PackageFName && !FoundAssets.Contains(Entry.Value))
		{
			VanishedPaths.Add(Entry.Key);
		}
	}
	for (const FString& VanishedPath : VanishedPaths)
	{
		const FAssetData Vanished = DiskAssets.FindChecked(VanishedPath);
		DiskAssets.Remove(VanishedPath);
		AssetRemovedEvent.Broadcast(Vanished);
	}
	for (const FAssetData& Asset : FoundAssets)
	{
		const FString ObjectPath = Asset.GetObjectPathString();
		const bool bIsNew = !DiskAssets.Contains(ObjectPath);
		DiskAssets.Add(ObjectPath, Asset);
		if (bIsNew)
		{
			AssetAddedEvent.Broadcast(Asset);
		}
	}
}

void FAssetRegistryImpl::ForgetPackagesMissingUnderPath(const FString& Path, const TArray<FString>& FoundPackageNames)
{
	TArray<FName> MissingPackages;
	for (const TPair<FString, FAssetData>& Entry : DiskAssets)
	{
		const FString PackageName = Entry.Value.PackageName.ToString();
		if (UE::AssetRegistry::Private::IsPathUnder(PackageName, Path) && !FoundPackageNames.Contains(PackageName))
		{
			MissingPackages.AddUnique(Entry.Value.PackageName);
		}
	}
	for (const FName& PackageName : MissingPackages)
	{
		RemoveDiskAssetsOfPackage(PackageName);
	}
}

void FAssetRegistryImpl::RemoveDiskAssetsOfPackage(FName PackageName)
{
	TArray<FString> PathsToRemove;
	for (const TPair<FString, FAssetData>& Entry : DiskAssets)
	{
		if (Entry.Value.PackageName == PackageName)
		{
			PathsToRemove.Add(Entry.Key);
		}
	}
	for (const FString& Path : PathsToRemove)
	{
		const FAssetData Removed = DiskAssets.FindChecked(Path);
		DiskAssets.Remove(Path);
		AssetRemovedEvent.Broadcast(Removed);
	}
	ScannedPackages.Remove(PackageName);
}

void FAssetRegistryImpl::AssetCreated(UObject* NewAsset)
{
	if (!ensure(NewAsset) || !UE::AssetRegistry::Private::IsAsset(NewAsset))
	{
		return;
	}
	NewAsset->GetPackage()->SetPackageFlags(PKG_NewlyCreated);
	AssetAddedEvent.Broadcast(FAssetData(NewAsset));
	InMemoryAssetCreatedEvent.Broadcast(NewAsset);
}

void FAssetRegistryImpl::AssetDeleted(UObject* DeletedAsset)
{
	if (!ensure(DeletedAsset) || !UE::AssetRegistry::Private::IsAsset(DeletedAsset))
	{
		return;
	}
	const FAssetData DeletedData(DeletedAsset);
	DiskAssets.Remove(DeletedData.GetObjectPathString());
	AssetRemovedEvent.Broadcast(DeletedData);
	InMemoryAssetDeletedEvent.Broadcast(DeletedAsset);
}

void FAssetRegistryImpl::AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
{
	if (!ensure(RenamedAsset) || !UE::AssetRegistry::Private::IsAsset(RenamedAsset))
	{
		return;
	}
	DiskAssets.Remove(OldObjectPath);
	AssetRenamedEvent.Broadcast(FAssetData(RenamedAsset), OldObjectPath);
}

void FAssetRegistryImpl::PackageDeleted(UPackage* DeletedPackage)
{
	if (ensure(DeletedPackage))
	{
		RemoveDiskAssetsOfPackage(DeletedPackage->GetFName());
	}
}
