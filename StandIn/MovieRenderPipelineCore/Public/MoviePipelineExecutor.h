// UMoviePipelineExecutorBase: the base of the objects that run the jobs of a queue and report how they finished.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Object.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMoviePipeline;
class UMoviePipelineExecutorBase;
class UMoviePipelineQueue;

DECLARE_MULTICAST_DELEGATE_TwoParams(FOnMoviePipelineExecutorFinishedNative, UMoviePipelineExecutorBase* /*PipelineExecutor*/, bool /*bSuccess*/);
DECLARE_MULTICAST_DELEGATE_FourParams(FOnMoviePipelineExecutorErroredNative, UMoviePipelineExecutorBase* /*PipelineExecutor*/, UMoviePipeline* /*PipelineWithError*/, bool /*bIsFatal*/, FText /*ErrorText*/);

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineExecutorBase : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineExecutorBase, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineExecutorBase();

	// Starts rendering the jobs of the queue.
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void Execute(UMoviePipelineQueue* InPipelineQueue) { Execute_Implementation(InPipelineQueue); }

	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	bool IsRendering() const { return IsRendering_Implementation(); }

	FOnMoviePipelineExecutorFinishedNative& OnExecutorFinished() { return OnExecutorFinishedDelegateNative; }
	FOnMoviePipelineExecutorErroredNative& OnExecutorErrored() { return OnExecutorErroredDelegateNative; }

	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusMessage(const FString& InStatus) { SetStatusMessage_Implementation(InStatus); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	FString GetStatusMessage() const { return GetStatusMessage_Implementation(); }

	// A cosmetic progress of the whole queue, 0 to 1.
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void SetStatusProgress(const float InProgress) { SetStatusProgress_Implementation(InProgress); }
	UFUNCTION(BlueprintPure, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	float GetStatusProgress() const { return GetStatusProgress_Implementation(); }

	// The pipeline class the executor renders jobs with; null lets the executor choose.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void SetMoviePipelineClass(UClass* InPipelineClass);

	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void CancelCurrentJob() { CancelCurrentJob_Implementation(); }
	UFUNCTION(BlueprintCallable, BlueprintNativeEvent, Category = "Movie Render Pipeline")
	void CancelAllJobs() { CancelAllJobs_Implementation(); }

protected:
	virtual void Execute_Implementation(UMoviePipelineQueue* InPipelineQueue) PURE_VIRTUAL(UMoviePipelineExecutorBase::Execute_Implementation, );
	virtual bool IsRendering_Implementation() const PURE_VIRTUAL(UMoviePipelineExecutorBase::IsRendering_Implementation, return false;);
	virtual void SetStatusMessage_Implementation(const FString& InStatus) { StatusMessage = InStatus; }
	virtual FString GetStatusMessage_Implementation() const { return StatusMessage; }
	virtual void SetStatusProgress_Implementation(const float InProgress) { StatusProgress = InProgress; }
	virtual float GetStatusProgress_Implementation() const { return StatusProgress; }
	virtual void CancelCurrentJob_Implementation() PURE_VIRTUAL(UMoviePipelineExecutorBase::CancelCurrentJob_Implementation, );
	virtual void CancelAllJobs_Implementation() PURE_VIRTUAL(UMoviePipelineExecutorBase::CancelAllJobs_Implementation, );

	// Tells the listeners that every job is done; the executor succeeded unless a job had a fatal error.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API virtual void OnExecutorFinishedImpl();

	// Records a fatal error for the finished report, then tells the error listeners.
	UE_API virtual void OnExecutorErroredImpl(UMoviePipeline* ErroredPipeline, bool bFatal, FText ErrorReason);

public:
	// Anything a script wants to keep with the executor; not used by the engine.
	UPROPERTY(BlueprintReadWrite, Category = "Movie Render Pipeline")
	FString UserData;

protected:
	// Stand-in choice: held as a UClass; the engine's member is a TSubclassOf<UMoviePipeline>.
	UPROPERTY(Transient)
	TObjectPtr<UClass> TargetPipelineClass;

	FString StatusMessage;
	float StatusProgress;
	bool bAnyJobHadFatalError;

private:
	FOnMoviePipelineExecutorFinishedNative OnExecutorFinishedDelegateNative;
	FOnMoviePipelineExecutorErroredNative OnExecutorErroredDelegateNative;
};

#undef UE_API
