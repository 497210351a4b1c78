#include "PersistenceTestTypes.h"

#include "UObject/GCObject.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	class FTestReferencer final : public FGCObject
	{
	public:
		TObjectPtr<UObject> Object;
		bool bAllowElimination = true;

		virtual void AddReferencedObjects(FReferenceCollector& Collector) override
		{
			Collector.AllowEliminatingReferences(bAllowElimination);
			Collector.AddReferencedObject(Object);
			Collector.AllowEliminatingReferences(true);
		}

		virtual FString GetReferencerName() const override { return TEXT("FTestReferencer"); }
	};

	/** Reports its references through every container form FReferenceCollector offers. */
	class FContainerReferencer final : public FGCObject
	{
	public:
		TArray<UObject*> Array;
		TSet<UObject*> Set;
		TMap<UObject*, TObjectPtr<UObject>> Map;
		FPersistenceTestStruct Struct;

		virtual void AddReferencedObjects(FReferenceCollector& Collector) override
		{
			Collector.AddReferencedObjects(Array);
			Collector.AddReferencedObjects(Set);
			Collector.AddReferencedObjects(Map);
			const UScriptStruct* StructType = FPersistenceTestStruct::StaticStruct();
			Collector.AddReferencedObjects(StructType, &Struct);
		}

		virtual FString GetReferencerName() const override { return TEXT("FContainerReferencer"); }
	};

	template<class T>
	T* NewTransient()
	{
		return NewObject<T>(GetTransientPackage());
	}

	class GarbageCollectionTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			CollectGarbage(RF_NoFlags);
			UPersistenceTestTracked::ResetCounters();
		}
	};
}

TEST_F(GarbageCollectionTest, UnreachableObjectGoesThroughEveryDestructionStep)
{
	const TWeakObjectPtr<UPersistenceTestTracked> Weak = NewTransient<UPersistenceTestTracked>();
	ASSERT_TRUE(Weak.IsValid());
	const int32 CollectionsBefore = GetNumGarbageCollections();

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(GetNumGarbageCollections(), CollectionsBefore + 1);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(UPersistenceTestTracked::NumBeginDestroy, 1);
	EXPECT_EQ(UPersistenceTestTracked::NumFinishDestroy, 1);
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 1);
}

TEST_F(GarbageCollectionTest, RootSetAndKeepFlagsKeepObjects)
{
	UPersistenceTestTracked* Rooted = NewTransient<UPersistenceTestTracked>();
	Rooted->AddToRoot();
	UPersistenceTestTracked* Standalone = NewObject<UPersistenceTestTracked>(GetTransientPackage(), NAME_None, RF_Standalone);
	const TWeakObjectPtr<UPersistenceTestTracked> WeakRooted = Rooted;
	const TWeakObjectPtr<UPersistenceTestTracked> WeakStandalone = Standalone;

	CollectGarbage(RF_Standalone);
	EXPECT_TRUE(WeakRooted.IsValid());
	EXPECT_TRUE(WeakStandalone.IsValid());
	EXPECT_TRUE(Rooted->IsRooted());

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(WeakRooted.IsValid());
	EXPECT_FALSE(WeakStandalone.IsValid());

	Rooted->RemoveFromRoot();
	EXPECT_FALSE(Rooted->IsRooted());
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(WeakRooted.IsValid());
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 2);
}

