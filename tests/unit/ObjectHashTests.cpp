#include "PersistenceTestTypes.h"

#include "UObject/Class.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"

#include <gtest/gtest.h>

namespace
{
	class ObjectHashTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			CollectGarbage(RF_NoFlags);
			Package = CreatePackage(TEXT("/Game/Hash/Package"));
			Package->AddToRoot();
		}

		void TearDown() override
		{
			Package->RemoveFromRoot();
			CollectGarbage(RF_NoFlags);
		}

		UPackage* Package = nullptr;
	};

	template<class T>
	TArray<UObject*> IterateObjects(EObjectFlags ExclusionFlags = RF_ClassDefaultObject)
	{
		TArray<UObject*> Result;
		for (TObjectIterator<T> It(ExclusionFlags); It; ++It)
		{
			Result.Add(*It);
		}
		return Result;
	}

	/** Only the objects of the test package: class default objects may own subobjects of the same classes. */
	TArray<UObject*> InPackage(TArray<UObject*> Objects, const UPackage* Package)
	{
		Objects.RemoveAll([Package](const UObject* Object) { return !Object->IsIn(Package); });
		return Objects;
	}
}

TEST_F(ObjectHashTest, ObjectsOfAClassComeInCreationOrderWithDerivedClasses)
{
	UPersistenceTestObject* First = NewObject<UPersistenceTestObject>(Package, TEXT("First"), RF_Standalone);
	UPersistenceTestOwner* Second = NewObject<UPersistenceTestOwner>(Package, TEXT("Second"), RF_Standalone);
	UPersistenceTestObject* Third = NewObject<UPersistenceTestObject>(Package, TEXT("Third"), RF_Standalone);

	TArray<UObject*> WithDerived;
	GetObjectsOfClass(UPersistenceTestObject::StaticClass(), WithDerived);
	const TArray<UObject*> Expected = { First, Second, Second->Inner, Third };
	EXPECT_EQ(InPackage(WithDerived, Package), Expected);

	TArray<UObject*> ExactOnly;
	GetObjectsOfClass(UPersistenceTestObject::StaticClass(), ExactOnly, false);
	const TArray<UObject*> ExpectedExact = { First, Second->Inner, Third };
	EXPECT_EQ(InPackage(ExactOnly, Package), ExpectedExact);

	EXPECT_EQ(InPackage(IterateObjects<UPersistenceTestObject>(), Package), Expected);
	EXPECT_EQ(InPackage(IterateObjects<UPersistenceTestOwner>(), Package), TArray<UObject*>({ Second }));

	Third->MarkAsGarbage();
	const TArray<UObject*> WithoutGarbage = { First, Second, Second->Inner };
	EXPECT_EQ(InPackage(IterateObjects<UPersistenceTestObject>(), Package), WithoutGarbage);
	TArray<UObject*> IncludingGarbage;
	GetObjectsOfClass(UPersistenceTestObject::StaticClass(), IncludingGarbage);
	EXPECT_EQ(InPackage(IncludingGarbage, Package).Num(), 4);
}

TEST_F(ObjectHashTest, ClassDefaultObjectsAreSkippedUnlessAsked)
{
	UObject* DefaultObject = UPersistenceTestOwner::StaticClass()->GetDefaultObject();
	ASSERT_NE(DefaultObject, nullptr);
	EXPECT_FALSE(IterateObjects<UPersistenceTestOwner>().Contains(DefaultObject));
	EXPECT_TRUE(IterateObjects<UPersistenceTestOwner>(RF_NoFlags).Contains(DefaultObject));

	int32 NumClasses = 0;
	bool bFoundOwnerClass = false;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		++NumClasses;
		bFoundOwnerClass |= *It == UPersistenceTestOwner::StaticClass();
	}
	EXPECT_TRUE(bFoundOwnerClass);
	EXPECT_GT(NumClasses, 4);

	TArray<UClass*> Derived;
	GetDerivedClasses(UPersistenceTestObject::StaticClass(), Derived);
	EXPECT_EQ(Derived, TArray<UClass*>({ UPersistenceTestOwner::StaticClass() }));
}

