#include "AssetFilterMatching.h"
#include "LongPackagePaths.h"
#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

namespace UE::AssetRegistry::Private
{
	bool MatchesPackageName(const FAssetData& Asset, const FARFilter& Filter)
	{
		return Filter.PackageNames.Num() == 0 || Filter.PackageNames.Contains(Asset.PackageName);
	}

	bool MatchesPackagePath(const FAssetData& Asset, const FARFilter& Filter)
	{
		if (Filter.PackagePaths.Num() == 0)
		{
			return true;
		}
		const FString AssetPath = Asset.PackagePath.ToString();
		for (const FName& FilterPath : Filter.PackagePaths)
		{
			const FString FilterPathString = FilterPath.ToString();
			if (AssetPath == WithoutTrailingSlash(FilterPathString) || (Filter.bRecursivePaths && IsPathUnder(AssetPath, FilterPathString)))
			{
				return true;
			}
		}
		return false;
	}

	bool MatchesObjectPath(const FAssetData& Asset, const FARFilter& Filter)
	{
		return Filter.SoftObjectPaths.Num() == 0 || Filter.SoftObjectPaths.Contains(Asset.GetSoftObjectPath());
	}

	bool IsSameOrSubclass(const UClass* AssetClass, const FTopLevelAssetPath& BaseClassPath)
	{
		const UClass* BaseClass = FindObject<UClass>(BaseClassPath);
		return AssetClass && BaseClass && AssetClass->IsChildOf(BaseClass);
	}

	bool MatchesClass(const FAssetData& Asset, const FARFilter& Filter)
	{
		if (Filter.ClassPaths.Num() == 0)
		{
			return true;
		}
		const UClass* AssetClass = Filter.bRecursiveClasses ? FindObject<UClass>(Asset.AssetClassPath) : nullptr;
		if (Filter.bRecursiveClasses)
		{
			for (const FTopLevelAssetPath& ExcludedClassPath : Filter.RecursiveClassPathsExclusionSet)
			{
				if (Asset.AssetClassPath == ExcludedClassPath || IsSameOrSubclass(AssetClass, ExcludedClassPath))
				{
					return false;
				}
			}
		}
		for (const FTopLevelAssetPath& ClassPath : Filter.ClassPaths)
		{
			if (Asset.AssetClassPath == ClassPath || (Filter.bRecursiveClasses && IsSameOrSubclass(AssetClass, ClassPath)))
			{
				return true;
			}
		}
		return false;
	}

	bool MatchesPackageFlags(const FAssetData& Asset, const FARFilter& Filter)
	{
		return (Asset.PackageFlags & Filter.WithoutPackageFlags) == 0 && (Asset.PackageFlags & Filter.WithPackageFlags) == Filter.WithPackageFlags;
	}

	bool DoesAssetMatchFilter(const FAssetData& Asset, const FARFilter& Filter)
	{
		return MatchesPackageName(Asset, Filter) && MatchesPackagePath(Asset, Filter) && MatchesObjectPath(Asset, Filter)
			&& MatchesClass(Asset, Filter) && MatchesPackageFlags(Asset, Filter);
	}
}
