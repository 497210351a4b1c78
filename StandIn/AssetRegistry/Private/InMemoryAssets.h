// The assets that exist in memory, found by walking the loaded packages.
#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class UObject;

namespace UE::AssetRegistry::Private
{
	// UObject::IsAsset. Stand-in choice: objects of native "/Script/" packages are never assets.
	bool IsAsset(const UObject* Object);

	// Calls Visitor for every asset in memory.
	void ForEachInMemoryAsset(TFunctionRef<void(UObject*)> Visitor);

	// Whether the package of that name is in memory.
	bool IsPackageInMemory(FName PackageName);
}
