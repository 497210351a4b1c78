// UMoviePipelinePIEExecutor: the editor's local executor. It renders each job of the queue in a Play In Editor session,
// one job after the other, advancing with the editor's ticks.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Misc/DateTime.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineLinearExecutor.h"
#include "TickableEditorObject.h"
#include "UObject/WeakObjectPtrTemplates.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINEEDITOR_API)

class UMoviePipelineExecutorJob;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnMoviePipelineIndividualJobStartedNative, UMoviePipelineExecutorJob* /*StartingJob*/);

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINEEDITOR_API) UMoviePipelinePIEExecutor : public UMoviePipelineLinearExecutorBase, public FTickableEditorObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelinePIEExecutor, UMoviePipelineLinearExecutorBase, MOVIERENDERPIPELINEEDITOR_API)

public:
	UE_API UMoviePipelinePIEExecutor();

	// Told when a job's pipeline finished its work, before the executor moves on.
	FMoviePipelineWorkFinishedNative& OnIndividualJobWorkFinished() { return OnIndividualJobWorkFinishedDelegateNative; }
	// Told when a shot of the current job finished.
	FMoviePipelineWorkFinishedNative& OnIndividualShotWorkFinished() { return OnIndividualShotWorkFinishedDelegateNative; }
	// Told when a job is about to be initialized by its pipeline.
	FOnMoviePipelineIndividualJobStartedNative& OnIndividualJobStarted() { return OnIndividualJobStartedDelegateNative; }

	// Stand-in choice: accepted and remembered; the stand-in renders no viewport either way.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void SetIsRenderingOffscreen(const bool bInRenderOffscreen) { bRenderOffscreen = bInRenderOffscreen; }
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool IsRenderingOffscreen() const { return bRenderOffscreen; }

	// Stand-in choice: remembered; each pipeline takes its own initialization time when it starts.
	void SetInitializationTime(const FDateTime& InInitializationTime) { CustomInitializationTime = InInitializationTime; }

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void SetAllowUsingUnsavedLevels(const bool bInAllowUsingUnsavedLevels) { bAllowUsingUnsavedLevels = bInAllowUsingUnsavedLevels; }

	// FTickableEditorObject: the tick after a job starts, play-in-editor is up and the job's pipeline is created.
	UE_API virtual void Tick(float DeltaTime) override;
	UE_API virtual bool IsTickable() const override;

protected:
	UE_API virtual void Start(const UMoviePipelineExecutorJob* InJob) override;
	UE_API virtual void CancelCurrentJob_Implementation() override;
	UE_API virtual void CancelAllJobs_Implementation() override;
	UE_API virtual void OnIndividualPipelineFinished(UMoviePipelineBase* FinishedPipeline) override;

private:
	void OnPIEStartupFinished();
	UMoviePipelineBase* CreatePipelineForJob(const UMoviePipelineExecutorJob& InJob);
	void AbandonPendingJob(const FText& InReason);
	void OnPipelineWorkFinished(FMoviePipelineOutputData InOutputData);
	void OnPipelineShotWorkFinished(FMoviePipelineOutputData InOutputData);
	void UpdateQueueProgress();
	void RaiseQueueProgress(float InProgress);

	FMoviePipelineWorkFinishedNative OnIndividualJobWorkFinishedDelegateNative;
	FMoviePipelineWorkFinishedNative OnIndividualShotWorkFinishedDelegateNative;
	FOnMoviePipelineIndividualJobStartedNative OnIndividualJobStartedDelegateNative;

	// The job whose play-in-editor session is starting; held weakly so that deleting it stays safe.
	TWeakObjectPtr<UMoviePipelineExecutorJob> PendingJob;
	bool bPIEStartupPending;
	bool bPendingJobCanceled;
	bool bRenderOffscreen;
	bool bAllowUsingUnsavedLevels;
	FDateTime CustomInitializationTime;
};

#undef UE_API
