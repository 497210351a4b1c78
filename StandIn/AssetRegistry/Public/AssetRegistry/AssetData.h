// FAssetData: what the asset registry knows of one asset, whether or not it is loaded.
// Stand-in choice: in the AssetRegistry module; the engine moved it to CoreUObject in 5.0 (same include path).
#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

class UClass;
class UObject;
class UPackage;

struct ASSETREGISTRY_API FAssetData
{
	enum class ECreationFlags : uint8
	{
		None = 0,
		AllowBlueprintClass = 1 << 0,
		SkipAssetRegistryTagsGathering = 1 << 1,
	};

	// "/Game/Dir/Asset"
	FName PackageName;
	// "/Game/Dir"
	FName PackagePath;
	// "Asset"
	FName AssetName;
	// "/Script/Module.ClassName"
	FTopLevelAssetPath AssetClassPath;
	uint32 PackageFlags = 0;

	FAssetData() = default;
	FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPath);
	// InObjectPath: "/Game/Dir/Asset.Asset".
	FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FTopLevelAssetPath InAssetClassPath);
	FAssetData(const UObject* InAsset, ECreationFlags InCreationFlags = ECreationFlags::None);

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }
	// Whether the asset is the one named like its package ("/Game/Dir/Asset.Asset").
	bool IsUAsset() const;
	bool IsAssetLoaded() const;

	// "/Game/Dir/Asset.Asset"; empty for invalid data.
	FString GetObjectPathString() const;
	FSoftObjectPath GetSoftObjectPath() const;
	FSoftObjectPath ToSoftObjectPath() const { return GetSoftObjectPath(); }
	// "/Script/Module.ClassName /Game/Dir/Asset.Asset"
	FString GetFullName() const;

	// The asset, loading its package when it is not in memory; null when it cannot be found.
	UObject* GetAsset(const TSet<FName>& LoadTags = {}) const;
	// The asset's package when it is in memory.
	UPackage* GetPackage() const;
	// The asset's class when it is in memory.
	UClass* GetClass() const;

	bool operator==(const FAssetData& Other) const;
	bool operator!=(const FAssetData& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FAssetData& AssetData)
	{
		return HashCombine(GetTypeHash(AssetData.PackageName), GetTypeHash(AssetData.AssetName));
	}
};
