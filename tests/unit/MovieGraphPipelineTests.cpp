#include "PersistenceTestSupport.h"
#include "MovieRenderTestSupport.h"

#include "CineCameraComponent.h"
#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPipeline.h"
#include "Graph/Nodes/MovieGraphDeferredPassNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Graph/Nodes/MovieGraphRenderLayerNode.h"
#include "Graph/Nodes/MovieGraphSamplingMethodNode.h"
#include "Graph/Nodes/MovieGraphSubgraphNode.h"
#include "Graph/Nodes/MovieGraphWarmUpSettingNode.h"
#include "LevelSequence.h"
#include "Misc/EngineVersionComparison.h"
#include "MovieGraphImageSequenceOutputNode.h"
#include "MovieScene.h"
#include "MoviePipelinePIEExecutor.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "Templates/Casts.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	const FName LayerBranch(TEXT("Layer"));

	// What one engine tick left the shot that was current before it in.
	struct FShotTick
	{
		int32 ShotIndex;
		EMovieRenderShotState State;
		int32 WarmUpIndex;
		int32 FrameIndex;
		int32 SubSampleIndex;

		bool operator==(const FShotTick& Other) const
		{
			return ShotIndex == Other.ShotIndex && State == Other.State && WarmUpIndex == Other.WarmUpIndex && FrameIndex == Other.FrameIndex && SubSampleIndex == Other.SubSampleIndex;
		}
	};

	void PrintTo(const FShotTick& InTick, std::ostream* OutStream)
	{
		*OutStream << "{shot " << InTick.ShotIndex << ", state " << int32(InTick.State) << ", warm-up " << InTick.WarmUpIndex << ", frame " << InTick.FrameIndex << ", sub-sample " << InTick.SubSampleIndex << "}";
	}

	// An editor with the queue subsystem and a 24 fps sequence of two shots of two frames each: sh010 (camera CamA) and
	// sh020 (camera CamB). The graph's Layer branch renders a deferred pass into PNG files "<shot>.<layer>.<renderer>.<frame>".
	class MovieGraphPipelineTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			UE::UnrealEd::StandIn::StartEditor(TEXT("/Game/GraphRenderTests/Map"));
			Subsystem = GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>();
			Sequence = UE::MovieRenderTest::CreateTwoShotSequence(TEXT("/Game/GraphRenderTests/Edit"), TEXT("Edit"));
			Graph = NewObject<UMovieGraphConfig>(CreatePackage(TEXT("/Game/GraphRenderTests/Graph")), TEXT("Graph"), RF_Public | RF_Standalone);
			BuildGraph();
		}

		void TearDown() override
		{
			Sequence->ClearFlags(RF_Standalone);
			if (IsValid(Graph))
			{
				Graph->ClearFlags(RF_Standalone);
			}
			UE::UnrealEd::StandIn::StopEditor();
		}

		template<class TNode>
		TNode* AddNode()
		{
			return Cast<TNode>(Graph->CreateNodeByClass(TNode::StaticClass()));
		}

		void Chain(const FName& InBranch, const TArray<UMovieGraphNode*>& InNearestFirst)
		{
			UE::MovieRenderTest::ChainNodes(Graph, InBranch, InNearestFirst);
		}

		void BuildGraph()
		{
			Graph->AddOutput(FText::FromString(TEXT("Layer")));
			OutputSettings = AddNode<UMovieGraphGlobalOutputSettingNode>();
			OutputSettings->bOverride_OutputDirectory = true;
			OutputSettings->OutputDirectory.Path = TEXT("{project_dir}/Render");
			OutputSettings->bOverride_ZeroPadFrameNumbers = true;
			OutputSettings->ZeroPadFrameNumbers = 3;
			OutputSettings->bOverride_FrameNumberOffset = true;
			OutputSettings->FrameNumberOffset = 100;
			OutputSettings->bOverride_VersioningSettings = true;
			OutputSettings->VersioningSettings.bAutoVersioning = false;
			OutputSettings->VersioningSettings.VersionNumber = 7;
			WarmUp = AddNode<UMovieGraphWarmUpSettingNode>();
			WarmUp->bOverride_NumWarmUpFrames = true;
			WarmUp->bOverride_bEmulateMotionBlur = true;
			Sampling = AddNode<UMovieGraphSamplingMethodNode>();
			Sampling->bOverride_TemporalSampleCount = true;
			Chain(UMovieGraphNode::GlobalsPinName, { OutputSettings, WarmUp, Sampling });

			UMovieGraphImageSequenceOutputNode_PNG* Png = AddNode<UMovieGraphImageSequenceOutputNode_PNG>();
			Png->bOverride_FileNameFormat = true;
			Png->FileNameFormat = TEXT("{shot_name}.{layer_name}.{renderer_name}.{frame_number}");
			UMovieGraphRenderLayerNode* RenderLayer = AddNode<UMovieGraphRenderLayerNode>();
			RenderLayer->bOverride_LayerName = true;
			RenderLayer->LayerName = TEXT("hero");
			Chain(LayerBranch, { Png, AddNode<UMovieGraphDeferredRenderPassNode>(), RenderLayer });
		}

		void SetSchedule(const int32 InWarmUpFrames, const bool bInEmulateMotionBlur, const int32 InTemporalSamples)
		{
			WarmUp->NumWarmUpFrames = InWarmUpFrames;
			WarmUp->bEmulateMotionBlur = bInEmulateMotionBlur;
			Sampling->TemporalSampleCount = InTemporalSamples;
		}

		UMoviePipelineExecutorJob* AddJob()
		{
			UMoviePipelineExecutorJob* Job = Subsystem->GetQueue()->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
			Job->JobName = TEXT("GraphJob");
			Job->SetSequence(FSoftObjectPath(Sequence));
			Job->SetGraphPreset(Graph);
			return Job;
		}

		// Starts the queue and ticks once, so that play-in-editor is up and the job's pipeline exists.
		UMovieGraphPipeline* StartRender()
		{
			bool* bSuccess = &bExecutorSucceeded;
			Executor.Reset(Subsystem->RenderQueueWithExecutor(UMoviePipelinePIEExecutor::StaticClass()));
			Executor->OnExecutorFinished().AddLambda([bSuccess](UMoviePipelineExecutorBase*, bool bInSuccess) { *bSuccess = bInSuccess; });
			Tick();
			Pipeline.Reset(GetActivePipeline());
			return Pipeline.Get();
		}

		// The executor's pipeline, read through reflection as a script binding must.
		UMovieGraphPipeline* GetActivePipeline() const
		{
			const FObjectProperty* Property = CastField<FObjectProperty>(Executor->GetClass()->FindPropertyByName(TEXT("ActiveMoviePipeline")));
			return Property ? Cast<UMovieGraphPipeline>(Property->GetObjectPropertyValue_InContainer(Executor.Get())) : nullptr;
		}

		static void Tick(int32 InCount = 1)
		{
			for (int32 Index = 0; Index < InCount; ++Index)
			{
				GEditor->Tick(1.0f / 24.0f, false);
			}
		}

		// One tick, reported for the shot that was current before it.
		FShotTick TickShot()
		{
			const int32 ShotIndex = Pipeline->GetCurrentShotIndex();
			Tick();
			const FMoviePipelineCameraCutInfo& Info = Pipeline->GetActiveShotList()[ShotIndex]->ShotInfo;
			return { ShotIndex, Info.State, Info.WorkMetrics.EngineWarmUpFrameIndex, Info.WorkMetrics.OutputFrameIndex, Info.WorkMetrics.OutputSubSampleIndex };
		}

		TArray<FString> RenderedFiles() const
		{
			TArray<FString> Files;
			IFileManager::Get().FindFilesRecursive(Files, *(Project.GetProjectDir() + TEXT("Render/")), TEXT("*"), true, false);
			Files.Sort();
			return Files;
		}

		FScopedTestProject Project;
		UMoviePipelineQueueSubsystem* Subsystem = nullptr;
		ULevelSequence* Sequence = nullptr;
		UMovieGraphConfig* Graph = nullptr;
		UMovieGraphGlobalOutputSettingNode* OutputSettings = nullptr;
		UMovieGraphWarmUpSettingNode* WarmUp = nullptr;
		UMovieGraphSamplingMethodNode* Sampling = nullptr;
		TStrongObjectPtr<UMoviePipelineExecutorBase> Executor;
		TStrongObjectPtr<UMovieGraphPipeline> Pipeline;
		bool bExecutorSucceeded = false;
	};
}

