#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/SavePackage.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

class UAssetRegistryTestAsset : public UObject
{
	STANDIN_CLASS_BODY(UAssetRegistryTestAsset, UObject, )

public:
	int32 Number = 0;
};

STANDIN_IMPLEMENT_CLASS(UAssetRegistryTestAsset, CLASS_None, "VlmrUnitTests")
{
	STANDIN_PROPERTY(Number, CPF_Edit);
}

class UAssetRegistryTestDerivedAsset : public UAssetRegistryTestAsset
{
	STANDIN_CLASS_BODY(UAssetRegistryTestDerivedAsset, UAssetRegistryTestAsset, )
};

STANDIN_IMPLEMENT_CLASS(UAssetRegistryTestDerivedAsset, CLASS_None, "VlmrUnitTests")
{
}

class FAssetRegistryTest : public ::testing::Test
{
protected:
	void TearDown() override
	{
		for (UObject* Asset : CreatedAssets)
		{
			Asset->ClearFlags(RF_Standalone);
			Asset->MarkAsGarbage();
		}
		CreatedAssets.Empty();
		CollectGarbage(RF_NoFlags);
	}

	template <typename TAsset = UAssetRegistryTestAsset>
	TAsset* CreateAsset(const TCHAR* PackageName, EObjectFlags Flags = RF_Public | RF_Standalone | RF_Transactional)
	{
		UPackage* Package = CreatePackage(PackageName);
		TAsset* Asset = NewObject<TAsset>(Package, FName(*FPackageName::GetLongPackageAssetName(PackageName)), Flags);
		CreatedAssets.Add(Asset);
		return Asset;
	}

	static FTopLevelAssetPath BaseClassPath()
	{
		return FTopLevelAssetPath(UAssetRegistryTestAsset::StaticClass());
	}

	static TArray<FString> ObjectPaths(const TArray<FAssetData>& Assets)
	{
		TArray<FString> Paths;
		for (const FAssetData& Asset : Assets)
		{
			Paths.Add(Asset.GetObjectPathString());
		}
		Paths.Sort();
		return Paths;
	}

	IAssetRegistry& Registry = IAssetRegistry::GetChecked();

private:
	TArray<UObject*> CreatedAssets;
};

TEST_F(FAssetRegistryTest, AssetCreatedIsBroadcastToOnAssetAddedWithTheAssetIdentity)
{
	UAssetRegistryTestAsset* Asset = CreateAsset(TEXT("/Game/AssetRegistryTests/Created"));
	TArray<FAssetData> Added;
	TArray<UObject*> CreatedInMemory;
	const FDelegateHandle AddedHandle = Registry.OnAssetAdded().AddLambda([&Added](const FAssetData& AssetData) { Added.Add(AssetData); });
	const FDelegateHandle CreatedHandle = Registry.OnInMemoryAssetCreated().AddLambda([&CreatedInMemory](UObject* Object) { CreatedInMemory.Add(Object); });

	FAssetRegistryModule::AssetCreated(Asset);
	FAssetRegistryModule::AssetCreated(CreateAsset(TEXT("/Game/AssetRegistryTests/NotPublic"), RF_Transactional));

	Registry.OnAssetAdded().Remove(AddedHandle);
	Registry.OnInMemoryAssetCreated().Remove(CreatedHandle);

	ASSERT_EQ(Added.Num(), 1);
	const FAssetData& Data = Added[0];
	EXPECT_TRUE(Data.IsValid());
	EXPECT_EQ(Data.PackageName, FName(TEXT("/Game/AssetRegistryTests/Created")));
	EXPECT_EQ(Data.PackagePath, FName(TEXT("/Game/AssetRegistryTests")));
	EXPECT_EQ(Data.AssetName, FName(TEXT("Created")));
	EXPECT_EQ(Data.AssetClassPath.ToString(), TEXT("/Script/VlmrUnitTests.AssetRegistryTestAsset"));
	EXPECT_EQ(Data.GetObjectPathString(), TEXT("/Game/AssetRegistryTests/Created.Created"));
	EXPECT_EQ(Data.GetSoftObjectPath(), FSoftObjectPath(Asset));
	EXPECT_EQ(Data.GetFullName(), TEXT("/Script/VlmrUnitTests.AssetRegistryTestAsset /Game/AssetRegistryTests/Created.Created"));
	EXPECT_TRUE(Data.IsUAsset());
	EXPECT_TRUE(Data.IsAssetLoaded());
	EXPECT_EQ(Data.GetAsset(), Asset);
	EXPECT_EQ(Data.GetClass(), UAssetRegistryTestAsset::StaticClass());
	EXPECT_EQ(CreatedInMemory, TArray<UObject*>({ Asset }));
	EXPECT_TRUE(Asset->GetPackage()->HasAnyPackageFlags(PKG_NewlyCreated));
}

