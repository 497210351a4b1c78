#include "PersistenceTestTypes.h"

#include "UObject/Package.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/TopLevelAssetPath.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

TEST(TopLevelAssetPath, ParsesPackageAndAssetButRejectsSubObjectsAndMalformedPaths)
{
	FTopLevelAssetPath AssetPath;
	EXPECT_TRUE(AssetPath.TrySetPath(TEXT("/Path/To/Package.Asset")));
	EXPECT_EQ(AssetPath.GetPackageName(), FName(TEXT("/Path/To/Package")));
	EXPECT_EQ(AssetPath.GetAssetName(), FName(TEXT("Asset")));
	EXPECT_EQ(AssetPath.ToString(), TEXT("/Path/To/Package.Asset"));

	FTopLevelAssetPath PackageOnly;
	EXPECT_TRUE(PackageOnly.TrySetPath(TEXT("/Path/To/Package")));
	EXPECT_EQ(PackageOnly.ToString(), TEXT("/Path/To/Package"));
	EXPECT_TRUE(PackageOnly.GetAssetName().IsNone());

	FTopLevelAssetPath Rejected(TEXT("/Game/A.B"));
	EXPECT_FALSE(Rejected.TrySetPath(TEXT("/Path/To/Package.Asset:Subobject")));
	EXPECT_TRUE(Rejected.IsNull());
	EXPECT_EQ(Rejected.ToString(), TEXT(""));
	EXPECT_FALSE(Rejected.TrySetPath(TEXT("/Path/To/Package.Asset.Malformed")));
	EXPECT_FALSE(Rejected.TrySetPath(TEXT("")));
	EXPECT_FALSE(Rejected.TrySetPath(TEXT("None")));
	EXPECT_FALSE(Rejected.TrySetPath(NAME_None, FName(TEXT("Asset"))));

	FTopLevelAssetPath FromExportText;
	EXPECT_TRUE(FromExportText.TrySetPath(TEXT("/Script/Module.ClassName'/Path/To/Package.Asset'")));
	EXPECT_EQ(FromExportText.ToString(), TEXT("/Path/To/Package.Asset"));
	EXPECT_EQ(FromExportText, FTopLevelAssetPath(FName(TEXT("/Path/To/Package")), FName(TEXT("Asset"))));
}

TEST(SoftObjectPath, SplitsAssetPathAndSubPath)
{
	const FSoftObjectPath SubObject(TEXT("/Game/Dir/Asset.Asset:Sub.Inner"));
	EXPECT_EQ(SubObject.ToString(), TEXT("/Game/Dir/Asset.Asset:Sub.Inner"));
	EXPECT_EQ(SubObject.GetAssetPathString(), TEXT("/Game/Dir/Asset.Asset"));
	EXPECT_EQ(SubObject.GetSubPathString(), TEXT("Sub.Inner"));
	EXPECT_EQ(SubObject.GetLongPackageName(), TEXT("/Game/Dir/Asset"));
	EXPECT_EQ(SubObject.GetAssetName(), TEXT("Asset"));
	EXPECT_TRUE(SubObject.IsValid());
	EXPECT_TRUE(SubObject.IsSubobject());
	EXPECT_FALSE(SubObject.IsAsset());

	const FSoftObjectPath DotSeparated(TEXT("/Game/Dir/Asset.Asset.Sub"));
	EXPECT_EQ(DotSeparated.ToString(), TEXT("/Game/Dir/Asset.Asset:Sub"));

	const FSoftObjectPath FromExportText(TEXT("/Script/Engine.World'/Game/Maps/Main.Main'"));
	EXPECT_EQ(FromExportText.ToString(), TEXT("/Game/Maps/Main.Main"));
	EXPECT_TRUE(FromExportText.IsAsset());

	const FSoftObjectPath PackageOnly(TEXT("/Game/Dir/Asset"));
	EXPECT_EQ(PackageOnly.GetAssetName(), TEXT(""));
	EXPECT_FALSE(PackageOnly.IsAsset());

	FSoftObjectPath Reset(TEXT("/Game/A.A"));
	Reset.SetPath(TEXT("None"));
	EXPECT_TRUE(Reset.IsNull());
	EXPECT_EQ(Reset.ToString(), TEXT(""));
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/A.A:B")), FSoftObjectPath(FTopLevelAssetPath(TEXT("/Game/A.A")), TEXT("B")));
	EXPECT_NE(FSoftObjectPath(TEXT("/Game/A.A")), FSoftObjectPath(TEXT("/Game/A.B")));
	EXPECT_EQ(GetTypeHash(FSoftObjectPath(TEXT("/Game/A.A"))), GetTypeHash(FSoftObjectPath(TEXT("/Game/a.a"))));
}

