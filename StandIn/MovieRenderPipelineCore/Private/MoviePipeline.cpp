#include "MoviePipeline.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "LevelSequence.h"
#include "Misc/Paths.h"
#include "MovieScene.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineOutputBase.h"
#include "MoviePipelineOutputSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

namespace UE::MoviePipeline::Private
{
	// Stand-in choice: every frame comes from the one final-image pass the deferred renderer would produce.
	static const TCHAR* const FinalImagePassName = TEXT("FinalImage");

	// Stand-in choice: the search for a free "_(N)" name gives up here instead of looping forever.
	constexpr int32 MaxDuplicateIndex = 100000;

	// Replaces every {name} whose name is in InArguments; other braces stay as written.
	static FString FormatNamedArguments(const FString& InFormat, const TMap<FString, FString>& InArguments)
	{
		FString Result;
		int32 Index = 0;
		while (Index < InFormat.Len())
		{
			const int32 Open = InFormat.Find(TEXT("{"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index);
			const int32 Close = Open == INDEX_NONE ? INDEX_NONE : InFormat.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Open + 1);
			if (Close == INDEX_NONE)
			{
				Result += InFormat.Mid(Index);
				break;
			}
			Result += InFormat.Mid(Index, Open - Index);
			const FString Name = InFormat.Mid(Open + 1, Close - Open - 1);
			const FString* Value = InArguments.Find(Name);
			Result += Value ? *Value : InFormat.Mid(Open, Close - Open + 1);
			Index = Close + 1;
		}
		return Result;
	}

	static bool IsAlphaNumeric(TCHAR Character)
	{
		return (Character >= TEXT('0') && Character <= TEXT('9')) || (Character >= TEXT('a') && Character <= TEXT('z')) || (Character >= TEXT('A') && Character <= TEXT('Z'));
	}

	// The highest number of a "v<digits>" word (such as v003 in "Intro.v003.0001.png") in the path; 0 if none.
	static int32 FindHighestVersionToken(const FString& InPath)
	{
		int32 Highest = 0;
		for (int32 Index = 0; Index < InPath.Len(); ++Index)
		{
			const bool bWordStart = Index == 0 || !IsAlphaNumeric(InPath[Index - 1]);
			if (InPath[Index] != TEXT('v') || !bWordStart)
			{
				continue;
			}
			int32 End = Index + 1;
			int64 Number = 0;
			while (End < InPath.Len() && InPath[End] >= TEXT('0') && InPath[End] <= TEXT('9') && Number < MAX_int32 / 10)
			{
				Number = Number * 10 + (InPath[End] - TEXT('0'));
				++End;
			}
			const bool bWordEnd = End == InPath.Len() || !IsAlphaNumeric(InPath[End]);
			if (End > Index + 1 && bWordEnd)
			{
				Highest = FMath::Max(Highest, int32(Number));
			}
		}
		return Highest;
	}

	// Stand-in choice: a path that is still relative once resolved is taken relative to the project directory.
	static FString MakeOutputPathAbsolute(const FString& InPath)
	{
		FString Path = FPaths::IsRelative(InPath) ? FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), InPath) : InPath;
		FPaths::NormalizeFilename(Path);
		FPaths::RemoveDuplicateSlashes(Path);
		return Path;
	}

	static bool CanWriteToFile(const FString& InFilename, bool bOverwriteExisting)
	{
		return bOverwriteExisting || IFileManager::Get().FileSize(*InFilename) == -1;
	}
}

UMoviePipeline::UMoviePipeline()
	: CurrentShotIndex(0)
	, CurrentFrameInShot(0)
	, OutputFrameCount(0)
	, TotalOutputFrames(0)
	, InitializationVersion(1)
	, bFatalError(false)
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

