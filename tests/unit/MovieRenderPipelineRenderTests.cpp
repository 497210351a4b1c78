#include "PersistenceTestSupport.h"
#include "ImageDecodeTestSupport.h"
#include "MovieRenderTestSupport.h"

#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "LevelSequence.h"
#include "Misc/FileHelper.h"
#include "MovieScene.h"
#include "MoviePipeline.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineEXROutput.h"
#include "MoviePipelineImageSequenceOutput.h"
#include "MoviePipelineLinearExecutor.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePIEExecutor.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "Misc/EngineVersionComparison.h"
#include "Templates/Casts.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	// An editor with the queue subsystem, a project folder to render into and a 24 fps sequence of two shots of two
	// frames each: sh010 (camera CamA) and sh020 (camera CamB).
	class MovieRenderPipelineRenderTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/RenderTests/Map"));
			Subsystem = GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>();
			Sequence = UE::MovieRenderTest::CreateTwoShotSequence(TEXT("/Game/RenderTests/Edit"), TEXT("Edit"));
		}

		void TearDown() override
		{
			Sequence->ClearFlags(RF_Standalone);
			UE::UnrealEd::StandIn::StopEditor();
		}

		// A job of the sequence writing PNG files named "<job>.<shot>.<frame>" into <project>/Render.
		UMoviePipelineExecutorJob* AddJob(UMoviePipelineQueue* InQueue, const TCHAR* InJobName)
		{
			UMoviePipelineExecutorJob* Job = InQueue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
			Job->JobName = InJobName;
			Job->SetSequence(FSoftObjectPath(Sequence));
			Job->GetConfiguration()->FindOrAddSettingByClass(UMoviePipelineImageSequenceOutput_PNG::StaticClass());
			UMoviePipelineOutputSetting* Output = GetOutputSetting(Job);
			Output->OutputDirectory.Path = TEXT("{project_dir}/Render");
			Output->FileNameFormat = TEXT("{job_name}.{shot_name}.{frame_number}");
			return Job;
		}

		static UMoviePipelineOutputSetting* GetOutputSetting(UMoviePipelineExecutorJob* InJob)
		{
			return InJob->GetConfiguration()->FindSetting<UMoviePipelineOutputSetting>();
		}

		UMoviePipelineExecutorBase* RenderEditorQueue()
		{
			return Subsystem->RenderQueueWithExecutor(UMoviePipelinePIEExecutor::StaticClass());
		}

		// The executor's pipeline, read through reflection as a script binding must.
		static UMoviePipeline* GetActivePipeline(UMoviePipelineExecutorBase* InExecutor)
		{
			const FObjectProperty* Property = CastField<FObjectProperty>(InExecutor->GetClass()->FindPropertyByName(TEXT("ActiveMoviePipeline")));
			return Property ? Cast<UMoviePipeline>(Property->GetObjectPropertyValue_InContainer(InExecutor)) : nullptr;
		}

		static void Tick(int32 InCount = 1)
		{
			for (int32 Index = 0; Index < InCount; ++Index)
			{
				GEditor->Tick(1.0f / 24.0f, false);
			}
		}

		// Ticks until the subsystem no longer renders; returns the number of ticks.
		int32 TickUntilIdle(int32 InMaxTicks = 200)
		{
			int32 Ticks = 0;
			while (Subsystem->IsRendering() && Ticks < InMaxTicks)
			{
				Tick();
				++Ticks;
			}
			return Ticks;
		}

		FString RenderDir() const
		{
			return Project.GetProjectDir() + TEXT("Render/");
		}

		TArray<FString> RenderedFiles() const
		{
			TArray<FString> Files;
			IFileManager::Get().FindFilesRecursive(Files, *RenderDir(), TEXT("*"), true, false);
			for (FString& File : Files)
			{
				File = FPaths::GetCleanFilename(File);
			}
			Files.Sort();
			return Files;
		}

		static TArray<uint8> ReadFile(const FString& InPath)
		{
			TArray<uint8> Bytes;
			FFileHelper::LoadFileToArray(Bytes, *InPath);
			return Bytes;
		}

		FScopedTestProject Project;
		UMoviePipelineQueueSubsystem* Subsystem = nullptr;
		ULevelSequence* Sequence = nullptr;
	};

	bool StartsWithBytes(const TArray<uint8>& InBytes, std::initializer_list<uint8> InPrefix)
	{
		int32 Index = 0;
		for (const uint8 Byte : InPrefix)
		{
			if (Index >= InBytes.Num() || InBytes[Index++] != Byte)
			{
				return false;
			}
		}
		return true;
	}

	bool EndsWithBytes(const TArray<uint8>& InBytes, std::initializer_list<uint8> InSuffix)
	{
		int32 Index = InBytes.Num() - int32(InSuffix.size());
		if (Index < 0)
		{
			return false;
		}
		for (const uint8 Byte : InSuffix)
		{
			if (InBytes[Index++] != Byte)
			{
				return false;
			}
		}
		return true;
	}

	uint32 ReadLittleEndian32(const TArray<uint8>& InBytes, int32 InOffset)
	{
		return uint32(InBytes[InOffset]) | uint32(InBytes[InOffset + 1]) << 8 | uint32(InBytes[InOffset + 2]) << 16 | uint32(InBytes[InOffset + 3]) << 24;
	}
}

