#include "PersistenceTestSupport.h"
#include "PersistenceTestTypes.h"

#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StandInPackageFile.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{
	const char* const SecondProcessProjectVariable = "VLMR_PERSISTENCE_SECOND_PROCESS_PROJECT";
	const TCHAR* const SecondProcessMarker = TEXT("SecondProcessPassed");

	/** Saves a queue-like asset with a default subobject, an extra inner object and a reference into a second package. */
	void SaveReferenceScene()
	{
		UPackage* SharedPackage = CreatePackage(TEXT("/Game/Persist/Shared"));
		UPersistenceTestObject* Shared = NewObject<UPersistenceTestObject>(SharedPackage, TEXT("Shared"), RF_Public | RF_Standalone);
		Shared->Number = 77;

		UPackage* Package = CreatePackage(TEXT("/Game/Persist/Queue"));
		UPersistenceTestOwner* Queue = NewObject<UPersistenceTestOwner>(Package, TEXT("Queue"), RF_Public | RF_Standalone | RF_Transactional);
		UPersistenceTestObject* Extra = NewObject<UPersistenceTestObject>(Queue, TEXT("Extra"));
		Queue->Number = 42;
		Queue->Text = TEXT("Hello \"quoted\" world");
		Queue->Ratio = 0.5f;
		Queue->bFlag = true;
		Queue->Numbers = { 1, 2, 3 };
		Queue->Reference = Queue->Inner;
		Queue->ReferenceArray = { Queue->Inner, Extra };
		Queue->ReferenceMap.Add(TEXT("Extra"), Extra);
		Queue->Struct.Value = 7;
		Queue->Struct.Reference = Extra;
		Queue->SoftPath = FSoftObjectPath(TEXT("/Game/Elsewhere.Elsewhere"));
		Queue->TransientNumber = 5;
		Queue->Inner->Number = 9;
		Extra->Text = TEXT("Extra");
		Extra->Reference = Shared;

		ASSERT_TRUE(SavePackageToItsFile(SharedPackage, Shared).IsSuccessful());
		ASSERT_TRUE(SavePackageToItsFile(Package, Queue).IsSuccessful());
	}

	class PackageTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			CollectGarbage(RF_NoFlags);
		}

		void TearDown() override
		{
			CollectGarbage(RF_NoFlags);
		}

		FScopedTestProject Project;
	};
}

TEST_F(PackageTest, CreatePackageFindsOrCreatesAndTheTransientPackageIsRooted)
{
	UPackage* Created = CreatePackage(TEXT("/Game/Created/Package"));
	ASSERT_NE(Created, nullptr);
	EXPECT_EQ(Created->GetName(), TEXT("/Game/Created/Package"));
	EXPECT_EQ(CreatePackage(TEXT("/Game/Created/Package")), Created);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Created/Package")), Created);
	EXPECT_TRUE(Created->HasAnyPackageFlags(PKG_NewlyCreated));
	EXPECT_TRUE(Created->HasAnyFlags(RF_Public));
	EXPECT_EQ(CreatePackage(TEXT("/Game//Double")), nullptr);
	EXPECT_TRUE(CreatePackage(nullptr)->GetName().StartsWith(TEXT("/Temp/Untitled")));

	UPackage* Transient = GetTransientPackage();
	EXPECT_EQ(Transient->GetName(), TEXT("/Engine/Transient"));
	EXPECT_TRUE(Transient->IsRooted());
	EXPECT_TRUE(Transient->HasAnyFlags(RF_Transient));
	Transient->SetDirtyFlag(true);
	EXPECT_FALSE(Transient->IsDirty());
	EXPECT_EQ(UPackage::StaticClass()->GetPathName(), TEXT("/Script/CoreUObject.Package"));
}

