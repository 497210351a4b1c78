#include "PersistenceTestTypes.h"

#include "Delegates/Delegate.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	UPersistenceTestObject* NewTestObject()
	{
		return NewObject<UPersistenceTestObject>(GetTransientPackage());
	}

	/** Makes objects until one lands in the slot; they stay alive until the array is emptied. */
	UPersistenceTestObject* NewTestObjectInSlot(int32 Index, TArray<TStrongObjectPtr<UPersistenceTestObject>>& OutKeepAlive)
	{
		for (int32 Attempt = 0; Attempt < 100000; ++Attempt)
		{
			UPersistenceTestObject* Object = NewTestObject();
			OutKeepAlive.Emplace(Object);
			if (Object->GetUniqueID() == Index)
			{
				return Object;
			}
		}
		return nullptr;
	}
}

DECLARE_DELEGATE_RetVal_OneParam(int32, FWeakTestDelegate, int32);
DECLARE_DELEGATE_OneParam(FWeakTestVoidDelegate, int32);
DECLARE_MULTICAST_DELEGATE_OneParam(FWeakTestMulticastDelegate, int32);

class UWeakPtrTestListener : public UObject
{
	STANDIN_CLASS_BODY(UWeakPtrTestListener, UObject, )

public:
	int32 Received = 0;
	int32 Double(int32 Value) { Received += Value; return Value * 2; }
	void Receive(int32 Value) { Received += Value; }
};

STANDIN_IMPLEMENT_CLASS(UWeakPtrTestListener, CLASS_None, "PersistenceTests")
{
}

TEST(WeakObjectPtr, NullAndStaleStatesFollowTheObjectLifetime)
{
	const FWeakObjectPtr Unset;
	EXPECT_TRUE(Unset.IsExplicitlyNull());
	EXPECT_FALSE(Unset.IsStale());
	EXPECT_EQ(Unset.Get(), nullptr);

	UPersistenceTestObject* Object = NewTestObject();
	const FWeakObjectPtr Weak(Object);
	EXPECT_EQ(Weak.Get(), Object);
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_FALSE(Weak.IsStale());
	EXPECT_FALSE(Weak.IsExplicitlyNull());

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(Weak.GetEvenIfUnreachable(), nullptr);
	EXPECT_FALSE(Weak.IsValid(true));
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_FALSE(Weak.IsExplicitlyNull());
}

TEST(WeakObjectPtr, ObjectCreatedInAReusedSlotIsNotReachedThroughTheOldPointer)
{
	UPersistenceTestObject* First = NewTestObject();
	const int32 FirstIndex = First->GetUniqueID();
	const FWeakObjectPtr OldWeak(First);
	const int32 OldSerial = GUObjectArray.GetSerialNumber(FirstIndex);
	CollectGarbage(RF_NoFlags);

	TArray<TStrongObjectPtr<UPersistenceTestObject>> KeepAlive;
	UPersistenceTestObject* Second = NewTestObjectInSlot(FirstIndex, KeepAlive);
	ASSERT_NE(Second, nullptr);
	const FWeakObjectPtr NewWeak(Second);

	EXPECT_NE(GUObjectArray.GetSerialNumber(FirstIndex), OldSerial);
	EXPECT_EQ(OldWeak.Get(), nullptr);
	EXPECT_TRUE(OldWeak.IsStale());
	EXPECT_EQ(NewWeak.Get(), Second);
	EXPECT_FALSE(OldWeak.HasSameIndexAndSerialNumber(NewWeak));
	EXPECT_NE(OldWeak, NewWeak);
	// Two pointers to objects that are gone compare equal, as in the engine.
	EXPECT_EQ(OldWeak, FWeakObjectPtr());
}

TEST(WeakObjectPtr, GarbageObjectsAreOnlyReachedWhenAskedFor)
{
	TStrongObjectPtr<UPersistenceTestObject> Keep(NewTestObject());
	const TWeakObjectPtr<UPersistenceTestObject> Weak = Keep.Get();
	Keep->MarkAsGarbage();

	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(Weak.Get(true), Keep.Get());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsValid(true));
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_FALSE(Weak.IsStale(false));
	EXPECT_FALSE((bool)Weak);
	Keep->ClearGarbage();
	EXPECT_EQ(Weak.Get(), Keep.Get());
}

TEST(WeakObjectPtr, TypedPointerConvertsComparesAndHashes)
{
	TStrongObjectPtr<UPersistenceTestOwner> Owner(NewObject<UPersistenceTestOwner>(GetTransientPackage()));
	const TWeakObjectPtr<UPersistenceTestOwner> WeakOwner = MakeWeakObjectPtr(Owner.Get());
	const TWeakObjectPtr<UPersistenceTestObject> WeakBase = WeakOwner;
	const TWeakObjectPtr<UObject> WeakInner(Owner->Inner.Get());

	EXPECT_TRUE(WeakBase == WeakOwner);
	EXPECT_TRUE(WeakOwner == Owner.Get());
	EXPECT_TRUE(WeakInner != Owner.Get());
	EXPECT_TRUE(WeakOwner != nullptr);
	EXPECT_EQ(WeakOwner->Inner, Owner->Inner);
	EXPECT_EQ(&*WeakOwner, Owner.Get());

	TSet<TWeakObjectPtr<UPersistenceTestObject>> Set;
	Set.Add(WeakOwner);
	EXPECT_TRUE(Set.Contains(TWeakObjectPtr<UPersistenceTestObject>(Owner.Get())));
	EXPECT_FALSE(Set.Contains(TWeakObjectPtr<UPersistenceTestObject>(Owner->Inner.Get())));

	TWeakObjectPtr<UPersistenceTestObject> Reassigned;
	Reassigned = Owner->Inner;
	EXPECT_EQ(Reassigned.Get(), Owner->Inner.Get());
	Reassigned = nullptr;
	EXPECT_TRUE(Reassigned.IsExplicitlyNull());
}

TEST(WeakObjectPtr, DelegatesBoundToAnObjectStopOnceItIsGone)
{
	UWeakPtrTestListener* Listener = NewObject<UWeakPtrTestListener>(GetTransientPackage());
	FWeakTestDelegate Single = FWeakTestDelegate::CreateUObject(Listener, &UWeakPtrTestListener::Double);
	FWeakTestVoidDelegate Void;
	Void.BindUObject(Listener, &UWeakPtrTestListener::Receive);
	FWeakTestMulticastDelegate Multi;
	Multi.AddUObject(Listener, &UWeakPtrTestListener::Receive);
	int32 LambdaCalls = 0;
	FWeakTestMulticastDelegate WeakLambda;
	WeakLambda.AddWeakLambda(Listener, [&LambdaCalls](int32) { ++LambdaCalls; });

	EXPECT_TRUE(Single.IsBound());
	EXPECT_EQ(Single.GetUObject(), Listener);
	EXPECT_EQ(Single.Execute(5), 10);
	EXPECT_TRUE(Void.ExecuteIfBound(2));
	Multi.Broadcast(3);
	WeakLambda.Broadcast(1);
	EXPECT_EQ(Listener->Received, 10);
	EXPECT_EQ(LambdaCalls, 1);

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Single.IsBound());
	EXPECT_FALSE(Void.IsBound());
	EXPECT_FALSE(Void.ExecuteIfBound(1));
	Multi.Broadcast(3);
	WeakLambda.Broadcast(1);
	EXPECT_EQ(LambdaCalls, 1);
}