// Stand-in choice: the custom playback range, handle frames and the output frame step of the output setting are not applied.
bool UMoviePipeline::GatherActiveShots()
{
	const FSoftObjectPath SequencePath = CurrentJob->Sequence;
	ULevelSequence* Sequence = Cast<ULevelSequence>(SequencePath.TryLoad());
	UMovieScene* MovieScene = Sequence ? Sequence->GetMovieScene() : nullptr;
	if (!MovieScene)
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Failed to load Sequence Asset from specified path, aborting movie render! Attempted to load Path: %s"), *SequencePath.ToString());
		return false;
	}
	// Loading may have collected garbage, and with it a job that left its queue.
	if (!CurrentJob.IsValid())
	{
		return false;
	}
	UMoviePipelineExecutorJob& Job = *CurrentJob.Get();
	bool bShotsChanged = false;
	UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(Sequence, &Job, bShotsChanged);
	EffectiveFrameRate = Job.GetConfiguration()->GetEffectiveFrameRate(Sequence);
	const FFrameRate TickResolution = MovieScene->GetTickResolution();

	for (UMoviePipelineExecutorShot* Shot : Job.ShotInfo)
	{
		const TRange<FFrameNumber> Range = Shot ? Shot->ShotInfo.TotalOutputRangeRoot : TRange<FFrameNumber>::Empty();
		if (!Shot || !Shot->ShouldRender() || Range.IsEmpty() || !Range.HasLowerBound() || !Range.HasUpperBound())
		{
			continue;
		}
		const int32 StartFrame = FFrameRate::TransformTime(FFrameTime(Range.GetLowerBoundValue()), TickResolution, EffectiveFrameRate).FloorToFrame().Value;
		const int32 EndFrame = FFrameRate::TransformTime(FFrameTime(Range.GetUpperBoundValue()), TickResolution, EffectiveFrameRate).CeilToFrame().Value;
		if (EndFrame <= StartFrame)
		{
			continue;
		}
		Shot->SetStatusProgress(0.0f);
		ActiveShots.Add({ Shot, StartFrame, EndFrame - StartFrame });
		TotalOutputFrames += EndFrame - StartFrame;
	}
	return true;
}

int32 UMoviePipeline::ResolveVersionNumber() const
{
	using namespace UE::MoviePipeline::Private;
	const UMoviePipelineOutputSetting* OutputSetting = GetOutputSetting();
	if (!OutputSetting)
	{
		return 1;
	}
	if (!OutputSetting->bAutoVersion)
	{
		return OutputSetting->VersionNumber;
	}
	// Stand-in choice: the files below the resolved output directory (above its first folder naming the version) are
	// searched for "v<digits>" words, and the render takes the version after the highest one.
	FMoviePipelineFormatArgs FormatArgs;
	GetFormatArguments(FormatArgs);
	FormatArgs.FilenameArguments.Add(TEXT("version"), TEXT("{version}"));
	FString Directory = FormatNamedArguments(OutputSetting->OutputDirectory.Path, FormatArgs.FilenameArguments);
	const int32 VersionTokenIndex = Directory.Find(TEXT("{version}"));
	if (VersionTokenIndex != INDEX_NONE)
	{
		Directory = FPaths::GetPath(Directory.Left(VersionTokenIndex));
	}
	Directory = MakeOutputPathAbsolute(Directory);
	FPaths::NormalizeDirectoryName(Directory);

	int32 HighestVersion = 0;
	TArray<FString> FoundFiles;
	if (!Directory.IsEmpty() && FPaths::DirectoryExists(Directory))
	{
		IFileManager::Get().FindFilesRecursive(FoundFiles, *Directory, TEXT("*"), true, false);
	}
	for (const FString& File : FoundFiles)
	{
		HighestVersion = FMath::Max(HighestVersion, FindHighestVersionToken(File.RightChop(Directory.Len())));
	}
	return HighestVersion + 1;
}

