#include "CoreMinimal.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace
{
	/** Counts live instances, so tests can see every construction is matched by a destruction. */
	struct FTracked
	{
		static int32& LiveCount()
		{
			static int32 Count = 0;
			return Count;
		}

		explicit FTracked(int32 InValue = 0) : Value(InValue) { ++LiveCount(); }
		FTracked(const FTracked& Other) : Value(Other.Value) { ++LiveCount(); }
		FTracked& operator=(const FTracked& Other) = default;
		~FTracked() { --LiveCount(); }
		bool operator==(const FTracked& Other) const { return Value == Other.Value; }

		int32 Value;
	};

	FString Numbered(int32 Index)
	{
		return FString::Printf(TEXT("Element number %d with a long enough text to need the heap"), Index);
	}
}

TEST(CoreContainer, ArrayOfStringsSurvivesManyReallocations)
{
	TArray<FString> Strings;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Strings.Add(Numbered(Index));
	}
	ASSERT_EQ(Strings.Num(), 1000);
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		ASSERT_EQ(Strings[Index], Numbered(Index));
	}

	Strings.RemoveAt(10, 5);
	EXPECT_EQ(Strings.Num(), 995);
	EXPECT_EQ(Strings[10], Numbered(15));
	Strings.Insert(TEXT("inserted"), 0);
	Strings.Insert({ FString(TEXT("x")), FString(TEXT("y")) }, 500);
	EXPECT_EQ(Strings[0], TEXT("inserted"));
	EXPECT_EQ(Strings[500], TEXT("x"));
	EXPECT_EQ(Strings[501], TEXT("y"));
	EXPECT_EQ(Strings.Last(), Numbered(999));

	// Adding an element of the array to itself while it grows must copy it before the storage moves.
	TArray<FString> SelfAdd;
	SelfAdd.Add(Numbered(1));
	for (int32 Index = 0; Index < 64; ++Index)
	{
		SelfAdd.Add(SelfAdd[0]);
	}
	EXPECT_EQ(SelfAdd.Last(), Numbered(1));
	SelfAdd.Append(SelfAdd);
	EXPECT_EQ(SelfAdd.Num(), 130);

	Strings.Empty();
	EXPECT_EQ(Strings.Num(), 0);
	EXPECT_EQ(Strings.Max(), 0);
}

TEST(CoreContainer, ArrayConstructsAndDestroysEveryElementOnce)
{
	ASSERT_EQ(FTracked::LiveCount(), 0);
	{
		TArray<FTracked> Items;
		for (int32 Index = 0; Index < 100; ++Index)
		{
			Items.Emplace(Index);
		}
		EXPECT_EQ(FTracked::LiveCount(), 100);
		Items.RemoveAt(0, 10);
		Items.RemoveAtSwap(0);
		EXPECT_EQ(Items[0].Value, 99);
		EXPECT_EQ(Items.RemoveAll([](const FTracked& Item) { return Item.Value % 2 == 0; }), 44);
		EXPECT_EQ(FTracked::LiveCount(), Items.Num());
		Items.SetNum(5);
		EXPECT_EQ(FTracked::LiveCount(), 5);
		Items.SetNum(8);
		EXPECT_EQ(Items[7].Value, 0);
		TArray<FTracked> Copy = Items;
		EXPECT_EQ(FTracked::LiveCount(), 16);
		TArray<FTracked> Moved = MoveTemp(Copy);
		EXPECT_EQ(FTracked::LiveCount(), 16);
		EXPECT_EQ(Moved, Items);
		Items.Pop();
		EXPECT_EQ(FTracked::LiveCount(), 15);
	}
	EXPECT_EQ(FTracked::LiveCount(), 0);
}