TEST_F(GarbageCollectionTest, ObjectsReachableThroughPropertiesAreKept)
{
	UPersistenceTestObject* Holder = NewTransient<UPersistenceTestObject>();
	Holder->AddToRoot();
	UObject* ByProperty = NewTransient<UPersistenceTestTracked>();
	UObject* ByArray = NewTransient<UPersistenceTestTracked>();
	UObject* ByMap = NewTransient<UPersistenceTestTracked>();
	UObject* ByStruct = NewTransient<UPersistenceTestTracked>();
	UObject* OnlyWeak = NewTransient<UPersistenceTestTracked>();
	UObject* OnlySoft = NewTransient<UPersistenceTestTracked>();
	Holder->Reference = ByProperty;
	Holder->ReferenceArray.Add(ByArray);
	Holder->ReferenceMap.Add(TEXT("Key"), ByMap);
	Holder->Struct.Reference = ByStruct;
	Holder->WeakReference = OnlyWeak;
	Holder->SoftReference = OnlySoft;
	const TWeakObjectPtr<UObject> Kept[] = { ByProperty, ByArray, ByMap, ByStruct };
	const TWeakObjectPtr<UObject> WeakOnlyWeak = OnlyWeak;
	const TWeakObjectPtr<UObject> WeakOnlySoft = OnlySoft;

	CollectGarbage(RF_NoFlags);

	for (const TWeakObjectPtr<UObject>& Weak : Kept)
	{
		EXPECT_TRUE(Weak.IsValid());
	}
	EXPECT_FALSE(WeakOnlyWeak.IsValid());
	EXPECT_FALSE(WeakOnlySoft.IsValid());
	EXPECT_EQ(Holder->WeakReference.Get(), nullptr);
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 2);
	Holder->RemoveFromRoot();
}

TEST_F(GarbageCollectionTest, ReachableObjectKeepsItsOuterChain)
{
	UPackage* Package = CreatePackage(TEXT("/Temp/GarbageCollectionOuterChain"));
	UPersistenceTestObject* Outer = NewObject<UPersistenceTestObject>(Package, TEXT("Outer"));
	UPersistenceTestObject* Inner = NewObject<UPersistenceTestObject>(Outer, TEXT("Inner"));
	UPersistenceTestObject* Sibling = NewObject<UPersistenceTestObject>(Package, TEXT("Sibling"));
	const TWeakObjectPtr<UObject> WeakPackage = Package;
	const TWeakObjectPtr<UObject> WeakOuter = Outer;
	const TWeakObjectPtr<UObject> WeakSibling = Sibling;
	Inner->AddToRoot();

	CollectGarbage(RF_NoFlags);

	EXPECT_TRUE(WeakPackage.IsValid());
	EXPECT_TRUE(WeakOuter.IsValid());
	EXPECT_FALSE(WeakSibling.IsValid());
	Inner->RemoveFromRoot();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(WeakPackage.IsValid());
	EXPECT_FALSE(WeakOuter.IsValid());
}

TEST_F(GarbageCollectionTest, StrongObjectPtrKeepsItsObjectUntilReset)
{
	TStrongObjectPtr<UPersistenceTestTracked> Strong(NewTransient<UPersistenceTestTracked>());
	const TWeakObjectPtr<UPersistenceTestTracked> Weak = Strong.Get();

	TStrongObjectPtr<UPersistenceTestTracked> Copy = Strong;
	Strong.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());

	TStrongObjectPtr<UPersistenceTestTracked> Moved = MoveTemp(Copy);
	EXPECT_FALSE(Copy.IsValid());
	EXPECT_EQ(Moved.Get(), Weak.Get());
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());

	Moved.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollectionTest, GCObjectKeepsItsReferencesWhileItExists)
{
	TWeakObjectPtr<UObject> Weak;
	{
		FTestReferencer Referencer;
		Referencer.Object = NewTransient<UPersistenceTestTracked>();
		Weak = Referencer.Object.Get();
		CollectGarbage(RF_NoFlags);
		EXPECT_TRUE(Weak.IsValid());
	}
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollectionTest, CollectorContainersKeepTheirObjectsAndOnlyNullModifiableGarbage)
{
	FContainerReferencer Referencer;
	UObject* InArray = NewTransient<UPersistenceTestTracked>();
	UObject* InSet = NewTransient<UPersistenceTestTracked>();
	UObject* MapKey = NewTransient<UPersistenceTestTracked>();
	UObject* MapValue = NewTransient<UPersistenceTestTracked>();
	UObject* InStruct = NewTransient<UPersistenceTestTracked>();
	Referencer.Array.Add(InArray);
	Referencer.Set.Add(InSet);
	Referencer.Map.Add(MapKey, MapValue);
	Referencer.Struct.Reference = InStruct;

	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 0);

	InSet->MarkAsGarbage();
	MapKey->MarkAsGarbage();
	MapValue->MarkAsGarbage();
	InArray->MarkAsGarbage();
	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Referencer.Array[0], nullptr);
	EXPECT_TRUE(Referencer.Set.Contains(InSet));
	ASSERT_NE(Referencer.Map.Find(MapKey), nullptr);
	EXPECT_EQ(*Referencer.Map.Find(MapKey), nullptr);
	EXPECT_TRUE(TWeakObjectPtr<UObject>(InSet).IsValid(true));
	EXPECT_TRUE(TWeakObjectPtr<UObject>(MapKey).IsValid(true));
	EXPECT_TRUE(TWeakObjectPtr<UObject>(InStruct).IsValid());
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 2);
}

