#include "Graph/MovieGraphPipeline.h"

#include "CineCameraComponent.h"
#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphDataTypes.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Graph/Nodes/MovieGraphRenderLayerNode.h"
#include "Graph/Nodes/MovieGraphRenderPassNode.h"
#include "Graph/Nodes/MovieGraphSamplingMethodNode.h"
#include "Graph/Nodes/MovieGraphWarmUpSettingNode.h"
#include "LevelSequence.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "MovieScene.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

namespace UE::MovieGraph::Private
{
	static const FName& GlobalsBranch()
	{
		return UMovieGraphNode::GlobalsPinName;
	}

	// The exact classes of the file output nodes anywhere in the evaluated graph, in branch order.
	static TArray<UClass*> GatherFileOutputClasses(const UMovieGraphEvaluatedConfig& InEvaluatedConfig)
	{
		TArray<UClass*> Classes;
		for (const FName& BranchName : InEvaluatedConfig.GetBranchNames())
		{
			for (const UMovieGraphFileOutputNode* Node : InEvaluatedConfig.GetSettingsForBranch<UMovieGraphFileOutputNode>(BranchName, false))
			{
				Classes.AddUnique(Node->GetClass());
			}
		}
		return Classes;
	}

	// The render data of the frame whose branch holds a node of exactly the class.
	static TSet<FMovieGraphRenderDataIdentifier> MaskForOutputClass(const UMovieGraphEvaluatedConfig& InEvaluatedConfig, UClass* InClass, const TArray<FMovieGraphRenderDataIdentifier>& InRenderData)
	{
		TSet<FMovieGraphRenderDataIdentifier> Mask;
		for (const FMovieGraphRenderDataIdentifier& Identifier : InRenderData)
		{
			if (InEvaluatedConfig.GetSettingForBranch(InClass, Identifier.RootBranchName, false, true))
			{
				Mask.Add(Identifier);
			}
		}
		return Mask;
	}
}

UMovieGraphPipeline::UMovieGraphPipeline()
	: CurrentShotIndex(0)
	, CurrentFrameInShot(0)
	, CurrentSubSample(0)
	, CurrentTemporalSampleCount(1)
	, WarmUpFramesTaken(0)
	, bEmulateMotionBlur(false)
	, bMotionBlurFrameTaken(false)
	, OutputFrameCount(0)
	, TotalOutputFrames(0)
{
}

void UMovieGraphPipeline::Initialize(UMoviePipelineExecutorJob* InJob, const FMovieGraphInitConfig& InInitConfig)
{
	if (PipelineState != EMovieRenderPipelineState::Uninitialized)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Asked to initialize a pipeline more than once, ignoring."));
		return;
	}
	InitializationTime = FDateTime::UtcNow();
	PipelineState = EMovieRenderPipelineState::ProducingFrames;
	if (!InJob)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Asked to initialize a pipeline with a null job, aborting movie render!"));
		FailRender();
		return;
	}
	SourceJob = InJob;
	if (!InitializeRender(*InJob))
	{
		FailRender();
		return;
	}
	InJob->SetStatusProgress(0.0f);
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("Initialized the graph render of job '%s': %d shots, %d output frames at %s fps."), *InJob->JobName, ActiveShotList.Num(), TotalOutputFrames, *FString::SanitizeFloat(EffectiveFrameRate.AsDecimal()));
}

bool UMovieGraphPipeline::InitializeRender(UMoviePipelineExecutorJob& InJob)
{
	if (!DuplicateJobAndGraph(InJob) || !GatherActiveShots())
	{
		return false;
	}
	// Loading the graph and the sequence may have collected garbage.
	return IsRenderSourceValid();
}