TEST(CoreContainer, ArraySearchAndSortFollowEngineSemantics)
{
	TArray<int32> Numbers = { 5, 3, 9, 3, 1 };
	EXPECT_EQ(Numbers.Find(3), 1);
	EXPECT_EQ(Numbers.FindLast(3), 3);
	EXPECT_EQ(Numbers.Find(42), INDEX_NONE);
	int32 FoundIndex = -5;
	EXPECT_TRUE(Numbers.Find(9, FoundIndex));
	EXPECT_EQ(FoundIndex, 2);
	EXPECT_EQ(Numbers.IndexOfByPredicate([](int32 Value) { return Value > 5; }), 2);
	EXPECT_EQ(*Numbers.FindByPredicate([](int32 Value) { return Value < 3; }), 1);
	EXPECT_EQ(Numbers.FindByKey(7), nullptr);
	EXPECT_EQ(Numbers.FilterByPredicate([](int32 Value) { return Value == 3; }).Num(), 2);
	EXPECT_EQ(Numbers.AddUnique(9), 2);
	EXPECT_EQ(Numbers.AddUnique(10), 5);
	EXPECT_EQ(Numbers.Remove(3), 2);
	EXPECT_EQ(Numbers.RemoveSingle(5), 1);
	EXPECT_EQ(Numbers, (TArray<int32>{ 9, 1, 10 }));

	Numbers.Sort();
	EXPECT_EQ(Numbers, (TArray<int32>{ 1, 9, 10 }));
	Numbers.Sort([](int32 A, int32 B) { return A > B; });
	EXPECT_EQ(Numbers, (TArray<int32>{ 10, 9, 1 }));

	int32 Values[] = { 30, 10, 20 };
	TArray<int32*> Pointers = { &Values[0], &Values[1], &Values[2] };
	Pointers.Sort();
	EXPECT_EQ(*Pointers[0], 10);
	EXPECT_EQ(*Pointers[2], 30);

	TArray<FString> Names = { TEXT("b"), TEXT("A"), TEXT("c") };
	Names.StableSort();
	EXPECT_EQ(Names[0], TEXT("A"));
	EXPECT_EQ(Names[2], TEXT("c"));

	Numbers.Push(4);
	EXPECT_EQ(Numbers.Top(), 4);
	EXPECT_EQ(Numbers.Pop(), 4);
	Numbers.Swap(0, 2);
	EXPECT_EQ(Numbers[0], 1);

	int32 Sum = 0;
	for (int32 Value : Numbers)
	{
		Sum += Value;
	}
	EXPECT_EQ(Sum, 20);

	for (auto It = Numbers.CreateIterator(); It; ++It)
	{
		if (*It == 9)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Numbers, (TArray<int32>{ 1, 10 }));
	EXPECT_EQ(MakeArrayView(Numbers).Num(), 2);
	EXPECT_TRUE(TArrayView<const int32>(Numbers).Contains(10));
}

TEST(CoreContainer, ArrayIndexOutOfBoundsFailsTheCheck)
{
	TArray<int32> Numbers = { 1, 2, 3 };
	EXPECT_DEATH((void)Numbers[3], "Array index out of bounds: 3 into an array of size 3");
	EXPECT_DEATH(Numbers.RemoveAt(2, 2), "Array range out of bounds");
}

TEST(CoreContainer, ScriptArrayEditsATypedArrayWithoutItsType)
{
	static_assert(sizeof(TArray<int64>) == sizeof(FScriptArray));
	TArray<int64> Typed = { 10, 20, 30 };
	FScriptArray& Erased = reinterpret_cast<FScriptArray&>(Typed);
	EXPECT_EQ(Erased.Num(), 3);

	const int32 OldNum = Erased.Add(2, sizeof(int64), alignof(int64));
	EXPECT_EQ(OldNum, 3);
	static_cast<int64*>(Erased.GetData())[3] = 40;
	static_cast<int64*>(Erased.GetData())[4] = 50;
	EXPECT_EQ(Typed, (TArray<int64>{ 10, 20, 30, 40, 50 }));

	Erased.Insert(1, 1, sizeof(int64), alignof(int64));
	static_cast<int64*>(Erased.GetData())[1] = 15;
	EXPECT_EQ(Typed, (TArray<int64>{ 10, 15, 20, 30, 40, 50 }));

	Erased.Remove(0, 2, sizeof(int64), alignof(int64));
	EXPECT_EQ(Typed, (TArray<int64>{ 20, 30, 40, 50 }));
	EXPECT_TRUE(Erased.IsValidIndex(3));
	EXPECT_FALSE(Erased.IsValidIndex(4));

	for (int32 Index = 0; Index < 200; ++Index)
	{
		Typed.Add(Index);
	}
	EXPECT_EQ(Erased.Num(), 204);
	EXPECT_EQ(static_cast<int64*>(Erased.GetData())[203], 199);

	FScriptArray Other;
	Other.Add(1, sizeof(int64), alignof(int64));
	static_cast<int64*>(Other.GetData())[0] = 7;
	Erased.MoveAssign(Other, sizeof(int64), alignof(int64));
	EXPECT_EQ(Typed, (TArray<int64>{ 7 }));
	EXPECT_EQ(Other.Num(), 0);

	Erased.Empty(0, sizeof(int64), alignof(int64));
	EXPECT_TRUE(Typed.IsEmpty());
}