TEST_F(FAssetRegistryTest, InMemoryAssetsAreFoundByClassPathAndObjectPath)
{
	CreateAsset(TEXT("/Game/AssetRegistryTests/Query/One"));
	CreateAsset<UAssetRegistryTestDerivedAsset>(TEXT("/Game/AssetRegistryTests/Query/Deeper/Two"));
	CreateAsset(TEXT("/Game/AssetRegistryTests/Query/Hidden"), RF_Transactional);

	TArray<FAssetData> ByClass;
	Registry.GetAssetsByClass(BaseClassPath(), ByClass);
	EXPECT_EQ(ObjectPaths(ByClass), TArray<FString>({ TEXT("/Game/AssetRegistryTests/Query/One.One") }));

	TArray<FAssetData> BySubClasses;
	Registry.GetAssetsByClass(BaseClassPath(), BySubClasses, true);
	EXPECT_EQ(ObjectPaths(BySubClasses), TArray<FString>({ TEXT("/Game/AssetRegistryTests/Query/Deeper/Two.Two"), TEXT("/Game/AssetRegistryTests/Query/One.One") }));

	TArray<FAssetData> ByPath;
	Registry.GetAssetsByPath(FName(TEXT("/Game/AssetRegistryTests/Query")), ByPath);
	EXPECT_EQ(ObjectPaths(ByPath), TArray<FString>({ TEXT("/Game/AssetRegistryTests/Query/One.One") }));

	TArray<FAssetData> ByPathRecursive;
	Registry.GetAssetsByPath(FName(TEXT("/Game/AssetRegistryTests/Query/")), ByPathRecursive, true);
	EXPECT_EQ(ObjectPaths(ByPathRecursive), TArray<FString>({ TEXT("/Game/AssetRegistryTests/Query/Deeper/Two.Two"), TEXT("/Game/AssetRegistryTests/Query/One.One") }));
	EXPECT_TRUE(Registry.HasAssets(FName(TEXT("/Game/AssetRegistryTests/Query/Deeper"))));
	EXPECT_FALSE(Registry.HasAssets(FName(TEXT("/Game/AssetRegistryTests/Nowhere")), true));

	FARFilter Filter;
	Filter.PackageNames.Add(FName(TEXT("/Game/AssetRegistryTests/Query/Deeper/Two")));
	Filter.ClassPaths.Add(BaseClassPath());
	TArray<FAssetData> Filtered;
	Registry.GetAssets(Filter, Filtered);
	EXPECT_EQ(Filtered.Num(), 0);
	Filter.bRecursiveClasses = true;
	Registry.GetAssets(Filter, Filtered);
	EXPECT_EQ(ObjectPaths(Filtered), TArray<FString>({ TEXT("/Game/AssetRegistryTests/Query/Deeper/Two.Two") }));

	const FAssetData Found = Registry.GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/AssetRegistryTests/Query/Deeper/Two.Two")));
	EXPECT_TRUE(Found.IsValid());
	EXPECT_EQ(Found.AssetClassPath.ToString(), TEXT("/Script/VlmrUnitTests.AssetRegistryTestDerivedAsset"));
	const FAssetData Missing = Registry.GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/AssetRegistryTests/Query/Nope.Nope")));
	EXPECT_FALSE(Missing.IsValid());
	EXPECT_EQ(Missing.GetObjectPathString(), TEXT(""));
	EXPECT_EQ(Missing.GetAsset(), nullptr);
}

TEST_F(FAssetRegistryTest, AssetDeletedIsBroadcastToOnAssetRemoved)
{
	UAssetRegistryTestAsset* Asset = CreateAsset(TEXT("/Game/AssetRegistryTests/Deleted"));
	TArray<FString> Removed;
	const FDelegateHandle Handle = Registry.OnAssetRemoved().AddLambda([&Removed](const FAssetData& AssetData) { Removed.Add(AssetData.GetObjectPathString()); });

	FAssetRegistryModule::AssetDeleted(Asset);
	Registry.OnAssetRemoved().Remove(Handle);

	EXPECT_EQ(Removed, TArray<FString>({ TEXT("/Game/AssetRegistryTests/Deleted.Deleted") }));
}

TEST_F(FAssetRegistryTest, ModuleAndInterfaceReachTheSameRegistry)
{
	FAssetRegistryModule& Module = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	EXPECT_EQ(&Module.Get(), IAssetRegistry::Get());
	EXPECT_EQ(&FAssetRegistryModule::GetRegistry(), &Registry);
}