// Stand-in choice: only the job's root graph is copied (subgraphs render from their assets) and every shot renders with it.
bool UMovieGraphPipeline::DuplicateJobAndGraph(UMoviePipelineExecutorJob& InJob)
{
	CurrentJobDuplicate = Cast<UMoviePipelineExecutorJob>(StaticDuplicateObject(&InJob, GetTransientPackage(), MakeUniqueObjectName(GetTransientPackage(), InJob.GetClass(), InJob.GetFName())));
	UMovieGraphConfig* Graph = CurrentJobDuplicate ? CurrentJobDuplicate->GetGraphPreset() : nullptr;
	if (!Graph)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Job '%s' has no graph that could be loaded, aborting movie render!"), *InJob.JobName);
		return false;
	}
	SourceGraph = Graph;
	GraphDuplicate = DuplicateObject(Graph, GetTransientPackage(), MakeUniqueObjectName(GetTransientPackage(), Graph->GetClass(), Graph->GetFName()));
	CurrentJobDuplicate->SetGraphPreset(GraphDuplicate, false);
	// The job's variable values name the graph they are for: they now apply to the copy.
	for (UMovieJobVariableAssignmentContainer* Assignments : CurrentJobDuplicate->GetGraphVariableAssignments(false))
	{
		if (Assignments && Assignments->GetGraphConfig().Get() == Graph)
		{
			Assignments->SetGraphConfig(GraphDuplicate.Get());
		}
	}
	return true;
}

// The frame rate is the Globals output setting's override as the graph evaluates for the job, else the sequence's.
bool UMovieGraphPipeline::GatherActiveShots()
{
	using namespace UE::MoviePipeline::StandIn;
	TStrongObjectPtr<ULevelSequence> Sequence(LoadSequenceAndUpdateShotList(CurrentJobDuplicate.Get()));
	if (!Sequence)
	{
		return false;
	}
	FString Error;
	const UMovieGraphEvaluatedConfig* JobConfig = GraphDuplicate->CreateFlattenedGraph(MakeTraversalContext(nullptr), Error);
	if (!JobConfig)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to evaluate the graph of job '%s', aborting movie render! %s"), *CurrentJobDuplicate->JobName, *Error);
		return false;
	}
	UMovieGraphGlobalOutputSettingNode* OutputSettings = JobConfig->GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UE::MovieGraph::Private::GlobalsBranch());
	EffectiveFrameRate = UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(OutputSettings, Sequence->GetMovieScene()->GetDisplayRate());
	ShotRanges = GatherShotOutputRanges(*CurrentJobDuplicate, *Sequence->GetMovieScene(), EffectiveFrameRate, TotalOutputFrames);
	for (const FShotOutputRange& Range : ShotRanges)
	{
		UMoviePipelineExecutorShot* Shot = Range.Shot.Get();
		Shot->ShotInfo.State = EMovieRenderShotState::Uninitialized;
		Shot->ShotInfo.WorkMetrics = FMoviePipelineSegmentWorkMetrics();
		Shot->ShotInfo.WorkMetrics.SegmentName = Shot->OuterName;
		Shot->ShotInfo.WorkMetrics.TotalOutputFrameCount = Range.NumFrames;
		ActiveShotList.Add(Shot);
	}
	return true;
}

bool UMovieGraphPipeline::IsRenderSourceValid() const
{
	if (!SourceJob.IsValid())
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("The job being rendered no longer exists, aborting movie render!"));
		return false;
	}
	// Stand-in choice: the graph asset deleted mid-render stops the render, though the render uses a copy of it.
	if (!SourceGraph.IsValid())
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("The graph of job '%s' no longer exists, aborting movie render!"), *SourceJob->JobName);
		return false;
	}
	return true;
}

bool UMovieGraphPipeline::IsTickable() const
{
	return IsRunning();
}

void UMovieGraphPipeline::Tick(float DeltaTime)
{
	switch (PipelineState)
	{
	case EMovieRenderPipelineState::ProducingFrames:
		TickProducingFrames();
		break;
	case EMovieRenderPipelineState::Finalize:
		FlushFileOutputs();
		TransitionToState(EMovieRenderPipelineState::Export);
		break;
	case EMovieRenderPipelineState::Export:
		TransitionToState(EMovieRenderPipelineState::Finished);
		break;
	default:
		break;
	}
}

