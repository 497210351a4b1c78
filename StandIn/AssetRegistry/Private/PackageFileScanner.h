// Finds saved packages under the project's content folders and reads which assets they hold, without loading them.
#pragma once

#include "CoreMinimal.h"

struct FAssetData;

namespace UE::AssetRegistry::Private
{
	// Long package names of the saved packages at InPath: a package path ("/Game/Dir", every package below it) or a
	// package name ("/Game/Dir/Asset"). Sorted by name.
	TArray<FString> FindPackagesUnderPath(const FString& InPath);

	// The top-level public objects of the saved package PackageName; empty when its file is missing or unreadable.
	TArray<FAssetData> ReadPackageAssets(const FString& PackageName);
}
