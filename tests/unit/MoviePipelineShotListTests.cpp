#include "PersistenceTestSupport.h"

#include "LevelSequence.h"
#include "MovieScene.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineQueue.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	// 24000 ticks per second shown at 24 frames per second: one display frame is 1000 ticks.
	constexpr int32 TicksPerFrame = 1000;

	class MoviePipelineShotListTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			UPackage* Package = CreatePackage(TEXT("/Game/ShotList/Edit"));
			Sequence.Reset(NewObject<ULevelSequence>(Package, TEXT("Edit"), RF_Public | RF_Standalone));
			Sequence->Initialize();
			Sequence->GetMovieScene()->SetDisplayRate(FFrameRate(24, 1));
			Sequence->GetMovieScene()->SetPlaybackRange(TRange<FFrameNumber>(FFrameNumber(0), FFrameNumber(100 * TicksPerFrame)));
			Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
		}

		void TearDown() override
		{
			Sequence->ClearFlags(RF_Standalone);
			Sequence.Reset();
			Queue.Reset();
			CollectGarbage(RF_NoFlags);
		}

		void AddShot(const TCHAR* Name, const TCHAR* Camera, int32 StartFrame, int32 EndFrame)
		{
			FMovieSceneStandInShot Shot;
			Shot.ShotDisplayName = Name;
			Shot.CameraName = Camera;
			Shot.SectionRange.Value = TRange<FFrameNumber>(FFrameNumber(StartFrame * TicksPerFrame), FFrameNumber(EndFrame * TicksPerFrame));
			Sequence->GetMovieScene()->AddStandInShot(Shot);
		}

		TArray<FString> ShotNames() const
		{
			TArray<FString> Names;
			for (const UMoviePipelineExecutorShot* Shot : Job->ShotInfo)
			{
				Names.Add(Shot->OuterName + TEXT("/") + Shot->InnerName);
			}
			return Names;
		}

		FScopedTestProject Project;
		TStrongObjectPtr<ULevelSequence> Sequence;
		TStrongObjectPtr<UMoviePipelineQueue> Queue{ NewObject<UMoviePipelineQueue>() };
		UMoviePipelineExecutorJob* Job = nullptr;
	};
}

TEST_F(MoviePipelineShotListTest, ASequenceWithoutShotsGivesOneShotForItsPlaybackRange)
{
	const uint32 Serial = Queue->GetQueueSerialNumber();
	Job->SetSequence(FSoftObjectPath(Sequence.Get()));

	EXPECT_EQ(Job->Sequence.ToString(), TEXT("/Game/ShotList/Edit.Edit"));
	EXPECT_EQ(ShotNames(), (TArray<FString>{ TEXT("no shot/Edit") }));
	EXPECT_EQ(Job->ShotInfo[0]->GetOuter(), Job);
	EXPECT_TRUE(Job->ShotInfo[0]->ShouldRender());
	EXPECT_EQ(Job->ShotInfo[0]->ShotInfo.TotalOutputRangeRoot, TRange<FFrameNumber>(FFrameNumber(0), FFrameNumber(100 * TicksPerFrame)));
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial + 1);
}

TEST_F(MoviePipelineShotListTest, ShotSectionsBecomeShotsInTimelineOrderClippedToThePlaybackRange)
{
	AddShot(TEXT("sh020"), TEXT("CineCam_B"), 40, 120);
	AddShot(TEXT("sh010"), TEXT("CineCam_A"), -10, 40);
	AddShot(TEXT("sh030"), TEXT(""), 150, 200);

	Job->SetSequence(FSoftObjectPath(Sequence.Get()));

	EXPECT_EQ(ShotNames(), (TArray<FString>{ TEXT("sh010/CineCam_A"), TEXT("sh020/CineCam_B") }));
	EXPECT_EQ(Job->ShotInfo[0]->ShotInfo.TotalOutputRangeRoot, TRange<FFrameNumber>(FFrameNumber(0), FFrameNumber(40 * TicksPerFrame)));
	EXPECT_EQ(Job->ShotInfo[1]->ShotInfo.TotalOutputRangeRoot, TRange<FFrameNumber>(FFrameNumber(40 * TicksPerFrame), FFrameNumber(100 * TicksPerFrame)));
	EXPECT_EQ(Job->ShotInfo[1]->GetCameraName(0), TEXT("CineCam_B"));
}

TEST_F(MoviePipelineShotListTest, RepeatedShotNamesAreNumberedAndAShotWithoutCameraTakesTheSequenceName)
{
	AddShot(TEXT("take"), TEXT(""), 0, 10);
	AddShot(TEXT("take"), TEXT("Cam"), 10, 20);
	AddShot(TEXT("other"), TEXT("Cam"), 20, 30);
	AddShot(TEXT("take"), TEXT("Cam"), 30, 40);

	Job->SetSequence(FSoftObjectPath(Sequence.Get()));

	EXPECT_EQ(ShotNames(), (TArray<FString>{ TEXT("take(1)/Edit"), TEXT("take(2)/Cam"), TEXT("other/Cam"), TEXT("take(3)/Cam") }));
}

TEST_F(MoviePipelineShotListTest, UpdatingTheShotListKeepsMatchingShotsAndReportsChanges)
{
	AddShot(TEXT("sh010"), TEXT("Cam"), 0, 50);
	AddShot(TEXT("sh020"), TEXT("Cam"), 50, 100);
	Job->SetSequence(FSoftObjectPath(Sequence.Get()));
	UMoviePipelineExecutorShot* First = Job->ShotInfo[0];
	First->bEnabled = false;

	bool bShotsChanged = false;
	UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(Sequence.Get(), Job, bShotsChanged);
	EXPECT_FALSE(bShotsChanged);
	EXPECT_EQ(Job->ShotInfo[0], First);
	EXPECT_FALSE(Job->ShotInfo[0]->ShouldRender());

	AddShot(TEXT("sh005"), TEXT("Cam"), 0, 10);
	UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(Sequence.Get(), Job, bShotsChanged);
	EXPECT_TRUE(bShotsChanged);
	EXPECT_EQ(ShotNames(), (TArray<FString>{ TEXT("sh010/Cam"), TEXT("sh005/Cam"), TEXT("sh020/Cam") }));
	EXPECT_EQ(Job->ShotInfo[0], First);

	// SetSequence starts from an empty list, so the shots are made anew.
	Job->SetSequence(FSoftObjectPath(Sequence.Get()));
	EXPECT_NE(Job->ShotInfo[0], First);
	EXPECT_TRUE(Job->ShotInfo[0]->ShouldRender());
}

TEST_F(MoviePipelineShotListTest, ASequenceThatDoesNotLoadLeavesNoShots)
{
	Job->SetSequence(FSoftObjectPath(Sequence.Get()));
	ASSERT_EQ(Job->ShotInfo.Num(), 1);
	const uint32 Serial = Queue->GetQueueSerialNumber();

	FLogCapture Log;
	Job->SetSequence(FSoftObjectPath(TEXT("/Game/ShotList/Missing.Missing")));

	EXPECT_EQ(Job->Sequence.ToString(), TEXT("/Game/ShotList/Missing.Missing"));
	EXPECT_TRUE(Job->ShotInfo.IsEmpty());
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial);

	bool bShotsChanged = false;
	UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(nullptr, Job, bShotsChanged);
	EXPECT_FALSE(bShotsChanged);
}