void UMovieGraphPipeline::TickProducingFrames()
{
	if (!IsRenderSourceValid())
	{
		FailRender();
		return;
	}
	// A frame whose sub-samples have started is finished first; no later frame starts.
	if (IsShutdownRequested() && !IsFrameInFlight())
	{
		bFatalError |= bShutdownErrorRequested;
		UE_LOG(LogMovieRenderPipeline, Log, TEXT("Shutdown was requested, stopping the render after %d of %d frames."), OutputFrameCount, TotalOutputFrames);
		TransitionToState(EMovieRenderPipelineState::Finalize);
		return;
	}
	if (!ActiveShotList.IsValidIndex(CurrentShotIndex))
	{
		TransitionToState(EMovieRenderPipelineState::Finalize);
		return;
	}
	TickShot(*ActiveShotList[CurrentShotIndex]);
	UpdateJobProgress();
}

void UMovieGraphPipeline::TickShot(UMoviePipelineExecutorShot& InShot)
{
	if (InShot.ShotInfo.State == EMovieRenderShotState::Uninitialized && !BeginShot(InShot))
	{
		FailRender();
		return;
	}
	AdvanceShotState(InShot);
	switch (InShot.ShotInfo.State)
	{
	case EMovieRenderShotState::WarmingUp:
		TickWarmUp(InShot);
		break;
	case EMovieRenderShotState::MotionBlur:
		bMotionBlurFrameTaken = true;
		UpdateTimeStep(true);
		break;
	case EMovieRenderShotState::Rendering:
		if (!TickRendering(InShot))
		{
			FailRender();
		}
		break;
	default:
		break;
	}
}

bool UMovieGraphPipeline::BeginShot(UMoviePipelineExecutorShot& InShot)
{
	CurrentFrameInShot = 0;
	CurrentSubSample = 0;
	WarmUpFramesTaken = 0;
	bMotionBlurFrameTaken = false;
	if (!EvaluateGraph(InShot))
	{
		return false;
	}
	const UMovieGraphEvaluatedConfig& EvaluatedConfig = *TimeStepData.EvaluatedConfig;
	const UMovieGraphWarmUpSettingNode* WarmUpSettings = EvaluatedConfig.GetSettingForBranch<UMovieGraphWarmUpSettingNode>(UE::MovieGraph::Private::GlobalsBranch());
	bEmulateMotionBlur = WarmUpSettings->bEmulateMotionBlur;
	FMoviePipelineSegmentWorkMetrics& Metrics = InShot.ShotInfo.WorkMetrics;
	Metrics.TotalEngineWarmUpFrameCount = FMath::Max(WarmUpSettings->NumWarmUpFrames, 0);
	Metrics.TotalSubSampleCount = FMath::Max(EvaluatedConfig.GetSettingForBranch<UMovieGraphSamplingMethodNode>(UE::MovieGraph::Private::GlobalsBranch())->TemporalSampleCount, 1);
	InShot.ShotInfo.VersionNumber = ResolveShotVersion(InShot);
	PrepareShotCamera(InShot);
	InShot.ShotInfo.State = EMovieRenderShotState::WarmingUp;
	return true;
}

// Moves the shot on from the states whose ticks are all taken: warm-up, then motion blur (when emulated), then rendering.
void UMovieGraphPipeline::AdvanceShotState(UMoviePipelineExecutorShot& InShot) const
{
	EMovieRenderShotState& State = InShot.ShotInfo.State;
	if (State == EMovieRenderShotState::WarmingUp && WarmUpFramesTaken >= InShot.ShotInfo.WorkMetrics.TotalEngineWarmUpFrameCount)
	{
		State = bEmulateMotionBlur ? EMovieRenderShotState::MotionBlur : EMovieRenderShotState::Rendering;
	}
	if (State == EMovieRenderShotState::MotionBlur && bMotionBlurFrameTaken)
	{
		State = EMovieRenderShotState::Rendering;
	}
}

