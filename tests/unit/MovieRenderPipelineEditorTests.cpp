#include "PersistenceTestSupport.h"

#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "MoviePipelineDeferredPasses.h"
#include "MoviePipelineEditorBlueprintLibrary.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineImageSequenceOutput.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderPipelineSettings.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

// An executor that is rendering from Execute until it is told to finish.
class UMoviePipelineTestExecutor : public UMoviePipelineExecutorBase
{
	STANDIN_CLASS_BODY(UMoviePipelineTestExecutor, UMoviePipelineExecutorBase, )

public:
	void FinishWithFatalError()
	{
		bRendering = false;
		OnExecutorErroredImpl(nullptr, true, FText::FromString(TEXT("failed")));
		OnExecutorFinishedImpl();
	}

	bool bRendering = false;
	UMoviePipelineQueue* ExecutedQueue = nullptr;

protected:
	virtual void Execute_Implementation(UMoviePipelineQueue* InPipelineQueue) override
	{
		ExecutedQueue = InPipelineQueue;
		bRendering = true;
	}
	virtual bool IsRendering_Implementation() const override { return bRendering; }
	virtual void CancelCurrentJob_Implementation() override {}
	virtual void CancelAllJobs_Implementation() override {}
};

STANDIN_IMPLEMENT_CLASS(UMoviePipelineTestExecutor, CLASS_None, "MovieRenderQueueTests")
{
}

namespace
{
	class MoviePipelineQueueSubsystemTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Subsystem.Reset();
			CollectGarbage(RF_NoFlags);
		}

		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem{ NewObject<UMoviePipelineQueueSubsystem>() };
	};
}

TEST_F(MoviePipelineQueueSubsystemTest, TheEditorQueueIsADefaultSubobjectThatIsDirtyOnlyOnceItHasUnsavedJobs)
{
	UMoviePipelineQueue* Queue = Subsystem->GetQueue();
	ASSERT_NE(Queue, nullptr);
	EXPECT_EQ(Queue->GetFName(), FName(TEXT("EditorMoviePipelineQueue")));
	EXPECT_EQ(Queue->GetOuter(), Subsystem.Get());
	EXPECT_FALSE(Subsystem->IsQueueDirty());

	Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	Queue->SetIsDirty(false);
	EXPECT_TRUE(Subsystem->IsQueueDirty());

	TStrongObjectPtr<UMoviePipelineQueue> Saved(NewObject<UMoviePipelineQueue>());
	Queue->SetQueueOrigin(Saved.Get());
	EXPECT_FALSE(Subsystem->IsQueueDirty());
	Queue->GetJobs()[0]->Modify();
	EXPECT_TRUE(Subsystem->IsQueueDirty());
}

TEST_F(MoviePipelineQueueSubsystemTest, LoadQueueCopiesTheSavedJobsRemembersTheOriginAndRefreshesTheShots)
{
	FScopedTestProject Project;
	TStrongObjectPtr<ULevelSequence> Sequence(NewObject<ULevelSequence>(CreatePackage(TEXT("/Game/Load/Edit")), TEXT("Edit"), RF_Public));
	Sequence->Initialize();
	TStrongObjectPtr<UMoviePipelineQueue> Saved(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* SavedJob = Saved->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	SavedJob->JobName = TEXT("Saved");
	SavedJob->Sequence = FSoftObjectPath(Sequence.Get());
	Subsystem->GetQueue()->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass())->JobName = TEXT("Unsaved");
	int32 LoadedBroadcasts = 0;
	Subsystem->OnQueueLoaded.AddLambda([&LoadedBroadcasts]() { ++LoadedBroadcasts; });

	EXPECT_FALSE(Subsystem->LoadQueue(nullptr));
	EXPECT_EQ(LoadedBroadcasts, 0);
	EXPECT_TRUE(Subsystem->LoadQueue(Saved.Get()));

	UMoviePipelineQueue* Queue = Subsystem->GetQueue();
	ASSERT_EQ(Queue->GetJobs().Num(), 1);
	EXPECT_EQ(Queue->GetJobs()[0]->JobName, TEXT("Saved"));
	EXPECT_NE(Queue->GetJobs()[0], Saved->GetJobs()[0]);
	ASSERT_EQ(Queue->GetJobs()[0]->ShotInfo.Num(), 1);
	EXPECT_EQ(Queue->GetJobs()[0]->ShotInfo[0]->InnerName, TEXT("Edit"));
	EXPECT_TRUE(SavedJob->ShotInfo.IsEmpty());
	EXPECT_EQ(Queue->GetQueueOrigin(), Saved.Get());
	EXPECT_FALSE(Queue->IsDirty());
	EXPECT_FALSE(Subsystem->IsQueueDirty());
	EXPECT_EQ(LoadedBroadcasts, 1);
}