TEST_F(MovieGraphPipelineTest, AGraphJobWarmsUpBlursAndSamplesEachShotOneTickAtATime)
{
	SetSchedule(2, true, 2);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::ProducingFrames);
	UMoviePipelineExecutorJob* RenderedJob = Pipeline->GetCurrentJob();
	ASSERT_NE(RenderedJob, nullptr);
	EXPECT_NE(RenderedJob, Job) << "the pipeline renders a copy of the job";
	EXPECT_NE(RenderedJob->GetGraphPreset(), Graph);
	EXPECT_EQ(RenderedJob->GetGraphPreset()->GetOutermost(), GetTransientPackage());
	ASSERT_EQ(Pipeline->GetActiveShotList().Num(), 2);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentState(Pipeline.Get()), EMovieRenderShotState::Uninitialized);
	FTimespan Estimate;
	EXPECT_FALSE(UMovieGraphBlueprintLibrary::GetEstimatedTimeRemaining(Pipeline.Get(), Estimate)) << "no frame written yet";

	using enum EMovieRenderShotState;
	const TArray<FShotTick> ExpectedShotTicks = {
		{ 0, WarmingUp, 0, 0, 0 }, { 0, WarmingUp, 1, 0, 0 }, { 0, MotionBlur, 1, 0, 0 },
		{ 0, Rendering, 1, 0, 0 }, { 0, Rendering, 1, 0, 1 }, { 0, Rendering, 1, 1, 0 }, { 0, Finished, 1, 1, 1 },
		{ 1, WarmingUp, 0, 0, 0 }, { 1, WarmingUp, 1, 0, 0 }, { 1, MotionBlur, 1, 0, 0 },
		{ 1, Rendering, 1, 0, 0 }, { 1, Rendering, 1, 0, 1 }, { 1, Rendering, 1, 1, 0 }, { 1, Finished, 1, 1, 1 } };
	TArray<FShotTick> ShotTicks;
	TArray<int32> FilesAfterTick;
	float LastProgress = Executor->GetStatusProgress();
	for (int32 Index = 0; Index < ExpectedShotTicks.Num(); ++Index)
	{
		ShotTicks.Add(TickShot());
		FilesAfterTick.Add(RenderedFiles().Num());
		EXPECT_GE(Executor->GetStatusProgress(), LastProgress);
		LastProgress = Executor->GetStatusProgress();
		if (Index == 0)
		{
			const UCineCameraComponent* Camera = UMovieGraphBlueprintLibrary::GetCurrentCineCamera(Pipeline.Get());
			ASSERT_NE(Camera, nullptr);
			EXPECT_EQ(Camera->GetName(), TEXT("CamA"));
			EXPECT_FLOAT_EQ(UMovieGraphBlueprintLibrary::GetCurrentFocalLength(Pipeline.Get()), 35.0f);
			EXPECT_FLOAT_EQ(UMovieGraphBlueprintLibrary::GetCurrentAperture(Pipeline.Get()), 2.8f);
			EXPECT_FLOAT_EQ(UMovieGraphBlueprintLibrary::GetCurrentFocusDistance(Pipeline.Get()), 100000.0f);
			EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentCineCamera(Pipeline.Get(), 1), nullptr);
			EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentVersionNumber(Pipeline.Get()), 7);
			EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(Pipeline.Get()).TotalEngineWarmUpFrameCount, 2);
		}
		if (Index == 6)
		{
			EXPECT_FLOAT_EQ(Job->GetStatusProgress(), 0.5f) << "two of four frames written";
			EXPECT_TRUE(UMovieGraphBlueprintLibrary::GetEstimatedTimeRemaining(Pipeline.Get(), Estimate));
			EXPECT_EQ(UMovieGraphBlueprintLibrary::GetRootFrameNumber(Pipeline.Get()).Value, 1);
			EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentShotFrameNumber(Pipeline.Get()).Value, 1);
		}
	}
	EXPECT_EQ(ShotTicks, ExpectedShotTicks);
	const TArray<int32> ExpectedFiles = { 0, 0, 0, 0, 1, 1, 2, 2, 2, 2, 2, 3, 3, 4 };
	EXPECT_EQ(FilesAfterTick, ExpectedFiles) << "a frame is on disk at the end of the tick of its last sub-sample";
	const FMoviePipelineSegmentWorkMetrics Metrics = UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(Pipeline.Get());
	EXPECT_EQ(Metrics.SegmentName, TEXT("sh020"));
	EXPECT_EQ(Metrics.TotalOutputFrameCount, 2);
	EXPECT_EQ(Metrics.TotalSubSampleCount, 2);
	int32 CurrentSegment = 0;
	int32 SegmentCount = 0;
	UMovieGraphBlueprintLibrary::GetOverallSegmentCounts(Pipeline.Get(), CurrentSegment, SegmentCount);
	EXPECT_EQ(CurrentSegment, 1);
	EXPECT_EQ(SegmentCount, 2);

	// Finalize and Export take one tick each, then the job is done.
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize);
	Tick();
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Export);
	EXPECT_FALSE(Job->IsConsumed());
	Tick();
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_EQ(GetActivePipeline(), nullptr);
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_TRUE(bExecutorSucceeded);
	EXPECT_TRUE(Job->IsConsumed());
	EXPECT_FLOAT_EQ(Job->GetStatusProgress(), 1.0f);
	EXPECT_FLOAT_EQ(Executor->GetStatusProgress(), 1.0f);
	EXPECT_FLOAT_EQ(UMovieGraphBlueprintLibrary::GetCompletionPercentage(Pipeline.Get()), 1.0f);

	// Every file is named exactly as the library resolves the same parameters.
	TArray<FString> ExpectedPaths;
	for (int32 RootFrame = 0; RootFrame < 4; ++RootFrame)
	{
		UMoviePipelineExecutorShot* Shot = Pipeline->GetActiveShotList()[RootFrame / 2];
		FMovieGraphFilenameResolveParams Params;
		Params.RenderDataIdentifier = FMovieGraphRenderDataIdentifier(LayerBranch, TEXT("hero"), TEXT("Deferred"), TEXT("beauty"), Shot->InnerName);
		Params.RootFrameNumber = RootFrame;
		Params.RootFrameNumberRel = RootFrame;
		Params.ShotFrameNumber = RootFrame % 2;
		Params.ShotFrameNumberRel = RootFrame % 2;
		Params.FrameNumberOffset = 100;
		Params.ZeroPadFrameNumberCount = 3;
		Params.Version = 7;
		Params.Job = RenderedJob;
		Params.Shot = Shot;
		Params.EvaluatedConfig = Pipeline->GetCurrentTimeStepData().EvaluatedConfig;
		Params.InitializationTime = Pipeline->GetInitializationTime();
		Params.FileNameFormatOverrides.Add(TEXT("ext"), TEXT("png"));
		FMovieGraphResolveArgs Args;
		ExpectedPaths.Add(UMovieGraphBlueprintLibrary::ResolveFilenameFormatArguments(TEXT("{project_dir}/Render/{shot_name}.{layer_name}.{renderer_name}.{frame_number}"), Params, Args));
	}
	EXPECT_EQ(RenderedFiles(), ExpectedPaths);
	EXPECT_TRUE(ExpectedPaths[3].EndsWith(TEXT("/Render/sh020.hero.Deferred.103.png"))) << *ExpectedPaths[3];
}

