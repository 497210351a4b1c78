#include "MoviePipelineQueueSubsystem.h"

#include "LevelSequence.h"
#include "MoviePipelineBlueprintLibrary.h"
#include "MoviePipelineStandInScriptMessage.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

UMoviePipelineQueueSubsystem::UMoviePipelineQueueSubsystem()
{
	CurrentQueue = CreateDefaultSubobject<UMoviePipelineQueue>(TEXT("EditorMoviePipelineQueue"));
}

UMoviePipelineExecutorBase* UMoviePipelineQueueSubsystem::RenderQueueWithExecutor(TSubclassOf<UMoviePipelineExecutorBase> InExecutorType)
{
	if (!ensureMsgf(!IsRendering(), TEXT("RenderQueueWithExecutor cannot be called while already rendering a queue!")))
	{
		return nullptr;
	}
	UMoviePipelineExecutorBase* NewExecutor = InExecutorType.Get() ? NewObject<UMoviePipelineExecutorBase>(this, InExecutorType.Get()) : nullptr;
	RenderQueueWithExecutorInstance(NewExecutor);
	return NewExecutor;
}

void UMoviePipelineQueueSubsystem::RenderQueueWithExecutorInstance(UMoviePipelineExecutorBase* InExecutor)
{
	StartRender(GetQueue(), InExecutor);
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
UMoviePipelineExecutorBase* UMoviePipelineQueueSubsystem::RenderQueueInstanceWithExecutor(UMoviePipelineQueue* InQueue, TSubclassOf<UMoviePipelineExecutorBase> InExecutorType)
{
	if (!ensureMsgf(!IsRendering(), TEXT("RenderQueueInstanceWithExecutor cannot be called while already rendering a queue!")))
	{
		return nullptr;
	}
	UMoviePipelineExecutorBase* NewExecutor = InExecutorType.Get() ? NewObject<UMoviePipelineExecutorBase>(this, InExecutorType.Get()) : nullptr;
	RenderQueueInstanceWithExecutorInstance(InQueue, NewExecutor);
	return NewExecutor;
}

void UMoviePipelineQueueSubsystem::RenderQueueInstanceWithExecutorInstance(UMoviePipelineQueue* InQueue, UMoviePipelineExecutorBase* InExecutor)
{
	StartRender(InQueue, InExecutor);
}
#endif

void UMoviePipelineQueueSubsystem::StartRender(UMoviePipelineQueue* InQueue, UMoviePipelineExecutorBase* InExecutor)
{
	if (!ensureMsgf(!IsRendering(), TEXT("RenderQueueWithExecutorInstance cannot be called while already rendering a queue!")))
	{
		UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(TEXT("Render already in progress."), ELogVerbosity::Error);
		return;
	}
	if (!InExecutor)
	{
		UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(TEXT("Invalid executor supplied."), ELogVerbosity::Error);
		return;
	}
	ActiveExecutor = InExecutor;
	ActiveExecutor->OnExecutorFinished().AddUObject(this, &UMoviePipelineQueueSubsystem::OnExecutorFinished);
	// The executor reports a missing queue itself, as it does an empty one.
	ActiveExecutor->Execute(InQueue);
}

void UMoviePipelineQueueSubsystem::OnExecutorFinished(UMoviePipelineExecutorBase* InPipelineExecutor, bool bSuccess)
{
	if (InPipelineExecutor)
	{
		InPipelineExecutor->OnExecutorFinished().RemoveAll(this);
	}
	ActiveExecutor = nullptr;
}

bool UMoviePipelineQueueSubsystem::IsQueueDirty() const
{
	if (!CurrentQueue)
	{
		return false;
	}
	const bool bNeverSaved = CurrentQueue->GetJobs().Num() > 0 && !CurrentQueue->GetQueueOrigin();
	return bNeverSaved || CurrentQueue->IsDirty();
}

bool UMoviePipelineQueueSubsystem::LoadQueue(UMoviePipelineQueue* QueueToLoad, const bool bPromptOnReplacingDirtyQueue)
{
	if (!QueueToLoad || !CurrentQueue)
	{
		return false;
	}
	// Stand-in choice: the headless editor is unattended, so the replace-the-dirty-queue dialog answers Yes.
	CurrentQueue->CopyFrom(QueueToLoad);
	CurrentQueue->SetQueueOrigin(QueueToLoad);
	CurrentQueue->SetIsDirty(false);

	if (RefreshShotListsFromSequences())
	{
		// Stand-in choice: the editor's notification becomes a log line.
		UE_LOG(LogMovieRenderPipeline, Display, TEXT("Shots in the loaded queue were updated to match their sequences."));
	}
	OnQueueLoaded.Broadcast();
	return true;
}

bool UMoviePipelineQueueSubsystem::RefreshShotListsFromSequences()
{
	bool bAnyShotsChanged = false;
	for (UMoviePipelineExecutorJob* Job : CurrentQueue->GetJobs())
	{
		ULevelSequence* Sequence = Job ? Cast<ULevelSequence>(Job->Sequence.TryLoad()) : nullptr;
		if (!Sequence)
		{
			continue;
		}
		bool bShotsChanged = false;
		UMoviePipelineBlueprintLibrary::UpdateJobShotListFromSequence(Sequence, Job, bShotsChanged);
		bAnyShotsChanged |= bShotsChanged;
	}
	return bAnyShotsChanged;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineQueueSubsystem, CLASS_None, "MovieRenderPipelineEditor")
{
	STANDIN_PROPERTY(ActiveExecutor, CPF_Transient);
	STANDIN_PROPERTY(CurrentQueue, CPF_Transient | CPF_ExportObject | CPF_InstancedReference);
	STANDIN_FUNCTION(GetQueue);
	STANDIN_FUNCTION(RenderQueueWithExecutor, TEXT("InExecutorType"));
	STANDIN_FUNCTION(RenderQueueWithExecutorInstance, TEXT("InExecutor"));
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	STANDIN_FUNCTION(RenderQueueInstanceWithExecutor, TEXT("InQueue"), TEXT("InExecutorType"));
	STANDIN_FUNCTION(RenderQueueInstanceWithExecutorInstance, TEXT("InQueue"), TEXT("InExecutor"));
#endif
	STANDIN_FUNCTION(GetActiveExecutor);
	STANDIN_FUNCTION(IsRendering);
	STANDIN_FUNCTION(IsQueueDirty);
	STANDIN_FUNCTION(LoadQueue, TEXT("QueueToLoad"), TEXT("bPromptOnReplacingDirtyQueue"));
}