TEST(CoreContainer, MapKeepsInsertionOrderAndReplacesValues)
{
	TMap<FString, int32> Map;
	Map.Add(TEXT("Zeta"), 1);
	Map.Add(TEXT("Alpha"), 2);
	Map.Add(TEXT("Mid"), 3);
	Map.Add(TEXT("alpha"), 20);
	EXPECT_EQ(Map.Num(), 3);

	TArray<FString> Keys;
	Map.GenerateKeyArray(Keys);
	EXPECT_EQ(Keys, (TArray<FString>{ TEXT("Zeta"), TEXT("Alpha"), TEXT("Mid") }));
	// As in the engine, adding an existing key replaces the whole pair, so the key takes the new spelling.
	EXPECT_STREQ(*Keys[1], TEXT("alpha"));
	TArray<int32> Values;
	Map.GenerateValueArray(Values);
	EXPECT_EQ(Values, (TArray<int32>{ 1, 20, 3 }));

	EXPECT_EQ(*Map.Find(TEXT("ALPHA")), 20);
	EXPECT_EQ(Map.Find(TEXT("missing")), nullptr);
	EXPECT_EQ(Map.FindRef(TEXT("missing")), 0);
	EXPECT_EQ(Map.FindRef(TEXT("missing"), 7), 7);
	EXPECT_EQ(Map[TEXT("mid")], 3);
	EXPECT_EQ(Map.FindOrAdd(TEXT("New")), 0);
	Map.FindOrAdd(TEXT("New")) = 4;
	EXPECT_EQ(Map.FindChecked(TEXT("New")), 4);
	EXPECT_TRUE(Map.Contains(TEXT("zeta")));
	EXPECT_EQ(*Map.FindKey(3), TEXT("Mid"));

	EXPECT_EQ(Map.Remove(TEXT("zeta")), 1);
	EXPECT_EQ(Map.Remove(TEXT("zeta")), 0);
	int32 Position = 0;
	const TCHAR* ExpectedOrder[] = { TEXT("Alpha"), TEXT("Mid"), TEXT("New") };
	for (const TPair<FString, int32>& Pair : Map)
	{
		EXPECT_EQ(Pair.Key, ExpectedOrder[Position++]);
	}
	EXPECT_EQ(Position, 3);

	int32 Removed = 0;
	EXPECT_TRUE(Map.RemoveAndCopyValue(TEXT("mid"), Removed));
	EXPECT_EQ(Removed, 3);
	EXPECT_EQ(Map.FindAndRemoveChecked(TEXT("New")), 4);
	EXPECT_EQ(Map.Num(), 1);

	Map.Add(TEXT("b"), 5);
	Map.Add(TEXT("a"), 9);
	Map.KeySort([](const FString& A, const FString& B) { return A < B; });
	Map.GenerateKeyArray(Keys);
	EXPECT_EQ(Keys, (TArray<FString>{ TEXT("a"), TEXT("alpha"), TEXT("b") }));
	Map.ValueSort([](int32 A, int32 B) { return A < B; });
	Map.GenerateValueArray(Values);
	EXPECT_EQ(Values, (TArray<int32>{ 5, 9, 20 }));
	EXPECT_EQ(*Map.Find(TEXT("b")), 5);
}

