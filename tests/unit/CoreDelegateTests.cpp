#include "CoreMinimal.h"

#include <gtest/gtest.h>

DECLARE_DELEGATE_OneParam(FOnValue, int32);
DECLARE_DELEGATE_RetVal_TwoParams(int32, FCombine, int32, int32);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnNamed, const FString&);

namespace
{
	struct FReceiver
	{
		int32 Total = 0;
		void AddValue(int32 Value) { Total += Value; }
		void AddWithBonus(int32 Value, int32 Bonus) { Total += Value + Bonus; }
		int32 Multiply(int32 A, int32 B) const { return A * B; }
	};

	struct FSharedReceiver : public TSharedFromThis<FSharedReceiver>
	{
		TArray<FString> Received;
		void Receive(const FString& Name) { Received.Add(Name); }
	};

	int32 StaticSum(int32 A, int32 B)
	{
		return A + B;
	}

	int32 ScaledSum(int32 A, int32 B, int32 Scale)
	{
		return (A + B) * Scale;
	}
}

TEST(CoreDelegate, SingleCastBindsExecutesAndUnbinds)
{
	FReceiver Receiver;
	FOnValue OnValue;
	EXPECT_FALSE(OnValue.IsBound());
	EXPECT_FALSE(OnValue.ExecuteIfBound(1));

	OnValue.BindRaw(&Receiver, &FReceiver::AddValue);
	EXPECT_TRUE(OnValue.IsBound());
	EXPECT_TRUE(OnValue.IsBoundToObject(&Receiver));
	EXPECT_TRUE(OnValue.ExecuteIfBound(5));
	OnValue.Execute(2);
	EXPECT_EQ(Receiver.Total, 7);

	OnValue = FOnValue::CreateRaw(&Receiver, &FReceiver::AddWithBonus, 100);
	OnValue.Execute(1);
	EXPECT_EQ(Receiver.Total, 108);

	int32 Captured = 0;
	OnValue.BindLambda([&Captured](int32 Value) { Captured = Value * 2; });
	OnValue.Execute(21);
	EXPECT_EQ(Captured, 42);
	OnValue.Unbind();
	EXPECT_FALSE(OnValue.IsBound());

	EXPECT_EQ(FCombine::CreateStatic(&StaticSum).Execute(2, 3), 5);
	EXPECT_EQ(FCombine::CreateRaw(&Receiver, &FReceiver::Multiply).Execute(4, 5), 20);
	FCombine WithPayload = FCombine::CreateLambda([](int32 A, int32 B, int32 C) { return A + B + C; }, 10);
	EXPECT_EQ(WithPayload.Execute(1, 2), 13);
	EXPECT_DEATH(FCombine().Execute(1, 2), "Execute called on an unbound delegate");
}

TEST(CoreDelegate, DelegatesStayValidWhenTheArrayHoldingThemGrows)
{
	TArray<FCombine> Delegates;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Delegates.Add(FCombine::CreateLambda([Index](int32 A, int32 B) { return A * B + Index; }));
	}
	TArray<FCombine> Copies = Delegates;
	Delegates.RemoveAt(0, 50);
	Delegates.Insert(FCombine::CreateStatic(&StaticSum), 0);
	EXPECT_EQ(Delegates[0].Execute(2, 2), 4);
	EXPECT_EQ(Delegates[1].Execute(2, 3), 56);
	EXPECT_EQ(Delegates.Last().Execute(1, 1), 200);
	for (int32 Index = 0; Index < Copies.Num(); ++Index)
	{
		ASSERT_EQ(Copies[Index].Execute(3, 3), 9 + Index);
	}
}

TEST(CoreDelegate, SharedPointerBindingsExpireWithTheirObject)
{
	FOnNamed OnNamed;
	TSharedRef<FSharedReceiver> Receiver = MakeShared<FSharedReceiver>();
	OnNamed.AddSP(Receiver, &FSharedReceiver::Receive);
	OnNamed.AddSP(&Receiver.Get(), &FSharedReceiver::Receive);
	OnNamed.Broadcast(TEXT("first"));
	EXPECT_EQ(Receiver->Received.Num(), 2);
	EXPECT_EQ(Receiver.GetSharedReferenceCount(), 1);

	TWeakPtr<FSharedReceiver> Weak = Receiver;
	Receiver = MakeShared<FSharedReceiver>();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(OnNamed.IsBound());
	OnNamed.Broadcast(TEXT("nobody listens"));
}