TEST_F(PackageTest, SavingWritesThePackageAndClearsTheDirtyFlag)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Dirty/Asset"));
	UPersistenceTestObject* Asset = NewObject<UPersistenceTestObject>(Package, TEXT("Asset"), RF_Public | RF_Standalone);
	int32 DirtyNotifications = 0;
	const FDelegateHandle Handle = UPackage::PackageDirtyStateChangedEvent.AddLambda([&DirtyNotifications](UPackage*) { ++DirtyNotifications; });
	Package->SetDirtyFlag(true);
	EXPECT_TRUE(Package->IsDirty());

	FSavePackageArgs KeepDirtyArgs;
	KeepDirtyArgs.SaveFlags = SAVE_KeepDirty;
	EXPECT_TRUE(UPackage::Save(Package, Asset, *PackageFilename(TEXT("/Game/Dirty/Asset")), KeepDirtyArgs).IsSuccessful());
	EXPECT_TRUE(Package->IsDirty());

	const FSavePackageResultStruct Result = SavePackageToItsFile(Package, Asset);
	EXPECT_EQ(Result.Result, ESavePackageResult::Success);
	EXPECT_GT(Result.TotalFileSize, 0);
	EXPECT_FALSE(Package->IsDirty());
	EXPECT_FALSE(Package->HasAnyPackageFlags(PKG_NewlyCreated));
	EXPECT_EQ(DirtyNotifications, 2);
	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/Game/Dirty/Asset")));
	EXPECT_EQ(Package->FindAssetInPackage(), Asset);
	UPackage::PackageDirtyStateChangedEvent.Remove(Handle);
}

TEST_F(PackageTest, InvalidSaveRequestsFailWithAnError)
{
	const TStrongObjectPtr<UPackage> Package(CreatePackage(TEXT("/Game/Invalid/Asset")));
	const TStrongObjectPtr<UPersistenceTestObject> Foreign(NewObject<UPersistenceTestObject>(CreatePackage(TEXT("/Game/Invalid/Other")), TEXT("Other")));
	const FString Filename = PackageFilename(TEXT("/Game/Invalid/Asset"));
	FLogCapture Log;

	EXPECT_EQ(UPackage::Save(nullptr, nullptr, *Filename, FSavePackageArgs()).Result, ESavePackageResult::Error);
	EXPECT_EQ(UPackage::Save(Package.Get(), Foreign.Get(), *Filename, FSavePackageArgs()).Result, ESavePackageResult::Error);
	EXPECT_FALSE(UPackage::SavePackage(Package.Get(), nullptr, TEXT(""), FSavePackageArgs()));
	EXPECT_TRUE(Log.Contains(TEXT("Error saving '/Game/Invalid/Asset': the asset '/Game/Invalid/Other.Other' is not in the package"), ELogVerbosity::Error));
	EXPECT_FALSE(IFileManager::Get().FileExists(*Filename));
}

TEST_F(PackageTest, SavingKeepsWhatTheAssetAndTopLevelObjectsReach)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Reach/Asset"));
	UPersistenceTestObject* Asset = NewObject<UPersistenceTestObject>(Package, TEXT("Asset"), RF_Public | RF_Standalone);
	Asset->Reference = NewObject<UPersistenceTestObject>(Asset, TEXT("Referenced"));
	const TStrongObjectPtr<UPersistenceTestObject> Orphan(NewObject<UPersistenceTestObject>(Asset, TEXT("Orphan")));
	NewObject<UPersistenceTestObject>(Asset, TEXT("Flagged"), RF_Standalone);
	NewObject<UPersistenceTestObject>(Asset, TEXT("Scratch"), RF_Transient | RF_Standalone);
	const FString Filename = PackageFilename(TEXT("/Game/Reach/Asset"));
	auto SavedNames = [&Filename]()
	{
		UE::CoreUObject::StandIn::FSavedPackageData Data;
		TArray<FString> Names;
		if (UE::CoreUObject::StandIn::ReadSavedPackageFile(Filename, Data))
		{
			for (const UE::CoreUObject::StandIn::FSavedObjectEntry& Entry : Data.Objects)
			{
				Names.Add(Entry.OuterPath.IsEmpty() ? Entry.Name.ToString() : Entry.OuterPath + TEXT(":") + Entry.Name.ToString());
			}
		}
		return Names;
	};

	ASSERT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
	EXPECT_EQ(SavedNames(), TArray<FString>({ TEXT("Asset"), TEXT("Asset:Referenced"), TEXT("Asset:Flagged") }));

	ASSERT_TRUE(UPackage::Save(Package, nullptr, *Filename, FSavePackageArgs()).IsSuccessful());
	EXPECT_EQ(SavedNames(), TArray<FString>({ TEXT("Asset"), TEXT("Asset:Referenced"), TEXT("Asset:Orphan"), TEXT("Asset:Flagged") }));
}