const TArray<TObjectPtr<UMoviePipelineExecutorShot>>& UMoviePipeline::GetActiveShotList() const
{
	ActiveShotList.Reset();
	for (const FActiveShot& ActiveShot : ActiveShots)
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
	const bool bRunning = PipelineState != EMovieRenderPipelineState::Uninitialized && PipelineState != EMovieRenderPipelineState::Finished;
	return bRunning && !HasAnyFlags(RF_ClassDefaultObject);
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
		const FActiveShot ActiveShot = ActiveShots[CurrentShotIndex];
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

void UMoviePipeline::RenderFrame(UMoviePipelineExecutorShot& InShot, const FActiveShot& InActiveShot)
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

void UMoviePipeline::TransitionToState(EMovieRenderPipelineState InNewState)
{
	if (PipelineState == InNewState || PipelineState == EMovieRenderPipelineState::Finished)
	{
		return;
	}
	UE_LOG(LogMovieRenderPipeline, Log, TEXT("Transitioning from state %d to %d."), int32(PipelineState), int32(InNewState));
	PipelineState = InNewState;
	if (InNewState == EMovieRenderPipelineState::Finished)
	{
		BroadcastWorkFinished();
	}
}

void UMoviePipeline::BroadcastWorkFinished()
{
	FMoviePipelineOutputData OutputData;
	OutputData.Pipeline = this;
	OutputData.Job = CurrentJob.Get();
	OutputData.bSuccess = !bFatalError;
	OnMoviePipelineWorkFinished().Broadcast(OutputData);
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

// Stand-in choice: the tokens the engine's primary configuration and output setting add, gathered in one place.
void UMoviePipeline::GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const
{
	TMap<FString, FString>& Arguments = InOutFormatArgs.FilenameArguments;
	if (const UMoviePipelineExecutorJob* Job = CurrentJob.Get())
	{
		Arguments.Add(TEXT("level_name"), Job->Map.GetAssetName());
		Arguments.Add(TEXT("sequence_name"), Job->Sequence.GetAssetName());
		Arguments.Add(TEXT("job_name"), Job->JobName);
		Arguments.Add(TEXT("job_author"), Job->Author.Len() > 0 ? Job->Author : FString(FPlatformProcess::UserName(false)));
	}
	Arguments.Add(TEXT("frame_rate"), FString::SanitizeFloat(EffectiveFrameRate.AsDecimal()));
	Arguments.Add(TEXT("date"), InitializationTime.ToString(TEXT("%Y.%m.%d")));
	Arguments.Add(TEXT("time"), InitializationTime.ToString(TEXT("%H.%M.%S")));
	Arguments.Add(TEXT("year"), InitializationTime.ToString(TEXT("%Y")));
	Arguments.Add(TEXT("month"), InitializationTime.ToString(TEXT("%m")));
	Arguments.Add(TEXT("day"), InitializationTime.ToString(TEXT("%d")));
	Arguments.Add(TEXT("version"), FString::Printf(TEXT("v%0*d"), 3, InitializationVersion));
	if (const UMoviePipelineOutputSetting* OutputSetting = GetOutputSetting())
	{
		Arguments.Add(TEXT("project_dir"), FPaths::ConvertRelativePathToFull(FPaths::ProjectDir()));
		Arguments.Add(TEXT("output_resolution"), FString::Printf(TEXT("%d_%d"), OutputSetting->OutputResolution.X, OutputSetting->OutputResolution.Y));
		Arguments.Add(TEXT("output_width"), FString::FromInt(OutputSetting->OutputResolution.X));
		Arguments.Add(TEXT("output_height"), FString::FromInt(OutputSetting->OutputResolution.Y));
	}
}

void UMoviePipeline::ResolveFilenameFormatArguments(const FString& InFormatString, const TMap<FString, FString>& InFormatOverrides, FString& OutFinalPath, FMoviePipelineFormatArgs& OutFinalFormatArgs, const FMoviePipelineFrameOutputState* InOutputState, const int32 InFrameNumberOffset) const
{
	using namespace UE::MoviePipeline::Private;
	const UMoviePipelineOutputSetting* OutputSetting = GetOutputSetting();
	OutFinalFormatArgs = FMoviePipelineFormatArgs();
	OutFinalFormatArgs.InJob = CurrentJob.Get();
	GetFormatArguments(OutFinalFormatArgs);
	if (InOutputState && OutputSetting)
	{
		InOutputState->GetFilenameFormatArguments(OutFinalFormatArgs, OutputSetting->ZeroPadFrameNumbers, OutputSetting->FrameNumberOffset + InFrameNumberOffset, false);
	}
	// Duplicate numbers stay empty unless a file in the way must not be overwritten.
	OutFinalFormatArgs.FilenameArguments.Add(TEXT("file_dup"), FString());
	for (const TPair<FString, FString>& Override : InFormatOverrides)
	{
		OutFinalFormatArgs.FilenameArguments.Add(Override.Key, Override.Value);
	}

	const FString Extension = FormatNamedArguments(TEXT(".{ext}"), OutFinalFormatArgs.FilenameArguments);
	auto ResolvePath = [&InFormatString, &OutFinalFormatArgs, &Extension]()
	{
		FString BaseFilename = FormatNamedArguments(InFormatString, OutFinalFormatArgs.FilenameArguments);
		BaseFilename.RemoveFromEnd(TEXT("."));
		return MakeOutputPathAbsolute(BaseFilename + Extension);
	};

	const bool bOverwriteExisting = !OutputSetting || OutputSetting->bOverrideExistingOutput;
	OutFinalPath = ResolvePath();
	for (int32 DuplicateIndex = 2; !CanWriteToFile(OutFinalPath, bOverwriteExisting) && DuplicateIndex <= MaxDuplicateIndex; ++DuplicateIndex)
	{
		OutFinalFormatArgs.FilenameArguments.Add(TEXT("file_dup"), FString::Printf(TEXT("_(%d)"), DuplicateIndex));
		OutFinalPath = ResolvePath();
	}
}

STANDIN_IMPLEMENT_CLASS(UMoviePipeline, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_FUNCTION(Initialize, TEXT("InJob"));
	STANDIN_FUNCTION(GetCurrentJob);
	STANDIN_FUNCTION(GetCurrentShotIndex);
	STANDIN_FUNCTION(GetPipelinePrimaryConfig);
	STANDIN_FUNCTION(GetInitializationTime);
}