TEST(CoreDelegate, MulticastRunsNewestFirstAndToleratesChangesDuringBroadcast)
{
	FOnNamed OnNamed;
	TArray<FString> Calls;
	const FDelegateHandle First = OnNamed.AddLambda([&Calls](const FString& Name) { Calls.Add(TEXT("first:") + Name); });
	FDelegateHandle Second;
	Second = OnNamed.AddLambda([&Calls, &OnNamed, &Second](const FString& Name)
	{
		Calls.Add(TEXT("second:") + Name);
		OnNamed.Remove(Second);
		OnNamed.AddLambda([&Calls](const FString& Inner) { Calls.Add(TEXT("added:") + Inner); });
	});
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, Second);

	OnNamed.Broadcast(TEXT("a"));
	EXPECT_EQ(Calls, (TArray<FString>{ TEXT("second:a"), TEXT("first:a") }));

	Calls.Reset();
	OnNamed.Broadcast(TEXT("b"));
	EXPECT_EQ(Calls, (TArray<FString>{ TEXT("added:b"), TEXT("first:b") }));

	EXPECT_TRUE(OnNamed.Remove(First));
	EXPECT_FALSE(OnNamed.Remove(First));
	FReceiver Receiver;
	EXPECT_EQ(OnNamed.RemoveAll(&Receiver), 0);
	OnNamed.Clear();
	EXPECT_FALSE(OnNamed.IsBound());
}

TEST(CoreDelegate, MulticastRemoveAllMatchesTheBoundObject)
{
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnInt, int32);
	FOnInt OnInt;
	FReceiver A;
	FReceiver B;
	OnInt.AddRaw(&A, &FReceiver::AddValue);
	OnInt.AddRaw(&B, &FReceiver::AddValue);
	OnInt.AddRaw(&A, &FReceiver::AddWithBonus, 1);
	EXPECT_TRUE(OnInt.IsBoundToObject(&A));
	EXPECT_EQ(OnInt.RemoveAll(&A), 2);
	EXPECT_FALSE(OnInt.IsBoundToObject(&A));
	OnInt.Broadcast(3);
	EXPECT_EQ(A.Total, 0);
	EXPECT_EQ(B.Total, 3);

	FOnInt Copy = OnInt;
	Copy.Broadcast(4);
	EXPECT_EQ(B.Total, 7);
}

TEST(CoreDelegate, SharedPointerLambdasAndPayloadsFollowTheirBinding)
{
	TSharedRef<FSharedReceiver> Owner = MakeShared<FSharedReceiver>();
	int32 Calls = 0;
	FOnValue OnValue = FOnValue::CreateSPLambda(Owner, [&Calls](int32 Value) { Calls += Value; });
	EXPECT_TRUE(OnValue.ExecuteIfBound(2));
	EXPECT_TRUE(OnValue.IsBoundToObject(&Owner.Get()));
	Owner = MakeShared<FSharedReceiver>();
	EXPECT_FALSE(OnValue.IsBound());
	EXPECT_FALSE(OnValue.ExecuteIfBound(5));
	EXPECT_EQ(Calls, 2);

	FCombine WithStaticPayload = FCombine::CreateStatic(&ScaledSum, 3);
	EXPECT_EQ(WithStaticPayload.Execute(1, 1), 6);
	FCombine Copied = WithStaticPayload;
	WithStaticPayload.Unbind();
	EXPECT_EQ(Copied.Execute(2, 2), 12);
	EXPECT_FALSE(Copied.GetHandle().IsValid());
	EXPECT_EQ(Copied.GetUObject(), nullptr);
}

TEST(CoreDelegate, ClearingAMulticastDuringItsBroadcastIsSafe)
{
	FOnNamed OnNamed;
	TArray<FString> Calls;
	OnNamed.AddLambda([&Calls](const FString& Name) { Calls.Add(TEXT("older:") + Name); });
	OnNamed.AddLambda([&Calls, &OnNamed, Captured = FString(TEXT("kept alive"))](const FString& Name)
	{
		OnNamed.Clear();
		Calls.Add(Captured + TEXT(":") + Name);
	});
	OnNamed.Broadcast(TEXT("x"));
	EXPECT_EQ(Calls, (TArray<FString>{ TEXT("kept alive:x") }));
	EXPECT_FALSE(OnNamed.IsBound());
	OnNamed.Broadcast(TEXT("y"));
	EXPECT_EQ(Calls.Num(), 1);

	const FDelegateHandle Handle = OnNamed.AddLambda([&Calls](const FString& Name) { Calls.Add(Name); });
	OnNamed.Broadcast(TEXT("z"));
	EXPECT_EQ(Calls.Last(), TEXT("z"));
	EXPECT_TRUE(OnNamed.Remove(Handle));
	EXPECT_FALSE(OnNamed.Remove(FDelegateHandle()));
}
