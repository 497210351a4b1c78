#include "MoviePipeline.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "Misc/StringFormatArg.h"
#include "MovieScene.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineOutputBase.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineStandInShotRanges.h"
#include "MoviePipelineStandInFileNaming.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

namespace UE::MoviePipeline::Private
{
	// Stand-in choice: every frame comes from the one final-image pass the deferred renderer would produce.
	static const TCHAR* const FinalImagePassName = TEXT("FinalImage");

	// Stand-in choice: an over-long path is named in the log by its start only.
	constexpr int32 LoggedPathLength = 200;

	// The text FString::Format writes for the argument.
	static FString FormatArgToString(const FStringFormatArg& InArgument)
	{
		FStringFormatNamedArguments Single;
		Single.Add(TEXT("Value"), InArgument);
		return FString::Format(TEXT("{Value}"), Single);
	}
}

UMoviePipeline::UMoviePipeline()
	: CurrentShotIndex(0)
	, CurrentFrameInShot(0)
	, OutputFrameCount(0)
	, TotalOutputFrames(0)
	, InitializationVersion(1)
	, bRefusedOverlongPath(false)
{
}

void UMoviePipeline::Initialize(UMoviePipelineExecutorJob* InJob)
{
	if (PipelineState != EMovieRenderPipelineState::Uninitialized)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Asked to initialize a pipeline more than once, ignoring."));
		return;
	}
	InitializationTime = FDateTime::Now();
	PipelineState = EMovieRenderPipelineState::ProducingFrames;
	if (!InJob)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Asked to initialize a pipeline with a null job, aborting movie render!"));
		bFatalError = true;
		RequestShutdown(true);
		return;
	}
	CurrentJob = InJob;
	if (!GatherActiveShots())
	{
		bFatalError = true;
		RequestShutdown(true);
		return;
	}
	InitializationVersion = ResolveVersionNumber();

	UMoviePipelinePrimaryConfig* Config = CurrentJob->GetConfiguration();
	for (UMoviePipelineSetting* Setting : Config->GetAllSettings())
	{
		Setting->OnMoviePipelineInitialized(this);
	}
	// Stand-in choice: a job without outputs renders its frames and writes nothing; the engine's validation would warn.
	if (Config->FindSettings<UMoviePipelineOutputBase>().Num() == 0)
	{
		UE_LOG(LogMovieRenderPipeline, Warning, TEXT("No output containers were found in the configuration of job '%s', no files will be written to disk."), *CurrentJob->JobName);
	}
	CurrentJob->SetStatusProgress(0.0f);
	if (ActiveShots.Num() > 0)
	{
		SetShotState(0, EMovieRenderShotState::Rendering);
	}
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("Initialized the render of job '%s': %d shots, %d output frames at %s fps."), *CurrentJob->JobName, ActiveShots.Num(), TotalOutputFrames, *FString::SanitizeFloat(EffectiveFrameRate.AsDecimal()));
}

bool UMoviePipeline::GatherActiveShots()
{
	using namespace UE::MoviePipeline::StandIn;
	ULevelSequence* Sequence = LoadSequenceAndUpdateShotList(CurrentJob);
	if (!Sequence)
	{
		return false;
	}
	EffectiveFrameRate = CurrentJob->GetConfiguration()->GetEffectiveFrameRate(Sequence);
	ActiveShots = GatherShotOutputRanges(*CurrentJob.Get(), *Sequence->GetMovieScene(), EffectiveFrameRate, TotalOutputFrames);
	return true;
}

int32 UMoviePipeline::ResolveVersionNumber() const
{
	const UMoviePipelineOutputSetting* OutputSetting = GetOutputSetting();
	if (!OutputSetting)
	{
		return 1;
	}
	if (!OutputSetting->bAutoVersion)
	{
		return OutputSetting->VersionNumber;
	}
	// Stand-in choice: one version for the whole render, from the output path with the job's tokens resolved (shot and
	// frame tokens stay unresolved); the engine resolves it per shot. A path without versions gives v001.
	FMoviePipelineFormatArgs FormatArgs;
	GetFormatArguments(FormatArgs);
	const FString OutputPath = FPaths::Combine(OutputSetting->OutputDirectory.Path, OutputSetting->FileNameFormat);
	const int32 HighestVersion = UE::MoviePipeline::StandIn::FindHighestExistingVersion(OutputPath, FormatArgs.FilenameArguments);
	return FMath::Max(HighestVersion, 0) + 1;
}

const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& UMoviePipeline::GetActiveShotList() const
{
	ActiveShotList.Reset();
	for (const UE::MoviePipeline::StandIn::FShotOutputRange& ActiveShot : ActiveShots)
	{
		if (UMoviePipelineExecutorShot* Shot = ActiveShot.Shot.Get())
		{
			ActiveShotList.Add(Shot);
		}
	}
	return ActiveShotList;
}