TEST(CoreContainer, MapIteratorRemovesDuringIterationAndLookupsStayCorrect)
{
	TMap<int32, FString> Map;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Map.Add(Index, Numbered(Index));
	}
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		if (It.Key() % 3 == 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Map.Num(), 66);
	for (int32 Index = 0; Index < 100; ++Index)
	{
		const FString* Value = Map.Find(Index);
		if (Index % 3 == 0)
		{
			EXPECT_EQ(Value, nullptr);
		}
		else
		{
			ASSERT_NE(Value, nullptr);
			EXPECT_EQ(*Value, Numbered(Index));
		}
	}
	int32 Previous = -1;
	for (auto It = Map.CreateConstIterator(); It; ++It)
	{
		EXPECT_GT(It.Key(), Previous);
		Previous = It.Key();
	}
}

TEST(CoreContainer, ScriptMapEditFollowedByLookupRebuildsTheIndex)
{
	static_assert(sizeof(TMap<int32, int32>) == sizeof(FScriptMap));
	static_assert(offsetof(FScriptMap, Pairs) == 0);
	using FPairType = TPair<int32, int32>;
	static_assert(sizeof(FPairType) == 8 && offsetof(FPairType, Value) == 4);

	TMap<int32, int32> Map;
	Map.Add(1, 100);
	Map.Add(2, 200);
	ASSERT_EQ(*Map.Find(2), 200);

	FScriptMap& Erased = reinterpret_cast<FScriptMap&>(Map);
	const int32 NewIndex = Erased.Pairs.Add(1, sizeof(FPairType), alignof(FPairType));
	FPairType* Pairs = static_cast<FPairType*>(Erased.Pairs.GetData());
	new (&Pairs[NewIndex]) FPairType(3, 300);
	Pairs[0].Key = 10;
	Erased.InvalidateIndex();

	EXPECT_EQ(Map.Num(), 3);
	ASSERT_NE(Map.Find(3), nullptr);
	EXPECT_EQ(*Map.Find(3), 300);
	EXPECT_EQ(Map.Find(1), nullptr);
	EXPECT_EQ(*Map.Find(10), 100);
	Map.Add(4, 400);
	EXPECT_EQ(*Map.Find(4), 400);

	Erased.Pairs.Remove(0, 1, sizeof(FPairType), alignof(FPairType));
	Erased.InvalidateIndex();
	EXPECT_EQ(Map.Find(10), nullptr);
	EXPECT_EQ(*Map.Find(2), 200);
	EXPECT_EQ(Map.Num(), 3);
}

TEST(CoreContainer, SetAddsOnceAndKeepsOrder)
{
	TSet<FName> Names;
	bool bAlreadyInSet = true;
	Names.Add(FName(TEXT("Beta")), &bAlreadyInSet);
	EXPECT_FALSE(bAlreadyInSet);
	Names.Add(FName(TEXT("Alpha")));
	Names.Add(FName(TEXT("BETA")), &bAlreadyInSet);
	EXPECT_TRUE(bAlreadyInSet);
	EXPECT_EQ(Names.Num(), 2);
	EXPECT_TRUE(Names.Contains(FName(TEXT("alpha"))));
	EXPECT_NE(Names.Find(FName(TEXT("beta"))), nullptr);
	EXPECT_EQ(Names.Array()[0], FName(TEXT("Beta")));
	EXPECT_EQ(Names.Remove(FName(TEXT("Beta"))), 1);
	EXPECT_FALSE(Names.Contains(FName(TEXT("Beta"))));

	TSet<int32> Numbers = { 3, 1, 3, 2 };
	EXPECT_EQ(Numbers.Array(), (TArray<int32>{ 3, 1, 2 }));
	EXPECT_EQ(Numbers.Intersect(TSet<int32>{ 2, 3, 9 }).Num(), 2);
	EXPECT_EQ(Numbers.Union(TSet<int32>{ 9 }).Num(), 4);
	for (auto It = Numbers.CreateIterator(); It; ++It)
	{
		if (*It == 1)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Numbers.Array(), (TArray<int32>{ 3, 2 }));
	EXPECT_TRUE(Numbers.Contains(2));
}

namespace
{
	struct alignas(64) FOverAligned
	{
		int32 Value = 0;
	};
}

