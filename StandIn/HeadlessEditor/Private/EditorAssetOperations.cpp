#include "EditorAssetOperations.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Engine/World.h"
#include "HAL/FileManager.h"
#include "Misc/PackageName.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace UE::Vlmr
{
	namespace
	{
		UObject* FindAssetInMemory(UPackage* Package, const FString& PackageName)
		{
			return Package ? StaticFindObjectFast(UObject::StaticClass(), Package, FName(*FPackageName::GetLongPackageAssetName(PackageName))) : nullptr;
		}

		// Nothing keeps the objects any more: their keep flag goes and they are marked as garbage.
		void MarkPackageObjectsAsGarbage(UPackage* Package)
		{
			TArray<UObject*> Objects;
			GetObjectsWithOuter(Package, Objects, true);
			for (UObject* Object : Objects)
			{
				Object->ClearFlags(RF_Standalone);
				Object->MarkAsGarbage();
			}
			Package->ClearFlags(RF_Standalone);
			Package->MarkAsGarbage();
		}
	}

	FString ToPackageName(const FString& AssetPath)
	{
		if (!AssetPath.Contains(TEXT(".")))
		{
			return AssetPath;
		}
		const FString PackageName = FPackageName::ObjectPathToPackageName(AssetPath);
		const bool bNamesTheAsset = FPackageName::ObjectPathToObjectName(AssetPath) == FPackageName::GetLongPackageAssetName(PackageName);
		// Any other object path is left as it is, so that the package name checks refuse it.
		return bNamesTheAsset ? PackageName : AssetPath;
	}

	void DiscardNewAsset(UObject* Asset)
	{
		if (UPackage* Package = Asset ? Asset->GetPackage() : nullptr)
		{
			MarkPackageObjectsAsGarbage(Package);
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	}

	bool CheckNewAssetPackageName(const FString& PackageName, FString& OutError)
	{
		FText Reason;
		if (!FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
		{
			OutError = FString::Printf(TEXT("'%s' is not a valid package name: %s"), *PackageName, *Reason.ToString());
			return false;
		}
		if (FindPackage(nullptr, *PackageName) || FPackageName::DoesPackageExist(PackageName))
		{
			OutError = FString::Printf(TEXT("an asset already exists at '%s'"), *PackageName);
			return false;
		}
		return true;
	}

	UObject* NewAsset(const FString& AssetPath, const UClass* AssetClass, FString& OutError)
	{
		const FString PackageName = ToPackageName(AssetPath);
		if (!CheckNewAssetPackageName(PackageName, OutError))
		{
			return nullptr;
		}
		UPackage* Package = CreatePackage(*PackageName);
		const FName AssetName(*FPackageName::GetLongPackageAssetName(PackageName));
		return NewObject<UObject>(Package, AssetClass, AssetName, RF_Public | RF_Standalone | RF_Transactional);
	}

	bool CompleteNewAsset(UObject* Asset, FString& OutError)
	{
		FAssetRegistryModule::AssetCreated(Asset);
		if (!SaveAssetPackage(Asset, OutError))
		{
			DiscardNewAsset(Asset);
			return false;
		}
		return true;
	}

	bool SaveAssetPackage(UObject* Asset, FString& OutError)
	{
		UPackage* Package = Asset ? Asset->GetPackage() : nullptr;
		if (!Package)
		{
			OutError = TEXT("no asset to save");
			return false;
		}
		const FString& Extension = Asset->IsA<UWorld>() ? FPackageName::GetMapPackageExtension() : FPackageName::GetAssetPackageExtension();
		FString Filename;
		if (!FPackageName::TryConvertLongPackageNameToFilename(Package->GetName(), Filename, Extension))
		{
			OutError = FString::Printf(TEXT("no file for package '%s'"), *Package->GetName());
			return false;
		}
		FSavePackageArgs SaveArgs;
		SaveArgs.TopLevelFlags = RF_Standalone;
		SaveArgs.Error = GError;
		if (!UPackage::Save(Package, Asset, *Filename, SaveArgs).IsSuccessful())
		{
			OutError = FString::Printf(TEXT("save failed for '%s'"), *Package->GetName());
			return false;
		}
		return true;
	}

	bool DeleteAsset(const FString& AssetPath)
	{
		const FString PackageName = ToPackageName(AssetPath);
		if (!FPackageName::IsValidLongPackageName(PackageName, true))
		{
			return false;
		}
		UPackage* Package = FindPackage(nullptr, *PackageName);
		UObject* Asset = FindAssetInMemory(Package, PackageName);
		if (Package)
		{
			MarkPackageObjectsAsGarbage(Package);
		}
		FString Filename;
		const bool bHadFile = FPackageName::DoesPackageExist(PackageName, &Filename) && IFileManager::Get().Delete(*Filename);
		if (Asset)
		{
			FAssetRegistryModule::AssetDeleted(Asset);
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		return bHadFile || Asset != nullptr;
	}

	bool UnloadPackage(const FString& AssetPath)
	{
		const FString PackageName = ToPackageName(AssetPath);
		UPackage* Package = FPackageName::IsValidLongPackageName(PackageName, true) ? FindPackage(nullptr, *PackageName) : nullptr;
		if (!Package)
		{
			return false;
		}
		MarkPackageObjectsAsGarbage(Package);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		return true;
	}
}
