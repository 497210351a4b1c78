// FTopLevelAssetPath: the path of a package or of an asset directly inside a package ("/Game/Dir/Asset.Asset").
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UObject;
class FArchive;
class FOutputDevice;

struct COREUOBJECT_API FTopLevelAssetPath
{
	STANDIN_STRUCT_BODY(FTopLevelAssetPath, COREUOBJECT_API)

public:
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(TYPE_OF_NULLPTR) {}
	FTopLevelAssetPath(FName InPackageName, FName InAssetName) { TrySetPath(InPackageName, InAssetName); }
	FTopLevelAssetPath(const UObject* InObject) { TrySetPath(InObject); }
	FTopLevelAssetPath(FStringView Path) { TrySetPath(Path); }
	FTopLevelAssetPath(const FString& Path) { TrySetPath(Path); }
	FTopLevelAssetPath(const TCHAR* Path) { TrySetPath(Path); }
	FTopLevelAssetPath(const ANSICHAR* Path) { TrySetPath(Path); }

	/** Sets the path from its parts; false (and a null path) when the package name is None. */
	bool TrySetPath(FName InPackageName, FName InAssetName);
	/** Sets the path of a package or of an object directly inside a package; false for anything deeper. */
	bool TrySetPath(const UObject* InObject);
	/** Parses "/Package/Path" or "/Package/Path.Asset" (also "Class'/Package/Path.Asset'"); false for empty, "None", sub-object or malformed paths. */
	bool TrySetPath(FStringView Path);
	bool TrySetPath(const FString& Path) { return TrySetPath(FStringView(Path)); }
	bool TrySetPath(const TCHAR* Path) { return TrySetPath(FStringView(Path)); }
	bool TrySetPath(const ANSICHAR* Path);

	void AppendString(FString& OutString) const;
	FString ToString() const;
	void ToString(FString& OutString) const;
	FName ToFName() const;

	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }

	bool IsValid() const { return !PackageName.IsNone(); }
	bool IsNull() const { return PackageName.IsNone(); }
	void Reset() { PackageName = FName(); AssetName = FName(); }

	bool operator==(const FTopLevelAssetPath& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }
	bool operator!=(const FTopLevelAssetPath& Other) const { return !(*this == Other); }
	/** Lexical order ignoring case, package first. */
	int32 Compare(const FTopLevelAssetPath& Other) const;
	bool CompareFast(const FTopLevelAssetPath& Other) const;

	bool ExportTextItem(FString& ValueStr, FTopLevelAssetPath const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive = nullptr);

	friend uint32 GetTypeHash(const FTopLevelAssetPath& Path)
	{
		return HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName));
	}

private:
	FName PackageName;
	FName AssetName;
};

FORCEINLINE FString LexToString(const FTopLevelAssetPath& Path) { return Path.ToString(); }