TEST_F(MovieRenderPipelineRenderTest, ATwoJobQueueRendersOneFramePerTickToCompletion)
{
	UMoviePipelineExecutorJob* First = AddJob(Subsystem->GetQueue(), TEXT("First"));
	UMoviePipelineExecutorJob* Second = AddJob(Subsystem->GetQueue(), TEXT("Second"));
	bool bFinishedSuccessfully = false;
	TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(RenderEditorQueue());
	ASSERT_NE(Executor.Get(), nullptr);
	Executor->OnExecutorFinished().AddLambda([&bFinishedSuccessfully](UMoviePipelineExecutorBase*, bool bSuccess) { bFinishedSuccessfully = bSuccess; });

	const FProperty* ActivePipelineProperty = Executor->GetClass()->FindPropertyByName(TEXT("ActiveMoviePipeline"));
	ASSERT_NE(CastField<FObjectProperty>(ActivePipelineProperty), nullptr);
	EXPECT_TRUE(ActivePipelineProperty->HasAnyPropertyFlags(CPF_Transient));
	EXPECT_EQ(Subsystem->GetActiveExecutor(), Executor.Get());
	EXPECT_TRUE(Subsystem->IsRendering());
	EXPECT_EQ(GetActivePipeline(Executor.Get()), nullptr) << "play-in-editor is still starting";

	Tick();
	TStrongObjectPtr<UMoviePipeline> Pipeline(GetActivePipeline(Executor.Get()));
	ASSERT_NE(Pipeline.Get(), nullptr);
	EXPECT_EQ(Pipeline->GetCurrentJob(), First);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::ProducingFrames);
	const TArray<TObjectPtr<UMoviePipelineExecutorShot>> Shots = Pipeline->GetActiveShotList();
	ASSERT_EQ(Shots.Num(), 2);
	EXPECT_EQ(Shots[0]->ShotInfo.State, EMovieRenderShotState::Rendering);
	EXPECT_EQ(Shots[1]->ShotInfo.State, EMovieRenderShotState::Uninitialized);
	EXPECT_EQ(RenderedFiles().Num(), 0);

	Tick(2);
	EXPECT_EQ(Shots[0]->ShotInfo.State, EMovieRenderShotState::Finished);
	EXPECT_FLOAT_EQ(Shots[0]->GetStatusProgress(), 1.0f);
	EXPECT_EQ(Shots[1]->ShotInfo.State, EMovieRenderShotState::Rendering);
	EXPECT_EQ(Pipeline->GetCurrentShotIndex(), 1);
	EXPECT_FLOAT_EQ(UMoviePipelineBlueprintLibrary::GetCompletionPercentage(Pipeline.Get()), 0.5f);
	EXPECT_FLOAT_EQ(First->GetStatusProgress(), 0.5f);

	Tick(2);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize);
	EXPECT_FALSE(First->IsConsumed());

	float LastProgress = Executor->GetStatusProgress();
	int32 Ticks = 5;
	while (Subsystem->IsRendering() && Ticks < 100)
	{
		Tick();
		++Ticks;
		EXPECT_GE(Executor->GetStatusProgress(), LastProgress);
		LastProgress = Executor->GetStatusProgress();
	}
	EXPECT_EQ(Ticks, 11) << "one tick to start each job, one per frame, one to finalize";
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FLOAT_EQ(Executor->GetStatusProgress(), 1.0f);
	EXPECT_TRUE(bFinishedSuccessfully);
	EXPECT_EQ(Subsystem->GetActiveExecutor(), nullptr);
	EXPECT_FALSE(Executor->IsRendering());
	EXPECT_TRUE(First->IsConsumed());
	EXPECT_TRUE(Second->IsConsumed());
	EXPECT_FLOAT_EQ(Second->GetStatusProgress(), 1.0f);
	EXPECT_EQ(Second->ShotInfo[1]->ShotInfo.State, EMovieRenderShotState::Finished);

	const TArray<FString> Expected = {
		TEXT("First.sh010.0000.png"), TEXT("First.sh010.0001.png"), TEXT("First.sh020.0002.png"), TEXT("First.sh020.0003.png"),
		TEXT("Second.sh010.0000.png"), TEXT("Second.sh010.0001.png"), TEXT("Second.sh020.0002.png"), TEXT("Second.sh020.0003.png") };
	EXPECT_EQ(RenderedFiles(), Expected);

	const TArray<uint8> Png = ReadFile(RenderDir() + TEXT("First.sh010.0000.png"));
	EXPECT_TRUE(StartsWithBytes(Png, { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 8, 0, 0, 0, 8, 8, 2 }));
	EXPECT_TRUE(EndsWithBytes(Png, { 0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82 })) << "IEND with its fixed CRC";
	ASSERT_GT(Png.Num(), 43);
	EXPECT_EQ(((Png[41] << 8) | Png[42]) % 31, 0) << "a valid zlib header opens the image data";
	const UE::ImageDecodeTest::FDecodedImage Decoded = UE::ImageDecodeTest::DecodePng(Png);
	EXPECT_EQ(Decoded.Width, 8);
	EXPECT_EQ(Decoded.Height, 8);
	EXPECT_EQ(Decoded.Channels, 3);
}

