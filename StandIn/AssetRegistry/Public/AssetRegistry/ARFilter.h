// FARFilter: which assets an asset registry query returns. Categories combine with AND, entries within one with OR.
#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

struct FARFilter
{
	TArray<FName> PackageNames;
	TArray<FName> PackagePaths;
	TArray<FSoftObjectPath> SoftObjectPaths;
	TArray<FTopLevelAssetPath> ClassPaths;
	// With bRecursiveClasses: classes (and their subclasses) left out of the result.
	TSet<FTopLevelAssetPath> RecursiveClassPathsExclusionSet;
	// Also match assets in the sub-paths of PackagePaths.
	bool bRecursivePaths = false;
	// Also match assets of the subclasses of ClassPaths.
	bool bRecursiveClasses = false;
	// Ignore what is in memory, return only what was found on disk.
	bool bIncludeOnlyOnDiskAssets = false;
	uint32 WithoutPackageFlags = 0;
	uint32 WithPackageFlags = 0;

	bool IsEmpty() const
	{
		return PackageNames.Num() == 0 && PackagePaths.Num() == 0 && SoftObjectPaths.Num() == 0 && ClassPaths.Num() == 0
			&& WithoutPackageFlags == 0 && WithPackageFlags == 0;
	}

	void Clear()
	{
		*this = FARFilter();
	}
};
