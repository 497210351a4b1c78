#include "PersistenceTestSupport.h"

#include "Graph/MovieGraphConfig.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "MoviePipelineAntiAliasingSetting.h"
#include "MoviePipelineConsoleVariableSetting.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelineQueue.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	class MovieRenderQueueTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Queue.Reset();
			CollectGarbage(RF_NoFlags);
		}

		UMoviePipelineExecutorJob* AddJob(const TCHAR* JobName)
		{
			UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
			Job->JobName = JobName;
			return Job;
		}

		TArray<FString> JobNames() const
		{
			TArray<FString> Names;
			for (const UMoviePipelineExecutorJob* Job : Queue->GetJobs())
			{
				Names.Add(Job->JobName);
			}
			return Names;
		}

		TStrongObjectPtr<UMoviePipelineQueue> Queue{ NewObject<UMoviePipelineQueue>() };
	};
}

TEST_F(MovieRenderQueueTest, AllocateNewJobAppendsATransactionalJobWithItsDefaultConfiguration)
{
	EXPECT_TRUE(Queue->HasAnyFlags(RF_Transactional));
	EXPECT_FALSE(UMoviePipelineQueue::StaticClass()->GetDefaultObject()->HasAnyFlags(RF_Transactional));

	UMoviePipelineExecutorJob* First = AddJob(TEXT("First"));
	const uint32 SerialAfterFirst = Queue->GetQueueSerialNumber();
	UMoviePipelineExecutorJob* Second = Queue->AllocateNewJob(nullptr);

	ASSERT_NE(Second, nullptr);
	EXPECT_EQ(Second->GetClass(), UMoviePipelineExecutorJob::StaticClass());
	EXPECT_EQ(Queue->GetJobs(), (TArray<UMoviePipelineExecutorJob*>{ First, Second }));
	EXPECT_EQ(Queue->GetQueueSerialNumber(), SerialAfterFirst + 1);
	EXPECT_EQ(Second->GetOuter(), Queue.Get());
	EXPECT_TRUE(Second->HasAnyFlags(RF_Transactional));
	EXPECT_TRUE(Second->IsEnabled());
	EXPECT_FALSE(Second->IsConsumed());
	EXPECT_EQ(Second->GetStatusProgress(), 0.0f);
	EXPECT_TRUE(Second->ShotInfo.IsEmpty());

	UMoviePipelinePrimaryConfig* Config = Second->GetConfiguration();
	ASSERT_NE(Config, nullptr);
	EXPECT_EQ(Config->GetFName(), FName(TEXT("DefaultConfig")));
	EXPECT_EQ(Config->GetOuter(), Second);
	EXPECT_EQ(Config->DisplayName, TEXT("Unsaved Config"));
	ASSERT_EQ(Config->GetUserSettings().Num(), 1);
	EXPECT_EQ(Config->GetUserSettings()[0]->GetFName(), FName(TEXT("DefaultOutputSetting")));
	EXPECT_TRUE(Config->GetUserSettings()[0]->IsA<UMoviePipelineOutputSetting>());
}

TEST_F(MovieRenderQueueTest, DeleteJobRemovesEveryOccurrenceAndBumpsTheSerialEvenForAForeignJob)
{
	UMoviePipelineExecutorJob* A = AddJob(TEXT("A"));
	AddJob(TEXT("B"));

	uint32 Serial = Queue->GetQueueSerialNumber();
	Queue->DeleteJob(nullptr);
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial);

	TStrongObjectPtr<UMoviePipelineQueue> OtherQueue(NewObject<UMoviePipelineQueue>());
	Queue->DeleteJob(OtherQueue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass()));
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial + 1);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("A"), TEXT("B") }));

	Queue->DeleteJob(A);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("B") }));
	Serial = Queue->GetQueueSerialNumber();
	Queue->DeleteAllJobs();
	EXPECT_TRUE(Queue->GetJobs().IsEmpty());
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial + 1);
}

