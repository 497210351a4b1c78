// UPackage: the outermost object of a saved asset file (or of a native module's types); its saving.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

/** Package flags (the engine keeps them in ObjectMacros.h). */
enum EPackageFlags : uint32
{
	PKG_None = 0x00000000,
	PKG_NewlyCreated = 0x00000001,
	PKG_ClientOptional = 0x00000002,
	PKG_ServerSideOnly = 0x00000004,
	PKG_CompiledIn = 0x00000010,
	PKG_ForDiffing = 0x00000020,
	PKG_EditorOnly = 0x00000040,
	PKG_Developer = 0x00000080,
	PKG_UncookedOnly = 0x00000100,
	PKG_Cooked = 0x00000200,
	PKG_ContainsNoAsset = 0x00000400,
	PKG_NotExternallyReferenceable = 0x00000800,
	PKG_UnversionedProperties = 0x00002000,
	PKG_ContainsMapData = 0x00004000,
	PKG_IsSaving = 0x00008000,
	PKG_Compiling = 0x00010000,
	PKG_ContainsMap = 0x00020000,
	PKG_RequiresLocalizationGather = 0x00040000,
	PKG_PlayInEditor = 0x00100000,
	PKG_ContainsScript = 0x00200000,
	PKG_DisallowExport = 0x00400000,
	PKG_CookGenerated = 0x08000000,
	PKG_DynamicImports = 0x10000000,
	PKG_RuntimeGenerated = 0x20000000,
	PKG_ReloadingForCooker = 0x40000000,
	PKG_FilterEditorOnly = 0x80000000,
	PKG_TransientFlags = PKG_NewlyCreated | PKG_IsSaving | PKG_ReloadingForCooker,
};
FORCEINLINE constexpr EPackageFlags operator|(EPackageFlags A, EPackageFlags B) { return EPackageFlags(uint32(A) | uint32(B)); }
FORCEINLINE constexpr EPackageFlags operator&(EPackageFlags A, EPackageFlags B) { return EPackageFlags(uint32(A) & uint32(B)); }

#define PKG_InMemoryOnly (EPackageFlags)(PKG_CompiledIn | PKG_NewlyCreated)

class COREUOBJECT_API UPackage : public UObject
{
	STANDIN_CLASS_BODY(UPackage, UObject, COREUOBJECT_API)

public:
	UPackage();

	/** Marks the package as needing (or not needing) a save; broadcasts PackageDirtyStateChangedEvent on change. The transient package is never dirty. */
	void SetDirtyFlag(bool bInIsDirty);
	bool IsDirty() const { return bDirty; }

	void MarkAsFullyLoaded() { bHasBeenFullyLoaded = true; }
	void MarkAsUnloaded() { bHasBeenFullyLoaded = false; }
	bool IsFullyLoaded() const;

	uint32 GetPackageFlags() const { return PackageFlagsPrivate; }
	void SetPackageFlagsTo(uint32 NewFlags) { PackageFlagsPrivate = NewFlags; }
	void SetPackageFlags(uint32 NewFlags) { PackageFlagsPrivate |= NewFlags; }
	void ClearPackageFlags(uint32 NewFlags) { PackageFlagsPrivate &= ~NewFlags; }
	bool HasAnyPackageFlags(uint32 FlagsToCheck) const { return (PackageFlagsPrivate & FlagsToCheck) != 0; }
	bool HasAllPackageFlags(uint32 FlagsToCheck) const { return (PackageFlagsPrivate & FlagsToCheck) == FlagsToCheck; }

	/** The asset of the package: the first public top-level object with RequiredTopLevelFlags (its name matches the package's when possible). */
	UObject* FindAssetInPackage(EObjectFlags RequiredTopLevelFlags = RF_NoFlags) const;

	/** Stand-in: the file the package was last loaded from or saved to (the engine keeps an FPackagePath). */
	const FString& GetLoadedFilename() const { return LoadedFilename; }
	void SetLoadedFilename(const FString& InFilename) { LoadedFilename = InFilename; }

	/**
	 * Writes the package's objects to Filename (Stand-in choice: as JSON, see PackageFileFormat.cpp): the asset, the
	 * objects with one of SaveArgs.TopLevelFlags, and the objects of the package they reach; every object of the package
	 * when neither is given. Transient objects are never saved. The asset, when given, must be inside the package.
	 * Atomic: the previous file is left intact unless the whole save succeeds; failures return Error and are logged
	 * through SaveArgs.Error. Success clears the dirty flag unless SAVE_KeepDirty.
	 */
	static FSavePackageResultStruct Save(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs);
	static bool SavePackage(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs);

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnPackageDirtyStateChanged, UPackage*);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageMarkedDirty, UPackage*, bool);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageSaved, const FString&, UObject*);

	/** Broadcast whenever the dirty flag of a package changes. */
	static FOnPackageDirtyStateChanged PackageDirtyStateChangedEvent;
	/** Broadcast when a package is marked dirty (with whether it already was). */
	static FOnPackageMarkedDirty PackageMarkedDirtyEvent;
	/** Broadcast after a package was saved: the file name and the package. */
	static FOnPackageSaved PackageSavedEvent;

private:
	uint32 PackageFlagsPrivate = PKG_None;
	bool bDirty = false;
	bool bHasBeenFullyLoaded = false;
	FString LoadedFilename;
};