class FAssetRegistryDiskTest : public FAssetRegistryTest
{
protected:
	void SetUp() override
	{
		PreviousProjectDir = FPaths::ProjectDir();
		ProjectDir = FPaths::Combine(FPlatformProcess::UserTempDir(), FString::Printf(TEXT("VlmrAssetRegistryTests_%d"), int32(FPlatformProcess::GetCurrentProcessId())));
		IFileManager::Get().DeleteDirectory(*ProjectDir, false, true);
		FPaths::SetProjectDir(ProjectDir);
	}

	void TearDown() override
	{
		FAssetRegistryTest::TearDown();
		FPaths::SetProjectDir(PreviousProjectDir);
		IFileManager::Get().DeleteDirectory(*ProjectDir, false, true);
	}

	// Saves an asset in its own package, then lets both go so that only the file remains.
	void SaveAndUnload(const TCHAR* PackageName, int32 Number)
	{
		UPackage* Package = CreatePackage(PackageName);
		UAssetRegistryTestAsset* Asset = NewObject<UAssetRegistryTestAsset>(Package, FName(*FPackageName::GetLongPackageAssetName(PackageName)), RF_Public | RF_Standalone);
		Asset->Number = Number;
		const FString Filename = FPackageName::LongPackageNameToFilename(PackageName, FPackageName::GetAssetPackageExtension());
		ASSERT_TRUE(UPackage::SavePackage(Package, Asset, *Filename, FSavePackageArgs()));
		const TWeakObjectPtr<UPackage> WeakPackage = Package;
		Asset->ClearFlags(RF_Standalone);
		CollectGarbage(RF_NoFlags);
		ASSERT_FALSE(WeakPackage.IsValid());
	}

	FString PreviousProjectDir;
	FString ProjectDir;
};

TEST_F(FAssetRegistryDiskTest, ScanningFindsSavedAssetsThatGetAssetLoads)
{
	SaveAndUnload(TEXT("/Game/Scanned/First"), 11);
	SaveAndUnload(TEXT("/Game/Scanned/Sub/Second"), 22);
	TArray<FString> Added;
	const FDelegateHandle Handle = Registry.OnAssetAdded().AddLambda([&Added](const FAssetData& AssetData) { Added.Add(AssetData.GetObjectPathString()); });

	Registry.ScanPathsSynchronous({ TEXT("/Game/Scanned") });
	Added.Sort();
	EXPECT_EQ(Added, TArray<FString>({ TEXT("/Game/Scanned/First.First"), TEXT("/Game/Scanned/Sub/Second.Second") }));
	Registry.ScanPathsSynchronous({ TEXT("/Game/Scanned") });
	EXPECT_EQ(Added.Num(), 2);
	Registry.OnAssetAdded().Remove(Handle);

	TArray<FAssetData> ByClass;
	Registry.GetAssetsByClass(BaseClassPath(), ByClass);
	EXPECT_EQ(ObjectPaths(ByClass), TArray<FString>({ TEXT("/Game/Scanned/First.First"), TEXT("/Game/Scanned/Sub/Second.Second") }));

	const FAssetData Second = Registry.GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/Scanned/Sub/Second.Second")));
	ASSERT_TRUE(Second.IsValid());
	EXPECT_EQ(Second.PackagePath, FName(TEXT("/Game/Scanned/Sub")));
	EXPECT_FALSE(Second.IsAssetLoaded());
	UObject* Loaded = Second.GetAsset();
	ASSERT_NE(Loaded, nullptr);
	ASSERT_TRUE(Loaded->IsA(UAssetRegistryTestAsset::StaticClass()));
	EXPECT_EQ(static_cast<UAssetRegistryTestAsset*>(Loaded)->Number, 22);
	EXPECT_TRUE(Second.IsAssetLoaded());

	TArray<FAssetData> InSubPath;
	Registry.GetAssetsByPath(FName(TEXT("/Game/Scanned/Sub")), InSubPath, false, true);
	EXPECT_EQ(ObjectPaths(InSubPath), TArray<FString>({ TEXT("/Game/Scanned/Sub/Second.Second") }));

	Loaded->ClearFlags(RF_Standalone);
	Loaded->MarkAsGarbage();
	CollectGarbage(RF_NoFlags);
	IFileManager::Get().Delete(*FPackageName::LongPackageNameToFilename(TEXT("/Game/Scanned/First"), FPackageName::GetAssetPackageExtension()));
	TArray<FString> Removed;
	const FDelegateHandle RemovedHandle = Registry.OnAssetRemoved().AddLambda([&Removed](const FAssetData& AssetData) { Removed.Add(AssetData.GetObjectPathString()); });
	Registry.ScanPathsSynchronous({ TEXT("/Game/Scanned/First") }, true);
	Registry.OnAssetRemoved().Remove(RemovedHandle);
	EXPECT_EQ(Removed, TArray<FString>({ TEXT("/Game/Scanned/First.First") }));
	EXPECT_FALSE(Registry.GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/Scanned/First.First"))).IsValid());
}