TEST_F(MoviePipelineQueueSubsystemTest, AnExecutorIsActiveAndRenderingUntilItReportsItFinished)
{
	EXPECT_FALSE(Subsystem->IsRendering());
	UMoviePipelineTestExecutor* Executor = NewObject<UMoviePipelineTestExecutor>(Subsystem.Get());
	bool bReportedSuccess = true;
	Executor->OnExecutorFinished().AddLambda([&bReportedSuccess](UMoviePipelineExecutorBase*, bool bSuccess) { bReportedSuccess = bSuccess; });

	Subsystem->RenderQueueWithExecutorInstance(Executor);
	EXPECT_EQ(Subsystem->GetActiveExecutor(), Executor);
	EXPECT_EQ(Executor->ExecutedQueue, Subsystem->GetQueue());
	EXPECT_TRUE(Subsystem->IsRendering());

	// An active executor that is not rendering (yet) is no render in progress.
	Executor->bRendering = false;
	EXPECT_FALSE(Subsystem->IsRendering());
	Executor->bRendering = true;

	FLogCapture Log;
	UMoviePipelineTestExecutor* Second = NewObject<UMoviePipelineTestExecutor>(Subsystem.Get());
	Subsystem->RenderQueueWithExecutorInstance(Second);
	EXPECT_TRUE(Log.Contains(TEXT("Render already in progress."), ELogVerbosity::Error));
	EXPECT_EQ(Second->ExecutedQueue, nullptr);
	EXPECT_EQ(Subsystem->RenderQueueWithExecutor(UMoviePipelineTestExecutor::StaticClass()), nullptr);

	Executor->FinishWithFatalError();
	EXPECT_FALSE(bReportedSuccess);
	EXPECT_EQ(Subsystem->GetActiveExecutor(), nullptr);
	EXPECT_FALSE(Subsystem->IsRendering());

	Subsystem->RenderQueueWithExecutorInstance(nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("Invalid executor supplied."), ELogVerbosity::Error));
	UMoviePipelineExecutorBase* Created = Subsystem->RenderQueueWithExecutor(UMoviePipelineTestExecutor::StaticClass());
	ASSERT_NE(Created, nullptr);
	EXPECT_EQ(Created->GetOuter(), Subsystem.Get());
	EXPECT_EQ(Subsystem->GetActiveExecutor(), Created);
}

