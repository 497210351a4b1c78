#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistryImpl.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)

namespace UE::AssetRegistry::Private
{
	// Stand-in choice: the registry exists from first use until the process ends; the engine creates it when the module starts.
	FAssetRegistryImpl& GetRegistrySingleton()
	{
		static FAssetRegistryImpl Registry;
		return Registry;
	}
}

IAssetRegistry* IAssetRegistry::Get()
{
	return &UE::AssetRegistry::Private::GetRegistrySingleton();
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	return UE::AssetRegistry::Private::GetRegistrySingleton();
}

void FAssetRegistryModule::StartupModule()
{
}

void FAssetRegistryModule::ShutdownModule()
{
}

IAssetRegistry& FAssetRegistryModule::Get() const
{
	return IAssetRegistry::GetChecked();
}

IAssetRegistry& FAssetRegistryModule::GetRegistry()
{
	return IAssetRegistry::GetChecked();
}

void FAssetRegistryModule::AssetCreated(UObject* NewAsset)
{
	IAssetRegistry::GetChecked().AssetCreated(NewAsset);
}

void FAssetRegistryModule::AssetDeleted(UObject* DeletedAsset)
{
	IAssetRegistry::GetChecked().AssetDeleted(DeletedAsset);
}

void FAssetRegistryModule::AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
{
	IAssetRegistry::GetChecked().AssetRenamed(RenamedAsset, OldObjectPath);
}

void FAssetRegistryModule::PackageDeleted(UPackage* DeletedPackage)
{
	IAssetRegistry::GetChecked().PackageDeleted(DeletedPackage);
}
