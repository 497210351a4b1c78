// FPackageName: conversions between long package names ("/Game/Dir/Asset"), object paths and files on disk.
#pragma once

#include "CoreMinimal.h"

class UPackage;

class COREUOBJECT_API FPackageName
{
public:
	enum class EErrorCode : uint8
	{
		PackageNameUnknown,
		PackageNameEmptyPath,
		PackageNamePathNotMounted,
		PackageNamePathIsMemoryOnly,
		PackageNameSpacesNotAllowed,
		PackageNameContainsInvalidCharacters,
		LongPackageNames_PathTooShort,
		LongPackageNames_PathWithNoStartingSlash,
		LongPackageNames_PathWithTrailingSlash,
		LongPackageNames_PathWithDoubleSlash,
	};

	/** The last path component: "/Game/Dir/Asset" -> "Asset". */
	static FString GetLongPackageAssetName(const FString& InLongPackageName);
	static FString GetShortName(const FString& LongName);
	static FString GetShortName(const FName& LongName);
	static FString GetShortName(const TCHAR* LongName);
	static FString GetShortName(const UPackage* Package);
	static FName GetShortFName(const FString& LongName);
	static FName GetShortFName(const FName& LongName);
	static FName GetShortFName(const TCHAR* LongName);
	/** The folder part without the trailing slash: "/Game/Dir/Asset" -> "/Game/Dir". */
	static FString GetLongPackagePath(const FString& InLongPackageName);
	static bool SplitLongPackageName(const FString& InLongPackageName, FString& OutPackageRoot, FString& OutPackagePath, FString& OutPackageName, const bool bStripRootLeadingSlash = false);

	static bool TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
	/** As TryConvertLongPackageNameToFilename, but a name outside every mount point is a fatal error, as in the engine. */
	static FString LongPackageNameToFilename(const FString& InLongPackageName, const FString& InExtension = TEXT(""));
	static bool TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName, FString* OutFailureReason = nullptr);
	/** As TryConvertFilenameToLongPackageName, but a file outside every mount point is a fatal error, as in the engine. */
	static FString FilenameToLongPackageName(const FString& InFilename);

	static bool IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	static bool IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots, EErrorCode* OutReason);
	static bool IsValidTextForLongPackageName(FStringView InLongPackageName, FText* OutReason = nullptr);
	static bool IsValidTextForLongPackageName(FStringView InLongPackageName, EErrorCode* OutReason);
	static bool DoesPackageNameContainInvalidCharacters(FStringView InLongPackageName, FText* OutReason = nullptr);
	static bool IsValidObjectPath(const FString& InObjectPath, FText* OutReason = nullptr);
	static bool IsValidPath(const FString& InPath);
	static bool IsShortPackageName(const FString& PossiblyLongName);
	static bool IsShortPackageName(FStringView PossiblyLongName);
	static bool IsShortPackageName(const FName PossiblyLongName);
	static bool IsScriptPackage(FStringView InPackageName);
	static bool IsMemoryPackage(FStringView InPackageName);
	static bool IsTempPackage(FStringView InPackageName);
	static FText FormatErrorAsText(FStringView InPath, EErrorCode ErrorCode);
	static FString FormatErrorAsString(FStringView InPath, EErrorCode ErrorCode);

	/** "/Game/A.B:C" -> "/Game/A". */
	static FString ObjectPathToPackageName(const FString& InObjectPath);
	/** "/Game/A.B:C.D" -> "D"; a path without '.' or ':' is returned whole. */
	static FString ObjectPathToObjectName(const FString& InObjectPath);
	/** "/Game/A.B:C" -> "B:C". */
	static FString ObjectPathToPathWithinPackage(const FString& InObjectPath);
	/** "/Game/A.B:C" -> "/Game/A.B". */
	static FString ObjectPathToOuterPath(const FString& InObjectPath);
	/** "/Game/A.B:C.D" -> "C.D"; "/Game/A.B" -> "B". */
	static FString ObjectPathToSubObjectPath(const FString& InObjectPath);
	/** "Class'/Game/A.B'" -> "/Game/A.B"; text without quotes is returned unchanged. */
	static FString ExportTextPathToObjectPath(const FString& InExportTextPath);

	/** Whether a package file exists for the long package name (".uasset" or ".umap"); the file found goes to OutFilename. */
	static bool DoesPackageExist(const FString& LongPackageName, FString* OutFilename = nullptr, bool InAllowTextFormats = true);
	static bool FindPackageFileWithoutExtension(const FString& InPackageFilename, FString& OutFilename);

	static const FString& GetAssetPackageExtension();
	static const FString& GetMapPackageExtension();
	static bool IsPackageExtension(const TCHAR* Ext);

	static void RegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static void UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static bool MountPointExists(const FString& RootPath);
	/** The mount point of a package: "/Game/Dir/Asset" -> "/Game/" (or "Game" without slashes). */
	static FName GetPackageMountPoint(const FString& InPackagePath, bool InWithoutSlashes = true);
	static FString GetContentPathForPackageRoot(FStringView InMountPoint);
	static FString ConvertToLongScriptPackageName(const TCHAR* InShortName);
};
