// FSoftObjectPath / FSoftClassPath: a reference to an object by its path, resolvable and loadable on demand.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/TopLevelAssetPath.h"

class UObject;
class UClass;
class FArchive;
class FOutputDevice;
struct FUObjectSerializeContext;
template<typename T> class TObjectPtr;

struct COREUOBJECT_API FSoftObjectPath
{
	STANDIN_STRUCT_BODY(FSoftObjectPath, COREUOBJECT_API)

public:
	FSoftObjectPath() = default;
	FSoftObjectPath(TYPE_OF_NULLPTR) {}
	FSoftObjectPath(const FSoftObjectPath& Other) = default;
	FSoftObjectPath(FSoftObjectPath&& Other) = default;
	FSoftObjectPath& operator=(const FSoftObjectPath& Other) = default;
	FSoftObjectPath& operator=(FSoftObjectPath&& Other) = default;

	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	FSoftObjectPath(FStringView Path) { SetPath(Path); }
	FSoftObjectPath(const TCHAR* Path) { SetPath(Path); }
	FSoftObjectPath(const ANSICHAR* Path) { SetPath(Path); }
	FSoftObjectPath(const FTopLevelAssetPath& InAssetPath, const FString& InSubPathString = FString()) { SetPath(InAssetPath, InSubPathString); }
	FSoftObjectPath(FName InPackageName, FName InAssetName, const FString& InSubPathString) { SetPath(FTopLevelAssetPath(InPackageName, InAssetName), InSubPathString); }
	FSoftObjectPath(const UObject* InObject) { SetPath(InObject); }
	template<typename T>
	FSoftObjectPath(const TObjectPtr<T>& InObject) : FSoftObjectPath(static_cast<const UObject*>(InObject.Get())) {}

	FSoftObjectPath& operator=(const FTopLevelAssetPath& Path) { SetPath(Path); return *this; }
	FSoftObjectPath& operator=(const FString& Path) { SetPath(Path); return *this; }
	FSoftObjectPath& operator=(FStringView Path) { SetPath(Path); return *this; }
	FSoftObjectPath& operator=(const TCHAR* Path) { SetPath(Path); return *this; }
	FSoftObjectPath& operator=(const UObject* Object) { SetPath(Object); return *this; }
	FSoftObjectPath& operator=(TYPE_OF_NULLPTR) { Reset(); return *this; }

	/** "/Game/Dir/Asset.Asset", with ":SubPath" when the path names a sub-object; empty when null. */
	FString ToString() const;
	void ToString(FString& OutString) const;
	void AppendString(FString& OutString) const;

	FTopLevelAssetPath GetAssetPath() const { return AssetPath; }
	/** "/Game/Dir/Asset.Asset" without the sub-path. */
	FString GetAssetPathString() const { return AssetPath.ToString(); }
	FString GetSubPathString() const { return SubPathString; }
	/** "/Game/Dir/Asset". */
	FString GetLongPackageName() const { return AssetPath.GetPackageName().ToString(); }
	FName GetLongPackageFName() const { return AssetPath.GetPackageName(); }
	/** "Asset"; empty when the path names a package. */
	FString GetAssetName() const;
	FName GetAssetFName() const { return AssetPath.GetAssetName(); }

	/** Parses "/Game/A.B", "/Game/A.B:Sub.Inner" or "Class'/Game/A.B'"; empty text and "None" reset the path. */
	void SetPath(FStringView Path);
	void SetPath(const FString& Path) { SetPath(FStringView(Path)); }
	void SetPath(const TCHAR* Path) { SetPath(FStringView(Path)); }
	void SetPath(const ANSICHAR* Path);
	void SetPath(const FTopLevelAssetPath& InAssetPath, const FString& InSubPathString = FString());
	void SetPath(FName InPackageName, FName InAssetName, const FString& InSubPathString) { SetPath(FTopLevelAssetPath(InPackageName, InAssetName), InSubPathString); }
	void SetPath(const UObject* InObject);

	/** Finds the object in memory, loading its package when it is not there. */
	UObject* TryLoad(FUObjectSerializeContext* InLoadContext = nullptr) const;
	/** Finds the object in memory without loading anything. */
	UObject* ResolveObject() const;

	void Reset() { AssetPath.Reset(); SubPathString.Reset(); }
	bool IsValid() const { return !AssetPath.IsNull(); }
	bool IsNull() const { return AssetPath.IsNull(); }
	/** A top-level asset: valid and without a sub-path. */
	bool IsAsset() const { return !AssetPath.GetAssetName().IsNone() && SubPathString.IsEmpty(); }
	bool IsSubobject() const { return !AssetPath.GetAssetName().IsNone() && !SubPathString.IsEmpty(); }

	bool operator==(const FSoftObjectPath& Other) const { return AssetPath == Other.AssetPath && SubPathString.Equals(Other.SubPathString, ESearchCase::IgnoreCase); }
	bool operator!=(const FSoftObjectPath& Other) const { return !(*this == Other); }
	bool LexicalLess(const FSoftObjectPath& Other) const;

	bool ExportTextItem(FString& ValueStr, FSoftObjectPath const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive = nullptr);

	static FSoftObjectPath GetOrCreateIDForObject(const UObject* Object) { return FSoftObjectPath(Object); }

	friend uint32 GetTypeHash(const FSoftObjectPath& Path)
	{
		return HashCombine(GetTypeHash(Path.AssetPath), GetTypeHash(Path.SubPathString));
	}

private:
	FTopLevelAssetPath AssetPath;
	FString SubPathString;
};

struct COREUOBJECT_API FSoftClassPath : public FSoftObjectPath
{
	STANDIN_STRUCT_BODY(FSoftClassPath, COREUOBJECT_API)

public:
	FSoftClassPath() = default;
	FSoftClassPath(TYPE_OF_NULLPTR) {}
	FSoftClassPath(const FSoftClassPath& Other) = default;
	FSoftClassPath& operator=(const FSoftClassPath& Other) = default;
	FSoftClassPath(const FString& PathString) : FSoftObjectPath(PathString) {}
	FSoftClassPath(const TCHAR* PathString) : FSoftObjectPath(PathString) {}
	FSoftClassPath(const FTopLevelAssetPath& InAssetPath) : FSoftObjectPath(InAssetPath) {}
	FSoftClassPath(const UClass* InClass);
	explicit FSoftClassPath(const FSoftObjectPath& Path) : FSoftObjectPath(Path) {}

	/** The class if it is in memory or can be loaded, and is a child of T. */
	template<typename T>
	UClass* TryLoadClass() const
	{
		return FilterClass(TryLoadAnyClass(), T::StaticClass());
	}

	/** The class if it is in memory, without loading. */
	UClass* ResolveClass() const;

	static FSoftClassPath GetOrCreateIDForClass(const UClass* InClass) { return FSoftClassPath(InClass); }

private:
	UClass* TryLoadAnyClass() const;
	static UClass* FilterClass(UClass* Class, UClass* RequiredBase);
};