TEST_F(MovieRenderPipelineRenderTest, DisabledAndConsumedJobsAreSkipped)
{
	AddJob(Subsystem->GetQueue(), TEXT("Disabled"))->SetIsEnabled(false);
	AddJob(Subsystem->GetQueue(), TEXT("Consumed"))->SetConsumed(true);
	UMoviePipelineExecutorJob* Rendered = AddJob(Subsystem->GetQueue(), TEXT("Rendered"));
	RenderEditorQueue();

	EXPECT_EQ(TickUntilIdle(), 6);
	EXPECT_TRUE(Rendered->IsConsumed());
	EXPECT_FALSE(Subsystem->GetQueue()->GetJobs()[0]->IsConsumed());
	const TArray<FString> Expected = { TEXT("Rendered.sh010.0000.png"), TEXT("Rendered.sh010.0001.png"), TEXT("Rendered.sh020.0002.png"), TEXT("Rendered.sh020.0003.png") };
	EXPECT_EQ(RenderedFiles(), Expected);

	// Everything is consumed now: the executor finishes at once, with nothing to render.
	UMoviePipelineExecutorBase* Executor = RenderEditorQueue();
	EXPECT_FALSE(Executor->IsRendering());
	EXPECT_EQ(Subsystem->GetActiveExecutor(), nullptr);
}

TEST_F(MovieRenderPipelineRenderTest, ANullOrEmptyQueueIsAFatalErrorThatFinishesTheExecutor)
{
	TStrongObjectPtr<UMoviePipelinePIEExecutor> Executor(NewObject<UMoviePipelinePIEExecutor>());
	TArray<FString> Errors;
	bool bSuccess = true;
	Executor->OnExecutorErrored().AddLambda([&Errors](UMoviePipelineExecutorBase*, UMoviePipeline*, bool bFatal, FText Reason) { Errors.Add(Reason.ToString()); });
	Executor->OnExecutorFinished().AddLambda([&bSuccess](UMoviePipelineExecutorBase*, bool bInSuccess) { bSuccess = bInSuccess; });

	Executor->Execute(nullptr);
	Executor->Execute(Subsystem->GetQueue());
	const TArray<FString> Expected = { TEXT("Executor asked to execute a null queue, not supported!"), TEXT("Executor asked to execute empty list of jobs. This was probably not intended!") };
	EXPECT_EQ(Errors, Expected);
	EXPECT_FALSE(bSuccess);
	EXPECT_FALSE(Executor->IsRendering());
}

