#include "PackageFileScanner.h"
#include "LongPackagePaths.h"
#include "AssetRegistry/AssetData.h"
#include "HAL/FileManager.h"
#include "Misc/PackageName.h"
#include "UObject/StandInPackageFile.h"

namespace UE::AssetRegistry::Private
{
	void AddPackageFilesOfDirectory(const FString& Directory, TArray<FString>& OutPackageNames)
	{
		for (const FString& Extension : { FPackageName::GetAssetPackageExtension(), FPackageName::GetMapPackageExtension() })
		{
			TArray<FString> Files;
			IFileManager::Get().FindFilesRecursive(Files, *Directory, *(FString(TEXT("*")) + Extension), true, false);
			for (const FString& File : Files)
			{
				FString PackageName;
				if (FPackageName::TryConvertFilenameToLongPackageName(File, PackageName))
				{
					OutPackageNames.AddUnique(PackageName);
				}
			}
		}
	}

	TArray<FString> FindPackagesUnderPath(const FString& InPath)
	{
		const FString LongPath = WithoutTrailingSlash(InPath);
		TArray<FString> PackageNames;
		FString BaseFilename;
		if (!FPackageName::TryConvertLongPackageNameToFilename(LongPath, BaseFilename))
		{
			return PackageNames;
		}
		if (FPackageName::DoesPackageExist(LongPath))
		{
			PackageNames.Add(LongPath);
		}
		if (IFileManager::Get().DirectoryExists(*BaseFilename))
		{
			AddPackageFilesOfDirectory(BaseFilename, PackageNames);
		}
		PackageNames.Sort();
		return PackageNames;
	}

	TArray<FAssetData> ReadPackageAssets(const FString& PackageName)
	{
		TArray<FAssetData> Assets;
		FString Filename;
		UE::CoreUObject::StandIn::FSavedPackageData PackageData;
		if (!FPackageName::DoesPackageExist(PackageName, &Filename) || !UE::CoreUObject::StandIn::ReadSavedPackageFile(Filename, PackageData))
		{
			return Assets;
		}
		const FName PackageFName(*PackageName);
		const FName PackagePath(*FPackageName::GetLongPackagePath(PackageName));
		for (const UE::CoreUObject::StandIn::FSavedObjectEntry& Entry : PackageData.Objects)
		{
			const bool bIsTopLevel = Entry.OuterPath.IsEmpty();
			if (bIsTopLevel && (Entry.Flags & RF_Public) != 0)
			{
				FAssetData& Asset = Assets.Emplace_GetRef(PackageFName, PackagePath, Entry.Name, FTopLevelAssetPath(Entry.ClassPath));
				Asset.PackageFlags = PackageData.PackageFlags;
			}
		}
		return Assets;
	}
}