TEST(CoreContainer, ArraySizingOperations)
{
	TArray<int32> Numbers;
	EXPECT_EQ(Numbers.AddZeroed(3), 0);
	EXPECT_EQ(Numbers, (TArray<int32>{ 0, 0, 0 }));
	EXPECT_EQ(Numbers.AddUninitialized(2), 3);
	Numbers[3] = 4;
	Numbers[4] = 5;
	Numbers.InsertZeroed(1, 2);
	EXPECT_EQ(Numbers, (TArray<int32>{ 0, 0, 0, 0, 0, 4, 5 }));
	Numbers.InsertDefaulted(0);
	EXPECT_EQ(Numbers.Num(), 8);
	Numbers.EmplaceAt(2, 9);
	EXPECT_EQ(Numbers[2], 9);

	Numbers.Reset();
	EXPECT_EQ(Numbers.Num(), 0);
	EXPECT_GE(Numbers.Max(), 9);
	Numbers.Reserve(100);
	EXPECT_EQ(Numbers.Max(), 100);
	Numbers.Add(1);
	Numbers.Shrink();
	EXPECT_EQ(Numbers.Max(), 1);
	Numbers.Empty(16);
	EXPECT_EQ(Numbers.Max(), 16);
	Numbers.Init(7, 4);
	EXPECT_EQ(Numbers, (TArray<int32>{ 7, 7, 7, 7 }));
	Numbers.SetNumZeroed(6);
	EXPECT_EQ(Numbers, (TArray<int32>{ 7, 7, 7, 7, 0, 0 }));
	Numbers.SetNum(2, EAllowShrinking::No);
	EXPECT_EQ(Numbers, (TArray<int32>{ 7, 7 }));

	TArray<int32> Growth;
	Growth.Add(1);
	EXPECT_EQ(Growth.Max(), 4);
	for (int32 Index = 0; Index < 4; ++Index)
	{
		Growth.Add(Index);
	}
	EXPECT_EQ(Growth.Max(), 22);

	TArray<int32> Ordered = { 0, 1, 2, 3, 4, 5 };
	Ordered.RemoveAtSwap(1, 2);
	EXPECT_EQ(Ordered, (TArray<int32>{ 0, 4, 5, 3 }));
	EXPECT_EQ(Ordered.RemoveSwap(0), 1);
	EXPECT_EQ(Ordered.Num(), 3);
	EXPECT_TRUE(Ordered.ContainsByPredicate([](int32 Value) { return Value == 5; }));
	EXPECT_EQ(Ordered.FindLastByPredicate([](int32 Value) { return Value > 3; }), Ordered.Find(5) > Ordered.Find(4) ? Ordered.Find(5) : Ordered.Find(4));

	TArray<int32> Combined = { 1 };
	Combined += { 2, 3 };
	Combined += TArray<int32>{ 4 };
	Combined.Append(Combined.GetData(), 2);
	EXPECT_EQ(Combined, (TArray<int32>{ 1, 2, 3, 4, 1, 2 }));
	Combined.Insert(Combined.GetData() + 1, 2, 0);
	EXPECT_EQ(Combined, (TArray<int32>{ 2, 3, 1, 2, 3, 4, 1, 2 }));
}

TEST(CoreContainer, OverAlignedElementsStayAligned)
{
	TArray<FOverAligned> Items;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Items.Add(FOverAligned{ Index });
		ASSERT_EQ(reinterpret_cast<UPTRINT>(Items.GetData()) % 64, 0u);
	}
	Items.RemoveAt(0, 90);
	EXPECT_EQ(reinterpret_cast<UPTRINT>(Items.GetData()) % 64, 0u);
	EXPECT_EQ(Items[0].Value, 90);

	void* Block = FMemory::Malloc(10, 128);
	EXPECT_EQ(reinterpret_cast<UPTRINT>(Block) % 128, 0u);
	FMemory::Memset(Block, 0xAB, 10);
	Block = FMemory::Realloc(Block, 4000, 128);
	EXPECT_EQ(reinterpret_cast<UPTRINT>(Block) % 128, 0u);
	EXPECT_EQ(static_cast<uint8*>(Block)[9], 0xAB);
	EXPECT_GE(FMemory::GetAllocSize(Block), 4000u);
	EXPECT_EQ(FMemory::Realloc(Block, 0, 128), nullptr);
	uint8* Zeroed = static_cast<uint8*>(FMemory::MallocZeroed(32));
	EXPECT_EQ(Zeroed[31], 0);
	FMemory::Free(Zeroed);
}