UMoviePipelinePrimaryConfig* UMoviePipeline::GetPipelinePrimaryConfig() const
{
	const UMoviePipelineExecutorJob* Job = CurrentJob.Get();
	return Job ? Job->GetConfiguration() : nullptr;
}

UMoviePipelineOutputSetting* UMoviePipeline::GetOutputSetting() const
{
	const UMoviePipelinePrimaryConfig* Config = GetPipelinePrimaryConfig();
	return Config ? Config->FindSetting<UMoviePipelineOutputSetting>(true) : nullptr;
}

bool UMoviePipeline::IsTickable() const
{
	return IsRunning();
}

void UMoviePipeline::Tick(float DeltaTime)
{
	switch (PipelineState)
	{
	case EMovieRenderPipelineState::ProducingFrames:
		TickProducingFrames();
		break;
	case EMovieRenderPipelineState::Finalize:
		// Stand-in choice: frames are written as they are produced, so one tick of finalizing leaves nothing to flush.
		TransitionToState(EMovieRenderPipelineState::Export);
		TransitionToState(EMovieRenderPipelineState::Finished);
		break;
	default:
		break;
	}
}

void UMoviePipeline::TickProducingFrames()
{
	if (!CurrentJob.IsValid())
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("The job being rendered no longer exists, aborting movie render!"));
		bFatalError = true;
		FinishRender();
		return;
	}
	if (IsShutdownRequested())
	{
		bFatalError |= bShutdownErrorRequested;
		UE_LOG(LogMovieRenderPipeline, Log, TEXT("Shutdown was requested, stopping the render after %d of %d frames."), OutputFrameCount, TotalOutputFrames);
		FinishRender();
		return;
	}
	while (ActiveShots.IsValidIndex(CurrentShotIndex))
	{
		const UE::MoviePipeline::StandIn::FShotOutputRange ActiveShot = ActiveShots[CurrentShotIndex];
		if (UMoviePipelineExecutorShot* Shot = ActiveShot.Shot.Get())
		{
			RenderFrame(*Shot, ActiveShot);
			break;
		}
		UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Shot %d of the job no longer exists, skipping it."), CurrentShotIndex);
		OutputFrameCount += ActiveShot.NumFrames - CurrentFrameInShot;
		AdvanceToNextShot();
	}
	UpdateJobProgress();
	if (!ActiveShots.IsValidIndex(CurrentShotIndex))
	{
		TransitionToState(EMovieRenderPipelineState::Finalize);
	}
}

void UMoviePipeline::RenderFrame(UMoviePipelineExecutorShot& InShot, const UE::MoviePipeline::StandIn::FShotOutputRange& InActiveShot)
{
	FMoviePipelineMergerOutputFrame Frame;
	FMoviePipelineFrameOutputState& OutputState = Frame.FrameOutputState;
	OutputState.OutputFrameNumber = OutputFrameCount;
	OutputState.ShotIndex = CurrentShotIndex;
	OutputState.SourceFrameNumber = InActiveShot.StartFrame + CurrentFrameInShot;
	// Stand-in choice: the stand-in's shots have no sub-sequence, so a shot's own timeline starts at 0 with the shot.
	OutputState.CurrentShotSourceFrameNumber = CurrentFrameInShot;
	OutputState.ShotOutputFrameNumber = CurrentFrameInShot;
	OutputState.CameraName = InShot.GetCameraName(-1);
	OutputState.ShotName = InShot.OuterName;
	Frame.ExpectedRenderPasses.Add(FMoviePipelinePassIdentifier(UE::MoviePipeline::Private::FinalImagePassName));

	for (UMoviePipelineOutputBase* Output : GetPipelinePrimaryConfig()->FindSettings<UMoviePipelineOutputBase>())
	{
		Output->OnReceiveImageData(&Frame);
	}

	++CurrentFrameInShot;
	++OutputFrameCount;
	InShot.SetStatusProgress(float(CurrentFrameInShot) / float(InActiveShot.NumFrames));
	if (CurrentFrameInShot >= InActiveShot.NumFrames)
	{
		SetShotState(CurrentShotIndex, EMovieRenderShotState::Finished);
		OnMoviePipelineShotWorkFinished().Broadcast({ this, CurrentJob.Get(), true });
		AdvanceToNextShot();
	}
}

void UMoviePipeline::AdvanceToNextShot()
{
	CurrentFrameInShot = 0;
	++CurrentShotIndex;
	if (ActiveShots.IsValidIndex(CurrentShotIndex))
	{
		SetShotState(CurrentShotIndex, EMovieRenderShotState::Rendering);
	}
}

void UMoviePipeline::SetShotState(int32 InShotIndex, EMovieRenderShotState InState)
{
	if (UMoviePipelineExecutorShot* Shot = ActiveShots[InShotIndex].Shot.Get())
	{
		Shot->ShotInfo.State = InState;
	}
}

