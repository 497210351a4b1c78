#include "PersistenceTestTypes.h"

#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <gtest/gtest.h>

TEST(DuplicateObject, CopiesInnerObjectsAndRemapsReferencesAmongThem)
{
	UPackage* SourcePackage = CreatePackage(TEXT("/Game/Duplicate/Source"));
	TStrongObjectPtr<UPersistenceTestOwner> Source(NewObject<UPersistenceTestOwner>(SourcePackage, TEXT("Source"), RF_Public | RF_Transactional));
	UPersistenceTestObject* Extra = NewObject<UPersistenceTestObject>(Source.Get(), TEXT("Extra"));
	UPersistenceTestObject* Nested = NewObject<UPersistenceTestObject>(Extra, TEXT("Nested"));
	TStrongObjectPtr<UPersistenceTestObject> Outside(NewObject<UPersistenceTestObject>(GetTransientPackage()));
	Source->Number = 3;
	Source->Text = TEXT("Source text");
	Source->TransientNumber = 11;
	Source->Reference = Extra;
	Source->ReferenceArray = { Source->Inner, Outside.Get() };
	Source->ReferenceMap.Add(TEXT("Nested"), Nested);
	Source->Struct.Reference = Nested;
	Source->Inner->Number = 4;
	Source->Inner->Reference = Source.Get();
	Extra->Reference = Nested;
	Nested->Text = TEXT("Nested text");

	UPackage* DestPackage = CreatePackage(TEXT("/Game/Duplicate/Dest"));
	UPersistenceTestOwner* Copy = DuplicateObject<UPersistenceTestOwner>(Source.Get(), DestPackage, TEXT("Copy"));

	ASSERT_NE(Copy, nullptr);
	EXPECT_NE(Copy, Source.Get());
	EXPECT_EQ(Copy->GetPathName(), TEXT("/Game/Duplicate/Dest.Copy"));
	EXPECT_TRUE(Copy->HasAllFlags(RF_Public | RF_Transactional));
	EXPECT_EQ(Copy->Number, 3);
	EXPECT_EQ(Copy->Text, TEXT("Source text"));
	EXPECT_EQ(Copy->TransientNumber, 0);

	UPersistenceTestObject* CopyInner = Copy->Inner;
	ASSERT_NE(CopyInner, nullptr);
	EXPECT_NE(CopyInner, Source->Inner.Get());
	EXPECT_EQ(CopyInner->GetOuter(), Copy);
	EXPECT_EQ(CopyInner->Number, 4);
	EXPECT_EQ(CopyInner->Reference, Copy);

	UObject* CopyExtra = Copy->Reference;
	ASSERT_NE(CopyExtra, nullptr);
	EXPECT_NE(CopyExtra, Extra);
	EXPECT_EQ(CopyExtra->GetPathName(), TEXT("/Game/Duplicate/Dest.Copy:Extra"));
	UPersistenceTestObject* CopyNested = static_cast<UPersistenceTestObject*>(static_cast<UPersistenceTestObject*>(CopyExtra)->Reference.Get());
	ASSERT_NE(CopyNested, nullptr);
	EXPECT_EQ(CopyNested->GetPathName(), TEXT("/Game/Duplicate/Dest.Copy:Extra.Nested"));
	EXPECT_EQ(CopyNested->Text, TEXT("Nested text"));
	EXPECT_EQ(*Copy->ReferenceMap.Find(TEXT("Nested")), CopyNested);
	EXPECT_EQ(Copy->Struct.Reference, CopyNested);
	ASSERT_EQ(Copy->ReferenceArray.Num(), 2);
	EXPECT_EQ(Copy->ReferenceArray[0], CopyInner);
	EXPECT_EQ(Copy->ReferenceArray[1], Outside.Get());

	TArray<UObject*> CopyInners;
	GetObjectsWithOuter(Copy, CopyInners, true);
	EXPECT_EQ(CopyInners.Num(), 3);
	EXPECT_EQ(Source->Reference, Extra);
	EXPECT_EQ(Extra->Reference, Nested);
}

TEST(DuplicateObject, NullSourceGivesNullAndNullOuterUsesTheTransientPackage)
{
	EXPECT_EQ(DuplicateObject<UPersistenceTestObject>(nullptr, GetTransientPackage()), nullptr);
	TStrongObjectPtr<UPersistenceTestObject> Source(NewObject<UPersistenceTestObject>(GetTransientPackage()));
	Source->Number = 8;
	UPersistenceTestObject* Copy = DuplicateObject(Source.Get(), nullptr);
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(Copy->GetOuter(), GetTransientPackage());
	EXPECT_EQ(Copy->Number, 8);
	EXPECT_NE(Copy->GetFName(), Source->GetFName());
	EXPECT_EQ(StaticDuplicateObject(Source.Get(), Source.Get()), nullptr);
}

TEST(DuplicateObject, DuplicatingOntoAnExistingNameReplacesThatObject)
{
	UPackage* Package = CreatePackage(TEXT("/Game/Duplicate/Overwrite"));
	TStrongObjectPtr<UPersistenceTestObject> Previous(NewObject<UPersistenceTestObject>(Package, TEXT("Queue")));
	Previous->Number = 5;
	TStrongObjectPtr<UPersistenceTestObject> Source(NewObject<UPersistenceTestObject>(GetTransientPackage()));
	Source->Number = 8;

	UPersistenceTestObject* Copy = DuplicateObject(Source.Get(), Package, TEXT("Queue"));

	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(Copy->GetPathName(), TEXT("/Game/Duplicate/Overwrite.Queue"));
	EXPECT_EQ(Copy->Number, 8);
	EXPECT_EQ(FindObject<UPersistenceTestObject>(Package, TEXT("Queue")), Copy);
	EXPECT_EQ(Source->Number, 8);
}
