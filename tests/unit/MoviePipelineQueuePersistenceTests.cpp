#include "PersistenceTestSupport.h"

#include "Misc/PackageName.h"
#include "MoviePipelineAntiAliasingSetting.h"
#include "MoviePipelineConsoleVariableSetting.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelineQueue.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	const TCHAR* const QueuePackageName = TEXT("/Game/Queues/Nightly");

	bool SaveQueueAsset(UMoviePipelineQueue* Queue)
	{
		FSavePackageArgs SaveArgs;
		SaveArgs.TopLevelFlags = RF_Standalone;
		const FString Filename = FPackageName::LongPackageNameToFilename(QueuePackageName, FPackageName::GetAssetPackageExtension());
		return UPackage::Save(Queue->GetPackage(), Queue, *Filename, SaveArgs).IsSuccessful();
	}

	// A queue asset with one job whose configuration holds a disabled setting and console variables.
	void SaveNightlyQueue()
	{
		UPackage* Package = CreatePackage(QueuePackageName);
		UMoviePipelineQueue* Queue = NewObject<UMoviePipelineQueue>(Package, TEXT("Nightly"), RF_Public | RF_Standalone | RF_Transactional);
		UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
		Job->JobName = TEXT("Shot010");
		Job->Sequence = FSoftObjectPath(TEXT("/Game/Seq/Shot010.Shot010"));
		Job->Map = FSoftObjectPath(TEXT("/Game/Maps/Main.Main"));
		Job->Author = TEXT("Ada");
		Job->UserData = TEXT("{\"ticket\": 7}");
		Job->SetIsEnabled(false);
		Job->SetStatusMessage(TEXT("not saved"));
		Job->ConsoleVariableOverrides.Add(FMoviePipelineConsoleVariableEntry(TEXT("r.Job"), 3.0f, false));

		UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration();
		Config->DisplayName = TEXT("Nightly Preset");
		Config->FindSetting<UMoviePipelineOutputSetting>()->OutputDirectory.Path = TEXT("/tmp/Renders");
		UMoviePipelineAntiAliasingSetting* AntiAliasing = Cast<UMoviePipelineAntiAliasingSetting>(Config->FindOrAddSettingByClass(UMoviePipelineAntiAliasingSetting::StaticClass()));
		AntiAliasing->SpatialSampleCount = 4;
		AntiAliasing->AntiAliasingMethod = EAntiAliasingMethod::AAM_TSR;
		AntiAliasing->SetIsEnabled(false);
		UMoviePipelineConsoleVariableSetting* CVars = Cast<UMoviePipelineConsoleVariableSetting>(Config->FindOrAddSettingByClass(UMoviePipelineConsoleVariableSetting::StaticClass()));
		CVars->AddConsoleVariable(TEXT("r.MotionBlurQuality"), 4.0f);
		CVars->AddConsoleVariable(TEXT("r.ScreenPercentage"), 0.1f);
		CVars->UpdateConsoleVariableEnableState(TEXT("r.ScreenPercentage"), false);
		CVars->StartConsoleCommands.Add(TEXT("stat fps"));

		ASSERT_TRUE(SaveQueueAsset(Queue));
		Queue->ClearFlags(RF_Standalone);
	}
}

