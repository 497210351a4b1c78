#include "InMemoryAssets.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace UE::AssetRegistry::Private
{
	bool IsNativeScriptPackage(const UPackage* Package)
	{
		return Package->GetName().StartsWith(TEXT("/Script/"));
	}

	bool IsAsset(const UObject* Object)
	{
		return Object && Object->IsAsset() && !IsNativeScriptPackage(Object->GetPackage());
	}

	void ForEachInMemoryAsset(TFunctionRef<void(UObject*)> Visitor)
	{
		TArray<UObject*> Packages;
		GetObjectsOfClass(UPackage::StaticClass(), Packages, false);
		for (UObject* PackageObject : Packages)
		{
			const UPackage* Package = static_cast<const UPackage*>(PackageObject);
			if (Package == GetTransientPackage() || IsNativeScriptPackage(Package))
			{
				continue;
			}
			TArray<UObject*> TopLevelObjects;
			GetObjectsWithOuter(Package, TopLevelObjects, false);
			for (UObject* Object : TopLevelObjects)
			{
				if (IsAsset(Object))
				{
					Visitor(Object);
				}
			}
		}
	}

	bool IsPackageInMemory(FName PackageName)
	{
		return !PackageName.IsNone() && FindPackage(nullptr, *PackageName.ToString()) != nullptr;
	}
}
