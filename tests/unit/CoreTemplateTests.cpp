#include "CoreMinimal.h"

#include <gtest/gtest.h>

namespace
{
	struct FNode : public TSharedFromThis<FNode>
	{
		explicit FNode(int32 InId) : Id(InId) {}
		virtual ~FNode() { ++DestroyedCount(); }
		static int32& DestroyedCount()
		{
			static int32 Count = 0;
			return Count;
		}
		int32 Id;
	};

	struct FDerivedNode : public FNode
	{
		FDerivedNode() : FNode(7) {}
	};
}

TEST(CoreTemplate, SharedPointersCountReferencesAndDestroyOnce)
{
	FNode::DestroyedCount() = 0;
	TWeakPtr<FNode> Weak;
	{
		TSharedPtr<FNode> Shared = MakeShared<FNode>(1);
		EXPECT_EQ(Shared.GetSharedReferenceCount(), 1);
		TSharedRef<FNode> Ref = Shared.ToSharedRef();
		EXPECT_EQ(Shared.GetSharedReferenceCount(), 2);
		Weak = Shared;
		EXPECT_TRUE(Weak.Pin().IsValid());
		EXPECT_EQ(Weak.Pin()->Id, 1);
		TSharedRef<FNode> FromThis = Shared->AsShared();
		EXPECT_EQ(&FromThis.Get(), Shared.Get());
		EXPECT_EQ(Shared.GetSharedReferenceCount(), 3);
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
	EXPECT_EQ(FNode::DestroyedCount(), 1);

	TSharedPtr<FNode> Shareable = MakeShareable(new FDerivedNode());
	EXPECT_EQ(Shareable->AsShared()->Id, 7);
	TSharedPtr<FDerivedNode> Derived = StaticCastSharedPtr<FDerivedNode>(Shareable);
	EXPECT_EQ(Derived.Get(), Shareable.Get());
	EXPECT_EQ(Shareable.GetSharedReferenceCount(), 2);
	Shareable.Reset();
	Derived.Reset();
	EXPECT_EQ(FNode::DestroyedCount(), 2);

	TSharedPtr<FNode> Null;
	EXPECT_FALSE(Null.IsValid());
	EXPECT_TRUE(Null == nullptr);
	EXPECT_DEATH(Null.ToSharedRef(), "ToSharedRef called on a null TSharedPtr");
}

TEST(CoreTemplate, UniquePtrOwnsAlone)
{
	FNode::DestroyedCount() = 0;
	TUniquePtr<FNode> Unique = MakeUnique<FNode>(3);
	EXPECT_TRUE(Unique.IsValid());
	TUniquePtr<FNode> Moved = MoveTemp(Unique);
	EXPECT_FALSE(Unique.IsValid());
	EXPECT_EQ(Moved->Id, 3);
	Moved.Reset();
	EXPECT_EQ(FNode::DestroyedCount(), 1);
	TArray<TUniquePtr<FNode>> Owners;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Owners.Add(MakeUnique<FNode>(Index));
	}
	EXPECT_EQ(Owners[49]->Id, 49);
	Owners.RemoveAt(0, 10);
	EXPECT_EQ(FNode::DestroyedCount(), 11);
}

TEST(CoreTemplate, OptionalHoldsOrDefaults)
{
	TOptional<FString> Value;
	EXPECT_FALSE(Value.IsSet());
	EXPECT_STREQ(*Value.Get(TEXT("fallback")), TEXT("fallback"));
	Value = FString(TEXT("set"));
	EXPECT_TRUE(Value.IsSet());
	EXPECT_STREQ(*Value.GetValue(), TEXT("set"));
	Value.Emplace(TEXT("again"));
	EXPECT_STREQ(**Value, TEXT("again"));
	TOptional<FString> Copy = Value;
	EXPECT_TRUE(Copy == Value);
	Value.Reset();
	EXPECT_FALSE(Value.IsSet());
	EXPECT_FALSE(Copy == Value);
	EXPECT_DEATH(Value.GetValue(), "unset TOptional");
}