TEST_F(ObjectHashTest, ObjectsAreFoundByOuterAndNameAndByPath)
{
	UPersistenceTestOwner* Asset = NewObject<UPersistenceTestOwner>(Package, TEXT("Asset"), RF_Standalone);
	UPersistenceTestObject* Child = NewObject<UPersistenceTestObject>(Asset, TEXT("Child"));
	UPersistenceTestObject* Grandchild = NewObject<UPersistenceTestObject>(Child, TEXT("Grandchild"));

	EXPECT_EQ(UE::CoreUObject::StandIn::FindObjectFast(Package, TEXT("asset")), Asset);
	EXPECT_EQ(StaticFindObjectFast(UPersistenceTestOwner::StaticClass(), Package, TEXT("Asset"), true), Asset);
	EXPECT_EQ(StaticFindObjectFast(UPersistenceTestObject::StaticClass(), Package, TEXT("Asset"), true), nullptr);
	EXPECT_EQ(StaticFindObjectFast(UPersistenceTestObject::StaticClass(), Package, TEXT("Asset"), false), Asset);
	EXPECT_EQ(StaticFindObjectFast(UObject::StaticClass(), Package, TEXT("Asset"), false, RF_Standalone), nullptr);

	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Hash/Package.Asset")), Asset);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Hash/Package.Asset:Child.Grandchild")), Grandchild);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), Asset, TEXT("Child.Grandchild")), Grandchild);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Hash/Package")), Package);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Hash/Package.Nobody")), nullptr);
	EXPECT_EQ(FindObject<UPersistenceTestObject>(FTopLevelAssetPath(TEXT("/Game/Hash/Package.Asset"))), Asset);
	EXPECT_EQ(FindFirstObject<UPersistenceTestObject>(TEXT("Grandchild")), Grandchild);
	EXPECT_EQ(FindFirstObject<UPersistenceTestObject>(TEXT("/Game/Hash/Package.Asset:Child")), Child);

	TArray<UObject*> Direct;
	GetObjectsWithOuter(Asset, Direct, false);
	EXPECT_EQ(Direct, TArray<UObject*>({ Asset->Inner, Child }));
	TArray<UObject*> Nested;
	GetObjectsWithOuter(Asset, Nested, true);
	EXPECT_EQ(Nested, TArray<UObject*>({ Asset->Inner, Child, Grandchild }));
	EXPECT_EQ(FindObjectWithOuter(Asset, UPersistenceTestObject::StaticClass(), TEXT("Child")), Child);
}

TEST_F(ObjectHashTest, UnhashedObjectsAreNoLongerFoundAndFreedSlotsAreReused)
{
	UPersistenceTestObject* Object = NewObject<UPersistenceTestObject>(Package, TEXT("Reused"));
	const int32 Index = Object->GetUniqueID();
	EXPECT_TRUE(GUObjectArray.IsValid(Object));
	EXPECT_EQ(GUObjectArray.IndexToObject(Index)->GetObject(), Object);

	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UE::CoreUObject::StandIn::FindObjectFast(Package, TEXT("Reused")), nullptr);
	EXPECT_EQ(GUObjectArray.IndexToObject(Index)->GetObject(), nullptr);

	UPersistenceTestObject* Next = NewObject<UPersistenceTestObject>(Package, TEXT("Next"));
	EXPECT_EQ(Next->GetUniqueID(), Index);
	EXPECT_EQ(GUObjectArray.IndexToObject(-1), nullptr);
	EXPECT_EQ(GUObjectArray.IndexToObject(GUObjectArray.GetObjectArrayCapacity()), nullptr);
}

TEST_F(ObjectHashTest, RegisteredClassVersionNumbersChangeWithEveryClassRegisteredOrDestroyed)
{
	const uint64 ClassesBefore = GetRegisteredClassesVersionNumber();
	const uint64 NativeBefore = GetRegisteredNativeClassesVersionNumber();
	NewObject<UObject>(Package, TEXT("NotAClass"));
	EXPECT_EQ(GetRegisteredClassesVersionNumber(), ClassesBefore);

	UClass* Transient = NewObject<UClass>(Package, TEXT("HashTransientClass"));
	Transient->SetSuperStruct(UObject::StaticClass());
	const uint64 ClassesAfterCreation = GetRegisteredClassesVersionNumber();
	EXPECT_NE(ClassesAfterCreation, ClassesBefore);
	EXPECT_EQ(GetRegisteredNativeClassesVersionNumber(), NativeBefore);

	CollectGarbage(RF_NoFlags);
	EXPECT_NE(GetRegisteredClassesVersionNumber(), ClassesAfterCreation);
	EXPECT_EQ(GetRegisteredNativeClassesVersionNumber(), NativeBefore);

	UE::CoreUObject::StandIn::FNativeClassParams Params;
	Params.Name = TEXT("UHashLateNativeClass");
	Params.ModuleName = TEXT("ObjectHashTests");
	Params.SuperClass = &UObject::StaticClass;
	UClass* Native = nullptr;
	UE::CoreUObject::StandIn::ConstructNativeClass(Native, Params);
	EXPECT_NE(GetRegisteredNativeClassesVersionNumber(), NativeBefore);
}