TEST_F(MovieGraphPipelineTest, CancelingMidFrameFinishesTheFrameInFlightAndLeavesTheJobUnconsumed)
{
	SetSchedule(0, false, 3);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	Tick();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(Pipeline.Get()).OutputSubSampleIndex, 0);

	Executor->CancelCurrentJob();
	EXPECT_TRUE(Pipeline->IsShutdownRequested());
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 0) << "two of three sub-samples taken";
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 1) << "the frame in flight is written";
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::ProducingFrames);
	Tick();
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize) << "no later frame starts";
	EXPECT_TRUE(Pipeline->IsShutdownRequested());
	Tick(2);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_FALSE(bExecutorSucceeded);
	EXPECT_FALSE(Job->IsConsumed());
	Tick(5);
	EXPECT_EQ(RenderedFiles().Num(), 1);
}

TEST_F(MovieGraphPipelineTest, ShuttingDownDuringWarmUpWritesNothing)
{
	SetSchedule(3, false, 1);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	Tick();
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentState(Pipeline.Get()), EMovieRenderShotState::WarmingUp);
	Pipeline->RequestShutdown(false);
	Tick();
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize);
	Tick(2);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_TRUE(RenderedFiles().IsEmpty());
	EXPECT_TRUE(Job->IsConsumed()) << "a shutdown without error ends the job successfully";
}