void UMovieGraphPipeline::TickWarmUp(UMoviePipelineExecutorShot& InShot)
{
	InShot.ShotInfo.WorkMetrics.EngineWarmUpFrameIndex = WarmUpFramesTaken;
	++WarmUpFramesTaken;
	UpdateTimeStep(true);
}

// One temporal sub-sample; the graph is evaluated again at the first sub-sample of every output frame.
bool UMovieGraphPipeline::TickRendering(UMoviePipelineExecutorShot& InShot)
{
	FMoviePipelineSegmentWorkMetrics& Metrics = InShot.ShotInfo.WorkMetrics;
	if (CurrentSubSample == 0)
	{
		if (!EvaluateGraph(InShot))
		{
			return false;
		}
		const UMovieGraphSamplingMethodNode* Sampling = TimeStepData.EvaluatedConfig->GetSettingForBranch<UMovieGraphSamplingMethodNode>(UE::MovieGraph::Private::GlobalsBranch());
		CurrentTemporalSampleCount = FMath::Max(Sampling->TemporalSampleCount, 1);
		Metrics.TotalSubSampleCount = CurrentTemporalSampleCount;
	}
	Metrics.OutputFrameIndex = CurrentFrameInShot;
	Metrics.OutputSubSampleIndex = CurrentSubSample;
	UpdateTimeStep(false);
	++CurrentSubSample;
	if (CurrentSubSample < CurrentTemporalSampleCount)
	{
		return true;
	}
	OutputFrame(InShot);
	CurrentSubSample = 0;
	++CurrentFrameInShot;
	++OutputFrameCount;
	TimeStepData.OutputFrameNumber = OutputFrameCount;
	InShot.SetStatusProgress(float(CurrentFrameInShot) / float(Metrics.TotalOutputFrameCount));
	if (CurrentFrameInShot >= Metrics.TotalOutputFrameCount)
	{
		FinishShot(InShot);
	}
	return true;
}

void UMovieGraphPipeline::OutputFrame(UMoviePipelineExecutorShot& InShot)
{
	UE::MovieGraph::FMovieGraphOutputMergerFrame Frame;
	Frame.TraversalContext = MakeTraversalContext(&InShot);
	Frame.ExpectedRenderPasses = GatherRenderData(InShot.GetCameraName(-1));
	SendFrameToFileOutputs(Frame);
}

void UMovieGraphPipeline::SendFrameToFileOutputs(UE::MovieGraph::FMovieGraphOutputMergerFrame& InFrame)
{
	using namespace UE::MovieGraph::Private;
	const UMovieGraphEvaluatedConfig& EvaluatedConfig = *TimeStepData.EvaluatedConfig;
	for (UClass* OutputClass : GatherFileOutputClasses(EvaluatedConfig))
	{
		UMovieGraphFileOutputNode* OutputNode = OutputClass->GetDefaultObject<UMovieGraphFileOutputNode>();
		OutputNodesDataSentTo.AddUnique(OutputNode);
		OutputNode->OnReceiveImageData(this, &InFrame, MaskForOutputClass(EvaluatedConfig, OutputClass, InFrame.ExpectedRenderPasses));
	}
}

void UMovieGraphPipeline::FinishShot(UMoviePipelineExecutorShot& InShot)
{
	InShot.ShotInfo.State = EMovieRenderShotState::Finished;
	OnMoviePipelineShotWorkFinished().Broadcast({ this, SourceJob.Get(), true });
	++CurrentShotIndex;
	if (!ActiveShotList.IsValidIndex(CurrentShotIndex))
	{
		TransitionToState(EMovieRenderPipelineState::Finalize);
	}
}