TEST_F(MovieRenderQueueTest, DuplicateJobAppendsACopyWithoutRenderStateAndWithItsOwnConfiguration)
{
	UMoviePipelineExecutorJob* Source = AddJob(TEXT("Source"));
	AddJob(TEXT("Last"));
	Source->Author = TEXT("Ada");
	Source->Comment = TEXT("Keep me");
	Source->UserData = TEXT("opaque");
	Source->SetStatusMessage(TEXT("Rendering"));
	Source->SetStatusProgress(0.5f);
	Source->SetConsumed(true);
	Source->SetIsEnabled(false);
	Source->GetConfiguration()->DisplayName = TEXT("My Preset");
	UMoviePipelineAntiAliasingSetting* SourceSetting = Cast<UMoviePipelineAntiAliasingSetting>(
		Source->GetConfiguration()->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass()));
	SourceSetting->SpatialSampleCount = 8;

	UMoviePipelineExecutorJob* Copy = Queue->DuplicateJob(Source);

	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("Source"), TEXT("Last"), TEXT("Source") }));
	EXPECT_EQ(Queue->GetJobs().Last(), Copy);
	EXPECT_NE(Copy->GetFName(), Source->GetFName());
	EXPECT_EQ(Copy->Author, TEXT("Ada"));
	EXPECT_EQ(Copy->Comment, TEXT("Keep me"));
	EXPECT_FALSE(Copy->IsEnabled());
	EXPECT_EQ(Copy->UserData, TEXT(""));
	EXPECT_EQ(Copy->GetStatusMessage(), TEXT(""));
	EXPECT_EQ(Copy->GetStatusProgress(), 0.0f);
	EXPECT_FALSE(Copy->IsConsumed());
	EXPECT_TRUE(Source->IsConsumed());
	EXPECT_EQ(Source->UserData, TEXT("opaque"));

	UMoviePipelinePrimaryConfig* CopyConfig = Copy->GetConfiguration();
	ASSERT_NE(CopyConfig, nullptr);
	EXPECT_NE(CopyConfig, Source->GetConfiguration());
	EXPECT_EQ(CopyConfig->GetOuter(), Copy);
	EXPECT_EQ(CopyConfig->DisplayName, TEXT("My Preset"));
	UMoviePipelineAntiAliasingSetting* CopySetting = CopyConfig->FindSetting<UMoviePipelineAntiAliasingSetting>();
	ASSERT_NE(CopySetting, nullptr);
	EXPECT_NE(CopySetting, SourceSetting);
	EXPECT_EQ(CopySetting->GetOuter(), CopyConfig);
	EXPECT_EQ(CopySetting->SpatialSampleCount, 8);
	EXPECT_EQ(CopyConfig->GetUserSettings().Last()->GetOuter(), CopyConfig);

	CopySetting->SpatialSampleCount = 2;
	EXPECT_EQ(SourceSetting->SpatialSampleCount, 8);
	EXPECT_EQ(Queue->DuplicateJob(nullptr), nullptr);
}

TEST_F(MovieRenderQueueTest, CopyFromReplacesTheJobsWithCopiesAndTakesOverTheSourceOrigin)
{
	AddJob(TEXT("Old"));
	TStrongObjectPtr<UMoviePipelineQueue> Saved(NewObject<UMoviePipelineQueue>());
	TStrongObjectPtr<UMoviePipelineQueue> Source(NewObject<UMoviePipelineQueue>());
	Source->SetQueueOrigin(Saved.Get());
	UMoviePipelineExecutorJob* SourceJob = Source->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	SourceJob->JobName = TEXT("New");
	SourceJob->UserData = TEXT("dropped");

	EXPECT_EQ(Queue->CopyFrom(Source.Get()), Queue.Get());

	ASSERT_EQ(Queue->GetJobs().Num(), 1);
	EXPECT_NE(Queue->GetJobs()[0], SourceJob);
	EXPECT_EQ(Queue->GetJobs()[0]->GetOuter(), Queue.Get());
	EXPECT_EQ(Queue->GetJobs()[0]->JobName, TEXT("New"));
	EXPECT_EQ(Queue->GetJobs()[0]->UserData, TEXT(""));
	EXPECT_EQ(Queue->GetQueueOrigin(), Saved.Get());

	FLogCapture Log;
	const uint32 Serial = Queue->GetQueueSerialNumber();
	EXPECT_EQ(Queue->CopyFrom(nullptr), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Cannot copy the contents of a null queue."), ELogVerbosity::Warning));
	EXPECT_EQ(Queue->GetJobs().Num(), 1);
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial);
}

