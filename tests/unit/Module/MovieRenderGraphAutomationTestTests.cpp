// The module's editor automation tests under preconditions a plain `vlmr test` run never meets: no editor, a
// transaction already open, a render in progress. A skipped test passes with its note alone and leaves the editor's
// undo buffer and render untouched.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Editor/StandInEditorStartup.h"
#include "Editor/Transactor.h"
#include "Misc/AutomationTest.h"
#include "MoviePipelinePIEExecutor.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	struct FAutomationOutcome
	{
		bool bRan = false;
		bool bPassed = false;
		// "<type>: <message>" per recorded event, in order.
		TArray<FString> Events;
	};

	const TCHAR* DescribeEventType(EAutomationEventType Type)
	{
		switch (Type)
		{
		case EAutomationEventType::Error: return TEXT("error");
		case EAutomationEventType::Warning: return TEXT("warning");
		default: return TEXT("info");
		}
	}

	FAutomationOutcome RunAutomationTest(const FString& FullPath)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		TArray<FAutomationTestInfo> Tests;
		Framework.GetValidTestNames(Tests);
		const FAutomationTestInfo* Test = Tests.FindByPredicate([&FullPath](const FAutomationTestInfo& Info) { return Info.GetFullTestPath() == FullPath; });
		FAutomationOutcome Outcome;
		if (!Test)
		{
			return Outcome;
		}
		Framework.StartTestByName(Test->GetTestName(), 0, FullPath);
		FAutomationTestExecutionInfo Execution;
		Outcome.bRan = true;
		Outcome.bPassed = Framework.StopTest(Execution);
		for (const FAutomationExecutionEntry& Entry : Execution.GetEntries())
		{
			Outcome.Events.Add(FString::Printf(TEXT("%s: %s"), DescribeEventType(Entry.Event.Type), *Entry.Event.Message));
		}
		return Outcome;
	}

	const TCHAR* const UndoRedoTest = TEXT("Velmire.MovieRenderGraph.NodePropertyUndoRedo");
	const TCHAR* const IdleStatusTest = TEXT("Velmire.MovieRenderGraph.PipelineStatusIdle");

	class MovieRenderGraphAutomationEditorTest : public ::testing::Test
	{
	protected:
		void SetUp() override { UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/AutomationTests/Map")); }
		void TearDown() override { UE::UnrealEd::StandIn::StopEditor(); }
	};
}

TEST(MovieRenderGraphAutomationTest, TheSevenTestsAreRegisteredForTheEditorContextAndEngineFilter)
{
	TArray<FAutomationTestInfo> Tests;
	FAutomationTestFramework::Get().GetValidTestNames(Tests);
	TArray<FString> Names;
	for (const FAutomationTestInfo& Info : Tests)
	{
		if (Info.GetFullTestPath().StartsWith(TEXT("Velmire.")))
		{
			Names.Add(Info.GetFullTestPath());
			EXPECT_EQ(static_cast<uint32>(Info.GetTestFlags()), 0x02000001u) << *Info.GetFullTestPath();
		}
	}
	const TArray<FString> Expected = {
		TEXT("Velmire.MovieRenderGraph.EvaluateTransientGraph"),
		TEXT("Velmire.MovieRenderGraph.NamedResolutions"),
		TEXT("Velmire.MovieRenderGraph.NodePropertyUndoRedo"),
		TEXT("Velmire.MovieRenderGraph.PinLabelAlias"),
		TEXT("Velmire.MovieRenderGraph.PipelineStatusIdle"),
		TEXT("Velmire.MovieRenderGraph.ResolveFormat"),
		TEXT("Velmire.MovieRenderGraph.SetVariableValidateBeforeMutate"),
	};
	EXPECT_EQ(Names, Expected);
}

TEST(MovieRenderGraphAutomationTest, WithoutAnEditorTheUndoTestPassesWithOnlyItsNote)
{
	ASSERT_EQ(GEditor, nullptr);
	const FAutomationOutcome Outcome = RunAutomationTest(UndoRedoTest);
	ASSERT_TRUE(Outcome.bRan);
	EXPECT_TRUE(Outcome.bPassed);
	EXPECT_EQ(Outcome.Events, TArray<FString>({ TEXT("info: Not exercised: requires the editor transaction buffer") }));
}

TEST_F(MovieRenderGraphAutomationEditorTest, AnOpenTransactionIsLeftAloneAndTheUndoTestPassesWithOnlyItsNote)
{
	GEditor->BeginTransaction(FText::FromString(TEXT("Artist's edit")));
	const int32 QueueLength = GEditor->Trans->GetQueueLength();

	const FAutomationOutcome Outcome = RunAutomationTest(UndoRedoTest);
	ASSERT_TRUE(Outcome.bRan);
	EXPECT_TRUE(Outcome.bPassed);
	EXPECT_EQ(Outcome.Events, TArray<FString>({ TEXT("info: Not exercised: a transaction is already active") }));
	EXPECT_TRUE(GEditor->IsTransactionActive());
	EXPECT_EQ(GEditor->Trans->GetQueueLength(), QueueLength);
	GEditor->EndTransaction();
}

TEST_F(MovieRenderGraphAutomationEditorTest, WithAFreeUndoBufferTheScriptsTwoWritesAreTheOnlyNewStepsAndEndRedone)
{
	const int32 QueueLength = GEditor->Trans->GetQueueLength();

	const FAutomationOutcome Outcome = RunAutomationTest(UndoRedoTest);
	ASSERT_TRUE(Outcome.bRan);
	EXPECT_TRUE(Outcome.bPassed);
	EXPECT_TRUE(Outcome.Events.IsEmpty()) << *FString::Join(Outcome.Events, TEXT("\n"));
	EXPECT_EQ(GEditor->Trans->GetQueueLength(), QueueLength + 2) << "the refused writes open no undo step";
	EXPECT_EQ(GEditor->Trans->GetUndoCount(), 0) << "both undone steps are redone";
	EXPECT_FALSE(GEditor->IsTransactionActive());
}

TEST_F(MovieRenderGraphAutomationEditorTest, ARenderInProgressIsNeitherQueriedNorStoppedByTheIdleStatusTest)
{
	UMoviePipelineQueueSubsystem* Subsystem = GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>();
	ASSERT_NE(Subsystem, nullptr);
	Subsystem->GetQueue()->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
	const TStrongObjectPtr<UMoviePipelineExecutorBase> Executor(Subsystem->RenderQueueWithExecutor(UMoviePipelinePIEExecutor::StaticClass()));
	ASSERT_TRUE(Executor && Executor->IsRendering());

	const FAutomationOutcome Outcome = RunAutomationTest(IdleStatusTest);
	ASSERT_TRUE(Outcome.bRan);
	EXPECT_TRUE(Outcome.bPassed);
	EXPECT_EQ(Outcome.Events, TArray<FString>({ TEXT("info: Not exercised: a render is in progress; idle path cannot be asserted") }));
	EXPECT_TRUE(Executor->IsRendering());
	EXPECT_EQ(Subsystem->GetActiveExecutor(), Executor.Get());

	Executor->CancelAllJobs();
	for (int32 Tick = 0; Tick < 10 && Subsystem->IsRendering(); ++Tick)
	{
		GEditor->Tick(1.0f / 24.0f, false);
	}
}