TEST_F(MovieGraphPipelineTest, AnImmediateShutdownFinishesWithinTheCall)
{
	SetSchedule(0, false, 1);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 1);
	Pipeline->Shutdown(true);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_EQ(GetActivePipeline(), nullptr);
	EXPECT_FALSE(Job->IsConsumed());
	Tick(3);
	EXPECT_EQ(RenderedFiles().Num(), 1);
}

TEST_F(MovieGraphPipelineTest, DeletingTheGraphOrTheJobMidRenderFailsTheJobCleanly)
{
	SetSchedule(0, false, 1);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	Tick();
	Graph->ClearFlags(RF_Standalone);
	Graph->MarkAsGarbage();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Tick(3);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_FALSE(bExecutorSucceeded);
	EXPECT_FALSE(Job->IsConsumed());
	EXPECT_EQ(RenderedFiles().Num(), 1);

	Graph = NewObject<UMovieGraphConfig>(CreatePackage(TEXT("/Game/GraphRenderTests/Graph2")), TEXT("Graph2"), RF_Public | RF_Standalone);
	BuildGraph();
	SetSchedule(0, false, 1);
	UMoviePipelineExecutorJob* SecondJob = AddJob();
	Subsystem->GetQueue()->DeleteJob(Job);
	ASSERT_NE(StartRender(), nullptr);
	Subsystem->GetQueue()->DeleteJob(SecondJob);
	SecondJob->MarkAsGarbage();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Tick(4);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FALSE(Subsystem->IsRendering());
	EXPECT_FALSE(bExecutorSucceeded);
}