TEST(CoreContainer, NestedArraysAndMapsRelocateBitwise)
{
	TArray<TArray<FString>> Nested;
	TArray<TMap<FName, FString>> Maps;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Nested.AddDefaulted_GetRef().Add(Numbered(Index));
		TMap<FName, FString>& Map = Maps.AddDefaulted_GetRef();
		Map.Add(FName(*FString::Printf(TEXT("Key%d"), Index)), Numbered(Index));
	}
	Nested.RemoveAt(0, 50);
	Maps.RemoveAt(0, 50);
	Maps.Insert(TMap<FName, FString>(), 0);
	for (int32 Index = 0; Index < 50; ++Index)
	{
		ASSERT_EQ(Nested[Index][0], Numbered(Index + 50));
		const FString* Found = Maps[Index + 1].Find(FName(*FString::Printf(TEXT("key%d"), Index + 50)));
		ASSERT_NE(Found, nullptr);
		ASSERT_EQ(*Found, Numbered(Index + 50));
	}
}

TEST(CoreContainer, ChangingAnArrayDuringRangedForFailsTheCheck)
{
	TArray<int32> Numbers = { 1, 2, 3 };
	EXPECT_DEATH(
		{
			for (int32 Value : Numbers)
			{
				Numbers.Add(Value);
			}
		},
		"Array has changed during ranged-for iteration!");
}

TEST(CoreContainer, MapAgreesWithAReferenceModelUnderRandomEdits)
{
	TMap<int32, int32> Map;
	TArray<int32> ReferenceKeys;
	TArray<int32> ReferenceValues;
	uint32 State = 12345;
	auto Next = [&State]()
	{
		State = State * 1664525u + 1013904223u;
		return (int32)((State >> 8) % 200);
	};
	for (int32 Step = 0; Step < 4000; ++Step)
	{
		const int32 Key = Next();
		const int32 Operation = Next() % 3;
		const int32 ReferenceIndex = ReferenceKeys.Find(Key);
		if (Operation < 2)
		{
			Map.Add(Key, Step);
			if (ReferenceIndex == INDEX_NONE)
			{
				ReferenceKeys.Add(Key);
				ReferenceValues.Add(Step);
			}
			else
			{
				ReferenceValues[ReferenceIndex] = Step;
			}
		}
		else
		{
			EXPECT_EQ(Map.Remove(Key), ReferenceIndex == INDEX_NONE ? 0 : 1);
			if (ReferenceIndex != INDEX_NONE)
			{
				ReferenceKeys.RemoveAt(ReferenceIndex);
				ReferenceValues.RemoveAt(ReferenceIndex);
			}
		}
		ASSERT_EQ(Map.Num(), ReferenceKeys.Num());
	}
	int32 Position = 0;
	for (const TPair<int32, int32>& Pair : Map)
	{
		ASSERT_EQ(Pair.Key, ReferenceKeys[Position]);
		ASSERT_EQ(Pair.Value, ReferenceValues[Position]);
		++Position;
	}
	for (int32 Key = 0; Key < 200; ++Key)
	{
		ASSERT_EQ(Map.Contains(Key), ReferenceKeys.Contains(Key));
	}
}

TEST(CoreContainer, ArrayViewsSliceWithoutCopying)
{
	TArray<int32> Numbers = { 1, 2, 3, 4, 5 };
	TArrayView<int32> View(Numbers);
	View[0] = 10;
	EXPECT_EQ(Numbers[0], 10);
	EXPECT_EQ(View.Slice(1, 3).Num(), 3);
	EXPECT_EQ(View.Slice(1, 3)[0], 2);
	EXPECT_EQ(View.Mid(3, 10).Num(), 2);
	EXPECT_EQ(View.Left(2).Last(), 2);
	EXPECT_EQ(View.Find(4), 3);
	TConstArrayView<int32> Const = MakeArrayView(Numbers);
	EXPECT_EQ(TArray<int32>(Const.Slice(3, 2)), (TArray<int32>{ 4, 5 }));
	int32 Raw[] = { 7, 8 };
	EXPECT_EQ(MakeArrayView(Raw).Num(), 2);
	EXPECT_EQ(MakeArrayView(Raw + 1, 1)[0], 8);
	EXPECT_DEATH((void)View[5], "Array index out of bounds: 5 into an array of size 5");
}