TEST(MovieRenderPipelineProjectSettings, DefaultsNameTheEnginesExecutorsAndJobSettings)
{
	const UMovieRenderPipelineProjectSettings* Settings = UMovieRenderPipelineProjectSettings::StaticClass()->GetDefaultObject<UMovieRenderPipelineProjectSettings>();

	EXPECT_EQ(Settings->DefaultLocalExecutor.ToString(), TEXT("/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor"));
	EXPECT_EQ(Settings->DefaultRemoteExecutor.ToString(), TEXT("/Script/MovieRenderPipelineEditor.MoviePipelineNewProcessExecutor"));
	EXPECT_EQ(Settings->DefaultExecutorJob.ToString(), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineExecutorJob"));
	EXPECT_EQ(Settings->PresetSaveDir.Path, TEXT("/Game/Cinematics/MoviePipeline/Presets/"));
	ASSERT_EQ(Settings->DefaultClasses.Num(), 2);
	EXPECT_EQ(Settings->DefaultClasses[0].ToString(), TEXT("/Script/MovieRenderPipelineRenderPasses.MoviePipelineImageSequenceOutput_JPG"));
	EXPECT_EQ(Settings->DefaultClasses[1].ToString(), TEXT("/Script/MovieRenderPipelineRenderPasses.MoviePipelineDeferredPassBase"));
	EXPECT_TRUE(UMovieRenderPipelineProjectSettings::StaticClass()->HasAllClassFlags(CLASS_Config | CLASS_DefaultConfig));
}

TEST(MoviePipelineEditorBlueprintLibrary, ResolveOutputDirectoryFromJobResolvesWhatNeedsNoShotAndCutsBeforeTheRest)
{
	FScopedTestProject Project;
	TStrongObjectPtr<UMoviePipelineQueue> Queue(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	Job->Sequence = FSoftObjectPath(TEXT("/Game/Seq/Shot010.Shot010"));
	Job->JobName = TEXT("Nightly");
	UMoviePipelineOutputSetting* Output = Job->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>();
	const FString ProjectDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir());

	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), ProjectDir / TEXT("Saved/MovieRenders/"));

	Output->OutputDirectory.Path = TEXT("/renders/{sequence_name}/{job_name}_{output_resolution}/{version}/{shot_name}/{camera_name}");
	Output->bAutoVersion = false;
	Output->VersionNumber = 7;
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), TEXT("/renders/Shot010/Nightly_1920_1080/v007/"));

	// Auto-versioning shows the newest version already rendered next to the {version} folder.
	Output->OutputDirectory.Path = TEXT("{project_dir}/Renders/{version}/{shot_name}");
	Output->bAutoVersion = true;
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), ProjectDir / TEXT("Renders/v000/"));
	IFileManager::Get().MakeDirectory(*(ProjectDir / TEXT("Renders/v003")), true);
	IFileManager::Get().MakeDirectory(*(ProjectDir / TEXT("Renders/v012_retake")), true);
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), ProjectDir / TEXT("Renders/v012/"));

	Output->OutputDirectory.Path = TEXT("/renders/Take_{unknown_token}/x");
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(Job), TEXT("/renders/"));

	FString DisplayPath;
	EXPECT_TRUE(UMoviePipelineEditorBlueprintLibrary::GetDisplayOutputPathFromJob(Job, DisplayPath));
	EXPECT_EQ(DisplayPath, TEXT("/renders/Take_{unknown_token}/x"));
	EXPECT_EQ(UMoviePipelineEditorBlueprintLibrary::ResolveOutputDirectoryFromJob(nullptr), TEXT(""));
}

TEST(MoviePipelineEditorBlueprintLibrary, EnsureJobHasDefaultSettingsAddsTheProjectDefaultsOnce)
{
	TStrongObjectPtr<UMoviePipelineQueue> Queue(NewObject<UMoviePipelineQueue>());
	UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	UMoviePipelineSetting* DisabledPass = Job->GetConfiguration()->FindOrAddSettingByClass(UMoviePipelineDeferredPassBase::StaticClass(), false, true);
	DisabledPass->SetIsEnabled(false);

	UMoviePipelineEditorBlueprintLibrary::EnsureJobHasDefaultSettings(Job);
	UMoviePipelineEditorBlueprintLibrary::EnsureJobHasDefaultSettings(Job);

	const TArray<UMoviePipelineSetting*> Settings = Job->GetConfiguration()->GetUserSettings();
	ASSERT_EQ(Settings.Num(), 3);
	EXPECT_EQ(Settings[0], DisabledPass);
	EXPECT_EQ(Settings[1]->GetClass(), UMoviePipelineImageSequenceOutput_JPG::StaticClass());
	EXPECT_TRUE(Settings[2]->IsA<UMoviePipelineOutputSetting>());
}
