// UMoviePipelineBase: what every pipeline (legacy and graph) offers its executor: its state and a way to stop it.
#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "MovieRenderPipelineDataTypes.h"
#include "UObject/Object.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

DECLARE_MULTICAST_DELEGATE_OneParam(FMoviePipelineWorkFinishedNative, FMoviePipelineOutputData);

UCLASS(MinimalAPI, BlueprintType, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineBase : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineBase, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineBase();

	// Asks the pipeline to stop at its next opportunity; work already done is still written. Does not block.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void RequestShutdown(bool bIsError = false) { RequestShutdownImpl(bIsError); }

	// Stops the pipeline now: it finishes what it wrote and reports its work finished before returning.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void Shutdown(bool bIsError = false) { ShutdownImpl(bIsError); }

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	bool IsShutdownRequested() const { return IsShutdownRequestedImpl(); }

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	EMovieRenderPipelineState GetPipelineState() const { return GetPipelineStateImpl(); }

	// Told once, when the whole job is done (successfully or not).
	FMoviePipelineWorkFinishedNative& OnMoviePipelineWorkFinished() { return OnMoviePipelineWorkFinishedDelegateNative; }
	// Told after each shot is done.
	FMoviePipelineWorkFinishedNative& OnMoviePipelineShotWorkFinished() { return OnMoviePipelineShotWorkFinishedDelegateNative; }

protected:
	UE_API virtual void RequestShutdownImpl(bool bIsError);
	virtual void ShutdownImpl(bool bIsError) PURE_VIRTUAL(UMoviePipelineBase::ShutdownImpl, );
	virtual bool IsShutdownRequestedImpl() const { return bShutdownRequested; }
	virtual EMovieRenderPipelineState GetPipelineStateImpl() const { return PipelineState; }

	// Stand-in choice: what both pipelines share lives in their base. A logged state change; reaching Finished reports the
	// work finished, for the job GetWorkFinishedJob names, successful unless bFatalError.
	UE_API void TransitionToState(EMovieRenderPipelineState InNewState);
	virtual UMoviePipelineExecutorJob* GetWorkFinishedJob() const PURE_VIRTUAL(UMoviePipelineBase::GetWorkFinishedJob, return nullptr;);
	// Whether the pipeline was initialized and has not finished; class default objects never run.
	UE_API bool IsRunning() const;

	EMovieRenderPipelineState PipelineState;
	// Whether the render failed (or was canceled), so that its work is reported unsuccessful.
	bool bFatalError;
	bool bShutdownRequested;
	// Whether a shutdown was asked for because of an error.
	bool bShutdownErrorRequested;

private:
	FMoviePipelineWorkFinishedNative OnMoviePipelineWorkFinishedDelegateNative;
	FMoviePipelineWorkFinishedNative OnMoviePipelineShotWorkFinishedDelegateNative;
};

#undef UE_API
