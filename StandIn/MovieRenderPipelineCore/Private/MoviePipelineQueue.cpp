#include "MoviePipelineQueue.h"

#include "Math/UnrealMathUtility.h"
#include "MoviePipelineStandInScriptMessage.h"
#include "MovieRenderPipelineCoreModule.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

UMoviePipelineQueue::UMoviePipelineQueue()
	: QueueSerialNumber(0)
#if WITH_EDITOR
	, bIsDirty(false)
#endif
{
	if (!HasAnyFlags(RF_ClassDefaultObject))
	{
		SetFlags(RF_Transactional);
	}
#if WITH_EDITOR
	FCoreUObjectDelegates::OnObjectModified.AddUObject(this, &UMoviePipelineQueue::OnAnyObjectModified);
#endif
}

UMoviePipelineExecutorJob* UMoviePipelineQueue::AllocateNewJob(TSubclassOf<UMoviePipelineExecutorJob> InJobType)
{
	UClass* JobClass = InJobType.Get();
	if (!ensureAlwaysMsgf(JobClass, TEXT("Failed to specify a Job Type. Use the default in project setting or UMoviePipelineExecutorJob.")))
	{
		JobClass = UMoviePipelineExecutorJob::StaticClass();
	}
#if WITH_EDITOR
	Modify();
#endif
	UMoviePipelineExecutorJob* NewJob = NewObject<UMoviePipelineExecutorJob>(this, JobClass);
	// Stand-in choice: a job class that cannot be instantiated (abstract) yields no job; NewObject has logged why.
	if (!NewJob)
	{
		return nullptr;
	}
	NewJob->SetFlags(RF_Transactional);
	Jobs.Add(NewJob);
	++QueueSerialNumber;
	return NewJob;
}

void UMoviePipelineQueue::DeleteJob(UMoviePipelineExecutorJob* InJob)
{
	if (!InJob)
	{
		return;
	}
#if WITH_EDITOR
	Modify();
#endif
	Jobs.Remove(InJob);
	++QueueSerialNumber;
}

void UMoviePipelineQueue::DeleteAllJobs()
{
#if WITH_EDITOR
	Modify();
#endif
	Jobs.Empty();
	++QueueSerialNumber;
}

UMoviePipelineExecutorJob* UMoviePipelineQueue::DuplicateJob(UMoviePipelineExecutorJob* InJob)
{
	if (!InJob)
	{
		return nullptr;
	}
#if WITH_EDITOR
	Modify();
#endif
	UMoviePipelineExecutorJob* NewJob = Cast<UMoviePipelineExecutorJob>(StaticDuplicateObject(InJob, this));
	if (!NewJob)
	{
		return nullptr;
	}

	// Duplication renames the configurations' display names after their objects; copying them again restores them.
	if (NewJob->GetConfiguration())
	{
		NewJob->GetConfiguration()->CopyFrom(InJob->GetConfiguration());
	}
	for (int32 Index = 0; Index < NewJob->ShotInfo.Num() && Index < InJob->ShotInfo.Num(); ++Index)
	{
		UMoviePipelineExecutorShot* SourceShot = InJob->ShotInfo[Index];
		UMoviePipelineExecutorShot* NewShot = NewJob->ShotInfo[Index];
		if (SourceShot && NewShot && SourceShot->GetShotOverrideConfiguration() && NewShot->GetShotOverrideConfiguration())
		{
			NewShot->GetShotOverrideConfiguration()->CopyFrom(SourceShot->GetShotOverrideConfiguration());
		}
	}

	NewJob->OnDuplicated();
	Jobs.Add(NewJob);
	++QueueSerialNumber;
	return NewJob;
}

TArray<UMoviePipelineExecutorJob*> UMoviePipelineQueue::GetJobs() const
{
	TArray<UMoviePipelineExecutorJob*> Result;
	Result.Reserve(Jobs.Num());
	for (UMoviePipelineExecutorJob* Job : Jobs)
	{
		Result.Add(Job);
	}
	return Result;
}

UMoviePipelineQueue* UMoviePipelineQueue::CopyFrom(UMoviePipelineQueue* InQueue)
{
	if (!InQueue)
	{
		UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Cannot copy the contents of a null queue."));
		return nullptr;
	}

	// The copy keeps pointing at the asset the source was based on, not at the source itself.
	QueueOrigin = InQueue->QueueOrigin;
#if WITH_EDITOR
	Modify();
#endif
	Jobs.Empty();
	for (UMoviePipelineExecutorJob* Job : InQueue->GetJobs())
	{
		DuplicateJob(Job);
	}
	// Bumped once more so that views refresh even when the source queue was empty.
	++QueueSerialNumber;
	return this;
}

void UMoviePipelineQueue::SetJobIndex(UMoviePipelineExecutorJob* InJob, int32 Index)
{
#if WITH_EDITOR
	Modify();
#endif
	const int32 CurrentIndex = Jobs.Find(InJob);
	if (CurrentIndex == INDEX_NONE)
	{
		UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(FString::Printf(TEXT("Cannot find Job %s in queue"),
			InJob ? *InJob->JobName : TEXT("")), ELogVerbosity::Error);
		return;
	}

	if (Index > CurrentIndex)
	{
		--Index;
	}
	Jobs.RemoveAt(CurrentIndex);
	// Stand-in choice: an index outside the queue is clamped to its ends; the engine's array would assert.
	Jobs.Insert(InJob, FMath::Clamp(Index, 0, Jobs.Num()));
	++QueueSerialNumber;
}

void UMoviePipelineQueue::PreSave(const ITargetPlatform* TargetPlatform)
{
	Super::PreSave(TargetPlatform);
#if WITH_EDITOR
	bIsDirty = false;
#endif
}

#if WITH_EDITOR
void UMoviePipelineQueue::OnAnyObjectModified(UObject* InModifiedObject)
{
	if (InModifiedObject && (InModifiedObject == this || InModifiedObject->IsIn(this)))
	{
		bIsDirty = true;
	}
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineQueue, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Jobs, CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference);
	STANDIN_PROPERTY(QueueOrigin, CPF_None);
	STANDIN_FUNCTION(AllocateNewJob, TEXT("InJobType"));
	STANDIN_FUNCTION(DeleteJob, TEXT("InJob"));
	STANDIN_FUNCTION(DeleteAllJobs);
	STANDIN_FUNCTION(DuplicateJob, TEXT("InJob"));
	STANDIN_FUNCTION(GetJobs);
	STANDIN_FUNCTION(CopyFrom, TEXT("InQueue"));
	STANDIN_FUNCTION(SetJobIndex, TEXT("InJob"), TEXT("Index"));
	STANDIN_FUNCTION(GetQueueOrigin);
	STANDIN_FUNCTION(SetQueueOrigin, TEXT("InConfig"));
#if WITH_EDITOR
	STANDIN_FUNCTION(IsDirty);
	STANDIN_FUNCTION(SetIsDirty, TEXT("bNewDirtyState"));
#endif
}
