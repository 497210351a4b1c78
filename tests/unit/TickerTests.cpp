#include "CoreMinimal.h"
#include "Containers/Ticker.h"

#include <gtest/gtest.h>

class FTickerTest : public ::testing::Test
{
protected:
	FTSTicker Ticker;
};

TEST_F(FTickerTest, DelegateReturningFalseIsRemovedAfterItsFirstFire)
{
	int32 OneShotFires = 0;
	int32 RepeatingFires = 0;
	TArray<float> DeltaTimes;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&OneShotFires](float)
	{
		++OneShotFires;
		return false;
	}));
	Ticker.AddTicker(TEXT("Repeating"), 0.0f, [&RepeatingFires, &DeltaTimes](float DeltaTime)
	{
		++RepeatingFires;
		DeltaTimes.Add(DeltaTime);
		return true;
	});

	Ticker.Tick(0.1f);
	Ticker.Tick(0.2f);
	Ticker.Tick(0.3f);

	EXPECT_EQ(OneShotFires, 1);
	EXPECT_EQ(RepeatingFires, 3);
	EXPECT_EQ(DeltaTimes, TArray<float>({ 0.1f, 0.2f, 0.3f }));
}

TEST_F(FTickerTest, DelayedTickerFiresOncePerFrameOnceItsDelayHasPassed)
{
	int32 Fires = 0;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&Fires](float)
	{
		++Fires;
		return true;
	}), 1.0f);

	Ticker.Tick(0.4f);
	Ticker.Tick(0.4f);
	EXPECT_EQ(Fires, 0);
	Ticker.Tick(0.4f);
	EXPECT_EQ(Fires, 1);
	Ticker.Tick(0.4f);
	Ticker.Tick(0.4f);
	EXPECT_EQ(Fires, 1);
	Ticker.Tick(0.4f);
	EXPECT_EQ(Fires, 2);
	Ticker.Tick(5.0f);
	EXPECT_EQ(Fires, 3);
}

TEST_F(FTickerTest, RemovedTickersNeverFireAgainEvenFromInsideADelegate)
{
	int32 RemovedFires = 0;
	int32 SelfRemovingFires = 0;
	FTSTicker::FDelegateHandle RemovedHandle = Ticker.AddTicker(FTickerDelegate::CreateLambda([&RemovedFires](float)
	{
		++RemovedFires;
		return true;
	}));
	FTSTicker::FDelegateHandle SelfHandle;
	SelfHandle = Ticker.AddTicker(FTickerDelegate::CreateLambda([&SelfRemovingFires, &SelfHandle](float)
	{
		++SelfRemovingFires;
		FTSTicker::RemoveTicker(SelfHandle);
		return true;
	}));

	Ticker.Tick(0.1f);
	FTSTicker::RemoveTicker(RemovedHandle);
	Ticker.Tick(0.1f);
	Ticker.Tick(0.1f);

	EXPECT_EQ(RemovedFires, 1);
	EXPECT_EQ(SelfRemovingFires, 1);
	EXPECT_FALSE(SelfHandle.IsValid());
	FTSTicker::RemoveTicker(SelfHandle);
	FTSTicker::RemoveTicker(FTSTicker::FDelegateHandle());
}

TEST_F(FTickerTest, TickerAddedDuringATickFiresFromTheNextTick)
{
	int32 InnerFires = 0;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([this, &InnerFires](float)
	{
		Ticker.AddTicker(FTickerDelegate::CreateLambda([&InnerFires](float)
		{
			++InnerFires;
			return false;
		}));
		return false;
	}));

	Ticker.Tick(0.1f);
	EXPECT_EQ(InnerFires, 0);
	Ticker.Tick(0.1f);
	EXPECT_EQ(InnerFires, 1);
}

TEST_F(FTickerTest, ResetFromInsideADelegateStopsEveryTicker)
{
	int32 Fires = 0;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Ticker.AddTicker(FTickerDelegate::CreateLambda([this, &Fires](float)
		{
			++Fires;
			Ticker.Reset();
			return true;
		}));
	}

	Ticker.Tick(0.1f);
	Ticker.Tick(0.1f);
	EXPECT_EQ(Fires, 1);
}

TEST(FTickerCoreTickerTest, CoreTickerIsOneInstance)
{
	EXPECT_EQ(&FTSTicker::GetCoreTicker(), &FTSTicker::GetCoreTicker());
}
