#include "AssetRegistry/AssetData.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPath)
	: PackageName(InPackageName)
	, PackagePath(InPackagePath)
	, AssetName(InAssetName)
	, AssetClassPath(InAssetClassPath)
{
}

FAssetData::FAssetData(const FString& InLongPackageName, const FString& InObjectPath, FTopLevelAssetPath InAssetClassPath)
	: PackageName(*InLongPackageName)
	, PackagePath(*FPackageName::GetLongPackagePath(InLongPackageName))
	, AssetName(*FPackageName::ObjectPathToObjectName(InObjectPath))
	, AssetClassPath(InAssetClassPath)
{
}

FAssetData::FAssetData(const UObject* InAsset, ECreationFlags InCreationFlags)
{
	if (!InAsset)
	{
		return;
	}
	const UPackage* Package = InAsset->GetPackage();
	PackageName = Package->GetFName();
	PackagePath = FName(*FPackageName::GetLongPackagePath(Package->GetName()));
	AssetName = InAsset->GetFName();
	AssetClassPath = FTopLevelAssetPath(InAsset->GetClass());
	PackageFlags = Package->GetPackageFlags();
}

bool FAssetData::IsUAsset() const
{
	return IsValid() && FPackageName::GetShortFName(PackageName) == AssetName;
}

bool FAssetData::IsAssetLoaded() const
{
	return IsValid() && StaticFindObject(UObject::StaticClass(), nullptr, *GetObjectPathString()) != nullptr;
}

FString FAssetData::GetObjectPathString() const
{
	return GetSoftObjectPath().ToString();
}

FSoftObjectPath FAssetData::GetSoftObjectPath() const
{
	return IsValid() ? FSoftObjectPath(FTopLevelAssetPath(PackageName, AssetName)) : FSoftObjectPath();
}

FString FAssetData::GetFullName() const
{
	return AssetClassPath.ToString() + TEXT(" ") + GetObjectPathString();
}

UObject* FAssetData::GetAsset(const TSet<FName>& LoadTags) const
{
	if (!IsValid())
	{
		return nullptr;
	}
	const FString ObjectPath = GetObjectPathString();
	if (UObject* Asset = StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath))
	{
		return Asset;
	}
	return StaticLoadObject(UObject::StaticClass(), nullptr, *ObjectPath);
}

UPackage* FAssetData::GetPackage() const
{
	return PackageName.IsNone() ? nullptr : FindPackage(nullptr, *PackageName.ToString());
}

UClass* FAssetData::GetClass() const
{
	return AssetClassPath.IsValid() ? FindObject<UClass>(AssetClassPath) : nullptr;
}

bool FAssetData::operator==(const FAssetData& Other) const
{
	return PackageName == Other.PackageName && AssetName == Other.AssetName;
}