TEST_F(MovieGraphPipelineTest, EachFrameEvaluatesTheRenderedGraphAgainAndAnEvaluationErrorFailsTheJob)
{
	SetSchedule(0, false, 1);
	UMoviePipelineExecutorJob* Job = AddJob();
	ASSERT_NE(StartRender(), nullptr);
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 1);

	// Scripts change the copy the pipeline renders: the next frame takes two sub-samples.
	UMovieGraphConfig* RenderedGraph = Pipeline->GetCurrentJob()->GetGraphPreset();
	UMovieGraphSamplingMethodNode* RenderedSampling = nullptr;
	for (UMovieGraphNode* Node : RenderedGraph->GetNodes())
	{
		RenderedSampling = RenderedSampling ? RenderedSampling : Cast<UMovieGraphSamplingMethodNode>(Node);
	}
	ASSERT_NE(RenderedSampling, nullptr);
	RenderedSampling->TemporalSampleCount = 2;
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 1);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(Pipeline.Get()).TotalSubSampleCount, 2);
	Tick();
	EXPECT_EQ(RenderedFiles().Num(), 2);

	// A graph that contains itself cannot be evaluated: the next frame fails the render.
	UMovieGraphSubgraphNode* SelfReference = Cast<UMovieGraphSubgraphNode>(RenderedGraph->CreateNodeByClass(UMovieGraphSubgraphNode::StaticClass()));
	SelfReference->SetSubGraphAsset(RenderedGraph);
	RenderedGraph->AddLabeledEdge(SelfReference, UMovieGraphNode::GlobalsPinName, RenderedSampling, NAME_None);
	Tick();
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize);
	Tick(2);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FALSE(bExecutorSucceeded);
	EXPECT_FALSE(Job->IsConsumed());
	EXPECT_EQ(RenderedFiles().Num(), 2);
	EXPECT_NE(Graph->GetNodes().Num(), RenderedGraph->GetNodes().Num()) << "the job's own graph is untouched";
}