TEST(SoftObjectPath, ExportsPathTextQuotedOnlyWhenDelimited)
{
	const FSoftObjectPath Path(TEXT("/Game/Dir/Seq.Seq"));
	FString TopLevel;
	Path.ExportTextItem(TopLevel, FSoftObjectPath(), nullptr, PPF_None, nullptr);
	EXPECT_EQ(TopLevel, TEXT("/Game/Dir/Seq.Seq"));
	FString Delimited;
	Path.ExportTextItem(Delimited, FSoftObjectPath(), nullptr, PPF_Delimited, nullptr);
	EXPECT_EQ(Delimited, TEXT("\"/Game/Dir/Seq.Seq\""));
	FString NullText;
	FSoftObjectPath().ExportTextItem(NullText, FSoftObjectPath(), nullptr, PPF_Delimited, nullptr);
	EXPECT_EQ(NullText, TEXT("None"));
}

TEST(SoftObjectPath, ImportsBareQuotedClassQualifiedAndNoneText)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Expected;
		int32 Consumed;
	};
	const FCase Cases[] = {
		{ TEXT("/Game/A/B.B,Next"), TEXT("/Game/A/B.B"), 11 },
		{ TEXT("\"/Game/A/B.B:Sub\")"), TEXT("/Game/A/B.B:Sub"), 17 },
		{ TEXT("/Script/Engine.World'/Game/Maps/Main.Main'"), TEXT("/Game/Maps/Main.Main"), 42 },
		{ TEXT("None"), TEXT(""), 4 },
		{ TEXT("()"), TEXT(""), 2 },
	};
	for (const FCase& Case : Cases)
	{
		FSoftObjectPath Path(TEXT("/Game/Previous.Previous"));
		const TCHAR* Buffer = Case.Text;
		EXPECT_TRUE(Path.ImportTextItem(Buffer, PPF_None, nullptr, nullptr)) << Case.Text;
		EXPECT_EQ(Path.ToString(), Case.Expected) << Case.Text;
		EXPECT_EQ(int32(Buffer - Case.Text), Case.Consumed) << Case.Text;
	}

	FSoftObjectPath Unchanged(TEXT("/Game/Previous.Previous"));
	const TCHAR* Unterminated = TEXT("\"/Game/A.A");
	const TCHAR* Buffer = Unterminated;
	EXPECT_FALSE(Unchanged.ImportTextItem(Buffer, PPF_Delimited, nullptr, nullptr));
	EXPECT_EQ(Buffer, Unterminated);
	EXPECT_EQ(Unchanged.ToString(), TEXT("/Game/Previous.Previous"));
}