TEST_F(MovieRenderPipelineRenderTest, CancelingTakesEffectAtTheNextTick)
{
	UMoviePipelineExecutorJob* First = AddJob(Subsystem->GetQueue(), TEXT("First"));
	UMoviePipelineExecutorJob* Second = AddJob(Subsystem->GetQueue(), TEXT("Second"));
	bool bSuccess = true;
	TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(RenderEditorQueue());
	Executor->OnExecutorFinished().AddLambda([&bSuccess](UMoviePipelineExecutorBase*, bool bInSuccess) { bSuccess = bInSuccess; });
	Tick(2);
	TStrongObjectPtr<UMoviePipeline> FirstPipeline(GetActivePipeline(Executor.Get()));

	Executor->CancelCurrentJob();
	EXPECT_EQ(GetActivePipeline(Executor.Get()), FirstPipeline.Get());
	EXPECT_TRUE(FirstPipeline->IsShutdownRequested());
	EXPECT_EQ(FirstPipeline->GetPipelineState(), EMovieRenderPipelineState::ProducingFrames);

	Tick();
	EXPECT_EQ(FirstPipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	UMoviePipeline* SecondPipeline = GetActivePipeline(Executor.Get());
	ASSERT_NE(SecondPipeline, nullptr) << "the next job starts";
	EXPECT_EQ(SecondPipeline->GetCurrentJob(), Second);
	EXPECT_FALSE(First->IsConsumed()) << "a canceled job is not consumed";

	Tick();
	Executor->CancelAllJobs();
	EXPECT_TRUE(Subsystem->IsRendering());
	Tick();
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_EQ(Subsystem->GetActiveExecutor(), nullptr);
	EXPECT_FALSE(bSuccess);
	EXPECT_FALSE(Second->IsConsumed());
	const TArray<FString> Expected = { TEXT("First.sh010.0000.png"), TEXT("Second.sh010.0000.png") };
	EXPECT_EQ(RenderedFiles(), Expected);

	// Ticking on after the cancel, with collections in between, renders nothing more.
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Tick(5);
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, CancelingWhilePlayInEditorStartsRendersNothing)
{
	AddJob(Subsystem->GetQueue(), TEXT("First"));
	TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(RenderEditorQueue());
	Executor->CancelAllJobs();
	EXPECT_TRUE(Executor->IsRendering());
	Tick();
	EXPECT_FALSE(Executor->IsRendering());
	EXPECT_EQ(GetActivePipeline(Executor.Get()), nullptr);
	EXPECT_EQ(RenderedFiles().Num(), 0);
}

TEST_F(MovieRenderPipelineRenderTest, FileNameTokensResolveFromTheJobTheShotAndTheOutputSetting)
{
	UMoviePipelineExecutorJob* Job = AddJob(Subsystem->GetQueue(), TEXT("Tokens"));
	Job->Map = FSoftObjectPath(TEXT("/Game/Maps/Main.Main"));
	UMoviePipelineOutputSetting* Output = GetOutputSetting(Job);
	Output->OutputDirectory.Path = TEXT("{project_dir}/Render/{sequence_name}");
	Output->FileNameFormat = TEXT("{job_name}_{shot_name}_{camera_name}_{frame_number_shot}_{frame_number_rel}_{output_resolution}_{output_width}x{output_height}_{frame_rate}_{level_name}_{unknown}_{frame_number}");
	Output->ZeroPadFrameNumbers = 2;
	Output->FrameNumberOffset = 100;
	Output->OutputResolution = FIntPoint(640, 360);
	Output->bUseCustomFrameRate = true;
	Output->OutputFrameRate = FFrameRate(12, 1);
	RenderEditorQueue();
	TickUntilIdle();

	// At 12 fps each two-frame shot of the 24 fps sequence gives one frame.
	const TArray<FString> Expected = {
		TEXT("Tokens_sh010_CamA_100_100_640_360_640x360_12.0_Main_{unknown}_100.png"),
		TEXT("Tokens_sh020_CamB_100_101_640_360_640x360_12.0_Main_{unknown}_101.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("Edit/") + Expected[0]));
}

TEST_F(MovieRenderPipelineRenderTest, FrameNumbersOffsetPastTheInt32RangeKeepCounting)
{
	UMoviePipelineOutputSetting* Output = GetOutputSetting(AddJob(Subsystem->GetQueue(), TEXT("Offset")));
	Output->FileNameFormat = TEXT("{frame_number}_{frame_number_shot_rel}");
	Output->FrameNumberOffset = MAX_int32;
	RenderEditorQueue();
	TickUntilIdle();

	const TArray<FString> Expected = {
		TEXT("2147483647_2147483647.png"), TEXT("2147483648_2147483648.png"), TEXT("2147483649_2147483647.png"), TEXT("2147483650_2147483648.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, ZeroPaddingIsClampedToTheEnginesMinimumOfOneDigit)
{
	UMoviePipelineOutputSetting* Output = GetOutputSetting(AddJob(Subsystem->GetQueue(), TEXT("Padding")));
	Output->FileNameFormat = TEXT("{frame_number}-{frame_number_shot}");
	Output->ZeroPadFrameNumbers = -2147483647;
	RenderEditorQueue();
	TickUntilIdle();

	const TArray<FString> Expected = { TEXT("0-0.png"), TEXT("1-1.png"), TEXT("2-0.png"), TEXT("3-1.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, AnOverlongPathIsRefusedOnceAndTheQueueRendersOn)
{
	UMoviePipelineOutputSetting* Output = GetOutputSetting(AddJob(Subsystem->GetQueue(), TEXT("Overlong")));
	Output->ZeroPadFrameNumbers = MAX_int32;
	Output->FrameNumberOffset = -100000;
	AddJob(Subsystem->GetQueue(), TEXT("Next"));
	bool bFinishedSuccessfully = false;
	TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(RenderEditorQueue());
	Executor->OnExecutorFinished().AddLambda([&bFinishedSuccessfully](UMoviePipelineExecutorBase*, bool bSuccess) { bFinishedSuccessfully = bSuccess; });
	FLogCapture Log;

	EXPECT_EQ(TickUntilIdle(), 11) << "both jobs render all their frames";
	EXPECT_TRUE(bFinishedSuccessfully);
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Warning), 1);
	EXPECT_TRUE(Log.Contains(TEXT("Output paths of job 'Overlong' are longer than the maximum path length of 4096 characters ("), ELogVerbosity::Error));
	const TArray<FString> Expected = { TEXT("Next.sh010.0000.png"), TEXT("Next.sh010.0001.png"), TEXT("Next.sh020.0002.png"), TEXT("Next.sh020.0003.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, NamesThatCannotBeWrittenOrLackAFrameNumberAreReportedOncePerRender)
{
	UMoviePipelineExecutorJob* Job = AddJob(Subsystem->GetQueue(), TEXT("Unwritable"));
	UMoviePipelineOutputSetting* Output = GetOutputSetting(Job);
	// Three hundred one-digit frame numbers fit the path, but not the length of one file name.
	FString FileNameFormat;
	for (int32 Index = 0; Index < 300; ++Index)
	{
		FileNameFormat += TEXT("{frame_number}");
	}
	Output->FileNameFormat = FileNameFormat;
	Output->ZeroPadFrameNumbers = -2147483647;
	{
		FLogCapture Log;
		RenderEditorQueue();
		EXPECT_EQ(TickUntilIdle(), 6);
		EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Warning), 1);
		EXPECT_TRUE(Log.Contains(TEXT("Failed to write image to '"), ELogVerbosity::Error));
		EXPECT_EQ(RenderedFiles().Num(), 0);
	}

	Job->SetConsumed(false);
	Output->FileNameFormat = TEXT("{job_name}");
	FLogCapture Log;
	RenderEditorQueue();
	EXPECT_EQ(TickUntilIdle(), 6);
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Warning), 1);
	EXPECT_TRUE(Log.Contains(TEXT("Frame number identifier not found. Files may be overwritten."), ELogVerbosity::Warning));
	EXPECT_EQ(RenderedFiles(), TArray<FString>({ TEXT("Unwritable.png") }));
}

TEST_F(MovieRenderPipelineRenderTest, AutoVersioningFindsThePreviousRender)
{
	UMoviePipelineExecutorJob* Job = AddJob(Subsystem->GetQueue(), TEXT("Versioned"));
	GetOutputSetting(Job)->FileNameFormat = TEXT("{sequence_name}.{version}.{frame_number}");
	RenderEditorQueue();
	TickUntilIdle();
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("Edit.v001.0000.png")));

	Job->SetConsumed(false);
	RenderEditorQueue();
	TickUntilIdle();
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("Edit.v002.0003.png")));

	Job->SetConsumed(false);
	GetOutputSetting(Job)->bAutoVersion = false;
	GetOutputSetting(Job)->VersionNumber = 7;
	RenderEditorQueue();
	TickUntilIdle();
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("Edit.v007.0000.png")));
	EXPECT_EQ(RenderedFiles().Num(), 12);
}

