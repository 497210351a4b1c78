// The one way an asset named by a script is found, and the one way any asset is saved.
#pragma once

#include "CoreMinimal.h"

class FLuaSessionData;
class UClass;
class UObject;
class UPackage;

namespace VLMR
{
	// The one way an asset is saved: asks the session first, then saves the asset's package and reports the result.
	bool SaveAsset(UObject* Asset, FLuaSessionData& Session, const FString& Label);

	// Writes the package to its file under the project with the asset as its base object: standalone objects only,
	// errors to GError, long file names warned of, slow-task progress on, no target platform.
	bool SavePackageFile(UPackage* Package, UObject* Asset);

	// "/Game/" in front of a non-empty path that does not begin with "/".
	FString NormalizeAssetPath(const FString& Path);

	// "/Game/" in front of any path that does not begin with "/", the empty path included: the queue functions' rule.
	FString PrefixGameRoot(const FString& Path);

	// The normalised path with ".<last segment>" appended when the last segment names no object.
	FString ToObjectPath(const FString& Path);

	// Loads an asset named by a script: by the normalised path, then by its object path. Logs nothing.
	UObject* LoadTypedAsset(UClass* Class, const FString& Path);

	template<class T>
	T* LoadTypedAsset(const FString& Path)
	{
		return static_cast<T*>(LoadTypedAsset(T::StaticClass(), Path));
	}

	// Logs "[FAIL] <label> -> <what> not found: <path>".
	void ReportAssetNotFound(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path);

	// A script-named asset loaded with LoadTypedAsset; a miss logs "[FAIL] <label> -> <what> not found: <path>".
	template<class T>
	T* LoadTypedAssetOrReport(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path)
	{
		T* Asset = LoadTypedAsset<T>(Path);
		if (!Asset)
		{
			ReportAssetNotFound(Session, Label, What, Path);
		}
		return Asset;
	}
}
