// FAssetRegistryModule: the AssetRegistry module, and the engine's static shortcuts for telling the registry about assets.
#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"

class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	virtual IAssetRegistry& Get() const;
	static IAssetRegistry& GetRegistry();

	static void AssetCreated(UObject* NewAsset);
	static void AssetDeleted(UObject* DeletedAsset);
	static void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath);
	static void PackageDeleted(UPackage* DeletedPackage);
};