TEST_F(PackageTest, FailedSaveLeavesThePreviousFileIntact)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Atomic/Asset"));
	UPersistenceTestObject* Asset = NewObject<UPersistenceTestObject>(Package, TEXT("Asset"), RF_Public | RF_Standalone);
	Asset->Number = 1;
	const FString Filename = PackageFilename(TEXT("/Game/Atomic/Asset"));
	ASSERT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
	FString SavedText;
	ASSERT_TRUE(FFileHelper::LoadFileToString(SavedText, *Filename));

	Asset->Number = 2;
	Package->SetDirtyFlag(true);
	IFileManager::Get().MakeDirectory(*(Filename + TEXT(".tmp")), true);
	FLogCapture Log;
	const FSavePackageResultStruct Failed = SavePackageToItsFile(Package, Asset);

	EXPECT_EQ(Failed.Result, ESavePackageResult::Error);
	EXPECT_FALSE(Failed.IsSuccessful());
	EXPECT_TRUE(Log.Contains(TEXT("Error saving '/Game/Atomic/Asset'"), ELogVerbosity::Error));
	EXPECT_TRUE(Package->IsDirty());
	FString TextAfterFailure;
	ASSERT_TRUE(FFileHelper::LoadFileToString(TextAfterFailure, *Filename));
	EXPECT_EQ(TextAfterFailure, SavedText);

	IFileManager::Get().DeleteDirectory(*(Filename + TEXT(".tmp")), false, true);
	EXPECT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
	FString TextAfterRetry;
	ASSERT_TRUE(FFileHelper::LoadFileToString(TextAfterRetry, *Filename));
	EXPECT_NE(TextAfterRetry, SavedText);
	EXPECT_FALSE(IFileManager::Get().FileExists(*(Filename + TEXT(".tmp"))));
}

TEST_F(PackageTest, StaticLoadObjectNameForms)
{
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Forms/Asset"));
		UPersistenceTestTracked* Asset = NewObject<UPersistenceTestTracked>(Package, TEXT("Asset"), RF_Public | RF_Standalone);
		UPersistenceTestObject* Sub = NewObject<UPersistenceTestObject>(Asset, TEXT("Sub"), RF_Standalone);
		ASSERT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
		Asset->ClearFlags(RF_Standalone);
		Sub->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Forms/Asset")), nullptr);

	FLogCapture Log;
	UObject* Loaded = StaticLoadObject(UPersistenceTestTracked::StaticClass(), nullptr, TEXT("/Game/Forms/Asset.Asset"));
	ASSERT_NE(Loaded, nullptr);
	TStrongObjectPtr<UObject> KeepLoaded(Loaded);
	EXPECT_TRUE(Loaded->HasAllFlags(RF_WasLoaded | RF_LoadCompleted | RF_Public | RF_Standalone));
	EXPECT_EQ(static_cast<UPersistenceTestTracked*>(Loaded)->PostLoadCount, 1);
	EXPECT_EQ(LoadObject<UPersistenceTestTracked>(nullptr, TEXT("/Game/Forms/Asset.Asset")), Loaded);
	EXPECT_EQ(LoadPackage(nullptr, TEXT("/Game/Forms/Asset"), LOAD_None), Loaded->GetPackage());
	EXPECT_EQ(static_cast<UPersistenceTestTracked*>(Loaded)->PostLoadCount, 1);

	UObject* Sub = StaticLoadObject(UObject::StaticClass(), nullptr, TEXT("/Game/Forms/Asset.Asset:Sub"));
	ASSERT_NE(Sub, nullptr);
	EXPECT_EQ(Sub->GetOuter(), Loaded);
	EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), Loaded, TEXT("Sub")), Sub);
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Warning), 0);

	EXPECT_EQ(LoadObject<UPersistenceTestTracked>(nullptr, TEXT("/Game/Forms/Asset")), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Failed to find object 'PersistenceTestTracked /Game/Forms/Asset'"), ELogVerbosity::Warning));
	EXPECT_EQ(LoadObject<UPersistenceTestOwner>(nullptr, TEXT("/Game/Forms/Asset.Asset")), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Failed to find object 'PersistenceTestOwner /Game/Forms/Asset.Asset'"), ELogVerbosity::Warning));
	EXPECT_EQ(LoadObject<UObject>(nullptr, TEXT("/Game/Forms/Missing.Missing")), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Failed to find object 'Object /Game/Forms/Missing.Missing'"), ELogVerbosity::Warning));

	const int32 WarningsBefore = Log.CountAtOrAbove(ELogVerbosity::Warning);
	EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), nullptr, TEXT("/Game/Forms/Missing.Missing"), nullptr, LOAD_NoWarn), nullptr);
	EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), nullptr, TEXT("/Game/Forms/Missing.Missing"), nullptr, LOAD_Quiet), nullptr);
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Warning), WarningsBefore);

	EXPECT_EQ(StaticLoadObject(UClass::StaticClass(), nullptr, TEXT("/Script/PersistenceTests.PersistenceTestOwner")), UPersistenceTestOwner::StaticClass());
	EXPECT_EQ(LoadClass<UPersistenceTestObject>(nullptr, TEXT("/Script/PersistenceTests.PersistenceTestOwner")), UPersistenceTestOwner::StaticClass());
	EXPECT_EQ(LoadClass<UPersistenceTestOwner>(nullptr, TEXT("/Script/PersistenceTests.PersistenceTestObject")), nullptr);
	EXPECT_EQ(StaticFindObject(UClass::StaticClass(), nullptr, TEXT("/Script/CoreUObject.Object")), UObject::StaticClass());
}