TEST_F(MovieRenderQueueTest, SetJobIndexMovesBeforeTheJobAtTheIndexCountedBeforeTheMove)
{
	UMoviePipelineExecutorJob* A = AddJob(TEXT("A"));
	AddJob(TEXT("B"));
	UMoviePipelineExecutorJob* C = AddJob(TEXT("C"));

	// Moving forward: the index is decremented because the job leaves its old place first.
	Queue->SetJobIndex(A, 2);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("B"), TEXT("A"), TEXT("C") }));
	Queue->SetJobIndex(C, 0);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("C"), TEXT("B"), TEXT("A") }));
	Queue->SetJobIndex(C, 0);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("C"), TEXT("B"), TEXT("A") }));

	Queue->SetJobIndex(C, 100);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("B"), TEXT("A"), TEXT("C") }));
	Queue->SetJobIndex(C, -5);
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("C"), TEXT("B"), TEXT("A") }));

	FLogCapture Log;
	TStrongObjectPtr<UMoviePipelineQueue> OtherQueue(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* Stranger = OtherQueue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	Stranger->JobName = TEXT("Stranger");
	const uint32 Serial = Queue->GetQueueSerialNumber();
	Queue->SetJobIndex(Stranger, 0);
	EXPECT_TRUE(Log.Contains(TEXT("Cannot find Job Stranger in queue"), ELogVerbosity::Error));
	EXPECT_EQ(JobNames(), (TArray<FString>{ TEXT("C"), TEXT("B"), TEXT("A") }));
	EXPECT_EQ(Queue->GetQueueSerialNumber(), Serial);
}

TEST_F(MovieRenderQueueTest, ModifyingAnythingInsideTheQueueMakesItDirtyUntilSaved)
{
	UMoviePipelineExecutorJob* Job = AddJob(TEXT("Job"));
	Queue->SetIsDirty(false);

	UMoviePipelineSetting* Setting = Job->GetConfiguration()->FindOrAddSettingByClass(UMoviePipelineConsoleVariableSetting::StaticClass());
	EXPECT_TRUE(Queue->IsDirty());

	Queue->SetIsDirty(false);
	TStrongObjectPtr<UMoviePipelineQueue> OtherQueue(NewObject<UMoviePipelineQueue>());
	OtherQueue->Modify();
	EXPECT_TRUE(OtherQueue->IsDirty());
	EXPECT_FALSE(Queue->IsDirty());
	Setting->Modify();
	EXPECT_TRUE(Queue->IsDirty());

	Queue->PreSave(nullptr);
	EXPECT_FALSE(Queue->IsDirty());
}

TEST_F(MovieRenderQueueTest, PresetOriginAndConfigurationCopyThePresetIntoTheJobsOwnConfiguration)
{
	UMoviePipelineExecutorJob* Job = AddJob(TEXT("Job"));
	TStrongObjectPtr<UMoviePipelinePrimaryConfig> Preset(NewObject<UMoviePipelinePrimaryConfig>());
	Preset->DisplayName = TEXT("Preset");
	Preset->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());
	UMoviePipelinePrimaryConfig* JobConfig = Job->GetConfiguration();

	Job->SetPresetOrigin(Preset.Get());
	EXPECT_EQ(Job->GetConfiguration(), JobConfig);
	EXPECT_EQ(Job->GetPresetOrigin(), Preset.Get());
	EXPECT_EQ(JobConfig->DisplayName, TEXT("Preset"));
	ASSERT_NE(JobConfig->FindSetting<UMoviePipelineAntiAliasingSetting>(), nullptr);
	EXPECT_EQ(JobConfig->FindSetting<UMoviePipelineAntiAliasingSetting>()->GetOuter(), JobConfig);

	Job->SetPresetOrigin(nullptr);
	EXPECT_EQ(Job->GetPresetOrigin(), Preset.Get());
	Job->SetConfiguration(Preset.Get());
	EXPECT_EQ(Job->GetPresetOrigin(), nullptr);
}