TEST_F(MovieGraphPipelineTest, AJobWithoutASequenceFailsWithoutRendering)
{
	UMoviePipelineExecutorJob* Job = AddJob();
	Job->Sequence.Reset();
	ASSERT_NE(StartRender(), nullptr);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finalize);
	Tick(2);
	EXPECT_EQ(Pipeline->GetPipelineState(), EMovieRenderPipelineState::Finished);
	EXPECT_FALSE(bExecutorSucceeded);
	EXPECT_FALSE(Job->IsConsumed());
	EXPECT_TRUE(RenderedFiles().IsEmpty());
}

TEST(MovieGraphPipelineStatus, ANullPipelineReportsEmptyValues)
{
	int32 Current = 5;
	int32 Total = 5;
	FTimespan Estimate = FTimespan::FromSeconds(3.0);
	FText Outer = FText::FromString(TEXT("x"));
	FText Inner = FText::FromString(TEXT("y"));
	EXPECT_TRUE(UMovieGraphBlueprintLibrary::GetJobName(nullptr).IsEmpty());
	EXPECT_TRUE(UMovieGraphBlueprintLibrary::GetJobAuthor(nullptr).IsEmpty());
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCompletionPercentage(nullptr), 0.0f);
	UMovieGraphBlueprintLibrary::GetOverallOutputFrames(nullptr, Current, Total);
	EXPECT_EQ(Current, 0);
	EXPECT_EQ(Total, 0);
	EXPECT_FALSE(UMovieGraphBlueprintLibrary::GetEstimatedTimeRemaining(nullptr, Estimate));
	EXPECT_EQ(Estimate, FTimespan(0));
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetPipelineState(nullptr), EMovieRenderPipelineState::Uninitialized);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentState(nullptr), EMovieRenderShotState::Uninitialized);
	UMovieGraphBlueprintLibrary::GetCurrentSegmentName(nullptr, Outer, Inner);
	EXPECT_TRUE(Outer.IsEmpty());
	EXPECT_TRUE(Inner.IsEmpty());
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetRootFrameNumber(nullptr).Value, -1);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentShotFrameNumber(nullptr).Value, -1);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentFocusDistance(nullptr), -1.0f);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentFocalLength(nullptr), -1.0f);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentAperture(nullptr), 0.0f);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentCineCamera(nullptr), nullptr);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentExecutorShot(nullptr), nullptr);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentVersionNumber(nullptr), 0);
	EXPECT_EQ(UMovieGraphBlueprintLibrary::GetCurrentSegmentWorkMetrics(nullptr).TotalOutputFrameCount, 0);
}

TEST(MovieGraphPipelineStatus, ShotStatesHaveTheirVersionsValues)
{
	const UEnum* ShotState = StaticEnum<EMovieRenderShotState>();
	EXPECT_EQ(ShotState->GetValueByNameString(TEXT("Rendering")), 3);
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	EXPECT_EQ(ShotState->GetValueByNameString(TEXT("CoolingDown")), 4);
	EXPECT_EQ(ShotState->GetValueByNameString(TEXT("Finished")), 5);
#else
	EXPECT_EQ(ShotState->GetIndexByNameString(TEXT("CoolingDown")), INDEX_NONE);
	EXPECT_EQ(ShotState->GetValueByNameString(TEXT("Finished")), 4);
#endif
	EXPECT_EQ(int64(EMovieRenderShotState::Finished), ShotState->GetValueByNameString(TEXT("Finished")));
}