TEST_F(PackageTest, SoftReferencesLoadTheirPackageFromDisk)
{
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Soft/Target"));
		UPersistenceTestObject* Asset = NewObject<UPersistenceTestObject>(Package, TEXT("Target"), RF_Public | RF_Standalone);
		Asset->Number = 31;
		ASSERT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
		Asset->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);

	const TSoftObjectPtr<UPersistenceTestObject> Soft(FSoftObjectPath(TEXT("/Game/Soft/Target.Target")));
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_EQ(Soft.Get(), nullptr);
	UPersistenceTestObject* Loaded = Soft.LoadSynchronous();
	ASSERT_NE(Loaded, nullptr);
	TStrongObjectPtr<UPersistenceTestObject> Keep(Loaded);
	EXPECT_EQ(Loaded->Number, 31);
	EXPECT_FALSE(Soft.IsPending());
	EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Soft/Target.Target")).TryLoad(), Loaded);
	EXPECT_EQ(TSoftObjectPtr<UPersistenceTestObject>(FSoftObjectPath(TEXT("/Game/Soft/Nothing.Nothing"))).LoadSynchronous(), nullptr);
}

TEST_F(PackageTest, LoadingSkipsObjectsOfMissingClassesAndKeepsTheRest)
{
	const FString Filename = PackageFilename(TEXT("/Game/Broken/Asset"));
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	const FString Text = TEXT(R"({
		"FileType": "VlmrStandInPackage", "FileVersion": 1, "PackageName": "/Game/Broken/Asset", "PackageFlags": 0,
		"Objects": [
			{ "Name": "Asset", "Outer": "", "Class": "/Script/PersistenceTests.PersistenceTestObject", "Flags": ["RF_Public"],
			  "Properties": { "Number": "12", "Reference": "/Script/PersistenceTests.PersistenceTestObject'/Game/Broken/Asset.Asset:Lost'", "NoSuchProperty": "1" } },
			{ "Name": "Lost", "Outer": "Asset", "Class": "/Script/PersistenceTests.NoSuchClass", "Flags": [] },
			{ "Name": "Orphan", "Outer": "Asset:Lost", "Class": "/Script/PersistenceTests.PersistenceTestObject", "Flags": [] }
		] })");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *Filename));
	FLogCapture Log;

	UPersistenceTestObject* Asset = LoadObject<UPersistenceTestObject>(nullptr, TEXT("/Game/Broken/Asset.Asset"));

	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Asset->Number, 12);
	EXPECT_EQ(Asset->Reference, nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Unable to load Lost with outer /Game/Broken/Asset.Asset because its class (/Script/PersistenceTests.NoSuchClass) does not exist"), ELogVerbosity::Error));
	EXPECT_TRUE(Log.Contains(TEXT("Unable to load Orphan in /Game/Broken/Asset because its outer (Asset:Lost) was not loaded"), ELogVerbosity::Error));
	EXPECT_TRUE(Log.Contains(TEXT("NoSuchProperty"), ELogVerbosity::Warning));

	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("{ not json"), *PackageFilename(TEXT("/Game/Broken/Garbled"))));
	EXPECT_EQ(LoadPackage(nullptr, TEXT("/Game/Broken/Garbled"), LOAD_None), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("the file is not valid JSON"), ELogVerbosity::Error));
}

