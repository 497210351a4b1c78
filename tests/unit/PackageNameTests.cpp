#include "PersistenceTestSupport.h"

#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"

#include <gtest/gtest.h>

TEST(PackageName, LongPackageNameRulesGiveTheEngineReasons)
{
	FText Reason;
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Game/Dir/Asset"), false, &Reason));
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Engine/Transient")));

	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("Game/Dir"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("Input 'Game/Dir' does not start with a '/', which is required for LongPackageNames."));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Game/Dir/"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("Input '/Game/Dir/' ends with a '/', which is invalid for LongPackageNames."));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Game//Dir"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("Input '/Game//Dir' contains '//', which is invalid for LongPackageNames."));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/A"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("Input '/A' contains fewer than the minimum number of characters 4 for LongPackageNames."));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Game/My Asset"), false, &Reason));
	EXPECT_TRUE(Reason.ToString().StartsWith(TEXT("Input '/Game/My Asset' contains one of the invalid characters for LongPackageNames: '")));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Game/Asset.Asset")));

	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Unmounted/Asset"), false, &Reason));
	EXPECT_TRUE(Reason.ToString().StartsWith(TEXT("Path does not start with a valid root. Path must begin with one of: ")));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Temp/Untitled_1")));
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Temp/Untitled_1"), true));
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Script/CoreUObject"), true));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Script/CoreUObject"), false));
}

TEST(PackageName, ObjectPathsSplitIntoPackageAndObjectParts)
{
	EXPECT_EQ(FPackageName::GetLongPackageAssetName(TEXT("/Game/Dir/Asset")), TEXT("Asset"));
	EXPECT_EQ(FPackageName::GetShortName(TEXT("/Game/Dir/Asset")), TEXT("Asset"));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game/Dir/Asset")), TEXT("/Game/Dir"));
	EXPECT_TRUE(FPackageName::IsShortPackageName(FString(TEXT("Asset"))));
	EXPECT_FALSE(FPackageName::IsShortPackageName(FString(TEXT("/Game/Asset"))));

	const FString Deep = TEXT("/Game/MyAsset.MyAsset:SubObject.AnotherObject");
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(Deep), TEXT("/Game/MyAsset"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(Deep), TEXT("AnotherObject"));
	EXPECT_EQ(FPackageName::ObjectPathToPathWithinPackage(Deep), TEXT("MyAsset:SubObject.AnotherObject"));
	EXPECT_EQ(FPackageName::ObjectPathToOuterPath(Deep), TEXT("/Game/MyAsset.MyAsset:SubObject"));
	EXPECT_EQ(FPackageName::ObjectPathToSubObjectPath(Deep), TEXT("SubObject.AnotherObject"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(TEXT("/Game/MyAsset")), TEXT("/Game/MyAsset"));
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(TEXT("/Game/MyAsset")), TEXT("/Game/MyAsset"));
	EXPECT_EQ(FPackageName::ExportTextPathToObjectPath(TEXT("/Script/Engine.World'/Game/Map.Map'")), TEXT("/Game/Map.Map"));

	EXPECT_TRUE(FPackageName::IsValidObjectPath(TEXT("/Game/A.B:C")));
	EXPECT_FALSE(FPackageName::IsValidObjectPath(TEXT("/Game/A.")));
	EXPECT_FALSE(FPackageName::IsValidObjectPath(TEXT("/Game/A.B/C")));
	EXPECT_FALSE(FPackageName::IsValidObjectPath(TEXT("/Game/A.B:")));
}

TEST(PackageName, MountPointsMapPackagesToProjectFolders)
{
	FScopedTestProject Project;
	const FString ContentDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectContentDir());
	const FString SavedDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir());

	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Game/Dir/Asset"), FPackageName::GetAssetPackageExtension()), ContentDir / TEXT("Dir/Asset.uasset"));
	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Game/Maps/Main"), FPackageName::GetMapPackageExtension()), ContentDir / TEXT("Maps/Main.umap"));
	EXPECT_EQ(FPackageName::LongPackageNameToFilename(TEXT("/Temp/Untitled_1")), SavedDir / TEXT("Untitled_1"));
	FString Filename;
	EXPECT_FALSE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/Unmounted/Asset"), Filename));

	FString PackageName;
	EXPECT_TRUE(FPackageName::TryConvertFilenameToLongPackageName(ContentDir / TEXT("Dir/Asset.uasset"), PackageName));
	EXPECT_EQ(PackageName, TEXT("/Game/Dir/Asset"));
	EXPECT_EQ(FPackageName::FilenameToLongPackageName(ContentDir / TEXT("Maps/Main.umap")), TEXT("/Game/Maps/Main"));
	FString Reason;
	EXPECT_FALSE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/definitely/not/mounted/File.uasset"), PackageName, &Reason));
	EXPECT_EQ(Reason, TEXT("Input '/definitely/not/mounted/File.uasset' is not a child of an existing mount point."));

	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/Game/Dir/Asset")));
	IFileManager::Get().MakeDirectory(*(ContentDir / TEXT("Dir")), true);
	FFileHelper::SaveStringToFile(TEXT("{}"), *(ContentDir / TEXT("Dir/Asset.uasset")));
	FString Found;
	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/Game/Dir/Asset"), &Found));
	EXPECT_EQ(Found, ContentDir / TEXT("Dir/Asset.uasset"));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/Script/CoreUObject")));
}

TEST(PackageNameDeathTest, LongPackageNameToFilenameOfAnUnmountedNameIsFatal)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_DEATH(FPackageName::LongPackageNameToFilename(TEXT("/Unmounted/Asset")), "LongPackageNameToFilename failed to convert '/Unmounted/Asset'");
}