void UMoviePipeline::UpdateJobProgress()
{
	if (UMoviePipelineExecutorJob* Job = CurrentJob.Get())
	{
		Job->SetStatusProgress(UMoviePipelineBlueprintLibrary::GetCompletionPercentage(this));
	}
}

void UMoviePipeline::FinishRender()
{
	TransitionToState(EMovieRenderPipelineState::Finalize);
	TransitionToState(EMovieRenderPipelineState::Export);
	TransitionToState(EMovieRenderPipelineState::Finished);
}

void UMoviePipeline::ShutdownImpl(bool bIsError)
{
	RequestShutdownImpl(bIsError);
	if (PipelineState == EMovieRenderPipelineState::Finished)
	{
		return;
	}
	bFatalError |= bIsError;
	FinishRender();
}

void UMoviePipeline::GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const
{
	const UMoviePipelineExecutorJob* Job = CurrentJob.Get();
	if (!Job)
	{
		return;
	}
	UE::MoviePipeline::StandIn::AddJobFormatArguments(InOutFormatArgs.FilenameArguments, *Job, EffectiveFrameRate, InitializationTime, InitializationVersion);
	for (const UMoviePipelineSetting* Setting : Job->GetConfiguration()->GetAllSettings())
	{
		Setting->GetFormatArguments(InOutFormatArgs);
	}
}

void UMoviePipeline::ResolveFilenameFormatArguments(const FString& InFormatString, const FStringFormatNamedArguments& InFormatOverrides, FString& OutFinalPath, FMoviePipelineFormatArgs& OutFinalFormatArgs, const FMoviePipelineFrameOutputState* InOutputState, const int32 InFrameNumberOffset) const
{
	using namespace UE::MoviePipeline::Private;
	using namespace UE::MoviePipeline::StandIn;
	const UMoviePipelineOutputSetting* OutputSetting = GetOutputSetting();
	OutFinalFormatArgs = FMoviePipelineFormatArgs();
	OutFinalFormatArgs.InJob = CurrentJob.Get();
	GetFormatArguments(OutFinalFormatArgs);
	if (InOutputState && OutputSetting)
	{
		const int64 FrameNumberOffset = int64(OutputSetting->FrameNumberOffset) + InFrameNumberOffset;
		InOutputState->GetFilenameFormatArguments(OutFinalFormatArgs, OutputSetting->ZeroPadFrameNumbers, int32(FMath::Clamp<int64>(FrameNumberOffset, MIN_int32, MAX_int32)), false);
	}
	// Duplicate numbers stay empty unless a file in the way must not be overwritten.
	OutFinalFormatArgs.FilenameArguments.Add(TEXT("file_dup"), FString());
	for (const TPair<FString, FStringFormatArg>& Override : InFormatOverrides)
	{
		OutFinalFormatArgs.FilenameArguments.Add(Override.Key, FormatArgToString(Override.Value));
	}

	const FString Extension = FormatArguments(TEXT(".{ext}"), OutFinalFormatArgs.FilenameArguments);
	auto ResolvePath = [&InFormatString, &Extension](const TMap<FString, FString>& InArguments)
	{
		FString BaseFilename = FormatArguments(InFormatString, InArguments);
		BaseFilename.RemoveFromEnd(TEXT("."));
		return MakeOutputPathAbsolute(BaseFilename + Extension);
	};

	const bool bOverwriteExisting = !OutputSetting || OutputSetting->bOverrideExistingOutput;
	OutFinalPath = ResolveWritablePath(OutFinalFormatArgs.FilenameArguments, bOverwriteExisting, ResolvePath);
	if (!FitsMaxPathLength(OutFinalPath))
	{
		RefuseOverlongPath(OutFinalPath);
		OutFinalPath.Reset();
	}
}

void UMoviePipeline::RefuseOverlongPath(const FString& InPath) const
{
	if (bRefusedOverlongPath)
	{
		return;
	}
	bRefusedOverlongPath = true;
	UE_LOG(LogMovieRenderPipeline, Error, TEXT("Output paths of job '%s' are longer than the maximum path length of %d characters (%d characters: '%s...'), frames with such a path are not written."),
		CurrentJob.IsValid() ? *CurrentJob->JobName : TEXT(""), FPlatformMisc::GetMaxPathLength(), InPath.Len(), *InPath.Left(UE::MoviePipeline::Private::LoggedPathLength));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipeline, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(Initialize, TEXT("InJob"));
	STANDIN_FUNCTION(GetCurrentJob);
	STANDIN_FUNCTION(GetCurrentShotIndex);
	STANDIN_FUNCTION(GetPipelinePrimaryConfig);
	STANDIN_FUNCTION(GetInitializationTime);
}