// Stand-in choice: the shot's camera is a cine camera with default lens settings, named after the shot's camera.
void UMovieGraphPipeline::PrepareShotCamera(const UMoviePipelineExecutorShot& InShot)
{
	const FName CameraName(*InShot.GetCameraName(-1));
	UCineCameraComponent* Camera = CameraName.IsNone() ? nullptr : FindObjectFast<UCineCameraComponent>(this, CameraName);
	CurrentCineCamera = Camera ? Camera : NewObject<UCineCameraComponent>(this, CameraName);
}

// Stand-in choice: the version is resolved for the shot's first render data (its Globals branch without any).
int32 UMovieGraphPipeline::ResolveShotVersion(UMoviePipelineExecutorShot& InShot) const
{
	const TArray<FMovieGraphRenderDataIdentifier> RenderData = GatherRenderData(InShot.GetCameraName(-1));
	FMovieGraphRenderDataIdentifier Identifier;
	Identifier.RootBranchName = UE::MovieGraph::Private::GlobalsBranch();
	const FMovieGraphFilenameResolveParams Params = FMovieGraphFilenameResolveParams::MakeResolveParams(RenderData.Num() > 0 ? RenderData[0] : Identifier, this,
		TimeStepData.EvaluatedConfig, MakeTraversalContext(&InShot));
	return UMovieGraphBlueprintLibrary::ResolveVersionNumber(Params);
}

bool UMovieGraphPipeline::EvaluateGraph(UMoviePipelineExecutorShot& InShot)
{
	FString Error;
	UMovieGraphEvaluatedConfig* EvaluatedConfig = GraphDuplicate->CreateFlattenedGraph(MakeTraversalContext(&InShot), Error);
	if (!EvaluatedConfig)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to evaluate the graph for shot '%s', aborting movie render! %s"), *InShot.OuterName, *Error);
		return false;
	}
	TimeStepData.EvaluatedConfig = EvaluatedConfig;
	return true;
}

FMovieGraphTraversalContext UMovieGraphPipeline::MakeTraversalContext(UMoviePipelineExecutorShot* InShot) const
{
	FMovieGraphTraversalContext Context;
	Context.ShotIndex = CurrentShotIndex;
	Context.ShotCount = ActiveShotList.Num();
	Context.Job = CurrentJobDuplicate;
	Context.Shot = InShot;
	Context.RootGraph = GraphDuplicate;
	Context.Time = TimeStepData;
	return Context;
}

// Warm-up and motion blur ticks stand at the shot's first frame and discard what they render.
void UMovieGraphPipeline::UpdateTimeStep(bool bInDiscardOutput)
{
	const int32 SampleCount = bInDiscardOutput ? 1 : CurrentTemporalSampleCount;
	const FFrameNumber ShotFrame(CurrentFrameInShot);
	const FFrameNumber RootFrame(ShotRanges[CurrentShotIndex].StartFrame + CurrentFrameInShot);
	TimeStepData.OutputFrameNumber = OutputFrameCount;
	TimeStepData.ShotOutputFrameNumber = CurrentFrameInShot;
	++TimeStepData.RenderedFrameNumber;
	TimeStepData.FrameRate = EffectiveFrameRate;
	TimeStepData.FrameDeltaTime = float(EffectiveFrameRate.AsInterval() / SampleCount);
	TimeStepData.bIsFirstTemporalSampleForFrame = CurrentSubSample == 0;
	TimeStepData.bIsLastTemporalSampleForFrame = CurrentSubSample == SampleCount - 1;
	TimeStepData.bDiscardOutput = bInDiscardOutput;
	TimeStepData.RootFrameNumber = RootFrame;
	TimeStepData.ShotFrameNumber = ShotFrame;
	TimeStepData.RootTimeCode = FTimecode::FromFrameNumber(RootFrame, EffectiveFrameRate);
	TimeStepData.ShotTimeCode = FTimecode::FromFrameNumber(ShotFrame, EffectiveFrameRate);
}