TEST_F(MovieRenderPipelineRenderTest, ExistingFilesAreKeptWhenOutputMayNotBeOverwritten)
{
	UMoviePipelineExecutorJob* Job = AddJob(Subsystem->GetQueue(), TEXT("Kept"));
	GetOutputSetting(Job)->bOverrideExistingOutput = false;
	RenderEditorQueue();
	TickUntilIdle();
	Job->SetConsumed(false);
	RenderEditorQueue();
	TickUntilIdle();
	const TArray<FString> Expected = {
		TEXT("Kept.sh010.0000.png"), TEXT("Kept.sh010.0001.png"), TEXT("Kept.sh010._(2)0000.png"), TEXT("Kept.sh010._(2)0001.png"),
		TEXT("Kept.sh020.0002.png"), TEXT("Kept.sh020.0003.png"), TEXT("Kept.sh020._(2)0002.png"), TEXT("Kept.sh020._(2)0003.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, EachImageFormatWritesAValidFileAndAJobWithoutOutputWritesNothing)
{
	UMoviePipelineExecutorJob* Job = AddJob(Subsystem->GetQueue(), TEXT("Formats"));
	UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration();
	Config->RemoveSetting(Config->FindSetting<UMoviePipelineImageSequenceOutput_PNG>());
	Config->FindOrAddSettingByClass(UMoviePipelineImageSequenceOutput_JPG::StaticClass());
	Config->FindOrAddSettingByClass(UMoviePipelineImageSequenceOutput_BMP::StaticClass());
	Config->FindOrAddSettingByClass(UMoviePipelineImageSequenceOutput_EXR::StaticClass());
	UMoviePipelineExecutorJob* Silent = AddJob(Subsystem->GetQueue(), TEXT("Silent"));
	Silent->GetConfiguration()->RemoveSetting(Silent->GetConfiguration()->FindSetting<UMoviePipelineImageSequenceOutput_PNG>());
	RenderEditorQueue();
	TickUntilIdle();

	EXPECT_EQ(RenderedFiles().Num(), 12);
	EXPECT_TRUE(Silent->IsConsumed());
	const TArray<uint8> Jpg = ReadFile(RenderDir() + TEXT("Formats.sh010.0000.jpg"));
	EXPECT_TRUE(StartsWithBytes(Jpg, { 0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F', 0x00 }));
	EXPECT_TRUE(EndsWithBytes(Jpg, { 0xFF, 0xD9 }));
	const TArray<uint8> Bmp = ReadFile(RenderDir() + TEXT("Formats.sh010.0000.bmp"));
	ASSERT_GE(Bmp.Num(), 54);
	EXPECT_TRUE(StartsWithBytes(Bmp, { 'B', 'M' }));
	EXPECT_EQ(ReadLittleEndian32(Bmp, 2), uint32(Bmp.Num()));
	EXPECT_EQ(ReadLittleEndian32(Bmp, 10), 54u);
	EXPECT_EQ(ReadLittleEndian32(Bmp, 18), 8u);
	const TArray<uint8> Exr = ReadFile(RenderDir() + TEXT("Formats.sh010.0000.exr"));
	EXPECT_TRUE(StartsWithBytes(Exr, { 0x76, 0x2F, 0x31, 0x01, 0x02, 0x00, 0x00, 0x00 })) << "version 2, a single-part scanline file";

	// Each file reads back, with the libraries that wrote it, as an 8x8 RGB image.
	const UE::ImageDecodeTest::FDecodedImage Decoded[] = { UE::ImageDecodeTest::DecodeJpeg(Jpg), UE::ImageDecodeTest::DecodeBmp(Bmp), UE::ImageDecodeTest::DecodeExr(Exr) };
	for (const UE::ImageDecodeTest::FDecodedImage& Image : Decoded)
	{
		EXPECT_EQ(Image.Width, 8);
		EXPECT_EQ(Image.Height, 8);
		EXPECT_EQ(Image.Channels, 3);
	}
}

TEST_F(MovieRenderPipelineRenderTest, DeletingTheJobBeingRenderedFailsThatJobAndRendersTheNext)
{
	UMoviePipelineExecutorJob* First = AddJob(Subsystem->GetQueue(), TEXT("First"));
	UMoviePipelineExecutorJob* Second = AddJob(Subsystem->GetQueue(), TEXT("Second"));
	bool bSuccess = true;
	RenderEditorQueue()->OnExecutorFinished().AddLambda([&bSuccess](UMoviePipelineExecutorBase*, bool bInSuccess) { bSuccess = bInSuccess; });
	Tick(2);
	Subsystem->GetQueue()->DeleteJob(First);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);

	TickUntilIdle();
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_FALSE(bSuccess);
	EXPECT_FALSE(Second->IsConsumed()) << "the second job moved to index 0, which the executor had already passed";
	const TArray<FString> Expected = { TEXT("First.sh010.0000.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}

TEST_F(MovieRenderPipelineRenderTest, ReplacingTheQueueMidRenderStaysSafe)
{
	AddJob(Subsystem->GetQueue(), TEXT("Old"));
	AddJob(Subsystem->GetQueue(), TEXT("OldToo"));
	TStrongObjectPtr<UMoviePipelineQueue> Saved(NewObject<UMoviePipelineQueue>());
	AddJob(Saved.Get(), TEXT("New1"));
	AddJob(Saved.Get(), TEXT("New2"));
	RenderEditorQueue();
	Tick(2);

	ASSERT_TRUE(Subsystem->LoadQueue(Saved.Get(), false));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	TickUntilIdle();
	EXPECT_FALSE(Subsystem->IsRendering());
	// The old job fails where it stands and the executor goes on with the second job of the queue, now New2.
	EXPECT_TRUE(Subsystem->GetQueue()->GetJobs()[1]->IsConsumed());
	EXPECT_FALSE(Subsystem->GetQueue()->GetJobs()[0]->IsConsumed());
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("Old.sh010.0000.png")));
	EXPECT_TRUE(FPaths::FileExists(RenderDir() + TEXT("New2.sh020.0003.png")));
	EXPECT_FALSE(FPaths::FileExists(RenderDir() + TEXT("Old.sh010.0001.png")));
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
TEST_F(MovieRenderPipelineRenderTest, RenderQueueInstanceWithExecutorRendersASeparateQueue)
{
	UMoviePipelineExecutorJob* EditorJob = AddJob(Subsystem->GetQueue(), TEXT("Editor"));
	TStrongObjectPtr<UMoviePipelineQueue> Separate(NewObject<UMoviePipelineQueue>(Subsystem, NAME_None, RF_Transient));
	UMoviePipelineExecutorJob* SeparateJob = AddJob(Separate.Get(), TEXT("Separate"));

	UMoviePipelineExecutorBase* Executor = Subsystem->RenderQueueInstanceWithExecutor(Separate.Get(), UMoviePipelinePIEExecutor::StaticClass());
	ASSERT_NE(Executor, nullptr);
	EXPECT_EQ(Subsystem->RenderQueueInstanceWithExecutor(Separate.Get(), UMoviePipelinePIEExecutor::StaticClass()), nullptr) << "already rendering";
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(TickUntilIdle(), 6);
	EXPECT_TRUE(SeparateJob->IsConsumed());
	EXPECT_FALSE(EditorJob->IsConsumed());
	const TArray<FString> Expected = { TEXT("Separate.sh010.0000.png"), TEXT("Separate.sh010.0001.png"), TEXT("Separate.sh020.0002.png"), TEXT("Separate.sh020.0003.png") };
	EXPECT_EQ(RenderedFiles(), Expected);
}
#endif