TEST(SoftObjectPath, ReflectedPropertyUsesTheNativeText)
{
	UScriptStruct* Struct = FSoftObjectPath::StaticStruct();
	ASSERT_NE(Struct, nullptr);
	EXPECT_EQ(Struct->GetPathName(), TEXT("/Script/CoreUObject.SoftObjectPath"));
	EXPECT_EQ(FSoftClassPath::StaticStruct()->GetPathName(), TEXT("/Script/CoreUObject.SoftClassPath"));

	TStrongObjectPtr<UPersistenceTestObject> Object(NewObject<UPersistenceTestObject>(GetTransientPackage()));
	FProperty* Property = UPersistenceTestObject::StaticClass()->FindPropertyByName(TEXT("SoftPath"));
	ASSERT_NE(Property, nullptr);
	Object->SoftPath = FSoftObjectPath(TEXT("/Game/Dir/Seq.Seq"));
	FString Text;
	Property->ExportTextItem_InContainer(Text, Object.Get(), nullptr, Object.Get(), PPF_None);
	EXPECT_EQ(Text, TEXT("/Game/Dir/Seq.Seq"));

	ASSERT_NE(Property->ImportText_InContainer(TEXT("\"/Game/Other.Other\""), Object.Get(), Object.Get(), PPF_None), nullptr);
	EXPECT_EQ(Object->SoftPath.ToString(), TEXT("/Game/Other.Other"));
}

TEST(SoftObjectPath, ResolvesInMemoryObjectsAndSoftPointersFollowThem)
{
	UPackage* Package = CreatePackage(TEXT("/Game/SoftPathResolve"));
	TStrongObjectPtr<UPersistenceTestObject> Asset(NewObject<UPersistenceTestObject>(Package, TEXT("SoftPathResolve")));
	UPersistenceTestObject* Sub = NewObject<UPersistenceTestObject>(Asset.Get(), TEXT("Sub"));

	const FSoftObjectPath AssetPath(Asset.Get());
	EXPECT_EQ(AssetPath.ToString(), TEXT("/Game/SoftPathResolve.SoftPathResolve"));
	EXPECT_EQ(AssetPath.ResolveObject(), Asset.Get());
	EXPECT_EQ(FSoftObjectPath(Sub).ToString(), TEXT("/Game/SoftPathResolve.SoftPathResolve:Sub"));
	EXPECT_EQ(FSoftObjectPath(Sub).ResolveObject(), Sub);
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/SoftPathResolve.Missing")).ResolveObject(), nullptr);

	TSoftObjectPtr<UPersistenceTestObject> Soft(FSoftObjectPath(TEXT("/Game/SoftPathResolve.SoftPathResolve")));
	EXPECT_FALSE(Soft.IsNull());
	EXPECT_EQ(Soft.Get(), Asset.Get());
	EXPECT_FALSE(Soft.IsPending());
	EXPECT_EQ(Soft.LoadSynchronous(), Asset.Get());
	EXPECT_EQ(Soft.GetAssetName(), TEXT("SoftPathResolve"));
	EXPECT_EQ(Soft.GetLongPackageName(), TEXT("/Game/SoftPathResolve"));

	TSoftObjectPtr<UPersistenceTestOwner> WrongType(FSoftObjectPath(TEXT("/Game/SoftPathResolve.SoftPathResolve")));
	EXPECT_EQ(WrongType.Get(), nullptr);

	TSoftObjectPtr<UPersistenceTestObject> Pending(FSoftObjectPath(TEXT("/Game/SoftPathResolve.NotThere")));
	EXPECT_TRUE(Pending.IsPending());
	EXPECT_FALSE(Pending.IsValid());

	TSoftClassPtr<UPersistenceTestObject> SoftClass(UPersistenceTestOwner::StaticClass());
	EXPECT_EQ(SoftClass.ToString(), TEXT("/Script/PersistenceTests.PersistenceTestOwner"));
	EXPECT_EQ(SoftClass.Get(), UPersistenceTestOwner::StaticClass());
	TSoftClassPtr<UPersistenceTestOwner> NotDerived(UPersistenceTestObject::StaticClass());
	EXPECT_EQ(NotDerived.Get(), nullptr);
	EXPECT_EQ(FSoftClassPath(UPersistenceTestOwner::StaticClass()).TryLoadClass<UPersistenceTestObject>(), UPersistenceTestOwner::StaticClass());
}