TEST_F(MovieRenderQueueTest, AGraphPresetGetsOneVariableAssignmentContainerOnTheJobAndItsShots)
{
	UMoviePipelineExecutorJob* Job = AddJob(TEXT("Job"));
	Job->ShotInfo.Add(NewObject<UMoviePipelineExecutorShot>(Job));
	TStrongObjectPtr<UMovieGraphConfig> FirstGraph(NewObject<UMovieGraphConfig>());
	TStrongObjectPtr<UMovieGraphConfig> SecondGraph(NewObject<UMovieGraphConfig>());
	EXPECT_FALSE(Job->IsUsingGraphConfiguration());

	Job->SetGraphPreset(FirstGraph.Get());
	EXPECT_EQ(Job->GetGraphPreset(), FirstGraph.Get());
	EXPECT_TRUE(Job->IsUsingGraphConfiguration());
	EXPECT_TRUE(Job->ShotInfo[0]->IsUsingGraphConfiguration());
	ASSERT_EQ(Job->GetGraphVariableAssignments(false).Num(), 1);
	UMovieJobVariableAssignmentContainer* FirstAssignments = Job->GetGraphVariableAssignments(false)[0];
	EXPECT_EQ(FirstAssignments->GetGraphConfig(), FirstGraph.Get());
	EXPECT_EQ(FirstAssignments->GetOuter(), Job);
	EXPECT_EQ(Job->GetOrCreateJobVariableAssignmentsForGraph(FirstGraph.Get()), FirstAssignments);
	EXPECT_EQ(Job->ShotInfo[0]->GetOrCreateJobVariableAssignmentsForGraph(FirstGraph.Get(), true)->GetOuter(), Job->ShotInfo[0]);
	EXPECT_EQ(Job->GetOrCreateJobVariableAssignmentsForGraph(nullptr), nullptr);

	Job->SetGraphPreset(SecondGraph.Get(), false);
	EXPECT_EQ(Job->GetGraphVariableAssignments(false), (TArray<TObjectPtr<UMovieJobVariableAssignmentContainer>>{ FirstAssignments }));
	ASSERT_EQ(Job->GetGraphVariableAssignments().Num(), 1);
	EXPECT_EQ(Job->GetGraphVariableAssignments(false)[0]->GetGraphConfig(), SecondGraph.Get());

	Job->ShotInfo[0]->SetGraphPreset(FirstGraph.Get());
	Job->SetGraphPreset(nullptr);
	EXPECT_FALSE(Job->IsUsingGraphConfiguration());
	EXPECT_EQ(Job->ShotInfo[0]->GetGraphPreset(), nullptr);
	EXPECT_FALSE(Job->ShotInfo[0]->IsUsingGraphConfiguration());
	EXPECT_TRUE(Job->GetGraphVariableAssignments().IsEmpty());
}

TEST_F(MovieRenderQueueTest, ShotOverrideConfigurationsAreTheShotsOwnCopies)
{
	UMoviePipelineExecutorJob* Job = AddJob(TEXT("Job"));
	UMoviePipelineExecutorShot* Shot = NewObject<UMoviePipelineExecutorShot>(Job);
	Job->ShotInfo.Add(Shot);
	TStrongObjectPtr<UMoviePipelineShotConfig> Preset(NewObject<UMoviePipelineShotConfig>());
	Preset->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass());

	Shot->SetShotOverridePresetOrigin(Preset.Get());
	UMoviePipelineShotConfig* Override = Shot->GetShotOverrideConfiguration();
	ASSERT_NE(Override, nullptr);
	EXPECT_NE(Override, Preset.Get());
	EXPECT_EQ(Override->GetOuter(), Shot);
	EXPECT_TRUE(Override->HasAnyFlags(RF_Transactional));
	EXPECT_NE(Override->FindSetting<UMoviePipelineAntiAliasingSetting>(), nullptr);
	EXPECT_EQ(Shot->GetShotOverridePresetOrigin(), Preset.Get());

	// Duplicating the job copies the override too, as a configuration of the copied shot.
	UMoviePipelineExecutorJob* Copy = Queue->DuplicateJob(Job);
	UMoviePipelineShotConfig* CopiedOverride = Copy->ShotInfo[0]->GetShotOverrideConfiguration();
	ASSERT_NE(CopiedOverride, nullptr);
	EXPECT_NE(CopiedOverride, Override);
	EXPECT_EQ(CopiedOverride->GetOuter(), Copy->ShotInfo[0]);
	EXPECT_NE(CopiedOverride->FindSetting<UMoviePipelineAntiAliasingSetting>(), nullptr);

	Shot->SetShotOverrideConfiguration(Preset.Get());
	EXPECT_EQ(Shot->GetShotOverrideConfiguration(), Override);
	EXPECT_EQ(Shot->GetShotOverridePresetOrigin(), nullptr);
	Shot->SetShotOverrideConfiguration(nullptr);
	EXPECT_EQ(Shot->GetShotOverrideConfiguration(), nullptr);
	EXPECT_EQ(Shot->GetCameraName(0), TEXT(""));
	Shot->InnerName = TEXT("Cam");
	Shot->SidecarCameras.AddDefaulted_GetRef().Name = TEXT("Sidecar");
	EXPECT_EQ(Shot->GetCameraName(0), TEXT("Sidecar"));
	EXPECT_EQ(Shot->GetCameraName(1), TEXT("Cam"));
}