// One piece of render data per render pass of every branch that has a render layer.
TArray<FMovieGraphRenderDataIdentifier> UMovieGraphPipeline::GatherRenderData(const FString& InCameraName) const
{
	TArray<FMovieGraphRenderDataIdentifier> RenderData;
	const UMovieGraphEvaluatedConfig* EvaluatedConfig = TimeStepData.EvaluatedConfig;
	if (!EvaluatedConfig)
	{
		return RenderData;
	}
	for (const FName& BranchName : EvaluatedConfig->GetBranchNames())
	{
		const UMovieGraphRenderLayerNode* RenderLayer = EvaluatedConfig->GetSettingForBranch<UMovieGraphRenderLayerNode>(BranchName, false);
		if (!RenderLayer)
		{
			continue;
		}
		for (const UMovieGraphRenderPassNode* RenderPass : EvaluatedConfig->GetSettingsForBranch<UMovieGraphRenderPassNode>(BranchName, false))
		{
			RenderData.Add(FMovieGraphRenderDataIdentifier(BranchName, RenderLayer->GetRenderLayerName(), RenderPass->GetRendererName(), RenderPass->GetRendererSubName(), InCameraName));
		}
	}
	return RenderData;
}

void UMovieGraphPipeline::UpdateJobProgress()
{
	if (UMoviePipelineExecutorJob* Job = SourceJob.Get())
	{
		Job->SetStatusProgress(UMovieGraphBlueprintLibrary::GetCompletionPercentage(this));
	}
}

void UMovieGraphPipeline::FailRender()
{
	bFatalError = true;
	TransitionToState(EMovieRenderPipelineState::Finalize);
}

// Every file handed over is written as the frame is output; finalizing tells the outputs that no frame follows.
void UMovieGraphPipeline::FlushFileOutputs()
{
	TObjectPtr<UMovieGraphEvaluatedConfig> EvaluatedConfig = TimeStepData.EvaluatedConfig;
	for (UMovieGraphFileOutputNode* OutputNode : OutputNodesDataSentTo)
	{
		OutputNode->OnAllFramesSubmitted(this, EvaluatedConfig);
		if (!OutputNode->IsFinishedWritingToDisk())
		{
			UE_LOG(LogMovieRenderPipeline, Warning, TEXT("File output '%s' has not finished writing its files."), *OutputNode->GetClass()->GetName());
		}
	}
	OutputNodesDataSentTo.Reset();
}

void UMovieGraphPipeline::ShutdownImpl(bool bIsError)
{
	RequestShutdownImpl(bIsError);
	if (PipelineState == EMovieRenderPipelineState::Finished)
	{
		return;
	}
	bFatalError |= bIsError;
	TransitionToState(EMovieRenderPipelineState::Finalize);
	FlushFileOutputs();
	TransitionToState(EMovieRenderPipelineState::Export);
	TransitionToState(EMovieRenderPipelineState::Finished);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphInitConfig, "MovieRenderPipelineCore")
{
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphPipeline, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(CurrentJobDuplicate, CPF_Transient);
	STANDIN_PROPERTY(GraphDuplicate, CPF_Transient);
	STANDIN_PROPERTY(ActiveShotList, CPF_Transient);
	STANDIN_PROPERTY(TimeStepData, CPF_Transient);
	STANDIN_PROPERTY(CurrentCineCamera, CPF_Transient);
	STANDIN_PROPERTY(OutputNodesDataSentTo, CPF_Transient);
	STANDIN_FUNCTION(Initialize, TEXT("InJob"), TEXT("InInitConfig"));
	STANDIN_FUNCTION(GetCurrentJob);
	STANDIN_FUNCTION(GetCurrentShotIndex);
	STANDIN_FUNCTION(GetInitializationTime);
}