TEST(MoviePipelineQueuePersistence, ASavedQueueLoadsBackWithItsJobsConfigurationsSettingsAndConsoleVariables)
{
	FScopedTestProject Project;
	CollectGarbage(RF_NoFlags);
	SaveNightlyQueue();
	CollectGarbage(RF_NoFlags);
	ASSERT_EQ(FindPackage(nullptr, QueuePackageName), nullptr);

	TStrongObjectPtr<UMoviePipelineQueue> Queue(LoadObject<UMoviePipelineQueue>(nullptr, TEXT("/Game/Queues/Nightly.Nightly")));

	ASSERT_TRUE(Queue.IsValid());
	EXPECT_TRUE(Queue->HasAllFlags(RF_Public | RF_Standalone | RF_Transactional));
	EXPECT_FALSE(Queue->IsDirty());
	ASSERT_EQ(Queue->GetJobs().Num(), 1);
	UMoviePipelineExecutorJob* Job = Queue->GetJobs()[0];
	EXPECT_EQ(Job->GetOuter(), Queue.Get());
	EXPECT_EQ(Job->JobName, TEXT("Shot010"));
	EXPECT_EQ(Job->Sequence.ToString(), TEXT("/Game/Seq/Shot010.Shot010"));
	EXPECT_EQ(Job->Map.ToString(), TEXT("/Game/Maps/Main.Main"));
	EXPECT_EQ(Job->Author, TEXT("Ada"));
	EXPECT_EQ(Job->UserData, TEXT("{\"ticket\": 7}"));
	EXPECT_FALSE(Job->IsEnabled());
	EXPECT_EQ(Job->GetStatusMessage(), TEXT(""));
	EXPECT_EQ(Job->ConsoleVariableOverrides, (TArray<FMoviePipelineConsoleVariableEntry>{ { TEXT("r.Job"), 3.0f, false } }));

	UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration();
	ASSERT_NE(Config, nullptr);
	EXPECT_EQ(Config->GetOuter(), Job);
	EXPECT_EQ(Config->DisplayName, TEXT("Nightly Preset"));
	const TArray<UMoviePipelineSetting*> Settings = Config->GetUserSettings();
	ASSERT_EQ(Settings.Num(), 3);
	EXPECT_TRUE(Settings[0]->IsA<UMoviePipelineAntiAliasingSetting>());
	EXPECT_TRUE(Settings[1]->IsA<UMoviePipelineConsoleVariableSetting>());
	EXPECT_TRUE(Settings[2]->IsA<UMoviePipelineOutputSetting>());
	for (const UMoviePipelineSetting* Setting : Settings)
	{
		EXPECT_EQ(Setting->GetOuter(), Config);
	}

	const UMoviePipelineAntiAliasingSetting* AntiAliasing = static_cast<UMoviePipelineAntiAliasingSetting*>(Settings[0]);
	EXPECT_FALSE(AntiAliasing->IsEnabled());
	EXPECT_EQ(AntiAliasing->SpatialSampleCount, 4);
	EXPECT_EQ(AntiAliasing->AntiAliasingMethod, EAntiAliasingMethod::AAM_TSR);
	const UMoviePipelineConsoleVariableSetting* CVars = static_cast<UMoviePipelineConsoleVariableSetting*>(Settings[1]);
	EXPECT_EQ(CVars->GetConsoleVariables(), (TArray<FMoviePipelineConsoleVariableEntry>{
		{ TEXT("r.MotionBlurQuality"), 4.0f }, { TEXT("r.ScreenPercentage"), 0.1f, false } }));
	EXPECT_EQ(CVars->StartConsoleCommands, (TArray<FString>{ TEXT("stat fps") }));
	EXPECT_EQ(static_cast<UMoviePipelineOutputSetting*>(Settings[2])->OutputDirectory.Path, TEXT("/tmp/Renders"));

	// The loaded queue is an asset like any other: copying it into an editor queue gives separate jobs.
	TStrongObjectPtr<UMoviePipelineQueue> EditorQueue(NewObject<UMoviePipelineQueue>());
	EditorQueue->CopyFrom(Queue.Get());
	ASSERT_EQ(EditorQueue->GetJobs().Num(), 1);
	EXPECT_NE(EditorQueue->GetJobs()[0], Job);
	EXPECT_EQ(EditorQueue->GetJobs()[0]->GetConfiguration()->FindSetting<UMoviePipelineConsoleVariableSetting>()->GetConsoleVariables().Num(), 2);
	EXPECT_EQ(EditorQueue->GetJobs()[0]->UserData, TEXT(""));

	Queue->ClearFlags(RF_Standalone);
	Queue.Reset();
	EditorQueue.Reset();
	CollectGarbage(RF_NoFlags);
}

TEST(MoviePipelineQueuePersistence, AnEmptyOutputDirectoryLoadsAsTheDefaultDirectory)
{
	FScopedTestProject Project;
	{
		UPackage* Package = CreatePackage(QueuePackageName);
		UMoviePipelineQueue* Queue = NewObject<UMoviePipelineQueue>(Package, TEXT("Nightly"), RF_Public | RF_Standalone);
		Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass())->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>()->OutputDirectory.Path.Empty();
		ASSERT_TRUE(SaveQueueAsset(Queue));
		Queue->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);

	TStrongObjectPtr<UMoviePipelineQueue> Queue(LoadObject<UMoviePipelineQueue>(nullptr, TEXT("/Game/Queues/Nightly.Nightly")));

	ASSERT_TRUE(Queue.IsValid());
	ASSERT_EQ(Queue->GetJobs().Num(), 1);
	EXPECT_EQ(Queue->GetJobs()[0]->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>()->OutputDirectory.Path, TEXT("{project_dir}/Saved/MovieRenders/"));
	Queue->ClearFlags(RF_Standalone);
	Queue.Reset();
	CollectGarbage(RF_NoFlags);
}