TEST_F(PackageTest, SavedPackageLoadsBackInASecondProcess)
{
	SaveReferenceScene();
	const FString Marker = Project.GetProjectDir() / SecondProcessMarker;

	const int ExitStatus = RunTestInSecondProcess("PackageSecondProcess.LoadsWhatTheFirstProcessSaved", SecondProcessProjectVariable, Project.GetProjectDir());

	EXPECT_EQ(ExitStatus, 0);
	EXPECT_TRUE(IFileManager::Get().FileExists(*Marker));
}

TEST(PackageSecondProcess, LoadsWhatTheFirstProcessSaved)
{
	const char* ProjectDir = std::getenv(SecondProcessProjectVariable);
	if (!ProjectDir)
	{
		GTEST_SKIP() << "Runs only in the process started by PackageTest.SavedPackageLoadsBackInASecondProcess";
	}
	FScopedTestProject Project{ FString(UTF8_TO_TCHAR(ProjectDir)) };
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Persist/Queue")), nullptr);
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Persist/Shared")), nullptr);

	UPersistenceTestOwner* Queue = LoadObject<UPersistenceTestOwner>(nullptr, TEXT("/Game/Persist/Queue.Queue"));

	ASSERT_NE(Queue, nullptr);
	EXPECT_TRUE(Queue->HasAllFlags(RF_Public | RF_Standalone | RF_Transactional | RF_WasLoaded | RF_LoadCompleted));
	EXPECT_EQ(Queue->Number, 42);
	EXPECT_EQ(Queue->Text, TEXT("Hello \"quoted\" world"));
	EXPECT_EQ(Queue->Ratio, 0.5f);
	EXPECT_TRUE(Queue->bFlag);
	EXPECT_EQ(Queue->Numbers, TArray<int32>({ 1, 2, 3 }));
	EXPECT_EQ(Queue->TransientNumber, 0);
	EXPECT_EQ(Queue->SoftPath.ToString(), TEXT("/Game/Elsewhere.Elsewhere"));

	UPersistenceTestObject* Inner = Queue->Inner;
	ASSERT_NE(Inner, nullptr);
	EXPECT_EQ(Inner->GetPathName(), TEXT("/Game/Persist/Queue.Queue:Inner"));
	EXPECT_EQ(Inner->Number, 9);
	UPersistenceTestObject* Extra = FindObject<UPersistenceTestObject>(Queue, TEXT("Extra"));
	ASSERT_NE(Extra, nullptr);
	EXPECT_EQ(Extra->Text, TEXT("Extra"));
	EXPECT_EQ(Queue->Reference, Inner);
	ASSERT_EQ(Queue->ReferenceArray.Num(), 2);
	EXPECT_EQ(Queue->ReferenceArray[0], Inner);
	EXPECT_EQ(Queue->ReferenceArray[1], Extra);
	ASSERT_NE(Queue->ReferenceMap.Find(TEXT("Extra")), nullptr);
	EXPECT_EQ(*Queue->ReferenceMap.Find(TEXT("Extra")), Extra);
	EXPECT_EQ(Queue->Struct.Value, 7);
	EXPECT_EQ(Queue->Struct.Reference, Extra);

	UPackage* SharedPackage = FindPackage(nullptr, TEXT("/Game/Persist/Shared"));
	ASSERT_NE(SharedPackage, nullptr);
	ASSERT_NE(Extra->Reference, nullptr);
	EXPECT_EQ(Extra->Reference->GetPathName(), TEXT("/Game/Persist/Shared.Shared"));
	EXPECT_EQ(static_cast<UPersistenceTestObject*>(Extra->Reference.Get())->Number, 77);
	EXPECT_FALSE(Queue->GetPackage()->IsDirty());
	EXPECT_TRUE(Queue->GetPackage()->IsFullyLoaded());

	if (!testing::Test::HasFailure())
	{
		FFileHelper::SaveStringToFile(TEXT("passed"), *(Project.GetProjectDir() / SecondProcessMarker));
	}
}
