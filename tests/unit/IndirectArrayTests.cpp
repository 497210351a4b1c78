#include "CoreMinimal.h"
#include "Containers/IndirectArray.h"

#include <gtest/gtest.h>

namespace IndirectArrayTests
{
	struct FCounted
	{
		explicit FCounted(int32 InValue) : Value(InValue) { ++Alive; }
		FCounted(const FCounted& Other) : Value(Other.Value) { ++Alive; }
		~FCounted() { --Alive; }

		int32 Value;
		static inline int32 Alive = 0;
	};
}

TEST(FIndirectArrayTest, ElementsKeepTheirAddressAndAreOwned)
{
	using IndirectArrayTests::FCounted;
	{
		TIndirectArray<FCounted> Array;
		FCounted* First = new FCounted(1);
		EXPECT_EQ(Array.Add(First), 0);
		for (int32 Value = 2; Value <= 100; ++Value)
		{
			Array.Add(new FCounted(Value));
		}
		EXPECT_EQ(&Array[0], First);
		EXPECT_EQ(Array.Num(), 100);
		EXPECT_EQ(FCounted::Alive, 100);

		Array.RemoveAt(0, 10);
		EXPECT_EQ(Array.Num(), 90);
		EXPECT_EQ(Array[0].Value, 11);
		EXPECT_EQ(FCounted::Alive, 90);

		TIndirectArray<FCounted> Copy = Array;
		EXPECT_EQ(FCounted::Alive, 180);
		EXPECT_NE(&Copy[0], &Array[0]);
		EXPECT_EQ(Copy.Last().Value, 100);

		int32 Sum = 0;
		for (const FCounted& Element : Copy)
		{
			Sum += Element.Value;
		}
		EXPECT_EQ(Sum, (11 + 100) * 90 / 2);

		Copy.Empty();
		EXPECT_EQ(FCounted::Alive, 90);
	}
	EXPECT_EQ(FCounted::Alive, 0);
}