TEST_F(GarbageCollectionTest, ClassAddReferencedObjectsKeepsNativeReferences)
{
	TStrongObjectPtr<UPersistenceTestNativeHolder> Holder(NewTransient<UPersistenceTestNativeHolder>());
	Holder->Held = NewTransient<UPersistenceTestTracked>();
	const TWeakObjectPtr<UObject> Weak = Holder->Held;

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());

	Holder->Held = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollectionTest, ReferencesToGarbageAreNulledAndTheGarbageDestroyed)
{
	TStrongObjectPtr<UPersistenceTestObject> Holder(NewTransient<UPersistenceTestObject>());
	UPersistenceTestTracked* Doomed = NewTransient<UPersistenceTestTracked>();
	Holder->Reference = Doomed;
	Holder->ReferenceArray.Add(Doomed);
	Holder->Struct.Reference = Doomed;
	FTestReferencer Referencer;
	Referencer.Object = Doomed;
	const TWeakObjectPtr<UPersistenceTestTracked> Weak = Doomed;

	Doomed->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Doomed));
	EXPECT_TRUE(Weak.IsValid(true));
	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Holder->Reference, nullptr);
	ASSERT_EQ(Holder->ReferenceArray.Num(), 1);
	EXPECT_EQ(Holder->ReferenceArray[0], nullptr);
	EXPECT_EQ(Holder->Struct.Reference, nullptr);
	EXPECT_EQ(Referencer.Object, nullptr);
	EXPECT_FALSE(Weak.IsValid(true));
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 1);
}

TEST_F(GarbageCollectionTest, ReferencerThatForbidsEliminationKeepsGarbageAlive)
{
	FTestReferencer Referencer;
	Referencer.bAllowElimination = false;
	UPersistenceTestTracked* Garbage = NewTransient<UPersistenceTestTracked>();
	Referencer.Object = Garbage;
	Garbage->MarkAsGarbage();

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Referencer.Object, Garbage);
	EXPECT_TRUE(TWeakObjectPtr<UObject>(Garbage).IsValid(true));
	Garbage->ClearGarbage();
	EXPECT_TRUE(IsValid(Garbage));
	Referencer.Object = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UPersistenceTestTracked::NumDestructed, 1);
}

TEST_F(GarbageCollectionTest, RootedObjectCannotBeMarkedAsGarbage)
{
	TStrongObjectPtr<UPersistenceTestObject> Guard(NewTransient<UPersistenceTestObject>());
	Guard->AddToRoot();
	Guard->MarkAsGarbage();
	EXPECT_TRUE(IsValid(Guard.Get()));
	EXPECT_FALSE(Guard->HasAnyInternalFlags(EInternalObjectFlags::Garbage));
	Guard->RemoveFromRoot();
}

TEST_F(GarbageCollectionTest, DestructionHappensDuringACollectionThatCannotBeReentered)
{
	NewTransient<UPersistenceTestTracked>();
	bool bUnreachable = false;
	bool bCollecting = false;
	bool bNestedRefused = false;
	UPersistenceTestTracked::OnBeginDestroy = [&](UObject* Object)
	{
		bUnreachable = Object->IsUnreachable();
		bCollecting = IsGarbageCollecting();
		bNestedRefused = !TryCollectGarbage(RF_NoFlags);
	};

	CollectGarbage(RF_NoFlags);
	UPersistenceTestTracked::OnBeginDestroy = nullptr;

	EXPECT_TRUE(bUnreachable);
	EXPECT_TRUE(bCollecting);
	EXPECT_TRUE(bNestedRefused);
	EXPECT_FALSE(IsGarbageCollecting());
}