TEST(CoreTemplate, FunctionsCopyMoveAndReference)
{
	int32 Calls = 0;
	TFunction<int32(int32)> Doubler = [&Calls](int32 Value)
	{
		++Calls;
		return Value * 2;
	};
	TFunction<int32(int32)> Copy = Doubler;
	EXPECT_EQ(Doubler(2), 4);
	EXPECT_EQ(Copy(5), 10);
	EXPECT_EQ(Calls, 2);
	TFunction<int32(int32)> Empty;
	EXPECT_FALSE(Empty);
	EXPECT_TRUE(Empty == nullptr);
	EXPECT_DEATH(Empty(1), "Attempting to call an unbound TFunction");

	TUniquePtr<int32> Owned = MakeUnique<int32>(9);
	TUniqueFunction<int32()> Unique = [Owned = MoveTemp(Owned)]() { return *Owned; };
	TUniqueFunction<int32()> MovedUnique = MoveTemp(Unique);
	EXPECT_FALSE(Unique.IsSet());
	EXPECT_EQ(MovedUnique(), 9);

	auto Accumulate = [](TFunctionRef<void(int32)> Visitor)
	{
		for (int32 Index = 1; Index <= 3; ++Index)
		{
			Visitor(Index);
		}
	};
	int32 Sum = 0;
	Accumulate([&Sum](int32 Value) { Sum += Value; });
	EXPECT_EQ(Sum, 6);
}

TEST(CoreTemplate, TupleAndMathHelpers)
{
	TTuple<int32, FString, double> Tuple = MakeTuple(1, FString(TEXT("two")), 3.0);
	EXPECT_EQ(Tuple.Get<0>(), 1);
	EXPECT_STREQ(*Tuple.Get<1>(), TEXT("two"));
	TPair<FName, int32> Pair(FName(TEXT("Key")), 5);
	EXPECT_EQ(Pair.Key, FName(TEXT("Key")));
	EXPECT_EQ(Pair.Get<1>(), 5);
	auto [Number, Text, Real] = Tuple;
	EXPECT_EQ(Number, 1);
	EXPECT_STREQ(*Text, TEXT("two"));
	EXPECT_DOUBLE_EQ(Real, 3.0);
	TMap<FString, int32> Map = { { TEXT("a"), 1 }, { TEXT("b"), 2 } };
	int32 Sum = 0;
	for (const auto& [Key, Value] : Map)
	{
		Sum += Value * (Key == TEXT("B") ? 10 : 1);
	}
	EXPECT_EQ(Sum, 21);

	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
	EXPECT_EQ(FMath::RoundToInt(2.5f), 3);
	EXPECT_EQ(FMath::RoundToInt(-2.5f), -2);
	EXPECT_EQ(FMath::FloorToInt(-1.5f), -2);
	EXPECT_EQ(FMath::CeilToInt(1.2), 2);
	EXPECT_EQ(FMath::TruncToInt(-1.7f), -1);
	EXPECT_NEAR(FMath::Frac(-1.25), 0.75, 1e-12);
	EXPECT_TRUE(FMath::IsNearlyEqual(0.1 + 0.2, 0.3));
	EXPECT_EQ(FMath::Sign(-4), -1);
	EXPECT_DOUBLE_EQ(FMath::Fmod(7.5, 2.0), 1.5);
	struct FRange2D
	{
		double X;
		double Y;
	};
	EXPECT_DOUBLE_EQ(FMath::GetMappedRangeValueClamped(FRange2D{ 0.0, 10.0 }, FRange2D{ 100.0, 200.0 }, 2.5), 125.0);
	EXPECT_DOUBLE_EQ(FMath::GetMappedRangeValueClamped(FRange2D{ 0.0, 10.0 }, FRange2D{ 100.0, 200.0 }, 20.0), 200.0);
	EXPECT_DOUBLE_EQ(FMath::GetMappedRangeValueUnclamped(FRange2D{ 0.0, 10.0 }, FRange2D{ 100.0, 200.0 }, -10.0), 0.0);
	for (int32 Index = 0; Index < 100; ++Index)
	{
		const int32 Random = FMath::RandRange(3, 5);
		ASSERT_GE(Random, 3);
		ASSERT_LE(Random, 5);
		const float Fraction = FMath::FRand();
		ASSERT_GE(Fraction, 0.0f);
		ASSERT_LT(Fraction, 1.0f);
	}
	FMath::SRandInit(7);
	const float FirstRun = FMath::SRand();
	FMath::SRandInit(7);
	EXPECT_EQ(FMath::SRand(), FirstRun);
}
